#include "data/CellText.h"

#include <algorithm>
#include <charconv>

namespace host {

std::string_view withoutBlanks(std::string_view text) {
  const auto begin = text.find_first_not_of(" \t");
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

std::errc readNumber(std::string_view text, double& value) {
  std::string_view number = withoutBlanks(text);
  const bool isSigned = number.starts_with('+') || number.starts_with('-');
  const std::string_view digits = number.substr(isSigned ? 1 : 0);
  // from_chars knows "inf" and "nan", but no plus sign.
  if (digits.find_first_of(".0123456789") != 0) return std::errc::invalid_argument;
  if (number.front() == '+') number = digits;

  double read = 0;
  const char* end = number.data() + number.size();
  const auto result = std::from_chars(number.data(), end, read);
  if (result.ptr != end) return std::errc::invalid_argument;
  if (result.ec == std::errc()) value = read;
  return result.ec;
}

int decimalsOf(std::string_view number) {
  const auto point = number.find('.');
  if (point == std::string_view::npos) return 0;
  const auto end = number.find_first_not_of("0123456789", point + 1);
  return static_cast<int>(std::min(end, number.size()) - point - 1);
}

} // namespace host
