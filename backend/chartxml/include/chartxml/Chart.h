#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <source_location>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <chartxml/ChartHashtable.h>
#include <chartxml/ChartStringHandler.h>
#include <chartxml/Export.h>
#include <host/ChartBase.h>
#include <host/ChartError.h>
#include <host/ChartString.h>
#include <host/Data.h>
#include <host/NodeCalls.h>
#include <host/VarDataProcessor.h>
#include <host/XDocument.h>

class ChildOrder;
class KindsBelow;
struct AttributeRule;
struct ChildRule;
struct NodeRule;
namespace dates {
struct Part;
}

/// Element names, for accepted parents and for placement among siblings.
using ConstChartStringSet = std::span<const XMLCh* const>;

/// One chart under construction: its document, its node handles and its data.
///
/// Operations take node handles (0 is the document element) and string handles
/// of the chart's string handler; -1 as an optional string means none. They check
/// first, change nothing when a check fails, report the refusal with the place of
/// the call, and return a handle or another non-negative number, or -1.
class CHARTXML_API Chart : public ChartBase {
public:
  static constexpr XMLCh _elementgroup[] = u"elementGroup";
  static constexpr XMLCh _styleby[] = u"styleBy";
  static constexpr XMLCh _stylecycle[] = u"styleCycle";
  static constexpr XMLCh _meta[] = u"meta";
  static constexpr XMLCh _fill_pattern[] = u"fill-pattern";
  static constexpr XMLCh _transparent[] = u"transparent";
  static constexpr XMLCh _numberformat[] = u"numberFormat";
  static constexpr XMLCh _stringformat[] = u"stringFormat";
  static constexpr XMLCh _datetimeformat[] = u"dateTimeFormat";
  static constexpr XMLCh _histogram[] = u"histogram";
  static constexpr XMLCh _bin[] = u"bin";
  static constexpr XMLCh _lowermapping[] = u"lowerMapping";
  static constexpr XMLCh _uppermapping[] = u"upperMapping";
  static constexpr XMLCh _facetssharescale[] = u"facetsShareScale";
  static constexpr XMLCh _sameratio[] = u"sameRatio";
  static constexpr XMLCh _safe[] = u"safe";
  static constexpr XMLCh _sort[] = u"sort";
  static constexpr XMLCh _gridlines[] = u"gridLines";
  static constexpr XMLCh _tablefacet[] = u"tableFacet";
  static constexpr XMLCh _coordinatefacet[] = u"coordinateFacet";
  static constexpr XMLCh _facetlabeling[] = u"facetLabeling";
  static constexpr XMLCh _facetlabel[] = u"facetLabel";
  static constexpr XMLCh _facetvariable[] = u"facetVariable";
  static constexpr XMLCh _facetstyle[] = u"facetStyle";
  static constexpr XMLCh _cellstyle[] = u"cellStyle";
  static constexpr XMLCh _coordinatetransform[] = u"coordinateTransform";

  /// What the output side does to a chart after it is built.
  using PostProcessingChartType = int;

  // Life

  Chart(int chartHandle, ChartStringHandler* stringHandler);
  ~Chart();
  Chart(const Chart&) = delete;
  Chart& operator=(const Chart&) = delete;

  /// Builds the document's skeleton; false when no document can be made.
  bool CreateChart();
  /// The document as it stands, for reading: what changes it by another way than
  /// this class is not seen when the next node is placed.
  xercesc::DOMDocument* getChart() const;

  // Settings

  void SetDataSource(const KORVA_DataSource* source) { dataSource_ = source; }
  /// 1 or 2: returns 1; anything else: -1, silently.
  int SetChartType(PostProcessingChartType type);
  /// From now on every data value is stored as a number.
  void SetAllDataDoubles() { allDataDoubles_ = true; }
  /// 0, or -1 for an empty name, which keeps the former one.
  int SetChartTemplate(const std::string& name);
  /// Kept for its callers; does nothing and returns -1.
  int SetNumberFormatMinFractionDigits(int numberFormat, int digits);
  /// Names the document element; null changes nothing.
  void AddGraphName(const XMLCh* name);
  /// The chart's description, sent beside the document. 0, or -1 when empty.
  int CreateChartDescription(int string);
  /// The split groups that the chart stands for, sent beside the document. 0, or -1
  /// when empty.
  int SetSplitHeader(int string);

