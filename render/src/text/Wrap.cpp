#include "text/Wrap.h"

#include <memory>

#include <host/Text.h>
#include <unicode/brkiter.h>
#include <unicode/unistr.h>

#include "text/Advances.h"

namespace render {
namespace {

double widthOf(const icu::UnicodeString& text, double fontSize, bool bold) {
  double width = 0;
  for (std::int32_t at = 0; at < text.length(); at = text.moveIndex32(at, 1))
    width += advance(text.char32At(at), bold);
  return width * fontSize;
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
  bool isWhole() const { return isWhole_ && !full(); }

  void fill(const std::u16string& text) {
    for (std::size_t begin = 0; begin <= text.size() && !full();) {
      const std::size_t end = std::min(text.find(u'\n', begin), text.size());
      const icu::UnicodeString line(text.data() + begin, static_cast<std::int32_t>(end - begin));
      forEachPiece(line, false, [&](const auto& piece) { add(piece); });
      endLine();
      begin = end + 1;
    }
  }

  /// A piece that fits no line by itself is broken into its characters.
  void add(const icu::UnicodeString& piece) {
    icu::UnicodeString visible = piece;
    visible.trim();
    const double width = widthOf(visible);
    if (width > limits_.width) isWhole_ = false;
    if (width > limits_.width && piece.countChar32() > 1) {
      forEachPiece(piece, true, [this](const auto& character) { add(character); });
      return;
    }
    if (width_ > 0 && width_ + width > limits_.width) endLine();
    line_ += piece;
    width_ += widthOf(piece);
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
  double widthOf(const icu::UnicodeString& text) const {
    return render::widthOf(text, limits_.fontSize, limits_.bold);
  }

  const WrapLimits& limits_;
  std::vector<icu::UnicodeString> lines_;
  icu::UnicodeString line_;
  double width_ = 0;
  bool isWhole_ = true;
};

} // namespace

double textWidth(std::string_view utf8, double fontSize, bool bold) {
  const icu::StringPiece bytes(utf8.data(), static_cast<std::int32_t>(utf8.size()));
  return widthOf(icu::UnicodeString::fromUTF8(bytes), fontSize, bold);
}

std::vector<std::string> wrap(std::string_view utf8, const WrapLimits& limits) {
  if (utf8.empty()) return {};
  Filler filler(limits);
  filler.fill(host::utf16(utf8));
  return std::move(filler).lines();
}

bool wrapsWhole(std::string_view utf8, const WrapLimits& limits) {
  Filler filler(limits);
  filler.fill(host::utf16(utf8));
  return filler.isWhole();
}

} // namespace render
