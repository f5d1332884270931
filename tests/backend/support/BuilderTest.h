#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chartxml/ChartXml.h>
#include <host/ChartSink.h>
#include <host/Data.h>
#include <host/ErrorLog.h>

/// A column described in a test.
struct Column : KORVA_Variable {
  Column(std::string name, std::string label, int type, KORVA_Format format,
         KORVA_ValueLabelMap labels = KORVA_ValueLabelMap())
      : name_(std::move(name)), label_(std::move(label)), type_(type), format_(format),
        labels_(std::move(labels)) {}

  const char* GetName() const override { return name_.c_str(); }
  const char* GetLabel() const override { return label_.c_str(); }
  int GetType() const override { return type_; }
  KORVA_Format GetFormat() const override { return format_; }
  const KORVA_ValueLabelMap& GetValueLabels() const override { return labels_; }

private:
  std::string name_;
  std::string label_;
  int type_;
  KORVA_Format format_;
  KORVA_ValueLabelMap labels_;
};

/// A dictionary whose columns and index list a test writes down; counts its
/// destructions.
struct Dictionary : KORVA_FortranDictionary {
  explicit Dictionary(std::vector<Column> described, std::vector<int> list = {},
                      int* destroyed = nullptr)
      : columns(std::move(described)), indexes(std::move(list)), destroyedCount(destroyed) {}
  ~Dictionary() override {
    if (destroyedCount) ++*destroyedCount;
  }

  int ColumnCount() const override { return static_cast<int>(columns.size()); }
  const KORVA_Variable& GetVariable(int index) const override {
    return columns[static_cast<std::size_t>(index)];
  }
  int VariableCount() const override { return variableCount; }
  int GetIndex(int v) const override {
    return v <= static_cast<int>(indexes.size()) ? indexes[static_cast<std::size_t>(v) - 1] : -1;
  }

  int SplitVariableCount() const override { return static_cast<int>(splits.size()); }
  int SplitVariableIndex(int i) const override { return splits[static_cast<std::size_t>(i)]; }

  std::vector<Column> columns;
  std::vector<int> indexes;
  std::vector<int> splits;
  int variableCount = static_cast<int>(indexes.size());
  int* destroyedCount;
};

/// What a chart sent, kept.
struct Sent {
  std::string name{}, xml{}, description{}, splitHeader{}, chartTemplate{};
  std::vector<std::string> errors{};
};

using SendAction = std::function<void(const host::SentChart&)>;

/// A fresh registry for every test; reports and sent charts are collected.
class BuilderTest : public ::testing::Test {
protected:
  BuilderTest();
  ~BuilderTest() override;
  /// Checks every chart that the test made against the grammar.
  void TearDown() override;
  /// Lets go of the XML platform, which the grammar holds up until it is used again.
  static void forgetGrammar();

  static ChartXml& registry() { return *ChartXml::GetInstance(); }
  /// A registry string.
  static int text(const std::string& bytes) { return registry().NStringNoTranslate(bytes); }
  /// A dictionary that lives as long as the test.
  Dictionary* described(std::vector<Column> columns, std::vector<int> list = {}) {
    dictionaries_.push_back(std::make_unique<Dictionary>(std::move(columns), std::move(list)));
    return dictionaries_.back().get();
  }
  /// A new chart with the dictionary as its data source.
  static int chartOn(Dictionary* dictionary);
  static Chart& chart(int handle) { return *registry().getValidChart(handle, "", 0, false); }
  /// The subtree under a node handle as compact XML, attributes in order of name.
  static std::string fragment(int chartHandle, int node);

  /// States that the library guards against, though none of its calls leads there.
  static void refuseData(int chartHandle);
  static void loseVariableLists(int chartHandle);
  static void loseChart(int chartHandle);

  /// The messages reported since the last call.
  std::vector<std::string> takeReports() { return std::exchange(reports_, {}); }

  std::vector<Sent> sent;
  bool sinkFails = false;
  bool followsGrammar = true; ///< false in tests that make what no procedure can
  SendAction whenSent;        ///< sees, or refuses by an exception, what is sent

private:
  std::vector<std::string> reports_;
  std::vector<std::unique_ptr<Dictionary>> dictionaries_;
};