  // Handles, ids and styles

  /// Gives an element the next handle, which it answers.
  int mapElement(xercesc::DOMElement* element,
                 std::source_location where = std::source_location::current());
  /// The element under a handle, or null.
  xercesc::DOMElement* getElement(int handle) const;
  /// The handle of an element, or -1.
  int getHandle(const xercesc::DOMElement* element) const;
  int AddEmptyElement(xercesc::DOMElement& parent, const XMLCh* name, xercesc::DOMElement*& out);
  /// A node with a text about its parent.
  int AddDescription(int parent, int name);
  /// Copies the attributes of one node to another. 0, or -1.
  int CopyAttributes(int from, int to);

  /// The first node of the list whose "id" is `id`, or null.
  static xercesc::DOMNode* findNodeById(const xercesc::DOMNodeList& nodes, const XMLCh* id);
  /// The "style" child of that id, or null.
  static xercesc::DOMElement* findStyle(const xercesc::DOMElement& parent, const XMLCh* id);
  /// Inserts before the first child named in the set, else appends; a child that stands
  /// elsewhere leaves its place. Always true.
  bool insertBeforeSiblings(xercesc::DOMElement& parent, xercesc::DOMElement& child,
                            ConstChartStringSet names);
  /// Whether XML 1.0 allows every character of the text.
  static bool isValidXMLString(const ChartString& text);

  /// Gives an element its id and the style that goes with it; the number that
  /// the id counter had, or -1 for an id that is in use.
  int AddIDAttribute(xercesc::DOMElement& element, const XMLCh* id, bool sharedStyle,
                     std::source_location where = std::source_location::current());
  /// The same with the id "<element name>_<text>"; a negative handle, or a text
  /// whose id is in use, which is reported, gets the next number instead.
  int AddIDAttribute(xercesc::DOMElement& element, int stringHandle,
                     std::source_location where = std::source_location::current());
  /// Writes the id of the node under `handle` into an attribute.
  void AddIDREFAttribute(xercesc::DOMElement& element, int handle, const XMLCh* attribute);
  void AddIDAttributeStyle(xercesc::DOMElement& element, const XMLCh* id, bool sharedStyle,
                           std::source_location where);
  /// An entry of that id in a style container: 0, or -1, silently, when the id is
  /// in use.
  int AddStyle(xercesc::DOMElement& parent, const XMLCh* id);
  /// A detached "styleCycle", or null when its id is in use, which is reported.
  xercesc::DOMElement* AddStyleCycle(const XMLCh* id, const XMLCh* styleId,
                                     std::source_location where = std::source_location::current());
  /// Gives `target` a style of its own, named after `owner` and the attribute, unless
  /// that name is in use, which is reported.
  void AddStyleAttribute(const xercesc::DOMElement& owner, xercesc::DOMElement& target,
                         const XMLCh* attribute,
                         std::source_location where = std::source_location::current());

  // Checks; each reports what it refuses

  bool validHandle(int handle, const char* what,
                   std::source_location where = std::source_location::current()) const;
  bool validID(const XMLCh* id, std::source_location where = std::source_location::current()) const;
  bool validRole(int role, std::source_location where = std::source_location::current()) const;
  bool validDataSource(std::source_location where = std::source_location::current()) const;
  bool validVariable(int index) const;
  bool validVariableList(int list) const;

  // Frames and sources

  int AddSource();
  int AddFrame(int parent, int suffix);
  int SetFrameClipping(int frame, bool clip);

  // Facets and coordinates

