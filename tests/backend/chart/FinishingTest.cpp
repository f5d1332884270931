#include "../support/BuilderTest.h"

#include <cstdlib>

#include <fmt/format.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMElementImpl.hpp>
#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Finishing : public BuilderTest {
protected:
  int handle = chartOn(described({Column("v", "Value", 0, {0, 8, 0})}, {0}));
  Chart& c = chart(handle);
  int source = c.AddSource();
  int frame = c.AddFrame(0, -1);

  std::string variables() {
    std::string all = fragment(handle, 0);
    const std::size_t from = all.find("<variable");
    return all.substr(from, all.find("<frame") - from);
  }
};

// References by id reach the aesthetic's copy, which has no domain; the others keep it.
TEST_F(Finishing, GivesAestheticsVariablesOfTheirOwnInChartsWithFacets) {
  const int domain = c.AddDomain(false);
  const int v = c.AddAggregate(source, -1, false, text("Value"), -1, domain);
  c.AddRelabel(v, text("1"), text("one"));
  const int other = c.AddVariable(source, 0, true);
  const int element = c.AddElement(frame, 21, -1);
  for (const int variable : {v, other, v, frame})
    c.AddStyleBy(element, variable);
  c.AddSplit(element, v);
  c.AddColor(element, other);
  const std::string before = fragment(handle, 0);
  EXPECT_EQ(c.updateGroupedChart(), -1);
  EXPECT_EQ(fragment(handle, 0), before) << "nothing without facets";

  c.AddFacetVariable(c.AddNest(c.AddCoordinateFacet(frame)), 1, v);
  EXPECT_EQ(c.updateGroupedChart(), 0);
  EXPECT_EQ(variables().substr(0, variables().find("<domain")),
            R"(<variable categorical="false" domain="domain2" id="variable3_attributes" )"
            R"(label="Value" source="source0" sourceName="V3"><meta creator="internal_variable"/>)"
            R"(<relabel from="1" to="one"/></variable>)"
            R"(<variable categorical="true" id="variable4_attributes" label="Value" )"
            R"(shortLabel="v" source="source0" sourceName="V4"><meta creator="internal_variable"/>)"
            R"(</variable><variable categorical="false" id="variable3" label="Value" )"
            R"(source="source0" sourceName="V3"><meta creator="internal_aggregate"/>)"
            R"(<relabel from="1" to="one"/></variable>)"
            R"(<variable categorical="true" id="variable4" label="Value" shortLabel="v" )"
            R"(source="source0" sourceName="V4"><meta creator="external_datasource"/></variable>)");
  EXPECT_EQ(c.getChart()->getElementById(u"variable3_attributes"), c.getElement(v));
  const std::string grouped = fragment(handle, 0);
  EXPECT_EQ(c.updateGroupedChart(), -1) << "a second exchange would undo the first";
  EXPECT_EQ(fragment(handle, 0), grouped);

  bool made = true;
  EXPECT_EQ(c.getAestheticVariable(nullptr, made), nullptr);
  EXPECT_FALSE(made);
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Finishing, GroupsBySplitsOfElementsOnly) {
  followsGrammar = false; // a split stands below a frame
  const int v = c.AddVariable(source, 0, true);
  const int element = c.AddElement(frame, 21, -1);
  c.AddFacetVariable(c.AddCoordinateFacet(frame), 1, v);
  xercesc::DOMElement* loose = nullptr;
  c.AddEmptyElement(*c.getElement(frame), u"split", loose);
  loose->setAttribute(u"variable", u"variable2");
  EXPECT_EQ(c.updateGroupedChart(), -1);
  c.AddSplit(element, v);
  whenSent = [](const host::SentChart& sentChart) {
    EXPECT_THAT(sentChart.xml, HasSubstr(R"(id="variable2_attributes")"));
  };
  EXPECT_EQ(registry().EndChart(handle), 0);
  EXPECT_EQ(sent.size(), 1U);
}

