#include <chartxml/Role.h>

#include <array>

// A number outside the table falls back to the empty name without a report:
// callers check roles themselves, with the line of the call at hand.
const char* Role::getString(int role) {
  static constexpr std::array names{"", "x", "y", "z", "r", "theta", "phi", "position"};
  return names[role >= first && role <= last ? static_cast<std::size_t>(role) : 0];
}
