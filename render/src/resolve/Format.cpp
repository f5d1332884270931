#include "resolve/Format.h"

namespace render {

Format readFormat(const Node& variable, const NumberSigns& signs, Notes& notes) {
  const Node* meta = variable.child("meta");
  if (meta == nullptr) return {};
  if (const Node* date = meta->child("dateTimeFormat")) return DateFormat::read(*date, signs);
  if (const Node* number = meta->child("numberFormat")) return NumberFormat::read(*number, notes);
  return {};
}

std::string valueText(const Format& format, std::string_view value) {
  if (const auto* date = std::get_if<DateFormat>(&format)) return dateText(*date, value);
  const auto* number = std::get_if<NumberFormat>(&format);
  return numberText(number != nullptr ? std::optional(*number) : std::nullopt, value);
}

} // namespace render
