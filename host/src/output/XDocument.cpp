#include <host/XDocument.h>

#include <algorithm>
#include <tuple>
#include <utility>

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

bool CTFormatType::operator<(const CTFormatType& other) const {
  return std::tie(kind, attributes, parts) < std::tie(other.kind, other.attributes, other.parts);
}

bool CTVariableKind::operator<(const CTVariableKind& other) const {
  return std::tie(source, isCategorical, formats) <
         std::tie(other.source, other.isCategorical, other.formats);
}

std::string_view CTVariableType::text(std::size_t index) const {
  std::string_view text = texts_;
  while (index-- > 0)
    text = text.data() + text.size() + 1;
  return text;
}

std::vector<std::pair<std::string_view, std::string_view>> CTVariableType::categories() const {
  std::vector<std::pair<std::string_view, std::string_view>> categories;
  categories.reserve(categoryCount_);
  std::string_view last = text(textCount - 1);
  const auto next = [&] { return last = last.data() + last.size() + 1; };
  for (std::uint32_t i = 0; i < categoryCount_; ++i) {
    const std::string_view value = next();
    categories.emplace_back(value, next());
  }
  return categories;
}

void ZephVisualization::addVariable(const CTVariableTexts& texts,
                                    std::vector<CTFormatType> formats) {
  std::string packed;
  const auto pack = [&](const std::string& text) { packed.append(text).push_back('\0'); };
  for (const std::string* text :
       {&texts.id, &texts.sourceName, &texts.label, &texts.shortLabel, &texts.description})
    pack(*text);
  for (const auto& [value, label] : texts.categories) {
    pack(value);
    pack(label);
  }
  const CTVariableKind& kind =
      *kinds_.insert({texts.source, texts.categorical == "true", std::move(formats)}).first;
  variables_.emplace_back(kind, keep(packed), texts.categories.size());
}

const char* ZephVisualization::keep(std::string_view packed) {
  constexpr std::size_t blockSize = std::size_t{1} << 16;
  if (packed.size() > freeCount_) {
    freeCount_ = std::max(blockSize, packed.size());
    free_ = blocks_.emplace_back(std::make_unique_for_overwrite<char[]>(freeCount_)).get();
  }
  char* const kept = free_;
  free_ = std::ranges::copy(packed, kept).out;
  freeCount_ -= packed.size();
  return kept;
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
                            graph_.getImplementation(), data_, calls_});
    return true;
  } catch (const ChartException& refusal) {
    ChartErrorHandler::error(refusal);
    return false;
  }
}
