#include "../support/BuilderTest.h"

#include <limits>

#include <host/Missing.h>
#include <host/Settings.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Scatter = BuilderTest;

namespace {

constexpr long plain = 5 << 16 | 8 << 8 | 1;

std::vector<Column> columns() {
  KORVA_ValueLabelMap species(8);
  species.add("Adelie", "Adélie");
  species.add("Gentoo", "");
  return {Column("flipper", "Flipper length", 0, KORVA_Format(plain)),
          Column("mass", "Body mass\x01", 0, KORVA_Format(4, 9, 2)),
          Column("species", "Species", 8, KORVA_Format(1, 8, 0), species)};
}

} // namespace

// One chart, whole: variables, relabels, formats, styles, placement and data.
TEST_F(Scatter, BuildsTheWholeDocument) {
  CmnSys::shared().optionFlags = 1;
  const int made = chartOn(described(columns(), {0, 1, 2}));
  ChartXml& r = registry();
  r.SetProcedure(made, "scatter");
  const int source = r.AddSource(made);
  const int frame = r.AddFrame(made, 0, text("data_1"));
  const int x = r.AddVariable(made, source, 1, false);
  const int y = r.AddVariable(made, source, 2, false);
  const int group = r.AddVariable(made, source, 3, true);
  r.AddRelabels(made, group, 3);
  const int fitted = r.AddAggregate(made, y, -1, false, text("Fitted"), -1, -1);
  const int dimension = r.AddDimension(made, frame, 1, -1);
  r.SetDimensionUpperMargin(made, dimension, text("5%"));
  r.AddLabel(made, r.AddAxis(made, dimension, 1, false), 1, r.VariableLabel(1));
  const int points = r.AddElement(made, frame, 23, text("scatter_1"));
  r.AddY(made, points, y);
  r.AddX(made, points, x);
  const int styleBy = r.AddStyleByColor(made, points, group);
  const int lines = r.AddElement(made, frame, 21, -1);
  r.AddX(made, lines, x);
  r.AddY(made, lines, fitted);
  const int legend = r.AddLegend(made, frame, 15);
  r.AddLegendTarget(made, legend, points, -1, 36);
  EXPECT_EQ(styleBy, 22) << "every node made counts, relabels too";
  CmnSys::shared().optionFlags = 0;

  EXPECT_EQ(r.AddRow(made, source), 1);
  EXPECT_EQ(r.AddDoubleDataValue(made, source, x, 181.5), 0);
  EXPECT_EQ(r.AddDataValue(made, source, group, text("Adelie")), 0);
  EXPECT_EQ(r.EndChart(made), 0);
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_EQ(sent[0].xml.substr(sent[0].xml.find("<graph")),
            R"(<graph name="scatter">

  <source id="source0">
    <otherAccess type="object"/>
  </source>

  <variable categorical="false" id="variable3" label="Flipper length" shortLabel="flipper" source="source0" sourceName="V3">
    <meta creator="external_datasource">
      <numberFormat minimumFractionDigits="1" minimumIntegerDigits="1" useGrouping="true"/>
    </meta>
  </variable>

  <variable categorical="false" id="variable4" shortLabel="mass" source="source0" sourceName="V4">
    <meta creator="external_datasource">
      <numberFormat minimumFractionDigits="2" prefix="$"/>
    </meta>
  </variable>

  <variable categorical="true" id="variable5" label="Species" shortLabel="species" source="source0" sourceName="V5">
    <meta creator="external_datasource"/>
    <relabel from="Adelie" to="Adélie"/>
  </variable>

  <variable categorical="false" id="variable6" label="Fitted" source="variable4" sourceName="V6">
    <meta creator="internal_aggregate"/>
  </variable>

  <frame id="frame_data_1" style="frame_data_1default_style">
    <facetLabeling>
      <facetLabel cellStyle="facetLabel_data_1default_style" id="facetLabel_data_1" level="0"/>
    </facetLabeling>
    <dimension facetsShareScale="true" role="x" upperMargin="5%">
      <axis baselineStyle="axis_axisxbaselineStyle" combineAxisLabels="true" id="axis_axisx" style="axis_axisxdefault_style">
        <label id="label_axisx" style="label_axisxdefault_style">Flipper length</label>
      </axis>
    </dimension>
    <element id="element_scatter_1" labelCollisionHandling="normal" showCollidingLabels="true" style="element_scatter_1default_style" type="point">
      <x variable="variable3"/>
      <y variable="variable4"/>
      <styleBy id="styleBy10" styleCycle="styleCycleColor" variable="variable5"/>
    </element>
    <element id="element11" showCollidingLabels="true" style="default_style" type="line">
      <x variable="variable3"/>
      <y variable="variable6"/>
    </element>
    <legend id="legend_legend" style="legend_legenddefault_style">
      <legendTarget aesthetic="styleBy" element="element_scatter_1" id="legendTarget13"/>
    </legend>
  </frame>

  <styleCycle id="styleCycleColor">
    <cycle>
      <style id="style_styleCycleColor"/>
    </cycle>
  </styleCycle>

  <style id="container">
    <style id="frame_data_1default_style"/>
    <style id="facetLabel_data_1default_style"/>
    <style id="axis_axisxdefault_style"/>
    <style id="axis_axisxbaselineStyle"/>
    <style id="label_axisxdefault_style"/>
    <style id="element_scatter_1default_style" value="fill-pattern:0"/>
    <style id="default_style"/>
    <style id="legend_legenddefault_style"/>
  </style>

  <styleCycle id="styleCycleDefault">
    <cycle>
      <style id="style_styleCycleDefault"/>
    </cycle>
  </styleCycle>

  <styleCycle id="styleCycleRepository">
    <cycle>
      <style id="style_styleCycleRepository"/>
    </cycle>
  </styleCycle>

</graph>
)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Scatter, StoresNumbersAsNumbersAndTextsAsTextsInTheCurrentRow) {
  const int made = chartOn(described(columns(), {0, 1, 2}));
  Chart& c = chart(made);
  const int source = c.AddSource();
  const int v = c.AddVariable(source, 0, false);
  EXPECT_EQ(c.AddDoubleDataValue(source, v, 1), 0);
  EXPECT_EQ(c.AddDoubleDataValue(source, v, 1), 0);
  EXPECT_THAT(takeReports(),
              ElementsAre("a data value outside the rows of chart 0 was not stored; the first "
                          "row must be added before the first value"));
  EXPECT_EQ(c.AddRow(source), 1);
  EXPECT_EQ(c.AddDataValue(source, v, text(" 12.5 ")), 0);
  EXPECT_EQ(c.AddRow(source), 2);
  EXPECT_EQ(c.AddDataValue(source, v, text("abc")), 0);
  EXPECT_EQ(c.AddDataValue(source, 0, text("lost")), 0);
  c.SetAllDataDoubles();
  EXPECT_EQ(c.AddRow(source), 3);
  EXPECT_EQ(c.AddDataValue(source, v, text("abc")), 0);
  EXPECT_EQ(c.getKORVAVarIndex(v), 0);
  EXPECT_EQ(c.getKORVAVarIndex(source), -1);

  const host::ValueColumn* column = nullptr;
  struct Peek : host::ChartSink {
    explicit Peek(const host::ValueColumn*& found) : out(found) {}
    void send(const host::SentChart& s) override {
      out = s.data->sources().front().variables.front().column.get();
      numbers = {out->number(0), out->number(2)};
      text = out->text(1);
      *result = {numbers, text, out->rowCount()};
    }
    void noteError(const std::string&) override {}
    const host::ValueColumn*& out;
    std::vector<double> numbers;
    std::string text;
    std::tuple<std::vector<double>, std::string, std::size_t>* result = nullptr;
  };
  std::tuple<std::vector<double>, std::string, std::size_t> stored;
  auto peek = std::make_unique<Peek>(column);
  peek->result = &stored;
  host::setChartSink(std::move(peek));
  EXPECT_EQ(c.EndChart(), 0);
  EXPECT_EQ(stored, (std::tuple<std::vector<double>, std::string, std::size_t>{
                        {12.5, host::systemMissing}, "abc", 3}));
}

