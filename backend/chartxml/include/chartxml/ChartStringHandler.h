#pragma once

#include <map>
#include <memory>
#include <source_location>
#include <string>

#include <chartxml/ChartHashtable.h>
#include <host/ChartBase.h>
#include <host/ChartError.h>
#include <host/ChartString.h>
#include <host/Data.h>
#include <host/OutputText.h>

/// Holds every text of the procedures' charts under an integer string handle.
///
/// Handles 1 to 156 are predefined vocabulary and labels (0, 46 and 124 are left
/// empty); from 157 upward they are given out in order and not reused until
/// Reset. Operations return a handle or another non-negative number, or -1; what
/// they refuse goes to the error handler with the place of the call.
class ChartStringHandler : public ChartBase {
public:
  /// Registers the predefined texts, four of them translated by the registry.
  ChartStringHandler();
  ~ChartStringHandler();
  ChartStringHandler(const ChartStringHandler&) = delete;
  ChartStringHandler& operator=(const ChartStringHandler&) = delete;

  /// Forgets every text, composite and the data source; handles start afresh.
  void Reset();

  /// The first handle that is given out.
  static constexpr int firstFreeHandle = 157;

  // Plain texts

  /// Keeps a copy of the text and returns its handle.
  int AddChartString(const ChartString& text);
  int AddChartString(ChartString&& text);

  /// The text of a handle; that of a composite is assembled at the first call and
  /// kept. A handle that holds none is reported as
  /// "String not found for handle <handle>", and the empty text returned. The
  /// reference is good until Reset.
  const ChartString& getXMLString(int handle);

  /// The handle of a number's text for machines; -1 for the system-missing value.
  int Double(const double& value);

  // Checks

  /// Whether 0 <= handle <= the next handle to be given out; the bound is
  /// inclusive. Reports "<what> handle out of range".
  bool validString(int handle, const char* what,
                   std::source_location where = std::source_location::current()) const;
  /// Reports "no datasource".
  bool validDataSource(std::source_location where = std::source_location::current()) const;
  /// Whether 0 <= index < ColumnCount() of the data source. Reports
  /// "invalid variable index <index>".
  bool validVariable(int index, std::source_location where = std::source_location::current()) const;

  // Composite texts: a pattern whose "^n" is the n-th parameter

  /// Opens a composite and returns its handle.
  int CompositeString(const std::string& pattern);
  /// The same with the pattern's English text.
  int CompositeString(const std::string& pattern, const std::string& englishPattern);
  /// Adds the text of `parameter`. 0, or -1.
  int AddParameter(int composite, int parameter);
  /// Opens and closes a repeat list around parameters. 0, or -1.
  int BeginRepeat(int composite);
  int EndRepeat(int composite);
  /// Closes and assembles the composite. Its own handle, or -1.
  int EndCompositeString(int composite);
  /// The composite of a handle, or null and reported.
  OmComposite* getComposite(int handle,
                            std::source_location where = std::source_location::current()) const;

  /// A style name: the display text of `string`, "_" and `index`; a new handle.
  int StyleString(int string, int index);

  // Labels of the data source's variables and values

  /// The name of a column.
  int VariableName(int index);
  /// The label of a column without blanks at its ends, or its name when there is
  /// none.
  int VariableLabel(int index);
  /// A value in its variable's format; -1, silently, for the system-missing value.
  int Value(int index, const OBS& value);
  /// The same with two more decimals, at most 16.
  int MeanValue(int index, const OBS& value);
  /// The value label of a value without its leading blanks; empty when there is
  /// none.
  std::string valueLabel(int index, const OBS& value) const;
  /// A value's label, or the value in its format when it has none, shortened to
  /// `maxLength` bytes when that is positive and put into `pattern` as "^1" when
  /// that is not empty. The missing-value label for the system-missing value.
  int ValueObjectLabel(int index, const OBS& value, const std::string& pattern, int maxLength);
  /// A number in a packed display format, or, with format -1, as for machines;
  /// -1 for the system-missing value and for an empty text.
  int LRValue(const double& value, int format);
  /// The same for more types of format. In a format of days of the week or of months a
  /// value of up to 86400 is a code: see formattedStringDate.
  int LRValueAsString(const double& value, int format);
  /// The name of a day of the week, 1 being Sunday, or else of a month, 1 being January,
  /// in that format. Codes go round: 8 is Sunday again, and 0 and -7 are Saturday.
  std::string formattedStringDate(KORVA_Format format, const double& value) const;

  // The data source's split variables; `values` are the cells of their values, one
  // after the other

  /// One text of all split variables with the parts asked for,
  /// "name label = value value label; ..."; its handle, or -1.
  int SplitList(const OBS* values, bool name, bool label, bool value, bool valueLabel);
  /// Adds label and value label of each split variable to an open composite, as one
  /// repeat list. Returns -1 in every case.
  int SplitListByPattern(const OBS* values, int composite);

  /// Moves `begin` and `end` (the last character) past blanks; how many
  /// characters are left.
  static int trim(const char*& begin, const char*& end);

  /// The data source in use; not owned.
  void SetDataSource(const KORVA_DataSource* source) { dataSource_ = source; }
  const KORVA_DataSource* GetDataSource() const { return dataSource_; }

private:
  void init();
  void insertChartString(int handle, ChartString text);
  const ChartString* findString(int handle) const;
  template <class Operation> bool changeComposite(int handle, const char* failure,
                                                  std::source_location where, Operation operation);
  int addComposite(const OmStringCell& pattern);
  std::string variableLabel(const KORVA_Variable& variable) const;
  template <class Visit>
  bool visitSplits(const OBS* values, Visit visit,
                   std::source_location where = std::source_location::current()) const;
  void report(const std::string& message, std::source_location where) const;

  int nextHandle_ = 0;
  std::unique_ptr<ChartHashtable<ChartString>> strings_;
  std::map<int, std::unique_ptr<OmComposite>> composites_;
  const KORVA_DataSource* dataSource_ = nullptr;
  std::unique_ptr<ChartErrorHandler> errorHandler_;
};
