#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// Takes one text of a table; both views live as long as the call.
using TextTaker = std::function<void(std::string_view key, std::u16string_view text)>;

/// Hands every text of a compiled table, <folder>/<name>.res, to `take`. Beside it
/// lies <name>.res.cksum, what `cksum` prints of it: a table that does not agree with
/// it is not read. Returns nothing on success, else why the table could not be read;
/// nothing was handed over then. A table that was read is not read again in this
/// process.
std::optional<std::string> readResourceTable(const std::string& folder, const std::string& name,
                                             const TextTaker& take);

} // namespace host
