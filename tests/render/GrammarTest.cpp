// Nothing that a chart document says is passed over in silence: each attribute of the
// schema changes the picture or makes a note, but for those that are known to do neither.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"

namespace {

using Attributes = std::map<std::string, std::set<std::string>>; ///< of each kind of node

std::vector<std::smatch> matches(const std::string& text, const char* pattern) {
  const std::regex regex(pattern);
  return {std::sregex_iterator(text.begin(), text.end(), regex), std::sregex_iterator()};
}

/// Those that the schema gives a kind of its own, but for ids and the names of styles.
Attributes schemaAttributes() {
  std::string schema;
  for (const auto& file : std::filesystem::directory_iterator(TESTS "/../schema")) {
    if (file.path().extension() != ".xsd") continue;
    std::ostringstream text;
    text << std::ifstream(file.path()).rdbuf();
    schema += text.str();
  }
  std::map<std::string, std::set<std::string>> ofType;
  for (const std::smatch& type :
       matches(schema, R"re(<xs:complexType name="(\w+)">([\s\S]*?)</xs:complexType>)re")) {
    const std::string body = type[2];
    for (const std::smatch& attribute :
         matches(body, R"re(<xs:attribute name="(\w+)"( use="required")?( type="(\w+)")?)re"))
      if (attribute[1] != "id" && !attribute[4].str().ends_with("StyleName"))
        ofType[type[1]].insert(attribute[1]);
  }
  Attributes attributes;
  for (const std::smatch& element : matches(schema, R"re(<xs:element name="(\w+)" type="(\w+)")re"))
    attributes[element[1]].merge(std::set(ofType[element[2]]));
  return attributes;
}

constexpr std::string_view axis =
    R"(<axis id="a{0}" combineAxisLabels="true"><label id="l{0}">T</label>
  <majorTicks stagger="false"><gridLines/></majorTicks><minorTicks/><numberFormat prefix="$"/>
  <transform method="percent"/></axis>)";

std::string dimension(std::string_view role) {
  return fmt::format(R"(<dimension role="{}">{}</dimension>)", role,
                     fmt::format(fmt::runtime(axis), role));
}

/// Charts that hold every kind of node that is drawn.
const std::vector<std::string>& charts() {
  static const std::string flat =
      dimension("x") +
      R"(<dimension role="y" domain="d" unionDomain="true"><scale method="log">
      <parameter name="base" value="2"/></scale><axis id="b"/></dimension>
      <elementGroup id="g"><element type="interval" id="e" name="N" showCollidingLabels="true">
      <position><x variable="v3"/><y variable="v2"/></position><styleBy id="s" variable="v3"
      styleCycle="styleCycleColor"/><labeling variable="v2"/></element></elementGroup>
      <element type="interval" id="h" positionModifier="dodge"><x variable="v3"/>
      <y variable="v2"/><color variable="v4"/><statistic method="sum"/></element>
      <guide type="line" id="r" name="M"><parameter name="y" value="12"/></guide>)";
  static const std::string points =
      dimension("x") + dimension("y") +
      R"(<element type="point" id="e" labelCollisionHandling="normal"><x variable="v1"/>
      <y variable="v2"/><size variable="v2"/><split variable="v3"/></element>
      <guide type="function" id="f" name="F"><parameter name="y" value="x"/></guide>)";
  static const std::string rest =
      R"(<frame id="k"><legend id="l"><label id="ll">L</label>
      <legendTarget id="t" element="e" aesthetic="styleBy"/></legend></frame>
      <variable id="v4" sourceName="Group" source="source0" categorical="true">
      </variable><variable id="w" sourceName="B" source="source0" categorical="false">
      <meta creator="external_datasource" description="x"/></variable>
      <domain id="d" categorical="false"><interval min="1" max="90"/>
      <domainReference domain="v2"/></domain>
      <domain id="c" categorical="true"><sort descending="false"><simpleSort method="natural"/>
      <statisticSort sourceVariable="v3" statVariable="v2"/></sort></domain>
      <style id="st" value="fill-pattern:0"/>)";
  static const std::vector<std::string> all{
      document(flat, rest),
      document(std::string(R"(<dimension role="x" domain="c"/>)") +
                   R"(<element type="interval" id="e"><x variable="v3"/><statistic method="count"/>
                   </element>)",
               rest),
      document(points, rest),
      document(R"(<tableFacet><cross><facetVariable role="x" variable="v3"/></cross><nest>
               <facetVariable role="y" variable="v3"/></nest></tableFacet><facetLabeling>
               <facetLabel id="fl" level="1"><label id="flt">T</label></facetLabel></facetLabeling>)" +
                   points,
               rest),
      document(R"(<coordinateTransform method="rectangular"><parameter name="phi" value="-30"/>
               </coordinateTransform>)" +
                   dimension("x") + dimension("y") + dimension("z") +
                   R"(<element type="point" id="e"><x variable="v1"/><y variable="v2"/>
                   <z variable="v1"/></element>)",
               rest),
      document(R"(<coordinateTransform method="polar"/>)" + dimension("theta") + dimension("r") +
                   R"(<element type="line" id="e"><theta variable="v3"/><r variable="v2"/>
                   </element>)",
               rest),
  };
  return all;
}

