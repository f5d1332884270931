#pragma once

namespace host {

/// The version of this library, "1.2.3".
const char* libraryVersion();

} // namespace host
