#include "Extents.h"

#include "EntryCall.h"

int entry::setExtents(ChartXml& registry, int chart, int dimension, const Extents& extents) {
  using SetExtent = int (ChartXml::*)(int, int, int);
  static constexpr std::array<SetExtent, 4> setters{
      &ChartXml::SetDimensionUpperMargin, &ChartXml::SetDimensionLowerMargin,
      &ChartXml::SetDimensionUpperMapping, &ChartXml::SetDimensionLowerMapping};
  for (std::size_t i = 0; i < setters.size(); ++i) {
    if (!isGiven(extents[i])) continue;
    const int set = (registry.*setters[i])(chart, dimension, integer(extents[i]));
    if (set < 0) return set;
  }
  return 0;
}
