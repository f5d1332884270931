#include <chartxml/Chart.h>

#include <array>

#include <fmt/format.h>
#include <xercesc/dom/DOMNodeList.hpp>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLString.hpp>

#include "../Report.h"
#include "ChildOrder.h"
#include "KindsBelow.h"
#include "NodeRule.h"
#include "Nodes.h"
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;
using xercesc::XMLChar1_0;
using xercesc::XMLString;

namespace {

constexpr int handleTableSize = 89;

bool isHighSurrogate(XMLCh c) { return c >= 0xD800 && c <= 0xDBFF; }

// The length of the legal character at `at`: 1, 2 for a surrogate pair, or 0.
std::size_t legalLength(std::u16string_view text, std::size_t at) {
  const XMLCh c = text[at];
  if (isHighSurrogate(c)) {
    return at + 1 < text.size() && XMLChar1_0::isXMLChar(c, text[at + 1]) ? 2 : 0;
  }
  return XMLChar1_0::isXMLChar(c) ? 1 : 0;
}

bool isLegal(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = legalLength(text, i);
    if (length == 0) return false;
    i += length;
  }
  return true;
}

} // namespace

Chart::Chart(int chartHandle, ChartStringHandler* stringHandler)
    : elements_(handleTableSize), errorHandler_(std::make_unique<ChartErrorHandler>()),
      stringHandler_(stringHandler), chartHandle_(chartHandle),
      dataProcessor_(std::make_unique<VarDataProcessor>()),
      childOrder_(std::make_unique<ChildOrder>()), kindsBelow_(std::make_unique<KindsBelow>()) {}

// The table owns its keys only; the elements are the document's.
Chart::~Chart() {
  releaseDocument(document_);
  elements_.clearKey();
}

bool Chart::CreateChart() {
  printDebugInfo("CreateChart");
  document_ = createDocument(_utf8);
  if (!document_) return false;

  putUnderHandle(elements_, 0, document_->getDocumentElement());
  styleContainer_ = &makeElement(ZephUni::_style);
  AddID(*styleContainer_, _container);
  repositoryStyleCycle_ = addNamedCycle(_styleCycleRepository);
  defaultStyleCycle_ = addNamedCycle(_styleCycleDefault);
  return true;
}

// Handles

int Chart::mapElement(DOMElement* element, Where where) {
  putUnderHandle(elements_, nextHandle_, element);
  makers_.push_back(makerNow(where));
  return nextHandle_++;
}

DOMElement* Chart::getElement(int handle) const {
  if (handle < 0 || handle >= nextHandle_) return nullptr;
  const ChartKey key = ChartKey::ofHandle(handle);
  const auto* pair = elements_.get(&key);
  return pair ? pair->getValue() : nullptr;
}

int Chart::getHandle(const DOMElement* element) const {
  for (; handlesNoted_ < nextHandle_; ++handlesNoted_) {
    handles_.try_emplace(getElement(handlesNoted_), handlesNoted_);
  }
  const auto found = handles_.find(element);
  return found == handles_.end() ? -1 : found->second;
}

int Chart::AddEmptyElement(DOMElement& parent, const XMLCh* name, DOMElement*& out) {
  out = &makeElement(name);
  const int handle = append(parent, *out);
  kindsBelow_->noteAny(*out);
  return handle;
}

int Chart::AddDescription(int parent, int name) {
  const Where here = Where::current();
  if (!validHandle(parent, "parent") || !validString(name, "name", here)) return -1;
  DOMElement* target = getElement(parent);
  if (!target) return -1;
  DOMElement& description = makeElement(ZephUni::_description);
  setText(description, ZephUni::_name, name);
  return append(*target, description);
}

int Chart::CopyAttributes(int from, int to) {
  if (!validHandle(from, "fromElement") || !validHandle(to, "toElement")) return -1;
  const DOMElement* source = getElement(from);
  DOMElement* target = getElement(to);
  if (!source || !target) return -1;
  mergeAttributes(*source, *target);
  noteRole(*target);
  return 0;
}

xercesc::DOMNode* Chart::findNodeById(const xercesc::DOMNodeList& nodes, const XMLCh* id) {
  xercesc::DOMNode* node = nodes.item(0);
  const xercesc::DOMNode* parent = node ? node->getParentNode() : nullptr;
  const bool areChildren = parent && parent->getChildNodes() == &nodes;
  XMLSize_t i = 0;
  const auto hasId = [id](const xercesc::DOMNode& at) {
    return at.getNodeType() == xercesc::DOMNode::ELEMENT_NODE &&
           hasValue(static_cast<const DOMElement&>(at), ZephUni::_id, id);
  };
  // Children are asked for their siblings: asking the list for each is quadratic.
  while (node && !hasId(*node))
    node = areChildren ? node->getNextSibling() : nodes.item(++i);
  return node;
}

DOMElement* Chart::findStyle(const DOMElement& parent, const XMLCh* id) {
  for (DOMElement* child = parent.getFirstElementChild(); child;
       child = child->getNextElementSibling()) {
    if (isNamed(*child, ZephUni::_style) && hasValue(*child, ZephUni::_id, id)) return child;
  }
  return nullptr;
}

