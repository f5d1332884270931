#include "Call.h"

#include <fmt/format.h>

#include "../AtEnd.h"
#include <host/OutputText.h>

ChartString ChartXml::translate(const std::string& key) const {
  int length = 0;
  std::string english;
  const std::string text = dictionary_->LookUp(key, length, english);
  // The dictionary hands a key that it does not know back, in the process's code
  // page as it came.
  const ChartTranscoder& transcoder = text == key ? *localTranscoder_ : *outputTranscoder_;
  ChartString result;
  result.assign(transcoder.transcode(text), transcoder.transcode(english));
  result.unescapeLineFeeds();
  return result;
}

ChartString ChartXml::transcode(const std::string& text) const {
  return ChartString(localTranscoder_->transcode(text));
}

int ChartXml::NString(const std::string& key) {
  return stringHandler_->AddChartString(translate(key));
}

int ChartXml::NStringNoTranslate(const std::string& text) {
  return stringHandler_->AddChartString(transcode(text));
}

int ChartXml::CompositeString(const std::string& key) {
  const ChartString pattern = translate(key);
  return stringHandler_->CompositeString(pattern.toUTF8(), pattern.toUTF8ForEng());
}

int ChartXml::AddParameter(int composite, int parameter) {
  return stringHandler_->AddParameter(composite, parameter);
}
int ChartXml::BeginRepeat(int composite) { return stringHandler_->BeginRepeat(composite); }
int ChartXml::EndRepeat(int composite) { return stringHandler_->EndRepeat(composite); }
int ChartXml::EndCompositeString(int composite) {
  return stringHandler_->EndCompositeString(composite);
}
int ChartXml::StyleString(int string, int index) {
  return stringHandler_->StyleString(string, index);
}
int ChartXml::Integer(const int& number) { return stringHandler_->LRValue(number, -1); }
int ChartXml::Double(const double& number) { return stringHandler_->LRValue(number, -1); }
int ChartXml::LRValue(const double& number, int format) {
  return stringHandler_->LRValue(number, format);
}
int ChartXml::LRValueAsString(const double& number, int format) {
  return stringHandler_->LRValueAsString(number, format);
}

std::string ChartXml::getUTF8String(int string) const {
  return stringHandler_->getXMLString(string).toUTF8();
}

int ChartXml::ToSK(int string) {
  if (!stringHandler_->validString(string, "string")) return -1;
  const ChartString& text = stringHandler_->getXMLString(string);
  if (text.empty()) {
    report(fmt::format("converting string handle to Skirl handle failed {}", string),
           Where::current());
    return -1;
  }
  return SkCellText::Replicate(SkString(outputTranscoder_->transcodeTo(text.text()), 0));
}

// Labels

int ChartXml::getVariableIndex(int variable) const {
  const auto* source = dynamic_cast<const ProcedureDataSource*>(stringHandler_->GetDataSource());
  if (!source) return variable;
  const int count = source->Parent()->VariableCount();
  if (variable >= 1 && variable <= count) return source->DicPtr()->GetIndex(variable);
  report(fmt::format("variable index out of range {} {}", variable, count), Where::current());
  return -1;
}

int ChartXml::VariableName(int variable) {
  return stringHandler_->VariableName(getVariableIndex(variable));
}
int ChartXml::VariableLabel(int variable) {
  return stringHandler_->VariableLabel(getVariableIndex(variable));
}
int ChartXml::Value(int variable, const OBS& value) {
  return stringHandler_->Value(getVariableIndex(variable), value);
}

int ChartXml::MeanValue(int variable, const OBS& value) {
  return stringHandler_->MeanValue(getVariableIndex(variable), value);
}
int ChartXml::ValueLabel(int variable, const OBS& value, int maxLength) {
  return stringHandler_->ValueObjectLabel(getVariableIndex(variable), value, {}, maxLength);
}
int ChartXml::ObjectLabel(int variable, const OBS& value) {
  const std::string pattern = translate("E65039^1").toUTF8();
  return stringHandler_->ValueObjectLabel(getVariableIndex(variable), value, pattern, -1);
}

int ChartXml::SplitHeader(const OBS* values, bool) {
  const int header = stringHandler_->CompositeString("[%1\\: %2:, ^1\\: ^2:]1");
  stringHandler_->SplitListByPattern(values, header);
  return stringHandler_->EndCompositeString(header);
}
int ChartXml::SplitList(const OBS* values, bool name, bool label, bool value, bool valueLabel) {
  return stringHandler_->SplitList(values, name, label, value, valueLabel);
}

// The string handler looks at the other source for the time of one label.
int ChartXml::VariableLabelFromDataSource(KORVA_DataSource* source, int variable) {
  if (!dataSource_) return -1;
  const AtEnd restore([this] { stringHandler_->SetDataSource(dataSource_.get()); });
  stringHandler_->SetDataSource(source);
  return VariableLabel(variable);
}

int ChartXml::VariableLabelFromDataSource(void* procedureHandle,
                                          KORVA_FortranDictionary* const& dictionary,
                                          int variable) {
  if (!isUsable(dictionary)) return VariableLabelFromDataSource(nullptr, variable);
  if (isDictionaryItself(procedureHandle)) {
    return VariableLabelFromDataSource(dictionary, variable);
  }
  ProcedureDataSource source(procedureHandle, dictionary);
  return VariableLabelFromDataSource(&source, variable);
}
