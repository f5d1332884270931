#include "Call.h"

#include <algorithm>

#include <fmt/format.h>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/validators/schema/SchemaValidator.hpp>

#include "../AtEnd.h"
#include "../Report.h"
#include <host/CodePages.h>

using xercesc::XMLPlatformUtils;

namespace {

constexpr int chartTableSize = 89;
constexpr int stringTables = 3;

} // namespace

ChartXml* ChartXml::_instance = nullptr;
bool ChartXml::_initialized = false;

// Life

/// The registry's hold on the XML platform.
struct ChartXml::XmlPlatform {
  XmlPlatform() {
    try {
      XMLPlatformUtils::Initialize();
    } catch (const xercesc::XMLException& exception) {
      ChartErrorHandler::error(exception);
    }
  }
  ~XmlPlatform() {
    try {
      XMLPlatformUtils::Terminate();
    } catch (const xercesc::XMLException& exception) {
      reportQuietly(exception);
    }
  }

private:
  // Nothing may leave a destructor, not even on the way back to the caller.
  static void reportQuietly(const xercesc::XMLException& exception) noexcept {
    try {
      ChartErrorHandler::error(exception);
    } catch (...) { // NOLINT(bugprone-empty-catch): it was reported
    }
  }
};

ChartXml* ChartXml::GetInstance() {
  if (_instance) return _instance;
  try {
    return new ChartXml; // becomes _instance
  } catch (...) {
    _instance = nullptr;
    throw;
  }
}

ChartXml* ChartXml::Initialize() {
  _initialized = true;
  return GetInstance();
}

ChartXml* ChartXml::Terminate() {
  if (_instance) {
    _initialized = false;
    delete _instance;
    _instance = nullptr;
  }
  return _instance;
}

// The string handler translates its labels through the registry, so the registry
// is the instance before its services exist.
ChartXml::ChartXml() : charts_(chartTableSize) {
  _instance = this;
  dictionary_ = std::make_unique<FacSTDictionary>(
      PathFactory::getPathInstance(stringTables).stringTablePath());
  platform_ = std::make_unique<XmlPlatform>();
  errorHandler_ = std::make_unique<ChartErrorHandler>();
  validator_ =
      std::make_unique<xercesc::SchemaValidator>(nullptr, XMLPlatformUtils::fgMemoryManager);
  outputTranscoder_ =
      std::make_unique<ChartTranscoder>(host::codePageOfLanguage(OLang::GetLanguageCode()));
  localTranscoder_ = std::make_unique<ChartTranscoder>(KORVAMBDefaultCodePage());
  stringHandler_ = std::make_unique<ChartStringHandler>();
}

// The XML platform ends before the charts go: their documents keep it alive.
ChartXml::~ChartXml() {
  stringHandler_.reset();
  validator_.reset();
  errorHandler_.reset();
  outputTranscoder_.reset();
  localTranscoder_.reset();
  platform_.reset();
  dictionary_.reset();
  dataSource_.reset();
  charts_.clearDeep();
}

// Charts

Chart* ChartXml::getValidChart(int handle, const char* sourceFile, unsigned line,
                               bool report) const {
  const auto refuse = [&](std::string message) -> Chart* {
    if (report) ChartErrorHandler::error(ChartException(std::move(message), sourceFile, line));
    return nullptr;
  };
  // The counter itself, not yet given out, counts as in range and is then not
  // found.
  if (handle < 0 || handle > nextHandle_) {
    return refuse(fmt::format("chart handle ({}) out of range (0-{})", handle, nextHandle_));
  }
  const ChartKey key = ChartKey::ofHandle(handle);
  const ChartPair<Chart>* pair = charts_.get(&key);
  if (!pair) return refuse(fmt::format("chart with this handle not found {}", handle));
  if (!pair->getValue()) return refuse(fmt::format("chart does not exist {}", handle));
  return pair->getValue();
}

Chart* ChartXml::findChart(At chart) const {
  Chart* found = getValidChart(chart.handle, chart.where.file_name(), chart.where.line(), true);
  if (found) found->countCall();
  return found;
}

Chart* ChartXml::findSilently(int chart) const { return getValidChart(chart, "", 0, false); }

