#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "translate/Translator.h"

/// What the marks of all elements share.
namespace render {

/// The properties of Vega's marks along a role.
struct Channels {
  const char* start;
  const char* end;
  const char* middle;
  const char* length;
};
Channels channelsOf(std::string_view role, const Chart& chart);

/// Whether a role lies across the plot, not up and down.
bool isAcross(std::string_view role, const Chart& chart);

/// The role of an element's places, and that of what it measures.
std::string_view placeRole(const Element& element);
std::string_view measureRole(const Element& element);

/// What an element draws in the panel, as a data set named by inPanel() of its id. Rows
/// as they are come from their source. Other data hold for each item its categories and,
/// as far as they have a meaning, "place", "from" and "to", "low" and "high", "value",
/// "part", "member" and "slot".
Json elementData(const Element& element, const Context& context);

/// The position of a datum of the element: of a point, or of the upper end of a bar.
Json positions(const Element& element, const Context& context);

/// The position along one role, by a field of an item where the role is continuous.
Json position(const Element& element, std::string_view role, std::string_view field,
              const Context& context);

/// The color of the element's group, or its own when it has none; that of the value
/// of its shade. Adds the scale of the color.
Json color(const Element& element, Context& context);

/// The items of an element that have a place in the panel, in the order of their data.
std::vector<const Item*> drawnItems(const Element& element, const Context& context);

/// The groups of an element that dodges, which stand side by side; all panels have the same.
std::set<double> slotsOf(const Element& element, const Context& context);

/// How many slots a category has for an element that dodges.
std::size_t slotCount(const Element& element, const Context& context);

/// Moves a mark into the slot of its group: the part of a band that is left of it, added
/// as the offset of `channel`. `share` is the part of the band that slots fill.
void addSlotOffset(Json& channel, const Element& element, double share, const Context& context);

/// Whether what reaches over the edge of the plot is cut off.
bool isClipped(const Chart& chart);

/// Adds a mark for the items of an element, in groups where `isSplit` says that a mark
/// joins what belongs together.
void addMark(const Element& element, Json mark, bool isSplit, Context& context);

/// A text mark on the paper around its letters, which can be read on whatever it lies: two
/// marks, one under the other.
void addOnPaper(Json text, Json& marks);

/// Writes the values of an element's labelings at its marks, or at the outliers of a box
/// plot, which "part" names.
void addLabels(const Element& element, Context& context);
void addOutlierLabels(const Element& element, const char* part, Context& context);

/// Writes them where the marks would be that the style hides.
void addLabelsAlone(const Element& element, Context& context);

} // namespace render
