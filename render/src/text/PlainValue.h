#pragma once

#include <memory>
#include <string>

#include <unicode/datefmt.h>

#include "read/ChartFolder.h"
#include "resolve/Format.h"

namespace render {

/// A number in at most four significant digits, all of its integer part unless it is
/// huge, with the language's signs.
std::string roundedText(double value, const NumberSigns& signs);

/// Values as a description tells them: rounded numbers with the prefix and suffix of
/// their format, dates as the language writes them.
class PlainValue {
public:
  PlainValue(const Format& format, const Manifest& manifest);
  std::string operator()(double value) const;

private:
  const Format& format_;
  const Manifest& manifest_;
  std::unique_ptr<icu::DateFormat> dates_; ///< null: not a date
};

} // namespace render