int ChartXml::CreateChart() {
  auto chart = std::make_unique<Chart>(nextHandle_, stringHandler_.get());
  if (!chart->CreateChart()) return -1;
  if (!putUnderHandle(charts_, nextHandle_, chart.get())) return -1;
  static_cast<void>(chart.release());
  return nextHandle_++;
}

xercesc::DOMDocument* ChartXml::getChart(int chart) const {
  const Chart* found = findChart(chart);
  return found ? found->getChart() : nullptr;
}

int ChartXml::getHandle(int chart, const xercesc::DOMElement* element) const {
  const Chart* found = findChart(chart);
  return found ? found->getHandle(element) : -1;
}

std::string ChartXml::GetXmlBuffer(int chart) const {
  std::string buffer;
  if (const Chart* found = findChart(chart)) found->GetXmlBuffer(buffer, true);
  return buffer;
}

int ChartXml::EndChart(int chart) {
  Chart* found = findChart(chart);
  if (!found) return -1;
  const AtEnd remove([this, chart] { removeChart(chart); });
  return found->EndChart();
}

int ChartXml::KillChart(int chart) {
  if (findSilently(chart)) removeChart(chart);
  return 0;
}

int ChartXml::KillCharts() {
  charts_.clearDeep();
  if (!_initialized) forgetStringsAndData();
  nextHandle_ = 0;
  return 0;
}

void ChartXml::removeChart(int chart) {
  const ChartKey key = ChartKey::ofHandle(chart);
  if (const auto removed = charts_.remove(&key)) removed->clear();
  if (charts_.getSize() == 0 && !_initialized) forgetStringsAndData();
}

void ChartXml::forgetStringsAndData() {
  ResetStrings();
  dataSource_.reset();
}

int ChartXml::ResetStrings() {
  if (stringHandler_) stringHandler_->Reset();
  return 0;
}

// Procedure and data

int ChartXml::SetDataSource(int chart, KORVA_DataSource* source) {
  if (!dataSource_ && source) {
    source->HandOver();
    dataSource_.reset(source);
    stringHandler_->SetDataSource(source);
  }
  return handDataSourceTo(chart);
}

int ChartXml::SetDataSource(int chart, void* procedureHandle,
                            KORVA_FortranDictionary* const& dictionary) {
  if (!dataSource_ && isUsable(dictionary)) {
    if (isDictionaryItself(procedureHandle)) {
      dictionary->HandOver();
      dataSource_.reset(dictionary);
    } else {
      dataSource_ = std::make_unique<ProcedureDataSource>(procedureHandle, dictionary);
    }
  }
  stringHandler_->SetDataSource(dataSource_.get());
  return handDataSourceTo(chart);
}

int ChartXml::handDataSourceTo(At chart) {
  if (chart.handle == -1) return 0;
  Chart* found = findChart(chart);
  if (!found) return -1;
  found->SetDataSource(dataSource_.get());
  return 0;
}

bool ChartXml::isDictionaryItself(const void* procedureHandle) {
  return reinterpret_cast<std::intptr_t>(procedureHandle) == -1;
}

// No dictionary means that there are no data; a stale one is a mistake.
bool ChartXml::isUsable(const KORVA_FortranDictionary* dictionary) const {
  if (!dictionary) return false;
  if (KORVA_FortranDictionary::isAlive(dictionary)) return true;
  report("the dictionary is not that of an open data set", Where::current());
  return false;
}

int ChartXml::SetProcedure(int chart, const std::string& procedureName) {
  SetGlobalStringTable(PathFactory::getPathInstance(stringTables).stringTablePath());
  const int result = dictionary_->SetProcedure(procedureName);
  if (chart == -1) return result;
  if (Chart* found = findChart(chart)) {
    // A name ends at its length, not at a zero character.
    std::u16string name = transcode(procedureName).text();
    std::ranges::replace(name, u'\0', u'\uFFFD');
    found->AddGraphName(name.c_str());
  }
  return result;
}

void ChartXml::SetGlobalStringTable(const std::string& path) {
  dictionary_->SetGlobalStringTable(path);
}

void ChartXml::report(const std::string& message, Where where) const {
  reportRefusal(message, where);
}
