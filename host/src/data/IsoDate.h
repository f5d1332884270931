#pragma once

#include <optional>
#include <string_view>

/// Dates and times as data packages write them, ISO 8601 in the extended form, read
/// as a display format of dates or times counts them: in seconds. A text of any
/// other form, or of a day or time that does not exist, gives nothing.
namespace host {

/// yyyy-mm-dd
std::optional<double> readDate(std::string_view text);
/// yyyy-mm-ddThh:mm:ss, with decimals of the second and an offset to Greenwich, "Z"
/// or +hh:mm, if it likes. The offset is taken off.
std::optional<double> readDateTime(std::string_view text);
/// hh:mm:ss, with decimals of the second if it likes.
std::optional<double> readTime(std::string_view text);
/// yyyy-mm, as its first day.
std::optional<double> readYearMonth(std::string_view text);
/// yyyy, a sign and more digits allowed: the plain number.
std::optional<double> readYear(std::string_view text);

} // namespace host
