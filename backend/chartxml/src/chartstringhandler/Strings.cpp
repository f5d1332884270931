#include <chartxml/ChartStringHandler.h>

#include <fmt/format.h>

#include "../Report.h"
#include "Vocabulary.h"
#include <chartxml/ChartXml.h>
#include <host/Missing.h>

namespace {

constexpr int tableSize = 89;
const ChartString emptyText;

} // namespace

ChartStringHandler::ChartStringHandler()
    : strings_(std::make_unique<ChartHashtable<ChartString>>(tableSize)),
      errorHandler_(std::make_unique<ChartErrorHandler>()) {
  init();
}

ChartStringHandler::~ChartStringHandler() = default;

void ChartStringHandler::init() {
  for (const auto& [handle, key] : vocabulary::labels) {
    insertChartString(handle, ChartXml::GetInstance()->translate(key));
  }
  for (const auto& [handle, text] : vocabulary::words) {
    insertChartString(handle, ChartString(text));
  }
  nextHandle_ = firstFreeHandle;
}

void ChartStringHandler::Reset() {
  nextHandle_ = 0;
  dataSource_ = nullptr;
  strings_ = std::make_unique<ChartHashtable<ChartString>>(tableSize);
  init();
  composites_.clear();
}

int ChartStringHandler::AddChartString(const ChartString& text) {
  return AddChartString(ChartString(text));
}

int ChartStringHandler::AddChartString(ChartString&& text) {
  insertChartString(nextHandle_, std::move(text));
  return nextHandle_++;
}

void ChartStringHandler::insertChartString(int handle, ChartString text) {
  auto copy = std::make_unique<ChartString>(std::move(text));
  if (putUnderHandle(*strings_, handle, copy.get())) static_cast<void>(copy.release());
}

const ChartString* ChartStringHandler::findString(int handle) const {
  if (handle < 0 || handle >= nextHandle_) return nullptr;
  const ChartKey key = ChartKey::ofHandle(handle);
  const auto* pair = strings_->get(&key);
  return pair ? pair->getValue() : nullptr;
}

const ChartString& ChartStringHandler::getXMLString(int handle) {
  if (const ChartString* known = findString(handle)) return *known;

  if (const auto found = composites_.find(handle); found != composites_.end()) {
    const std::string text = found->second->Text();
    const std::string english = found->second->EnglishText();
    ChartString resolved;
    resolved.assignUTF8(text);
    resolved.assignUTF8ForEng(english.empty() ? text : english);
    resolved.unifyLineEnds();
    insertChartString(handle, std::move(resolved));
    return *findString(handle);
  }

  // Callers ask from many places; the look-up speaks for all of them.
  ChartErrorHandler::error(ChartException(fmt::format("String not found for handle {}", handle),
                                          "backend/chartxml/src/chartstringhandler", 1257));
  return emptyText;
}

int ChartStringHandler::Double(const double& value) {
  if (value == host::systemMissing) return -1;
  return ChartXml::GetInstance()->NStringNoTranslate(asString(value));
}

// The next handle passes too: callers may check a handle that they are about to
// fill. Reading it reports that it holds no text.
bool ChartStringHandler::validString(int handle, const char* what,
                                     std::source_location where) const {
  if (handle >= 0 && handle <= nextHandle_) return true;
  report(fmt::format("{} handle out of range", what), where);
  return false;
}

bool ChartStringHandler::validDataSource(std::source_location where) const {
  if (dataSource_) return true;
  report("no datasource", where);
  return false;
}

bool ChartStringHandler::validVariable(int index, std::source_location where) const {
  if (index >= 0 && validDataSource(where) && index < dataSource_->ColumnCount()) return true;
  report(fmt::format("invalid variable index {}", index), where);
  return false;
}

int ChartStringHandler::trim(const char*& begin, const char*& end) {
  while (begin <= end && *begin == ' ')
    ++begin;
  while (begin <= end && *end == ' ')
    --end;
  return begin <= end ? static_cast<int>(end - begin) + 1 : 0;
}

void ChartStringHandler::report(const std::string& message, std::source_location where) const {
  reportRefusal(message, where);
}
