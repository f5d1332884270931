// Texts of numbers that come with a display format of their own.
#include <chartxml/ChartStringHandler.h>

#include <algorithm>
#include <cmath>

#include <chartxml/ChartXml.h>
#include <host/Formatter.h>
#include <host/Missing.h>

namespace {

constexpr int dayOfWeekType = 26;
constexpr int monthType = 27;

struct Types {
  int first;
  int last;
};
constexpr Types shownTypes[] = {{2, 12}, {15, 17}, {20, 40}, {85, 86}};

constexpr double day = 86400.0;
constexpr double month = 31 * day;
constexpr double saturday = 13166064000.0; ///< 1 January 2000, in seconds of a date

bool isShown(int type) {
  return std::ranges::any_of(
      shownTypes, [type](const Types& types) { return types.first <= type && type <= types.last; });
}

// Days of the week and months come as codes too. No date to show is so early: a
// value of up to one day is a code.
bool isCode(int type, double value) {
  return (type == dayOfWeekType || type == monthType) && value <= day;
}

// 1 to `period`, whole numbers apart by `period` being one; 0 and what is below it
// count on downwards.
double cyclic(double value, double period) {
  const double rest = std::fmod(std::trunc(value), period);
  return rest <= 0 ? rest + period : rest;
}

} // namespace

int ChartStringHandler::LRValue(const double& value, int format) {
  if (value == host::systemMissing) return -1;
  if (format == -1) return Double(value);
  const std::string text = formatter::AsString(value, KORVA_Format(format));
  return text.empty() ? -1 : ChartXml::GetInstance()->NStringNoTranslate(text);
}

int ChartStringHandler::LRValueAsString(const double& value, int format) {
  if (value == host::systemMissing) return -1;
  if (format == -1) return Double(value);
  const KORVA_Format display(format);
  if (!isShown(display.TypeEx())) return -1;
  const std::string text = isCode(display.TypeEx(), value)
                               ? formattedStringDate(display, value)
                               : formatter::formattedValue(value, display);
  return text.empty() ? -1 : ChartXml::GetInstance()->NStringNoTranslate(text);
}

std::string ChartStringHandler::formattedStringDate(KORVA_Format format,
                                                    const double& value) const {
  if (!std::isfinite(value) || value == host::systemMissing)
    return formatter::formattedValue(value, format);
  const double date = format.TypeEx() == dayOfWeekType ? saturday + cyclic(value, 7) * day
                                                       : saturday + (cyclic(value, 12) - 1) * month;
  return formatter::formattedValue(date, format);
}