TEST_F(Scatter, TranslatesDisplayFormatsOfNumbers) {
  currencyFormat::SetCCX(0, customCurrency("EUR ", " net", "-", ""));
  currencyFormat::SetCCX(1, customCurrency("", "", "", "-"));
  currencyFormat::SetCCX(2, customCurrency("\x01", "b", "", ""));
  currencyFormat::SetCCX(3, customCurrency("a", "b\x02", "- ", ""));
  currencyFormat::SetCCX(4, customCurrency("", "", "(", ")"));
  CmnSys::shared().minimumIntegerDigits = 2;
  const std::pair<int, const char*> cases[] = {
      {3, R"(<numberFormat minimumFractionDigits="3"/>)"},
      {4, R"(<numberFormat minimumFractionDigits="3" prefix="$"/>)"},
      {5, R"(<numberFormat minimumFractionDigits="3" minimumIntegerDigits="2" )"
          R"(useGrouping="false"/>)"},
      {31, R"(<numberFormat minimumFractionDigits="3" minimumIntegerDigits="2" suffix="%" )"
           R"(useGrouping="false"/>)"},
      {17, R"(<numberFormat scientific="always"/>)"},
      {40, R"(<numberFormat scientific="auto"/>)"},
      {25, "<numberFormat/>"},
      {33, R"(<numberFormat minimumFractionDigits="3" negativesOutside="true" prefix="EUR " )"
           R"(suffix=" net"/>)"},
      {34, R"(<numberFormat minimumFractionDigits="3" negativesInParentheses="true" prefix="" )"
           R"(suffix=""/>)"},
      {35, R"(<numberFormat minimumFractionDigits="3" suffix="b"/>)"},
      {36, R"(<numberFormat minimumFractionDigits="3" negativesInParentheses="true" )"
           R"(prefix="a"/>)"},
      {37, R"(<numberFormat minimumFractionDigits="3" negativesInParentheses="true" prefix="" )"
           R"(suffix=""/>)"}};
  Chart& c = chart(registry().CreateChart());
  for (const auto& [type, expected] : cases) {
    const int parent = c.AddFrame(0, -1);
    const int format = c.AddNumberFormat(parent, type, 8, 3);
    EXPECT_EQ(fragment(0, format), expected) << type;
  }
  CmnSys::shared().minimumIntegerDigits = 1;
  for (int number = 0; number <= 4; ++number)
    currencyFormat::SetCCX(number, {});
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Scatter, AdjustsNumberFormatsAndOnlyThose) {
  Chart& c = chart(registry().CreateChart());
  const int frame = c.AddFrame(0, -1);
  const int format = c.AddNumberFormat(frame);
  EXPECT_EQ(c.SetNumberFormatPrefix(format, text("<")), 0);
  EXPECT_EQ(c.SetNumberFormatMaxFractionDigits(format, text("4")), 0);
  EXPECT_EQ(c.SetNumberScientific(format, true), 0);
  EXPECT_EQ(fragment(0, format),
            R"(<numberFormat maximumFractionDigits="4" prefix="<" scientific="always"/>)");
  EXPECT_EQ(c.SetNumberFormatSuffix(frame, text("x")), -1) << "another kind, silently";
  EXPECT_EQ(c.SetNumberScientific(frame, true), -1);
  EXPECT_THAT(takeReports(), IsEmpty());
  const std::pair<int (Chart::*)(int, int), const char*> setters[] = {
      {&Chart::SetNumberFormatPrefix, "prefix handle out of range"},
      {&Chart::SetNumberFormatSuffix, "suffix handle out of range"},
      {&Chart::SetNumberFormatMaxFractionDigits, "maximumFractionDigits handle out of range"}};
  for (const auto& [set, message] : setters) {
    EXPECT_EQ((c.*set)(9, 17), -1);
    EXPECT_EQ((c.*set)(format, -1), -1);
    EXPECT_THAT(takeReports(), ElementsAre("NumberFormat handle (9) out of range (0-3)", message));
  }
  EXPECT_EQ(c.SetNumberScientific(9, true), -1);
  EXPECT_EQ(c.AddNumberFormat(9), -1);
  EXPECT_THAT(takeReports(), ElementsAre("NumberFormat handle (9) out of range (0-3)",
                                         "parent handle (9) out of range (0-3)"));
}

