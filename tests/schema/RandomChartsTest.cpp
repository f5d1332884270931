#include <array>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <rapidcheck.h>

#include "backend/support/BuilderTest.h"
#include <host/Text.h>
#include <schema/SchemaCheck.h>

namespace {

/// The operation, two numbers to choose nodes by and one to choose all else.
using Call = std::tuple<std::uint8_t, std::uint16_t, std::uint16_t, std::uint8_t>;

/// A procedure that calls what its numbers say. Mostly it hands over a node of the kind
/// that an operation is meant for, sometimes any.
class Procedure {
public:
  Procedure(Chart& chart, std::vector<int> texts) : chart_(chart), texts_(std::move(texts)) {}

  void choose(const Call& call) {
    std::tie(std::ignore, numbers_[0], numbers_[1], rest_) = call;
    nodesChosen_ = 0;
  }

  Chart& chart() const { return chart_; }
  int node(std::string_view kinds) {
    const unsigned number = numbers_[nodesChosen_++ % numbers_.size()];
    std::vector<int> all, meant;
    for (int handle = 0; xercesc::DOMElement* node = chart_.getElement(handle); ++handle) {
      all.push_back(handle);
      const std::string name = ' ' + host::utf8(node->getNodeName()) + ' ';
      if ((' ' + std::string(kinds) + ' ').find(name) != std::string::npos) meant.push_back(handle);
    }
    const auto& from = meant.empty() || number % 8 == 0 ? all : meant;
    return from[number / 8 % from.size()];
  }
  xercesc::DOMElement& element(std::string_view kinds) { return *chart_.getElement(node(kinds)); }
  int text() const { return texts_[rest_ % texts_.size()]; }
  int optional() const { return rest_ % 3 == 0 ? -1 : text(); }
  int role() const { return 1 + rest_ % 7; }
  int column() const { return rest_ % columns; }
  int summary() const { return column() * 5 + 2; }
  bool flag() const { return rest_ % 2 == 0; }
  double number() const { return rest_ / 16.0; }

