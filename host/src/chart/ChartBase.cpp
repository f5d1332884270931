#include <host/ChartBase.h>

#include <cstdlib>

#include <fmt/compile.h>
#include <fmt/format.h>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include <host/ChartError.h>
#include <host/ErrorLog.h>
#include <host/ZephUni.h>

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::XMLPlatformUtils;
using xercesc::XMLString;

namespace {

DOMDocument* newGraph(const XMLCh* encoding) {
  auto* document = xercesc::DOMImplementation::getImplementation()->createDocument(
      nullptr, ZephUni::_graph, nullptr);
  static_cast<xercesc::DOMDocumentImpl*>(document)->setXmlEncoding(encoding);
  return document;
}

// Runs an action on the XML platform and reports what it throws; whether it came
// through.
template <class Action> bool succeeds(const Action& action) {
  try {
    action();
    return true;
  } catch (const xercesc::XMLException& exception) {
    ChartErrorHandler::error(exception);
  } catch (const xercesc::DOMException& exception) {
    ChartErrorHandler::error(exception);
  } catch (const xercesc::OutOfMemoryException&) {
    host::reportError("out of memory for a chart document");
  }
  return false;
}

void releaseID(DOMElement& element) {
  if (element.hasAttribute(ZephUni::_id)) element.setIdAttribute(ZephUni::_id, false);
}

} // namespace

DOMDocument* ChartBase::createDocument(const XMLCh* encoding) {
  if (!succeeds([] { XMLPlatformUtils::Initialize(); })) return nullptr;
  DOMDocument* document = nullptr;
  if (succeeds([&] { document = newGraph(encoding); })) return document;
  XMLPlatformUtils::Terminate();
  return nullptr;
}

void ChartBase::releaseDocument(DOMDocument* document) {
  if (!document) return;
  document->release();
  XMLPlatformUtils::Terminate();
}

void ChartBase::AddID(DOMElement& element, const XMLCh* id) {
  element.setAttribute(ZephUni::_id, id);
  element.setIdAttribute(ZephUni::_id, true);
}

void ChartBase::releaseIDs(DOMElement& root) {
  const auto always = [](const DOMElement&) { return true; };
  releaseID(root);
  for (auto* at = root.getFirstElementChild(); at; at = nextBelow(root, *at, always))
    releaseID(*at);
}

int ChartBase::AddAttribute(DOMElement& element, const XMLCh* name, const XMLCh* value) {
  element.setAttribute(name, value);
  return 0;
}

void ChartBase::mergeAttributes(const DOMElement& from, DOMElement& to) {
  if (&from == &to) return;
  const auto* attributes = from.getAttributes();
  for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
    const auto* attribute = attributes->item(i);
    if (XMLString::equals(attribute->getNodeName(), ZephUni::_id)) continue;
    to.setAttribute(attribute->getNodeName(), attribute->getNodeValue());
  }
}

DOMElement* ChartBase::getChildByTagName(const DOMElement& parent, const XMLCh* name) {
  auto* child = parent.getFirstElementChild();
  while (child && !XMLString::equals(child->getTagName(), name))
    child = child->getNextElementSibling();
  return child;
}

void ChartBase::removeAllChildren(DOMElement& element) {
  for (auto* child = element.getFirstElementChild(); child; child = child->getNextElementSibling())
    releaseIDs(*child);
  while (auto* child = element.getFirstChild())
    element.removeChild(child);
}

std::string ChartBase::asString(double value) { return fmt::format(FMT_COMPILE("{}"), value); }

std::string ChartBase::asString(int value) { return fmt::format_int(value).str(); }

void ChartBase::printDebugInfo(std::string_view text) {
  static const bool isOn = [] {
    const char* trace = std::getenv("CHARTXML_TRACE");
    return trace && std::string_view(trace) == "1";
  }();
  if (isOn) host::writeErrorLine(fmt::format("trace: {}", text));
}
