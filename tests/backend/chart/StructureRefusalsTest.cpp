#include "../support/RefusalTest.h"

using testing::ElementsAre;

// What the operations on dimensions, domains, guides and facets refuse, and how they
// say it.
class StructureRefusals : public RefusalTest {
protected:
  int handle = registry().CreateChart();
  Chart& c = chart(handle);
  int frame = c.AddFrame(0, none);
  int x = c.AddDimension(frame, 1, none);
  int domain = c.AddDomain(true);
  int sort = c.AddSort(domain);
  int legend = c.AddLegend(frame, none);
  int labeling = c.AddFacetLabeling(frame);
  int label = c.AddFacetLabel(labeling, none, 0, false);
  int nest = c.AddNest(c.AddCoordinateFacet(frame));
  int next = nest + 1; ///< in range, yet no node

  std::string range(const char* noun) const { return outOfRange(noun, next); }
};

TEST_F(StructureRefusals, OfDimensions) {
  const std::string dimension = range("dimension");
  expectRefused(
      c, handle, next,
      {
          {[&] { return c.AddDimension(far, 1, none); }, {range("frame")}},
          {[&] { return c.AddDimension(frame, 0, none); }, {"invalid role 0"}},
          {[&] { return c.AddDimension(frame, 8, none); }, {"invalid role 8"}},
          {[&] { return c.AddDimension(frame, 2, far); }, {range("domain")}},
          {[&] { return c.AddDimension(frame, 2, next); }, {}},
          {[&] { return c.AddDimension(next, 2, none); }, {}},
          {[&] { return c.GetDimension(far, 0); }, {"invalid role 0"}},
          {[&] { return c.GetDimension(far, 1); }, {range("frame")}},
          {[&] { return c.GetDimension(frame, 2); }, {}},
          {[&] { return c.GetDimension(next, 1); }, {}},
          {[&] { return c.SetDimensionDomain(far, domain); }, {dimension}},
          {[&] { return c.SetDimensionDomain(x, far); }, {range("domain")}},
          {[&] { return c.SetDimensionDomain(x, next); }, {}},
          {[&] { return c.SetDimensionDomain(next, domain); }, {}},
          {[&] { return c.SetDimensionScale(far, 116, word, false); }, {dimension}},
          {[&] { return c.SetDimensionScale(x, far, word, false); },
           {"method handle out of range"}},
          {[&] { return c.SetDimensionScale(x, 116, none, false); }, {"value handle out of range"}},
          {[&] { return c.SetDimensionScale(frame, 124, none, false); }, {}},
          {[&] { return c.SetDimensionLowerMargin(far, word); }, {dimension}},
          {[&] { return c.SetDimensionLowerMargin(x, none); }, {"margin handle out of range"}},
          {[&] { return c.SetDimensionLowerMargin(frame, word); }, {}},
          {[&] { return c.SetDimensionUpperMargin(x, far); }, {"margin handle out of range"}},
          {[&] { return c.SetDimensionUpperMargin(frame, word); }, {}},
          {[&] { return c.SetDimensionLowerMapping(x, far); }, {"mapping handle out of range"}},
          {[&] { return c.SetDimensionLowerMapping(frame, word); }, {}},
          {[&] { return c.SetDimensionUpperMapping(x, far); }, {"mapping handle out of range"}},
          {[&] { return c.SetDimensionUpperMapping(next, word); }, {}},
          {[&] { return c.SetUnionDomain(far); }, {dimension}},
          {[&] { return c.SetUnionDomain(frame); },
           {"can't set unionDomain attribute for anything but a dimension frame"}},
          {[&] { return c.SetUnionDomain(next); },
           {"can't set unionDomain attribute for anything but a dimension "}},
          {[&] { return c.SetFacetsDifferentScale(far); }, {dimension}},
          {[&] { return c.SetFacetsDifferentScale(frame); }, {}},
          {[&] { return c.SetDimensionSameRatio(far, true); }, {dimension}},
          {[&] { return c.SetDimensionSameRatio(next, true); }, {}},
      });
}

