#pragma once

#include <initializer_list>
#include <memory>
#include <source_location>
#include <span>
#include <string>
#include <string_view>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>

#include <chartxml/Chart.h>
#include <chartxml/ChartHashtable.h>
#include <chartxml/ChartStringHandler.h>
#include <chartxml/Export.h>
#include <host/ChartError.h>
#include <host/ChartString.h>
#include <host/ChartTranscoder.h>
#include <host/Data.h>
#include <host/StringTables.h>

XERCES_CPP_NAMESPACE_BEGIN
class SchemaValidator;
XERCES_CPP_NAMESPACE_END

/// The registry of open charts and of what they share, one a process.
///
/// In initialized mode (Initialize was called) texts and data source live until
/// Terminate; else they go with the last chart. Every operation returns a handle
/// or another non-negative number, or -1; a bad chart handle is reported and
/// answered with -1, except where an operation says otherwise. Refusals are not
/// thrown; only KorvaGoToCaller, when the program's error callback throws it, and
/// what runs out, such as memory, leave an operation. One thread.
class CHARTXML_API ChartXml {
public:
  // Life

  /// The registry, made on first use.
  static ChartXml* GetInstance();
  /// The registry, in initialized mode; it is owned by the process until Terminate.
  static ChartXml* Initialize();
  /// Destroys the registry with every chart in it; returns null.
  static ChartXml* Terminate();

  ChartXml(const ChartXml&) = delete;
  ChartXml& operator=(const ChartXml&) = delete;

  // Charts

  /// A new chart's handle, from 0 upward; never reused while the registry lives.
  int CreateChart();
  /// The chart of a handle, the registry's own until the chart ends; or null, which is
  /// reported, with the place that is told, when `report` is set.
  Chart* getValidChart(int handle, const char* sourceFile, unsigned line, bool report) const;
  /// The chart's document as it stands, for reading; the chart's own. Null when there
  /// is no such chart, which is reported.
  xercesc::DOMDocument* getChart(int chart) const;
  /// The node handle of an element of the chart, or -1.
  int getHandle(int chart, const xercesc::DOMElement* element) const;
  /// Finishes, sends and removes the chart; it is gone also when sending failed.
  int EndChart(int chart);
  /// Removes the chart without sending it. 0 in every case.
  int KillChart(int chart);
  /// Removes every chart; handles start at 0 again. 0 in every case.
  int KillCharts();
  /// The chart's document as XML; empty when there is no such chart.
  std::string GetXmlBuffer(int chart) const;

  // Procedure and data

  /// Sets the data source when none is set yet, which becomes the registry's to
  /// delete, and hands the one that is set to the chart, unless `chart` is -1.
  int SetDataSource(int chart, KORVA_DataSource* source);
  /// The same with a procedure's dictionary; null means that there is no data
  /// source. With a procedure handle of all ones the dictionary itself serves.
  int SetDataSource(int chart, void* procedureHandle, KORVA_FortranDictionary* const& dictionary);
  /// Names the procedure, whose own string table goes first, and the chart, unless
  /// `chart` is -1. The dictionary's result.
  int SetProcedure(int chart, const std::string& procedureName);
  void SetGlobalStringTable(const std::string& path);
  /// Forgets every string but the predefined ones; their handles are given out anew. 0 in
  /// every case.
  int ResetStrings();

  // Texts; results are string handles unless said otherwise

  /// The text of a string-table key in the output language; any other text comes
  /// back as it is. Backslash and "n" become a line feed.
  ChartString translate(const std::string& key) const;
  /// Bytes of the process code page as a text.
  ChartString transcode(const std::string& text) const;
  int NString(const std::string& key);
  int NStringNoTranslate(const std::string& text);
  int String(const std::string& text) { return NStringNoTranslate(text); }
  int CompositeString(const std::string& key);
  int AddParameter(int composite, int parameter);
  int BeginRepeat(int composite);
  int EndRepeat(int composite);
  int EndCompositeString(int composite);
  int StyleString(int string, int index);
  int Integer(const int& number);
  int Double(const double& number);
  int LRValue(const double& number, int format);
  int LRValueAsString(const double& number, int format);
  std::string getUTF8String(int string) const;
  /// The text as a cell of the output system: its cell handle, or -1.
  int ToSK(int string);

