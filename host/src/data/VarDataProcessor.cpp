#include <host/VarDataProcessor.h>

#include <algorithm>

std::size_t VarDataProcessor::Source::rowCount() const {
  std::size_t rows = 0;
  for (const Variable& variable : variables)
    rows = std::max(rows, variable.column->rowCount());
  return rows;
}

const VarDataProcessor::Source* VarDataProcessor::find(const std::string& name) const {
  const auto found = std::ranges::find(sources_, name, &Source::name);
  return found == sources_.end() ? nullptr : &*found;
}

void VarDataProcessor::AddDataSource(const std::string& name, std::size_t /*capacity*/) {
  if (find(name) == nullptr) sources_.push_back({name, {}, {}});
}

bool VarDataProcessor::AddVariable(const std::string& sourceId, const std::string& sourceName,
                                   _varinfo& info) {
  info = {};
  if (sources_.empty()) return false;
  auto source = std::ranges::find(sources_, sourceId, &Source::name);
  if (source == sources_.end()) source = sources_.begin();

  host::ValueColumn*& column = source->columnOfName[sourceName];
  if (column == nullptr) {
    source->variables.push_back({sourceName, std::make_unique<host::ValueColumn>()});
    column = source->variables.back().column.get();
  }
  info.column = column;
  return true;
}

bool VarDataProcessor::SetVariableValue(const _varinfo& info, std::size_t row, double value) {
  return info.column == nullptr || info.column->setNumber(row, value);
}

bool VarDataProcessor::SetStringVariableValue(const _varinfo& info, std::size_t row,
                                              std::string_view utf8) {
  return info.column == nullptr || info.column->setText(row, utf8);
}

std::size_t VarDataProcessor::GetRowCount(const std::string& sourceName) const {
  const Source* source = find(sourceName);
  return source == nullptr ? 0 : source->rowCount();
}
