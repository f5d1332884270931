#ifndef CHARTXML_ENTRYPOINTS_H
#define CHARTXML_ENTRYPOINTS_H

/* Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the
 * list, not this file.
 *
 * The entry points for procedures, in C and C++.
 *
 * Calling convention. Every argument is passed by its address, all but the procedure handle, which
 * is an address itself. Integers have 64 bits: the library reads the low 32 as a signed number,
 * but entry points of several steps compare all 64, so store every integer sign-extended; results
 * and outputs come back sign-extended. A logical is an integer: 0 is false, any other value true.
 * Reals have 64 bits.
 *
 * A text is the address of its first byte, then the address of its length: exactly that many bytes
 * in the process code page (UTF-8 unless the host says otherwise), without terminator, trailing
 * blanks kept. Bytes that are not valid become U+FFFD; a negative length is an empty text.
 * Arguments named "ignored" are never read.
 *
 * Handles. Charts count from 0; nodes count from 0 within their chart, and node 0 is its document
 * element; texts have string handles, 1 to 156 of which are predefined. Handles are numbers and
 * need no release. Variables go by the number that the procedure has for them, from 1.
 *
 * Ownership. The library copies texts and cells during the call and keeps no address of them. The
 * dictionary stays the procedure's; keep its data set open until the charts are ended.
 *
 * The value -1 means "absent" where an integer is optional, and failure where it is returned. A
 * check that fails changes nothing, but for strings made on the way; an entry point of several
 * steps ends at the first that fails, keeps the nodes of the others, and leaves the outputs of
 * later steps alone. Ending a chart consumes it also when it cannot be sent.
 *
 * Errors. Nothing is thrown or raised. What is refused is reported in one line, with the reason,
 * to the host's error log: a bad chart, node or string handle by every entry point, the rest as
 * told with each. "Silently" means without a report. Call from one thread.
 */

/* Arguments, by their names:
 *
 * procedureHandle: the procedure's handle, an opaque address; null when there is none
 * dictionary: the procedure's data dictionary, by the address of its pointer; a null pointer
 *     means that there are no data
 * procedureName: the procedure's name; it names the chart and picks the procedure's own string
 *     table
 * chart: a chart handle
 * source: node handle of a data source, as cx_addsource_ gave it
 * graph: node handle of the outer frame, which holds titles and legends
 * data: node handle of the inner frame, which holds the elements
 * pie: node handle of the inner frame, which holds the elements
 * parent: node handle of the node that takes the new one
 * node: node handle
 * frame: node handle of a frame
 * element: node handle of an element
 * dimension: node handle of a dimension
 * facetLabeling: node handle of a facet labeling
 * facetLabel: node handle of a facet label
 * facetLabelOrVariable: node handle of a facet label or facet variable
 * facet: node handle of a table or coordinate facet, or of a nest, blend or cross in it
 * elementOrGridLines: node handle of an element, or of grid lines: the one before their ticks
 * styleByNode: node handle of the styleBy that the legend explains, or -1
 * styleBy: node handle of the styleBy that the legend explains
 * target: node handle of the element or guide that the legend explains
 * variable: node handle of a variable
 * variableNumber: number of a variable of the procedure, from 1
 * x: node handle of the variable at x
 * y: node handle of the variable at y
 * variables: node handles of the variables
 * variableCount: how many variables there are
 * domain: node handle of a domain; for a new dimension or variable also -1: none
 * domainOrVariable: node handle of a domain or variable
 * sort: node handle of a domain's sort
 * simpleSort: node handle of a simple sort
 * sourceVariable: node handle of the variable that is sorted
 * statVariable: node handle of the variable whose values give the order
 * xDomain: node handle of the x dimension's domain, or -1
 * yDomain: node handle of the y dimension's domain, or -1
 * formatParent: node handle of the node that takes the number format
 * categorical: whether the values are categories
 * label: string handle of a label, or -1
 * shortLabel: string handle of a short label, or -1
 * from: string handle of a value as text
 * to: string handle of the text to show instead
 * rowSource: not read: rows are counted for the whole chart
 * value: the value
 * valueString: string handle of the value
 * cells: the value's cells, eight bytes each, as a data set gives them
 * splitCells: the cells of the split variables' values, one after the other
 * splitCount: how many split variables there are
 * showSplits: whether to show the split variables
 * keyed: whether to introduce them by words of the string table, else by a semicolon
 * weightNumber: number of the weight variable, from 1; 0 or less: there is none
 * tellsCases: whether the text says that cases are weighted, else only by what
 * maxLength: the most bytes to show, or 0 or less for all
 * showName: whether to show names
 * showLabel: whether to show labels
 * showValue: whether to show values
 * showValueLabel: whether to show value labels
 * number: the number
 * format: display format packed as type * 65536 + width * 256 + decimals, or -1: as for
 *     machines
 * packedFormat: display format packed as type * 65536 + width * 256 + decimals
 * text: the text
 * key: a key of the string table, or any text
 * pattern: a key of the string table, or the pattern itself; "^1" is the first parameter
 * templateName: the name of a chart template
 * composite: string handle of an open composite
 * parameter: string handle of the parameter's text
 * string: string handle
 * description: string handle of the description
 * type: string handle of the kind, such as 23 "point" or 21 "line"
 * chartType: 1 or 2
 * method: string handle of the method's name
 * name: string handle of a name
 * display: whether labels are shown that would cover others
 * handling: string handle of what happens to labels that would cover others
 * content: string handle of the text to show, or -1; backslash and "n" become a line feed
 * suffix: string handle that names the node and its style, or -1: it gets a number
 * level: the level's number
 * levelText: string handle of the level's number
 * gap: string handle of the gap between panels
 * aspect: height of a panel over its width
 * when: string handle that tells which panels, such as 136 "matrixscatterdiagonal"
 * reverse: whether the order is turned round
 * clip: whether elements end at the frame
 * role: 1 x, 2 y, 3 z, 4 r, 5 theta, 6 phi, 7 position
 * axisRole: 1 x, 2 y, 3 z
 * min: string handle of the interval's lower end
 * max: string handle of the interval's upper end
 * extent: the largest distance from 0; nothing happens unless it is positive
 * binWidth: the width of a bin; nothing happens unless it is positive
 * scaleMethod: 116 log, 118 exponent, 124 natural logarithm, or string handle of another
 *     method
 * scaleValue: string handle of the base or exponent; not read for 124
 * invert: whether the scale runs the other way
 * sameRatio: whether a unit has the same length in all such dimensions
 * sortMethod: string handle of the method, such as 93 "natural", or -1: no sort
 * descending: whether the largest comes first
 * margin: string handle of the margin, such as "5%"
 * mapping: string handle of the mapping
 * upperMargin: string handle of the margin, or -1
 * lowerMargin: string handle of the margin, or -1
 * upperMapping: string handle of the mapping, or -1
 * lowerMapping: string handle of the mapping, or -1
 * xUpperMargin: string handle of the margin, or -1
 * xLowerMargin: string handle of the margin, or -1
 * yUpperMargin: string handle of the margin, or -1
 * yLowerMargin: string handle of the margin, or -1
 * xUpperMapping: string handle of the mapping, or -1
 * xLowerMapping: string handle of the mapping, or -1
 * yUpperMapping: string handle of the mapping, or -1
 * yLowerMapping: string handle of the mapping, or -1
 * opposite: whether the axis stands at the far side
 * xOpposite: whether the x axis stands at the far side
 * yOpposite: whether the y axis stands at the far side
 * position: string handle of the ticks' position, or -1
 * gridLines: whether grid lines go with the ticks
 * length: string handle of the ticks' length, or -1
 * labelAngle: string handle of the tick labels' angle in degrees, or -1
 * stagger: whether tick labels stand at two heights by turns
 * tickCount: string handle of the number of minor ticks between two major ones, or -1
 * delta: string handle of the distance between ticks, or -1
 * styleKind: string handle of the style's name, such as 17 "title"
 * styleIndex: the style's number
 * guideStyle: the style's number, or -1: no style of its own
 * function: string handle of the function's formula in x
 * aesthetic: string handle of the aesthetic shown, such as 36 "styleBy", or -1
 * intercept: the intercept
 * slope: the slope
 * b1: the formula's first coefficient
 * b2: the formula's second coefficient
 * b3: the formula's third coefficient
 * b4: the formula's fourth coefficient
 * dateScale: whether x counts from the first day of the date scale
 * style: string handle of the style's name
 * axis: node handle of the axis
 * xStyle: string handle of the x axis's style
 * xAxis: node handle of the x axis
 * yStyle: string handle of the y axis's style
 * yAxis: node handle of the y axis
 * legend: node handle of the legend
 * list: handle of a list of variables, as cx_beginvariablelist_ gave it
 * caption: string handle of the text to show
 * dot: string handle of the way of stacking
 * modifier: string handle of the way, such as 87 "stack" or 88 "dodge"
 * labelStyle: string handle that names the style, or -1
 * summary: code of the summary, -1 to 26, such as 8 for the mean
 * firstValue: the first value, where the summary has one
 * secondValue: the second value, where the summary has two
 * statistic: node handle of a statistic, transform or guide
 * elementOrLabeling: node handle of an element or labeling
 * size: node handle of a size
 * low: string handle of the lowest size
 * high: string handle of the highest size
 * positionNode: node handle of a position
 * stack: whether the element is stacked
 * lineRole: 1 x, 2 y
 * legendNode: node handle of a legend
 * meta: node handle of a meta
 * weight: whether the variable weights cases
 * column: number of a column of the data, from 0
 * formatType: type code of a display format, such as 5 for plain numbers
 * formatWidth: how many characters are shown at most
 * decimals: how many decimals are shown
 * numberFormat: node handle of a number format
 * fractionDigits: the digits after the decimal sign at least
 * fractionDigitsString: string handle of the number of digits after the decimal sign at most
 * prefix: string handle of what stands before the number
 * unitSuffix: string handle of what stands behind the number
 * scientific: whether an exponent is shown
 * firstRow: the row of the first value, from 1
 * numbers: the numbers
 * numberCount: how many numbers there are
 * texts: the texts, one behind the other, each filled up with blanks to the length
 * textCount: how many texts there are
 * buffer: room for a text, and how many bytes that is
 * path: the path of a folder
 * callName: the name of the call, for messages
 * failed: whether the call gave no result, or none that tells
 * mayBeSilent: whether that is in order unless something was reported
 * wanted: whether the caller takes the messages
 */

