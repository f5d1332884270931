#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <render/Pages.h>

#include "render/support/ChartFolder.h"

namespace {

using testing::HasSubstr;
using testing::Not;

std::string messageOf(const std::filesystem::path& folder) {
  try {
    render::writeChart(folder);
  } catch (const render::RenderError& e) {
    return e.what();
  }
  return "no error";
}

TEST(ChartPage, HoldsHostileTextsAsTexts) {
  const TestFolder folder;
  folder.write("source0.csv", smallTable)
      .write("manifest.json", R"({"name": "<script>n", "description": "</p><script>d",
                                  "splitHeader": "<script>s", "language": "de\"><script>"})")
      .write("chart.xml",
             document(point, "<frame><label id=\"title\">&lt;/script&gt;&lt;script&gt;\xE2\x80\xA8"
                             "</label></frame><odd a=\"&lt;script&gt;\"/>"));
  EXPECT_EQ(folder.spec()["title"]["text"][0], "</script><script>");
  const std::string page = folder.read("chart.html");
  EXPECT_THAT(page, Not(HasSubstr("<script>")));
  const std::string json = page.substr(page.find("<script type=\"application/json\""));
  EXPECT_THAT(json, Not(HasSubstr("\xE2\x80\xA8")));
  EXPECT_THAT(page, HasSubstr("<h1>&lt;script&gt;n</h1>"));
  EXPECT_THAT(page,
              HasSubstr("<script id=\"runtime\" src=\"../runtime/chartxml-page.js\"></script>"));
}

TEST(ChartPage, SaysInTheChartsLanguageWhatNotesAre) {
  const TestFolder folder;
  folder.write("source0.csv", smallTable)
      .write("manifest.json", R"({"name": "n", "template": "x", "language": "de"})")
      .write("chart.xml", document(point));
  render::writeChart(folder.path());
  EXPECT_THAT(
      folder.read("chart.html"),
      HasSubstr("<h2>Hinweise</h2>\n<p class=\"soft\">Was das Bild auslässt oder anders "
                "zeigt, als das Diagramm verlangt. Was sich an die Prozedur richtet, ist "
                "englisch.</p>\n<ul id=\"notes\">\n<li>die Vorlage x ist nicht bekannt: "
                "Das Diagramm ist im Thema default gezeichnet</li>\n<li>Zeilen ausgelassen, "
                "in denen ein Wert fehlt: 1 von 3 (points)</li>\n</ul>"));
}

TEST(ChartPage, IsTheSameForTheSameChart) {
  const TestFolder folder;
  folder.write("source0.csv", smallTable).write("chart.xml", document(point));
  render::writeChart(folder.path());
  const std::string page = folder.read("chart.html");
  const std::string spec = folder.read("chart.vg.json");
  render::writeChart(folder.path() / "");
  EXPECT_EQ(folder.read("chart.html"), page);
  EXPECT_EQ(folder.read("chart.vg.json"), spec);
}

struct BadFile {
  std::string name;
  std::string text;
  std::string message; ///< after the folder
};

class BadFileTest : public testing::TestWithParam<BadFile> {};

TEST_P(BadFileTest, IsNamedWithThePlaceAndShownOnThePage) {
  const TestFolder folder;
  folder.write("chart.xml", document(point)).write("source0.csv", smallTable);
  folder.write(GetParam().name, GetParam().text);
  EXPECT_EQ(messageOf(folder.path()), (folder.path() / GetParam().message).native());
  EXPECT_THAT(folder.read("chart.html"), HasSubstr("This chart cannot be drawn: "));
  EXPECT_THAT(folder.read("chart.html"), Not(HasSubstr(folder.path().native())));
  EXPECT_FALSE(exists(folder.path() / "chart.vg.json"));
}

std::string nested(int depth) {
  std::string open, close;
  for (int i = 0; i < depth; ++i) {
    open += "<graph>";
    close += "</graph>";
  }
  return open + close;
}

INSTANTIATE_TEST_SUITE_P(
    All, BadFileTest,
    testing::Values(BadFile{"chart.xml", "<graph>\n<frame></graph>",
                            "chart.xml:2:10: expected end of tag 'frame'"},
                    BadFile{"chart.xml", "<chart/>",
                            "chart.xml: the document element is \"chart\", not \"graph\""},
                    BadFile{"chart.xml", nested(200),
                            "chart.xml: elements are nested more than 100 deep"},
                    BadFile{"chart.xml", "<graph><source id=\"../x\"/></graph>",
                            "chart.xml: the source id \"../x\" names no file"},
                    BadFile{"source0.csv", "A,B,Group\n1,2\n",
                            "source0.csv:2:3: field \"Group\": the row ends after 2 of 3 fields"},
                    BadFile{"manifest.json", "[1]", "manifest.json: not an object"}));

TEST(ChartFolder, MayLackTheManifestAndDataThatNothingReads) {
  const TestFolder folder;
  const std::string counted = "<graph><source id='source0'/><variable id='v1' source='source0' "
                              "sourceName='countname'/><frame>" +
                              std::string(point) + "</frame></graph>";
  const auto spec = folder.write("chart.xml", counted).spec();
  EXPECT_EQ(spec["usermeta"]["notes"][0], "points is not drawn: it has no x variable with data");
  folder.write("chart.xml", document(point));
  EXPECT_EQ(messageOf(folder.path()),
            (folder.path() / "source0.csv").native() + ": No such file or directory");
}

TEST(ChartFolder, WithoutAnyFileIsRefused) {
  const TestFolder folder;
  EXPECT_THAT(messageOf(folder.path()), HasSubstr((folder.path() / "chart.xml").native()));
}

TEST(Gallery, OfAFolderThatCannotBeWrittenSaysSo) {
  const TestFolder output;
  const std::filesystem::path missing = output.path() / "none";
  EXPECT_THROW(render::writeGallery(missing), render::RenderError);
  EXPECT_FALSE(exists(missing));
}

} // namespace
