#include "EntryCall.h"

#include <exception>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>

#include <host/Text.h>

namespace {

std::string describeException() {
  try {
    throw;
  } catch (const ChartException& exception) {
    return exception.what();
  } catch (const xercesc::DOMException& exception) {
    return host::utf8(exception.getMessage());
  } catch (const xercesc::XMLException& exception) {
    return host::utf8(exception.getMessage());
  } catch (const xercesc::OutOfMemoryException&) {
    return "out of memory";
  } catch (const std::exception& exception) {
    return exception.what();
  } catch (...) {
    return "unknown exception";
  }
}

} // namespace

void entry::reportException(const char* entryPoint) {
  const std::string reason = describeException();
  ChartErrorHandler::error(
      ChartException(std::string(entryPoint) + " failed - " + reason, __FILE__, __LINE__));
}