#include <stdint.h>

#include <chartxml/Export.h>

/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/* Charts */

/** Starts the library for several charts: texts and data then live until cx_terminate_, where
 *  they otherwise go with the last chart. Returns 0. */
CHARTXML_API int64_t cx_init_(void* procedureHandle, void* const* dictionary,
                              const char* procedureName, const int64_t* procedureNameLength);

/** Makes an empty chart and gives it the procedure's data. Returns the chart handle, from 0
 *  upward. */
CHARTXML_API int64_t cx_createchart_(void* procedureHandle, void* const* dictionary,
                                     const char* procedureName, const int64_t* procedureNameLength);

/** Makes a chart with one data source, an outer frame "graph_1" that clips and in it a frame
 *  "data_1" that does not. Returns the chart handle. */
CHARTXML_API int64_t cx_createchartex_(void* procedureHandle, void* const* dictionary,
                                       const char* procedureName,
                                       const int64_t* procedureNameLength, int64_t* chart,
                                       int64_t* source, int64_t* graph, int64_t* data);

/** Makes a chart with one data source, an outer frame "graph_1" and in it a frame "pie_1" that
 *  clips. Returns the chart handle. */
CHARTXML_API int64_t cx_createpiechart_(void* procedureHandle, void* const* dictionary,
                                        const char* procedureName,
                                        const int64_t* procedureNameLength, int64_t* chart,
                                        int64_t* source, int64_t* graph, int64_t* pie);

/** Says what the output side does to the chart after it is built. Returns 1, or -1 for another
 *  type, silently. */
CHARTXML_API int64_t cx_setcharttype_(const int64_t* chart, const int64_t* chartType);

/** Names the template that the chart is drawn with. Returns 0, or -1 for an empty name,
 *  silently. */
CHARTXML_API int64_t cx_setcharttemplate_(const int64_t* chart, const char* templateName,
                                          const int64_t* templateNameLength);

/** Describes the chart for readers who do not see it. Returns 0, or -1 for an empty text,
 *  silently. */
CHARTXML_API int64_t cx_setchartdescription_(const int64_t* chart, const char* text,
                                             const int64_t* textLength);

/** Describes the chart for readers who do not see it, by a string handle. Returns 0, or -1 for
 *  an empty text, silently. */
CHARTXML_API int64_t cx_createchartdescription_(const int64_t* chart, const int64_t* description);

/** Says which split groups the chart stands for: "label: value, label: value" of the split
 *  variables goes with the chart. Returns 0, or -1 for an empty text, silently. Reports that
 *  there are no data. */
CHARTXML_API int64_t cx_setsplitcomposite_(const int64_t* chart, const void* splitCells,
                                           const int64_t* ignored1);

/** Completes the chart, sends it and forgets it; it is gone also when sending failed. While
 *  bootstrapping, nothing is sent and the result is -1. Returns 0. */
CHARTXML_API int64_t cx_endchart_(const int64_t* chart);

/** Discards a chart without sending it; a bad chart handle is ignored silently. Returns 0 in
 *  every case. */
CHARTXML_API int64_t cx_killchart_(const int64_t* chart);

/** Discards every chart without sending it; chart handles start at 0 again. Returns 0 in every
 *  case. */
CHARTXML_API int64_t cx_killcharts_(void);

/** Ends the library with every chart, text and data source in it; a second time it does nothing.
 *  Returns 0. */
CHARTXML_API int64_t cx_terminate_(void);

/** Does nothing; kept for its callers. Returns -1 in every case. */
CHARTXML_API int64_t cx_dumpxml_(const int64_t* ignored1, const int64_t* ignored2,
                                 const int64_t* ignored3);

/** Does nothing; kept for its callers. Returns -1 in every case. */
CHARTXML_API int64_t cx_statisticssummary_(const int64_t* ignored1, const int64_t* ignored2,
                                           const int64_t* ignored3, const int64_t* ignored4);

/* Texts */

/** Registers the text of a string-table key in the output language; an unknown key stands for
 *  itself. Returns the new string handle. */
CHARTXML_API int64_t cx_nstring_(const int64_t* ignored, const char* key, const int64_t* keyLength);

/** Registers a text as it is. Returns the new string handle. */
CHARTXML_API int64_t cx_string_(const int64_t* ignored, const char* text,
                                const int64_t* textLength);

/** Registers a text as it is; the same as cx_string_. Returns the new string handle. */
CHARTXML_API int64_t cx_nstringnotranslate_(const int64_t* ignored, const char* text,
                                            const int64_t* textLength);

/** Opens a composite text, whose parameters cx_addparameter_ adds and which
 *  cx_endcompositestring_ closes. Returns the composite's string handle. */
CHARTXML_API int64_t cx_compositestring_(const int64_t* ignored, const char* pattern,
                                         const int64_t* patternLength);

/** Adds the next parameter to an open composite. Returns 0. Reports a string handle that is no
 *  open composite. */
CHARTXML_API int64_t cx_addparameter_(const int64_t* ignored, const int64_t* composite,
                                      const int64_t* parameter);

/** Opens a repeat list: the parameters that follow are its items until cx_endrepeat_. Returns 0.
 *  Reports a string handle that is no open composite. */
CHARTXML_API int64_t cx_beginrepeat_(const int64_t* ignored, const int64_t* composite);

/** Closes a repeat list. Returns 0. Reports a string handle that is no open composite. */
CHARTXML_API int64_t cx_endrepeat_(const int64_t* ignored, const int64_t* composite);

/** Closes a composite and puts its text together. Returns the composite's own string handle.
 *  Reports a string handle that is no open composite. */
CHARTXML_API int64_t cx_endcompositestring_(const int64_t* ignored, const int64_t* composite);

/** Registers a style name: the text of the kind, "_" and the number, such as "title_1". Returns
 *  the new string handle. */
CHARTXML_API int64_t cx_stylestring_(const int64_t* ignored, const int64_t* styleKind,
                                     const int64_t* styleIndex);

/** Registers the text of a whole number, as for machines. Returns the new string handle. */
CHARTXML_API int64_t cx_integer_(const int64_t* ignored, const int64_t* number);

/** Registers the text of a whole number in a display format. Returns the new string handle, or
 *  -1 for a format that shows no number, silently. */
