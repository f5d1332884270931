#pragma once

#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "data/Field.h"

namespace host {

/// The fields of a Table Schema. Throws Refusal, which names the field.
std::vector<Field> fieldsOf(const nlohmann::json& schema);

} // namespace host
