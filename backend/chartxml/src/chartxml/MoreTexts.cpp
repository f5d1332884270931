// Texts that go out of the library, and the tables that texts come from.
#include "EntryCall.h"

#include <algorithm>
#include <string_view>

#include <chartxml/EntryPoints.h>

using namespace entry;

namespace {

// As much of the text as fits; its whole length is the answer.
int64_t copyOut(std::string_view text, char* buffer, const int64_t* capacity) {
  if (buffer && capacity && *capacity > 0) text.copy(buffer, static_cast<std::size_t>(*capacity));
  return static_cast<int64_t>(text.size());
}

} // namespace

int64_t chartxml_gettext_(const int64_t* string, char* buffer, const int64_t* bufferCapacity) {
  return guarded(__func__, [&](ChartXml& registry) -> int64_t {
    return copyOut(registry.getUTF8String(integer(string)), buffer, bufferCapacity);
  });
}

int64_t chartxml_getxml_(const int64_t* chart, char* buffer, const int64_t* bufferCapacity) {
  return guarded(__func__, [&](ChartXml& registry) -> int64_t {
    const std::string document = registry.GetXmlBuffer(integer(chart));
    return document.empty() ? -1 : copyOut(document, buffer, bufferCapacity);
  });
}

int64_t chartxml_setprocedure_(const int64_t* chart, const char* procedureName,
                               const int64_t* procedureNameLength) {
  return call(__func__, &ChartXml::SetProcedure, chart, Text{procedureName, procedureNameLength});
}

int64_t chartxml_setglobalstringtable_(const char* path, const int64_t* pathLength) {
  return guarded(__func__, [&](ChartXml& registry) {
    registry.SetGlobalStringTable(Text{path, pathLength}.read());
    return 0;
  });
}

int64_t chartxml_resetstrings_() { return call(__func__, &ChartXml::ResetStrings); }