CHARTXML_API int64_t cx_ivalue_(const int64_t* ignored, const int64_t* number,
                                const int64_t* format);

/** Registers the text of a whole number in a display format, as cx_lrvalueasstring_ does.
 *  Returns the new string handle, or -1 for a format that shows no numbers, silently. */
CHARTXML_API int64_t cx_ivalueasstring_(const int64_t* number, const int64_t* format);

/** Registers the text of a number, as for machines: the shortest that reads back to the same
 *  number. Returns the new string handle, or -1 for the system-missing value, silently. */
CHARTXML_API int64_t cx_double_(const double* number);

/** Registers the text of a number in a display format. Returns the new string handle, or -1 for
 *  the system-missing value and for a format that shows no number, silently. */
CHARTXML_API int64_t cx_lrvalue_(const int64_t* ignored, const double* number,
                                 const int64_t* format);

/** Registers the text of a number in a display format of numbers or dates. In a format of days
 *  of the week (26) or months (27) a number of up to 86400 is a code: 1 is Sunday or January,
 *  and codes go round. Returns the new string handle, or -1 for the system-missing value or a
 *  format that shows no numbers, silently. */
CHARTXML_API int64_t cx_lrvalueasstring_(const double* number, const int64_t* format);

/** Registers a value in its variable's display format. Returns the new string handle, or -1 for
 *  the system-missing value, silently. Reports a variable number out of range; that there are no
 *  data. */
CHARTXML_API int64_t cx_value_(const int64_t* variableNumber, const void* cells);

/** Registers a mean in its variable's display format with two more decimals. Returns the new
 *  string handle, or -1 for the system-missing value, silently. Reports a variable number out of
 *  range; that there are no data. */
CHARTXML_API int64_t cx_meanvalue_(const int64_t* variableNumber, const void* cells);

/** Registers a value's label, or the value in its display format when it has none. Returns the
 *  new string handle; the missing-value label for the system-missing value. Reports a variable
 *  number out of range; that there are no data. */
CHARTXML_API int64_t cx_valuelabel_(const int64_t* ignored1, const int64_t* variableNumber,
                                    const void* cells);

/** The same, shortened at a character. Returns the new string handle. Reports a variable number
 *  out of range; that there are no data. */
CHARTXML_API int64_t cx_valuelabelshort_(const int64_t* variableNumber, const void* cells,
                                         const int64_t* maxLength);

/** Registers a value's label in the string table's pattern for objects. Returns the new string
 *  handle. Reports a variable number out of range; that there are no data. */
CHARTXML_API int64_t cx_objectlabel_(const int64_t* variableNumber, const void* cells);

/** Registers one text of all split variables and their values. Returns the new string handle.
 *  Reports that there are no data, or no values of the split variables. */
CHARTXML_API int64_t cx_splitlist_(const int64_t* ignored1, const void* splitCells,
                                   const int64_t* ignored2, const int64_t* showName,
                                   const int64_t* showLabel, const int64_t* showValue,
                                   const int64_t* showValueLabel);

/** Registers "label: value, label: value" of the split variables. Returns the new string handle.
 *  Reports that there are no data, or no values of the split variables. */
CHARTXML_API int64_t cx_splitheader_(const void* splitCells, const int64_t* ignored1);

/** Registers a label followed by all split variables and their values. Returns the new string
 *  handle; the label itself when there are no split variables, or when the words of the string
 *  table are asked for and the values are not. Reports a bad label; that there are no data. */
CHARTXML_API int64_t cx_splitvariableinfo_(const int64_t* ignored, const int64_t* label,
                                           const void* splitCells, const int64_t* splitCount,
                                           const int64_t* showName, const int64_t* showLabel,
                                           const int64_t* showValue, const int64_t* showValueLabel,
                                           const int64_t* showSplits, const int64_t* keyed);

/** Registers the text that names the weight variable. Returns the new string handle, or -1 for a
 *  number of 0 or less, silently; that of the unfinished text when the label could not be added.
 *  Reports a variable number out of range; that there are no data. */
CHARTXML_API int64_t cx_weightinfo_(const int64_t* ignored1, const int64_t* ignored2,
                                    const int64_t* weightNumber, const int64_t* tellsCases);

/** Registers a variable's name. Returns the new string handle. Reports a variable number out of
 *  range; that there are no data. */
CHARTXML_API int64_t cx_variablename_(const int64_t* ignored1, const int64_t* ignored2,
                                      const int64_t* variableNumber);

/** Registers a variable's label, or its name when it has none. Returns the new string handle.
 *  Reports a variable number out of range; that there are no data. */
CHARTXML_API int64_t cx_variablelabel_(const int64_t* ignored1, const int64_t* ignored2,
                                       const int64_t* variableNumber);

/** Registers the label of a variable of another data set than the charts'. Returns the new
 *  string handle, or -1 when the charts have no data, silently. Reports a variable number out of
 *  range. */
CHARTXML_API int64_t cx_variablelabelfromdictionary_(void* procedureHandle, void* const* dictionary,
                                                     const int64_t* variableNumber);

/** Hands a text to the output system. Returns the output system's cell handle. Reports an empty
 *  text. */
CHARTXML_API int64_t cx_tosk_(const int64_t* ignored, const int64_t* string);

/* Variables and data */

/** Adds a data source, named "source" and its number from 0. Returns the new source. */
CHARTXML_API int64_t cx_addsource_(const int64_t* chart);

/** Declares a variable of the procedure as a column of a source, with its label and, when it is
 *  not categorical, its display format. Returns the new variable. Reports a variable number out
 *  of range; that there are no data. */
CHARTXML_API int64_t cx_addvariable_(const int64_t* chart, const int64_t* source,
                                     const int64_t* variableNumber, const int64_t* categorical);

/** Declares a variable of the procedure whose values label others. Returns the new variable.
 *  Reports a variable number out of range; that there are no data. */
CHARTXML_API int64_t cx_addlabelingvariable_(const int64_t* chart, const int64_t* source,
                                             const int64_t* variableNumber,
                                             const int64_t* categorical);

/** Declares the variable of the procedure that weights the cases. Returns the new variable.
 *  Reports a variable number out of range; that there are no data. */
CHARTXML_API int64_t cx_addweightvariable_(const int64_t* chart, const int64_t* source,
                                           const int64_t* variableNumber);

/** Points a variable node at another variable of the procedure, whose label and display format
 *  it takes; it keeps the column that its values are stored in. Returns the variable. Reports a
 *  variable number out of range; that there are no data. */
CHARTXML_API int64_t cx_setvariable_(const int64_t* chart, const int64_t* variable,
                                     const int64_t* variableNumber, const int64_t* categorical);

/** Marks a variable as computed outside the chart. Returns the variable's meta. */
CHARTXML_API int64_t cx_setaggregateexternal_(const int64_t* chart, const int64_t* variable);

/** Labels a variable; backslash and "n" become a line feed. Returns the variable. */
CHARTXML_API int64_t cx_setvariablelabel_(const int64_t* chart, const int64_t* variable,
                                          const int64_t* caption);

/** Gives a variable its short label; backslash and "n" become a line feed. Returns the variable. */
CHARTXML_API int64_t cx_setvariablename_(const int64_t* chart, const int64_t* variable,
                                         const int64_t* name);

/** Makes a variable a constant. Returns the variable. */
CHARTXML_API int64_t cx_setvariablevalue_(const int64_t* chart, const int64_t* variable,
                                          const int64_t* valueString);

/** Says whether the values of a variable are categories, which have no display format. Returns
 *  the variable. */
CHARTXML_API int64_t cx_setvariablecategorical_(const int64_t* chart, const int64_t* variable,
                                                const int64_t* categorical);

/** Registers a variable's label, or its short label when it has none. Returns the new string
 *  handle. */
CHARTXML_API int64_t cx_getvariablelabel_(const int64_t* chart, const int64_t* variable);

/** Declares a column that the procedure computes. The source may also be a variable: the column
 *  then joins that variable's source. The names 135, 140 and 141 stand for case number, count
 *  and percentage; any other is numbered. Returns the new variable. */
CHARTXML_API int64_t cx_addaggregate_(const int64_t* chart, const int64_t* source,
                                      const int64_t* name, const int64_t* categorical,
                                      const int64_t* label, const int64_t* shortLabel,
                                      const int64_t* domain);

/** Adds a computed variable that weights cases. Returns the new variable. */
CHARTXML_API int64_t cx_addweightaggregate_(const int64_t* chart, const int64_t* source,
                                            const int64_t* name, const int64_t* label);

