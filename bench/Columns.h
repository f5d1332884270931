#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <chartxml/EntryPoints.h>
#include <host/Data.h>

/// A numeric column, enough to declare a variable.
struct Column final : KORVA_Variable {
  explicit Column(int number) { name += std::to_string(number); }
  const char* GetName() const override { return name.c_str(); }
  const char* GetLabel() const override { return "X"; }
  int GetType() const override { return 0; }
  KORVA_Format GetFormat() const override { return {5, 8, 2}; }
  const KORVA_ValueLabelMap& GetValueLabels() const override { return labels; }
  std::string name = "x";
  KORVA_ValueLabelMap labels;
};

struct Columns final : KORVA_FortranDictionary {
  explicit Columns(int count) {
    for (int number = 1; number <= count; ++number)
      columns.emplace_back(number);
  }
  int ColumnCount() const override { return static_cast<int>(columns.size()); }
  const KORVA_Variable& GetVariable(int column) const override {
    return columns[static_cast<std::size_t>(column)];
  }
  int VariableCount() const override { return ColumnCount(); }
  int GetIndex(int variable) const override { return variable - 1; }
  std::vector<Column> columns;
};

/// An open chart with a source and that many numeric variables, and its end.
struct DataChart {
  explicit DataChart(int columnCount) : columns(columnCount), dictionary(&columns) {
    const std::int64_t zero = 0;
    chart = cx_createchart_(nullptr, reinterpret_cast<void* const*>(&dictionary), nullptr, nullptr);
    source = cx_addsource_(&chart);
    for (std::int64_t number = 1; number <= columnCount; ++number)
      variables.push_back(cx_addvariable_(&chart, &source, &number, &zero));
  }
  ~DataChart() { cx_killcharts_(); }
  DataChart(const DataChart&) = delete;
  DataChart& operator=(const DataChart&) = delete;

  Columns columns;
  KORVA_FortranDictionary* dictionary;
  std::int64_t chart = 0;
  std::int64_t source = 0;
  std::vector<std::int64_t> variables;
};