TEST_F(Scatter, MovesStatisticsFromDescriptionsToExtensions) {
  ZephVisualization parsed;
  const char* descriptions[] = {"mean;12.5", "range;1;9", "labeling", "", "count", ";;"};
  for (const char* description : descriptions) {
    CTVariableTexts variable;
    variable.description = description;
    parsed.addVariable(variable, {});
  }
  chart(registry().CreateChart()).updateVariableStatistics(parsed);
  std::vector<std::string> seen;
  for (const CTVariableType& variable : parsed.getSourceVariables()) {
    std::string line = variable.getDescription();
    if (const ZephExtensionSV* e = variable.getExtension()) {
      line.append("|").append(e->attributes().at(0).second);
      for (const auto& number : {e->value(), e->min(), e->max()}) {
        line.append("|").append(number ? ChartBase::asString(*number) : "-");
      }
    }
    seen.push_back(line);
  }
  EXPECT_THAT(seen,
              ElementsAre("|mean|12.5|-|-", "|range|-|1|9", "labeling", "", "|count|-|-|-", ";;"));
}

TEST_F(Scatter, MarksVariablesForLogScalesWithoutSayingSo) {
  const int made = chartOn(described(columns(), {0, 1, 2}));
  Chart& c = chart(made);
  const int source = c.AddSource();
  const int v = c.AddVariable(source, 2, true);
  EXPECT_EQ(registry().CreateLogVar(made, v), made);
  EXPECT_THAT(fragment(made, v),
              HasSubstr(R"(<meta creator="external_datasource" description="log"/>)"));
  EXPECT_EQ(c.CreateLogVar(v), -1);
  EXPECT_EQ(c.SetLogUnsafe(), -1);
}

