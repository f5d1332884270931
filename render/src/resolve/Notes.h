#pragma once

#include <string>
#include <vector>

#include <host/Finding.h>

namespace render {

/// What a reader of the picture must know and the picture cannot show: parts of
/// the chart that are not drawn, values that are left out. Each is told once.
class Notes {
public:
  void add(std::string note);
  /// What is told outside of the page too.
  void add(host::Finding finding);
  const std::vector<std::string>& all() const { return notes_; }
  const std::vector<host::Finding>& findings() const { return findings_; }

private:
  std::vector<std::string> notes_;
  std::vector<host::Finding> findings_;
};

} // namespace render
