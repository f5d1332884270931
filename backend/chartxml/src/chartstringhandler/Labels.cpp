#include <chartxml/ChartStringHandler.h>

#include <cstring>
#include <string>
#include <string_view>

#include "../DisplayText.h"
#include <chartxml/ChartXml.h>
#include <host/CodePages.h>
#include <host/Missing.h>
#include <host/Settings.h>
#include <host/Text.h>

namespace {

constexpr int meanDecimals = 2;
constexpr auto missingValueKey = "E60712";

// What the system groups digits with: nothing, a comma, or the locale's separator,
// whose no-break space would keep a label from being wrapped.
std::string groupingSeparator() {
  if (!CmnSys::shared().digitGrouping()) return {};
  const CmnLoc* locale = CmnLoc::shared();
  if (!locale) return ",";
  if (locale->groupingSeparator == "\u00A0") return " ";
  return KORVAMBTranscodeGeneric(host::utf16(locale->groupingSeparator));
}

// The text when asked for and its label behind it; in the place of a label that is
// missing, the text.
void appendLabelled(std::string& list, bool showsText, bool showsLabel, std::string_view text,
                    std::string_view label) {
  if (showsText || (showsLabel && label.empty())) list += text;
  if (!showsLabel || label.empty()) return;
  if (showsText) list += ' ';
  list += label;
}

} // namespace

int ChartStringHandler::VariableName(int index) {
  if (!validDataSource() || !validVariable(index)) return -1;
  return ChartXml::GetInstance()->NStringNoTranslate(dataSource_->GetVariable(index).GetName());
}

int ChartStringHandler::VariableLabel(int index) {
  if (!validDataSource() || !validVariable(index)) return -1;
  const KORVA_Variable& variable = dataSource_->GetVariable(index);
  const std::string label = variableLabel(variable);
  return ChartXml::GetInstance()->NStringNoTranslate(label.empty() ? variable.GetName() : label);
}

// Without the blanks at either end.
std::string ChartStringHandler::variableLabel(const KORVA_Variable& variable) const {
  const char* begin = variable.GetLabel();
  if (!begin || !*begin) return {};
  const char* end = begin + std::strlen(begin) - 1;
  const int length = trim(begin, end);
  return {begin, static_cast<std::size_t>(length)};
}

int ChartStringHandler::Value(int index, const OBS& value) {
  if (value.number == host::systemMissing) return -1;
  if (!validDataSource() || !validVariable(index)) return -1;
  return ChartXml::GetInstance()->NStringNoTranslate(
      displayText(dataSource_->GetVariable(index), value));
}

int ChartStringHandler::MeanValue(int index, const OBS& value) {
  if (value.number == host::systemMissing) return -1;
  if (!validDataSource() || !validVariable(index)) return -1;
  return ChartXml::GetInstance()->NStringNoTranslate(
      displayText(dataSource_->GetVariable(index), value, meanDecimals));
}

// Trailing blanks stay: a label may be followed by another text.
std::string ChartStringHandler::valueLabel(int index, const OBS& value) const {
  if (!validVariable(index)) return {};
  const KORVA_ValueLabelMap& labels = dataSource_->GetVariable(index).GetValueLabels();
  if (labels.Size() == 0) return {};
  const char* label = labels.GetLabel(value);
  if (!label || !*label) return {};
  const char* last = label + std::strlen(label) - 1;
  return trim(label, last) == 0 ? std::string() : std::string(label);
}

int ChartStringHandler::ValueObjectLabel(int index, const OBS& value, const std::string& pattern,
                                         int maxLength) {
  if (value.number == host::systemMissing) {
    return ChartXml::GetInstance()->NString(missingValueKey);
  }
  if (!validDataSource() || !validVariable(index)) return -1;
  std::string text = valueLabel(index, value);
  if (text.empty())
    text = displayText(dataSource_->GetVariable(index), value, 0, groupingSeparator());
  if (maxLength > 0 && text.size() > static_cast<std::size_t>(maxLength)) {
    text = KORVAMBStringTruncate_A(text, maxLength);
  }
  const int label = ChartXml::GetInstance()->NStringNoTranslate(text);
  if (pattern.empty()) return label;
  const int composite = CompositeString(pattern);
  AddParameter(composite, label);
  return EndCompositeString(composite);
}

// Split variables

// Calls `visit` with column and value of each split variable that has one in the
// row; one that has none takes no cells either. False when values are missing.
template <class Visit> bool ChartStringHandler::visitSplits(const OBS* values, Visit visit,
                                                            std::source_location where) const {
  const int count = dataSource_->SplitVariableCount();
  if (!values && count > 0) {
    report("no values of the split variables", where);
    return false;
  }
  for (int i = 0; i < count; ++i) {
    const int index = dataSource_->SplitVariableIndex(i);
    if (index < 0) continue;
    if (!validVariable(index, where)) return false; // where the next value begins is unknown
    visit(i, index, *values);
    values += host::cellsOfWidth(dataSource_->GetVariable(index).GetType());
  }
  return true;
}

int ChartStringHandler::SplitList(const OBS* values, bool name, bool label, bool value,
                                  bool valueLabel) {
  if (!validDataSource()) return -1;
  std::string list;
  const auto append = [&](int i, int index, const OBS& cell) {
    const KORVA_Variable& variable = dataSource_->GetVariable(index);
    if (i > 0) list += "; ";
    appendLabelled(list, name, label, variable.GetName(), variableLabel(variable));
    list += " = ";
    appendLabelled(list, value, valueLabel, displayText(variable, cell),
                   this->valueLabel(index, cell));
  };
  if (!visitSplits(values, append)) return -1;
  return ChartXml::GetInstance()->NStringNoTranslate(list);
}

int ChartStringHandler::SplitListByPattern(const OBS* values, int composite) {
  if (!validDataSource() || dataSource_->SplitVariableCount() == 0) return -1;
  BeginRepeat(composite);
  visitSplits(values, [&](int, int index, const OBS& cell) {
    const int label = VariableLabel(index);
    const int value = ValueObjectLabel(index, cell, {}, -1);
    if (label == -1 || value == -1) return;
    AddParameter(composite, label);
    AddParameter(composite, value);
  });
  EndRepeat(composite);
  return -1;
}
