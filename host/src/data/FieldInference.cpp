#include "data/FieldInference.h"

#include <algorithm>

#include "data/CellText.h"
#include <host/CsvReader.h>

namespace host {
namespace {

constexpr int usualWidth = 8; ///< of a number's display
const std::vector<std::string> missingNumbers = {"", "NA"};

/// What the cells of one column have in common so far.
struct Seen {
  std::string name;
  bool numbers = true;
  int longest = 0;
  int decimals = 0;

  void take(std::string_view cell) {
    longest = std::max(longest, static_cast<int>(cell.size()));
    if (!numbers) return;
    const std::string_view text = withoutBlanks(cell);
    if (std::ranges::find(missingNumbers, text) != missingNumbers.end()) return;
    double value = 0;
    numbers = readNumber(text, value) == std::errc();
    decimals = std::max(decimals, decimalsOf(text));
  }

  Field field() const {
    Field field{.name = name, .label = name};
    if (numbers) {
      field.type = Field::Type::number;
      field.format = {numberFormat, std::clamp(longest, usualWidth, widestNumber),
                      std::min(decimals, mostDecimals)};
      field.missingValues = missingNumbers;
    } else {
      field.format = {textFormat, longest, 0};
    }
    return field;
  }
};

class FieldInference final : public CsvConsumer {
public:
  void name(std::size_t, std::string_view text) override {
    columns_.push_back({.name = std::string(text)});
  }
  void headerEnd(std::size_t) override {}
  void cell(std::size_t, std::size_t column, std::string_view text) override {
    columns_[column].take(text);
  }

  std::vector<Field> fields() const {
    std::vector<Field> fields;
    fields.reserve(columns_.size());
    for (const Seen& column : columns_)
      fields.push_back(column.field());
    return fields;
  }

private:
  std::vector<Seen> columns_;
};

} // namespace

std::vector<Field> inferFields(const std::filesystem::path& csv) {
  FieldInference inference;
  readCsv(csv, inference);
  return inference.fields();
}

} // namespace host