TEST_F(Finishing, SendsSummariesAndRowsOfIciclePlots) {
  const int v = c.AddVariable(source, 0, true);
  c.SetSummaryFunction(v, 22, 10, 20);
  c.AddLabelingVariable(source, 0, true);
  c.SetSummaryFunction(c.AddVariable(source, 0, true), 17, 0.5, 0);
  c.AddRow(source);
  c.AddRow(source);
  c.AddDoubleDataValue(source, v, 1);
  std::vector<std::string> seen;
  whenSent = [&](const host::SentChart& sentChart) {
    for (const CTVariableType& variable : sentChart.visualization.getSourceVariables()) {
      std::string line = variable.getDescription();
      if (const ZephExtensionSV* extension = variable.getExtension()) {
        for (const auto& [name, value] : extension->attributes())
          line.append(name).append("=").append(value);
        for (const auto& number : {extension->value(), extension->min(), extension->max()})
          line.append("|").append(number ? ChartBase::asString(*number) : "-");
      }
      seen.push_back(line);
    }
    const auto& horizontal = sentChart.visualization.icicleHorizontal;
    seen.push_back(horizontal
                       ? fmt::format("{} {}", *horizontal, sentChart.visualization.icicleRows)
                       : "no icicles");
  };
  const std::string summaries[] = {"statistic=percentageInside|-|10|20", "labeling",
                                   "statistic=percentile|0.5|-|-"};
  for (const auto& [type, icicles] :
       {std::pair(0, "no icicles"), std::pair(1, "false 2"), std::pair(2, "true 2")}) {
    c.SetChartType(type);
    seen.clear();
    // Not meant: a second call finds its styles attached.
    EXPECT_EQ(c.EndChart(), 0);
    EXPECT_THAT(seen, ElementsAre(summaries[0], summaries[1], summaries[2], icicles));
  }
  EXPECT_THAT(takeReports(), IsEmpty());
}

// What goes wrong on the way out is told, and consumes the chart and nothing else.
TEST_F(Finishing, TellsWhatWentWrongAtEachStep) {
  const std::string fatal = "Fatal error while sending chart [ what it shows ]";
  const auto graph = [](Chart& on) { return on.getChart()->getDocumentElement(); };
  // Prints, but a reader misses the prefix's namespace.
  const auto addPrefix = [&](Chart& on) {
    graph(on)->appendChild(on.getChart()->createElement(u"other:part"));
  };
  struct Case {
    const char* step;
    std::function<void(Chart&)> breakChart;
    std::function<void()> breakSink;
    std::vector<testing::Matcher<std::string>> reports;
    std::vector<std::string> listed; ///< in the output's error list
  };
  const Case cases[] = {
      {"grouping",
       [&](Chart& on) {
         const int inner = on.AddFrame(0, -1);
         on.AddFacetVariable(on.AddCoordinateFacet(inner), 1, inner);
         on.AddSplit(on.AddElement(inner, 21, -1), on.AddVariable(on.AddSource(), 0, true));
         static_cast<xercesc::DOMElementImpl*>(graph(on))->setReadOnly(true, false);
       },
       {},
       {fatal},
       {}},
      {"styles",
       [&](Chart& on) {
         static_cast<xercesc::DOMElementImpl*>(graph(on))->setReadOnly(true, false);
       },
       {},
       {StartsWith("DOM exception 7: ")},
       {}},
      {"printing",
       [&](Chart& on) { graph(on)->setAttribute(u"name", u"\u0001"); },
       {},
       {AllOf(StartsWith("Fatal error while sending chart ( can't print "), EndsWith(" )"))},
       {}},
      {"reading",
       addPrefix,
       {},
       {AllOf(StartsWith("Fatal error while sending chart ( can't read "), EndsWith(" )"))},
       {}},
      {"refusing",
       [](Chart&) {},
       [] { throw ChartException("no room", "sink", 1); },
       {"no room"},
       {"Chart XML Send Error"}},
      {"sending", [](Chart&) {}, [] { throw std::runtime_error("broken"); }, {fatal}, {}},
      {"sending what is no exception", [](Chart&) {}, [] { throw 7; }, {fatal}, {}},
  };
  for (const Case& k : cases) {
    sent.clear();
    const int broken = chartOn(nullptr);
    registry().SetChartDescription(broken, "what it shows");
    k.breakChart(chart(broken));
    takeReports();
    whenSent = [&](const host::SentChart&) { k.breakSink(); };
    EXPECT_EQ(registry().EndChart(broken), -1) << k.step;
    EXPECT_THAT(takeReports(), testing::ElementsAreArray(k.reports)) << k.step;
    const std::vector<std::string> listed =
        sent.empty() ? std::vector<std::string>() : sent[0].errors;
    EXPECT_EQ(listed, k.listed) << k.step;
    EXPECT_EQ(registry().EndChart(broken), -1) << "it is gone";
    EXPECT_EQ(takeReports().size(), 1U);
  }
  whenSent = nullptr;
  EXPECT_EQ(registry().EndChart(handle), 0) << "the others are sound";
}

