#include "BuilderTest.h"

#include <fmt/format.h>
#include <xercesc/dom/DOM.hpp>

#include <host/Text.h>
#include <schema/SchemaCheck.h>

using ::testing::IsEmpty;

namespace {

// An explicit instantiation may name private members: this is how a test brings a chart
// into a state that no call does.
template <class Member, Member Pointer> struct Reach {
  friend Member reach(Member*) { return Pointer; }
};
using Flag = bool Chart::*;
using Lists = std::map<int, std::vector<int>> Chart::*;
Flag reach(Flag*);
using Charts = ChartHashtable<Chart> ChartXml::*;
Lists reach(Lists*);
Charts reach(Charts*);
template struct Reach<Flag, &Chart::dataRefused_>;
template struct Reach<Lists, &Chart::variableLists_>;
template struct Reach<Charts, &ChartXml::charts_>;

struct CollectingSink : host::ChartSink {
  CollectingSink(std::vector<Sent>& charts, bool& fails, SendAction& does)
      : sent(charts), fail(fails), action(does) {}

  void send(const host::SentChart& chart) override {
    if (fail) throw ChartException("the sink is full", "sink", 1);
    if (action) action(chart);
    sent.push_back(
        {chart.name, chart.xml, chart.description, chart.splitHeader, chart.chartTemplate, {}});
  }
  void noteError(const std::string& text) override { sent.push_back({.errors = {text}}); }

  std::vector<Sent>& sent;
  bool& fail;
  SendAction& action;
};

void print(const xercesc::DOMElement& element, std::string& out) {
  const std::string name = host::utf8(element.getNodeName());
  out += '<' + name;
  const auto* attributes = element.getAttributes();
  for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
    out += fmt::format(" {}=\"{}\"", host::utf8(attributes->item(i)->getNodeName()),
                       host::utf8(attributes->item(i)->getNodeValue()));
  }
  if (!element.getFirstChild()) {
    out += "/>";
    return;
  }
  out += '>';
  for (auto* child = element.getFirstChild(); child; child = child->getNextSibling()) {
    if (child->getNodeType() == xercesc::DOMNode::ELEMENT_NODE) {
      print(*static_cast<xercesc::DOMElement*>(child), out);
    } else {
      out += host::utf8(child->getNodeValue());
    }
  }
  out += "</" + name + '>';
}

std::unique_ptr<schema::SchemaCheck> grammar;

void expectToFollowGrammar(const std::string& xml) {
  if (!grammar) grammar = std::make_unique<schema::SchemaCheck>();
  EXPECT_THAT(grammar->findings(xml), IsEmpty()) << xml;
}

// The chart as it would be sent; empty when it cannot be printed.
std::string finished(Chart& chart) {
  std::string xml;
  try {
    if (chart.AddStyles() == 0) chart.GetXmlBuffer(xml, true);
  } catch (const ChartException&) {
    xml.clear();
  }
  return xml;
}

} // namespace

BuilderTest::BuilderTest() {
  host::setErrorCallback(
      [this](const host::ErrorReport& report) { reports_.push_back(report.message); });
  host::setChartSink(std::make_unique<CollectingSink>(sent, sinkFails, whenSent));
}

BuilderTest::~BuilderTest() {
  ChartXml::Terminate();
  host::setErrorCallback({});
  host::setChartSink(nullptr);
}

void BuilderTest::TearDown() {
  if (!followsGrammar) return;
  for (const Sent& chart : sent) {
    if (!chart.xml.empty()) expectToFollowGrammar(chart.xml);
  }
  const int end = registry().CreateChart();
  for (int handle = 0; handle < end; ++handle) {
    Chart* open = registry().getValidChart(handle, "", 0, false);
    const std::string xml = open ? finished(*open) : "";
    if (!xml.empty()) expectToFollowGrammar(xml);
  }
}

void BuilderTest::forgetGrammar() { grammar.reset(); }

int BuilderTest::chartOn(Dictionary* dictionary) {
  const int handle = registry().CreateChart();
  registry().SetDataSource(handle, nullptr, dictionary);
  return handle;
}

std::string BuilderTest::fragment(int chartHandle, int node) {
  std::string out;
  print(*chart(chartHandle).getElement(node), out);
  return out;
}

void BuilderTest::refuseData(int chartHandle) {
  chart(chartHandle).*reach(static_cast<Flag*>(nullptr)) = true;
}

void BuilderTest::loseChart(int chartHandle) {
  registry().KillChart(chartHandle);
  putUnderHandle<Chart>(registry().*reach(static_cast<Charts*>(nullptr)), chartHandle, nullptr);
}

void BuilderTest::loseVariableLists(int chartHandle) {
  (chart(chartHandle).*reach(static_cast<Lists*>(nullptr))).clear();
}
