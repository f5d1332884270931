#include <chartxml/FormatSpec.h>

#include <algorithm>

#include <host/Data.h>

namespace {

constexpr int wholeNumber = 16;
constexpr int plain = 5;
constexpr int maxDecimals = 16;
constexpr int deviationWidth = 40;

// Not every type that shows a number: values of the others are not averaged in
// print.
constexpr int printNumericTypes[] = {3, 4, 5, 6, 7, 15, 16, 17, 31, 32, 33, 34, 35, 36, 37};

// A mean of whole numbers has decimals, which a format of whole numbers would hide.
KORVA_Format withMoreDecimals(const KORVA_Format& format, int more, int width) {
  const int type = format.TypeEx() == wholeNumber ? plain : format.TypeEx();
  return {type, width, std::min(format.Decimals() + more, maxDecimals)};
}

} // namespace

bool formatSpec::is_print_numeric(int type) {
  return std::ranges::find(printNumericTypes, type) != std::end(printNumericTypes);
}

long formatSpec::Mean(long format) {
  const KORVA_Format given(format);
  if (!is_print_numeric(given.TypeEx())) return format;
  return withMoreDecimals(given, 2, given.Width());
}

long formatSpec::StdDev(long format) {
  const KORVA_Format given(format);
  if (!is_print_numeric(given.TypeEx())) return format;
  return withMoreDecimals(given, 3, deviationWidth);
}
