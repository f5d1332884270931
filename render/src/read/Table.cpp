#include "read/Table.h"

#include <algorithm>

#include <host/CsvReader.h>
#include <host/DataSet.h>
#include <render/Pages.h>

namespace render {
namespace {

class FillTable final : public host::CsvConsumer {
public:
  explicit FillTable(Table& table) : table_(table) {}
  void name(std::size_t, std::string_view text) override { table_.names.emplace_back(text); }
  void headerEnd(std::size_t columns) override { table_.columns.resize(columns); }
  void cell(std::size_t, std::size_t column, std::string_view text) override {
    table_.columns[column].add(text);
  }

private:
  Table& table_;
};

} // namespace

Table Table::read(const std::filesystem::path& file) {
  Table table;
  FillTable consumer(table);
  try {
    table.rowCount = host::readCsv(file, consumer);
  } catch (const host::DataError& e) {
    throw RenderError(e.what());
  }
  return table;
}

const Column* Table::find(std::string_view name) const {
  const auto found = std::ranges::find(names, name);
  return found == names.end() ? nullptr : &columns[static_cast<std::size_t>(found - names.begin())];
}

} // namespace render