  /// The table facet below a frame; made when there is none.
  int AddTableFacet(int frame);
  /// The facet labeling below a frame; made when there is none.
  int AddFacetLabeling(int frame);
  int AddCoordinateFacet(int frame);
  int AddNest(int parent);
  int AddBlend(int parent);
  int AddCross(int parent);
  int AddFacetVariable(int parent, int role, int variable);
  int AddFacetLabel(int facetLabeling, int suffix, int level, bool reverse);
  /// The label of that level, or -1, silently.
  int GetFacetLabel(int facetLabeling, int level);
  int SetFacetLabelLevel(int facetLabel, int level);
  /// The gap of a facet label or of a facet variable.
  int SetFacetLabelGap(int facetLabel, int gap);
  int SetFacetLabelCellStyle(int facetLabel, int suffix);
  int SetFacetLabelingCellAspect(int facetLabeling, double aspect);
  /// A style for the panels that `when` names.
  int AddFacetStyle(int elementOrGridLines, int when, int suffix);
  int AddCoordinateTransform(int frame, int method);

  // Variables; `column` counts the data source's columns from 0

  int AddVariable(int source, int column, bool categorical);
  /// The same for values that label others.
  int AddLabelingVariable(int source, int column, bool categorical);
  /// The weight of the cases.
  int AddWeightVariable(int source, int column);
  /// A variable with the same attributes and a new id, without values of its own.
  int CopyVariable(int variable);
  /// Points a variable at another column; labels that the column lacks stay.
  int SetVariable(int variable, int column, bool categorical);
  /// Marks a variable as computed outside; its meta.
  int SetVariableExternal(int variable);
  /// Backslash and "n" in a label or name become a line feed.
  int SetVariableLabel(int variable, int label);
  int SetVariableName(int variable, int name);
  /// Makes a variable a constant.
  int SetVariableValue(int variable, int value);
  int SetVariableCategorical(int variable, bool categorical);
  /// A new string with the variable's label, or its short label when it has none.
  int GetVariableLabel(int variable) const;
  /// The packed display format of a column.
  int GetVariableFormat(int column) const;
  /// The column of a variable node, or -1.
  int getKORVAVarIndex(int variable) const;
  /// Marks a variable for a log scale. Returns -1 in every case.
  int CreateLogVar(int variable);
  int AddRelabel(int variable, int from, int to);
  int AddRelabels(int variable, int column);
  /// Sets label and short label from a column, each when it has one. 0, or -1.
  int AddVariableLabels(xercesc::DOMElement& variable, int column);
  /// Gives a variable its column in the store. Always true.
  bool mapSourceName(int variable, const XMLCh* sourceId, const XMLCh* sourceName);
  /// Exchanges the ids of two variables, so that what refers to one by its id reaches
  /// the other, and their metas' creators when both have a meta. 0.
  int swapVariables(xercesc::DOMElement& first, xercesc::DOMElement& second);

  // Lists of variables, from 0, and variables derived from them

  int BeginVariableList();
  /// The list; a variable may be added again.
  int AddToVariableList(int list, int variable);
  /// All members at once, labelled as the x axis in role 1, else as the y axis.
  int AddOverlayVariable(int list, int role);
  int AddRangeVariable(int list);
  /// The members one by one, each with a constant that tells its label.
  int AddMatrixVariable(int list);

  // Computed variables

  int AddAggregate(int source, int name, bool categorical, int label, int shortLabel, int domain);
  int AddLabelingAggregate(int source, int name, bool categorical, int label, int shortLabel,
                           int domain);
  /// The same, with a meta that says that it weights cases.
  int AddWeightAggregate(int source, int name, int label);

  // Data; the source is not read

  int AddRow(int source);
  int AddDataValue(int source, int variable, int string);
  int AddDoubleDataValue(int source, int variable, double value);
  /// Whole columns: the values of rows from `firstRow`, which counts from 1, on; rows
  /// that are not there yet are added. 0, or -1 when the variable has no column.
  int LoadNumbers(int variable, int firstRow, std::span<const double> numbers);
  int LoadTexts(int variable, int firstRow, std::span<const ChartString> texts);

  // Display formats; an element is a variable or its meta

