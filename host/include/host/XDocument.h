#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <host/ChartString.h>
#include <host/NodeCalls.h>
#include <host/VarDataProcessor.h>

/// The statistics that a procedure recorded for a variable, as the output keeps
/// them.
class ZephExtension {
public:
  virtual ~ZephExtension() = default;
  /// Sets an attribute, whatever it was before.
  void setAttribute(const std::string& name, const std::string& value);
  const std::vector<std::pair<std::string, std::string>>& attributes() const { return attributes_; }

private:
  std::vector<std::pair<std::string, std::string>> attributes_;
};

class ZephExtensionSV : public ZephExtension {
public:
  void setValue(double value) { value_ = value; }
  void setMin(double value) { min_ = value; }
  void setMax(double value) { max_ = value; }

  std::optional<double> value() const { return value_; }
  std::optional<double> min() const { return min_; }
  std::optional<double> max() const { return max_; }

private:
  std::optional<double> value_, min_, max_;
};

/// How the values of a variable are shown: an element of its meta with all that is
/// in it.
struct CTFormatType {
  std::string kind;
  std::vector<std::pair<std::string, std::string>> attributes;
  std::vector<CTFormatType> parts;

  bool operator<(const CTFormatType& other) const;
};

/// What the document says of a variable: its attributes, empty when absent, the
/// description of its meta, its value labels as pairs of value and label.
struct CTVariableTexts {
  std::string id, sourceName, source, label, shortLabel, categorical, description;
  std::vector<std::pair<std::string, std::string>> categories;
};

/// What many variables of a chart have in common.
struct CTVariableKind {
  std::string source;
  bool isCategorical = false;
  std::vector<CTFormatType> formats;

  bool operator<(const CTVariableKind& other) const;
};

/// One variable of the parsed chart, whose ZephVisualization holds its texts.
class CTVariableType {
public:
  /// Borrows the kind, and the packed texts: id, column, label, short label, description
  /// and the categories' values and labels, each with a NUL at its end.
  CTVariableType(const CTVariableKind& kind, const char* texts, std::size_t categoryCount)
      : kind_(&kind), texts_(texts), categoryCount_(static_cast<std::uint32_t>(categoryCount)) {}

  std::string_view id() const { return text(0); }
  std::string_view sourceName() const { return text(1); }
  std::string_view label() const { return text(2); }
  std::string_view shortLabel() const { return text(3); }
  const std::string& source() const { return kind_->source; }
  bool isCategorical() const { return kind_->isCategorical; }
  const std::vector<CTFormatType>& formats() const { return kind_->formats; }
  /// Pairs of value and label.
  std::vector<std::pair<std::string_view, std::string_view>> categories() const;

  std::string getDescription() const { return std::string(isDescribed_ ? text(4) : ""); }
  void removeDescription() { isDescribed_ = false; }

  ZephExtensionSV* getExtension() const { return extension_.get(); }
  /// The extension, made when there is none.
  ZephExtensionSV& addExtension();

private:
  static constexpr std::size_t textCount = 5; ///< before the categories
  std::string_view text(std::size_t index) const;

  const CTVariableKind* kind_;
  const char* texts_;
  std::unique_ptr<ZephExtensionSV> extension_;
  std::uint32_t categoryCount_;
  bool isDescribed_ = true;
};

/// The chart as the output system reads it back from the document. Its variables may be
/// tens of thousands: their texts are packed into blocks, without a NUL in them, and what
/// they have in common is kept once.
class ZephVisualization {
public:
  void addVariable(const CTVariableTexts& texts, std::vector<CTFormatType> formats);
  std::deque<CTVariableType>& getSourceVariables() { return variables_; }
  const std::deque<CTVariableType>& getSourceVariables() const { return variables_; }

  std::optional<bool> icicleHorizontal; ///< set by customizeIciclePlots
  std::size_t icicleRows = 0;

private:
  const char* keep(std::string_view packed);

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* free_ = nullptr; ///< in the last block
  std::size_t freeCount_ = 0;
  std::set<CTVariableKind> kinds_;
  std::deque<CTVariableType> variables_;
};

class XGraph {
public:
  ZephVisualization& getImplementation() { return visualization_; }
  const ZephVisualization& getImplementation() const { return visualization_; }

private:
  ZephVisualization visualization_;
};

/// Adjusts a parsed chart to what its kind needs.
class customizeCharts {
public:
  explicit customizeCharts(ZephVisualization& chart) : chart_(chart) {}
  /// Notes an icicle plot's orientation and the rows to make room for.
  void customizeIciclePlots(bool horizontal, std::size_t rows);

private:
  ZephVisualization& chart_;
};

/// A finished chart on its way to the output: the document's text, parsed once
/// for what the output needs of it, and what is sent along. It borrows the text
/// and the data; both must outlive it.
class XDocument {
public:
  /// Throws ChartException, with line and column, when the text is not well-formed
  /// XML or has a document type declaration: a chart needs none, and what one pulls
  /// in is nobody's to read. The flags are the engine's and mean nothing here.
  XDocument(const std::string& xml, bool, bool);
  ~XDocument();

  XGraph* getExternalGraph() { return &graph_; }
  /// Nothing in the parsed chart depends on its being a statistical-process chart,
  /// so this changes nothing.
  void customizeSPCharts();

  void SetDescription(const ChartString& description);
  void SetSplitHeader(const ChartString& header);
  void SetChartTemplate(const std::string& name);
  void SetChartData(const VarDataProcessor* data) { data_ = data; }
  /// Which calls made the nodes of the document.
  void SetCalls(host::NodeCalls calls) { calls_ = std::move(calls); }

  /// Sends the chart to the sink (host/ChartSink.h). False when the sink refused it
  /// with a ChartException, which is reported; other exceptions pass. The flags are
  /// the engine's and mean nothing here.
  bool SendChart(bool, bool, bool);

private:
  const std::string& xml_;
  XGraph graph_;
  std::string name_;
  std::string description_;
  std::string splitHeader_;
  std::string template_;
  const VarDataProcessor* data_ = nullptr;
  host::NodeCalls calls_;
};
