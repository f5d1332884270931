#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <render/Pages.h>

#include "render/support/ChartFolder.h"

namespace {

using Texts = std::vector<std::string>;

Texts findingsOf(const TestFolder& folder) {
  Texts texts;
  for (const host::Finding& finding : render::findingsOf(folder.path()))
    texts.push_back(finding.check + " - " + finding.text);
  return texts;
}

/// A document, the rows of its source and what the checks find.
struct Case {
  const char* name;
  std::string document;
  std::string rows;
  Texts findings;
};

void PrintTo(const Case& tried, std::ostream* out) { *out << tried.name; }

class Check : public testing::TestWithParam<Case> {};

TEST_P(Check, TellsWhatIsWrongWhereAndWhatToDo) {
  const TestFolder folder;
  folder.write("chart.xml", GetParam().document).write("source0.csv", GetParam().rows);
  EXPECT_EQ(findingsOf(folder), GetParam().findings);
  const auto notes = folder.spec()["usermeta"]["notes"];
  for (const std::string& finding : GetParam().findings)
    EXPECT_THAT(notes, testing::Contains(finding.substr(finding.find(" - ") + 3)));
}

std::string element(std::string_view inside, std::string_view type = "point") {
  return "<element id='e' type='" + std::string(type) + "'>" + std::string(inside) + "</element>";
}

std::string logarithm(std::string_view parameters) {
  return "<dimension role='y'><scale method='log'>" + std::string(parameters) +
         "</scale></dimension>" + std::string(point);
}

constexpr std::string_view panels =
    "<tableFacet><cross><facetVariable role='x' variable='v3'/><facetVariable role='y' "
    "variable='v4'/></cross></tableFacet>";
constexpr std::string_view side =
    "<variable id='v4' sourceName='Side' source='source0' categorical='true'/>";

std::string measured(std::string_view last) {
  return "A,B,Group\n1,1,1.5\n1,1,2\n1,1,2.25\n1,1,3\n1,1,4\n1,1,7\n1,1,8\n1,1,9\n1,1,11\n1,1,20\n"
         "1,1,31\n1,1,40\n1,1," +
         std::string(last) + "\n";
}

const Case cases[] = {
    {"nothing", document(point), std::string(smallTable), {}},
    {"a role twice",
     document(element("<position><x variable='v1'/></position><x variable='v2'/><y variable='v2'/>"
                      "<styleBy variable='v3'/><styleBy variable='v3'/>")),
     std::string(smallTable),
     {"role-twice - e/x: x of the element is bound to \"A label\" and again to \"b\", and only one "
      "can be drawn; bind it once, or add another element"}},
    {"a legend of an element that is gone",
     document(std::string(point) + "<legend id='l'><legendTarget id='t' element='gone'/></legend>"),
     std::string(smallTable),
     {"lost-target - t: the legend explains \"gone\", which is not in the chart; add the target "
      "for "
      "an element that is, or leave it out"}},
    {"references to nothing",
     document(element("<x variable='v1'/><y variable='v2'/><color variable='v9'/>"
                      "<size variable=''/>") +
              "<dimension role='x' domain='d9'/>"),
     std::string(smallTable),
     {"lost-reference - e/color: its variable \"v9\" is not in the chart, and nothing is drawn of "
      "it; name a variable of the chart",
      "lost-reference - e/size: its variable names a node that has no id, and nothing is drawn of "
      "it; name a variable of the chart",
      "lost-reference - data/dimension: its domain \"d9\" is not in the chart, and it is passed "
      "over; name a domain or a variable of the chart"}},
    {"a variable without values",
     document(point),
     "A,B,Group\n1,,a\n2,,a\n",
     {"empty-variable - v2: \"b\" has no value in any of 2 rows; load its values, or leave it "
      "out"}},
    {"a variable without a column",
     document(point),
     "A,Group\n1,a\n2,a\n",
     {"changed-data - v2: \"b\" is the column B of source0.csv, which has A, Group only; put the "
      "column there, or leave the variable out"}},
    {"a text among numbers",
     document(point),
     "A,B,Group\n1,NaN,a\n2,INF,a\n3,,a\n4,3x,a\n5,5,a\n6,none,a\n",
     {"stray-text - v2: \"b\" is drawn along numbers, and 2 of its values in 6 rows are none, the "
      "first \"3x\" in row 4; load numbers, or make it categorical"}},
    {"a variable of texts along numbers",
     document(point),
     "A,B,Group\n1,low,a\n2,high,a\n",
     {"empty-variable - v2: \"b\" is drawn along numbers, and none of its values in 2 rows is one; "
      "load numbers, or make it categorical"}},
    {"a source without rows",
     document(point),
     "A,B,Group\n",
     {"empty-variable - source0: the chart uses its variables and it has no rows; add rows and "
      "load their values"}},
    {"measured numbers as categories",
     document(element("<x variable='v3'/><y variable='v2'/>", "interval")),
     measured("41"),
     {"unrepeated-numbers - v3: \"Group\" is categorical along x, and its 13 values are numbers of "
      "which none comes twice; make it continuous, or put its values into ranges"}},
    {"numbers of which one comes twice",
     document(element("<x variable='v3'/><y variable='v2'/>", "interval")),
     measured("40"),
     {}},
    {"years as categories",
     document(element("<x variable='v3'/><y variable='v2'/>", "interval")),
     "A,B,Group\n1,1,1990\n1,1,1991\n1,1,1992\n1,1,1993\n1,1,1994\n1,1,1995\n1,1,1996\n1,1,1997\n"
     "1,1,1998\n1,1,1999\n1,1,2000\n1,1,2001\n1,1,2002\n",
     {}},
    {"a logarithm of zero and less",
     document(logarithm("")),
     "A,B,Group\n0,-1,a\n1,0,a\n2,10,a\n",
     {"logarithm - data/dimension/scale: marks along y at zero or less, where there is no "
      "logarithm: 2, which are left out; make the scale safe, linear or a power, or draw what is "
      "above zero"}},
    {"a safe logarithm of zero",
     document(logarithm("<parameter name='safe' value='true'/>")),
     "A,B,Group\n0,0,a\n1,1,a\n2,10,a\n",
     {"logarithm - data/dimension/scale: marks along y at zero or less, where there is no "
      "logarithm: 1; its scale is even between -1 and 1 for them: make it a power scale, or draw "
      "what is above zero"}},
    {"an empty panel",
     document(std::string(panels) + std::string(point), side),
     "A,B,Group,Side\n0,1,a,l\n1,2,b,l\n2,3,b,r\n",
     {"empty-panel - data/tableFacet: nothing is drawn in 1 of 4 panels, the first of them that of "
      "\"Group\" \"Ä\", it \"r\"; nest the facet's variables to have panels only for what occurs"}},
    {"texts without glyphs",
     document(std::string(point), "<frame id='f'><label id='label_title'>Heat 🔥 over 🔥 中文 "
                                  "Ελλάς\u200b</label></frame>"),
     "A,B,Group\n0,1,a\n1,2,b\n",
     {"missing-glyph - label_title: no font of the pictures has U+1F525 of \"Heat 🔥 over 🔥 中文 "
      "Ελλάς\u200b\"; write it with other characters"}},
    {"categories without glyphs",
     document(element("<x variable='v3'/><y variable='v2'/>")),
     "A,B,Group\n0,1,\u1200\n1,2,b\n",
     {"missing-glyph - v3: no font of the pictures has U+1200 of \"\u1200\"; write it with other "
      "characters"}},
};

INSTANTIATE_TEST_SUITE_P(Documents, Check, testing::ValuesIn(cases));

TEST(Checks, NameTheCallOfTheNodeOrOfTheOneAroundIt) {
  const TestFolder folder;
  folder
      .write("chart.xml", document(element("<x variable='v1'/><x variable='v1'/><y variable='v2'/>"
                                           "<y variable='v2'/>")))
      .write("source0.csv", smallTable)
      .write("calls.json", R"({"e": "5 cx_addelement_", "e/x[2]": "9 cx_addx_", "y": 1})");
  const render::Findings findings = render::writeChart(folder.path());
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].node, "e/x[2]");
  EXPECT_THAT(findings[0].text, testing::EndsWith("add another element (call 9, cx_addx_)"));
  EXPECT_EQ(findings[1].node, "e/y[2]");
  EXPECT_EQ(findings[1].call, 5U);
  EXPECT_EQ(findings[1].callName, "cx_addelement_");
}

