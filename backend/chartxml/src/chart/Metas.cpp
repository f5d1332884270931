// A variable's meta, which holds its display format.
#include <chartxml/Chart.h>

#include <algorithm>

#include "ChildOrder.h"
#include "DateLayouts.h"
#include "Nodes.h"
#include "Placement.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr int textType = 1;

// Type 25 has a layout as a date and yet stands with the numbers, where it has no
// attributes: a variable of that type shows its bare numbers.
constexpr int numberTypes[] = {3,  4,  5,  6,  8,  9,  11, 15, 16, 17,
                               25, 31, 32, 33, 34, 35, 36, 37, 40};

bool isNumber(int type) { return std::ranges::find(numberTypes, type) != std::end(numberTypes); }
bool isDate(int type) { return !isNumber(type) && dates::layoutOf(type); }

} // namespace

// There is never more than one, and a meta is its own.
DOMElement* Chart::knownMeta(DOMElement& variable) {
  return isNamed(variable, _meta) ? &variable : childOrder_->first(variable, _meta);
}

// The variable's meta, made when it has none.
DOMElement& Chart::metaOf(DOMElement& variable) {
  if (DOMElement* known = knownMeta(variable)) return *known;
  DOMElement& meta = makeElement(_meta);
  place(variable, meta, placement::meta);
  return meta;
}

// A meta that was made to be described only gets its handle here.
int Chart::AddMeta(DOMElement& parent, DOMElement*& meta) {
  meta = &metaOf(parent);
  const int handle = getHandle(meta);
  return handle != -1 ? handle : mapElement(meta);
}

int Chart::AddMeta(int variable) {
  if (!validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  DOMElement* meta = nullptr;
  return target ? AddMeta(*target, meta) : -1;
}

int Chart::AddMetaFormat(DOMElement& variable, int column) {
  const KORVA_Variable* described = columnAt(column);
  return described ? AddMetaFormatFromCode(variable, described->GetFormat()) : -1;
}

int Chart::AddMetaFormatFromCode(DOMElement& variable, long packed) {
  DOMElement* meta = nullptr;
  return formatMeta(variable, packed) ? AddMeta(variable, meta) : -1;
}

bool Chart::formatMeta(DOMElement& variable, long packed) {
  const KORVA_Format format(packed);
  const int type = format.TypeEx();
  if (isNumber(type)) {
    addNumberFormat(metaOf(variable), type, format.Decimals());
    return true;
  }
  if (isDate(type)) {
    addDateFormat(metaOf(variable), type, format.Width());
    return true;
  }
  return false;
}

int Chart::SetMetaFormat(DOMElement& meta, long packed) {
  if (DOMElement* known = knownMeta(meta)) childOrder_->clear(*known);
  return AddMetaFormatFromCode(meta, packed);
}

int Chart::SetVariableFormat(int variable, long packed) {
  if (!validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  if (DOMElement* meta = knownMeta(*target)) SetMetaFormat(*meta, packed);
  return variable;
}

// Callers do not read the answer: it is -1 whatever was added.
int Chart::AddFormat(int meta, int column) {
  if (!validHandle(meta, "meta")) return -1;
  const KORVA_Variable* described = columnAt(column);
  if (!described || !elementOfKind(meta, _meta)) return -1;
  int type = 0;
  int width = 0;
  int decimals = 0;
  described->GetFormatEx(type, width, decimals);
  if (type == textType) AddStringFormat(meta);
  if (isNumber(type)) AddNumberFormat(meta, type, width, decimals);
  if (isDate(type)) AddDateFormat(meta, type, width);
  return -1;
}

int Chart::SetMetaWeight(int meta, bool weight) {
  if (!validHandle(meta, "meta")) return -1;
  DOMElement* target = elementOfKind(meta, _meta);
  if (!target) return -1;
  const XMLCh* value = weight ? ZephUni::_true : ZephUni::_false;
  return AddAttribute(*target, ZephUni::_weight, value) == 0 ? meta : -1;
}

int Chart::AddWeightAggregate(int source, int name, int label) {
  const int variable = AddAggregate(source, name, false, label, -1, -1);
  if (variable != -1) setFlag(metaOf(*getElement(variable)), ZephUni::_weight, true);
  return variable;
}

int Chart::getVariableNumFormat(int variable) const {
  if (!validHandle(variable, "variableHandle")) return -1;
  const DOMElement* target = getElement(variable);
  if (!target) return -1;
  int handle = -1;
  visitDescendants(*target, _numberformat, [&](const DOMElement& format) {
    handle = getHandle(&format);
    return true;
  });
  return handle;
}
