#include "translate/Formula.h"

#include <cctype>
#include <charconv>
#include <chrono>
#include <cstdio>

#include <fmt/format.h>

#include "text/Expression.h"
#include "text/PlainValue.h"

namespace render {
namespace {

/// Nesting beyond any formula that a procedure writes.
constexpr int deepestNesting = 100;

class Parser {
public:
  Parser(std::string_view formula, std::string_view x) : formula_(formula), x_(x) {}

  std::string parse() {
    std::string expression = sum();
    if (at_ < formula_.size()) fail("nothing more");
    return expression;
  }

private:
  std::string sum() {
    std::string left = product();
    for (;;) {
      if (take("+"))
        left = fmt::format("({} + {})", left, product());
      else if (take("-"))
        left = fmt::format("({} - {})", left, product());
      else
        return left;
    }
  }

  std::string product() {
    std::string left = power();
    for (;;) {
      if (take("*"))
        left = fmt::format("({} * {})", left, power());
      else if (take("/"))
        left = fmt::format("({} / {})", left, power());
      else
        return left;
    }
  }

  std::string power() {
    if (++nesting_ > deepestNesting) fail("fewer nested parts");
    std::string result;
    if (take("-")) {
      result = fmt::format("(-{})", power());
    } else if (take("+")) {
      result = power();
    } else {
      result = operand();
      if (take("**")) result = fmt::format("pow({}, {})", result, power());
    }
    --nesting_;
    return result;
  }

  std::string operand() {
    skipBlanks();
    if (take("(")) {
      std::string inner = sum();
      need(")");
      return inner;
    }
    const char next = at_ < formula_.size() ? formula_[at_] : '\0';
    if (std::isdigit(static_cast<unsigned char>(next)) || next == '.') return number();
    return named();
  }

  std::string number() {
    double value = 0;
    const char* const begin = formula_.data() + at_;
    const auto [end, error] = std::from_chars(begin, formula_.data() + formula_.size(), value);
    if (error != std::errc()) fail("a number");
    at_ += static_cast<std::size_t>(end - begin);
    return literal(value);
  }

  std::string named() {
    const std::size_t begin = at_;
    while (at_ < formula_.size() && std::isalnum(static_cast<unsigned char>(formula_[at_])))
      ++at_;
    const std::string_view name = formula_.substr(begin, at_ - begin);
    if (name == "x") return std::string(x_);
    if (name == "exp" || name == "log") {
      need("(");
      std::string argument = sum();
      need(")");
      return fmt::format("{}({})", name, argument);
    }
    if (name == "datetodouble") {
      need("(");
      std::string seconds = date();
      need(")");
      return seconds;
    }
    at_ = begin;
    fail("a number, x, a function or \"(\"");
  }

  std::string date() {
    need("\"");
    const std::size_t end = std::min(formula_.find('"', at_), formula_.size());
    const std::string text(formula_.substr(at_, end - at_));
    int year = 0, used = 0;
    unsigned month = 0, day = 0, hour = 0, minute = 0;
    double second = 0;
    std::sscanf(text.c_str(), "%4d-%2u-%2uT%2u:%2u:%lf%n", &year, &month, &day, &hour, &minute,
                &second, &used);
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    const bool isWhole = !text.empty() && static_cast<std::size_t>(used) == text.size();
    const bool isInMinute = second >= 0 && second < 61;
    if (!isWhole || !date.ok() || hour > 24 || minute > 59 || !isInMinute)
      fail("a date like 1582-10-14T00:00:00.000");
    at_ = end;
    need("\"");
    using namespace std::chrono_literals;
    const auto days = std::chrono::sys_days(date) - std::chrono::sys_days(1582y / 10 / 14);
    return literal(86400.0 * static_cast<double>(days.count()) + 3600.0 * hour + 60.0 * minute +
                   second);
  }

  void skipBlanks() {
    while (at_ < formula_.size() && std::isspace(static_cast<unsigned char>(formula_[at_])))
      ++at_;
  }

  /// Takes a sign of the grammar; "*" is not the first half of "**".
  bool take(std::string_view sign) {
    skipBlanks();
    const std::string_view rest = formula_.substr(at_);
    if (!rest.starts_with(sign) || (sign == "*" && rest.starts_with("**"))) return false;
    at_ += sign.size();
    return true;
  }
  void need(std::string_view sign) {
    if (!take(sign)) fail(fmt::format("\"{}\"", sign));
  }

  [[noreturn]] void fail(std::string_view expected) const {
    throw FormulaError(at_ < formula_.size()
                           ? fmt::format("expected {} at character {}", expected, at_ + 1)
                           : fmt::format("expected {} at the end", expected));
  }

  std::string_view formula_;
  std::string_view x_;
  std::size_t at_ = 0;
  int nesting_ = 0;
};

} // namespace

std::string translateFormula(std::string_view formula, std::string_view x) {
  return Parser(formula, x).parse();
}

std::string roundedFormula(std::string_view formula, const NumberSigns& signs) {
  std::string text;
  for (std::size_t at = 0; at < formula.size();) {
    const char* const begin = formula.data() + at;
    double number = 0;
    const bool isDigit = std::isdigit(static_cast<unsigned char>(*begin)) != 0 || *begin == '.';
    const auto [end, error] = isDigit
                                  ? std::from_chars(begin, formula.data() + formula.size(), number)
                                  : std::from_chars_result{begin, std::errc::invalid_argument};
    if (error == std::errc())
      text += roundedText(number, signs);
    else
      text += *begin;
    at += error == std::errc() ? static_cast<std::size_t>(end - begin) : 1;
  }
  constexpr std::string_view plusMinus = "+ -";
  for (std::size_t at = text.find(plusMinus); at != text.npos; at = text.find(plusMinus, at + 1))
    text.replace(at, plusMinus.size(), "- ");
  return text;
}

} // namespace render
