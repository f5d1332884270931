#include <chartxml/Chart.h>

#include <algorithm>
#include <limits>

#include <fmt/format.h>

namespace {

constexpr int rowsPerTrace = 10000;

} // namespace

int Chart::AddRow(int /*source*/) {
  if (dataRefused_) return -1;
  ++rowCount_;
  if (rowCount_ % rowsPerTrace == 0) {
    printDebugInfo(fmt::format("Added {} rows of data", rowCount_));
  }
  return rowCount_;
}

// A number given as text is stored as a number; so is any text of a chart whose
// data are all numbers. A variable without a store loses its values silently: its
// declaration was refused and reported before.
int Chart::AddDataValue(int /*source*/, int variable, int string) {
  if (dataRefused_) return -1;
  const VarDataProcessor::_varinfo* store = storeOf(variable);
  if (!store) return 0;
  noteRow(storeText(*store, currentRow(), stringHandler_->getXMLString(string)));
  return 0;
}

bool Chart::storeText(const VarDataProcessor::_varinfo& store, std::size_t row,
                      const ChartString& text) {
  const bool number = allDataDoubles_ || text.isNumber();
  return number ? dataProcessor_->SetVariableValue(store, row, text.convertToDouble())
                : dataProcessor_->SetStringVariableValue(store, row, text.toUTF8());
}

int Chart::AddDoubleDataValue(int /*source*/, int variable, double value) {
  if (dataRefused_) return -1;
  const VarDataProcessor::_varinfo* store = storeOf(variable);
  if (!store) return 0;
  noteRow(dataProcessor_->SetVariableValue(*store, currentRow(), value));
  return 0;
}

// Columns

int Chart::LoadNumbers(int variable, int firstRow, std::span<const double> numbers) {
  const auto* store = storeOfRows(variable, firstRow, numbers.size(), Where::current());
  if (!store) return -1;
  auto row = static_cast<std::size_t>(firstRow) - 1;
  for (const double number : numbers)
    noteRow(dataProcessor_->SetVariableValue(*store, row++, number));
  return 0;
}

int Chart::LoadTexts(int variable, int firstRow, std::span<const ChartString> texts) {
  const auto* store = storeOfRows(variable, firstRow, texts.size(), Where::current());
  if (!store) return -1;
  auto row = static_cast<std::size_t>(firstRow) - 1;
  for (const ChartString& text : texts)
    noteRow(storeText(*store, row++, text));
  return 0;
}

// A column is much to lose: unlike a single value it is told when it has no place.
const VarDataProcessor::_varinfo* Chart::storeOfRows(int variable, int firstRow, std::size_t count,
                                                     Where where) {
  if (dataRefused_) return nullptr;
  const VarDataProcessor::_varinfo* store = storeOf(variable);
  if (!store) {
    report(fmt::format("the node {} is no variable with a column", variable), where);
    return nullptr;
  }
  constexpr std::size_t mostRows = std::numeric_limits<int>::max();
  if (firstRow < 1 || count > mostRows - static_cast<std::size_t>(firstRow - 1)) {
    report(
        fmt::format("no {} rows from row {} on: rows go from 1 to {}", count, firstRow, mostRows),
        where);
    return nullptr;
  }
  rowCount_ = std::max(rowCount_, firstRow - 1 + static_cast<int>(count));
  return store;
}

// Before the first row this wraps round, and the store refuses it.
std::size_t Chart::currentRow() const { return static_cast<std::size_t>(rowCount_) - 1; }

const VarDataProcessor::_varinfo* Chart::storeOf(int variable) {
  if (latestStore_ && latestVariable_ == variable) return latestStore_;
  const auto found = variableStores_.find(variable);
  if (found == variableStores_.end()) return nullptr;
  latestVariable_ = variable;
  latestStore_ = found->second.get();
  return latestStore_;
}

void Chart::noteRow(bool stored, Where where) {
  if (stored || lostRowTold_) return;
  lostRowTold_ = true;
  report(fmt::format("a data value outside the rows of chart {} was not stored; the first row "
                     "must be added before the first value",
                     chartHandle_),
         where);
}