  /// The meta of a variable, made when it has none.
  int AddMeta(xercesc::DOMElement& parent, xercesc::DOMElement*& meta);
  int AddMeta(int variable);
  /// Adds what the column's, or a packed, display format shows to the variable's meta;
  /// the meta, or -1 for a type that is neither number nor date.
  int AddMetaFormat(xercesc::DOMElement& variable, int column);
  int AddMetaFormatFromCode(xercesc::DOMElement& variable, long packed);
  /// The same in place of the formats that the meta has.
  int SetMetaFormat(xercesc::DOMElement& meta, long packed);
  /// The same with a variable that has a meta; the variable.
  int SetVariableFormat(int variable, long packed);
  /// Each answers the meta.
  int AddNumberMeta(xercesc::DOMElement& variable, int type, int width, int decimals);
  int AddDateMeta(xercesc::DOMElement& variable, int type, int width);
  int AddStringMeta(xercesc::DOMElement& variable);
  /// Adds the column's display format to a meta. Returns -1 in every case.
  int AddFormat(int meta, int column);
  int SetMetaWeight(int meta, bool weight);
  /// The first number format below a variable, or -1.
  int getVariableNumFormat(int variable) const;
  /// Number formats are added to what the node has, other formats take its place.
  int AddNumberFormat(int parent);
  int AddNumberFormat(int meta, int type, int width, int decimals);
  int AddStringFormat(int meta);
  /// 0 for a format of weeks, which has a prefix; -1 for any other, also when made.
  int AddDateFormat(int meta, int type, int width);
  /// Appends a format without parts. 0, or -1 when neither prefix nor suffix was set.
  int AddDateTimeFormat(xercesc::DOMElement& parent, xercesc::DOMElement*& out, int prefix,
                        int suffix);
  int SetNumberFormatMaxFractionDigits(int numberFormat, int string);
  int SetNumberFormatPrefix(int numberFormat, int string);
  int SetNumberFormatSuffix(int numberFormat, int string);
  int SetNumberScientific(int numberFormat, bool on);

  // Elements

  int AddElement(int parent, int type, int suffix);
  /// An element over bins of x and y, each bin sized by its count.
  int AddBinnedElement(int parent, int type, int suffix, int xVariable, int yVariable);
  int AddElementGroup(int frame, int suffix);
  /// The name of an element or a guide.
  int SetElementName(int element, int name);
  int SetElementDot(int element, int dot);
  int SetElementPositionModifier(int element, int modifier);
  /// Stacks, or does not stack, the element of a position; the position.
  int AddStack(int position, bool stack);
  int AddStatistic(int parent, int method);
  int AddParam(int statistic, int name, int value);
  /// Notes which summary of a variable the chart shows, unless one is noted; the code,
  /// or -1 for a code that is none, silently. `first` and `second` are its values.
  int SetSummaryFunction(int variable, int code, double first, double second);
  int AddLabel(int parent, int suffix, int content);
  /// Gives an element its box, unless it has one. A null unit is none.
  void AddLocation(xercesc::DOMElement& element, const XMLCh* unit, double left, double top,
                   double right, double bottom);

  // Positions

  int AddPosition(int element);
  int AddX(int parent, int variable);
  int AddY(int parent, int variable);
  int AddZ(int parent, int variable);
  int AddR(int parent, int variable);
  int AddTheta(int parent, int variable);
  int AddPhi(int parent, int variable);

  // Other aesthetics

  int AddColor(int element, int variable);
  int AddSize(int elementOrLabeling, int variable);
  /// 0, or -1 for another node, silently.
  int SetSizeLow(int size, int low);
  int SetSizeHigh(int size, int high);
  int AddStyleBy(int element, int variable);
  int AddStyleByColor(int element, int variable);
  int AddStyleByPattern(int element, int variable);
  int AddStyleByColorAndPattern(int element, int variable);
  int AddSplit(int element, int variable);
  int AddLabeling(int element, int variable);
  int AddLabelingSuffix(int element, int variable, int suffix);
  /// The copy of a variable that aesthetics refer to, made when there is none, which
  /// `made` tells; null for null.
  xercesc::DOMElement* getAestheticVariable(xercesc::DOMElement* variable, bool& made);

  // Dimensions

