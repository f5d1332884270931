#include <array>
#include <bit>
#include <cstring>

#include <host/Data.h>

namespace {

using NumberBytes = std::array<char, sizeof(double)>;

/// Equal numbers have equal keys: both zeros are one.
NumberBytes keyOf(double number) { return std::bit_cast<NumberBytes>(number == 0 ? 0.0 : number); }

std::string_view view(const NumberBytes& bytes) { return {bytes.data(), bytes.size()}; }

std::string_view withoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

} // namespace

void host::writeText(std::string_view text, int width, OBS* cells) {
  const std::size_t room = static_cast<std::size_t>(cellsOfWidth(width)) * sizeof(OBS);
  char* bytes = reinterpret_cast<char*>(cells);
  const std::size_t taken = text.copy(bytes, static_cast<std::size_t>(width));
  std::memset(bytes + taken, ' ', room - taken);
}

bool KORVA_ValueLabelMap::add(double value, std::string label) {
  return add(view(keyOf(value)), {OBS{.number = value}}, std::move(label));
}

bool KORVA_ValueLabelMap::add(std::string_view value, std::string label) {
  std::vector<OBS> cells(static_cast<std::size_t>(host::cellsOfWidth(width_)));
  host::writeText(value, width_, cells.data());
  return add(withoutTrailingBlanks(value), std::move(cells), std::move(label));
}

bool KORVA_ValueLabelMap::add(std::string_view key, std::vector<OBS> value, std::string label) {
  if (!positions_.try_emplace(std::string(key), pairs_.size()).second) return false;
  pairs_.push_back({std::move(value), std::move(label)});
  return true;
}

const char* KORVA_ValueLabelMap::GetLabel(const OBS& value) const {
  if (pairs_.empty()) return nullptr;
  const NumberBytes number = width_ == 0 ? keyOf(value.number) : NumberBytes{};
  const std::string_view key = width_ == 0
                                   ? view(number)
                                   : withoutTrailingBlanks({reinterpret_cast<const char*>(&value),
                                                            static_cast<std::size_t>(width_)});
  const auto found = positions_.find(key);
  return found == positions_.end() ? nullptr : pairs_[found->second].label.c_str();
}

bool KORVA_ValueLabelMap::GetNextPair(int& position, const OBS*& value, const char*& label) const {
  if (position < 0 || position >= Size()) return false;
  const Pair& pair = pairs_[static_cast<std::size_t>(position++)];
  value = pair.value.data();
  label = pair.label.c_str();
  return true;
}
