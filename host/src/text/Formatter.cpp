#include <host/Formatter.h>

#include <algorithm>
#include <optional>

#include "DateText.h"
#include "FormatKind.h"
#include "NumberText.h"

namespace {

using host::FormatKind;

std::string cellText(const OBS& firstCell, int width) {
  const std::string_view text(firstCell.bytes, static_cast<std::size_t>(std::max(width, 0)));
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

// A value that no calendar reaches, the missing one among them, is shown as numbers
// are that are out of proportion to their field.
std::string orScientific(std::optional<std::string> text, double value, int width, int decimals) {
  if (text) return *std::move(text);
  return host::numberText(value, host::scientificFormat, width, decimals, {});
}

} // namespace

namespace formatter {

std::string formattedValue(const OBS& value, int type, int width, int decimals,
                           std::string_view separator) {
  const double number = value.number;
  switch (host::formatKind(type)) {
  case FormatKind::text:
    return cellText(value, width);
  case FormatKind::date:
    return orScientific(host::dateText(number, type, width), number, width, decimals);
  case FormatKind::duration:
    return orScientific(host::durationText(number, type, width), number, width, decimals);
  default:
    return host::numberText(number, type, width, decimals, separator);
  }
}

std::string formattedValue(double value, const KORVA_Format& format) {
  const int type = format.TypeEx();
  if (host::formatKind(type) == FormatKind::text) return {}; // a number holds no text cells
  return formattedValue(OBS{.number = value}, type, format.Width(), format.Decimals());
}

std::string AsString(double value, const KORVA_Format& format) {
  const bool isKnown = host::formatKind(format.TypeEx()) != FormatKind::unknown;
  return isKnown ? formattedValue(value, format) : std::string();
}

} // namespace formatter
