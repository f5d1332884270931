#pragma once

#include <string>
#include <vector>

namespace render {

/// What a reader of the picture must know and the picture cannot show: parts of
/// the chart that are not drawn, values that are left out. Each is told once.
class Notes {
public:
  void add(std::string note);
  const std::vector<std::string>& all() const { return notes_; }

private:
  std::vector<std::string> notes_;
};

} // namespace render
