// What a node costs through an entry point, against the same calls of the XML
// library bare, and whether that cost stays flat as a chart grows.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include <xercesc/dom/DOM.hpp>

#include <chartxml/EntryPoints.h>
#include <host/ChartBase.h>
#include <host/Text.h>
#include <host/ZephUni.h>

namespace {

constexpr std::int64_t none = -1;

/// An open chart with one frame, and its end.
struct OpenChart {
  OpenChart() {
    chart = cx_createchart_(nullptr, nullptr, nullptr, nullptr);
    const std::int64_t root = 0;
    frame = cx_addframe_(&chart, &root, &none);
  }
  ~OpenChart() { cx_killcharts_(); }

  void addElements(std::int64_t count) const {
    for (std::int64_t i = 0; i < count; ++i)
      cx_addelement_(&chart, &frame, &line, &none);
  }

  static constexpr std::int64_t line = 21;
  std::int64_t chart;
  std::int64_t frame;
};

void addBareElements(xercesc::DOMDocument& document, xercesc::DOMElement& frame,
                     std::int64_t count) {
  for (std::int64_t i = 0; i < count; ++i) {
    const std::u16string id = host::utf16("element" + std::to_string(i));
    xercesc::DOMElement* element = document.createElement(ZephUni::_element);
    element->setAttribute(ZephUni::_type, ZephUni::_line);
    element->setAttribute(ZephUni::_id, id.c_str());
    element->setIdAttribute(ZephUni::_id, true);
    element->setAttribute(ZephUni::_style, ChartBase::_default_style);
    element->setAttribute(ZephUni::_showCollidingLabels, ZephUni::_true);
    frame.appendChild(element);
  }
}

void nodesThroughEntryPoint(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto chart = std::make_unique<OpenChart>();
    state.ResumeTiming();
    chart->addElements(state.range(0));
    state.PauseTiming();
    chart.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void nodesBare(benchmark::State& state) {
  xercesc::XMLPlatformUtils::Initialize();
  for (auto _ : state) {
    state.PauseTiming();
    xercesc::DOMDocument* document = ChartBase::createDocument(ChartBase::_utf8);
    state.ResumeTiming();
    addBareElements(*document, *document->getDocumentElement(), state.range(0));
    state.PauseTiming();
    ChartBase::releaseDocument(document);
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  xercesc::XMLPlatformUtils::Terminate();
}

// A dimension that the frame has, one that it has not, and its facet labeling: what
// is asked for before it is added.
void nodesFound(benchmark::State& state) {
  const OpenChart open;
  const std::int64_t x = 1;
  const std::int64_t y = 2;
  cx_adddimension_(&open.chart, &open.frame, &x, &none);
  cx_addfacetlabeling_(&open.chart, &open.frame);
  open.addElements(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(cx_getdimension_(&open.chart, &open.frame, &x));
    benchmark::DoNotOptimize(cx_getdimension_(&open.chart, &open.frame, &y));
    benchmark::DoNotOptimize(cx_addfacetlabeling_(&open.chart, &open.frame));
  }
  state.SetItemsProcessed(state.iterations() * 3);
}

BENCHMARK(nodesBare)->Name("node/bare")->Arg(1000)->Arg(100000);
BENCHMARK(nodesThroughEntryPoint)->Name("node/entry")->Arg(1000)->Arg(100000);
BENCHMARK(nodesFound)->Name("node/found")->Arg(1000)->Arg(100000);

} // namespace