  /// Maps a variable number of the procedure, from 1, to a column of the data
  /// source, from 0; -1 and reported when it is out of range. Without a
  /// procedure's data source the number is the column already.
  int getVariableIndex(int variable) const;
  int VariableName(int variable);
  int VariableLabel(int variable);
  int Value(int variable, const OBS& value);
  int MeanValue(int variable, const OBS& value);
  /// The value's label or text, at most `maxLength` bytes; all of it when that is 0
  /// or less.
  int ValueLabel(int variable, const OBS& value, int maxLength);
  /// The value's label or text in the translated pattern of objects.
  int ObjectLabel(int variable, const OBS& value);
  /// "label: value, label: value" of the data source's split variables.
  int SplitHeader(const OBS* values, bool);
  int SplitList(const OBS* values, bool name, bool label, bool value, bool valueLabel);
  /// The label of a variable of another data source, which stays the caller's.
  int VariableLabelFromDataSource(KORVA_DataSource* source, int variable);
  int VariableLabelFromDataSource(void* procedureHandle, KORVA_FortranDictionary* const& dictionary,
                                  int variable);

  // Chart operations that do more than forward

  /// Shows an axis in percent. Its node; also, silently, for a bad chart.
  int SetAxisPercent(int chart, int node, int formatParent);
  int SetChartDescription(int chart, const std::string& text);
  /// The text of SplitHeader tells which split groups the chart stands for. 0, or -1 also
  /// when there is nothing to tell.
  int SetSplitComposite(int chart, const OBS* values, bool);
  /// A value of -1 is refused silently; a value that the chart refuses removes
  /// the whole chart.
  int AddDataValue(int chart, int source, int variable, int value);
  int AddDoubleDataValue(int chart, int source, int variable, double value);
  /// Whole columns, from row `firstRow` (1) on; a column that the chart refuses is reported
  /// and leaves the chart alone.
  int LoadNumbers(int chart, int variable, int firstRow, std::span<const double> numbers);
  int LoadTexts(int chart, int variable, int firstRow, std::span<const std::string_view> texts);
  /// Both return their chart argument in every case.
  int CreateLogVar(int chart, int variable);
  int AllDataDoubles(int chart);

  // Fit lines: the formula with its coefficients as a function guide, named by
  // the model. The guide, or -1. Lines of two coefficients are refused silently
  // when one is infinite; the others do not look.

  int AddYOfXLinear(int chart, int parent, int functionArgument, const double& b1, const double& b2,
                    bool dateScale);
  int AddYOfXLogarithmic(int chart, int parent, int functionArgument, const double& b1,
                         const double& b2, bool dateScale);
  int AddYOfXInverse(int chart, int parent, int functionArgument, const double& b1,
                     const double& b2, bool dateScale);
  int AddYOfXQuadratic(int chart, int parent, int functionArgument, const double& b1,
                       const double& b2, const double& b3, bool dateScale);
  int AddYOfXCubic(int chart, int parent, int functionArgument, const double& b1, const double& b2,
                   const double& b3, const double& b4, bool dateScale);
  int AddYOfXCompound(int chart, int parent, int functionArgument, const double& b1,
                      const double& b2, bool dateScale);
  int AddYOfXPower(int chart, int parent, int functionArgument, const double& b1, const double& b2,
                   bool dateScale);
  int AddYOfXS(int chart, int parent, int functionArgument, const double& b1, const double& b2,
               bool dateScale);
  int AddYOfXGrowth(int chart, int parent, int functionArgument, const double& b1, const double& b2,
                    bool dateScale);
  int AddYOfXExponential(int chart, int parent, int functionArgument, const double& b1,
                         const double& b2, bool dateScale);
  int AddYOfXLogistic(int chart, int parent, int functionArgument, const double& b1,
                      const double& b2, const double& b3, bool dateScale);
  /// The end of a line of two coefficients: fills the formula, which is open, and
  /// draws it.
  int AddYOfXWithAB(int chart, int parent, int formula, int functionArgument, const double& b1,
                    const double& b2);

  // Chart operations: arguments and results are those of Chart's operation of the
  // same name; `variable` counts the procedure's variables from 1 where Chart
  // takes a column.

  int AddSource(int chart);
  int AddFrame(int chart, int parent, int suffix);
  int SetFrameClipping(int chart, int frame, bool clip);
  int SetChartType(int chart, int type);
  int SetChartTemplate(int chart, const std::string& name);
  int CreateChartDescription(int chart, int string);

