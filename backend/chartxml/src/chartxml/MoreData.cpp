// Whole columns of data in one call.
#include "EntryCall.h"

#include <span>
#include <string_view>
#include <vector>

#include <chartxml/EntryPoints.h>

using namespace entry;

namespace {

template <class Value> std::size_t countOf(const Value* first, const int64_t* count) {
  return first && count && *count > 0 ? static_cast<std::size_t>(*count) : 0;
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

} // namespace

int64_t chartxml_loadnumbers_(const int64_t* chart, const int64_t* variable,
                              const int64_t* firstRow, const double* numbers,
                              const int64_t* numberCount) {
  return guarded(__func__, [&](ChartXml& registry) {
    return registry.LoadNumbers(integer(chart), integer(variable), integer(firstRow),
                                std::span(numbers, countOf(numbers, numberCount)));
  });
}

// The texts stand one behind the other, filled up with blanks to one length.
int64_t chartxml_loadtexts_(const int64_t* chart, const int64_t* variable, const int64_t* firstRow,
                            const char* texts, const int64_t* textsLength,
                            const int64_t* textCount) {
  return guarded(__func__, [&](ChartXml& registry) {
    const std::size_t length = countOf(texts, textsLength);
    std::vector<std::string_view> cells(countOf(texts, textCount));
    for (std::size_t i = 0; i < cells.size(); ++i)
      cells[i] = withoutTrailingBlanks({texts + i * length, length});
    return registry.LoadTexts(integer(chart), integer(variable), integer(firstRow), cells);
  });
}
