#include <host/ChartString.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

#include <fmt/format.h>

#include <host/Missing.h>
#include <host/Text.h>

namespace {

std::u16string_view withoutOuterBlanks(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::optional<double> parseAscii(std::string_view ascii) {
  const std::size_t sign = ascii.starts_with('+') || ascii.starts_with('-') ? 1 : 0;
  // from_chars takes inf and nan too, but no plus sign.
  if (ascii.find_first_of("0123456789.", sign) != sign) return std::nullopt;
  if (ascii.starts_with('+')) ascii.remove_prefix(1);
  double value = 0;
  const char* const end = ascii.data() + ascii.size();
  const auto [stop, error] = std::from_chars(ascii.data(), end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
}

std::optional<double> parseNumber(std::u16string_view text) {
  text = withoutOuterBlanks(text);
  constexpr std::size_t usualLength = 64;
  char usual[usualLength];
  std::string longer;
  char* ascii = usual;
  if (text.size() > usualLength) {
    longer.resize(text.size());
    ascii = longer.data();
  }
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] > 0x7f) return std::nullopt;
    ascii[i] = static_cast<char>(text[i]);
  }
  return parseAscii({ascii, text.size()});
}

void replaceEscapes(std::u16string& text) {
  std::size_t from = text.find(u"\\n");
  if (from == std::u16string::npos) return;
  std::size_t to = from;
  while (from < text.size()) {
    const bool isEscape = text.compare(from, 2, u"\\n") == 0;
    text[to++] = isEscape ? u'\n' : text[from];
    from += isEscape ? 2 : 1;
  }
  text.resize(to);
}

} // namespace

void ChartString::assign(std::u16string_view text, std::u16string_view english) {
  hasEnglish_ = english != text;
  std::u16string beside(hasEnglish_ ? english : std::u16string_view()); // either may view this
  text_.assign(text);
  english_ = std::move(beside);
}

void ChartString::assignUTF8(std::string_view text) {
  text_.clear();
  host::appendUtf16(text_, text);
  english_.clear();
  hasEnglish_ = false;
}

void ChartString::assignUTF8ForEng(std::string_view text) {
  english_.clear();
  host::appendUtf16(english_, text);
  hasEnglish_ = english_ != text_;
  if (!hasEnglish_) english_ = {};
}

void ChartString::assignDouble(double value, int precision) {
  const int digits = std::clamp(precision, 1, std::numeric_limits<double>::max_digits10);
  assignUTF8(fmt::format("{:.{}g}", value, digits));
}

std::string ChartString::toUTF8() const { return host::utf8(text_); }

std::string ChartString::toUTF8ForEng() const { return host::utf8(english()); }

bool ChartString::isNumber() const { return parseNumber(text_).has_value(); }

double ChartString::convertToDouble() const {
  return parseNumber(text_).value_or(host::systemMissing);
}

void ChartString::unescapeLineFeeds() {
  replaceEscapes(text_);
  replaceEscapes(english_);
}

void ChartString::unifyLineEnds() {
  std::ranges::replace(text_, u'\r', u'\n');
  std::ranges::replace(english_, u'\r', u'\n');
}
