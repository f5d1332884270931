#include "resolve/Notes.h"

#include <algorithm>

namespace render {

void Notes::add(std::string note) {
  if (std::ranges::find(notes_, note) == notes_.end()) notes_.push_back(std::move(note));
}

void Notes::add(host::Finding finding) {
  add(finding.text);
  findings_.push_back(std::move(finding));
}

} // namespace render
