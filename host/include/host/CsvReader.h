#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

namespace host {

/// Takes the cells of a CSV file in the order of the file. What it refuses it
/// throws as Refusal; the reader adds the place. Columns and rows count from 0,
/// the header row is none of them.
class CsvConsumer {
public:
  virtual ~CsvConsumer() = default;
  virtual void name(std::size_t column, std::string_view text) = 0;
  virtual void headerEnd(std::size_t columns) = 0;
  virtual void cell(std::size_t row, std::size_t column, std::string_view text) = 0;
};

constexpr std::size_t mostColumns = 65536;

/// Reads a CSV file in UTF-8, with or without byte-order mark: cells separated
/// by commas, a header row with distinct names, rows of as many cells as the
/// header. Blanks belong to the cell; a quoted cell is quoted as a whole. Empty
/// lines are skipped. A cell holds at most `longestText` bytes and no NUL. The
/// file is read piece by piece. Returns the number of rows; throws DataError
///   <file>:<line>:<field>: field "<name>": <what is wrong>
/// with the line on which the cell begins and the field counted from 1.
std::size_t readCsv(const std::filesystem::path& file, CsvConsumer& consumer);

} // namespace host