bool Chart::insertBeforeSiblings(DOMElement& parent, DOMElement& child, ConstChartStringSet names) {
  const xercesc::DOMNode* former = child.getParentNode();
  if (former && former->getNodeType() == xercesc::DOMNode::ELEMENT_NODE) childOrder_->remove(child);
  childOrder_->insert(parent, child, names);
  kindsBelow_->noteAny(child);
  return true;
}

// Settings

int Chart::SetChartType(PostProcessingChartType type) {
  if (type != 1 && type != 2) return -1;
  chartType_ = type;
  return 1;
}

int Chart::SetChartTemplate(const std::string& name) {
  if (name.empty()) return -1;
  chartTemplate_ = name;
  return 0;
}

int Chart::SetNumberFormatMinFractionDigits(int /*numberFormat*/, int /*digits*/) { return -1; }

void Chart::AddGraphName(const XMLCh* name) {
  if (!name) return;
  document_->getDocumentElement()->setAttribute(ZephUni::_name,
                                                legalText(name, XMLString::stringLen(name)));
}

int Chart::CreateChartDescription(int string) {
  if (!validString(string, "description", Where::current())) return -1;
  description_ = stringHandler_->getXMLString(string);
  return description_.empty() ? -1 : 0;
}

int Chart::SetSplitHeader(int string) {
  splitHeader_ = stringHandler_->getXMLString(string);
  return splitHeader_.empty() ? -1 : 0;
}

// Making nodes

DOMElement& Chart::makeElement(const XMLCh* name) { return *document_->createElement(name); }

DOMElement& Chart::appendElement(DOMElement& parent, const XMLCh* name) {
  DOMElement& child = makeElement(name);
  childOrder_->append(parent, child);
  return child;
}

int Chart::append(DOMElement& parent, DOMElement& child, Where where) {
  childOrder_->append(parent, child);
  return mapElement(&child, where);
}

int Chart::place(DOMElement& parent, DOMElement& child, ConstChartStringSet before, Where where) {
  childOrder_->insert(parent, child, before);
  return mapElement(&child, where);
}

int Chart::addChild(int parent, const ChildRule& rule, Where where) {
  if (!valid(parent, rule.parent, where)) return -1;
  DOMElement* target = accepted(parent, rule.parent, where);
  if (!target) return -1;
  DOMElement& child = makeElement(rule.name);
  return rule.before.empty() ? append(*target, child, where)
                             : place(*target, child, rule.before, where);
}

// A node that leaves the tree stays alive, because its handle does, but its id and
// those below it become free again.
void Chart::takeOut(DOMElement& child) {
  childOrder_->remove(child);
  releaseIDs(child);
}

// Writing texts

// A character that XML does not allow would make the finished chart unsendable:
// it becomes U+FFFD here, where texts enter the document, and nowhere earlier.
// The result is good until the next call.
const XMLCh* Chart::legalText(const XMLCh* text, std::size_t length) {
  const std::u16string_view all(text, length);
  if (isLegal(all)) return text;

  scratch_.clear();
  for (std::size_t i = 0; i < length;) {
    const std::size_t legal = legalLength(all, i);
    if (legal == 0) {
      scratch_ += u'\uFFFD';
      ++i;
    } else {
      scratch_.append(all, i, legal);
      i += legal;
    }
  }
  if (!illegalTextTold_) {
    illegalTextTold_ = true;
    report(fmt::format("characters that XML does not allow were replaced in the texts of chart "
                       "{} - {}",
                       chartHandle_, host::utf8(scratch_)),
           Where::current());
  }
  return scratch_.c_str();
}

const XMLCh* Chart::legalText(int string) {
  const std::u16string& text = stringHandler_->getXMLString(string).text();
  return legalText(text.c_str(), text.size());
}

// A text's two characters backslash and "n" break it into lines.
std::u16string Chart::brokenIntoLines(int string) {
  ChartString text = stringHandler_->getXMLString(string);
  text.unescapeLineFeeds();
  return legalText(text.c_str(), text.text().size());
}

void Chart::setText(DOMElement& element, const XMLCh* attribute, int string) {
  element.setAttribute(attribute, legalText(string));
}

void Chart::setOptionalText(DOMElement& element, const XMLCh* attribute, int string) {
  if (string != -1) setText(element, attribute, string);
}

void Chart::setFlag(DOMElement& element, const XMLCh* attribute, bool on) {
  element.setAttribute(attribute, on ? ZephUni::_true : ZephUni::_false);
}

int Chart::setAttribute(int node, const AttributeRule& rule, const XMLCh* value, Where where) {
  if (!valid(node, rule.node, where)) return -1;
  DOMElement* target = accepted(node, rule.node, where);
  if (!target) return -1;
  target->setAttribute(rule.attribute, value);
  return node;
}

int Chart::setAttributeFlag(int node, const AttributeRule& rule, bool on, Where where) {
  return setAttribute(node, rule, on ? ZephUni::_true : ZephUni::_false, where);
}

int Chart::setAttributeText(int node, const AttributeRule& rule, int string, Where where) {
  if (!valid(node, rule.node, where) || !validString(string, rule.textNoun, where)) return -1;
  DOMElement* target = accepted(node, rule.node, where);
  if (!target) return -1;
  setText(*target, rule.attribute, string);
  return node;
}

bool Chart::isValidXMLString(const ChartString& text) { return isLegal(text.text()); }
