#include <chartxml/Chart.h>

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
  const ChartString& text = stringHandler_->getXMLString(string);
  const bool number = allDataDoubles_ || text.isNumber();
  noteRow(number ? dataProcessor_->SetVariableValue(*store, currentRow(), text.convertToDouble())
                 : dataProcessor_->SetStringVariableValue(*store, currentRow(), text.toUTF8()));
  return 0;
}

int Chart::AddDoubleDataValue(int /*source*/, int variable, double value) {
  if (dataRefused_) return -1;
  const VarDataProcessor::_varinfo* store = storeOf(variable);
  if (!store) return 0;
  noteRow(dataProcessor_->SetVariableValue(*store, currentRow(), value));
  return 0;
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
