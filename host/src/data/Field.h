#pragma once

#include <string>
#include <variant>
#include <vector>

#include "data/DisplayFormat.h"

namespace host {

struct Category {
  std::variant<double, std::string> value;
  std::string label;
};

/// One field as a data package describes it; its texts are UTF-8.
struct Field {
  enum class Type { string, number, integer, boolean, date, dateTime, time, year, yearMonth };

  std::string name;
  std::string label;
  Type type = Type::string;
  DisplayFormat format = {};
  std::vector<std::string> missingValues = {""};
  std::vector<Category> categories = {};
};

} // namespace host
