#include "data/IsoDate.h"

#include <algorithm>
#include <charconv>
#include <chrono>

#include <host/Calendar.h>

namespace host {
namespace {

constexpr double secondsPerHour = 3600;
constexpr double secondsPerMinute = 60;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Reads a text from the front; once something is not as it should be, it stays
/// failed.
class Scanner {
public:
  explicit Scanner(std::string_view text) : rest_(text) {}

  template <class Value> std::optional<Value> whole(Value value) const {
    return failed_ || !rest_.empty() ? std::nullopt : std::optional(value);
  }

  std::chrono::year_month_day day() {
    const std::chrono::year_month month = yearMonth();
    sign('-');
    const std::chrono::year_month_day date = month / number(2);
    failed_ |= !date.ok();
    return date;
  }

  std::chrono::year_month yearMonth() {
    const std::chrono::year year(number(4));
    sign('-');
    const std::chrono::year_month month = year / number(2);
    failed_ |= !month.ok();
    return month;
  }

  double time() {
    double seconds = secondsPerHour * atMost(23);
    sign(':');
    seconds += secondsPerMinute * atMost(59);
    sign(':');
    return seconds + second();
  }

  /// What a time is ahead of Greenwich; nothing written is none.
  double offset() {
    if (rest_.empty() || takeIf('Z')) return 0;
    const bool isBehind = takeIf('-');
    if (!isBehind) sign('+');
    double seconds = secondsPerHour * atMost(23);
    sign(':');
    seconds += secondsPerMinute * atMost(59);
    return isBehind ? -seconds : seconds;
  }

  void sign(char c) { failed_ |= !takeIf(c); }
  bool takeIf(char c) {
    if (!rest_.starts_with(c)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  /// All digits that follow, no fewer and no more than that.
  int digits(std::size_t fewest, std::size_t most) {
    const auto count =
        static_cast<std::size_t>(std::ranges::find_if_not(rest_, isDigit) - rest_.begin());
    failed_ |= count < fewest || count > most;
    return number(std::min(count, most));
  }

private:
  int number(std::size_t digits) {
    const std::string_view text = rest_.substr(0, digits);
    int read = 0;
    std::from_chars(text.data(), text.data() + text.size(), read);
    failed_ |= text.size() < digits || !std::ranges::all_of(text, isDigit);
    rest_.remove_prefix(text.size());
    return read;
  }

  int atMost(int most) {
    const int read = number(2);
    failed_ |= read > most;
    return read;
  }

  double second() {
    const std::string_view text = rest_;
    atMost(59);
    if (takeIf('.')) {
      const auto count = std::ranges::find_if_not(rest_, isDigit) - rest_.begin();
      failed_ |= count == 0;
      rest_.remove_prefix(static_cast<std::size_t>(count));
    }
    double read = 0;
    std::from_chars(text.data(), rest_.data(), read);
    return read;
  }

  std::string_view rest_;
  bool failed_ = false;
};

} // namespace

std::optional<double> readDate(std::string_view text) {
  Scanner scanner(text);
  const auto day = scanner.whole(scanner.day());
  return day ? std::optional(secondsOf(*day)) : std::nullopt;
}

std::optional<double> readDateTime(std::string_view text) {
  Scanner scanner(text);
  const auto day = scanner.day();
  scanner.sign('T');
  const double time = scanner.time();
  const double offset = scanner.offset();
  return scanner.whole(secondsOf(day) - offset + time);
}

std::optional<double> readTime(std::string_view text) {
  Scanner scanner(text);
  return scanner.whole(scanner.time());
}

std::optional<double> readYearMonth(std::string_view text) {
  Scanner scanner(text);
  const auto month = scanner.whole(scanner.yearMonth());
  return month ? std::optional(secondsOf(*month / 1)) : std::nullopt;
}

std::optional<double> readYear(std::string_view text) {
  Scanner scanner(text);
  const bool isBefore = scanner.takeIf('-');
  const int year = scanner.digits(4, 9);
  return scanner.whole(isBefore ? -1.0 * year : 1.0 * year);
}

} // namespace host
