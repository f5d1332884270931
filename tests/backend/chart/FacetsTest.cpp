#include "../support/BuilderTest.h"

using testing::AllOf;
using testing::Each;
using testing::IsEmpty;
using testing::SizeIs;

class Facets : public BuilderTest {
protected:
  int handle = registry().CreateChart();
  Chart& c = chart(handle);
  int frame = c.AddFrame(0, -1);
};

TEST_F(Facets, KeepOneTableAndOneLabelingAnywhereBelowAFrame) {
  const int inner = c.AddFrame(frame, -1);
  const int labeling = c.AddFacetLabeling(inner);
  const int table = c.AddTableFacet(inner);
  EXPECT_EQ(c.AddTableFacet(inner), table);
  EXPECT_EQ(c.AddTableFacet(frame), table);
  EXPECT_EQ(c.AddFacetLabeling(frame), labeling);
  const int beside = c.AddFrame(0, -1);
  EXPECT_EQ(c.AddTableFacet(beside), table + 2) << "not in another frame";
  EXPECT_EQ(c.AddCoordinateFacet(beside), table + 3);
  EXPECT_EQ(c.AddCoordinateFacet(beside), table + 4) << "any number";
  EXPECT_EQ(fragment(handle, 0),
            R"(<graph><frame id="frame1" style="default_style"><frame id="frame2" )"
            R"(style="default_style"><tableFacet/><facetLabeling/></frame></frame>)"
            R"(<frame id="frame3" style="default_style"><tableFacet/><coordinateFacet/>)"
            R"(<coordinateFacet/></frame></graph>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Facets, SplitPanelsByNestsOfTwoAndAnyOtherParts) {
  const int facet = c.AddTableFacet(frame);
  const int cross = c.AddCross(facet);
  const int nest = c.AddNest(cross);
  c.AddBlend(nest);
  const int variable = c.AddFacetVariable(nest, 2, frame);
  EXPECT_EQ(c.SetFacetLabelGap(variable, text("3%")), variable);
  c.AddFacetVariable(cross, 7, frame);
  c.AddNest(cross);
  EXPECT_EQ(fragment(handle, facet),
            R"(<tableFacet><cross><nest><blend/><facetVariable gap="3%" role="y" )"
            R"(variable="frame1"/></nest><facetVariable role="position" variable="frame1"/>)"
            R"(<nest/></cross></tableFacet>)");
  EXPECT_THAT(takeReports(), IsEmpty());

  const int refused[] = {c.AddNest(nest), c.AddBlend(nest), c.AddCross(nest),
                         c.AddFacetVariable(nest, 1, frame)};
  EXPECT_THAT(refused, Each(-1));
  EXPECT_THAT(takeReports(), AllOf(SizeIs(4), Each("Nest must have only 2 children - nest")));
}

TEST_F(Facets, LabelPanelsByLevel) {
  const int labeling = c.AddFacetLabeling(frame);
  const int rows = c.AddFacetLabel(labeling, text("rows"), 1, true);
  const int columns = c.AddFacetLabel(labeling, -1, 1, false);
  EXPECT_EQ(c.GetFacetLabel(labeling, 1), rows) << "the first of a level";
  EXPECT_EQ(c.GetFacetLabel(labeling, 2), -1);
  EXPECT_EQ(c.SetFacetLabelLevel(rows, text("2")), rows);
  EXPECT_EQ(c.GetFacetLabel(labeling, 1), columns);
  EXPECT_EQ(c.GetFacetLabel(labeling, 2), rows);
  EXPECT_EQ(c.SetFacetLabelGap(columns, text("0")), columns);
  EXPECT_EQ(c.SetFacetLabelCellStyle(rows, text("r")), rows);
  EXPECT_EQ(c.SetFacetLabelCellStyle(columns, -1), columns);
  EXPECT_EQ(c.SetFacetLabelingCellAspect(labeling, 0.75), labeling);
  EXPECT_EQ(fragment(handle, labeling),
            R"(<facetLabeling cellAspect="0.75"><facetLabel )"
            R"(cellStyle="facetLabel_rdefault_style" id="facetLabel_rows" level="2" )"
            R"(reverse="true"/><facetLabel cellStyle="facetLabeldefault_style" )"
            R"(gap="0" id="facetLabel3" level="1"/></facetLabeling>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Facets, StyleElementsAndGridLinesByPanel) {
  const int element = c.AddElement(frame, 21, -1);
  const int lines = c.AddMajorTicks(frame, -1, true, -1, -1, false, -1) - 1;
  c.AddPosition(element);
  c.AddFacetStyle(element, 136, text("mine"));
  c.AddFacetStyle(lines, text("first"), -1);
  EXPECT_EQ(fragment(handle, element),
            R"(<element id="element2" showCollidingLabels="true" style="default_style" )"
            R"(type="line"><facetStyle style="facetStyle_minedefault_style" )"
            R"(when="matrixscatterdiagonal"/><position/></element>)");
  EXPECT_EQ(fragment(handle, lines),
            R"(<gridLines style="majorTicks_frame1gridLineStyle"><facetStyle )"
            R"(style="facetStyledefault_style" when="first"/></gridLines>)");
  c.AddStyles();
  EXPECT_THAT(fragment(handle, 0),
              testing::HasSubstr(R"(<style id="facetStyle_minedefault_style"/>)"
                                 R"(<style id="facetStyledefault_style"/>)"));
}

TEST_F(Facets, ChangeTheCoordinatesOfAFrame) {
  c.AddElement(frame, 21, -1);
  const int transform = c.AddCoordinateTransform(frame, 31);
  c.AddParam(transform, 105, text("10"));
  EXPECT_EQ(c.SetFrameClipping(frame, true), frame);
  EXPECT_EQ(c.SetFrameClipping(frame, false), frame);
  EXPECT_EQ(fragment(handle, frame),
            R"(<frame clip="false" id="frame1" style="default_style"><coordinateTransform )"
            R"(method="polar"><parameter name="theta" value="10"/></coordinateTransform>)"
            R"(<element id="element2" showCollidingLabels="true" style="default_style" )"
            R"(type="line"/></frame>)");
}
