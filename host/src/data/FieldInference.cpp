#include "data/FieldInference.h"

#include <algorithm>

#include "data/CellText.h"
#include "data/IsoDate.h"
#include <host/CsvReader.h>

namespace host {
namespace {

constexpr int usualWidth = 8; ///< of a number's display
const std::vector<std::string> missingTexts = {"", "NA"};

/// What the cells of one column have in common so far.
struct Seen {
  std::string name;
  bool numbers = true;
  bool dates = true;
  int longest = 0;
  int decimals = 0;

  void take(std::string_view cell) {
    longest = std::max(longest, static_cast<int>(cell.size()));
    if (!numbers && !dates) return;
    const std::string_view text = withoutBlanks(cell);
    if (std::ranges::find(missingTexts, text) != missingTexts.end()) return;
    double value = 0;
    numbers = numbers && readNumber(text, value) == std::errc();
    dates = dates && readDate(text);
    decimals = std::max(decimals, decimalsOf(text));
  }

  Field field() const {
    if (numbers)
      return described(Field::Type::number,
                       {numberFormat, std::clamp(longest, usualWidth, widestNumber),
                        std::min(decimals, mostDecimals)},
                       missingTexts);
    if (dates) return described(Field::Type::date, usualDate, missingTexts);
    return described(Field::Type::string, {textFormat, longest, 0}, {""});
  }

private:
  Field described(Field::Type type, DisplayFormat format,
                  const std::vector<std::string>& missing) const {
    return {.name = name, .label = name, .type = type, .format = format, .missingValues = missing};
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
