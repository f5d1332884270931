#include "BuilderTest.h"

#include <fmt/format.h>
#include <xercesc/dom/DOM.hpp>

#include <host/Text.h>

namespace {

struct CollectingSink : host::ChartSink {
  CollectingSink(std::vector<Sent>& charts, bool& fails) : sent(charts), fail(fails) {}

  void send(const host::SentChart& chart) override {
    if (fail) throw ChartException("the sink is full", "sink", 1);
    sent.push_back(
        {chart.name, chart.xml, chart.description, chart.splitHeader, chart.chartTemplate, {}});
  }
  void noteError(const std::string& text) override { sent.push_back({.errors = {text}}); }

  std::vector<Sent>& sent;
  bool& fail;
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

} // namespace

BuilderTest::BuilderTest() {
  host::setErrorCallback(
      [this](const host::ErrorReport& report) { reports_.push_back(report.message); });
  host::setChartSink(std::make_unique<CollectingSink>(sent, sinkFails));
}

BuilderTest::~BuilderTest() {
  ChartXml::Terminate();
  host::setErrorCallback({});
  host::setChartSink(nullptr);
}

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
