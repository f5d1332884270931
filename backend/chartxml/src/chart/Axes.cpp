#include <chartxml/Chart.h>

#include "Nodes.h"
#include "Placement.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

int Chart::AddAxis(int parent, int suffix, bool opposite) {
  const Where here = Where::current();
  if (!validHandle(parent, "dimension") || !validOptionalString(suffix, "id", here)) return -1;
  DOMElement* target = getElement(parent);
  if (!target) return -1;
  DOMElement& axis = makeElement(ZephUni::_axis);
  AddIDAttribute(axis, suffix);
  if (opposite) axis.setAttribute(ZephUni::_opposite, ZephUni::_true);
  if (isNamed(*target, ZephUni::_dimension)) {
    axis.setAttribute(ZephUni::_combineAxisLabels, ZephUni::_true);
  }
  return append(*target, axis);
}

int Chart::AddMajorTicks(int parent, int position, bool gridLines, int length, int labelAngle,
                         bool stagger, int delta) {
  const Where here = Where::current();
  if (!validHandle(parent, "parent") || !validOptionalString(position, "position", here) ||
      !validOptionalString(length, "length", here) ||
      !validOptionalString(labelAngle, "labelAngle", here) ||
      !validOptionalString(delta, "delta", here)) {
    return -1;
  }
  DOMElement* target = getElement(parent);
  if (!target) return -1;

  DOMElement& ticks = makeElement(ZephUni::_majorTicks);
  setOptionalText(ticks, ZephUni::_position, position);
  if (gridLines) {
    addGridLines(ticks, std::u16string(ZephUni::_majorTicks) + _underscore +
                            target->getAttribute(ZephUni::_id) + _gridLineStyle);
  }
  setOptionalText(ticks, ZephUni::_length, length);
  setOptionalText(ticks, ZephUni::_labelAngle, labelAngle);
  setFlag(ticks, ZephUni::_stagger, stagger);
  setOptionalText(ticks, ZephUni::_delta, delta);
  AddStyleAttribute(*target, ticks, ZephUni::_markStyle);
  AddStyleAttribute(*target, ticks, ZephUni::_tickLabelStyle);
  return place(*target, ticks, placement::majorTicks);
}

int Chart::AddMinorTicks(int axis, int position, bool gridLines, int length, int number) {
  const Where here = Where::current();
  if (!validHandle(axis, "axis") || !validOptionalString(position, "position", here) ||
      !validOptionalString(length, "length", here) ||
      !validOptionalString(number, "number", here)) {
    return -1;
  }
  DOMElement* target = getElement(axis);
  if (!target) return -1;

  DOMElement& ticks = makeElement(ZephUni::_minorTicks);
  setOptionalText(ticks, ZephUni::_position, position);
  // Named after the major ticks, in an order of its own: templates know it so.
  if (gridLines) {
    addGridLines(ticks, std::u16string(target->getAttribute(ZephUni::_id)) + ZephUni::_majorTicks +
                            _gridLineStyle);
  }
  setOptionalText(ticks, ZephUni::_length, length);
  setOptionalText(ticks, ZephUni::_number, number);
  AddStyleAttribute(*target, ticks, ZephUni::_markStyle);
  return append(*target, ticks);
}

void Chart::addGridLines(DOMElement& ticks, const std::u16string& style) {
  DOMElement& lines = makeElement(_gridlines);
  setOwnStyle(lines, ZephUni::_style, style);
  append(ticks, lines);
}

int Chart::AddTransform(int parent, int method) {
  const Where here = Where::current();
  if (!validHandle(parent, "parent") || !validString(method, "method", here)) return -1;
  DOMElement* target = getElement(parent);
  if (!target) return -1;
  DOMElement& transform = makeElement(ZephUni::_transform);
  setText(transform, ZephUni::_method, method);
  return append(*target, transform);
}
