#include "../support/BuilderTest.h"

#include <cstdlib>

#include <xercesc/dom/DOM.hpp>

#include <host/Settings.h>
#include <host/Text.h>

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using xercesc::DOMElement;

class Variables : public BuilderTest {
protected:
  int handle =
      chartOn(described({Column("mass", "Body mass", 0, {3, 8, 1}), Column("sex", "", 8, {1, 8, 0}),
                         Column("bad\x01", "Day", 0, {40, 8, 0})},
                        {2, 1, 0}));
  Chart& c = chart(handle);
  int source = c.AddSource();
};

TEST_F(Variables, AreDeclaredInFrontOfDomainsAndFrames) {
  const int frame = c.AddFrame(0, -1);
  const int mass = c.AddVariable(source, 0, false);
  const int sex = c.AddLabelingVariable(source, 1, true);
  const int weight = c.AddWeightVariable(source, 2);
  const int texts = c.AddWeightVariable(source, 1);
  const int copy = c.CopyVariable(mass);
  EXPECT_THAT((std::vector{mass, sex, weight, texts, copy}),
              ElementsAre(frame + 3, frame + 5, frame + 6, frame + 9, frame + 12))
      << "a meta and its format come before their variable, those of a weight after it";
  EXPECT_EQ(
      fragment(handle, 0),
      R"(<graph><source id="source0"><otherAccess type="object"/></source>)"
      R"(<variable categorical="false" id="variable2" label="Body mass" shortLabel="mass" )"
      R"(source="source0" sourceName="V2"><meta creator="external_datasource">)"
      R"(<numberFormat minimumFractionDigits="1"/></meta></variable>)"
      R"(<variable categorical="true" id="variable3" shortLabel="sex" source="source0" )"
      R"(sourceName="V3"><meta creator="external_datasource" description="labeling"/></variable>)"
      R"(<variable categorical="false" id="variable4" label="Day" source="source0" )"
      R"(sourceName="weightname"><meta creator="external_system" weight="true">)"
      R"(<numberFormat scientific="auto"/></meta></variable>)"
      R"(<variable categorical="false" id="variable5" shortLabel="sex" source="source0" )"
      R"(sourceName="weightname"><meta creator="external_system" weight="true">)"
      R"(<stringFormat/></meta></variable>)"
      R"(<variable categorical="false" id="variable6" label="Body mass" shortLabel="mass" )"
      R"(source="source0" sourceName="V2"/><frame id="frame1" style="default_style"/></graph>)");
  EXPECT_EQ(c.getKORVAVarIndex(weight), 2);
  EXPECT_EQ(c.getKORVAVarIndex(copy), -1);
  EXPECT_EQ(c.getElement(copy), c.getChart()->getElementById(u"variable6"));
  EXPECT_EQ(c.getElement(mass), c.getChart()->getElementById(u"variable2"));
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Variables, HaveOneMetaWhoeverAsksForItFirst) {
  const int copy = c.CopyVariable(c.AddVariable(source, 1, true));
  EXPECT_EQ(c.CreateLogVar(copy), -1);
  const int meta = copy + 1;
  EXPECT_EQ(c.SetVariableExternal(copy), meta) << "it has no handle until then";
  EXPECT_EQ(c.AddMeta(copy), meta);
  EXPECT_EQ(fragment(handle, meta), R"(<meta creator="external_aggregate" description="log"/>)");
  const int labeling = c.AddLabelingVariable(source, 1, true);
  EXPECT_EQ(c.CreateLogVar(labeling), -1);
  EXPECT_EQ(fragment(handle, c.AddMeta(labeling)),
            R"(<meta creator="external_datasource" description="labeling"/>)")
      << "a description that is there stays";
}

