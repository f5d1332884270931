#include "translate/MinorTicks.h"

#include <cmath>

#include <fmt/format.h>

#include "text/Show.h"
#include "translate/AxisTicks.h"

namespace render {
namespace {

constexpr double most = 20;
constexpr double usualLength = 3;

/// How many ticks stand between two major ones; 0 when that cannot be drawn.
double countOf(const Node& minorTicks, Notes& notes) {
  const std::string_view text = minorTicks.attribute("number");
  if (text.empty()) return 1;
  const double count = numberOf(text);
  if (count >= 1 && count <= most) return count;
  if (count != 0)
    notes.add(fmt::format("{}: number=\"{}\" is not drawn", minorTicks.name(), shown(text)));
  return 0;
}

} // namespace

void addMinorTicks(const Json& major, const Node& minorTicks, const Dimension& dimension,
                   Context& context) {
  const bool isEven = !dimension.categorical && dimension.type == ScaleType::linear;
  const Json values = major.value("values", Json::array());
  if (!isEven || values.size() < 2) {
    context.notes.add(
        fmt::format("the minor ticks of {} are not drawn: its scale is not even", dimension.role));
    return;
  }
  const double count = countOf(minorTicks, context.notes);
  if (count == 0) return;
  const double first = values[0].get<double>();
  const double step = (values[1].get<double>() - first) / (std::floor(count) + 1);
  Json places = Json::array();
  // From below the first major tick to the end of the scale.
  const double start = std::ceil((dimension.low - first) / step);
  for (double i = start; first + i * step <= dimension.high; ++i)
    places.push_back(jsonNumber(first + i * step));
  context.parts.axes.push_back(
      {{"scale", dimension.role},
       {"orient", major["orient"]},
       {"values", std::move(places)},
       {"domain", false},
       {"labels", false},
       {"grid", minorTicks.child("gridLines") != nullptr},
       {"ticks", major["ticks"]},
       {"tickSize", jsonNumber(tickLength(minorTicks, usualLength, context.notes))}});
}

} // namespace render