/** Declares a column that the procedure computes and whose values label others, else as
 *  cx_addaggregate_ does. Returns the new variable. */
CHARTXML_API int64_t cx_addlabelingaggregate_(const int64_t* chart, const int64_t* source,
                                              const int64_t* name, const int64_t* categorical,
                                              const int64_t* label, const int64_t* shortLabel,
                                              const int64_t* domain);

/** Begins a list of variables. Returns the new list, from 0 upward. */
CHARTXML_API int64_t cx_beginvariablelist_(const int64_t* chart);

/** Adds a variable to a list; it may be there already. Returns the list. Reports a list that was
 *  not begun; a node that is no variable. */
CHARTXML_API int64_t cx_addtovariablelist_(const int64_t* chart, const int64_t* list,
                                           const int64_t* variable);

/** Declares the variable that shows all variables of a list at once, labelled as the x axis in
 *  role 1, else as the y axis. Returns the new variable. Reports a list that was not begun; a
 *  bad role. */
CHARTXML_API int64_t cx_addoverlayvariable_(const int64_t* chart, const int64_t* list,
                                            const int64_t* role);

/** The same in role 2. Returns the new variable. Reports a list that was not begun. */
CHARTXML_API int64_t cx_addrangevariable_(const int64_t* chart, const int64_t* list);

/** Declares the variable that shows the variables of a list side by side, each with a constant
 *  that tells its label. Returns the new variable. Reports a list that was not begun. */
CHARTXML_API int64_t cx_addmatrixvariable_(const int64_t* chart, const int64_t* list);

/** Tells a variable's display format. Returns the format, packed as type * 65536 + width * 256 +
 *  decimals. Reports a variable number out of range; that there are no data. */
CHARTXML_API int64_t cx_getvariableformat_(const int64_t* chart, const int64_t* variableNumber);

/** Replaces a variable's display format; a type that is neither of numbers nor of dates leaves
 *  none. Returns the variable. */
CHARTXML_API int64_t cx_setvariableformat_(const int64_t* chart, const int64_t* variable,
                                           const int64_t* packedFormat);

/** Marks a variable for a log scale. Returns the chart argument in every case. */
CHARTXML_API int64_t cx_createlogvar_(const int64_t* chart, const int64_t* variable);

/** Shows one value of a variable under another text. Returns the new relabel, or -1 for a text
 *  that XML does not allow, silently. Reports a node that is no variable. */
CHARTXML_API int64_t cx_addrelabel_(const int64_t* chart, const int64_t* variable,
                                    const int64_t* from, const int64_t* to);

/** Shows the values of a variable under their value labels. Returns the variable. Reports a node
 *  that is no variable; a variable number out of range; that there are no data. */
CHARTXML_API int64_t cx_addrelabels_(const int64_t* chart, const int64_t* variable,
                                     const int64_t* variableNumber);

/** Has every later data value stored as a number. Returns the chart argument in every case. */
CHARTXML_API int64_t cx_alldatadoubles_(const int64_t* chart);

/** Starts the next row of data; a bad chart handle is refused silently. Returns the number of
 *  rows. */
CHARTXML_API int64_t cx_addrow_(const int64_t* chart, const int64_t* rowSource);

/** Puts a text into the current row, as a number when it reads as one. A bad chart handle and a
 *  string handle of -1 are refused silently; a value that the chart refuses discards the whole
 *  chart. Returns 0, also when the node is no variable with a column. */
CHARTXML_API int64_t cx_adddatavalue_(const int64_t* chart, const int64_t* rowSource,
                                      const int64_t* variable, const int64_t* valueString);

/** Puts a number into the current row. A bad chart handle is refused silently; a value that the
 *  chart refuses discards the whole chart. Returns 0, also when the node is no variable with a
 *  column. */
CHARTXML_API int64_t cx_adddoubledatavalue_(const int64_t* chart, const int64_t* rowSource,
                                            const int64_t* variable, const double* value);

/* Frames, labels and facets */

/** Adds a frame to the document element (0) or to another frame. Returns the new frame. Reports
 *  any other parent. */
CHARTXML_API int64_t cx_addframe_(const int64_t* chart, const int64_t* parent,
                                  const int64_t* suffix);

/** Says whether a frame clips its elements. Returns the frame. */
CHARTXML_API int64_t cx_setframeclipping_(const int64_t* chart, const int64_t* frame,
                                          const int64_t* clip);

/** Gives a node its label, in place of one that it has. Returns the new label. */
CHARTXML_API int64_t cx_addlabel_(const int64_t* chart, const int64_t* parent,
                                  const int64_t* suffix, const int64_t* content);

/** Adds a frame with a label, such as a title (17), subtitle (16) or footnote (13). Returns the
 *  new frame. */
CHARTXML_API int64_t cx_addframewithlabel_(const int64_t* chart, const int64_t* parent,
                                           const int64_t* styleKind, const int64_t* styleIndex,
                                           const int64_t* content);

/** Adds a frame with the text of cx_splitheader_ as a subtitle. Returns the new frame. Reports
 *  that there are no data, or no values of the split variables. */
CHARTXML_API int64_t cx_addsplitheaderex_(const int64_t* chart, const int64_t* parent,
                                          const void* splitCells, const int64_t* ignored1);

/** Gives a frame its facet labeling, at most one; one anywhere below the frame counts. Returns
 *  the frame's facet labeling, new or known. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addfacetlabeling_(const int64_t* chart, const int64_t* frame);

/** Adds the labels of one facet level. Returns the new facet label. Reports a node that is no
 *  facet labeling. */
CHARTXML_API int64_t cx_addfacetlabel_(const int64_t* chart, const int64_t* facetLabeling,
                                       const int64_t* suffix, const int64_t* level,
                                       const int64_t* reverse);

/** Gives the panels of a facet label a style. Returns the facet label. Reports a node that is no
 *  facet label. */
CHARTXML_API int64_t cx_setfacetlabelcellstyle_(const int64_t* chart, const int64_t* facetLabel,
                                                const int64_t* suffix);

/** Finds the first facet label of a level. Returns the facet label, or -1 when there is none,
 *  silently. Reports a node that is no facet labeling. */
CHARTXML_API int64_t cx_getfacetlabel_(const int64_t* chart, const int64_t* facetLabeling,
                                       const int64_t* level);

/** Moves a facet label to another level. Returns the facet label, or -1 for any other node,
 *  silently. */
CHARTXML_API int64_t cx_setfacetlabellevel_(const int64_t* chart, const int64_t* facetLabel,
                                            const int64_t* levelText);

/** Sets the gap between the panels of a facet label or facet variable. Returns the facet label
 *  or facet variable, or -1 for any other node, silently. */
CHARTXML_API int64_t cx_setfacetlabelgap_(const int64_t* chart, const int64_t* facetLabelOrVariable,
                                          const int64_t* gap);

/** Sets the shape of the panels. Returns the facet labeling. Reports a node that is no facet
 *  labeling. */
CHARTXML_API int64_t cx_setfacetlabelingcellaspect_(const int64_t* chart,
                                                    const int64_t* facetLabeling,
                                                    const double* aspect);

/** Gives a frame its table of panels, at most one; one anywhere below the frame counts. Returns
 *  the frame's table facet, new or known. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addtablefacet_(const int64_t* chart, const int64_t* frame);

/** Has a frame split into panels along its coordinates. Returns the new coordinate facet.
 *  Reports a node that is no frame. */
CHARTXML_API int64_t cx_addcoordinatefacet_(const int64_t* chart, const int64_t* frame);

/** Adds panels within panels: the first part of a nest is the outer, the second the inner one,
 *  and there are no more. Returns the new nest. Reports a nest that has both parts. */
CHARTXML_API int64_t cx_addnest_(const int64_t* chart, const int64_t* facet);

/** Adds panels beside panels. Returns the new blend. Reports a nest that has both parts. */
CHARTXML_API int64_t cx_addblend_(const int64_t* chart, const int64_t* facet);

/** Adds panels by every combination. Returns the new cross. Reports a nest that has both parts. */
CHARTXML_API int64_t cx_addcross_(const int64_t* chart, const int64_t* facet);

/** Splits by a variable, along a role. Returns the new facet variable. Reports a role outside 1
 *  to 7; a nest that has both parts. */
