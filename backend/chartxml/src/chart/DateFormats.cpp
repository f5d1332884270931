#include <chartxml/Chart.h>

#include "ChildOrder.h"
#include "DateLayouts.h"
#include <chartxml/ChartXml.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

int Chart::AddDateMeta(DOMElement& variable, int type, int width) {
  DOMElement& meta = metaOf(variable);
  addDateFormat(meta, type, width);
  return getHandle(&meta);
}

int Chart::AddDateFormat(int meta, int type, int width) {
  DOMElement* target = elementOfKind(meta, _meta);
  return target ? addDateFormat(*target, type, width) : -1;
}

int Chart::addDateFormat(DOMElement& meta, int type, int width) {
  childOrder_->clear(meta);
  DOMElement* format = nullptr;
  int result = AddDateTimeFormat(meta, format, -1, -1);
  const dates::Layout* layout = dates::layoutOf(type);
  if (!layout) return result;
  if (layout->prefix) {
    const int prefix = ChartXml::GetInstance()->NString(layout->prefix);
    result = AddAttribute(*format, ZephUni::_prefix, legalText(prefix));
  }
  if (layout->date) addDateParts(*format, _dateFormat, *layout->date, width);
  if (layout->time) addDateParts(*format, _timeFormat, *layout->time, width);
  return result;
}

void Chart::addDateParts(DOMElement& format, const XMLCh* name, std::span<const dates::Part> parts,
                         int width) {
  DOMElement& holder = makeElement(name);
  append(format, holder);
  for (const dates::Part& part : parts) {
    if (!part.name || !dates::exceeds(width, part.above)) continue;
    DOMElement& made = makeElement(part.name);
    append(holder, made);
    for (const dates::Flag& flag : part.flags) {
      if (flag.name && dates::exceeds(width, flag.above)) setFlag(made, flag.name, true);
    }
    if (part.suffix) setText(made, ZephUni::_suffix, ChartXml::GetInstance()->NString(part.suffix));
  }
}

int Chart::AddDateTimeFormat(DOMElement& parent, DOMElement*& out, int prefix, int suffix) {
  const Where here = Where::current();
  out = &makeElement(_datetimeformat);
  append(parent, *out);
  int result = -1;
  if (prefix != -1 && validString(prefix, "prefix", here))
    result = AddAttribute(*out, ZephUni::_prefix, legalText(prefix));
  if (suffix != -1 && validString(suffix, "suffix", here))
    result = AddAttribute(*out, ZephUni::_suffix, legalText(suffix));
  return result;
}