  int AddVariable(int chart, int source, int variable, bool categorical);
  int AddLabelingVariable(int chart, int source, int variable, bool categorical);
  int AddWeightVariable(int chart, int source, int variable);
  int SetVariable(int chart, int node, int variable, bool categorical);
  int CopyVariable(int chart, int variable);
  /// Chart::SetVariableExternal.
  int SetAggregateExternal(int chart, int variable);
  int SetVariableLabel(int chart, int variable, int label);
  int SetVariableName(int chart, int variable, int name);
  int SetVariableValue(int chart, int variable, int value);
  int SetVariableCategorical(int chart, int variable, bool categorical);
  int GetVariableLabel(int chart, int variable);
  int BeginVariableList(int chart);
  int AddToVariableList(int chart, int list, int variable);
  int AddOverlayVariable(int chart, int list, int role);
  int AddRangeVariable(int chart, int list);
  int AddMatrixVariable(int chart, int list);
  int AddAggregate(int chart, int source, int name, bool categorical, int label, int shortLabel,
                   int domain);
  int AddWeightAggregate(int chart, int source, int name, int label);
  int AddLabelingAggregate(int chart, int source, int name, bool categorical, int label,
                           int shortLabel, int domain);
  int SetSummaryFunction(int chart, int variable, int code, const double& first,
                         const double& second);
  int AddRelabel(int chart, int variable, int from, int to);
  int AddRelabels(int chart, int node, int variable);
  int GetVariableFormat(int chart, int variable);
  /// A bad chart is answered silently.
  int AddRow(int chart, int source);

  int SetVariableFormat(int chart, int variable, long packed);
  int AddMeta(int chart, int variable);
  int AddFormat(int chart, int meta, int column);
  int SetMetaWeight(int chart, int meta, bool weight);
  int getVariableNumFormat(int chart, int variable);
  int AddStringFormat(int chart, int meta);
  int AddDateFormat(int chart, int meta, int type, int width);
  int AddNumberFormat(int chart, int parent);
  int AddNumberFormat(int chart, int meta, int type, int width, int decimals);
  int SetNumberFormatMinFractionDigits(int chart, int numberFormat, int digits);
  int SetNumberFormatMaxFractionDigits(int chart, int numberFormat, int string);
  int SetNumberFormatPrefix(int chart, int numberFormat, int string);
  int SetNumberFormatSuffix(int chart, int numberFormat, int string);
  int SetNumberScientific(int chart, int numberFormat, bool on);

  int AddElement(int chart, int parent, int type, int suffix);
  int AddElementGroup(int chart, int frame, int suffix);
  int SetElementName(int chart, int element, int name);
  int SetElementDot(int chart, int element, int dot);
  int SetElementPositionModifier(int chart, int element, int modifier);
  int AddStack(int chart, int position, bool stack);
  int AddBinnedElement(int chart, int parent, int type, int suffix, int xVariable, int yVariable);
  int AddPosition(int chart, int element);
  int AddX(int chart, int parent, int variable);
  int AddY(int chart, int parent, int variable);
  int AddZ(int chart, int parent, int variable);
  int AddR(int chart, int parent, int variable);
  int AddTheta(int chart, int parent, int variable);
  int AddPhi(int chart, int parent, int variable);
  int AddColor(int chart, int element, int variable);
  int AddSize(int chart, int elementOrLabeling, int variable);
  int SetSizeLow(int chart, int size, int low);
  int SetSizeHigh(int chart, int size, int high);
  int AddStyleBy(int chart, int element, int variable);
  int AddStyleByColor(int chart, int element, int variable);
  int AddStyleByPattern(int chart, int element, int variable);
  int AddStyleByColorAndPattern(int chart, int element, int variable);
  int AddSplit(int chart, int element, int variable);
  int AddLabeling(int chart, int element, int variable);
  int AddLabelingSuffix(int chart, int element, int variable, int suffix);
  int AddStatistic(int chart, int parent, int method);
  int AddParam(int chart, int statistic, int name, int value);
  int AddLabel(int chart, int parent, int suffix, int content);

  int AddTableFacet(int chart, int frame);
  int AddFacetLabeling(int chart, int frame);
  int AddCoordinateFacet(int chart, int frame);
  int AddNest(int chart, int parent);
  int AddBlend(int chart, int parent);
  int AddCross(int chart, int parent);
  int AddFacetVariable(int chart, int parent, int role, int variable);
  int AddFacetLabel(int chart, int facetLabeling, int suffix, int level, bool reverse);
  int GetFacetLabel(int chart, int facetLabeling, int level);
  int SetFacetLabelLevel(int chart, int facetLabel, int level);
  int SetFacetLabelGap(int chart, int facetLabel, int gap);
  int SetFacetLabelCellStyle(int chart, int facetLabel, int suffix);
  int SetFacetLabelingCellAspect(int chart, int facetLabeling, double aspect);
  int AddFacetStyle(int chart, int elementOrGridLines, int when, int suffix);
  int AddCoordinateTransform(int chart, int frame, int method);