CHARTXML_API int64_t cx_addfacetvariable_(const int64_t* chart, const int64_t* facet,
                                          const int64_t* role, const int64_t* variable);

/** Gives an element or grid lines a style of their own in some panels. Returns the new facet
 *  style. Reports any other parent. */
CHARTXML_API int64_t CX_AddFacetStyle(const int64_t* chart, const int64_t* elementOrGridLines,
                                      const int64_t* when, const int64_t* suffix);

/** Changes the coordinates of a frame, such as 30 "transpose", 31 "polar" or 104 "rectangular".
 *  Returns the new coordinate transform. */
CHARTXML_API int64_t cx_addcoordinatetransform_(const int64_t* chart, const int64_t* frame,
                                                const int64_t* method);

/** Shows a frame as a space of three dimensions, with a wire frame and three planes. Returns the
 *  parent. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addxyzwireframe_(const int64_t* chart, const int64_t* parent);

/** Shows a frame as a space of three dimensions, with three planes. Returns the parent. Reports
 *  a node that is no frame. */
CHARTXML_API int64_t cx_addxyzbackplanes_(const int64_t* chart, const int64_t* parent);

/* Elements */

/** Adds an element to a frame or an element group. Returns the new element. Reports any other
 *  parent. */
CHARTXML_API int64_t cx_addelement_(const int64_t* chart, const int64_t* parent,
                                    const int64_t* type, const int64_t* suffix);

/** Adds a group for elements to a frame. Returns the new element group. Reports a node that is
 *  no frame. */
CHARTXML_API int64_t cx_addelementgroup_(const int64_t* chart, const int64_t* frame,
                                         const int64_t* suffix);

/** Adds an element with its x and y. Returns the new element. */
CHARTXML_API int64_t cx_addxyelementex_(const int64_t* chart, const int64_t* parent,
                                        const int64_t* styleIndex, const int64_t* type,
                                        const int64_t* x, const int64_t* y,
                                        const int64_t* styleKind, int64_t* element);

/** Adds a matrix of scatterplots to a frame, every variable against every other, with margins of
 *  15%. Returns the new element. Reports a node that is no variable. */
CHARTXML_API int64_t cx_addsplomelement_(const int64_t* chart, const int64_t* parent,
                                         const int64_t* variables, const int64_t* variableCount,
                                         int64_t* element);

/** Adds a matrix of scatterplots to a frame, every variable against every other, with margins
 *  and mappings. Returns the new element. Reports a node that is no variable. */
CHARTXML_API int64_t cx_addsplomelementex_(const int64_t* chart, const int64_t* parent,
                                           const int64_t* variables, const int64_t* variableCount,
                                           int64_t* element, const int64_t* xUpperMargin,
                                           const int64_t* xLowerMargin, const int64_t* yUpperMargin,
                                           const int64_t* yLowerMargin,
                                           const int64_t* xUpperMapping,
                                           const int64_t* xLowerMapping,
                                           const int64_t* yUpperMapping,
                                           const int64_t* yLowerMapping);

/** Names an element or a guide, as a legend shows it. Returns the element or guide, or -1 for
 *  any other node, silently. */
CHARTXML_API int64_t cx_setelementname_(const int64_t* chart, const int64_t* element,
                                        const int64_t* name);

/** Says how the points of an element are stacked into dots. Returns the element, or -1 for any
 *  other node, silently. */
CHARTXML_API int64_t cx_setelementdot_(const int64_t* chart, const int64_t* element,
                                       const int64_t* dot);

/** Says how parts of an element at one place give way. Returns the element. Reports a node that
 *  is no element. */
CHARTXML_API int64_t cx_setelementpositionmodifier_(const int64_t* chart, const int64_t* element,
                                                    const int64_t* modifier);

/** Adds an element over hexagonal bins of x and y, each sized by the cases in it. Returns the
 *  new element. Reports any parent but a frame or an element group; a node that is no variable. */
CHARTXML_API int64_t cx_addbinnedelement_(const int64_t* chart, const int64_t* parent,
                                          const int64_t* type, const int64_t* suffix,
                                          const int64_t* x, const int64_t* y);

/* Aesthetics and statistics */

/** Gives an element a position of its own, which takes x, y and a statistic. Returns the new
 *  position. Reports a node that is no element. */
CHARTXML_API int64_t cx_addposition_(const int64_t* chart, const int64_t* element);

/** Puts a variable at x of an element or position. Returns the new x. Reports any other parent;
 *  a node that is no variable. */
CHARTXML_API int64_t cx_addx_(const int64_t* chart, const int64_t* parent, const int64_t* variable);

/** Puts a variable at y of an element or position. Returns the new y. Reports any other parent;
 *  a node that is no variable. */
CHARTXML_API int64_t cx_addy_(const int64_t* chart, const int64_t* parent, const int64_t* variable);

/** Puts a variable at z of an element or position. Returns the new z. Reports any other parent;
 *  a node that is no variable. */
CHARTXML_API int64_t cx_addz_(const int64_t* chart, const int64_t* parent, const int64_t* variable);

/** Puts a variable at the angle of an element or position. Returns the new theta. Reports any
 *  other parent; a node that is no variable. */
CHARTXML_API int64_t cx_addtheta_(const int64_t* chart, const int64_t* parent,
                                  const int64_t* variable);

/** Colors an element by a variable. Returns the new color. Reports a node that is no element. */
CHARTXML_API int64_t cx_addcolor_(const int64_t* chart, const int64_t* element,
                                  const int64_t* variable);

/** Groups an element by a variable, in the styles of the default cycle; points become hollow.
 *  Returns the new styleBy. Reports a node that is no element. */
CHARTXML_API int64_t cx_addstyleby_(const int64_t* chart, const int64_t* element,
                                    const int64_t* variable);

/** Groups an element by a variable, one color a group. Returns the new styleBy. Reports a node
 *  that is no element. */
CHARTXML_API int64_t cx_addstylebycolor_(const int64_t* chart, const int64_t* element,
                                         const int64_t* variable);

/** Groups an element by a variable, one pattern a group. Returns the new styleBy. Reports a node
 *  that is no element. */
CHARTXML_API int64_t cx_addstylebypattern_(const int64_t* chart, const int64_t* element,
                                           const int64_t* variable);

/** Groups an element by a variable, one color and pattern a group. Returns the new styleBy.
 *  Reports a node that is no element. */
CHARTXML_API int64_t cx_addstylebycolorandpattern_(const int64_t* chart, const int64_t* element,
                                                   const int64_t* variable);

/** Draws an element once for each category of a variable. Returns the new split. Reports a node
 *  that is no element. */
CHARTXML_API int64_t cx_addsplit_(const int64_t* chart, const int64_t* element,
                                  const int64_t* variable);

/** Labels the parts of an element with the values of a variable. Returns the new labeling.
 *  Reports a node that is no element. */
CHARTXML_API int64_t cx_addlabeling_(const int64_t* chart, const int64_t* element,
                                     const int64_t* variable);

/** The same with a style of its own. Returns the new labeling. Reports a node that is no
 *  element. */
CHARTXML_API int64_t cx_addlabelingsuffix_(const int64_t* chart, const int64_t* element,
                                           const int64_t* variable, const int64_t* labelStyle);

/** The same with the style of labels inside. Returns the new labeling. Reports a node that is no
 *  element. */
CHARTXML_API int64_t cx_addlabelinginside_(const int64_t* chart, const int64_t* element,
                                           const int64_t* variable);

/** Notes which summary of a variable the chart shows, unless one is noted; the values are those
 *  of the summary, such as a percentile's. Returns the code, or -1 for a code that is no
 *  summary, silently. */
CHARTXML_API int64_t cx_setsummaryfunction_(const int64_t* chart, const int64_t* variable,
                                            const int64_t* summary, const double* firstValue,
                                            const double* secondValue);

/** Has the renderer compute a statistic for a node. Returns the new statistic. */
CHARTXML_API int64_t cx_addstatistic_(const int64_t* chart, const int64_t* parent,
                                      const int64_t* method);

/** Adds a parameter to a statistic, transform or guide. Returns the new parameter. */
CHARTXML_API int64_t cx_addparam_(const int64_t* chart, const int64_t* statistic,
                                  const int64_t* name, const int64_t* valueString);

/** Says whether labels of an element are shown that would cover others. Returns the element. */
CHARTXML_API int64_t cx_setdisplayoverlappinglabels_(const int64_t* chart, const int64_t* element,
                                                     const int64_t* display);

