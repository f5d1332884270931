#include "text/Wrap.h"

#include <memory>

#include <host/Text.h>
#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace render {
namespace {

double advance(UChar32 c) {
  switch (u_charType(c)) {
  case U_NON_SPACING_MARK:
  case U_ENCLOSING_MARK:
  case U_FORMAT_CHAR:
  case U_CONTROL_CHAR:
    return 0;
  default:
    break;
  }
  const int width = u_getIntPropertyValue(c, UCHAR_EAST_ASIAN_WIDTH);
  if (width == U_EA_WIDE || width == U_EA_FULLWIDTH) return 1.0;
  static constexpr std::u16string_view narrow = u" !'(),-./:;I[\\]fijlrt|";
  static constexpr std::u16string_view broad = u"%@MWmw—…";
  const auto unit = static_cast<char16_t>(c);
  if (c < 0x10000 && narrow.find(unit) != narrow.npos) return 0.37;
  if (c < 0x10000 && broad.find(unit) != broad.npos) return 0.97;
  return u_isupper(c) ? 0.70 : 0.62;
}

double widthOf(const icu::UnicodeString& text) {
  double width = 0;
  for (std::int32_t at = 0; at < text.length(); at = text.moveIndex32(at, 1))
    width += advance(text.char32At(at));
  return width;
}

std::unique_ptr<icu::BreakIterator> breaks(bool betweenCharacters) {
  UErrorCode status = U_ZERO_ERROR;
  return std::unique_ptr<icu::BreakIterator>(
      betweenCharacters
          ? icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status)
          : icu::BreakIterator::createLineInstance(icu::Locale::getRoot(), status));
}

/// Fills lines with the pieces of a text, one after another.
class Filler {
public:
  explicit Filler(const WrapLimits& limits) : limits_(limits) {}

  bool full() const { return lines_.size() > limits_.lines; }

  /// A piece that fits no line by itself is broken into its characters.
  void add(const icu::UnicodeString& piece) {
    icu::UnicodeString visible = piece;
    visible.trim();
    const double width = widthOf(visible) * limits_.fontSize;
    if (width > limits_.width && piece.countChar32() > 1) {
      forEachPiece(piece, true, [this](const auto& character) { add(character); });
      return;
    }
    if (width_ > 0 && width_ + width > limits_.width) endLine();
    line_ += piece;
    width_ += widthOf(piece) * limits_.fontSize;
  }

  void endLine() {
    lines_.push_back(line_.trim());
    line_.remove();
    width_ = 0;
  }

  template <class Take>
  void forEachPiece(const icu::UnicodeString& text, bool betweenCharacters, Take take) {
    const auto iterator = breaks(betweenCharacters);
    iterator->setText(text);
    for (std::int32_t begin = 0, end = iterator->next(); end != icu::BreakIterator::DONE && !full();
         begin = end, end = iterator->next())
      take(text.tempSubStringBetween(begin, end));
  }

  std::vector<std::string> lines() && {
    if (full()) {
      lines_.resize(limits_.lines);
      lines_.back() += u'…';
    }
    std::vector<std::string> result;
    for (const icu::UnicodeString& line : lines_)
      line.toUTF8String(result.emplace_back());
    return result;
  }

private:
  const WrapLimits& limits_;
  std::vector<icu::UnicodeString> lines_;
  icu::UnicodeString line_;
  double width_ = 0;
};

} // namespace

double textWidth(std::string_view utf8, double fontSize) {
  return widthOf(icu::UnicodeString::fromUTF8(
             icu::StringPiece(utf8.data(), static_cast<std::int32_t>(utf8.size())))) *
         fontSize;
}

std::vector<std::string> wrap(std::string_view utf8, const WrapLimits& limits) {
  if (utf8.empty()) return {};
  const std::u16string text = host::utf16(utf8);
  Filler filler(limits);
  for (std::size_t begin = 0; begin <= text.size() && !filler.full();) {
    const std::size_t end = std::min(text.find(u'\n', begin), text.size());
    const icu::UnicodeString line(text.data() + begin, static_cast<std::int32_t>(end - begin));
    filler.forEachPiece(line, false, [&](const auto& piece) { filler.add(piece); });
    filler.endLine();
    begin = end + 1;
  }
  return std::move(filler).lines();
}

} // namespace render