  /// The node below a frame that has the role; a new dimension when there is none.
  int AddDimension(int frame, int role, int domain);
  /// The first dimension of that role anywhere below a frame, or -1, silently.
  int GetDimension(int frame, int role);
  int SetDimensionDomain(int dimension, int domain);
  /// Method 124 is the natural logarithm, whose value is not read.
  int SetDimensionScale(int dimension, int method, int value, bool invert);
  int SetDimensionLowerMargin(int dimension, int margin);
  int SetDimensionUpperMargin(int dimension, int margin);
  int SetDimensionLowerMapping(int dimension, int mapping);
  int SetDimensionUpperMapping(int dimension, int mapping);
  int SetUnionDomain(int dimension);
  int SetFacetsDifferentScale(int dimension);

  // Domains

  int AddDomain(bool categorical);
  int AddInterval(int domain, int min, int max);
  int AddDomainReference(int domain, int domainOrVariable);
  /// Sets the order on the domain's first sort, made when there is none.
  int SetDomainDescending(int domain, bool descending);
  int AddSort(int domain);
  int AddSimpleSort(int sort);
  int SetSimpleSortMethod(int simpleSort, int method);
  int AddStatisticSort(int sort, int sourceVariable, int statVariable);
  int SetSortDescending(int sort, bool descending);

  // Axes

  /// An axis; `opposite` puts it at the far side of the frame.
  int AddAxis(int parent, int suffix, bool opposite);
  /// Strings, each or none: where ticks stand, their length, the angle of their labels in
  /// degrees and the distance between two. Grid lines have a handle of their own, the one
  /// before their ticks'.
  int AddMajorTicks(int parent, int position, bool gridLines, int length, int labelAngle,
                    bool stagger, int delta);
  /// The same with the number of ticks between two major ones.
  int AddMinorTicks(int axis, int position, bool gridLines, int length, int number);
  int AddTransform(int parent, int method);

  // Guides and legends

  int AddGuide(int frame, int type, int suffix);
  /// A line at a value of x (role 1) or y (role 2); no place in another role.
  int AddReferenceLine(int frame, int role, int value, int styleIndex);
  int AddYFunctionOfX(int frame, int function, int styleIndex);
  int AddLegend(int frame, int suffix);
  int AddLegendTarget(int legend, int elementOrGuide, int suffix, int aesthetic);
  /// The same with the styleBy node that the legend explains.
  int AddLegendTargetEx(int legend, int elementOrGuide, int styleBy, int suffix);

  // Adjustments of what is there

  /// Gives the dimension its ratio, whatever its kind the node is answered, and the
  /// chart's first facet labeling square cells.
  int SetDimensionSameRatio(int dimension, bool same);
  /// The bin width of every histogram. 1, or -1 when there is none or the width is
  /// not positive, silently.
  int SetBinWidth(double width);
  /// An interval from -extent to extent for every domain; results alike.
  int SetXYDimensionSameScale(double extent);
  int SetDisplayOverlappingLabels(int element, bool display);
  int SetLabelCollisionHandling(int element, int handling);

  // Finishing

  /// Completes the chart and sends it. 0, or -1; a second call is not meant.
  int EndChart();
  /// Attaches the styles to the document, which EndChart does. 0, or -1.
  int AddStyles();
  /// In a chart with facets, makes aesthetics refer to copies of their variables, which
  /// have no domain; one that refers to another kind of node is passed over. The result
  /// of the last exchange, or -1 when there was none.
  int updateGroupedChart();
  /// Moves the summaries that SetSummaryFunction noted from the variables' descriptions
  /// to where the output side looks for them.
  void updateVariableStatistics(ZephVisualization& chart) const;
  /// Assigns the printed document to `buffer`.
  void GetXmlBuffer(std::string& buffer, bool printWhiteSpace) const;
  /// Turns the y scale's "safe" parameter off. Returns -1 in every case.
  int SetLogUnsafe();

  // Who made the nodes

  /// Counts the call that is running, once.
  void countCall();
  /// Tells which calls made the nodes.
  void visitCalls(const host::TakeCall& take) const;

private:
  using Where = std::source_location;
  using Element = xercesc::DOMElement;