/** Says what happens to labels of an element that would cover others. Returns the element. */
CHARTXML_API int64_t cx_setlabelcollisionhandling_(const int64_t* chart, const int64_t* element,
                                                   const int64_t* handling);

/* Dimensions and domains */

/** Gives a frame its dimension for a role, at most one a role; the domain of one that is known
 *  stays. Returns the frame's dimension, new or known. Reports a role outside 1 to 7. */
CHARTXML_API int64_t cx_adddimension_(const int64_t* chart, const int64_t* frame,
                                      const int64_t* role, const int64_t* domain);

/** Finds the first dimension of a role anywhere below a frame. Returns the dimension, or -1 when
 *  there is none, silently. Reports a role outside 1 to 7. */
CHARTXML_API int64_t cx_getdimension_(const int64_t* chart, const int64_t* frame,
                                      const int64_t* role);

/** Sets the margin beyond a dimension's largest value. Returns the dimension, or -1 for any
 *  other node, silently. */
CHARTXML_API int64_t cx_setdimensionuppermargin_(const int64_t* chart, const int64_t* dimension,
                                                 const int64_t* margin);

/** Sets the margin below a dimension's smallest value. Returns the dimension, or -1 for any
 *  other node, silently. */
CHARTXML_API int64_t cx_setdimensionlowermargin_(const int64_t* chart, const int64_t* dimension,
                                                 const int64_t* margin);

/** Sets where a dimension's largest value is drawn. Returns the dimension, or -1 for any other
 *  node, silently. */
CHARTXML_API int64_t cx_setdimensionuppermapping_(const int64_t* chart, const int64_t* dimension,
                                                  const int64_t* mapping);

/** Sets where a dimension's largest value is drawn; the same as cx_setdimensionuppermapping_.
 *  Returns the dimension, or -1 for any other node, silently. */
CHARTXML_API int64_t cx_setdimensionupper_(const int64_t* chart, const int64_t* dimension,
                                           const int64_t* mapping);

/** Sets where a dimension's smallest value is drawn. Returns the dimension, or -1 for any other
 *  node, silently. */
CHARTXML_API int64_t cx_setdimensionlowermapping_(const int64_t* chart, const int64_t* dimension,
                                                  const int64_t* mapping);

/** Gives a dimension its domain, in place of one that it has. Returns the dimension. */
CHARTXML_API int64_t cx_setdimensiondomain_(const int64_t* chart, const int64_t* dimension,
                                            const int64_t* domain);

/** Adds a scale to a dimension. Returns the new scale, or -1 for any other node, silently. */
CHARTXML_API int64_t cx_setdimensionscale_(const int64_t* chart, const int64_t* dimension,
                                           const int64_t* scaleMethod, const int64_t* scaleValue,
                                           const int64_t* invert);

/** Has a dimension span all that is drawn along it. Returns the dimension. Reports a node that
 *  is no dimension. */
CHARTXML_API int64_t cx_setuniondomain_(const int64_t* chart, const int64_t* dimension);

/** Gives the units of a dimension the length that they have in the others, and the chart's first
 *  facet labeling square panels. Returns the dimension; any other node too, where only the
 *  panels change. */
CHARTXML_API int64_t cx_setdimensionsameratio_(const int64_t* chart, const int64_t* dimension,
                                               const int64_t* sameRatio);

/** Gives every domain of the chart an interval around 0. Returns 1, or -1 when nothing happened,
 *  silently. */
CHARTXML_API int64_t cx_setxydimensionsamescale_(const int64_t* chart, const double* extent);

/** Sets the width of the bins of every histogram of the chart. Returns 1, or -1 when nothing
 *  happened, silently. */
CHARTXML_API int64_t cx_setbinwidth_(const int64_t* chart, const double* binWidth);

/** Adds a domain, which dimensions may share, and, unless the method is -1, a sort with a simple
 *  sort in it. Returns the domain when the method is -1, else the simple sort: the handle before
 *  it is the sort, the one before that the domain. */
CHARTXML_API int64_t cx_adddomain_(const int64_t* chart, const int64_t* ignored1,
                                   const int64_t* ignored2, const int64_t* categorical,
                                   const int64_t* sortMethod);

/** Adds an interval to a domain. Returns the new interval. Reports a node that is no domain. */
CHARTXML_API int64_t cx_addintervalex_(const int64_t* chart, const int64_t* domain,
                                       const int64_t* min, const int64_t* max);

/** Has a domain take in another domain, or the values of a variable. Returns the new domain
 *  reference. Reports a node that is no domain; one that is neither domain nor variable; two of
 *  which only one is categorical. */
CHARTXML_API int64_t cx_adddomainreference_(const int64_t* chart, const int64_t* domain,
                                            const int64_t* domainOrVariable);

/** Sets the order of a domain on its first sort, which is added when there is none. Returns the
 *  domain. Reports a node that is no domain. */
CHARTXML_API int64_t cx_setdomaindescending_(const int64_t* chart, const int64_t* domain,
                                             const int64_t* descending);

/** Adds a sort to a domain. Returns the new sort. Reports a node that is no domain. */
CHARTXML_API int64_t cx_addsort_(const int64_t* chart, const int64_t* domain);

/** Sets the order of a sort. Returns the sort. Reports a node that is no sort. */
CHARTXML_API int64_t cx_setsortdescending_(const int64_t* chart, const int64_t* sort,
                                           const int64_t* descending);

/** Sorts by the values themselves. Returns the new simple sort. Reports a node that is no sort. */
CHARTXML_API int64_t cx_addsimplesort_(const int64_t* chart, const int64_t* sort);

/** Sets how a simple sort compares. Returns the simple sort, or -1 for any other node, silently. */
CHARTXML_API int64_t cx_setsimplesortmethod_(const int64_t* chart, const int64_t* simpleSort,
                                             const int64_t* method);

/** Sorts the values of one variable by those of another. Returns the new statistic sort. Reports
 *  a node that is no sort. */
CHARTXML_API int64_t cx_addstatisticsort_(const int64_t* chart, const int64_t* sort,
                                          const int64_t* sourceVariable,
                                          const int64_t* statVariable);

/* Axes */

/** Adds an axis to a dimension. Returns the new axis. */
CHARTXML_API int64_t cx_addaxis_(const int64_t* chart, const int64_t* parent, const int64_t* suffix,
                                 const int64_t* opposite);

/** Adds the labelled ticks to an axis. Returns the new ticks. Reports that a style is taken,
 *  beside other ticks of the axis. */
CHARTXML_API int64_t cx_addmajorticks_(const int64_t* chart, const int64_t* parent,
                                       const int64_t* position, const int64_t* gridLines,
                                       const int64_t* length, const int64_t* labelAngle,
                                       const int64_t* stagger, const int64_t* delta);

/** Adds the ticks between the major ones to an axis. Returns the new ticks. Reports that the
 *  mark style is taken, beside major ticks. */
CHARTXML_API int64_t cx_addminorticks_(const int64_t* chart, const int64_t* parent,
                                       const int64_t* position, const int64_t* gridLines,
                                       const int64_t* length, const int64_t* tickCount);

/** Shows an axis in percent. Returns the node, also for a bad chart. */
CHARTXML_API int64_t cx_setaxispercent_(const int64_t* chart, const int64_t* node,
                                        const int64_t* formatParent);

/** Turns off the "safe" parameter of the y scale. Returns -1 in every case. */
CHARTXML_API int64_t cx_setlogunsafe_(const int64_t* chart);

/** Gives a frame a dimension with axis and ticks. Returns the dimension, or -1 for an axis role
 *  outside 1 to 3, silently. */
CHARTXML_API int64_t cx_adddimensionaxis_(const int64_t* chart, const int64_t* parent,
                                          const int64_t* axisRole, const int64_t* domain,
                                          const int64_t* opposite, int64_t* style, int64_t* axis,
                                          const int64_t* upperMargin, const int64_t* lowerMargin,
                                          const int64_t* upperMapping, const int64_t* lowerMapping);

