#pragma once

#include <string>
#include <vector>

#include <host/XDocument.h>

namespace host {

/// The display format that comes nearest to what a variable's meta shows, as data
/// packages name it, "F40.2" or "DATE11"; empty when the meta shows a text or nothing.
/// A document does not tell widths: that of a number is the widest.
std::string displayFormatName(const std::vector<CTFormatType>& formats);

} // namespace host
