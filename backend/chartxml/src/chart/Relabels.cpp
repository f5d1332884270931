#include <chartxml/Chart.h>

#include <cstddef>
#include <string>

#include "DisplayText.h"
#include "NodeRule.h"
#include <chartxml/ChartXml.h>
#include <host/Missing.h>
#include <host/Settings.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr NodeRule relabelled{
    "variable", {ZephUni::_variable}, "can't add relabel to anything but a variable - "};

// Display texts have the locale's decimal sign, stored numbers a point.
ChartString withPoint(ChartString text) {
  const CmnLoc* locale = CmnLoc::shared();
  if (!locale) return text;
  std::string shown = text.toUTF8();
  const std::size_t sign = shown.find(locale->decimalSeparator);
  if (sign == std::string::npos) return text;
  text.assignUTF8(shown.replace(sign, locale->decimalSeparator.size(), 1, '.'));
  return text;
}

} // namespace

int Chart::AddRelabel(int variable, int from, int to) {
  const Where here = Where::current();
  if (!valid(variable, relabelled, here) || !validString(from, "from", here) ||
      !validString(to, "to", here)) {
    return -1;
  }
  DOMElement* target = accepted(variable, relabelled, here);
  if (!target) return -1;
  const ChartString& fromText = stringHandler_->getXMLString(from);
  const ChartString& toText = stringHandler_->getXMLString(to);
  if (!isValidXMLString(fromText) || !isValidXMLString(toText)) return -1;
  return addRelabel(*target, fromText.c_str(), toText.c_str());
}

int Chart::addRelabel(DOMElement& variable, const XMLCh* from, const XMLCh* to) {
  return mapElement(&appendRelabel(variable, from, to));
}

// A relabel must meet the value as it is stored: a number is stored in its
// shortest form, however many decimals its format shows.
int Chart::AddRelabels(int variable, int column) {
  const Where here = Where::current();
  if (!valid(variable, relabelled, here)) return -1;
  const KORVA_Variable* described = columnAt(column);
  DOMElement* target = described ? accepted(variable, relabelled, here) : nullptr;
  if (!target) return -1;

  const KORVA_ValueLabelMap& labels = described->GetValueLabels();
  int position = 0;
  const OBS* value = nullptr;
  const char* label = nullptr;
  while (labels.GetNextPair(position, value, label)) {
    if (!label || !*label) continue;
    if (described->GetType() == 0 && value->number == host::systemMissing) continue;
    const ChartString to = ChartXml::GetInstance()->transcode(label);
    ChartString from = ChartXml::GetInstance()->transcode(displayText(*described, *value));
    if (described->GetType() == 0 && withPoint(from).isNumber())
      from.assignUTF8(asString(value->number));
    else if (from.isNumber())
      from.assignUTF8(asString(from.convertToDouble()));
    if (isValidXMLString(from) && isValidXMLString(to))
      addRelabel(*target, from.c_str(), to.c_str());
  }
  return variable;
}