/** Gives a frame x and y dimensions with axes and ticks. Returns the x dimension. */
CHARTXML_API int64_t cx_addxydimension_(const int64_t* chart, const int64_t* parent,
                                        const int64_t* xDomain, const int64_t* yDomain,
                                        const int64_t* xOpposite, const int64_t* yOpposite,
                                        int64_t* xStyle, int64_t* xAxis, int64_t* yStyle,
                                        int64_t* yAxis, const int64_t* xUpperMargin,
                                        const int64_t* xLowerMargin, const int64_t* yUpperMargin,
                                        const int64_t* yLowerMargin, const int64_t* xUpperMapping,
                                        const int64_t* xLowerMapping, const int64_t* yUpperMapping,
                                        const int64_t* yLowerMapping);

/** Gives a frame x and y dimensions with axes, ticks and margins of 5%. Returns the x dimension. */
CHARTXML_API int64_t cx_addxydimensionwithaxis_(const int64_t* chart, const int64_t* parent,
                                                const int64_t* xDomain, const int64_t* yDomain,
                                                const int64_t* xOpposite, const int64_t* yOpposite,
                                                int64_t* xStyle, int64_t* xAxis, int64_t* yStyle,
                                                int64_t* yAxis);

/** Gives a frame x and y dimensions with axes, ticks and margins of 0%, whose units have one
 *  length. Returns the x dimension. */
CHARTXML_API int64_t cx_addxydimaxiswithsameratio_(const int64_t* chart, const int64_t* parent,
                                                   const int64_t* xDomain, const int64_t* yDomain,
                                                   const int64_t* xOpposite,
                                                   const int64_t* yOpposite,
                                                   const int64_t* sameRatio, int64_t* xStyle,
                                                   int64_t* xAxis, int64_t* yStyle, int64_t* yAxis);

/* Guides, fit lines and legends */

/** Adds a guide to a frame. Returns the new guide. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addguide_(const int64_t* chart, const int64_t* frame, const int64_t* type,
                                  const int64_t* suffix);

/** Adds a line at a value of x to a frame. Returns the new guide. Reports a node that is no
 *  frame. */
CHARTXML_API int64_t cx_addxreferenceline_(const int64_t* chart, const int64_t* frame,
                                           const int64_t* valueString, const int64_t* guideStyle);

/** Adds a line at a value of y to a frame. Returns the new guide. Reports a node that is no
 *  frame. */
CHARTXML_API int64_t cx_addyreferenceline_(const int64_t* chart, const int64_t* frame,
                                           const int64_t* valueString, const int64_t* guideStyle);

/** Adds the curve of a function of x to a frame. Returns the new guide. Reports a node that is
 *  no frame. */
CHARTXML_API int64_t cx_addyfunctionofx_(const int64_t* chart, const int64_t* frame,
                                         const int64_t* function, const int64_t* guideStyle);

/** Adds a straight line to a frame and names it after its model. Returns the new guide, or -1
 *  for an infinite coefficient, silently. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addyofxlinear_(const int64_t* chart, const int64_t* frame,
                                       const int64_t* guideStyle, const double* intercept,
                                       const double* slope, const int64_t* dateScale);

/** Adds the curve b1 + b2 * log(x) to a frame and names it after its model. Returns the new
 *  guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addyofxlogarithmic_(const int64_t* chart, const int64_t* frame,
                                            const int64_t* guideStyle, const double* b1,
                                            const double* b2, const int64_t* dateScale);

/** Adds the curve b1 + b2 / x to a frame and names it after its model. Returns the new guide, or
 *  -1 for an infinite coefficient, silently. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addyofxinverse_(const int64_t* chart, const int64_t* frame,
                                        const int64_t* guideStyle, const double* b1,
                                        const double* b2, const int64_t* dateScale);

/** Adds the curve b1 + b2 * x + b3 * x*x to a frame and names it after its model. Returns the
 *  new guide; infinite coefficients are not looked at. Reports a node that is no frame, and then
 *  also that there is no curve to name. */
CHARTXML_API int64_t cx_addyofxquadratic_(const int64_t* chart, const int64_t* frame,
                                          const int64_t* guideStyle, const double* b1,
                                          const double* b2, const double* b3,
                                          const int64_t* dateScale);

/** Adds the curve b1 + b2 * x + b3 * x*x + b4 * x*x*x to a frame and names it after its model.
 *  Returns the new guide; infinite coefficients are not looked at. Reports a node that is no
 *  frame, and then also that there is no curve to name. */
CHARTXML_API int64_t cx_addyofxcubic_(const int64_t* chart, const int64_t* frame,
                                      const int64_t* guideStyle, const double* b1, const double* b2,
                                      const double* b3, const double* b4, const int64_t* dateScale);

/** Adds the curve b1 * b2**x to a frame and names it after its model. Returns the new guide, or
 *  -1 for an infinite coefficient, silently. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addyofxcompound_(const int64_t* chart, const int64_t* frame,
                                         const int64_t* guideStyle, const double* b1,
                                         const double* b2, const int64_t* dateScale);

/** Adds the curve b1 * x**b2 to a frame and names it after its model. Returns the new guide, or
 *  -1 for an infinite coefficient, silently. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addyofxpower_(const int64_t* chart, const int64_t* frame,
                                      const int64_t* guideStyle, const double* b1, const double* b2,
                                      const int64_t* dateScale);

/** Adds the curve exp(b1 + b2 / x) to a frame and names it after its model. Returns the new
 *  guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addyofxs_(const int64_t* chart, const int64_t* frame,
                                  const int64_t* guideStyle, const double* b1, const double* b2,
                                  const int64_t* dateScale);

/** Adds the curve exp(b1 + b2 * x) to a frame and names it after its model. Returns the new
 *  guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addyofxgrowth_(const int64_t* chart, const int64_t* frame,
                                       const int64_t* guideStyle, const double* b1,
                                       const double* b2, const int64_t* dateScale);

/** Adds the curve b1 * exp(b2 * x) to a frame and names it after its model. Returns the new
 *  guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame. */
CHARTXML_API int64_t cx_addyofxexponential_(const int64_t* chart, const int64_t* frame,
                                            const int64_t* guideStyle, const double* b1,
                                            const double* b2, const int64_t* dateScale);

/** Adds the curve 1 / (b3 + b1 * b2**x) to a frame and names it after its model. Returns the new
 *  guide; infinite coefficients are not looked at. Reports a node that is no frame, and then
 *  also that there is no curve to name. */
CHARTXML_API int64_t cx_addyofxlogistic_(const int64_t* chart, const int64_t* frame,
                                         const int64_t* guideStyle, const double* b1,
                                         const double* b2, const double* b3,
                                         const int64_t* dateScale);

/** Adds a legend to a frame. Returns the new legend. */
CHARTXML_API int64_t cx_addlegend_(const int64_t* chart, const int64_t* parent,
                                   const int64_t* suffix);

/** Has a legend explain a styleBy of an element or guide. Returns the new legend target. Reports
 *  a node that is no legend. */
CHARTXML_API int64_t cx_addlegendtargetex_(const int64_t* chart, const int64_t* parent,
                                           const int64_t* target, const int64_t* styleBy,
                                           const int64_t* suffix);

/** Adds a frame with a legend that explains an element's or guide's aesthetic. Returns the new
 *  legend. */
CHARTXML_API int64_t cx_addlegendframe_(const int64_t* chart, const int64_t* parent,
                                        const int64_t* target, const int64_t* styleIndex,
                                        const int64_t* aesthetic, const int64_t* ignored,
                                        int64_t* style, int64_t* legend);

/** Adds a frame with a legend that explains a styleBy of an element or guide. Returns the new
 *  legend. */
CHARTXML_API int64_t cx_addlegendframeex_(const int64_t* chart, const int64_t* parent,
                                          const int64_t* target, const int64_t* styleIndex,
                                          const int64_t* styleByNode, int64_t* style,
                                          int64_t* legend);

/* Beyond the procedures' own: whole columns */

/** Stores a column of numbers; rows that are not there yet are added. Returns 0. Reports a
 *  variable without a column; rows beyond 1 to 2147483647. */
CHARTXML_API int64_t chartxml_loadnumbers_(const int64_t* chart, const int64_t* variable,
                                           const int64_t* firstRow, const double* numbers,
                                           const int64_t* numberCount);

/** Stores a column of texts, without the blanks at their ends, as numbers where they read as
 *  such; rows that are not there yet are added. Returns 0. Reports a variable without a column;
 *  rows beyond 1 to 2147483647. */
CHARTXML_API int64_t chartxml_loadtexts_(const int64_t* chart, const int64_t* variable,
                                         const int64_t* firstRow, const char* texts,
                                         const int64_t* textsLength, const int64_t* textCount);

