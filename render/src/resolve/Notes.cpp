#include "resolve/Notes.h"

#include <algorithm>

namespace render {

void Notes::add(std::string note) {
  if (std::ranges::find(notes_, note) == notes_.end()) notes_.push_back(std::move(note));
}

} // namespace render
