#include "output/Pattern.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <utility>

namespace host {
namespace {

using Texts = std::span<const Wording>;

constexpr char escape = '\\';
constexpr char plainSign = '^';
constexpr char firstGroupSign = '%';
constexpr char laterGroupSign = '^';

struct Number {
  std::size_t value; ///< the highest there is when the digits say more
  std::size_t end;   ///< where the digits end
};

std::optional<Number> numberAt(std::string_view text, std::size_t begin) {
  std::size_t value = 0;
  const char* const first = text.data() + begin;
  const auto [end, error] = std::from_chars(first, text.data() + text.size(), value);
  if (end == first) return std::nullopt;
  if (error != std::errc()) value = std::numeric_limits<std::size_t>::max();
  return Number{value, static_cast<std::size_t>(end - text.data())};
}

/// Walks a pattern that has no repeat lists.
template <class OnCharacter, class OnParameter>
void walk(std::string_view pattern, char sign, OnCharacter onCharacter, OnParameter onParameter) {
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    if (pattern[at] == sign) {
      if (const auto number = numberAt(pattern, at + 1)) {
        onParameter(number->value);
        at = number->end - 1;
        continue;
      }
    }
    if (pattern[at] == escape && at + 1 < pattern.size()) ++at;
    onCharacter(pattern[at]);
  }
}

/// "[A:B:]n" at its place in a pattern.
struct RepeatList {
  std::size_t begin, end;
  std::string_view first, later;
  std::size_t number;
};

std::optional<RepeatList> findRepeatList(std::string_view pattern) {
  std::size_t begin = 0;
  std::vector<std::size_t> colons;
  bool isOpen = false;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const char c = pattern[at];
    if (c == escape) {
      ++at;
    } else if (c == '[') {
      isOpen = true;
      begin = at;
      colons.clear();
    } else if (c == ':' && isOpen) {
      colons.push_back(at);
    } else if (c == ']' && colons.size() == 2 && colons[1] + 1 == at) {
      const auto number = numberAt(pattern, at + 1);
      if (!number) continue;
      return RepeatList{begin, number->end, pattern.substr(begin + 1, colons[0] - begin - 1),
                        pattern.substr(colons[0] + 1, colons[1] - colons[0] - 1), number->value};
    }
  }
  return std::nullopt;
}

class Assembler {
public:
  explicit Assembler(std::string Wording::* wording) : wording_(wording) {}

  void append(std::string_view pattern, char sign, Texts parameters) {
    if (!spend(pattern.size() + 1)) return;
    walk(
        pattern, sign, [&](char c) { text_ += c; },
        [&](std::size_t number) {
          if (number < 1 || number > parameters.size()) return;
          const std::string& parameter = parameters[number - 1].*wording_;
          if (spend(parameter.size())) text_ += parameter;
        });
  }

  void append(const RepeatList& list, Texts parameters) {
    const std::size_t length = groupLength(list);
    std::string_view pattern = list.first;
    char sign = firstGroupSign;
    while (!parameters.empty() && spent_ <= mostAssembled) {
      const Texts group = parameters.first(std::min(length, parameters.size()));
      append(pattern, sign, group);
      parameters = parameters.subspan(group.size());
      pattern = list.later;
      sign = laterGroupSign;
    }
  }

  std::optional<std::string> take() {
    if (spent_ > mostAssembled) return std::nullopt;
    return std::move(text_);
  }

private:
  // A text that parameters repeat can double with every composite that it goes
  // through: work is counted, so that none takes all memory, or all time.
  bool spend(std::size_t bytes) {
    spent_ += bytes;
    return spent_ <= mostAssembled;
  }

  static std::size_t groupLength(const RepeatList& list) {
    std::size_t highest = 1;
    const auto ignore = [](char) {};
    const auto compare = [&](std::size_t number) { highest = std::max(highest, number); };
    walk(list.first, firstGroupSign, ignore, compare);
    walk(list.later, laterGroupSign, ignore, compare);
    return highest;
  }

  std::string Wording::* wording_;
  std::string text_;
  std::size_t spent_ = 0;
};

} // namespace

std::optional<std::string> assemble(std::string_view pattern, const PatternParameters& parameters,
                                    std::string Wording::* wording) {
  Assembler assembler(wording);
  while (const auto list = findRepeatList(pattern)) {
    assembler.append(pattern.substr(0, list->begin), plainSign, parameters.plain);
    if (list->number >= 1 && list->number <= parameters.lists.size())
      assembler.append(*list, parameters.lists[list->number - 1]);
    pattern.remove_prefix(list->end);
  }
  assembler.append(pattern, plainSign, parameters.plain);
  return assembler.take();
}

} // namespace host