// Wherever control goes back to the caller, the chart is consumed and the rest sound.
TEST_F(Finishing, LetsControlGoBackToTheCaller) {
  const auto goBack = [](const auto&) { throw KorvaGoToCaller(); };
  const std::function<void(Chart&)> breaks[] = {
      [](Chart& on) { on.getChart()->getDocumentElement()->setAttribute(u"name", u"\u0001"); },
      [](Chart& on) {
        static_cast<xercesc::DOMElementImpl*>(on.getChart()->getDocumentElement())
            ->setReadOnly(true, false);
      }};
  for (const auto& breakChart : breaks) {
    const int broken = registry().CreateChart();
    breakChart(chart(broken));
    host::setErrorCallback(goBack);
    EXPECT_THROW(registry().EndChart(broken), KorvaGoToCaller);
    host::setErrorCallback({});
    EXPECT_EQ(registry().getValidChart(broken, "", 0, false), nullptr);
  }
  const int returned = registry().CreateChart();
  whenSent = goBack;
  EXPECT_THROW(registry().EndChart(returned), KorvaGoToCaller);
  EXPECT_EQ(registry().getValidChart(returned, "", 0, false), nullptr);
  whenSent = nullptr;
  EXPECT_EQ(registry().EndChart(handle), 0);
}

namespace {

/// Memory that runs out when told.
struct Memory : xercesc::MemoryManager {
  MemoryManager* getExceptionMemoryManager() override { return this; }
  void* allocate(XMLSize_t size) override {
    if (isOut) throw xercesc::OutOfMemoryException();
    return std::malloc(size);
  }
  void deallocate(void* block) override { std::free(block); }

  bool isOut = false;
};

} // namespace

using FinishingWithoutMemory = BuilderTest;

TEST_F(FinishingWithoutMemory, TellsThatStylesCouldNotBeAdded) {
  static Memory memory; // until the platform ends, which is after the test
  forgetGrammar();
  followsGrammar = false; // which must not come to live in this memory
  xercesc::XMLPlatformUtils::Initialize("en_US", nullptr, nullptr, &memory);
  const int handle = registry().CreateChart();
  const int frame = chart(handle).AddFrame(0, -1);
  for (int i = 0; i < 10000; ++i)
    chart(handle).AddElement(frame, 23, -1);
  memory.isOut = true;
  EXPECT_EQ(registry().EndChart(handle), -1);
  memory.isOut = false;
  EXPECT_THAT(takeReports(), ElementsAre("add styles error"));
  EXPECT_EQ(registry().EndChart(registry().CreateChart()), 0);
  xercesc::XMLPlatformUtils::Terminate();
}
