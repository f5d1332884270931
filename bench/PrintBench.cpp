// Printing a document, against the XML library's own serializer into memory.
#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>

#include <chartxml/ChartXml.h>

namespace {

int chartOf(int elements) {
  ChartXml& registry = *ChartXml::GetInstance();
  const int chart = registry.CreateChart();
  const int frame = registry.AddFrame(chart, 0, -1);
  for (int i = 0; i < elements; ++i)
    registry.AddElement(chart, frame, 23, -1);
  return chart;
}

void printed(benchmark::State& state) {
  const int chart = chartOf(static_cast<int>(state.range(0)));
  std::size_t bytes = 0;
  for (auto _ : state)
    bytes += ChartXml::GetInstance()->GetXmlBuffer(chart).size();
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
  ChartXml::GetInstance()->KillCharts();
}

void serialized(benchmark::State& state) {
  const int chart = chartOf(static_cast<int>(state.range(0)));
  const xercesc::DOMDocument* document = ChartXml::GetInstance()->getChart(chart);
  auto* factory = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
  std::size_t bytes = 0;
  for (auto _ : state) {
    xercesc::DOMLSSerializer* serializer = factory->createLSSerializer();
    serializer->getDomConfig()->setParameter(xercesc::XMLUni::fgDOMWRTFormatPrettyPrint, true);
    xercesc::DOMLSOutput* output = factory->createLSOutput();
    xercesc::MemBufFormatTarget target;
    output->setByteStream(&target);
    output->setEncoding(u"UTF-8");
    serializer->write(document, output);
    bytes += target.getLen();
    output->release();
    serializer->release();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
  ChartXml::GetInstance()->KillCharts();
}

BENCHMARK(serialized)->Name("print/xerces")->Arg(10000);
BENCHMARK(printed)->Name("print/chart")->Arg(10000);

} // namespace
