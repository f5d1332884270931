// Charts with facets and groups: their aesthetics get variables of their own.
#include <chartxml/Chart.h>

#include <algorithm>
#include <cstddef>

#include "Nodes.h"
#include "Placement.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

// An empty value stands for none.
void setOrRemove(DOMElement& element, const XMLCh* attribute, const std::u16string& value) {
  if (value.empty()) {
    element.removeAttribute(attribute);
  } else {
    element.setAttribute(attribute, value.c_str());
  }
}

} // namespace

DOMElement* Chart::getAestheticVariable(DOMElement* variable, bool& made) {
  made = false;
  if (!variable) return nullptr;
  std::u16string id = variable->getAttribute(ZephUni::_id);
  id += _underscore;
  id += _attributes;
  if (DOMElement* known = document_->getElementById(id.c_str())) return known;

  made = true;
  DOMElement& copy = copyWithoutId(*variable);
  for (const DOMElement* child = variable->getFirstElementChild(); child;
       child = child->getNextElementSibling()) {
    if (!isNamed(*child, ZephUni::_relabel)) continue;
    appendRelabel(copy, child->getAttribute(ZephUni::_from), child->getAttribute(ZephUni::_to));
  }
  AddID(copy, id.c_str());
  const auto firstMade = static_cast<std::ptrdiff_t>(makers_.size());
  place(*document_->getDocumentElement(), copy, placement::variableCopy);
  copy.removeAttribute(ZephUni::_domain);
  setCreator(metaOf(copy), _internal_, ZephUni::_variable);
  // Whoever looks for the call that made the variable means the original's.
  if (const int original = getHandle(variable); original > 0)
    std::fill(makers_.begin() + firstMade, makers_.end(),
              makers_[static_cast<std::size_t>(original) - 1]);
  return &copy;
}

DOMElement& Chart::appendRelabel(DOMElement& variable, const XMLCh* from, const XMLCh* to) {
  DOMElement& relabel = appendElement(variable, ZephUni::_relabel);
  relabel.setAttribute(ZephUni::_from, from);
  relabel.setAttribute(ZephUni::_to, to);
  return relabel;
}

int Chart::swapVariables(DOMElement& first, DOMElement& second) {
  const std::u16string firstId = first.getAttribute(ZephUni::_id);
  const std::u16string secondId = second.getAttribute(ZephUni::_id);
  AddID(first, secondId.c_str());
  AddID(second, firstId.c_str());

  DOMElement* firstMeta = getChildByTagName(first, _meta);
  DOMElement* secondMeta = getChildByTagName(second, _meta);
  if (!firstMeta || !secondMeta) return 0;
  const std::u16string firstCreator = firstMeta->getAttribute(ZephUni::_creator);
  const std::u16string secondCreator = secondMeta->getAttribute(ZephUni::_creator);
  setOrRemove(*firstMeta, ZephUni::_creator, secondCreator);
  setOrRemove(*secondMeta, ZephUni::_creator, firstCreator);
  return 0;
}

// Facets sort and restrict a variable by its domain, which its use as an aesthetic must
// not do: references to the variable reach its copy from then on. Only a new copy is
// exchanged, since a second exchange would undo the first. A frame or another node that
// serves as the variable stays as it is: it has no domain to leave behind.
int Chart::updateGroupedChart() {
  const auto any = [](const DOMElement&) { return true; };
  if (!visitDescendants(*document_->getDocumentElement(), _facetvariable, any)) return -1;

  int result = -1;
  for (const XMLCh* name : {Chart::_styleby, ZephUni::_split}) {
    for (const DOMElement* grouping : groupingsOfElements(name)) {
      DOMElement* variable = document_->getElementById(grouping->getAttribute(ZephUni::_variable));
      if (!variable || !isNamed(*variable, ZephUni::_variable)) continue;
      bool made = false;
      DOMElement* copy = getAestheticVariable(variable, made);
      if (made) result = swapVariables(*variable, *copy);
    }
  }
  return result;
}

std::vector<DOMElement*> Chart::groupingsOfElements(const XMLCh* name) const {
  std::vector<DOMElement*> groupings;
  visitDescendants(*document_->getDocumentElement(), name, [&](DOMElement& grouping) {
    if (isNamed(*grouping.getParentNode(), ZephUni::_element)) groupings.push_back(&grouping);
    return false;
  });
  return groupings;
}
