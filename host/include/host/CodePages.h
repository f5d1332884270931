#pragma once

#include <string>
#include <string_view>

#include <host/Export.h>

/// The name of the process code page: "UTF-8", spelled so, unless the host program
/// says otherwise.
KORVA_API const char* KORVAMBDefaultCodePage();

/// UTF-16 as bytes of the process code page.
KORVA_API std::string KORVAMBTranscodeGeneric(std::u16string_view text);

/// The longest prefix of at most `maxLength` bytes of a text in the process code
/// page that cuts no character, combined characters included; empty for a length below 1.
KORVA_API std::string KORVAMBStringTruncate_A(std::string_view text, int maxLength);

namespace host {

/// Sets the process code page by any name that ChartTranscoder takes. False, and no
/// change, for a name that is not known. A registry that already runs keeps the page
/// it started with.
KORVA_API bool setProcessCodePage(std::string_view name);

} // namespace host
