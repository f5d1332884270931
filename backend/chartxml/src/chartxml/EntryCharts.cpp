// Charts, their data sources and variables, and the data.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

int64_t cx_endchart_(const int64_t* chart) { return call(__func__, &ChartXml::EndChart, chart); }
int64_t cx_killchart_(const int64_t* chart) { return call(__func__, &ChartXml::KillChart, chart); }
int64_t cx_killcharts_() { return call(__func__, &ChartXml::KillCharts); }
int64_t cx_setcharttype_(const int64_t* chart, const int64_t* type) {
  return call(__func__, &ChartXml::SetChartType, chart, type);
}
int64_t cx_setcharttemplate_(const int64_t* chart, const char* name, const int64_t* nameLength) {
  return call(__func__, &ChartXml::SetChartTemplate, chart, Text{name, nameLength});
}
int64_t cx_setsplitcomposite_(const int64_t* chart, const void* values, const int64_t*) {
  return call(__func__, &ChartXml::SetSplitComposite, chart, values, nullptr);
}
int64_t cx_createchartdescription_(const int64_t* chart, const int64_t* string) {
  return call(__func__, &ChartXml::CreateChartDescription, chart, string);
}
int64_t cx_setlogunsafe_(const int64_t* chart) {
  return call(__func__, &ChartXml::SetLogUnsafe, chart);
}
int64_t cx_addsource_(const int64_t* chart) { return call(__func__, &ChartXml::AddSource, chart); }
int64_t cx_alldatadoubles_(const int64_t* chart) {
  return call(__func__, &ChartXml::AllDataDoubles, chart);
}
int64_t cx_addvariable_(const int64_t* chart, const int64_t* source, const int64_t* variable,
                        const int64_t* categorical) {
  return call(__func__, &ChartXml::AddVariable, chart, source, variable, categorical);
}
int64_t cx_addaggregate_(const int64_t* chart, const int64_t* source, const int64_t* name,
                         const int64_t* categorical, const int64_t* label,
                         const int64_t* shortLabel, const int64_t* domain) {
  return call(__func__, &ChartXml::AddAggregate, chart, source, name, categorical, label,
              shortLabel, domain);
}
int64_t cx_addweightaggregate_(const int64_t* chart, const int64_t* source, const int64_t* name,
                               const int64_t* label) {
  return call(__func__, &ChartXml::AddWeightAggregate, chart, source, name, label);
}
int64_t cx_addrelabel_(const int64_t* chart, const int64_t* variable, const int64_t* from,
                       const int64_t* to) {
  return call(__func__, &ChartXml::AddRelabel, chart, variable, from, to);
}
int64_t cx_addrelabels_(const int64_t* chart, const int64_t* node, const int64_t* variable) {
  return call(__func__, &ChartXml::AddRelabels, chart, node, variable);
}
int64_t cx_setvariableformat_(const int64_t* chart, const int64_t* variable,
                              const int64_t* format) {
  return call(__func__, &ChartXml::SetVariableFormat, chart, variable, format);
}
int64_t cx_getvariableformat_(const int64_t* chart, const int64_t* variable) {
  return call(__func__, &ChartXml::GetVariableFormat, chart, variable);
}
int64_t cx_createlogvar_(const int64_t* chart, const int64_t* variable) {
  return call(__func__, &ChartXml::CreateLogVar, chart, variable);
}
int64_t cx_addrow_(const int64_t* chart, const int64_t* source) {
  return call(__func__, &ChartXml::AddRow, chart, source);
}
int64_t cx_adddatavalue_(const int64_t* chart, const int64_t* source, const int64_t* variable,
                         const int64_t* value) {
  return call(__func__, &ChartXml::AddDataValue, chart, source, variable, value);
}
int64_t cx_adddoubledatavalue_(const int64_t* chart, const int64_t* source, const int64_t* variable,
                               const double* value) {
  return call(__func__, &ChartXml::AddDoubleDataValue, chart, source, variable, value);
}

int64_t cx_init_(void* procedure, void* const* dictionary, const char* name,
                 const int64_t* nameLength) {
  return guarded(__func__, [&](ChartXml& registry) {
    ChartXml::Initialize();
    registry.SetProcedure(-1, Text{name, nameLength}.read());
    registry.SetDataSource(-1, procedure, dictionaryAt(dictionary));
    return 0;
  });
}

int64_t cx_createchart_(void* procedure, void* const* dictionary, const char* name,
                        const int64_t* nameLength) {
  return guarded(__func__, [&](ChartXml& registry) {
    const int chart = registry.CreateChart();
    if (chart < 0) return chart;
    try {
      registry.SetProcedure(chart, Text{name, nameLength}.read());
      registry.SetDataSource(chart, procedure, dictionaryAt(dictionary));
    } catch (...) {
      registry.KillChart(chart); // nobody will learn its handle
      throw;
    }
    return chart;
  });
}

int64_t cx_terminate_() { return ChartXml::Terminate() ? -1 : 0; }

int64_t cx_dumpxml_(const int64_t*, const int64_t*, const int64_t*) { return -1; }

int64_t cx_statisticssummary_(const int64_t*, const int64_t*, const int64_t*, const int64_t*) {
  return -1;
}

// The string is made before the chart is looked up, also for a bad chart.
int64_t cx_setchartdescription_(const int64_t* chart, const char* text, const int64_t* textLength) {
  return guarded(__func__, [&](ChartXml& registry) {
    const int description = registry.NStringNoTranslate(Text{text, textLength}.read());
    return registry.CreateChartDescription(integer(chart), description);
  });
}