TEST_F(StructureRefusals, OfDomainsAndSorts) {
  expectRefused(
      c, handle, next,
      {
          {[&] { return c.AddInterval(far, word, word); }, {range("element")}},
          {[&] { return c.AddInterval(frame, none, word); }, {"min handle out of range"}},
          {[&] { return c.AddInterval(frame, word, none); }, {"max handle out of range"}},
          {[&] { return c.AddInterval(frame, word, word); },
           {"can't add interval to anything but domain - frame"}},
          {[&] { return c.AddInterval(next, word, word); },
           {"can't add interval to anything but domain - "}},
          {[&] { return c.AddDomainReference(far, domain); }, {range("parent")}},
          {[&] { return c.AddDomainReference(domain, far); }, {range("domain")}},
          {[&] { return c.AddDomainReference(frame, frame); },
           {"can't add domainReference to anything but domain - frame"}},
          {[&] { return c.AddDomainReference(domain, frame); },
           {"domainReference must refer to a domain or variable frame"}},
          {[&] { return c.AddDomainReference(domain, next); },
           {"domainReference must refer to a domain or variable "}},
          {[&] { return c.SetDomainDescending(far, true); }, {range("domain")}},
          {[&] { return c.SetDomainDescending(sort, true); },
           {"can't set descending attribute for anything but a domain sort"}},
          {[&] { return c.AddSort(far); }, {range("domain")}},
          {[&] { return c.AddSort(frame); }, {"can't add sort to anything but domain - frame"}},
          {[&] { return c.AddSimpleSort(far); }, {range("sort")}},
          {[&] { return c.AddSimpleSort(domain); },
           {"can't add simpleSort to anything but sort - domain"}},
          {[&] { return c.SetSimpleSortMethod(far, word); }, {range("simpleSort")}},
          {[&] { return c.SetSimpleSortMethod(sort, none); }, {"method handle out of range"}},
          {[&] { return c.SetSimpleSortMethod(sort, word); }, {}},
          {[&] { return c.AddStatisticSort(far, x, x); }, {range("sort")}},
          {[&] { return c.AddStatisticSort(sort, far, x); }, {range("sourceVariable")}},
          {[&] { return c.AddStatisticSort(sort, x, far); }, {range("statVariable")}},
          {[&] { return c.AddStatisticSort(domain, x, x); },
           {"can't add statisticSort to anything but sort - domain"}},
          {[&] { return c.AddStatisticSort(sort, next, x); }, {}},
          {[&] { return c.AddStatisticSort(sort, x, next); }, {}},
          {[&] { return c.SetSortDescending(far, true); }, {range("sort")}},
          {[&] { return c.SetSortDescending(domain, true); },
           {"can't set descending attribute for anything but a sort domain"}},
          {[&] { return c.AddRelabel(far, word, word); }, {range("variable")}},
          {[&] { return c.AddRelabel(frame, none, word); }, {"from handle out of range"}},
          {[&] { return c.AddRelabel(frame, word, none); }, {"to handle out of range"}},
          {[&] { return c.AddRelabel(frame, word, word); },
           {"can't add relabel to anything but a variable - frame"}},
          {[&] { return c.AddRelabels(far, 0); }, {range("variable")}},
      });
  // Without data a column is refused twice over.
  EXPECT_EQ(c.AddRelabels(frame, 0), -1);
  EXPECT_THAT(takeReports(), ElementsAre("no datasource", "invalid variable index 0"));
  Dictionary* data = described({Column("v", "", 0, {5, 8, 0})}, {0});
  c.SetDataSource(data);
  EXPECT_EQ(c.AddRelabels(frame, 0), -1);
  EXPECT_THAT(takeReports(), ElementsAre("can't add relabel to anything but a variable - frame"));
}

