#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>

namespace render {

/// A call that the procedure made: the how-manieth of the chart, and its name.
struct Call {
  unsigned number = 0;
  std::string name{};
};

/// Which calls made the nodes of a chart, as its folder tells.
class Calls {
public:
  /// None where the list is missing or damaged.
  static Calls read(const std::filesystem::path& chartFolder);

  /// The call of a node by its name, or null.
  const Call* find(const std::string& node) const;

private:
  std::unordered_map<std::string, Call> callOfNode_;
};

} // namespace render