TEST_F(Scatter, TellsWhereComputedVariablesComeFrom) {
  const int made = chartOn(described(columns(), {0, 1, 2}));
  Chart& c = chart(made);
  const int source = c.AddSource();
  const int frame = c.AddFrame(0, -1);
  const std::tuple<int, bool, const char*> cases[] = {
      {135, false,
       R"(<variable categorical="false" id="variable2" shortLabel="dot" )"
       R"(source="source0" sourceName="casenum"><meta creator="external_system"/>)"},
      {140, true,
       R"(<variable categorical="true" id="variable3" shortLabel="dot" )"
       R"(source="source0" sourceName="countname"><meta/>)"},
      {141, false,
       R"(<variable categorical="false" id="variable4" shortLabel="dot" )"
       R"(source="source0" sourceName="percentname">)"
       R"(<meta creator="internal_aggregate"/>)"},
      {17, false,
       R"(<variable categorical="false" id="variable5" shortLabel="dot" )"
       R"(source="source0" sourceName="V5"><meta creator="internal_aggregate"/>)"}};
  for (const auto& [name, categorical, expected] : cases) {
    const int variable = c.AddAggregate(source, name, categorical, -1, 156, -1);
    EXPECT_EQ(fragment(made, variable), std::string(expected) + "</variable>");
  }
  const int bound = c.AddAggregate(source, -1, false, -1, -1, frame);
  EXPECT_THAT(fragment(made, bound), HasSubstr(R"(domain="frame1")"));
  EXPECT_EQ(c.AddAggregate(2'000'000'000, -1, false, -1, -1, -1), -1);
  EXPECT_EQ(c.AddVariable(2'000'000'000, 0, false), -1);
  EXPECT_EQ(c.AddVariable(source, 3, false), -1) << "one past the last column";
  EXPECT_THAT(takeReports(), ElementsAre("invalid variable index 3"));
}

TEST_F(Scatter, RelabelsValuesAsTheyAreStored) {
  KORVA_ValueLabelMap codes;
  codes.add(2, "two");
  codes.add(host::systemMissing, "none");
  codes.add(3, "bad\x01");
  KORVA_ValueLabelMap texts(4);
  texts.add("01", "first");
  texts.add("b", "second");
  const int made = chartOn(described(
      {
          Column("code", "", 0, {5, 8, 2}, codes),
          Column("text", "", 4, {1, 40, 0}, texts),
      },
      {0, 1}));
  Chart& c = chart(made);
  const int node = c.AddVariable(c.AddSource(), 1, true);
  EXPECT_EQ(c.AddRelabels(node, 0), node);
  EXPECT_EQ(c.AddRelabels(node, 1), node);
  EXPECT_EQ(c.AddRelabel(node, 17, text("bad\x01")), -1) << "silently";
  ASSERT_TRUE(CmnLoc::set({",", "."}));
  EXPECT_EQ(c.AddRelabels(node, 0), node) << "whatever the decimal sign";
  CmnLoc::followLanguage();
  EXPECT_THAT(fragment(made, node),
              HasSubstr(R"(<relabel from="2" to="two"/><relabel from="1" to="first"/>)"
                        R"(<relabel from="b" to="second"/><relabel from="2" to="two"/>)"
                        R"(</variable>)"));
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Scatter, KeepsOneStyleCycleForEachPalette) {
  Chart& c = chart(registry().CreateChart());
  const int frame = c.AddFrame(0, -1);
  const int element = c.AddElement(c.AddElementGroup(frame, -1), 21, -1);
  for (int i = 0; i < 2; ++i)
    c.AddStyleByPattern(element, frame);
  EXPECT_EQ(c.SetElementName(element, text("lines")), element);
  EXPECT_EQ(c.SetElementName(frame, text("none")), -1);
  EXPECT_EQ(fragment(0, 0),
            R"(<graph><frame id="frame1" style="default_style"><elementGroup id="elementGroup2" )"
            R"(style="default_style"><element id="element3" name="lines" )"
            R"(showCollidingLabels="true" style="default_style" type="line">)"
            R"(<styleBy id="styleBy4" styleCycle="styleCyclePattern" variable="frame1"/>)"
            R"(<styleBy id="styleBy5" styleCycle="styleCyclePattern" variable="frame1"/>)"
            R"(</element></elementGroup></frame><styleCycle id="styleCyclePattern"><cycle>)"
            R"(<style id="style_styleCyclePattern"/></cycle></styleCycle></graph>)");
}

TEST_F(Scatter, TurnsTheSafeParameterOfTheYScaleOff) {
  followsGrammar = false; // a scale is made by hand
  Chart& c = chart(registry().CreateChart());
  const int frame = c.AddFrame(0, -1);
  const int y = c.AddDimension(frame, 2, -1);
  xercesc::DOMElement* scale = nullptr;
  const int node = c.AddEmptyElement(*c.getElement(y), u"scale", scale);
  for (const int name : {117, 23})
    c.AddParam(node, name, 110);
  c.AddParam(node, text("safe"), text("true"));
  EXPECT_EQ(c.SetLogUnsafe(), -1);
  EXPECT_EQ(fragment(0, node), R"(<scale><parameter name="base" value="false"/>)"
                               R"(<parameter name="point" value="false"/>)"
                               R"(<parameter name="safe" value="false"/></scale>)");
}