TEST_F(StructureRefusals, OfAxesGuidesAndLegends) {
  const auto ticks = [&](int parent, int position, int length, int angle, int delta) {
    return c.AddMajorTicks(parent, position, true, length, angle, true, delta);
  };
  expectRefused(
      c, handle, next,
      {
          {[&] { return c.AddAxis(far, none, true); }, {range("dimension")}},
          {[&] { return c.AddAxis(x, far, true); }, {"id handle out of range"}},
          {[&] { return c.AddAxis(next, none, true); }, {}},
          {[&] { return ticks(far, none, none, none, none); }, {range("parent")}},
          {[&] { return ticks(x, far, none, none, none); }, {"position handle out of range"}},
          {[&] { return ticks(x, none, far, none, none); }, {"length handle out of range"}},
          {[&] { return ticks(x, none, none, far, none); }, {"labelAngle handle out of range"}},
          {[&] { return ticks(x, none, none, none, -2); }, {"delta handle out of range"}},
          {[&] { return ticks(next, none, none, none, none); }, {}},
          {[&] { return c.AddMinorTicks(far, none, true, none, none); }, {range("axis")}},
          {[&] { return c.AddMinorTicks(x, far, true, none, none); },
           {"position handle out of range"}},
          {[&] { return c.AddMinorTicks(x, none, true, far, none); },
           {"length handle out of range"}},
          {[&] { return c.AddMinorTicks(x, none, true, none, far); },
           {"number handle out of range"}},
          {[&] { return c.AddMinorTicks(next, none, true, none, none); }, {}},
          {[&] { return c.AddTransform(far, word); }, {range("parent")}},
          {[&] { return c.AddTransform(x, none); }, {"method handle out of range"}},
          {[&] { return c.AddTransform(next, word); }, {}},
          {[&] { return c.AddGuide(far, word, none); }, {range("frame")}},
          {[&] { return c.AddGuide(frame, none, none); }, {"type handle out of range"}},
          {[&] { return c.AddGuide(frame, word, far); }, {"suffix handle out of range"}},
          {[&] { return c.AddGuide(x, word, none); },
           {"can't add guide to anything but frame - dimension"}},
          {[&] { return c.AddReferenceLine(far, 1, word, none); }, {range("frame")}},
          {[&] { return c.AddReferenceLine(frame, 1, none, none); }, {"value handle out of range"}},
          {[&] { return c.AddReferenceLine(x, 1, word, 1); },
           {"can't add guide to anything but frame - dimension"}},
          {[&] { return c.AddYFunctionOfX(far, word, none); }, {range("frame")}},
          {[&] { return c.AddYFunctionOfX(frame, none, none); }, {"function handle out of range"}},
          {[&] { return c.AddYFunctionOfX(0, word, none); },
           {"can't add guide to anything but frame - graph"}},
          {[&] { return c.AddLegend(far, none); }, {range("frame")}},
          {[&] { return c.AddLegend(frame, far); }, {"suffix handle out of range"}},
          {[&] { return c.AddLegend(next, none); }, {}},
          {[&] { return c.AddLegendTarget(far, x, none, none); }, {range("legend")}},
          {[&] { return c.AddLegendTarget(legend, far, none, none); }, {range("element or guide")}},
          {[&] { return c.AddLegendTarget(legend, x, far, none); }, {"suffix handle out of range"}},
          {[&] { return c.AddLegendTarget(legend, x, none, far); },
           {"aesthetic handle out of range"}},
          {[&] { return c.AddLegendTarget(frame, x, none, none); },
           {"can't add legendTarget to anything but a legend - frame"}},
          {[&] { return c.AddLegendTarget(legend, next, none, none); }, {}},
          {[&] { return c.AddLegendTargetEx(far, x, x, none); }, {range("legend")}},
          {[&] { return c.AddLegendTargetEx(legend, far, x, none); }, {range("element or guide")}},
          {[&] { return c.AddLegendTargetEx(legend, x, far, none); }, {range("styleby")}},
          {[&] { return c.AddLegendTargetEx(legend, x, x, far); }, {"suffix handle out of range"}},
          {[&] { return c.AddLegendTargetEx(frame, x, x, none); },
           {"can't add legendTarget to anything but a legend - frame"}},
          {[&] { return c.AddLegendTargetEx(legend, x, next, none); }, {}},
          {[&] { return c.SetDisplayOverlappingLabels(far, true); }, {range("element")}},
          {[&] { return c.SetDisplayOverlappingLabels(next, true); }, {}},
          {[&] { return c.SetLabelCollisionHandling(far, word); }, {range("element")}},
          {[&] { return c.SetLabelCollisionHandling(x, none); }, {"handling handle out of range"}},
      });
}

