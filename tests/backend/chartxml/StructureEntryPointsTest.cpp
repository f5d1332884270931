#include "../support/BuilderTest.h"
#include "../support/EntryArguments.h"

#include <cstdint>
#include <vector>

#include <chartxml/EntryPoints.h>

using testing::ElementsAre;
using testing::IsEmpty;

class StructureEntryPoints : public BuilderTest {
protected:
  static Int word(const char* bytes) { return text(bytes); }

  Int c = cx_createchart_(nullptr, nullptr, "p", Int(1));
  Int frame = cx_addframe_(c, Int(0), Int(-1));
  Int ignored = 0;
};

// Arguments of one type are easily swapped: every one here has a value of its own.
TEST_F(StructureEntryPoints, PassDimensionsAndDomainsInOrder) {
  const Int simple = cx_adddomain_(c, ignored, ignored, Int(1), word("s"));
  const Int domain = simple.value - 2;
  const Int other = cx_adddomain_(c, ignored, ignored, Int(0), Int(-1));
  cx_addintervalex_(c, domain, word("0"), word("9"));
  cx_setdomaindescending_(c, domain, Int(1));
  cx_setdomaindescending_(c, other, Int(0));
  const Int sort = cx_addsort_(c, other);
  cx_setsimplesortmethod_(c, Int(cx_addsimplesort_(c, sort)), word("m"));
  cx_addstatisticsort_(c, sort, domain, other);
  cx_setsortdescending_(c, sort, Int(1));
  cx_adddomainreference_(c, other, other);
  const double extent = 3;
  EXPECT_EQ(cx_setxydimensionsamescale_(c, &extent), 1);
  const Int x = cx_adddimension_(c, frame, Int(1), Int(-1));
  cx_setdimensiondomain_(c, x, other);
  cx_setdimensionscale_(c, x, Int(118), word("0.5"), Int(1));
  cx_setuniondomain_(c, x);
  cx_setdimensionsameratio_(c, x, Int(1));
  const double width = 0.25;
  cx_addstatistic_(c, x, Int(44));
  EXPECT_EQ(cx_setbinwidth_(c, &width), 1);
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(
      fragment(0, 0),
      R"(<graph name="p"><domain categorical="true" id="domain2">)"
      R"(<interval max="9" min="0"/><interval max="3" min="-3"/>)"
      R"(<sort descending="true"><simpleSort method="s"/></sort></domain>)"
      R"(<domain categorical="false" id="domain3"><interval max="3" min="-3"/>)"
      R"(<sort descending="false"/><sort descending="true"><simpleSort method="m"/>)"
      R"(<statisticSort sourceVariable="domain2" statVariable="domain3"/></sort>)"
      R"(<domainReference domain="domain3"/></domain>)"
      R"(<frame id="frame1" style="default_style"><dimension domain="domain3" )"
      R"(facetsShareScale="true" role="x" sameRatio="trueCentered" unionDomain="true">)"
      R"(<scale invert="true" method="exponent"><parameter name="exponent" value="0.5"/>)"
      R"(<parameter name="safe" value="true"/></scale><statistic method="histogram">)"
      R"(<parameter name="facetsShareSpecification" value="true"/>)"
      R"(<parameter name="bin-width" value="0.25"/></statistic></dimension></frame></graph>)");
}

TEST_F(StructureEntryPoints, PassGuidesInOrder) {
  const Int element = cx_addelement_(c, frame, Int(21), word("e"));
  cx_setdisplayoverlappinglabels_(c, element, Int(0));
  cx_setlabelcollisionhandling_(c, element, word("h"));
  cx_addxreferenceline_(c, frame, word("1"), Int(4));
  cx_addyreferenceline_(c, frame, word("2"), Int(5));
  cx_addminorticks_(c, frame, word("p"), Int(0), word("l"), word("n"));
  const Int legend = cx_addlegend_(c, element, word("l"));
  cx_addlegendtargetex_(c, legend, element, frame, word("t"));
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(fragment(0, static_cast<int>(frame.value)),
            R"(<frame id="frame1" style="default_style"><element id="element_e" )"
            R"(labelCollisionHandling="h" showCollidingLabels="false" )"
            R"(style="element_edefault_style" type="line"><legend id="legend_l" )"
            R"(style="legend_ldefault_style"><legendTarget aesthetic="frame1" )"
            R"(element="element_e" id="legendTarget_t"/></legend></element>)"
            R"(<guide id="guide_referenceLine_104" style="guide_referenceLine_104default_style" )"
            R"(type="line"><parameter name="x" value="1"/></guide>)"
            R"(<guide id="guide_referenceLine_205" style="guide_referenceLine_205default_style" )"
            R"(type="line"><parameter name="y" value="2"/></guide>)"
            R"(<minorTicks length="l" markStyle="frame_frame1markStyle" number="n" )"
            R"(position="p"/></frame>)");
}

