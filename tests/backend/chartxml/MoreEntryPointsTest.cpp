#include "../support/BuilderTest.h"
#include "../support/EntryArguments.h"

#include <cstdint>
#include <limits>
#include <string>

#include <chartxml/EntryPoints.h>

using testing::ElementsAre;
using testing::IsEmpty;

class MoreEntryPoints : public BuilderTest {
protected:
  static Int word(const char* bytes) { return text(bytes); }
  static std::string told(Int refused, Int mayBeSilent, Int wanted) {
    std::string message(12, '?');
    const std::int64_t result =
        chartxml_endcall_("draw", Int(4), refused, mayBeSilent, wanted, message.data(), Int(12));
    return std::to_string(result) + message;
  }

  KORVA_FortranDictionary* dictionary = described({Column("a", "A", 0, {5, 8, 1})}, {0});
  Int c = cx_createchart_(nullptr, reinterpret_cast<void* const*>(&dictionary), "p", Int(1));
  Int source = cx_addsource_(c);
  Int frame = cx_addframe_(c, Int(0), Int(-1));
  Int variable = cx_addaggregate_(c, source, Int(17), Int(0), Int(-1), Int(-1), Int(-1));
};

// Arguments of one type are easily swapped: every one here has a value of its own.
TEST_F(MoreEntryPoints, PassTheirArgumentsInOrder) {
  const Int other = chartxml_copyvariable_(c, variable);
  const Int element = cx_addelement_(c, frame, Int(21), word("e"));
  const Int position = cx_addposition_(c, element);
  chartxml_addr_(c, position, variable);
  chartxml_addphi_(c, position, other);
  EXPECT_EQ(chartxml_addstack_(c, position, Int(1)), position.value);
  const Int size = chartxml_addsize_(c, element, other);
  chartxml_setsizelow_(c, size, word("low"));
  chartxml_setsizehigh_(c, size, word("high"));
  const Int legend = cx_addlegend_(c, frame, word("l"));
  chartxml_addlegendtarget_(c, legend, element, word("t"), Int(36));
  const Int x = cx_adddimension_(c, frame, Int(1), Int(-1));
  chartxml_setfacetsdifferentscale_(c, x);
  chartxml_addtransform_(c, x, word("log"));
  chartxml_addreferenceline_(c, frame, Int(2), word("value"), Int(7));
  const double b1 = 3, b2 = 4;
  const Int formula = cx_compositestring_(Int(0), "^2*x^1", Int(6));
  chartxml_addyofxwithab_(c, frame, formula, Int(8), &b1, &b2);
  EXPECT_EQ(
      fragment(0, static_cast<int>(frame.value)),
      R"(<frame id="frame1" style="default_style"><dimension facetsShareScale="false" role="x">)"
      R"(<transform method="log"/></dimension><element id="element_e" positionModifier="stack" )"
      R"(showCollidingLabels="true" style="element_edefault_style" type="line"><position>)"
      R"(<r variable="variable2"/><phi variable="variable3"/></position><size high="high" low="low" )"
      R"(variable="variable3"/></element><legend id="legend_l" style="legend_ldefault_style">)"
      R"(<legendTarget aesthetic="styleBy" element="element_e" id="legendTarget_t"/></legend>)"
      R"(<guide id="guide_referenceLine_207" style="guide_referenceLine_207default_style" )"
      R"(type="line"><parameter name="y" value="value"/></guide><guide id="guide_yFunctionOfX_8" )"
      R"(style="guide_yFunctionOfX_8default_style" type="function"><parameter name="y" )"
      R"(value="4*x3"/><parameter name="numPoints" value="1000"/></guide></frame>)");
  EXPECT_EQ(chartxml_getvariableindex_(Int(1)), 0);
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(MoreEntryPoints, BuildDisplayFormats) {
  const Int meta = chartxml_addmeta_(c, variable);
  chartxml_setmetaweight_(c, meta, Int(1));
  EXPECT_EQ(chartxml_addformat_(c, meta, Int(0)), -1);
  const Int number = chartxml_addnumberformatoftype_(c, meta, Int(3), Int(9), Int(2));
  chartxml_setnumberformatprefix_(c, number, word("<"));
  chartxml_setnumberformatsuffix_(c, number, word(">"));
  chartxml_setnumberformatmaxfractiondigits_(c, number, word("4"));
  chartxml_setnumberscientific_(c, number, Int(1));
  chartxml_addnumberformat_(c, meta);
  EXPECT_EQ(chartxml_setnumberformatminfractiondigits_(c, number, Int(3)), -1);
  EXPECT_EQ(
      fragment(0, static_cast<int>(meta.value)),
      R"(<meta creator="internal_aggregate" weight="true"><numberFormat minimumFractionDigits="1" )"
      R"(minimumIntegerDigits="1" useGrouping="false"/><numberFormat maximumFractionDigits="4" )"
      R"(minimumFractionDigits="2" prefix="<" scientific="always" suffix=">"/><numberFormat/></meta>)");
  chartxml_adddateformat_(c, meta, Int(28), Int(8));
  EXPECT_EQ(
      fragment(0, static_cast<int>(meta.value)),
      R"(<meta creator="internal_aggregate" weight="true"><dateTimeFormat><dateFormat><monthName/>)"
      R"(<year showCentury="true"/></dateFormat><timeFormat/></dateTimeFormat></meta>)");
  chartxml_addstringformat_(c, meta);
  EXPECT_EQ(fragment(0, static_cast<int>(meta.value)),
            R"(<meta creator="internal_aggregate" weight="true"><stringFormat/></meta>)");
  EXPECT_EQ(chartxml_getvariablenumformat_(c, variable), -1);
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(MoreEntryPoints, LoadColumns) {
  const double numbers[] = {1, 2, 3};
  const std::int64_t most = std::numeric_limits<int>::max();
  EXPECT_EQ(chartxml_loadnumbers_(c, variable, Int(2), numbers, Int(3)), 0);
  EXPECT_EQ(chartxml_loadtexts_(c, variable, Int(1), "x  7  ", Int(3), Int(2)), 0);
  EXPECT_EQ(cx_addrow_(c, source), 5);
  EXPECT_EQ(chartxml_loadnumbers_(c, variable, Int(9), nullptr, Int(3)), 0);
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(chartxml_loadnumbers_(Int(5), variable, Int(1), numbers, Int(3)), -1);
  EXPECT_EQ(chartxml_loadtexts_(c, frame, Int(1), "x", Int(1), Int(1)), -1);
  EXPECT_EQ(chartxml_loadnumbers_(c, variable, Int(0), numbers, Int(3)), -1);
  EXPECT_EQ(chartxml_loadnumbers_(c, variable, Int(most - 1), numbers, Int(3)), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("chart handle (5) out of range (0-1)",
                          "the node 2 is no variable with a column",
                          "no 3 rows from row 0 on: rows go from 1 to 2147483647",
                          "no 3 rows from row 2147483646 on: rows go from 1 to 2147483647"));
  EXPECT_EQ(registry().LoadNumbers(0, static_cast<int>(variable.value), 1, {}), 0);
  cx_endchart_(c);
}

// Held back here means also: not on standard error, as the program takes them itself.
TEST_F(MoreEntryPoints, HoldTheMessagesOfOneCall) {
  chartxml_begincall_();
  cx_addframe_(c, Int(-1), Int(-1));
  EXPECT_EQ(told(Int(1), Int(0), Int(1)), "1parent handl");
  chartxml_begincall_();
  EXPECT_EQ(told(Int(1), Int(0), Int(1)), "1refused     ");
  chartxml_begincall_();
  EXPECT_EQ(told(Int(1), Int(1), Int(1)), "0????????????") << "silence was in order";
  chartxml_begincall_();
  chartxml_begincall_();
  EXPECT_EQ(chartxml_refuse_("one", Int(3)), -1);
  chartxml_refuse_("two", Int(3));
  EXPECT_EQ(told(Int(1), Int(1), Int(0)), "1one; two    ");
  EXPECT_EQ(told(Int(1), Int(0), Int(0)), "0????????????") << "no call was begun";
  EXPECT_THAT(takeReports(), ElementsAre("parent handle (-1) out of range (0-5)", "one", "two"));
  chartxml_begincall_();
  EXPECT_EQ(told(Int(1), Int(0), Int(0)), "1refused     ");
  EXPECT_THAT(takeReports(), ElementsAre("draw: refused")) << "the program is told of silence";
}

TEST_F(MoreEntryPoints, LeaveTextsAndTablesAsTold) {
  EXPECT_EQ(chartxml_setprocedure_(Int(-1), "penguins", Int(8)), 0);
  EXPECT_EQ(chartxml_setprocedure_(c, "no such", Int(7)), 1);
  EXPECT_EQ(chartxml_getxml_(Int(4), nullptr, Int(0)), -1);
  EXPECT_EQ(chartxml_resetstrings_(), 0);
  EXPECT_EQ(cx_string_(Int(0), "x", Int(1)), 157);
  EXPECT_EQ(chartxml_gettext_(Int(600), nullptr, nullptr), 0);
  EXPECT_EQ(chartxml_setglobalstringtable_("", Int(0)), 0);
  EXPECT_THAT(takeReports(),
              ElementsAre("chart handle (4) out of range (0-1)", "String not found for handle 600",
                          "no string tables in \"\""));
}