  static constexpr int columns = 6;

private:
  Chart& chart_;
  std::vector<int> texts_;
  std::array<std::uint16_t, 2> numbers_{};
  std::size_t nodesChosen_ = 0;
  std::uint8_t rest_ = 0;
};

using P = Procedure;
constexpr void (*operations[])(P&) = {
    // Data.
    [](P& p) { p.chart().AddSource(); },
    [](P& p) { p.chart().AddVariable(p.node("source"), p.column(), p.flag()); },
    [](P& p) { p.chart().AddLabelingVariable(p.node("source"), p.column(), p.flag()); },
    [](P& p) { p.chart().AddWeightVariable(p.node("source"), p.column()); },
    [](P& p) { p.chart().AddAggregate(p.node("source variable"), 140, p.flag(), -1, -1, -1); },
    [](P& p) {
      p.chart().AddLabelingAggregate(p.node("source"), 1, p.flag(), p.optional(), p.optional(),
                                     p.node("domain"));
    },
    [](P& p) { p.chart().AddWeightAggregate(p.node("source"), 140, p.optional()); },
    [](P& p) { p.chart().AddToVariableList(p.flag() ? 0 : 1, p.node("variable")); },
    [](P& p) { p.chart().AddOverlayVariable(0, p.role()); },
    [](P& p) { p.chart().AddMatrixVariable(1); },
    [](P& p) { p.chart().SetVariable(p.node("variable"), p.column(), p.flag()); },
    [](P& p) { p.chart().SetVariableExternal(p.node("variable")); },
    [](P& p) { p.chart().SetVariableLabel(p.node("variable"), p.text()); },
    [](P& p) { p.chart().SetVariableName(p.node("variable"), p.text()); },
    [](P& p) { p.chart().SetVariableValue(p.node("variable"), p.text()); },
    [](P& p) { p.chart().SetVariableCategorical(p.node("variable"), p.flag()); },
    [](P& p) { p.chart().SetVariableFormat(p.node("variable"), (20L + p.column()) << 16 | 0xb02); },
    [](P& p) { p.chart().SetSummaryFunction(p.node("variable"), p.summary(), p.number(), -1e-20); },
    [](P& p) { p.chart().CreateLogVar(p.node("variable")); },
    [](P& p) { p.chart().AddRelabel(p.node("variable"), p.text(), p.text()); },
    [](P& p) { p.chart().AddRelabels(p.node("variable"), p.column()); },
    [](P& p) { p.chart().AddNumberFormat(p.node("axis meta")); },
    // Domains.
    [](P& p) { p.chart().AddDomain(p.flag()); },
    [](P& p) { p.chart().AddInterval(p.node("domain"), p.text(), p.text()); },
    [](P& p) { p.chart().AddDomainReference(p.node("domain"), p.node("variable")); },
    [](P& p) { p.chart().AddSort(p.node("domain")); },
    [](P& p) { p.chart().SetDomainDescending(p.node("domain"), p.flag()); },
    [](P& p) { p.chart().AddSimpleSort(p.node("sort")); },
    [](P& p) { p.chart().SetSimpleSortMethod(p.node("simpleSort"), p.text()); },
    [](P& p) {
      p.chart().AddStatisticSort(p.node("sort"), p.node("variable"), p.node("variable"));
    },
    [](P& p) { p.chart().SetXYDimensionSameScale(p.number()); },
    // Frames.
    [](P& p) { p.chart().AddFrame(p.node("graph frame"), p.optional()); },
    [](P& p) { p.chart().SetFrameClipping(p.node("frame"), p.flag()); },
    [](P& p) { p.chart().AddLocation(p.element("frame"), u"%", 0.5, 1e30, p.number(), -1); },
    [](P& p) { p.chart().AddDescription(p.node("frame"), p.text()); },
    [](P& p) { p.chart().AddLabel(p.node("frame axis legend"), p.optional(), p.optional()); },
    [](P& p) {
      p.chart().AddDimension(p.node("frame"), p.role(), p.flag() ? p.node("domain") : -1);
    },
    [](P& p) { p.chart().SetDimensionDomain(p.node("dimension"), p.node("domain")); },
    [](P& p) { p.chart().SetDimensionScale(p.node("dimension"), 124, -1, p.flag()); },
    [](P& p) { p.chart().SetDimensionUpperMargin(p.node("dimension"), p.text()); },
    [](P& p) { p.chart().SetUnionDomain(p.node("dimension")); },
    [](P& p) { p.chart().SetFacetsDifferentScale(p.node("dimension")); },
    [](P& p) { p.chart().SetDimensionSameRatio(p.node("dimension"), p.flag()); },
    [](P& p) { p.chart().AddAxis(p.node("dimension facetLabel"), p.optional(), p.flag()); },
    [](P& p) {
      p.chart().AddMajorTicks(p.node("axis"), p.optional(), p.flag(), -1, -1, p.flag(), p.text());
    },
    [](P& p) { p.chart().AddMinorTicks(p.node("axis"), -1, p.flag(), p.text(), p.optional()); },
    [](P& p) { p.chart().AddTransform(p.node("axis"), p.text()); },
    [](P& p) { p.chart().AddReferenceLine(p.node("frame"), p.role(), p.text(), p.role()); },
    [](P& p) { p.chart().AddYFunctionOfX(p.node("frame"), p.text(), -1); },
    [](P& p) { p.chart().AddLegend(p.node("frame"), p.optional()); },
    [](P& p) {
      p.chart().AddLegendTarget(p.node("legend"), p.node("element"), p.optional(), p.optional());
    },
    // Facets.
    [](P& p) { p.chart().AddTableFacet(p.node("frame")); },
    [](P& p) { p.chart().AddFacetLabeling(p.node("frame")); },
    [](P& p) { p.chart().AddCoordinateFacet(p.node("frame")); },
    [](P& p) { p.chart().AddNest(p.node("tableFacet coordinateFacet nest cross")); },
    [](P& p) { p.chart().AddCross(p.node("tableFacet nest blend")); },
    [](P& p) { p.chart().AddFacetVariable(p.node("nest cross"), p.role(), p.node("variable")); },
    [](P& p) { p.chart().AddFacetLabel(p.node("facetLabeling"), p.optional(), 1, p.flag()); },
    [](P& p) { p.chart().SetFacetLabelGap(p.node("facetLabel facetVariable"), p.text()); },
    [](P& p) { p.chart().SetFacetLabelCellStyle(p.node("facetLabel"), p.optional()); },
    [](P& p) { p.chart().SetFacetLabelingCellAspect(p.node("facetLabeling"), p.number()); },
    [](P& p) { p.chart().AddFacetStyle(p.node("element gridLines"), p.text(), p.optional()); },
    [](P& p) { p.chart().AddCoordinateTransform(p.node("frame"), p.text()); },
    // Elements.
    [](P& p) { p.chart().AddElementGroup(p.node("frame"), p.optional()); },
    [](P& p) { p.chart().AddElement(p.node("frame elementGroup"), p.text(), p.optional()); },
    [](P& p) { p.chart().SetElementName(p.node("element guide"), p.text()); },
    [](P& p) { p.chart().SetElementDot(p.node("element"), p.text()); },
    [](P& p) { p.chart().AddStack(p.node("position"), p.flag()); },
    [](P& p) { p.chart().SetDisplayOverlappingLabels(p.node("element"), p.flag()); },
    [](P& p) { p.chart().SetLabelCollisionHandling(p.node("element"), p.text()); },
    [](P& p) { p.chart().AddPosition(p.node("element")); },
    [](P& p) { p.chart().AddX(p.node("element position"), p.node("variable")); },
    [](P& p) { p.chart().AddY(p.node("element position"), p.node("variable")); },
    [](P& p) { p.chart().AddZ(p.node("element position"), p.node("variable")); },
    [](P& p) { p.chart().AddTheta(p.node("element position"), p.node("variable")); },
    [](P& p) { p.chart().AddR(p.node("element position"), p.node("variable")); },
    [](P& p) { p.chart().AddPhi(p.node("element position"), p.node("variable")); },
    [](P& p) { p.chart().AddSize(p.node("element labeling"), p.node("variable")); },
    [](P& p) { p.chart().SetSizeLow(p.node("size"), p.text()); },
    [](P& p) { p.chart().AddColor(p.node("element"), p.node("variable")); },
    [](P& p) { p.chart().AddSplit(p.node("element"), p.node("variable")); },
    [](P& p) { p.chart().AddLabelingSuffix(p.node("element"), p.node("variable"), p.optional()); },
    [](P& p) { p.chart().AddStyleBy(p.node("element"), p.node("variable")); },
    [](P& p) { p.chart().AddStyleByColor(p.node("element"), p.node("variable")); },
    [](P& p) { p.chart().AddStyleByColorAndPattern(p.node("element"), p.node("variable")); },
    [](P& p) { p.chart().AddStatistic(p.node("element position size"), p.text()); },
    [](P& p) { p.chart().AddParam(p.node("statistic guide scale"), p.text(), p.text()); },
    [](P& p) { p.chart().SetBinWidth(p.number()); },
};

} // namespace

