#include "translate/Cell.h"

namespace render {

Json cellOf(const Variable& variable, std::size_t row) {
  if (variable.isMissing(row)) return nullptr;
  if (variable.categorical) return (*variable.texts)[row];
  return jsonNumber(variable.numbers[row]);
}

} // namespace render
