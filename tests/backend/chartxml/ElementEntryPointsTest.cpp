#include "../support/BuilderTest.h"
#include "../support/EntryArguments.h"

#include <cstdint>

#include <chartxml/EntryPoints.h>

using testing::ElementsAre;
using testing::IsEmpty;

class ElementEntryPoints : public BuilderTest {
protected:
  static Int word(const char* bytes) { return text(bytes); }

  KORVA_FortranDictionary* dictionary =
      described({Column("a", "A", 0, {5, 8, 0}), Column("b", "B", 0, {40, 8, 0})}, {1, 0});
  Int c = cx_createchart_(nullptr, reinterpret_cast<void* const*>(&dictionary), "p", Int(1));
  Int source = cx_addsource_(c);
  Int v = cx_addvariable_(c, source, Int(1), Int(1));
};

// Arguments of one type are easily swapped: every one here has a value of its own.
TEST_F(ElementEntryPoints, PassVariablesAndListsInOrder) {
  const Int labeling = cx_addlabelingvariable_(c, source, Int(2), Int(1));
  EXPECT_EQ(cx_setvariable_(c, labeling, Int(1), Int(0)), labeling.value);
  cx_setvariablelabel_(c, labeling, word("label"));
  cx_setvariablename_(c, labeling, word("name"));
  const Int weight = cx_addweightvariable_(c, source, Int(2));
  cx_setvariablecategorical_(c, weight, Int(1));
  cx_setvariablevalue_(c, weight, word("value"));
  const Int computed =
      cx_addlabelingaggregate_(c, source, Int(17), Int(1), word("long"), word("short"), weight);
  EXPECT_EQ(cx_setaggregateexternal_(c, computed), computed.value - 1);
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(cx_getvariablelabel_(c, computed))), "long");
  cx_beginvariablelist_(c);
  const Int list = cx_beginvariablelist_(c);
  EXPECT_EQ(list.value, 1);
  cx_addtovariablelist_(c, list, v);
  const Int overlay = cx_addoverlayvariable_(c, list, Int(1));
  const Int range = cx_addrangevariable_(c, list);
  const Int matrix = cx_addmatrixvariable_(c, list);
  const double first = 1, second = 2;
  cx_setsummaryfunction_(c, matrix, Int(22), &first, &second);
  std::string all;
  for (const Int& node : {labeling, weight, computed, overlay, range, matrix})
    all += fragment(0, static_cast<int>(node.value)) + '\n';
  EXPECT_EQ(all, R"(<variable categorical="false" id="variable2" label="label" shortLabel="name")"
                 R"( source="source0" sourceName="V2"><meta creator="external_datasource" )"
                 R"(description="labeling"><numberFormat scientific="auto"/></meta></variable>)"
                 "\n"
                 R"(<variable categorical="true" id="variable3" label="A" shortLabel="a" )"
                 R"(source="source0" value="value"><meta creator="external_system" )"
                 R"(weight="true"/></variable>)"
                 "\n"
                 R"(<variable categorical="true" domain="variable3" id="variable4" label="long" )"
                 R"(shortLabel="short" source="source0" sourceName="V4"><meta )"
                 R"(creator="external_aggregate" description="labeling"/></variable>)"
                 "\n"
                 R"(<variable categorical="false" expression="variable1" id="variable5" )"
                 R"(shortLabel="X Axis"><meta creator="internal_variable"/></variable>)"
                 "\n"
                 R"(<variable categorical="false" expression="variable1" id="variable6" )"
                 R"(shortLabel="Y Axis"><meta creator="internal_variable"/></variable>)"
                 "\n"
                 R"(<variable categorical="false" expression="variable1/variable1label" )"
                 R"(id="variable7" shortLabel="Y Axis"><meta creator="internal_variable" )"
                 R"(description="percentageInside;1;2"/></variable>)"
                 "\n");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(ElementEntryPoints, PassElementsAndAestheticsInOrder) {
  const Int x = cx_addvariable_(c, source, Int(2), Int(1));
  const Int frame = cx_addframe_(c, Int(0), Int(-1));
  const Int binned = cx_addbinnedelement_(c, frame, Int(22), word("bins"), x, v);
  cx_setelementdot_(c, binned, word("dot"));
  cx_setelementpositionmodifier_(c, binned, Int(88));
  cx_addlabeling_(c, binned, x);
  cx_addsplit_(c, binned, v);
  cx_addlabelingsuffix_(c, binned, v, word("suffix"));
  cx_addlabelinginside_(c, binned, x);
  EXPECT_EQ(fragment(0, static_cast<int>(binned.value)),
            R"(<element dot="dot" id="element_bins" positionModifier="dodge" )"
            R"(showCollidingLabels="true" style="element_binsdefault_style" )"
            R"(type="path"><position><statistic method="bin"><parameter name="location" )"
            R"(value="grid"/><parameter name="grid" value="hex"/></statistic><x )"
            R"(variable="variable2"/><y variable="variable1"/></position><size )"
            R"(high="binhighval" low="binlowval" variable="variable2"><statistic )"
            R"(method="count"/></size><labeling style="labeling_default_style" )"
            R"(variable="variable2"/><labeling style="labeling_suffixdefault_style" )"
            R"(variable="variable1"/><labeling style="labeling_insidedefault_style" )"
            R"(variable="variable2"/><split variable="variable1"/></element>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}
