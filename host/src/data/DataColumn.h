#pragma once

#include <span>
#include <string>
#include <string_view>

#include <host/Data.h>
#include <host/ValueColumn.h>

#include "data/Field.h"

namespace host {

/// The number that a cell of a field of this type, not a text's, stands for. Throws
/// Refusal.
double valueOf(Field::Type type, std::string_view text);

/// A column of an open data set: its description and its values.
class DataColumn final : public KORVA_Variable {
public:
  explicit DataColumn(Field field);

  /// Reads a cell of the file by the field's type. Throws Refusal.
  void setCell(std::size_t row, std::string_view utf8);
  /// After the last row: the width is known now, and with it the value labels.
  void finish();

  const char* GetName() const override { return name_.c_str(); }
  const char* GetLabel() const override { return label_.c_str(); }
  int GetType() const override { return width_; }
  KORVA_Format GetFormat() const override;
  const KORVA_ValueLabelMap& GetValueLabels() const override { return labels_; }

  const std::string& name() const { return name_; }
  /// The cells of one value, and writing them.
  std::size_t cellCount() const { return static_cast<std::size_t>(cellsOfWidth(width_)); }
  void readValue(std::size_t row, OBS* cells) const;
  void dropValues() { values_ = ValueColumn(); }

private:
  bool isText() const { return field_.type == Field::Type::string; }
  bool isMissing(std::string_view text) const;

  Field field_;
  std::string name_, label_;
  bool transcodes_;
  int width_ = 0; ///< 0 for numbers, else bytes of a string value
  ValueColumn values_;
  KORVA_ValueLabelMap labels_;
};

} // namespace host