TEST_F(Variables, ArePointedAtOtherColumnsAndRelabelled) {
  const int v = c.AddVariable(source, 0, false);
  EXPECT_EQ(c.SetVariable(v, 2, false), v);
  EXPECT_EQ(fragment(handle, v),
            R"(<variable categorical="false" id="variable1" label="Day" shortLabel="mass" )"
            R"(source="source0" sourceName="V1"><meta creator="external_datasource">)"
            R"(<numberFormat scientific="auto"/></meta></variable>)")
      << "what the column does not have stays";
  EXPECT_EQ(c.SetVariable(v, 1, true), v);
  EXPECT_EQ(c.getKORVAVarIndex(v), 1) << "the newest column";
  EXPECT_EQ(c.SetVariableLabel(v, text("a\\nb\\\\nc\x02")), v);
  EXPECT_EQ(c.SetVariableName(v, text("d\\n")), v);
  EXPECT_EQ(fragment(handle, v),
            "<variable categorical=\"true\" id=\"variable1\" label=\"a\nb\\\nc\uFFFD\" "
            "shortLabel=\"d\n\" source=\"source0\" sourceName=\"V1\">"
            "<meta creator=\"external_datasource\"><numberFormat scientific=\"auto\"/></meta>"
            "</variable>")
      << "categories keep the former format until they are declared such";
  EXPECT_EQ(c.SetVariableCategorical(v, true), v);
  EXPECT_EQ(c.SetVariableValue(v, text("x\\n")), v);
  EXPECT_EQ(c.SetVariableExternal(v), v - 2) << "its meta";
  EXPECT_EQ(fragment(handle, v),
            "<variable categorical=\"true\" id=\"variable1\" label=\"a\nb\\\nc\uFFFD\" "
            "shortLabel=\"d\n\" source=\"source0\" value=\"x\\n\">"
            "<meta creator=\"external_aggregate\"/></variable>");
  EXPECT_EQ(c.SetVariableCategorical(v, false), v);
  EXPECT_EQ(c.SetVariableFormat(v, 4 << 16 | 8 << 8 | 2), v);
  EXPECT_THAT(fragment(handle, v),
              EndsWith(R"(<meta creator="external_aggregate"><numberFormat )"
                       R"(minimumFractionDigits="2" prefix="$"/></meta></variable>)"));
  EXPECT_EQ(takeReports().size(), 1U) << "the character that XML does not allow";
}

// More formats than a scan looks at: the places of those that went must not be used.
TEST_F(Variables, LoseAllTheirFormats) {
  const int v = c.AddVariable(source, 0, false);
  const int meta = c.AddMeta(v);
  for (int i = 0; i < 40; ++i)
    c.AddNumberFormat(meta, 17, 8, 0);
  c.AddLabel(meta, -1, -1);
  c.SetVariableCategorical(v, true);
  EXPECT_EQ(fragment(handle, meta), R"(<meta creator="external_datasource"/>)");
  c.AddLabel(meta, -1, -1);
  EXPECT_EQ(fragment(handle, meta), R"(<meta creator="external_datasource"><label id="label3" )"
                                    R"(style="default_style"/></meta>)");
  c.SetVariableFormat(v, 17 << 16);
  EXPECT_EQ(fragment(handle, meta), R"(<meta creator="external_datasource">)"
                                    R"(<numberFormat scientific="always"/></meta>)");
}

TEST_F(Variables, TellTheirLabelsAndNamesWhereThereIsNoLabel) {
  const int mass = c.AddVariable(source, 0, false);
  const int sex = c.AddVariable(source, 1, true);
  EXPECT_EQ(registry().getUTF8String(c.GetVariableLabel(mass)), "Body mass");
  EXPECT_EQ(registry().getUTF8String(c.GetVariableLabel(sex)), "sex");
  EXPECT_EQ(registry().getUTF8String(c.GetVariableLabel(0)), "");
}

