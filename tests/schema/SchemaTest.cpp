#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <schema/SchemaCheck.h>

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

namespace {

const fs::path here = CHART_SCHEMA_TESTS;

const schema::SchemaCheck& check() {
  static const schema::SchemaCheck made;
  return made;
}

std::string read(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  EXPECT_TRUE(in) << file;
  return {std::istreambuf_iterator<char>(in), {}};
}

/// The good chart with one text in it replaced by another.
std::string changed(std::string_view from, std::string_view to) {
  static const std::string good = read(here / "GoodChart.xml");
  const std::size_t at = good.find(from);
  EXPECT_NE(at, good.npos) << from;
  return at == good.npos ? good : std::string(good).replace(at, from.size(), to);
}

struct Change {
  std::string_view from, to;
};

} // namespace

TEST(ChartSchema, TakesEveryChartOfTheGallery) {
  std::size_t count = 0;
  for (const auto& entry : fs::recursive_directory_iterator(here / "../gallery")) {
    if (entry.path().filename() != "chart.xml") continue;
    ++count;
    EXPECT_THAT(check().findings(read(entry.path())), IsEmpty()) << entry.path();
  }
  EXPECT_GT(count, 0U);
}

// Each of these is odd, and yet what some calls of a procedure make.
TEST(ChartSchema, TakesWhatProceduresCanMake) {
  const Change changes[] = {
      {"", ""},
      // Suffixes are any text, numbers stand in for taken ones.
      {R"(id="guide7")", R"(id="guide_a b&#10;&lt;ä&gt;")"},
      {R"(id="guide7")", R"(id="guide_")"},
      // Any node takes an axis, a label and the attributes of a variable.
      {R"(<parameter name="base" value="10"/>)",
       R"(<parameter name="base" value="10" label="x" categorical="true" domain="domain2">
            <axis id="axis11" style="default_style"/>
            <label id="label10" style="default_style"/></parameter>)"},
      // Any node may be named, also one without id.
      {R"(element="element5")", R"(element="")"},
      {R"(<domain )", R"(<domain domain="gone" )"},
      // Colours bring their cycle behind the frames there are by then.
      {R"(<style id="container">)",
       R"(<styleCycle id="styleCycleColor"><cycle><style id="style_styleCycleColor"/></cycle>
          </styleCycle><frame id="frame20" style="default_style"/><style id="container">)"},
      // A statistic is placed before the roles that are there, else last.
      {R"(<split variable="variable1"/>)",
       R"(<split variable="variable1"/><statistic method="mean"/>)"},
      {R"(<x variable="variable1"/>)", R"(<statistic method="mean"/><x variable="variable1"/>)"},
      // Polar roles have their own order, and phi none beside z.
      {R"(<x variable="variable1"/>)",
       R"(<theta variable="variable1"/><r variable="variable1"/><z variable="variable1"/>
          <phi variable="variable1"/><styleBy id="styleBy20" styleCycle="styleCycleDefault"
          variable=""/></element><element id="element21" showCollidingLabels="false"
          style="default_style" type="line">)"},
      // Sizes stay where they were put.
      {R"(<y variable="variable1"/>)",
       R"(<size high="9" variable="variable1"/><y variable="variable1"/>)"},
      // The copy of a variable gets its meta late.
      {R"(<domain )", R"(<variable categorical="true" id="variable22"><relabel from="" to=""/>
          <meta description="log"/></variable><domain )"},
  };
  for (const auto& [from, to] : changes) {
    EXPECT_THAT(check().findings(changed(from, to)), IsEmpty()) << to;
  }
}

TEST(ChartSchema, FindsWhatIsWrong) {
  struct Case {
    Change change;
    std::vector<std::string> findings;
  };
  const Case cases[] = {
      // Order.
      {{R"(<x variable="variable1"/>)", R"(<z variable="variable1"/><x variable="variable1"/>)"},
       {"40:15: graph/frame/element: element 'x' is not allowed at its place"}},
      {{R"(<color variable=""/>)", R"(<color variable=""/><x variable="variable1"/>)"},
       {"40:15: graph/frame/element: element 'x' is not allowed at its place"}},
      {{R"(<color )", R"(<color variable=""/><facetStyle when="" style="default_style"/><color )"},
       {"40:15: graph/frame/element: element 'facetStyle' is not allowed at its place"}},
      {{"<interval ", "<sort/><interval "},
       {"15:12: graph/domain: element 'interval' is not allowed at its place"}},
      {{"<minorTicks/>", R"(<minorTicks/><label id="label20" style="default_style"/>)"},
       {"32:14: graph/frame/dimension/axis: element 'label' is not allowed at its place"}},
      {{"<dimension ", R"(<guide id="guide20" style="default_style" type=""/><dimension )"},
       {"45:11: graph/frame: element 'dimension' is not allowed at its place"}},
      {{"<monthName/>", R"(<month/><monthName/>)"},
       {"6:105: graph/variable/meta/dateTimeFormat/dateFormat: "
        "element 'monthName' is not allowed at its place"}},
      {{"<domain ", R"(<frame id="frame20" style="default_style"/><domain )"},
       {"56:9: graph: element 'domain' is not allowed at its place"}},
      // Number.
      {{"<minorTicks/>", R"(<label id="label20" style="default_style"/>)"},
       {"32:14: graph/frame/dimension/axis: element 'label' is not allowed at its place"}},
      {{"</nest>", "<blend/></nest>"},
       {"24:22: graph/frame/coordinateFacet/nest: element 'blend' is not allowed at its place"}},
      {{"<relabel ", "<meta/><relabel "},
       {"11:14: graph/variable: element 'meta' is not allowed at its place"}},
      {{"<otherAccess type=\"object\"/>", ""}, {"2:33: graph/source: a child is missing"}},
      // Parents.
      {{"<guide ", R"(<x variable="variable1"/><guide )"},
       {"41:30: graph/frame/x: does not belong here",
        "45:11: graph/frame: element 'x' is not allowed at its place"}},
      {{"<minorTicks/>", R"(<gridLines style="gridLineStyle"/>)"},
       {"31:43: graph/frame/dimension/axis/gridLines: does not belong here",
        "32:14: graph/frame/dimension/axis: element 'gridLines' is not allowed at its place"}},
      {{"<dateTimeFormat>", "<meta/><dateTimeFormat>"},
       {"5:14: graph/variable/meta/meta: does not belong here",
        "9:12: graph/variable/meta: element 'meta' is not allowed at its place"}},
      {{"<interval ", R"(<splits variable="variable1"/><interval )"},
       {"13:35: graph/domain/splits: does not belong here",
        "15:12: graph/domain: element 'splits' is not allowed at its place"}},
      {{"<guide ", "text<guide "}, {"41:9: graph/frame: text is not allowed here"}},
      // Attributes.
      {{R"(clip="true")", R"(clip="yes")"}, {"16:63: graph/frame: value 'yes' not in enumeration"}},
      {{R"(clip="true")", R"(clipped="true")"},
       {"16:67: graph/frame: attribute 'clipped' is not declared for element 'frame'"}},
      {{R"(from="1" )", ""}, {"10:24: graph/variable/relabel: missing required attribute 'from'"}},
      {{R"(creator="external_datasource")", R"(creator="me")"},
       {"4:52: graph/variable/meta: value 'me' not in enumeration"}},
      {{R"(cellAspect="1.5")", R"(cellAspect="1,5")"},
       {"17:37: graph/frame/facetLabeling: value '1,5' does not match regular expression facet "
        "'-?([0-9]+(\\.[0-9]+)?(e[+\\-][0-9]+)?|inf|nan)'"}},
      {{R"(id="frame_a")", R"(id="framea")"},
       {"16:63: graph/frame: value 'framea' does not match regular expression facet "
        "'frame(_[\\s\\S]*|[1-9][0-9]*)'"}},
      {{R"(type="object")", R"(type="file")"},
       {"2:50: graph/source/otherAccess: attribute 'type' has value 'file' that does not match "
        "its #FIXED value 'object'"}},
      // Names.
      {{"<guide ", R"(<guide id="guide7" style="default_style" type=""/><guide )"},
       {"41:109: graph/frame/guide: its id is another node's, too"}},
      {{R"(<y variable="variable1"/>)", R"(<y variable="variable7"/>)"},
       {"36:32: graph/frame/element/y: variable=\"variable7\" names nothing"}},
      {{R"(styleCycle="styleCycleDefault")", R"(styleCycle="styleCycleColor")"},
       {"37:81: graph/frame/element/styleBy: styleCycle=\"styleCycleColor\" names nothing"}},
      {{R"(style="frame_adefault_style")", R"(style="default_style")"}, {}},
      {{R"(style="frame_adefault_style")", R"(style="bdefault_style")"},
       {"16:58: graph/frame: style=\"bdefault_style\" names nothing"}},
      {{R"(cellStyle="facetLabel_adefault_style")", R"(cellStyle="facetLabel_bdefault_style")"},
       {"18:86: graph/frame/facetLabeling/facetLabel: cellStyle=\"facetLabel_bdefault_style\" "
        "names nothing"}},
      {{"majorTicks_axis3gridLineStyle", "gridLineStyle"},
       {"30:71: graph/frame/dimension/axis/majorTicks/gridLines: style=\"gridLineStyle\" "
        "names nothing"}},
  };
  for (const auto& [change, findings] : cases) {
    EXPECT_EQ(check().findings(changed(change.from, change.to)), findings)
        << change.from << " -> " << change.to;
  }
}

TEST(ChartSchema, TellsWhyADocumentCannotBeRead) {
  struct Case {
    std::string_view xml, finding;
  };
  const Case cases[] = {
      {"", "1:1: invalid document structure"},
      {"<graph", "1:7: unexpected end of input"},
      {"<graph>&two;</graph>", "1:13: graph: entity 'two' not found"},
      {"<!DOCTYPE graph [<!ENTITY two 'x'>]><graph>&two;</graph>",
       "1:17: a document type declaration is not allowed"},
  };
  for (const auto& [xml, finding] : cases) {
    const std::vector<std::string> findings = check().findings(xml);
    ASSERT_FALSE(findings.empty()) << xml;
    EXPECT_EQ(findings.back(), finding) << xml;
  }
}

TEST(ChartSchema, EndsWhereElementsAreNestedTooDeep) {
  constexpr int depth = 2000;
  std::string xml = "<graph>";
  for (int i = 0; i < depth; ++i)
    xml += "<label>";
  const std::vector<std::string> findings = check().findings(xml);
  EXPECT_EQ(findings.front(), "1:15: graph/label: missing required attribute 'id'");
  EXPECT_EQ(findings.back(), "1:7008: .../label/label/label/label/label/label/label/label: "
                             "elements are nested more than 1000 deep");
}

TEST(ChartSchema, RefusesAGrammarThatIsNone) {
  const auto message = [](const fs::path& file) -> std::string {
    try {
      const schema::SchemaCheck made(file);
      return "read";
    } catch (const std::runtime_error& error) {
      return error.what();
    }
  };
  EXPECT_THAT(message(here / "missing.xsd"), StartsWith("unable to open"));
  EXPECT_THAT(message(here / "GoodChart.xml"),
              HasSubstr("GoodChart.xml:29:55: non-whitespace characters"));
}
