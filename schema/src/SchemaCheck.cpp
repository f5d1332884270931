#include <schema/SchemaCheck.h>

#include <stdexcept>

#include <fmt/format.h>
#include <host/StringTables.h>
#include <host/Text.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include "Findings.h"

namespace schema {
namespace {

using xercesc::XMLPlatformUtils;
using xercesc::XMLUni;

/// The parser's platform counts its users.
struct XmlPlatform {
  XmlPlatform() { XMLPlatformUtils::Initialize(); }
  ~XmlPlatform() { XMLPlatformUtils::Terminate(); }
  XmlPlatform(const XmlPlatform&) = delete;
  XmlPlatform& operator=(const XmlPlatform&) = delete;
};

/// Throws what is wrong with the grammar itself.
struct RefuseGrammar final : xercesc::DefaultHandler {
  void warning(const xercesc::SAXParseException& exception) override { error(exception); }
  void fatalError(const xercesc::SAXParseException& exception) override { error(exception); }
  void error(const xercesc::SAXParseException& exception) override {
    const std::string why = host::utf8(exception.getMessage());
    // A file that cannot be opened has no lines, and is named in the message.
    if (exception.getLineNumber() == 0) throw std::runtime_error(why);
    throw std::runtime_error(fmt::format("{}:{}:{}: {}", host::utf8(exception.getSystemId()),
                                         exception.getLineNumber(), exception.getColumnNumber(),
                                         why));
  }
};

} // namespace

struct SchemaCheck::Grammar {
  std::unique_ptr<xercesc::SAX2XMLReader> reader() {
    std::unique_ptr<xercesc::SAX2XMLReader> made(
        xercesc::XMLReaderFactory::createXMLReader(XMLPlatformUtils::fgMemoryManager, &pool));
    made->setFeature(XMLUni::fgSAX2CoreValidation, true);
    made->setFeature(XMLUni::fgXercesDynamic, false);
    made->setFeature(XMLUni::fgXercesSchema, true);
    return made;
  }

  void read(const std::filesystem::path& file) {
    RefuseGrammar refuse;
    const auto loader = reader();
    loader->setFeature(XMLUni::fgXercesSchemaFullChecking, true);
    loader->setErrorHandler(&refuse);
    const std::u16string name = host::utf16(file.native());
    if (!loader->loadGrammar(name.c_str(), xercesc::Grammar::SchemaGrammarType, true))
      throw std::runtime_error(fmt::format("{}: no grammar in this file", file.native()));
    pool.lockPool();
  }

  XmlPlatform platform;
  xercesc::XMLGrammarPoolImpl pool;
};

SchemaCheck::SchemaCheck()
    : SchemaCheck(std::filesystem::path(host::shareFolder()) / "schema/chart.xsd") {}

SchemaCheck::SchemaCheck(const std::filesystem::path& grammar)
    : grammar_(std::make_unique<Grammar>()) {
  try {
    grammar_->read(grammar);
  } catch (const xercesc::XMLException& exception) {
    throw std::runtime_error(
        fmt::format("{}: {}", grammar.native(), host::utf8(exception.getMessage())));
  }
}

SchemaCheck::~SchemaCheck() = default;

std::vector<std::string> SchemaCheck::findings(std::string_view xml) const {
  xercesc::MemBufInputSource text(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(),
                                  u"chart document");
  text.setCopyBufToStream(false);
  Findings found;
  const auto reader = grammar_->reader();
  reader->setFeature(XMLUni::fgXercesUseCachedGrammarInParse, true);
  // A document brings neither a grammar nor other files along.
  reader->setFeature(XMLUni::fgXercesLoadSchema, false);
  reader->setFeature(XMLUni::fgXercesLoadExternalDTD, false);
  reader->setFeature(XMLUni::fgXercesDisableDefaultEntityResolution, true);
  reader->setContentHandler(&found);
  reader->setErrorHandler(&found);
  reader->setLexicalHandler(&found);
  try {
    reader->parse(text);
  } catch (const EndOfReading&) {
    found.flush();
  } catch (const xercesc::XMLException& exception) {
    found.add(host::utf8(exception.getMessage()));
  } catch (const xercesc::OutOfMemoryException&) {
    found.add("out of memory");
  }
  return found.take();
}

} // namespace schema