TEST_F(Variables, AreShownTogetherBySum) {
  const int mass = c.AddVariable(source, 0, false);
  const int sex = c.AddVariable(source, 1, true);
  EXPECT_EQ(c.BeginVariableList(), 0);
  EXPECT_EQ(c.BeginVariableList(), 1);
  for (const int member : {sex, mass, sex})
    EXPECT_EQ(c.AddToVariableList(1, member), 1);
  const std::pair<int, const char*> cases[] = {
      {c.AddOverlayVariable(1, 1),
       R"(<variable categorical="false" expression="variable2 + variable1 + variable2" )"
       R"(id="variable3" shortLabel="X Axis">)"},
      {c.AddOverlayVariable(1, 7),
       R"(<variable categorical="false" expression="variable2 + variable1 + variable2" )"
       R"(id="variable4" shortLabel="Y Axis">)"},
      {c.AddRangeVariable(0),
       R"(<variable categorical="false" expression="" id="variable5" shortLabel="Y Axis">)"}};
  for (const auto& [variable, expected] : cases) {
    EXPECT_EQ(fragment(handle, variable),
              std::string(expected) + R"(<meta creator="internal_variable"/></variable>)");
  }
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Variables, StandBesideConstantsThatLabelThemInAMatrix) {
  const int mass = c.AddVariable(source, 0, true);
  const int sex = c.AddVariable(source, 1, true);
  const int list = c.BeginVariableList();
  const int unlabelled = c.AddOverlayVariable(list, 1);
  c.SetVariableName(unlabelled, text(""));
  for (const int member : {mass, sex, mass, unlabelled})
    c.AddToVariableList(list, member);
  const int matrix = c.AddMatrixVariable(list);
  EXPECT_EQ(matrix, unlabelled + 8) << "three constants with metas, then the matrix's own meta";
  EXPECT_EQ(c.AddMatrixVariable(list), matrix + 2) << "which shares the constants";
  std::string constants;
  for (const int node : {unlabelled + 1, unlabelled + 3, unlabelled + 5, matrix})
    constants += fragment(handle, node) + '\n';
  EXPECT_EQ(constants,
            R"-(<variable categorical="true" id="variable1label" source="source0" )-"
            R"-(value="constant(labelvariable1)"><meta creator="internal_variable"/>)-"
            R"-(<relabel from="labelvariable1" to="Body mass"/></variable>)-"
            "\n"
            R"-(<variable categorical="true" id="variable2label" source="source0" )-"
            R"-(value="constant(labelvariable2)"><meta creator="internal_variable"/>)-"
            R"-(<relabel from="labelvariable2" to="sex"/></variable>)-"
            "\n"
            R"-(<variable categorical="true" id="variable3label" )-"
            R"-(value="constant(labelvariable3)"><meta creator="internal_variable"/></variable>)-"
            "\n"
            R"-(<variable categorical="false" expression="variable1/variable1label + )-"
            R"-(variable2/variable2label + variable1/variable1label + )-"
            R"-(variable3/variable3label" id="variable4" shortLabel="Y Axis">)-"
            R"-(<meta creator="internal_variable"/></variable>)-"
            "\n");
  EXPECT_THAT(takeReports(), IsEmpty());
}

// A node elsewhere that took the id labels no member.
TEST_F(Variables, ShareConstantsOfTheGraphOnly) {
  followsGrammar = false; // two nodes of one id
  const int mass = c.AddVariable(source, 0, true);
  const int list = c.BeginVariableList();
  c.AddToVariableList(list, mass);
  DOMElement& inner = *c.getElement(c.AddFrame(c.AddFrame(0, -1), -1));
  c.AddIDAttribute(inner, u"variable1label", false);
  const int first = c.AddMatrixVariable(list);
  const DOMElement* constant = c.getElement(first - 3);
  EXPECT_EQ(host::utf8(constant->getAttribute(u"value")), "constant(labelvariable1)");
  EXPECT_EQ(c.AddMatrixVariable(list), first + 2) << "its meta and itself";
  const auto in = [](const xercesc::DOMNodeList* nodes) {
    return Chart::findNodeById(*nodes, u"variable1label");
  };
  const DOMElement& graph = *c.getElement(0);
  EXPECT_EQ(in(graph.getChildNodes()), constant);
  EXPECT_EQ(in(graph.getElementsByTagName(u"frame")), &inner);
  EXPECT_EQ(in(graph.getElementsByTagName(u"source")), nullptr);
}

TEST_F(Variables, ExchangeIdsAndCreators) {
  const int mass = c.AddVariable(source, 0, true);
  const int count = c.AddAggregate(source, 140, false, -1, -1, -1);
  const int bare = c.CopyVariable(mass);
  EXPECT_EQ(c.swapVariables(*c.getElement(mass), *c.getElement(count)), 0);
  EXPECT_EQ(c.getChart()->getElementById(u"variable2"), c.getElement(mass));
  EXPECT_EQ(c.getChart()->getElementById(u"variable1"), c.getElement(count));
  EXPECT_EQ(fragment(handle, mass - 1), "<meta/>") << "the count had no creator";
  EXPECT_EQ(fragment(handle, count - 1), R"(<meta creator="external_datasource"/>)");
  c.swapVariables(*c.getElement(count), *c.getElement(bare));
  EXPECT_EQ(c.getChart()->getElementById(u"variable3"), c.getElement(count));
  EXPECT_EQ(fragment(handle, count - 1), R"(<meta creator="external_datasource"/>)")
      << "without a meta beside it nothing is exchanged";
}

