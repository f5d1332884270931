#include <chartxml/Chart.h>

#include "Nodes.h"
#include "Placement.h"
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr const XMLCh* frameKind[] = {ZephUni::_frame};
constexpr const XMLCh* facetLabelingKind[] = {Chart::_facetlabeling};
constexpr const XMLCh* facetLabelKind[] = {Chart::_facetlabel};

} // namespace

int Chart::AddFacetLabeling(int frame) {
  if (!validHandle(frame, "frame")) return -1;
  DOMElement* parent = acceptedParent(
      frame, frameKind, "can't add a facet labeling to anything but a frame - ", Where::current());
  if (!parent) return -1;
  // Anywhere below the frame: an outer frame finds the labeling of an inner one.
  DOMElement* known = nullptr;
  visitDescendants(*parent, _facetlabeling, [&](DOMElement& labeling) {
    known = &labeling;
    return true;
  });
  if (known) return getHandle(known);
  return place(*parent, makeElement(_facetlabeling), placement::facetLabeling);
}

int Chart::AddFacetLabel(int facetLabeling, int suffix, int level, bool reverse) {
  const Where here = Where::current();
  if (!validHandle(facetLabeling, "facetLabeling") || !validOptionalString(suffix, "suffix", here))
    return -1;
  DOMElement* parent =
      acceptedParent(facetLabeling, facetLabelingKind,
                     "can't add facet label to anything but facet labeling - ", here);
  if (!parent) return -1;

  DOMElement& label = makeElement(_facetlabel);
  AddIDAttribute(label, suffix);
  if (reverse) label.setAttribute(ZephUni::_reverse, ZephUni::_true);
  label.setAttribute(ZephUni::_level, host::utf16(asString(level)).c_str());
  return append(*parent, label);
}

int Chart::SetFacetLabelCellStyle(int facetLabel, int suffix) {
  const Where here = Where::current();
  if (!validHandle(facetLabel, "facetLabel") || !validOptionalString(suffix, "suffix", here))
    return -1;
  DOMElement* label = acceptedParent(
      facetLabel, facetLabelKind, "can't set the cellStyle for anything but a facetLabel ", here);
  if (!label) return -1;
  const std::u16string style = styleName(_facetlabel, suffix);
  label->setAttribute(_cellstyle, style.c_str());
  AddStyle(*styleContainer_, style.c_str());
  return facetLabel;
}
