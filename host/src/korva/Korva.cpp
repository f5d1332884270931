#include <host/Korva.h>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <new>
#include <source_location>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <host/ChartError.h>
#include <host/ChartSink.h>
#include <host/ChartTranscoder.h>
#include <host/CodePages.h>
#include <host/DataSet.h>
#include <host/ErrorLog.h>
#include <host/Missing.h>
#include <host/Settings.h>
#include <host/StringTables.h>
#include <host/Text.h>

namespace {

using host::DataError;
using host::DataSet;

/// The one way in: what goes wrong is reported from the call's own place and
/// answered with -1. Only the exception that hands control back to the procedure
/// passes.
template <class Body>
int64_t call(Body body, std::source_location place = std::source_location::current()) {
  try {
    return body();
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (const std::bad_alloc&) {
    host::reportError("not enough memory", place);
  } catch (const std::exception& error) {
    host::reportError(error.what(), place);
  }
  return -1;
}

template <class T> T& argument(T* address, const char* name) {
  if (address == nullptr) throw DataError(fmt::format("the argument {} is null", name));
  return *address;
}

/// A text argument; a negative length is an empty text.
std::string text(const char* characters, const int64_t* length, const char* name) {
  const int64_t bytes = std::max<int64_t>(argument(length, "length"), 0);
  if (bytes == 0) return {};
  return {&argument(characters, name), static_cast<std::size_t>(bytes)};
}

/// The system takes a path up to its first NUL, which would name another file.
std::filesystem::path pathText(const char* characters, const int64_t* length, const char* name) {
  std::string path = text(characters, length, name);
  if (path.find('\0') != std::string::npos)
    throw DataError(fmt::format("the argument {} holds a NUL character", name));
  return path;
}

/// A text argument in UTF-8, whatever the process code page.
std::string utf8Text(const char* characters, const int64_t* length, const char* name) {
  return host::utf8(
      ChartTranscoder(KORVAMBDefaultCodePage()).transcode(text(characters, length, name)));
}

DataSet& openDataSet(void** dictionary) {
  auto* named = static_cast<KORVA_FortranDictionary*>(argument(dictionary, "dictionary"));
  auto* dataSet = KORVA_FortranDictionary::isAlive(named) ? dynamic_cast<DataSet*>(named) : nullptr;
  if (dataSet == nullptr || dataSet->isClosed()) throw DataError("not an open data set");
  return *dataSet;
}

/// Column numbers from 1 as indexes from 0.
std::vector<int> columnIndexes(const DataSet& dataSet, const int64_t* columns,
                               const int64_t* count) {
  constexpr int64_t most = 65536;
  const int64_t length = argument(count, "count");
  if (length < 0 || length > most)
    throw DataError(fmt::format("a list of {} columns: it can have 0 to {}", length, most));
  std::vector<int> indexes;
  if (length == 0) return indexes;
  indexes.reserve(static_cast<std::size_t>(length));
  for (const int64_t column :
       std::span(&argument(columns, "columns"), static_cast<std::size_t>(length))) {
    if (column < 1 || column > dataSet.ColumnCount())
      throw DataError(
          fmt::format("no column {}: the data set has {} columns", column, dataSet.ColumnCount()));
    indexes.push_back(static_cast<int>(column - 1));
  }
  return indexes;
}

int64_t setVariables(void (DataSet::*set)(std::span<const int>), void** dictionary,
                     const int64_t* columns, const int64_t* count) {
  DataSet& dataSet = openDataSet(dictionary);
  (dataSet.*set)(columnIndexes(dataSet, columns, count));
  return 0;
}

int64_t readRow(const DataSet& dataSet, int64_t row, double* cells, int64_t capacity) {
  const auto rows = static_cast<int64_t>(dataSet.rowCount());
  const auto needed = static_cast<int64_t>(dataSet.cellsPerRow());
  if (row < 1 || row > rows)
    throw DataError(fmt::format("no row {}: the data set has {} rows", row, rows));
  if (capacity < needed)
    throw DataError(fmt::format("room for {} cells: a row takes {}", capacity, needed));
  auto* first = reinterpret_cast<OBS*>(&argument(cells, "cells"));
  dataSet.readRow(static_cast<std::size_t>(row - 1), {first, dataSet.cellsPerRow()});
  return needed;
}

int64_t takeError(char* bytes, int64_t capacity, int64_t& length) {
  length = 0;
  if (capacity > 0) argument(bytes, "text");
  const auto report = host::takeError();
  if (!report) return 0;
  const auto most = std::clamp<int64_t>(capacity, 0, std::numeric_limits<int>::max());
  const std::string taken = KORVAMBStringTruncate_A(report->message, static_cast<int>(most));
  length = static_cast<int64_t>(taken.copy(bytes, taken.size()));
  return 1;
}

} // namespace

int64_t korva_open_(const char* path, const int64_t* length, void** dictionary) {
  return call([&] {
    argument(dictionary, "dictionary") = nullptr;
    KORVA_FortranDictionary* opened = DataSet::open(pathText(path, length, "path")).release();
    *dictionary = opened;
    return 0;
  });
}

int64_t korva_close_(void** dictionary) {
  return call([&] {
    void*& address = argument(dictionary, "dictionary");
    auto* named = static_cast<KORVA_FortranDictionary*>(address);
    if (KORVA_FortranDictionary::isAlive(named)) DataSet::close(dynamic_cast<DataSet*>(named));
    address = nullptr;
    return 0;
  });
}

int64_t korva_rowcount_(void** dictionary) {
  return call([&] { return static_cast<int64_t>(openDataSet(dictionary).rowCount()); });
}

int64_t korva_columncount_(void** dictionary) {
  return call([&] { return openDataSet(dictionary).ColumnCount(); });
}

int64_t korva_findcolumn_(void** dictionary, const char* name, const int64_t* length) {
  return call([&] {
    const std::string wanted = text(name, length, "name");
    const int column = openDataSet(dictionary).findColumn(wanted);
    if (column < 0) throw DataError(fmt::format("no column has the name \"{}\"", wanted));
    return column + 1;
  });
}

int64_t korva_usevariables_(void** dictionary, const int64_t* columns, const int64_t* count) {
  return call([&] { return setVariables(&DataSet::useVariables, dictionary, columns, count); });
}

int64_t korva_splitby_(void** dictionary, const int64_t* columns, const int64_t* count) {
  return call([&] { return setVariables(&DataSet::splitBy, dictionary, columns, count); });
}

int64_t korva_cellcount_(void** dictionary) {
  return call([&] { return static_cast<int64_t>(openDataSet(dictionary).cellsPerRow()); });
}

int64_t korva_readrow_(void** dictionary, const int64_t* row, double* cells,
                       const int64_t* capacity) {
  return call([&] {
    return readRow(openDataSet(dictionary), argument(row, "row"), cells,
                   argument(capacity, "capacity"));
  });
}

double korva_missing_(void) { return host::systemMissing; }

int64_t korva_setoutput_(const char* folder, const int64_t* length) {
  return call([&] {
    host::setOutputFolder(pathText(folder, length, "folder"));
    return 0;
  });
}

int64_t korva_setlanguage_(const char* code, const int64_t* length) {
  return call([&] {
    const std::string language = text(code, length, "code");
    if (!host::setOutputLanguage(language))
      throw DataError(fmt::format("there are no texts in the language \"{}\"", language));
    return 0;
  });
}

int64_t korva_setbootstrapping_(const int64_t* on) {
  return call([&] {
    host::setBootstrapping(argument(on, "on") != 0);
    return 0;
  });
}

int64_t korva_setgrouping_(const int64_t* on) {
  return call([&] {
    CmnSys::shared().setDigitGrouping(argument(on, "on") != 0);
    return 0;
  });
}

int64_t korva_setintegerdigits_(const int64_t* digits) {
  return call([&] {
    const int64_t least = argument(digits, "digits");
    if (least < 0 || least > CmnSys::mostIntegerDigits)
      throw DataError(fmt::format("at least {} integer digits: it can be 0 to {}", least,
                                  CmnSys::mostIntegerDigits));
    CmnSys::shared().minimumIntegerDigits = static_cast<int>(least);
    return 0;
  });
}

int64_t korva_setlocale_(const char* decimal, const int64_t* decimalLength, const char* grouping,
                         const int64_t* groupingLength) {
  return call([&] {
    const std::string decimalSign = utf8Text(decimal, decimalLength, "decimal");
    const std::string groupingSign = utf8Text(grouping, groupingLength, "grouping");
    if (decimalSign.empty() && groupingSign.empty()) {
      CmnLoc::followLanguage();
    } else if (!CmnLoc::set({decimalSign, groupingSign})) {
      throw DataError(
          fmt::format("the decimal sign \"{}\" and the grouping sign \"{}\": each must be one "
                      "character, no digit, and they must differ; the grouping sign may be empty",
                      decimalSign, groupingSign));
    }
    return 0;
  });
}

int64_t korva_clearlocale_(void) {
  CmnLoc::remove();
  return 0;
}

int64_t korva_setcurrency_(const int64_t* number, const char* prefix, const int64_t* prefixLength,
                           const char* suffix, const int64_t* suffixLength,
                           const char* negativePrefix, const int64_t* negativePrefixLength,
                           const char* negativeSuffix, const int64_t* negativeSuffixLength) {
  return call([&] {
    customCurrency currency(text(prefix, prefixLength, "prefix"),
                            text(suffix, suffixLength, "suffix"),
                            text(negativePrefix, negativePrefixLength, "negativePrefix"),
                            text(negativeSuffix, negativeSuffixLength, "negativeSuffix"));
    return currencyFormat::SetCCX(argument(number, "number"), std::move(currency)) ? 0 : -1;
  });
}

int64_t korva_geterror_(char* text, const int64_t* capacity, int64_t* length) {
  return call(
      [&] { return takeError(text, argument(capacity, "capacity"), argument(length, "length")); });
}
