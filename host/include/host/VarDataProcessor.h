#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <host/ValueColumn.h>

/// The column store of one chart: the values of its variables, by data source.
class VarDataProcessor {
public:
  /// Names one variable's column; filled by AddVariable.
  struct _varinfo {
    host::ValueColumn* column = nullptr;
  };

  struct Variable {
    std::string name; ///< the variable's sourceName in the document
    std::unique_ptr<host::ValueColumn> column;
  };
  struct Source {
    std::string name;
    std::size_t capacity;
    std::vector<Variable> variables;
  };

  /// `capacity` is the rows to make room for; the store grows past it on demand.
  void AddDataSource(const std::string& name, std::size_t capacity);

  /// Adds a column of that name to the source; the column of a name that is
  /// already there is shared. An id that names no source of this store gets the
  /// first source, and false is returned when there is none: `info` is then empty
  /// and its values are dropped.
  bool AddVariable(const std::string& sourceId, const std::string& sourceName, _varinfo& info);

  /// Rows count from 0. The row before the first (0 - 1, as unsigned wraps) is
  /// refused and false returned.
  bool SetVariableValue(const _varinfo& info, std::size_t row, double value);
  bool SetStringVariableValue(const _varinfo& info, std::size_t row, std::string_view utf8);

  /// The rows of a source: one more than the highest row set; 0 when unknown.
  std::size_t GetRowCount(const std::string& sourceName) const;

  /// The sources in the order added.
  const std::deque<Source>& sources() const { return sources_; }

private:
  std::deque<Source> sources_;
};
