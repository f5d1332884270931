#include "resolve/Notes.h"

#include <algorithm>

namespace render {

void Notes::add(std::string_view key, std::initializer_list<std::string_view> parameters) {
  addText(text(key, parameters));
}

void Notes::add(host::Finding finding) {
  addText(finding.text);
  findings_.push_back(std::move(finding));
}

std::string Notes::text(std::string_view key, std::initializer_list<std::string_view> parameters) {
  if (!words_) words_.emplace(language_, "notes");
  return (*words_)(key, parameters);
}

void Notes::addText(std::string note) {
  if (std::ranges::find(notes_, note) == notes_.end()) notes_.push_back(std::move(note));
}

} // namespace render
