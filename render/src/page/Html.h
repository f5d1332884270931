#pragma once

#include <string>
#include <string_view>

namespace render {

/// A text as HTML shows it, in an element or a quoted attribute.
std::string escapeHtml(std::string_view utf8);

/// JSON text for a script element: nothing in it can end the element, and it
/// reads back to the same value.
std::string escapeScript(std::string_view json);

/// A path as a URL, relative to a page beside it.
std::string escapeUrl(std::string_view path);

/// The first lines of every page, up to the begin of its body. `policy` is the
/// content-security policy, `more` what else the head of the page holds.
std::string pageHead(std::string_view language, std::string_view title, std::string_view policy,
                     std::string_view more = {});

} // namespace render
