#include "output/CsvFile.h"

#include <cmath>

#include <fmt/compile.h>

#include <host/Missing.h>

#include "output/FileWriter.h"

namespace host {
namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

void writeQuoted(FileWriter& file, std::string_view text) {
  file.write('"');
  for (const char c : text) {
    if (c == '"') file.write('"');
    if (c == '\0')
      file.write(replacementCharacter); // readers take a NUL for the end, or refuse it
    else
      file.write(c);
  }
  file.write('"');
}

/// An empty text is quoted to tell it from a cell without value.
void writeText(FileWriter& file, std::string_view text) {
  constexpr std::string_view special{",\"\r\n\0", 5};
  if (text.empty() || text.find_first_of(special) != std::string_view::npos)
    writeQuoted(file, text);
  else
    file.write(text);
}

/// As ChartBase::asString writes it, so that relabels meet the values.
void writeNumber(FileWriter& file, double value) {
  constexpr std::size_t longest = 32;
  if (std::isnan(value)) return file.write("NaN");
  if (std::isinf(value)) return file.write(value > 0 ? "INF" : "-INF");
  file.print(longest, [=](char* at) { return fmt::format_to(at, FMT_COMPILE("{}"), value); });
}

/// False, and nothing written, for a cell without value.
bool writeCell(FileWriter& file, const ValueColumn& column, std::size_t row) {
  const auto kind = column.kind(row);
  if (kind == ValueColumn::Kind::empty) return false;
  if (kind == ValueColumn::Kind::text) {
    writeText(file, column.text(row));
    return true;
  }
  const double value = column.number(row);
  if (value == systemMissing) return false;
  writeNumber(file, value);
  return true;
}

template <class WriteField>
void writeLine(FileWriter& file, const VarDataProcessor::Source& source, WriteField writeField) {
  bool isFirst = true;
  for (const auto& variable : source.variables) {
    if (!isFirst) file.write(',');
    isFirst = false;
    writeField(variable);
  }
  file.write('\n');
}

} // namespace

void writeCsv(const std::filesystem::path& path, const VarDataProcessor::Source& source) {
  FileWriter file(path);
  // Readers skip an empty line, so the empty cell of an only column is quoted.
  const bool quotesEmpty = source.variables.size() == 1;
  writeLine(file, source, [&](const auto& variable) { writeText(file, variable.name); });
  const std::size_t rows = source.rowCount();
  for (std::size_t row = 0; row < rows; ++row)
    writeLine(file, source, [&](const auto& variable) {
      if (!writeCell(file, *variable.column, row) && quotesEmpty) writeQuoted(file, {});
    });
  file.finish();
}

} // namespace host