std::string drawn(const TestFolder& folder, const std::string& chart) {
  try {
    return folder.write("chart.xml", chart).spec().dump();
  } catch (const std::exception& e) {
    return e.what();
  }
}

/// The chart with another value of an attribute of the node whose tag is there.
std::string changed(std::string chart, const std::smatch& tag, const std::string& attribute,
                    const char* value) {
  std::string text = tag[0];
  const std::regex present(fmt::format(R"( {}="[^"]*")", attribute));
  const std::string added = fmt::format(R"( {}="{}")", attribute, value);
  text = std::regex_search(text, present)
             ? std::regex_replace(text, present, added)
             : text.insert(static_cast<std::size_t>(tag.length(1)) + 1, added);
  return chart.replace(static_cast<std::size_t>(tag.position()),
                       static_cast<std::size_t>(tag.length()), text);
}

bool isSilent(const std::string& kind, const std::string& attribute, const TestFolder& folder,
              const std::vector<std::string>& pictures) {
  bool isThere = false;
  for (std::size_t i = 0; i < charts().size(); ++i) {
    const std::string& chart = charts()[i];
    for (const std::smatch& tag : matches(chart, fmt::format(R"(<({})\b[^>]*>)", kind).c_str())) {
      isThere = true;
      for (const char* value : {"true", "false", "7", "25%", "trueCentered", "styleCyclePattern"})
        if (drawn(folder, changed(chart, tag, attribute, value)) != pictures[i]) return false;
    }
  }
  return isThere;
}

TEST(GrammarTest, EachAttributeOfTheSchemaIsDrawnOrNoted) {
  const TestFolder folder;
  folder.write("source0.csv", "A,B,Group\n1,10,a\n2,20,b\n3,30,a\n4,25,b\n5,15,a\n");
  std::vector<std::string> pictures;
  for (const std::string& chart : charts())
    pictures.push_back(drawn(folder, chart));
  std::set<std::string> silent;
  for (const auto& [kind, attributes] : schemaAttributes())
    for (const std::string& attribute : attributes)
      if (isSilent(kind, attribute, folder, pictures))
        silent.insert(fmt::format("{} {}", kind, attribute));
  EXPECT_EQ(silent, (std::set<std::string>{
                        "axis combineAxisLabels", // each axis shows all that is along it
                        "dimension unionDomain",  // the same: scales hold all that is drawn
                        "domain categorical",     // its variables say so
                        "graph name",             // that of the procedure
                        "meta creator", "meta description",
                        "numberFormat negativesOutside", // the sign always stands there
                    }));
}

} // namespace
