#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <stdexcept>
#include <string_view>

#include <host/Data.h>
#include <host/Export.h>

/// Data sets read from files: a data package (datapackage.json in the Table
/// Schema standard, with its CSV), or a bare CSV.
namespace host {

/// A data set that cannot be read: what, and where in which file.
class KORVA_API DataError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// An open data set: the columns' descriptions, all rows, and the variables of
/// the run. Rows are read once, at opening.
///
/// Files are UTF-8; names, labels and values are given out as bytes of the
/// process code page. A missing number is the system-missing value, a missing
/// text is empty. Limits: 65 536 columns, 2^31 rows, 32 767 bytes a text.
class KORVA_API DataSet final : public KORVA_FortranDictionary {
public:
  /// Opens a data package (its folder, or its datapackage.json), of which the
  /// first resource is read, or a CSV file. Of a folder datapackage.<language>.json
  /// is read when there is one for the output language: the same CSV with labels in
  /// that language. Of a CSV file without description a
  /// column is a number when all its cells are numbers, empty or NA, and a date when
  /// all are dates like 2000-01-05, empty or NA. Dates and times are seconds since
  /// 14 October 1582.
  /// Throws DataError with file, line and field of what is wrong.
  static std::unique_ptr<DataSet> open(const std::filesystem::path& path);

  ~DataSet() override;
  DataSet(const DataSet&) = delete;
  DataSet& operator=(const DataSet&) = delete;

  int ColumnCount() const override;
  const KORVA_Variable& GetVariable(int index) const override;
  int SplitVariableCount() const override;
  int SplitVariableIndex(int i) const override;
  int VariableCount() const override;
  int GetIndex(int v) const override;
  void HandOver() override;
  void Use() override;
  void Release() override;

  std::size_t rowCount() const;
  /// The column of that name, or -1.
  int findColumn(std::string_view name) const;

  /// Names the run's variables: variable number v is columns[v - 1]; an empty
  /// list makes every column a variable, in order, as after opening. Throws
  /// DataError for an index outside the data set; nothing changes then.
  void useVariables(std::span<const int> columns);
  /// Names the split variables, likewise; an empty list ends splitting.
  void splitBy(std::span<const int> columns);

  /// How many cells the run's variables take: one for a number, one for every
  /// eight bytes of a string.
  std::size_t cellsPerRow() const;
  /// Writes one row of the run's variables; `row` must be below rowCount(), and
  /// `cells` have cellsPerRow() room. Strings are padded with blanks.
  void readRow(std::size_t row, std::span<OBS> cells) const;

  /// Closes the data set: deletes it at once, or, while a data source uses it or
  /// somebody else will delete it, drops its rows now and lets them do so. A
  /// pointer that names no live data set, null included, is ignored.
  static void close(DataSet* dataSet);
  bool isClosed() const { return closed_; }

private:
  struct Contents;
  explicit DataSet(std::unique_ptr<Contents> contents);
  void checkColumns(std::span<const int> columns) const;

  std::unique_ptr<Contents> contents_;
  int users_ = 0;
  bool handedOver_ = false;
  bool closed_ = false;
};

} // namespace host
