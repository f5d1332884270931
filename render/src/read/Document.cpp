#include "read/Document.h"

#include <fmt/format.h>
#include <host/DataSet.h>
#include <host/RegularFile.h>
#include <host/Text.h>
#include <render/Pages.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>

namespace render {
namespace {

/// Deeper than any chart; a document that goes on is refused, not followed.
constexpr int deepestNesting = 100;

/// The parser's platform counts its users; this one stays until the process ends.
void needXmlPlatform() {
  static const bool up = (xercesc::XMLPlatformUtils::Initialize(), true);
  static_cast<void>(up);
}

class RefuseErrors final : public xercesc::ErrorHandler {
public:
  explicit RefuseErrors(const std::filesystem::path& file) : file_(file) {}
  void warning(const xercesc::SAXParseException&) override {}
  void error(const xercesc::SAXParseException& e) override { refuse(e); }
  void fatalError(const xercesc::SAXParseException& e) override { refuse(e); }
  void resetErrors() override {}

private:
  [[noreturn]] void refuse(const xercesc::SAXParseException& e) const {
    throw RenderError(fmt::format("{}:{}:{}: {}", file_.native(), e.getLineNumber(),
                                  e.getColumnNumber(), host::utf8(e.getMessage())));
  }
  const std::filesystem::path& file_;
};

struct TooDeep {};

/// Throws TooDeep.
Node copyOf(const xercesc::DOMElement& element, int depth) {
  if (depth > deepestNesting) throw TooDeep();
  Node node{.kind = host::utf8(element.getTagName())};
  const xercesc::DOMNamedNodeMap& attributes = *element.getAttributes();
  for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
    const xercesc::DOMNode& attribute = *attributes.item(i);
    node.attributes.emplace_back(host::utf8(attribute.getNodeName()),
                                 host::utf8(attribute.getNodeValue()));
  }
  for (const xercesc::DOMElement* child = element.getFirstElementChild(); child != nullptr;
       child = child->getNextElementSibling())
    node.children.push_back(copyOf(*child, depth + 1));
  if (node.children.empty()) node.text = host::utf8(element.getTextContent());
  return node;
}

std::unique_ptr<Node> readGraph(const std::filesystem::path& file) {
  needXmlPlatform();
  xercesc::SecurityManager limits;
  RefuseErrors errors(file);
  xercesc::XercesDOMParser parser;
  parser.setErrorHandler(&errors);
  parser.setSecurityManager(&limits);
  parser.setValidationScheme(xercesc::XercesDOMParser::Val_Never);
  parser.setLoadExternalDTD(false);
  parser.setDisableDefaultEntityResolution(true);
  parser.setCreateEntityReferenceNodes(false);
  parser.parse(xercesc::LocalFileInputSource(host::utf16(file.native()).c_str()));
  return std::make_unique<Node>(copyOf(*parser.getDocument()->getDocumentElement(), 0));
}

} // namespace

Document Document::read(const std::filesystem::path& file) {
  const auto refuse = [&file](std::string_view reason) {
    throw RenderError(fmt::format("{}: {}", file.native(), reason));
  };
  std::unique_ptr<Node> graph;
  try {
    host::requireRegularFile(file);
    graph = readGraph(file);
  } catch (const host::DataError& e) {
    throw RenderError(e.what());
  } catch (const xercesc::XMLException& e) {
    refuse(host::utf8(e.getMessage()));
  } catch (const TooDeep&) {
    refuse(fmt::format("elements are nested more than {} deep", deepestNesting));
  }
  if (graph->kind != "graph")
    refuse(fmt::format("the document element is \"{}\", not \"graph\"", graph->kind));
  return Document(std::move(graph));
}

Document::Document(std::unique_ptr<Node> graph) : graph_(std::move(graph)) { registerIds(*graph_); }

void Document::registerIds(const Node& node) {
  if (!node.id().empty()) nodeOfId_.try_emplace(node.id(), &node);
  for (const Node& child : node.children)
    registerIds(child);
}

const Node* Document::find(std::string_view id) const {
  const auto found = nodeOfId_.find(id);
  return found == nodeOfId_.end() ? nullptr : found->second;
}

} // namespace render
