#include <chartxml/Chart.h>

#include <fmt/format.h>

#include "NodeRule.h"
#include "Placement.h"
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr std::size_t rowCapacity = 250000;

// The graph, which has handle 0, takes frames too.
constexpr NodeRule frameParent{
    "parent", {ZephUni::_frame}, "can't add frame to anything but graph or frame - "};
constexpr AttributeRule clipping{{"frame", {ZephUni::_frame}, nullptr}, ZephUni::_clip, nullptr};

} // namespace

int Chart::AddSource() {
  const std::string name = fmt::format("source{}", sourceCount_++);
  dataProcessor_->AddDataSource(name, rowCapacity);

  DOMElement& source = makeElement(ZephUni::_source);
  AddID(source, host::utf16(name).c_str());
  const int handle = place(*document_->getDocumentElement(), source, placement::source);
  appendElement(source, ZephUni::_otherAccess).setAttribute(ZephUni::_type, ZephUni::_object);
  return handle;
}

int Chart::AddFrame(int parent, int suffix) {
  const Where here = Where::current();
  if (!valid(parent, frameParent, here) || !validOptionalString(suffix, "suffix", here)) return -1;
  DOMElement* target = parent == 0 ? getElement(0) : accepted(parent, frameParent, here);
  if (!target) return -1;

  DOMElement& frame = makeElement(ZephUni::_frame);
  AddIDAttribute(frame, suffix);
  const int handle = place(*target, frame, placement::frame);
  labelSkeletonFrame(handle, suffix);
  return handle;
}

// The inner frames of the two chart skeletons carry a facet label, which holds
// the style of their one cell.
void Chart::labelSkeletonFrame(int frame, int suffix) {
  if (suffix < 0) return;
  const std::u16string& text = stringHandler_->getXMLString(suffix).text();
  if (text != u"data_1" && text != u"pie_1") return;
  const int label = AddFacetLabel(AddFacetLabeling(frame), suffix, 0, false);
  SetFacetLabelCellStyle(label, suffix);
}

int Chart::SetFrameClipping(int frame, bool clip) {
  return setAttributeFlag(frame, clipping, clip, Where::current());
}