// Values go where the variable that an aggregate stands on has its own, however far.
TEST_F(Variables, AreComputedInTheSourceOfTheVariableTheyStandOn) {
  const int other = c.AddSource();
  const int base = c.AddVariable(other, 0, false);
  const int mean = c.AddLabelingAggregate(base, -1, false, text("m"), text("s"), base);
  const int meanOfMean = c.AddAggregate(mean, -1, true, -1, -1, -1);
  EXPECT_EQ(fragment(handle, mean),
            R"(<variable categorical="false" domain="variable1" id="variable2" label="m" )"
            R"(shortLabel="s" source="variable1" sourceName="V2">)"
            R"(<meta creator="internal_aggregate" description="labeling"/></variable>)");
  EXPECT_THAT(fragment(handle, c.AddWeightAggregate(base, 17, text("w"))),
              EndsWith(R"( label="w" source="variable1" sourceName="V4">)"
                       R"(<meta creator="internal_aggregate" weight="true"/></variable>)"));
  c.swapVariables(*c.getElement(mean), *c.getElement(base));
  EXPECT_NE(c.AddAggregate(mean, -1, true, -1, -1, -1), -1) << "a variable that names itself";

  c.AddRow(source);
  c.AddDoubleDataValue(source, meanOfMean, 2.5);
  std::vector<std::string> columns;
  whenSent = [&](const host::SentChart& sentChart) {
    for (const auto& store : sentChart.data->sources()) {
      for (const auto& column : store.variables) {
        columns.push_back(store.name + "." + column.name + " " +
                          std::to_string(column.column->rowCount()));
      }
    }
  };
  EXPECT_EQ(registry().EndChart(handle), 0);
  EXPECT_THAT(columns, ElementsAre("source0.V5 0", "source1.V1 0", "source1.V2 0", "source1.V3 1",
                                   "source1.V4 0"));
}

// The procedure's variable numbers count from 1, here backwards; a call for a chart that
// is not there reports that and nothing else.
TEST_F(Variables, GoByTheProceduresNumbers) {
  ChartXml& r = registry();
  const int v = r.AddLabelingVariable(handle, source, 3, true);
  EXPECT_EQ(c.getKORVAVarIndex(v), 0);
  EXPECT_EQ(c.getKORVAVarIndex(r.AddWeightVariable(handle, source, 2)), 1);
  EXPECT_EQ(r.SetVariable(handle, v, 1, false), v);
  EXPECT_EQ(c.getKORVAVarIndex(v), 2);
  EXPECT_EQ(r.SetVariable(handle, v, 4, false), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("variable index out of range 4 3", "invalid variable index -1"));
  for (const int result :
       {r.SetVariable(7, v, 4, false), r.AddVariable(7, v, 4, false), r.AddWeightVariable(7, v, 4),
        r.AddLabelingVariable(7, v, 4, false), r.AddRelabels(7, v, 4), r.GetVariableFormat(7, 4)}) {
    EXPECT_EQ(result, -1);
  }
  EXPECT_EQ(takeReports(), std::vector<std::string>(6, "chart handle (7) out of range (0-1)"));
}

TEST_F(Variables, GetNoDataThatAreRefused) {
  const int v = c.AddVariable(source, 0, false);
  EXPECT_EQ(c.AddRow(source), 1);
  refuseData(handle);
  EXPECT_EQ(registry().AddRow(handle, source), -1);
  EXPECT_EQ(c.AddDataValue(source, v, text("1")), -1);
  EXPECT_EQ(c.AddDoubleDataValue(source, v, 1), -1);
  EXPECT_EQ(registry().AddDataValue(handle, source, v, text("1")), -1);
  EXPECT_EQ(registry().EndChart(handle), -1);
  EXPECT_THAT(takeReports(), ElementsAre("chart with this handle not found 0"))
      << "a value that is refused discards the chart";
}

TEST_F(Variables, TraceEvery10000Rows) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  setenv("CHARTXML_TRACE", "1", 1);
  EXPECT_EXIT(
      {
        for (int row = 0; row < 20001; ++row)
          c.AddRow(source);
        const int other = registry().CreateChart();
        refuseData(other);
        chart(other).EndChart();
        host::setBootstrapping(true);
        chart(other).EndChart();
        host::setBootstrapping(false);
        c.EndChart();
        std::_Exit(0);
      },
      testing::ExitedWithCode(0),
      "CreateChart\n.*Added 10000 rows of data\n.*Added 20000 rows of data\n.*CreateChart\n"
      ".*endChart - Fatal Error\n.*endChart - Bootstrapping\n.*endChart - Start\n"
      ".*endChart - Final\n$");
  unsetenv("CHARTXML_TRACE");
}
