#include "DisplayText.h"

#include <algorithm>

#include <host/ChartBase.h>
#include <host/Formatter.h>

namespace {

constexpr int textType = 1;
constexpr int widestFormat = 255; ///< a packed format holds no more: all of the text
constexpr int maxDecimals = 16;

} // namespace

std::string displayText(const KORVA_Variable& variable, const OBS& value, int moreDecimals,
                        std::string_view separator) {
  int type = 0;
  int width = 0;
  int decimals = 0;
  variable.GetFormatEx(type, width, decimals);
  if (const int bytes = variable.GetType(); bytes > 0) {
    const int shown = width >= widestFormat ? bytes : std::min(width, bytes);
    return formatter::formattedValue(value, textType, shown, 0);
  }
  if (type == textType) return ChartBase::asString(value.number);
  if (moreDecimals > 0) decimals = std::min(decimals + moreDecimals, maxDecimals);
  return formatter::formattedValue(value, type, width, decimals, separator);
}