TEST_F(StructureEntryPoints, PassFacetsInOrder) {
  const Int table = cx_addtablefacet_(c, frame);
  const Int cross = cx_addcross_(c, table);
  const Int nest = cx_addnest_(c, cross);
  cx_addblend_(c, nest);
  cx_setfacetlabelgap_(c, Int(cx_addfacetvariable_(c, nest, Int(3), frame)), word("g"));
  cx_addcoordinatefacet_(c, frame);
  cx_addcoordinatetransform_(c, frame, Int(31));
  const Int labeling = cx_addfacetlabeling_(c, frame);
  const Int label = cx_addfacetlabel_(c, labeling, word("a"), Int(4), Int(0));
  EXPECT_EQ(cx_getfacetlabel_(c, labeling, Int(4)), label.value);
  cx_setfacetlabellevel_(c, label, word("5"));
  const double aspect = 1.5;
  cx_setfacetlabelingcellaspect_(c, labeling, &aspect);
  CX_AddFacetStyle(c, Int(cx_addelement_(c, frame, Int(21), word("e"))), word("w"), word("s"));
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(fragment(0, static_cast<int>(frame.value)),
            R"(<frame id="frame1" style="default_style"><tableFacet><cross><nest><blend/>)"
            R"(<facetVariable gap="g" role="z" variable="frame1"/></nest></cross></tableFacet>)"
            R"(<facetLabeling cellAspect="1.5"><facetLabel id="facetLabel_a" level="5"/>)"
            R"(</facetLabeling><coordinateFacet/><coordinateTransform method="polar"/>)"
            R"(<element id="element_e" showCollidingLabels="true" )"
            R"(style="element_edefault_style" type="line"><facetStyle )"
            R"(style="facetStyle_sdefault_style" when="w"/></element></frame>)");
}

TEST_F(StructureEntryPoints, AnswerTheStepOfADomainThatFailed) {
  EXPECT_EQ(cx_adddomain_(Int(9), ignored, ignored, Int(1), word("s")), -1);
  EXPECT_EQ(cx_adddomain_(c, ignored, ignored, Int(1), Int(9999)), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("chart handle (9) out of range (0-1)", "method handle out of range"));
  EXPECT_EQ(fragment(0, 2), R"(<domain categorical="true" id="domain2"><sort><simpleSort/>)"
                            R"(</sort></domain>)")
      << "what was made stays";
}

TEST_F(StructureEntryPoints, BuildDimensionsOfOneRatio) {
  std::int64_t xStyle = 0, xAxis = 0, yStyle = 0, yAxis = 0;
  const std::int64_t x = cx_addxydimaxiswithsameratio_(c, frame, Int(-1), Int(-1), Int(0), Int(1),
                                                       Int(1), &xStyle, &xAxis, &yStyle, &yAxis);
  EXPECT_EQ(x, 2);
  EXPECT_THAT((std::vector{xAxis, yAxis}), ElementsAre(3, 6));
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(yStyle)), "axisy_1");
  const std::string both = fragment(0, static_cast<int>(frame.value));
  for (const char* role : {"x", "y"}) {
    EXPECT_THAT(both,
                testing::HasSubstr(
                    std::string(R"(<dimension facetsShareScale="true" lowerMargin="0%" role=")") +
                    role + R"(" sameRatio="trueCentered" upperMargin="0%">)"));
  }
}

TEST_F(StructureEntryPoints, BuildLegendsOfStyles) {
  const Int element = cx_addelement_(c, frame, Int(21), word("e"));
  const Int styleBy = cx_addstyleby_(c, element, frame);
  std::int64_t style = 0, legend = 0;
  EXPECT_EQ(cx_addlegendframeex_(c, frame, element, Int(1), styleBy, &style, &legend), legend);
  EXPECT_EQ(fragment(0, static_cast<int>(legend)),
            R"(<legend id="legend_legend_1" style="legend_legend_1default_style">)"
            R"(<legendTarget aesthetic="styleBy3" element="element_e" )"
            R"(id="legendTarget_legend_1"/></legend>)");
  EXPECT_EQ(cx_addlegendframeex_(c, frame, element, Int(2), Int(-1), &style, &legend), legend);
  EXPECT_EQ(fragment(0, static_cast<int>(legend)),
            R"(<legend id="legend_legend_2" style="legend_legend_2default_style">)"
            R"(<legendTarget element="element_e" id="legendTarget_legend_2"/></legend>)");
}

// What no entry point calls serves those who hold the registry.
TEST_F(StructureEntryPoints, LeaveSomeOperationsToTheRegistry) {
  ChartXml& r = registry();
  const int domain = r.AddDomain(0, false);
  r.AddInterval(0, domain, text("1"), text("2"));
  r.SetFacetsDifferentScale(0, r.AddDimension(0, 1, 1, -1));
  r.AddTransform(0, r.AddReferenceLine(0, 1, 2, text("7"), -1), text("t"));
  r.AddLegendTarget(0, r.AddLegend(0, 1, -1), 1, 17, text("a"));
  EXPECT_EQ(fragment(0, 0),
            R"(<graph name="p"><domain categorical="false" id="domain2"><interval max="2" )"
            R"(min="1"/></domain><frame id="frame1" style="default_style">)"
            R"(<dimension facetsShareScale="false" role="x"/><guide id="guide3" )"
            R"(style="default_style" type="line"><parameter name="y" value="7"/>)"
            R"(<transform method="t"/></guide><legend id="legend4" style="default_style">)"
            R"(<legendTarget aesthetic="a" element="frame1" id="legendTarget_title"/>)"
            R"(</legend></frame></graph>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}