  struct MeasureRule;
  struct Maker {
    const char* name; ///< the entry point, or the function of an operation
    unsigned call;    ///< counts from 1
  };

  // Checks of arguments that several operations share
  bool validString(int string, const char* what, Where where) const;
  bool validOptionalString(int string, const char* what, Where where) const;
  Element* elementOfKind(int handle, const XMLCh* kind) const;
  bool valid(int handle, const NodeRule& rule, Where where) const;
  Element* accepted(int handle, const NodeRule& rule, Where where) const;
  bool hasColumn(int index) const;
  const KORVA_Variable* columnAt(int index) const;
  void report(const std::string& message, Where where) const;

  // Making nodes
  Element& makeElement(const XMLCh* name);
  Element& appendElement(Element& parent, const XMLCh* name);
  int append(Element& parent, Element& child, Where where = Where::current());
  int place(Element& parent, Element& child, ConstChartStringSet before,
            Where where = Where::current());
  Maker makerNow(Where where);
  int addChild(int parent, const ChildRule& rule, Where where);
  void takeOut(Element& child);

  // Writing texts
  const XMLCh* legalText(const XMLCh* text, std::size_t length);
  const XMLCh* legalText(int string);
  std::u16string brokenIntoLines(int string);
  void setText(Element& element, const XMLCh* attribute, int string);
  void setOptionalText(Element& element, const XMLCh* attribute, int string);
  static void setFlag(Element& element, const XMLCh* attribute, bool on);
  int setAttribute(int node, const AttributeRule& rule, const XMLCh* value, Where where);
  int setAttributeFlag(int node, const AttributeRule& rule, bool on, Where where);
  int setAttributeText(int node, const AttributeRule& rule, int string, Where where);
  std::u16string styleName(const XMLCh* stem, int suffix);
  void setOwnStyle(Element& element, const XMLCh* attribute, const std::u16string& style);

  // Shared courses of operations
  int giveId(Element& element, const XMLCh* id, bool sharedStyle, Where where);
  int addMeasure(int parent, int variable, const MeasureRule& rule, Where where);
  int addRole(int parent, int variable, int role, ConstChartStringSet before, Where where);
  Element* aestheticParent(int element, int variable, const NodeRule& rule, Where where) const;
  Element& makeBound(const XMLCh* name, int variable);
  int addAesthetic(int element, int variable, const ChildRule& rule, Where where);
  int addStyleBy(int element, int variable, const ChildRule& rule, const XMLCh* cycle, Where where);
  int addStyleByCycle(int element, int variable, const XMLCh* cycle, Where where);
  Element* addNamedCycle(const XMLCh* id);
  void writeStyleValues() const;
  bool formatMeta(Element& variable, long packed);
  void appendToStyle(const Element& element, std::u16string_view text);
  void labelSkeletonFrame(int frame, int suffix);
  void noteRole(const Element& node);
  Element* childInRole(const Element& parent, int role, const XMLCh* name) const;
  Element* firstBelow(const Element& root, const XMLCh* name, int kind,
                      const XMLCh* role = nullptr) const;
  int addOnce(int frame, const ChildRule& rule, int kind, Where where);
  int addFacetPart(int parent, const XMLCh* name, Where where);
  Element* facetWithRoom(int handle, Where where) const;
  Element* sortOf(Element& domain);
  int keepIfWhole(int guide, bool whole);
  Element& makeLegendTarget(int elementOrGuide, int suffix, Where where);
  int setNumberFormatText(int numberFormat, int string, const XMLCh* attribute, const char* what,
                          Where where);
  Element& makeColumnVariable(int source, int column, const std::u16string& name);
  int enterColumnVariable(Element& variable, const Element& source, int column,
                          const std::u16string& name, Where where = Where::current());
  int placeVariable(Element& variable, Where where = Where::current());
  Element& copyWithoutId(const Element& original);
  void addVariableLabel(Element& variable, const XMLCh* attribute, const char* text);
  std::u16string nextVariableName() const;
  const VarDataProcessor::_varinfo* storeOf(int variable);
  void noteRow(bool stored, Where where = Where::current());
  std::size_t currentRow() const;
  bool storeText(const VarDataProcessor::_varinfo& store, std::size_t row, const ChartString& text);
  const VarDataProcessor::_varinfo* storeOfRows(int variable, int firstRow, std::size_t count,
                                                Where where);
  Element* knownMeta(Element& variable);
  Element& metaOf(Element& variable);
  static void setCreator(Element& meta, const XMLCh* origin, const XMLCh* kind);
  const XMLCh* sourceIdOf(const Element& sourceOrVariable) const;
  Element& describedMeta(Element& variable);
  void describeAsLabeling(Element& variable);
  static const XMLCh* labelOf(const Element& variable);
  int setVariableText(int variable, int string, const char* what, const XMLCh* attribute,
                      Where where);
  std::vector<int>* variableList(int list, const char* operation, Where where);
  bool isVariableOfGraph(const XMLCh* id) const;
  static void addTerm(std::u16string& expression, std::u16string_view term);
  void addLabelVariable(const Element& member, const std::u16string& id);
  int addDerivedVariable(const std::u16string& expression, int shortLabel,
                         Where where = Where::current());
  std::u16string aggregateName(int name);
  Element& appendRelabel(Element& variable, const XMLCh* from, const XMLCh* to);
  std::vector<Element*> groupingsOfElements(const XMLCh* name) const;
  int addRelabel(Element& variable, const XMLCh* from, const XMLCh* to);
  void addGridLines(Element& ticks, const std::u16string& style);
  int addNumberFormat(Element& meta, int type, int decimals);
  int addStringFormat(Element& meta);
  int addDateFormat(Element& meta, int type, int width);
  void addDateParts(Element& format, const XMLCh* name, std::span<const dates::Part> parts,
                    int width);
  static void addCurrency(Element& format, int number);
  int send();

