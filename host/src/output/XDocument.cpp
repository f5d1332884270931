#include <host/XDocument.h>

#include <algorithm>

#include <host/ChartError.h>
#include <host/ChartSink.h>
#include <host/StringTables.h>

#include "output/ChartReader.h"

void ZephExtension::setAttribute(const std::string& name, const std::string& value) {
  const auto known =
      std::ranges::find(attributes_, name, &std::pair<std::string, std::string>::first);
  if (known == attributes_.end())
    attributes_.emplace_back(name, value);
  else
    known->second = value;
}

ZephExtensionSV& CTVariableType::addExtension() {
  if (!extension_) extension_ = std::make_unique<ZephExtensionSV>();
  return *extension_;
}

void customizeCharts::customizeIciclePlots(bool horizontal, std::size_t rows) {
  chart_.icicleHorizontal = horizontal;
  chart_.icicleRows = rows;
}

XDocument::XDocument(const std::string& xml, bool, bool)
    : xml_(xml), name_(host::readChart(xml, graph_.getImplementation())) {}

XDocument::~XDocument() = default;

void XDocument::customizeSPCharts() {}

void XDocument::SetDescription(const ChartString& description) {
  description_ = description.toUTF8();
}

void XDocument::SetSplitHeader(const ChartString& header) { splitHeader_ = header.toUTF8(); }

void XDocument::SetChartTemplate(const std::string& name) { template_ = name; }

bool XDocument::SendChart(bool, bool, bool) {
  const std::string language = OLang::GetLanguageCode();
  try {
    host::chartSink().send({name_, xml_, description_, splitHeader_, template_, language,
                            graph_.getImplementation(), data_});
    return true;
  } catch (const ChartException& refusal) {
    ChartErrorHandler::error(refusal);
    return false;
  }
}
