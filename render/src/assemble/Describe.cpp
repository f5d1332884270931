#include "assemble/Describe.h"

#include <algorithm>
#include <array>

#include "assemble/Telling.h"

namespace render {
namespace {

/// Sentences, each closed by a full stop of the language unless it has an end.
class Sentences {
public:
  explicit Sentences(std::string_view language)
      : stop_(language == "ja" || language.starts_with("zh") ? "。" : ".") {}

  /// The lines of a text are sentences of their own.
  void addLines(std::string_view text) {
    while (!text.empty()) {
      const std::string_view line = text.substr(0, text.find('\n'));
      text.remove_prefix(std::min(line.size() + 1, text.size()));
      add(line);
    }
  }

  void add(std::string_view sentence) {
    if (sentence.empty()) return;
    if (!text_.empty()) text_.append(isEnded() ? "" : stop_).append(hasWideEnd() ? "" : " ");
    text_ += sentence;
  }

  /// All of them; what ends without a sign gets its stop.
  std::string text() const {
    return text_.empty() || isEnded() ? text_ : text_ + std::string(stop_);
  }

private:
  bool isEnded() const {
    static constexpr std::array<std::string_view, 6> ends{".", "!", "?", "。", "！", "？"};
    return std::ranges::any_of(ends, [this](std::string_view end) { return text_.ends_with(end); });
  }

  /// Wide stops have their gap in them.
  bool hasWideEnd() const { return static_cast<unsigned char>(text_.back()) >= 0x80; }

  std::string_view stop_;
  std::string text_;
};

} // namespace

std::string describe(const Chart& chart, const Parts& parts, const Words& words) {
  Sentences sentences(chart.folder->manifest.language);
  for (const auto* titles : {&parts.title, &parts.subtitle})
    for (const std::string& title : *titles)
      sentences.addLines(title);
  sentences.addLines(chart.folder->manifest.description);
  const Telling telling{.chart = chart, .parts = parts, .words = words};
  for (const auto tell : {tellKind, tellAxes, tellValues, tellAmounts, tellTrend, tellOutliers})
    for (const std::string& sentence : tell(telling))
      sentences.add(sentence);
  for (const std::string& footnote : parts.footnotes)
    sentences.addLines(footnote);
  const std::string text = sentences.text();
  return text.empty() ? chart.folder->manifest.name : text;
}

} // namespace render
