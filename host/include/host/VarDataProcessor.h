#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <host/Export.h>
#include <host/ValueColumn.h>

/// The column store of one chart: the values of its variables, by data source.
class KORVA_API VarDataProcessor {
public:
  /// Names one variable's column; filled by AddVariable. Valid while the store
  /// lives.
  struct _varinfo {
    host::ValueColumn* column = nullptr;
  };

  struct Variable {
    std::string name; ///< the variable's sourceName in the document
    std::unique_ptr<host::ValueColumn> column;
  };
  struct KORVA_API Source {
    std::string name;
    std::vector<Variable> variables; ///< in the order added
    std::unordered_map<std::string, host::ValueColumn*> columnOfName;

    /// One more than the highest row set in any column.
    std::size_t rowCount() const;
  };

  /// Adds a source; one of that name that is already there stays as it is.
  /// `capacity` is the rows to expect: columns grow on demand, to that and past
  /// it, so nothing is set aside for it.
  void AddDataSource(const std::string& name, std::size_t capacity);

  /// Adds a column of that name to the source; the column of a name that is
  /// already there is shared. An id that names no source of this store gets the
  /// first source, and false is returned when there is none: `info` is then empty
  /// and its values are dropped.
  bool AddVariable(const std::string& sourceId, const std::string& sourceName, _varinfo& info);

  /// Set one cell. Rows count from 0. False, and nothing stored, for a row not
  /// below ValueColumn::maxRows; the row before the first, 0 - 1 as unsigned
  /// wraps, is such a one.
  bool SetVariableValue(const _varinfo& info, std::size_t row, double value);
  bool SetStringVariableValue(const _varinfo& info, std::size_t row, std::string_view utf8);

  /// The rows of a source, or 0 when the store has none of that name.
  std::size_t GetRowCount(const std::string& sourceName) const;

  /// The sources in the order added.
  const std::deque<Source>& sources() const { return sources_; }

private:
  const Source* find(const std::string& name) const;

  std::deque<Source> sources_;
};