/* Beyond the procedures' own: nodes and texts */

/** Adds the distance from the centre to an element or position. Returns the new r. Reports any
 *  other parent. */
CHARTXML_API int64_t chartxml_addr_(const int64_t* chart, const int64_t* parent,
                                    const int64_t* variable);

/** Adds the second angle to an element or position. Returns the new phi. Reports any other
 *  parent. */
CHARTXML_API int64_t chartxml_addphi_(const int64_t* chart, const int64_t* parent,
                                      const int64_t* variable);

/** Sizes an element or its labels by a variable. Returns the new size. Reports any other parent. */
CHARTXML_API int64_t chartxml_addsize_(const int64_t* chart, const int64_t* elementOrLabeling,
                                       const int64_t* variable);

/** Sets the size of the lowest value. Returns 0, or -1 for any other node, silently. */
CHARTXML_API int64_t chartxml_setsizelow_(const int64_t* chart, const int64_t* size,
                                          const int64_t* low);

/** Sets the size of the highest value. Returns 0, or -1 for any other node, silently. */
CHARTXML_API int64_t chartxml_setsizehigh_(const int64_t* chart, const int64_t* size,
                                           const int64_t* high);

/** Stacks, or does not stack, the element of a position. Returns the position. */
CHARTXML_API int64_t chartxml_addstack_(const int64_t* chart, const int64_t* positionNode,
                                        const int64_t* stack);

/** Adds a transform to an axis or another node. Returns the new transform. */
CHARTXML_API int64_t chartxml_addtransform_(const int64_t* chart, const int64_t* node,
                                            const int64_t* method);

/** Adds a line at a value of x or y to a frame. Returns the new guide. Reports a node that is no
 *  frame. */
CHARTXML_API int64_t chartxml_addreferenceline_(const int64_t* chart, const int64_t* frame,
                                                const int64_t* lineRole, const int64_t* valueString,
                                                const int64_t* guideStyle);

/** Fills an open composite, which is a formula in x with "^1" and "^2", and adds its curve to a
 *  frame. Returns the new guide, or -1 for an infinite coefficient, silently. Reports a node
 *  that is no frame. */
CHARTXML_API int64_t chartxml_addyofxwithab_(const int64_t* chart, const int64_t* frame,
                                             const int64_t* composite, const int64_t* guideStyle,
                                             const double* b1, const double* b2);

/** Has a legend explain an element or guide. Returns the new legend target. Reports a node that
 *  is no legend. */
CHARTXML_API int64_t chartxml_addlegendtarget_(const int64_t* chart, const int64_t* legendNode,
                                               const int64_t* target, const int64_t* suffix,
                                               const int64_t* aesthetic);

/** Gives each panel a scale of its own. Returns the dimension. */
CHARTXML_API int64_t chartxml_setfacetsdifferentscale_(const int64_t* chart,
                                                       const int64_t* dimension);

/** Declares a variable once more. Returns the new variable. */
CHARTXML_API int64_t chartxml_copyvariable_(const int64_t* chart, const int64_t* variable);

/** Tells the column of a variable of the procedure. Returns the column, from 0. Reports a number
 *  that no variable has. */
CHARTXML_API int64_t chartxml_getvariableindex_(const int64_t* variableNumber);

/** Changes the procedure's name: the chart's, unless its handle is -1, and the string table that
 *  goes first. Returns 0, or 1 when the procedure has no string table of its own. */
CHARTXML_API int64_t chartxml_setprocedure_(const int64_t* chart, const char* procedureName,
                                            const int64_t* procedureNameLength);

/** Names the folder of the string tables that every procedure shares. Returns 0. */
CHARTXML_API int64_t chartxml_setglobalstringtable_(const char* path, const int64_t* pathLength);

/** Forgets every text but the predefined ones; string handles start again. Returns 0. */
CHARTXML_API int64_t chartxml_resetstrings_(void);

/** Gives the text behind a string handle in UTF-8, as far as there is room. Returns the text's
 *  bytes, however much room there is. */
CHARTXML_API int64_t chartxml_gettext_(const int64_t* string, char* buffer,
                                       const int64_t* bufferCapacity);

/** Gives the chart's document as it is by now, as far as there is room. Returns the document's
 *  bytes, however much room there is. */
CHARTXML_API int64_t chartxml_getxml_(const int64_t* chart, char* buffer,
                                      const int64_t* bufferCapacity);

/* Beyond the procedures' own: parts of display formats */

/** Gives a variable its meta, at most one. Returns the meta, new or known. */
CHARTXML_API int64_t chartxml_addmeta_(const int64_t* chart, const int64_t* variable);

/** Says whether a variable weights cases. Returns the meta, or -1 for any other node, silently. */
CHARTXML_API int64_t chartxml_setmetaweight_(const int64_t* chart, const int64_t* meta,
                                             const int64_t* weight);

/** Gives a meta the display format of a column. Returns -1 in every case. */
CHARTXML_API int64_t chartxml_addformat_(const int64_t* chart, const int64_t* meta,
                                         const int64_t* column);

/** Finds a variable's number format. Returns the number format, or -1 when there is none,
 *  silently. */
CHARTXML_API int64_t chartxml_getvariablenumformat_(const int64_t* chart, const int64_t* variable);

/** Has a variable shown as text. Returns the new format, or -1 for any other node, silently. */
CHARTXML_API int64_t chartxml_addstringformat_(const int64_t* chart, const int64_t* meta);

/** Has a variable shown as date or time. Returns -1, also when made, but 0 for a format of
 *  weeks. */
CHARTXML_API int64_t chartxml_adddateformat_(const int64_t* chart, const int64_t* meta,
                                             const int64_t* formatType, const int64_t* formatWidth);

/** Adds a number format with nothing said about it. Returns the new number format. */
CHARTXML_API int64_t chartxml_addnumberformat_(const int64_t* chart, const int64_t* formatParent);

/** Adds the number format of a type. Returns the new number format. */
CHARTXML_API int64_t chartxml_addnumberformatoftype_(const int64_t* chart, const int64_t* meta,
                                                     const int64_t* formatType,
                                                     const int64_t* formatWidth,
                                                     const int64_t* decimals);

/** Does nothing; there for callers that have it. Returns -1 in every case. */
CHARTXML_API int64_t chartxml_setnumberformatminfractiondigits_(const int64_t* chart,
                                                                const int64_t* numberFormat,
                                                                const int64_t* fractionDigits);

/** Sets the digits after the decimal sign at most. Returns 0, or -1 for any other node,
 *  silently. */
CHARTXML_API int64_t chartxml_setnumberformatmaxfractiondigits_(const int64_t* chart,
                                                                const int64_t* numberFormat,
                                                                const int64_t* fractionDigitsString);

/** Sets what stands before the number. Returns 0, or -1 for any other node, silently. */
CHARTXML_API int64_t chartxml_setnumberformatprefix_(const int64_t* chart,
                                                     const int64_t* numberFormat,
                                                     const int64_t* prefix);

/** Sets what stands behind the number. Returns 0, or -1 for any other node, silently. */
CHARTXML_API int64_t chartxml_setnumberformatsuffix_(const int64_t* chart,
                                                     const int64_t* numberFormat,
                                                     const int64_t* unitSuffix);

/** Says whether the number has an exponent. Returns 0, or -1 for any other node, silently. */
CHARTXML_API int64_t chartxml_setnumberscientific_(const int64_t* chart,
                                                   const int64_t* numberFormat,
                                                   const int64_t* scientific);

/* Beyond the procedures' own: the messages of one call */

/** Holds back the messages of what follows. Returns 0. */
CHARTXML_API int64_t chartxml_begincall_(void);

/** Reports a message of the caller. Returns -1. */
CHARTXML_API int64_t chartxml_refuse_(const char* text, const int64_t* textLength);

/** Ends holding messages back. Those of a call that was refused go to the buffer, which is
 *  filled up with blanks; all but those that are wanted go on, with the name of the call before
 *  them. Returns 1 when the call was refused, else 0. */
CHARTXML_API int64_t chartxml_endcall_(const char* callName, const int64_t* callNameLength,
                                       const int64_t* failed, const int64_t* mayBeSilent,
                                       const int64_t* wanted, char* buffer,
                                       const int64_t* bufferCapacity);

#ifdef __cplusplus
}
#endif

#endif
