#include <chartxml/ChartStringHandler.h>

#include <cstring>

#include <chartxml/ChartXml.h>
#include <host/Formatter.h>
#include <host/Missing.h>

int ChartStringHandler::VariableName(int index) {
  if (!validDataSource() || !validVariable(index)) return -1;
  return ChartXml::GetInstance()->NStringNoTranslate(dataSource_->GetVariable(index).GetName());
}

int ChartStringHandler::VariableLabel(int index) {
  if (!validDataSource() || !validVariable(index)) return -1;
  const char* begin = dataSource_->GetVariable(index).GetLabel();
  if (begin && *begin) {
    const char* end = begin + std::strlen(begin) - 1;
    if (const int length = trim(begin, end)) {
      return ChartXml::GetInstance()->NStringNoTranslate(
          std::string(begin, static_cast<std::size_t>(length)));
    }
  }
  return VariableName(index);
}

int ChartStringHandler::Value(int index, const OBS& value) {
  if (value.number == host::systemMissing) return -1;
  if (!validDataSource() || !validVariable(index)) return -1;
  int type = 0;
  int width = 0;
  int decimals = 0;
  dataSource_->GetVariable(index).GetFormatEx(type, width, decimals);
  return ChartXml::GetInstance()->NStringNoTranslate(
      formatter::formattedValue(value, type, width, decimals));
}

int ChartStringHandler::LRValue(const double& value, int format) {
  if (value == host::systemMissing) return -1;
  if (format == -1) return Double(value);
  const std::string text = formatter::AsString(value, KORVA_Format(format));
  return text.empty() ? -1 : ChartXml::GetInstance()->NStringNoTranslate(text);
}
