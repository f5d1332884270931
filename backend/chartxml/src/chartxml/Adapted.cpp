// Chart operations that do more than look the chart up and pass on.
#include "Call.h"

#include <vector>

int ChartXml::SetAxisPercent(int chart, int node, int formatParent) {
  const CallScope running(Where::current().function_name());
  // Without a chart the node comes back as if all had gone well: the axis is then
  // drawn without percent signs, if at all.
  if (!findChart(chart)) return node;
  const int format = AddNumberFormat(chart, formatParent);
  if (format < 0) return format;
  const int suffix = SetNumberFormatSuffix(chart, format, NStringNoTranslate("%"));
  if (suffix < 0) return suffix;
  SetNumberScientific(chart, format, false);
  const int transform = AddTransform(chart, node, NStringNoTranslate("percent"));
  return transform < 0 ? transform : node;
}

int ChartXml::SetChartDescription(int chart, const std::string& text) {
  Chart* found = findChart(chart);
  return found ? found->CreateChartDescription(NStringNoTranslate(text)) : -1;
}

int ChartXml::SetSplitComposite(int chart, const OBS* values, bool unused) {
  Chart* found = findChart(chart);
  if (!found) return -1;
  const int header = SplitHeader(values, unused);
  return header < 0 ? header : found->SetSplitHeader(header);
}

// A chart that lost a value would show a wrong picture: it goes as a whole.
int ChartXml::AddDataValue(int chart, int source, int variable, int value) {
  if (value == -1) return -1;
  Chart* found = findSilently(chart);
  return found ? keepOrKill(chart, found->AddDataValue(source, variable, value)) : -1;
}

int ChartXml::AddDoubleDataValue(int chart, int source, int variable, double value) {
  Chart* found = findSilently(chart);
  return found ? keepOrKill(chart, found->AddDoubleDataValue(source, variable, value)) : -1;
}

int ChartXml::LoadNumbers(int chart, int variable, int firstRow, std::span<const double> numbers) {
  return onChart(chart, &Chart::LoadNumbers, variable, firstRow, numbers);
}

int ChartXml::LoadTexts(int chart, int variable, int firstRow,
                        std::span<const std::string_view> texts) {
  Chart* found = findChart(chart);
  if (!found) return -1;
  std::vector<ChartString> transcoded;
  transcoded.reserve(texts.size());
  for (const std::string_view text : texts)
    transcoded.push_back(transcode(std::string(text)));
  return found->LoadTexts(variable, firstRow, transcoded);
}

int ChartXml::keepOrKill(int chart, int result) {
  if (result == -1) KillChart(chart);
  return result;
}

int ChartXml::AddRow(int chart, int source) {
  Chart* found = findSilently(chart);
  return found ? found->AddRow(source) : -1;
}

int ChartXml::CreateLogVar(int chart, int variable) {
  onChart(chart, &Chart::CreateLogVar, variable);
  return chart;
}

int ChartXml::AllDataDoubles(int chart) {
  if (Chart* found = findChart(chart)) found->SetAllDataDoubles();
  return chart;
}