  xercesc::DOMDocument* document_ = nullptr;
  Element* styleContainer_ = nullptr;
  int nextHandle_ = 1;
  int variableListCount_ = 0;
  Element* defaultStyleCycle_ = nullptr;
  Element* repositoryStyleCycle_ = nullptr;
  Element* defaultStyleElement_ = nullptr;
  ChartString splitHeader_;
  ChartString description_;
  std::string chartTemplate_;
  PostProcessingChartType chartType_ = 0;
  ChartHashtable<Element> elements_;
  std::vector<Maker> makers_; ///< of the node of handle 1, 2, ...
  unsigned callCount_ = 0;
  std::uint64_t latestCall_ = 0;
  std::map<int, std::vector<int>> variableLists_;
  std::multimap<int, int> variableColumns_;
  std::map<int, std::unique_ptr<VarDataProcessor::_varinfo>> variableStores_;
  int nextIdNumber_ = 1;
  const KORVA_DataSource* dataSource_ = nullptr;
  std::unique_ptr<ChartErrorHandler> errorHandler_;
  ChartStringHandler* stringHandler_;
  int chartHandle_;
  int rowCount_ = 0;
  int sourceCount_ = 0;
  bool allDataDoubles_ = false;
  bool dataRefused_ = false;
  std::unique_ptr<VarDataProcessor> dataProcessor_;

  std::unique_ptr<ChildOrder> childOrder_;
  std::unique_ptr<KindsBelow> kindsBelow_;
  // Noted when somebody asks: most charts look no handle up.
  mutable std::unordered_map<const Element*, int> handles_;
  mutable int handlesNoted_ = 0;
  std::unordered_map<Element*, std::u16string> styleValues_; ///< as GetXmlBuffer writes them
  std::u16string scratch_;       ///< a text on its way into the document
  std::u16string idText_;        ///< an id on its way into the document
  bool illegalTextTold_ = false; ///< one report a chart
  bool lostRowTold_ = false;     ///< one report a chart
  // The store of the variable that got the latest value: values come in runs.
  int latestVariable_ = -1;
  const VarDataProcessor::_varinfo* latestStore_ = nullptr;
};