TEST_F(StructureRefusals, OfFacetsAndCoordinates) {
  const std::string part = range("coordinateFacet, cross, nest, or blend");
  const std::string facetLabel = range("facetLabel");
  expectRefused(
      c, handle, next,
      {
          {[&] { return c.AddTableFacet(far); }, {range("frame")}},
          {[&] { return c.AddTableFacet(0); },
           {"can't add a table facet to anything but a frame - graph"}},
          {[&] { return c.AddFacetLabeling(far); }, {range("frame")}},
          {[&] { return c.AddFacetLabeling(x); },
           {"can't add a facet labeling to anything but a frame - dimension"}},
          {[&] { return c.AddCoordinateFacet(far); }, {range("frame")}},
          {[&] { return c.AddCoordinateFacet(0); },
           {"can't add coordinateFacet to anything but graph or frame - graph"}},
          {[&] { return c.AddNest(far); }, {part}},
          {[&] { return c.AddBlend(far); }, {part}},
          {[&] { return c.AddCross(far); }, {part}},
          {[&] { return c.AddCross(next); }, {"Nest must have only 2 children - "}},
          {[&] { return c.AddFacetVariable(far, 1, x); }, {range("facet")}},
          {[&] { return c.AddFacetVariable(nest, 0, x); }, {"invalid role 0"}},
          {[&] { return c.AddFacetVariable(nest, 1, far); }, {range("variable")}},
          {[&] { return c.AddFacetVariable(nest, 1, next); }, {}},
          {[&] { return c.AddFacetLabel(far, none, 0, true); }, {range("facetLabeling")}},
          {[&] { return c.AddFacetLabel(labeling, far, 0, true); }, {"suffix handle out of range"}},
          {[&] { return c.AddFacetLabel(frame, none, 0, true); },
           {"can't add facet label to anything but facet labeling - frame"}},
          {[&] { return c.GetFacetLabel(far, 0); }, {range("facetLabeling")}},
          {[&] { return c.GetFacetLabel(frame, 0); },
           {"can't get facet label from anything but facet labeling frame"}},
          {[&] { return c.SetFacetLabelLevel(far, word); }, {facetLabel}},
          {[&] { return c.SetFacetLabelLevel(label, none); }, {"level handle out of range"}},
          {[&] { return c.SetFacetLabelLevel(labeling, word); }, {}},
          {[&] { return c.SetFacetLabelGap(far, word); }, {facetLabel}},
          {[&] { return c.SetFacetLabelGap(label, none); }, {"gap handle out of range"}},
          {[&] { return c.SetFacetLabelGap(labeling, word); }, {}},
          {[&] { return c.SetFacetLabelCellStyle(far, none); }, {facetLabel}},
          {[&] { return c.SetFacetLabelCellStyle(label, far); }, {"suffix handle out of range"}},
          {[&] { return c.SetFacetLabelCellStyle(frame, none); },
           {"can't set the cellStyle for anything but a facetLabel frame"}},
          {[&] { return c.SetFacetLabelingCellAspect(far, 1); }, {range("facetLabeling")}},
          {[&] { return c.SetFacetLabelingCellAspect(frame, 1); },
           {"can't set cell aspect for anything but facet labeling frame"}},
          {[&] { return c.AddFacetStyle(far, word, none); }, {range("element")}},
          {[&] { return c.AddFacetStyle(frame, none, none); }, {"when handle out of range"}},
          {[&] { return c.AddFacetStyle(frame, word, far); }, {"suffix handle out of range"}},
          {[&] { return c.AddFacetStyle(frame, word, none); },
           {"can't add a facetStyle to anything but an element or gridLines - frame"}},
          {[&] { return c.AddCoordinateTransform(far, word); }, {range("frame")}},
          {[&] { return c.AddCoordinateTransform(frame, none); }, {"method handle out of range"}},
          {[&] { return c.AddCoordinateTransform(next, word); }, {}},
          {[&] { return c.SetFrameClipping(far, true); }, {range("frame")}},
          {[&] { return c.SetFrameClipping(x, true); }, {}},
      });
}
