#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <host/Export.h>

/// One 8-byte cell of an observation as procedures pass it: a number, or eight
/// bytes of a string value, which takes as many cells as it needs.
union OBS {
  double number;
  char bytes[8];
};

namespace host {
/// The cells of a string value of that width in bytes.
constexpr int cellsOfWidth(int width) { return width <= 8 ? 1 : (width + 7) / 8; }
/// Writes a text into the first `width` bytes of cells, padded with blanks to
/// the end of the last cell; a longer text is cut.
KORVA_API void writeText(std::string_view text, int width, OBS* cells);
} // namespace host

/// A display format: type code, width and decimals, packed into one long as
/// type << 16 | width << 8 | decimals, each part 0 to 255.
class KORVA_API KORVA_Format {
public:
  /// A part outside 0 to 255 becomes the nearer end.
  KORVA_Format(int type, int width, int decimals);
  explicit KORVA_Format(long packed);

  operator long() const;

  int TypeEx() const { return type_; }
  int Width() const { return width_; }
  int Decimals() const { return decimals_; }

private:
  int type_;
  int width_;
  int decimals_;
};

/// The value labels of a variable, in the order of its description.
class KORVA_API KORVA_ValueLabelMap {
public:
  /// `width` is 0 for numeric values, else the bytes of a string value.
  explicit KORVA_ValueLabelMap(int width = 0) : width_(width) {}

  /// Adds a label. False, and no change, for a value that has one. Pointers that
  /// GetLabel and GetNextPair gave are stale afterwards.
  bool add(double value, std::string label);
  bool add(std::string_view value, std::string label);

  int Size() const { return static_cast<int>(pairs_.size()); }

  /// The label of a value, or null. A string value is compared over the
  /// variable's width, trailing blanks aside; `value` is its first cell, and the
  /// others follow it in memory.
  const char* GetLabel(const OBS& value) const;

  /// Walks the pairs: start with position 0; false when there are no more. The
  /// value's cells stay valid while the map lives.
  bool GetNextPair(int& position, const OBS*& value, const char*& label) const;

private:
  struct Pair {
    std::vector<OBS> value;
    std::string label;
  };
  struct BytesHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view bytes) const {
      return std::hash<std::string_view>{}(bytes);
    }
  };
  bool add(std::string_view key, std::vector<OBS> value, std::string label);

  int width_;
  std::vector<Pair> pairs_;
  std::unordered_map<std::string, std::size_t, BytesHash, std::equal_to<>> positions_;
};

/// One column's description. Its texts are bytes of the process code page.
class KORVA_API KORVA_Variable {
public:
  virtual ~KORVA_Variable() = default;

  virtual const char* GetName() const = 0;
  /// Null or empty when there is no label.
  virtual const char* GetLabel() const = 0;
  /// 0 for a numeric variable, else the width in bytes of its string values.
  virtual int GetType() const = 0;
  virtual KORVA_Format GetFormat() const = 0;
  virtual const KORVA_ValueLabelMap& GetValueLabels() const = 0;

  void GetFormatEx(int& type, int& width, int& decimals) const;
};

/// The columns that a procedure works on.
class KORVA_API KORVA_DataSource {
public:
  virtual ~KORVA_DataSource() = default;

  virtual int ColumnCount() const = 0;
  /// `index` must be a valid column: 0 <= index < ColumnCount().
  virtual const KORVA_Variable& GetVariable(int index) const = 0;

  virtual int SplitVariableCount() const { return 0; }
  /// The column of the i-th split variable; negative when it has no values in
  /// the row.
  virtual int SplitVariableIndex(int /*i*/) const { return -1; }

  /// Called by whoever will delete the source from now on.
  virtual void HandOver() {}
};

/// The dictionary of a procedure's run: its data set's columns and the list that
/// maps the run's variable numbers, from 1, to column indexes, from 0. All live
/// dictionaries stand in one table, so that an address from outside can be
/// checked before it is used.
class KORVA_API KORVA_FortranDictionary : public KORVA_DataSource {
public:
  KORVA_FortranDictionary();
  ~KORVA_FortranDictionary() override;
  KORVA_FortranDictionary(const KORVA_FortranDictionary&) = delete;
  KORVA_FortranDictionary& operator=(const KORVA_FortranDictionary&) = delete;

  /// How many variables the run has.
  virtual int VariableCount() const = 0;
  /// The column of variable number v, or -1 when the list is shorter than v.
  virtual int GetIndex(int v) const = 0;

  /// Whether a pointer that came from outside still names a dictionary.
  static bool isAlive(const KORVA_FortranDictionary* dictionary);

  /// A dictionary that is in use by a data source outlives its closing.
  virtual void Use() {}
  virtual void Release() {}
};

/// The data as one procedure's run sees it. It does not own the dictionary, but
/// keeps it in use while it lives.
class KORVA_API ProcedureDataSource : public KORVA_DataSource {
public:
  /// `dictionary` must be alive.
  ProcedureDataSource(void* procedureHandle, KORVA_FortranDictionary* dictionary);
  ~ProcedureDataSource() override;
  ProcedureDataSource(const ProcedureDataSource&) = delete;
  ProcedureDataSource& operator=(const ProcedureDataSource&) = delete;

  int ColumnCount() const override { return dictionary_->ColumnCount(); }
  const KORVA_Variable& GetVariable(int index) const override {
    return dictionary_->GetVariable(index);
  }
  int SplitVariableCount() const override { return dictionary_->SplitVariableCount(); }
  int SplitVariableIndex(int i) const override { return dictionary_->SplitVariableIndex(i); }

  const KORVA_FortranDictionary* Parent() const { return dictionary_; }
  const KORVA_FortranDictionary* DicPtr() const { return dictionary_; }
  void* ProcedureHandle() const { return procedureHandle_; }

private:
  void* procedureHandle_;
  KORVA_FortranDictionary* dictionary_;
};