class RandomCharts : public BuilderTest {
protected:
  Dictionary* columns = described({{"n", "Number", 0, KORVA_Format(5, 8, 2)},
                                   {"d", "Date", 0, KORVA_Format(20, 11, 0)},
                                   {"t", "Time", 0, KORVA_Format(21, 5, 0)},
                                   {"w", "Week", 0, KORVA_Format(30, 8, 0)},
                                   {"c", "", 0, KORVA_Format(33, 8, 2)},
                                   {"s", "Text", 8, KORVA_Format(1, 8, 0)}});

  /// The document of a chart that got these calls.
  std::string document(const std::vector<Call>& calls) {
    const int handle = chartOn(columns);
    Chart& made = chart(handle);
    Procedure procedure(made, {text(""), text("a"), text("a\nb <&> ü"), text("data_1"),
                               text("pie_1"), text("5%"), 23, 44, text("adefault_style")});
    made.BeginVariableList();
    made.BeginVariableList();
    made.AddVariable(made.AddSource(), 0, false);
    made.AddElement(made.AddFrame(0, text("data_1")), 23, -1);
    for (const Call& call : calls) {
      procedure.choose(call);
      operations[std::get<0>(call) % std::size(operations)](procedure);
    }
    made.updateGroupedChart();
    made.AddStyles();
    std::string xml;
    made.GetXmlBuffer(xml, true);
    registry().KillChart(handle);
    return xml;
  }
};

TEST_F(RandomCharts, KeepToTheGrammar) {
  constexpr int mostCalls = 400;
  const schema::SchemaCheck check;
  EXPECT_TRUE(rc::check([&] {
    const auto calls = *rc::gen::scale(mostCalls / 100.0, rc::gen::arbitrary<std::vector<Call>>());
    const std::string xml = document(calls);
    const std::vector<std::string> findings = check.findings(xml);
    if (!findings.empty()) RC_FAIL(findings.front() + '\n' + xml);
  }));
}
