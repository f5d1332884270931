#include "data/DataColumn.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include <fmt/format.h>
#include <host/Missing.h>

#include "data/CellText.h"
#include "data/IsoDate.h"
#include "data/Refusal.h"
#include "text/Converter.h"

namespace host {
namespace {

double numberOf(std::string_view text) {
  double number = 0;
  const std::errc error = readNumber(text, number);
  if (error == std::errc::result_out_of_range)
    throw Refusal(fmt::format("{} is out of the range of numbers", shown(text)));
  if (error != std::errc()) throw Refusal(fmt::format("{} is not a number", shown(text)));
  return number;
}

/// Table Schema's words for what has no digits.
double realOf(std::string_view text) {
  using Limits = std::numeric_limits<double>;
  if (text == "NaN") return Limits::quiet_NaN();
  if (text == "INF") return Limits::infinity();
  if (text == "-INF") return -Limits::infinity();
  return numberOf(text);
}

double integerOf(std::string_view text) {
  const double number = numberOf(text);
  if (number != std::trunc(number)) throw Refusal(fmt::format("{} is not an integer", shown(text)));
  return number;
}

double booleanOf(std::string_view text) {
  constexpr std::string_view trueValues[] = {"true", "True", "TRUE", "1"};
  constexpr std::string_view falseValues[] = {"false", "False", "FALSE", "0"};
  if (std::ranges::find(trueValues, text) != std::end(trueValues)) return 1;
  if (std::ranges::find(falseValues, text) != std::end(falseValues)) return 0;
  throw Refusal(fmt::format("{} is neither true nor false", shown(text)));
}

double whatReads(std::optional<double> read, std::string_view text, std::string_view what) {
  if (!read) throw Refusal(fmt::format("{} is not {}", shown(text), what));
  return *read;
}

} // namespace

double valueOf(Field::Type type, std::string_view text) {
  switch (type) {
  case Field::Type::integer:
    return integerOf(text);
  case Field::Type::boolean:
    return booleanOf(text);
  case Field::Type::date:
    return whatReads(readDate(text), text, "a date (yyyy-mm-dd)");
  case Field::Type::dateTime:
    return whatReads(readDateTime(text), text, "a date and time (yyyy-mm-ddThh:mm:ss)");
  case Field::Type::time:
    return whatReads(readTime(text), text, "a time (hh:mm:ss)");
  case Field::Type::year:
    return whatReads(readYear(text), text, "a year (yyyy)");
  case Field::Type::yearMonth:
    return whatReads(readYearMonth(text), text, "a year and month (yyyy-mm)");
  default:
    return realOf(text);
  }
}

DataColumn::DataColumn(Field field)
    : field_(std::move(field)), name_(processText(field_.name)), label_(processText(field_.label)),
      transcodes_(!processConverter().isUtf8()), width_(isText() ? field_.format.width : 0) {}

bool DataColumn::isMissing(std::string_view text) const {
  return std::ranges::find(field_.missingValues, text) != field_.missingValues.end();
}

void DataColumn::setCell(std::size_t row, std::string_view utf8) {
  bool stored = false;
  if (isText()) {
    const std::string_view text = isMissing(utf8) ? std::string_view() : utf8;
    const std::string converted = transcodes_ ? processText(std::string(text)) : std::string();
    const std::string_view value = transcodes_ ? converted : text;
    width_ = std::max(width_, static_cast<int>(value.size()));
    stored = values_.setText(row, value);
  } else {
    const std::string_view text = withoutBlanks(utf8);
    stored = values_.setNumber(row, isMissing(text) ? systemMissing : valueOf(field_.type, text));
  }
  if (!stored) throw Refusal(fmt::format("more than {} rows", ValueColumn::maxRows));
}

void DataColumn::finish() {
  for (Category& category : field_.categories) {
    if (auto* text = std::get_if<std::string>(&category.value)) {
      *text = processText(*text);
      width_ = std::max(width_, static_cast<int>(text->size()));
    }
  }
  labels_ = KORVA_ValueLabelMap(width_);
  for (const Category& category : field_.categories)
    std::visit([&](const auto& value) { labels_.add(value, processText(category.label)); },
               category.value);
}

KORVA_Format DataColumn::GetFormat() const {
  const DisplayFormat& format = field_.format;
  return {format.type, isText() ? width_ : format.width, format.decimals};
}

void DataColumn::readValue(std::size_t row, OBS* cells) const {
  if (isText())
    writeText(values_.text(row), width_, cells);
  else
    cells->number = values_.number(row);
}

} // namespace host