  int AddDimension(int chart, int frame, int role, int domain);
  int GetDimension(int chart, int frame, int role);
  int SetDimensionDomain(int chart, int dimension, int domain);
  int SetDimensionScale(int chart, int dimension, int method, int value, bool invert);
  int SetDimensionLowerMargin(int chart, int dimension, int margin);
  int SetDimensionUpperMargin(int chart, int dimension, int margin);
  int SetDimensionLowerMapping(int chart, int dimension, int mapping);
  int SetDimensionUpperMapping(int chart, int dimension, int mapping);
  int SetUnionDomain(int chart, int dimension);
  int SetFacetsDifferentScale(int chart, int dimension);
  int SetDimensionSameRatio(int chart, int dimension, bool same);
  int SetBinWidth(int chart, double width);
  int SetXYDimensionSameScale(int chart, double extent);

  int AddDomain(int chart, bool categorical);
  int AddInterval(int chart, int domain, int min, int max);
  int AddIntervalEx(int chart, int domain, int min, int max);
  int AddDomainReference(int chart, int domain, int domainOrVariable);
  int SetDomainDescending(int chart, int domain, bool descending);
  int AddSort(int chart, int domain);
  int AddSimpleSort(int chart, int sort);
  int SetSimpleSortMethod(int chart, int simpleSort, int method);
  int AddStatisticSort(int chart, int sort, int sourceVariable, int statVariable);
  int SetSortDescending(int chart, int sort, bool descending);

  int AddAxis(int chart, int parent, int suffix, bool opposite);
  int AddMajorTicks(int chart, int parent, int position, bool gridLines, int length, int labelAngle,
                    bool stagger, int delta);
  int AddMinorTicks(int chart, int axis, int position, bool gridLines, int length, int number);
  int AddTransform(int chart, int parent, int method);
  int AddGuide(int chart, int frame, int type, int suffix);
  int AddReferenceLine(int chart, int frame, int role, int value, int styleIndex);
  int AddXReferenceLine(int chart, int frame, int value, int styleIndex);
  int AddYReferenceLine(int chart, int frame, int value, int styleIndex);
  int AddYFunctionOfX(int chart, int frame, int function, int styleIndex);
  int AddLegend(int chart, int frame, int suffix);
  int AddLegendTarget(int chart, int legend, int elementOrGuide, int suffix, int aesthetic);
  int AddLegendTargetEx(int chart, int legend, int elementOrGuide, int styleBy, int suffix);
  int SetDisplayOverlappingLabels(int chart, int element, bool display);
  int SetLabelCollisionHandling(int chart, int element, int handling);
  int SetLogUnsafe(int chart);

private:
  using Where = std::source_location;
  struct At;
  struct Column;
  struct FitLine;
  struct FitModel;

  struct XmlPlatform;

  ChartXml();
  ~ChartXml();

  template <class Result, class... Parameters, class... Arguments>
  int onChart(At chart, Result (Chart::*operation)(Parameters...), Arguments&&... arguments);
  template <class... Parameters, class... Arguments>
  int onChart(At chart, int (Chart::*operation)(Parameters...) const, Arguments&&... arguments);

  Chart* findChart(At chart) const;
  Chart* findSilently(int chart) const;
  int keepOrKill(int chart, int result);
  int addLineOfTwo(const FitModel& model, const FitLine& line, const double& b1, const double& b2);
  int addLine(const FitModel& model, const FitLine& line,
              std::initializer_list<double> coefficients);
  int fillFormula(int formula, std::initializer_list<double> coefficients);
  void removeChart(int chart);
  void forgetStringsAndData();
  int handDataSourceTo(At chart);
  static bool isDictionaryItself(const void* procedureHandle);
  bool isUsable(const KORVA_FortranDictionary* dictionary) const;
  void report(const std::string& message, Where where) const;

  static ChartXml* _instance;
  static bool _initialized;

  int nextHandle_ = 0;
  std::unique_ptr<XmlPlatform> platform_;
  std::unique_ptr<xercesc::SchemaValidator> validator_;
  std::unique_ptr<ChartStringHandler> stringHandler_;
  ChartHashtable<Chart> charts_;
  std::unique_ptr<FacSTDictionary> dictionary_;
  std::unique_ptr<KORVA_DataSource> dataSource_;
  std::unique_ptr<ChartErrorHandler> errorHandler_;
  std::unique_ptr<ChartTranscoder> outputTranscoder_;
  std::unique_ptr<ChartTranscoder> localTranscoder_;
};
