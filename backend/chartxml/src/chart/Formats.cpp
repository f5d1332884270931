// Display formats of numbers and texts.
#include <chartxml/Chart.h>

#include <algorithm>

#include "ChildOrder.h"
#include <chartxml/ChartXml.h>
#include <host/Settings.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr int dollar = 4;
constexpr int plain = 5;
constexpr int exponential = 17;
constexpr int percent = 31;
constexpr int firstCurrency = 33;
constexpr int lastCurrency = 37;
constexpr int automatic = 40;

constexpr int decimalTypes[] = {3, 4, 5, 6, 8, 9, 11, 15, 16, 31, 32};

bool showsDecimals(int type) {
  return std::ranges::find(decimalTypes, type) != std::end(decimalTypes);
}
bool isCurrency(int type) { return type >= firstCurrency && type <= lastCurrency; }

} // namespace

int Chart::AddNumberMeta(DOMElement& variable, int type, int /*width*/, int decimals) {
  DOMElement& meta = metaOf(variable);
  addNumberFormat(meta, type, decimals);
  return getHandle(&meta);
}

int Chart::AddNumberFormat(int parent) {
  if (!validHandle(parent, "parent")) return -1;
  DOMElement* target = getElement(parent);
  return target ? append(*target, makeElement(_numberformat)) : -1;
}

int Chart::AddNumberFormat(int meta, int type, int /*width*/, int decimals) {
  DOMElement* target = getElement(meta);
  return target ? addNumberFormat(*target, type, decimals) : -1;
}

int Chart::addNumberFormat(DOMElement& meta, int type, int decimals) {
  DOMElement& format = makeElement(_numberformat);
  const int handle = append(meta, format);
  if (showsDecimals(type) || isCurrency(type))
    setText(format, ZephUni::_minimumFractionDigits, stringHandler_->LRValue(decimals, -1));
  if (type == dollar) format.setAttribute(ZephUni::_prefix, _dollarSign);
  if (type == percent) format.setAttribute(ZephUni::_suffix, _percent);
  if (type == plain || type == percent) {
    const CmnSys& system = CmnSys::shared();
    setFlag(format, ZephUni::_useGrouping, system.digitGrouping());
    format.setAttribute(ZephUni::_minimumIntegerDigits,
                        host::utf16(asString(system.minimumIntegerDigits)).c_str());
  }
  if (type == exponential) format.setAttribute(ZephUni::_scientific, ZephUni::_always);
  if (type == automatic) format.setAttribute(ZephUni::_scientific, ZephUni::_auto);
  if (isCurrency(type)) addCurrency(format, type - firstCurrency);
  return handle;
}

void Chart::addCurrency(DOMElement& format, int number) {
  const customCurrency& currency = currencyFormat::GetCCX(number);
  const auto affix = [&](const XMLCh* attribute, const std::string& bytes) {
    const ChartString text = ChartXml::GetInstance()->transcode(bytes);
    if (isValidXMLString(text)) format.setAttribute(attribute, text.c_str());
  };
  affix(ZephUni::_prefix, currency.getPrefix());
  affix(ZephUni::_suffix, currency.getSuffix());
  if (currency.getNegativePrefix() == "-") {
    format.setAttribute(ZephUni::_negativesOutside, ZephUni::_true);
  } else if (!currency.getNegativePrefix().empty() || !currency.getNegativeSuffix().empty()) {
    format.setAttribute(ZephUni::_negativesInParentheses, ZephUni::_true);
  }
}

int Chart::AddStringMeta(DOMElement& variable) {
  DOMElement& meta = metaOf(variable);
  addStringFormat(meta);
  return getHandle(&meta);
}

int Chart::AddStringFormat(int meta) {
  if (!validHandle(meta, "meta")) return -1;
  DOMElement* target = elementOfKind(meta, _meta);
  return target ? addStringFormat(*target) : -1;
}

int Chart::addStringFormat(DOMElement& meta) {
  childOrder_->clear(meta);
  return append(meta, makeElement(_stringformat));
}

int Chart::setNumberFormatText(int numberFormat, int string, const XMLCh* attribute,
                               const char* what, Where where) {
  if (!validHandle(numberFormat, "NumberFormat", where)) return -1;
  DOMElement* target = elementOfKind(numberFormat, _numberformat);
  if (!target || !validString(string, what, where)) return -1;
  return AddAttribute(*target, attribute, legalText(string));
}

int Chart::SetNumberFormatMaxFractionDigits(int numberFormat, int string) {
  return setNumberFormatText(numberFormat, string, ZephUni::_maximumFractionDigits,
                             "maximumFractionDigits", Where::current());
}
int Chart::SetNumberFormatPrefix(int numberFormat, int string) {
  return setNumberFormatText(numberFormat, string, ZephUni::_prefix, "prefix", Where::current());
}
int Chart::SetNumberFormatSuffix(int numberFormat, int string) {
  return setNumberFormatText(numberFormat, string, ZephUni::_suffix, "suffix", Where::current());
}

int Chart::SetNumberScientific(int numberFormat, bool on) {
  if (!validHandle(numberFormat, "NumberFormat")) return -1;
  DOMElement* target = elementOfKind(numberFormat, _numberformat);
  if (!target) return -1;
  return AddAttribute(*target, ZephUni::_scientific, on ? ZephUni::_always : ZephUni::_never);
}
