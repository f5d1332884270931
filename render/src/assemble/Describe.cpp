#include "assemble/Describe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <vector>

#include <fmt/format.h>

#include "text/PlainValue.h"

namespace render {
namespace {

/// Sentences, each closed by a full stop of the language unless it has one.
class Sentences {
public:
  explicit Sentences(std::string_view language) {
    const bool isWide = language == "ja" || language.starts_with("zh");
    stop_ = isWide ? "。" : ".";
    gap_ = isWide ? "" : " ";
  }

  void add(std::string_view sentence) {
    if (sentence.empty()) return;
    if (!text_.empty()) text_.append(text_.ends_with(stop_) ? "" : stop_).append(gap_);
    text_ += sentence;
  }
  std::string text() const { return text_; }

private:
  std::string_view stop_, gap_;
  std::string text_;
};

struct Kind {
  std::string_view type; ///< of elements
  std::string_view word;
};
constexpr std::array kinds{
    Kind{"point", "Scatter plot"}, Kind{"line", "Line chart"}, Kind{"path", "Line chart"},
    Kind{"interval", "Bar chart"}, Kind{"area", "Area chart"},
};

std::string_view wordOf(std::string_view type) {
  const auto* kind = std::ranges::find(kinds, type, &Kind::type);
  return kind == kinds.end() ? "Chart" : kind->word;
}

std::string describeKind(const Chart& chart, const Words& words) {
  if (chart.elements.empty()) return {};
  const std::string_view first = wordOf(chart.elements.front().node->attribute("type"));
  std::string_view word = first;
  for (const Element& element : chart.elements) {
    const std::string_view other = wordOf(element.node->attribute("type"));
    if (other == word) continue;
    const bool isPointsAndLines = (first == "Scatter plot" && other == "Line chart") ||
                                  (first == "Line chart" && other == "Scatter plot");
    if (!isPointsAndLines) return words("Chart");
    word = "Points and lines";
  }
  return words(word);
}

/// The values of a continuous variable in the rows that an element draws.
std::vector<double> drawnValues(const Element& element, const Variable& variable) {
  std::vector<double> values;
  for (std::size_t row = 0; row < variable.numbers.size(); ++row)
    if (element.draws(row)) values.push_back(variable.numbers[row]);
  return values;
}

bool isContinuous(const Variable* variable) {
  return variable != nullptr && variable->texts != nullptr && !variable->categorical;
}

/// What is drawn along an axis: the title of its first variable and, of a continuous
/// one, the range of its values.
std::string describeAxis(const Variable* Element::* position, std::string_view key,
                         const Chart& chart, const Words& words) {
  const auto element = std::ranges::find_if(
      chart.elements, [=](const Element& e) { return e.*position != nullptr; });
  if (element == chart.elements.end()) return {};
  const Variable& variable = *((*element).*position);
  std::string text = variable.title;
  if (isContinuous(&variable)) {
    const std::vector<double> values = drawnValues(*element, variable);
    if (values.empty()) return words(key, {text});
    const auto [low, high] = std::ranges::minmax(values);
    const PlainValue shown(variable.format, chart.folder->manifest);
    text = words("Range^3", {text, shown(low), shown(high)});
  }
  return words(key, {text});
}

/// "Species: Adélie 151, Gentoo 123" of the first element with groups.
std::string describeGroups(const Chart& chart, const Words& words) {
  constexpr std::size_t most = 12;
  const auto grouped =
      std::ranges::find_if(chart.elements, [](const Element& e) { return e.group != nullptr; });
  if (grouped == chart.elements.end()) return {};
  const Variable& group = *grouped->group;
  std::unordered_map<std::string_view, std::size_t> rowsOf;
  for (std::size_t row = 0; row < group.texts->size(); ++row)
    if (grouped->draws(row)) ++rowsOf[(*group.texts)[row]];

  std::string labels;
  std::size_t told = 0;
  for (const Category& category : group.categories) {
    if (!category.expression.empty()) continue;
    if (told++ == most) {
      labels += ", ...";
      break;
    }
    labels += fmt::format(
        "{}{} ({})", labels.empty() ? "" : ", ", category.label,
        roundedText(static_cast<double>(rowsOf[category.key]), chart.folder->manifest.signs));
  }
  return labels.empty() ? labels : words("Groups^2", {group.title, labels});
}

/// Pearson's correlation; nothing where one side does not vary.
std::optional<double> correlation(const Element& element) {
  const std::vector<double> x = drawnValues(element, *element.x);
  const std::vector<double> y = drawnValues(element, *element.y);
  if (x.size() < 3) return std::nullopt;
  const auto count = static_cast<double>(x.size());
  double meanX = 0, meanY = 0, xx = 0, yy = 0, xy = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    meanX += x[i] / count;
    meanY += y[i] / count;
  }
  for (std::size_t i = 0; i < x.size(); ++i) {
    const double dx = x[i] - meanX;
    const double dy = y[i] - meanY;
    xx += dx * dx;
    yy += dy * dy;
    xy += dx * dy;
  }
  const double result = xy / std::sqrt(xx) / std::sqrt(yy);
  return std::isfinite(result) ? std::optional(result) : std::nullopt;
}

/// The first element whose marks show two continuous values of a row.
const Element* continuousElement(const Chart& chart) {
  const auto found = std::ranges::find_if(chart.elements, [](const Element& element) {
    return isContinuous(element.x) && isContinuous(element.y);
  });
  return found == chart.elements.end() ? nullptr : &*found;
}

std::string describeTrend(const Chart& chart, const Words& words) {
  constexpr double clear = 0.3;
  const Element* element = continuousElement(chart);
  if (element == nullptr) return {};
  const std::optional<double> r = correlation(*element);
  if (!r) return {};
  const std::string text = roundedText(std::round(*r * 100) / 100, chart.folder->manifest.signs);
  if (std::abs(*r) < clear) return words("No trend^1", {text});
  return words(*r > 0 ? "Rising^1" : "Falling^1", {text});
}

/// How many values lie more than 1.5 times the distance of the quartiles beyond them.
std::string describeOutliers(const Chart& chart, const Words& words) {
  constexpr std::size_t fewest = 12;
  const Element* element = continuousElement(chart);
  if (element == nullptr) return {};
  std::vector<double> values = drawnValues(*element, *element->y);
  if (values.size() < fewest) return {};
  const auto quantile = [&values](double share) {
    const auto at = values.begin() +
                    static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::ranges::nth_element(values, at);
    return *at;
  };
  const double lower = quantile(0.25);
  const double upper = quantile(0.75);
  const double reach = 1.5 * (upper - lower);
  const auto count = std::ranges::count_if(
      values, [=](double value) { return value < lower - reach || value > upper + reach; });
  if (count == 0) return {};
  return words("Outliers^2", {element->y->title, roundedText(static_cast<double>(count),
                                                             chart.folder->manifest.signs)});
}

} // namespace

std::string describe(const Chart& chart, const Parts& parts, const Words& words) {
  Sentences sentences(chart.folder->manifest.language);
  for (const std::string& title : parts.title)
    sentences.add(title);
  sentences.add(chart.folder->manifest.description);
  sentences.add(describeKind(chart, words));
  sentences.add(describeAxis(&Element::x, "x axis^1", chart, words));
  sentences.add(describeAxis(&Element::y, "y axis^1", chart, words));
  sentences.add(describeGroups(chart, words));
  sentences.add(describeTrend(chart, words));
  sentences.add(describeOutliers(chart, words));
  const std::string text = sentences.text();
  return text.empty() ? chart.folder->manifest.name : text;
}

} // namespace render
