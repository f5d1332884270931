#include <host/DataSet.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <unordered_map>
#include <vector>

#include <fmt/format.h>

#include "data/DataColumn.h"
#include "data/FieldInference.h"
#include "data/PackageDescriptor.h"
#include "data/Refusal.h"
#include <host/CsvReader.h>
#include <host/StringTables.h>

namespace host {

struct DataSet::Contents {
  std::vector<DataColumn> columns;
  std::unordered_map<std::string_view, int> columnOfName; ///< views of the columns' names
  std::size_t rowCount = 0;
  std::vector<int> variables;
  std::vector<int> splits;
  std::size_t cellsPerRow = 0;

  const DataColumn& column(int index) const { return columns[static_cast<std::size_t>(index)]; }
};

namespace {

/// Fills the columns; the header must name them all in their order.
class ColumnLoader final : public CsvConsumer {
public:
  explicit ColumnLoader(std::vector<Field> fields) : fields_(std::move(fields)) {
    columns_.reserve(fields_.size());
  }

  void name(std::size_t column, std::string_view text) override {
    if (column == fields_.size())
      throw Refusal(fmt::format("the column {} is not described", shown(text)));
    if (text != fields_[column].name)
      throw Refusal(fmt::format("the column {} is described as {}", shown(text),
                                shown(fields_[column].name)));
    columns_.emplace_back(std::move(fields_[column]));
  }

  void headerEnd(std::size_t columns) override {
    if (columns < fields_.size())
      throw Refusal(fmt::format("the column {} is missing", shown(fields_[columns].name)));
  }

  void cell(std::size_t row, std::size_t column, std::string_view text) override {
    columns_[column].setCell(row, text);
  }

  std::vector<DataColumn> take() {
    for (DataColumn& column : columns_)
      column.finish();
    return std::move(columns_);
  }

private:
  std::vector<Field> fields_;
  std::vector<DataColumn> columns_;
};

PackagedTable locate(const std::filesystem::path& path) {
  std::error_code unknown; // opening the file tells why
  if (std::filesystem::is_directory(path, unknown)) {
    const auto translated = path / fmt::format("datapackage.{}.json", OLang::GetLanguageCode());
    const bool isTranslated = std::filesystem::exists(translated, unknown);
    return readDescriptor(isTranslated ? translated : path / "datapackage.json");
  }
  if (path.extension() == ".json") return readDescriptor(path);
  return {.csv = path, .fields = {}};
}

std::vector<int> allColumns(std::size_t count) {
  std::vector<int> columns(count);
  std::iota(columns.begin(), columns.end(), 0);
  return columns;
}

} // namespace

std::unique_ptr<DataSet> DataSet::open(const std::filesystem::path& path) {
  if (path.empty()) throw DataError("a data set without a path");
  PackagedTable table = locate(path);
  ColumnLoader loader(table.fields ? std::move(*table.fields) : inferFields(table.csv));
  auto contents = std::make_unique<Contents>();
  contents->rowCount = readCsv(table.csv, loader);
  contents->columns = loader.take();
  for (int index = 0; const DataColumn& column : contents->columns)
    contents->columnOfName.emplace(column.name(), index++);

  std::unique_ptr<DataSet> dataSet(new DataSet(std::move(contents)));
  dataSet->useVariables({});
  return dataSet;
}

DataSet::DataSet(std::unique_ptr<Contents> contents) : contents_(std::move(contents)) {}

DataSet::~DataSet() = default;

int DataSet::ColumnCount() const { return static_cast<int>(contents_->columns.size()); }

const KORVA_Variable& DataSet::GetVariable(int index) const { return contents_->column(index); }

int DataSet::SplitVariableCount() const { return static_cast<int>(contents_->splits.size()); }

int DataSet::SplitVariableIndex(int i) const {
  return i >= 0 && i < SplitVariableCount() ? contents_->splits[static_cast<std::size_t>(i)] : -1;
}

int DataSet::VariableCount() const { return static_cast<int>(contents_->variables.size()); }

int DataSet::GetIndex(int v) const {
  return v >= 1 && v <= VariableCount() ? contents_->variables[static_cast<std::size_t>(v - 1)]
                                        : -1;
}

std::size_t DataSet::rowCount() const { return contents_->rowCount; }

int DataSet::findColumn(std::string_view name) const {
  const auto found = contents_->columnOfName.find(name);
  return found == contents_->columnOfName.end() ? -1 : found->second;
}

void DataSet::checkColumns(std::span<const int> columns) const {
  for (const int column : columns) {
    if (column < 0 || column >= ColumnCount())
      throw DataError(
          fmt::format("no column {}: the data set has {} columns", column + 1, ColumnCount()));
  }
}

void DataSet::useVariables(std::span<const int> columns) {
  checkColumns(columns);
  contents_->variables = columns.empty() ? allColumns(contents_->columns.size())
                                         : std::vector<int>(columns.begin(), columns.end());
  contents_->cellsPerRow = 0;
  for (const int column : contents_->variables)
    contents_->cellsPerRow += contents_->column(column).cellCount();
}

void DataSet::splitBy(std::span<const int> columns) {
  checkColumns(columns);
  contents_->splits.assign(columns.begin(), columns.end());
}

std::size_t DataSet::cellsPerRow() const { return contents_->cellsPerRow; }

void DataSet::readRow(std::size_t row, std::span<OBS> cells) const {
  OBS* next = cells.data();
  for (const int index : contents_->variables) {
    const DataColumn& column = contents_->column(index);
    column.readValue(row, next);
    next += column.cellCount();
  }
}

// ---- Life time -----------------------------------------------------------

void DataSet::HandOver() { handedOver_ = true; }

void DataSet::Use() { ++users_; }

void DataSet::Release() {
  --users_;
  if (users_ == 0 && closed_ && !handedOver_) delete this;
}

void DataSet::close(DataSet* dataSet) {
  if (!isAlive(dataSet)) return;
  if (dataSet->users_ == 0 && !dataSet->handedOver_) {
    delete dataSet;
    return;
  }
  dataSet->closed_ = true;
  dataSet->contents_->rowCount = 0;
  for (DataColumn& column : dataSet->contents_->columns)
    column.dropValues();
}

} // namespace host
