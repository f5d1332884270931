#include <chartxml/Chart.h>

#include <algorithm>

#include <fmt/format.h>

#include "ChildOrder.h"
#include "Nodes.h"
#include "Placement.h"
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

// Type 25 stands with the numbers, where it has no attributes.
constexpr int numberTypes[] = {3,  4,  5,  6,  8,  9,  11, 15, 16, 17,
                               25, 31, 32, 33, 34, 35, 36, 37, 40};
constexpr int dateTypes[] = {20, 21, 22, 23, 24, 26, 27, 28, 29, 30, 38, 39, 85, 86};
constexpr int decimalTypes[] = {3, 4, 5, 6, 8, 9, 11, 15, 16, 31, 32};

bool isAmong(std::span<const int> types, int type) {
  return std::ranges::find(types, type) != types.end();
}

} // namespace

// The variable's meta, made when it has none: there is never more than one, and a
// meta is its own.
DOMElement& Chart::metaOf(DOMElement& variable) {
  if (isNamed(variable, _meta)) return variable;
  if (DOMElement* known = childOrder_->first(variable, _meta)) return *known;
  DOMElement& meta = makeElement(_meta);
  place(variable, meta, placement::meta);
  return meta;
}

int Chart::AddMeta(DOMElement& parent, DOMElement*& meta) {
  meta = &metaOf(parent);
  return getHandle(meta);
}

int Chart::AddMeta(int variable) {
  if (!validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  DOMElement* meta = nullptr;
  return target ? AddMeta(*target, meta) : -1;
}

int Chart::AddMetaFormat(DOMElement& variable, int column) {
  if (!validVariable(column)) return -1;
  return AddMetaFormatFromCode(variable,
                               static_cast<long>(dataSource_->GetVariable(column).GetFormat()));
}

int Chart::AddMetaFormatFromCode(DOMElement& variable, long packed) {
  return formatMeta(variable, packed) ? getHandle(&metaOf(variable)) : -1;
}

bool Chart::formatMeta(DOMElement& variable, long packed) {
  const KORVA_Format format(packed);
  const int type = format.TypeEx();
  if (isAmong(numberTypes, type)) {
    addNumberFormat(metaOf(variable), type, format.Decimals());
    return true;
  }
  if (isAmong(dateTypes, type)) {
    report(fmt::format("display formats of dates and times are not built yet - type {}", type),
           Where::current());
  }
  return false;
}

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
  if (isAmong(decimalTypes, type) || (type >= firstCurrency && type <= lastCurrency)) {
    setText(format, ZephUni::_minimumFractionDigits, stringHandler_->LRValue(decimals, -1));
  }
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
  if (type >= firstCurrency && type <= lastCurrency) addCurrency(format, type - firstCurrency);
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