TEST(Checks, CompareTheRowsWithThoseOfTheManifest) {
  const TestFolder folder;
  folder.write("chart.xml", document(point))
      .write("source0.csv", smallTable)
      .write("manifest.json", R"({"sources": [{"name": "source0", "file": "source0.csv", "rows": 4},
                                  {"name": "other", "file": "other.csv", "rows": 9}, 3]})");
  EXPECT_EQ(findingsOf(folder),
            Texts{"changed-data - source0: source0.csv has 3 rows where the manifest lists 4; put "
                  "the whole file back"});
  folder.write("manifest.json", R"({"sources": [{"file": "source0.csv", "rows": 3}]})");
  EXPECT_EQ(findingsOf(folder), Texts{});
}

TEST(Checks, SumUpWhatIsMoreThanAnybodyReads) {
  std::string targets;
  for (int i = 0; i < 23; ++i)
    targets += "<legendTarget element='gone" + std::to_string(i) + "'/>";
  const TestFolder folder;
  folder.write("chart.xml", document(std::string(point) + "<legend>" + targets + "</legend>"))
      .write("source0.csv", smallTable);
  const Texts findings = findingsOf(folder);
  ASSERT_EQ(findings.size(), 21U);
  EXPECT_EQ(findings.back(), "lost-target - 3 more findings of the rule lost-target");
}

} // namespace
