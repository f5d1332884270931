#pragma once

#include <cstdint>
#include <string>

#include "../CallScope.h"
#include <chartxml/ChartXml.h>
#include <host/Missing.h>

/// How an entry point reaches the registry: arguments come by address, integers in
/// 64 bits, and no exception leaves but the one that hands control back to the
/// calling procedure.
namespace entry {

/// Bytes and their number.
struct Text {
  const char* first;
  const std::int64_t* length;

  std::string read() const {
    if (!first || !length || *length <= 0) return {};
    return {first, static_cast<std::size_t>(*length)};
  }
};

/// Only the low 32 bits count. A missing address is a missing argument.
inline int integer(const std::int64_t* value) {
  return value ? static_cast<std::int32_t>(*value) : -1;
}

/// An optional integer; all 64 bits tell whether it is absent.
inline bool isGiven(const std::int64_t* value) { return value && *value != -1; }

inline bool logical(const std::int64_t* value) { return value && *value != 0; }

/// How a parameter of the registry is read from what the procedure passed.
template <class Parameter> struct Argument;
template <> struct Argument<int> {
  static int read(const std::int64_t* value) { return integer(value); }
};
template <> struct Argument<bool> {
  static bool read(const std::int64_t* value) { return logical(value); }
};
template <> struct Argument<const int&> : Argument<int> {};
template <> struct Argument<long> : Argument<int> {};
template <> struct Argument<const double&> {
  static const double& read(const double* value) { return value ? *value : host::systemMissing; }
};
template <> struct Argument<double> : Argument<const double&> {};
template <> struct Argument<const std::string&> {
  static std::string read(const Text& text) { return text.read(); }
};
template <> struct Argument<const OBS&> {
  static const OBS& read(const void* cells) {
    static constexpr OBS missing{host::systemMissing};
    return cells ? *static_cast<const OBS*>(cells) : missing;
  }
};

template <> struct Argument<const OBS*> {
  static const OBS* read(const void* cells) { return static_cast<const OBS*>(cells); }
};

/// Reports the exception being handled, with the entry point that met it.
void reportException(const char* entryPoint);

/// Runs the body of an entry point that needs no registry; -1 when it throws, which is
/// reported.
template <class Body> std::int64_t caught(const char* entryPoint, Body body) {
  const CallScope running(entryPoint);
  try {
    return body();
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (...) {
    reportException(entryPoint);
    return -1;
  }
}

/// Runs the body of any other entry point, on the registry.
template <class Body> std::int64_t guarded(const char* entryPoint, Body body) {
  return caught(entryPoint, [&] { return body(*ChartXml::GetInstance()); });
}

template <class... Parameters, class... Arguments>
std::int64_t call(const char* entryPoint, int (ChartXml::*operation)(Parameters...),
                  const Arguments&... arguments) {
  return guarded(entryPoint, [&](ChartXml& registry) {
    return (registry.*operation)(Argument<Parameters>::read(arguments)...);
  });
}

/// The dictionary behind its address; null when either is missing.
inline KORVA_FortranDictionary* dictionaryAt(void* const* address) {
  return address ? static_cast<KORVA_FortranDictionary*>(*address) : nullptr;
}

/// Fills an output argument and passes the value on.
inline std::int64_t store(std::int64_t* out, std::int64_t value) {
  if (out) *out = value;
  return value;
}

} // namespace entry
