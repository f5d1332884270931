#include "output/ChartReader.h"

#include <memory>
#include <source_location>
#include <utility>

#include <fmt/format.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <host/ChartError.h>
#include <host/Text.h>
#include <host/ZephUni.h>

namespace host {
namespace {

using xercesc::Attributes;
using xercesc::XMLUni;

[[noreturn]] void refuse(std::string_view why,
                         std::source_location where = std::source_location::current()) {
  throw ChartException(fmt::format("can't read the chart document: {}", why), where.file_name(),
                       where.line());
}

std::string attribute(const Attributes& attributes, const XMLCh* name) {
  const XMLCh* value = attributes.getValue(name);
  return value != nullptr ? utf8(value) : std::string();
}

CTVariableTexts variableOf(const Attributes& attributes) {
  CTVariableTexts variable;
  variable.id = attribute(attributes, ZephUni::_id);
  variable.sourceName = attribute(attributes, ZephUni::_sourceName);
  variable.source = attribute(attributes, ZephUni::_source);
  variable.label = attribute(attributes, ZephUni::_label);
  variable.shortLabel = attribute(attributes, ZephUni::_shortLabel);
  variable.categorical = attribute(attributes, ZephUni::_categorical);
  return variable;
}

std::vector<std::pair<std::string, std::string>> allOf(const Attributes& attributes) {
  std::vector<std::pair<std::string, std::string>> all;
  all.reserve(attributes.getLength());
  for (XMLSize_t i = 0; i < attributes.getLength(); ++i)
    all.emplace_back(utf8(attributes.getLocalName(i)), utf8(attributes.getValue(i)));
  return all;
}

/// Variables are children of the document element, their value labels and meta are
/// children of theirs, formats of the meta; everything else passes by.
class ChartHandler final : public xercesc::DefaultHandler {
public:
  explicit ChartHandler(ZephVisualization& chart) : chart_(chart) {}

  const std::string& name() const { return name_; }

  void startElement(const XMLCh*, const XMLCh*, const XMLCh* element,
                    const Attributes& attributes) override {
    const std::u16string_view kind = element;
    if (depth_ == 0) name_ = attribute(attributes, ZephUni::_name);
    if (depth_ == 1) {
      inVariable_ = kind == ZephUni::_variable;
      if (inVariable_) variable_ = variableOf(attributes);
    }
    if (depth_ == 2 && inVariable_) readChild(kind, attributes);
    if (depth_ > 2 && !open_.empty()) {
      open_.back()->push_back({utf8(kind), allOf(attributes), {}});
      open_.push_back(&open_.back()->back().parts);
    }
    ++depth_;
  }

  void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override {
    --depth_;
    if (!open_.empty()) open_.pop_back();
    if (depth_ == 1 && inVariable_) chart_.addVariable(variable_, std::exchange(formats_, {}));
  }

  void setDocumentLocator(const xercesc::Locator* locator) override { locator_ = locator; }

  void startDTD(const XMLCh*, const XMLCh*, const XMLCh*) override {
    refuseAt(*locator_, u"a document type declaration is not allowed");
  }

  void error(const xercesc::SAXParseException& exception) override { fatalError(exception); }
  void fatalError(const xercesc::SAXParseException& exception) override {
    refuseAt(exception, exception.getMessage());
  }

private:
  void readChild(std::u16string_view kind, const Attributes& attributes) {
    if (kind == ZephUni::_relabel)
      variable_.categories.emplace_back(attribute(attributes, ZephUni::_from),
                                        attribute(attributes, ZephUni::_to));
    if (kind != u"meta") return;
    variable_.description = attribute(attributes, ZephUni::_description);
    open_.push_back(&formats_);
  }

  template <class Place>
  [[noreturn]] static void refuseAt(const Place& place, std::u16string_view why) {
    refuse(fmt::format("line {}, column {}: {}", place.getLineNumber(), place.getColumnNumber(),
                       utf8(why)));
  }

  const xercesc::Locator* locator_ = nullptr;
  ZephVisualization& chart_;
  CTVariableTexts variable_; ///< the one that is being read, and its formats
  std::vector<CTFormatType> formats_;
  std::vector<std::vector<CTFormatType>*> open_; ///< where parts of open elements go
  std::string name_;
  std::size_t depth_ = 0;
  bool inVariable_ = false;
};

/// The parser's platform counts its users.
class XmlPlatform {
public:
  XmlPlatform() { xercesc::XMLPlatformUtils::Initialize(); }
  ~XmlPlatform() { xercesc::XMLPlatformUtils::Terminate(); }
  XmlPlatform(const XmlPlatform&) = delete;
  XmlPlatform& operator=(const XmlPlatform&) = delete;
};

void parse(const std::string& xml, ChartHandler& handler) {
  xercesc::MemBufInputSource text(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(),
                                  u"chart document");
  text.setCopyBufToStream(false);
  const std::unique_ptr<xercesc::SAX2XMLReader> reader(
      xercesc::XMLReaderFactory::createXMLReader());
  reader->setFeature(XMLUni::fgSAX2CoreValidation, false);
  reader->setFeature(XMLUni::fgXercesSchema, false);
  reader->setFeature(XMLUni::fgXercesLoadExternalDTD, false);
  reader->setFeature(XMLUni::fgXercesDisableDefaultEntityResolution, true);
  reader->setContentHandler(&handler);
  reader->setErrorHandler(&handler);
  reader->setLexicalHandler(&handler);
  reader->parse(text);
}

} // namespace

std::string readChart(const std::string& xml, ZephVisualization& chart) {
  const XmlPlatform platform;
  ChartHandler handler(chart);
  try {
    parse(xml, handler);
  } catch (const xercesc::XMLException& exception) {
    refuse(utf8(exception.getMessage()));
  } catch (const xercesc::OutOfMemoryException&) {
    refuse("out of memory");
  }
  return handler.name();
}

} // namespace host
