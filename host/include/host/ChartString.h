#pragma once

#include <string>
#include <string_view>

#include <xercesc/util/XercesDefs.hpp>

#include <host/Export.h>

/// A text on its way into a chart document: UTF-16 for display and, beside it,
/// the same text in English.
class KORVA_API ChartString {
public:
  ChartString() = default;
  explicit ChartString(std::u16string text) : text_(std::move(text)) {}

  /// Display text and English text; an English text equal to the display text
  /// takes no room of its own.
  void assign(std::u16string_view text, std::u16string_view english);
  void assign(std::u16string_view text) { assign(text, text); }

  /// The display text from UTF-8; bytes that are not valid become U+FFFD.
  void assignUTF8(std::string_view text);
  /// The English text from UTF-8; call it after assignUTF8.
  void assignUTF8ForEng(std::string_view text);

  /// The number's text with at most `precision` (1 to 17) significant digits and no
  /// trailing zeros ("10", "0.1"), for machines.
  void assignDouble(double value, int precision);

  const std::u16string& text() const { return text_; }
  const std::u16string& english() const { return hasEnglish_ ? english_ : text_; }
  const XMLCh* c_str() const { return text_.c_str(); }
  bool empty() const { return text_.empty(); }

  std::string toUTF8() const;
  std::string toUTF8ForEng() const;

  /// True when the whole text, blanks at either end aside, is a decimal number:
  /// sign, digits, '.', exponent; not hexadecimal, inf, nan or empty, and not
  /// beyond what a double holds.
  bool isNumber() const;
  /// The number, or the system-missing value when the text is none.
  double convertToDouble() const;

  /// Replaces every backslash followed by "n" by a line feed, in both texts.
  void unescapeLineFeeds();
  /// Replaces every carriage return by a line feed, in both texts.
  void unifyLineEnds();

private:
  std::u16string text_;
  std::u16string english_;
  bool hasEnglish_ = false;
};
