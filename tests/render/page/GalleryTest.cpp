#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>
#include <render/Pages.h>

#include "render/support/ChartFolder.h"

namespace {

using testing::HasSubstr;

constexpr auto first =
    R"(chartxmlGallery.chart("0001-a",{"name":"0001-a","description":"","language":"en"});)"
    "\n";
constexpr auto second =
    R"(chartxmlGallery.chart("0002-b \u0026 \"c",{"name":"\u003c/script\u003e","description":"\u2028","language":"de"});)"
    "\n";

class GalleryTest : public testing::Test {
protected:
  std::string update() {
    render::updateGallery(output.path());
    return output.read("gallery.js");
  }
  std::string renew() {
    render::writeGallery(output.path());
    return output.read("gallery.js");
  }
  void addSecond() {
    output.write("0002-b & \"c/chart.xml", "<graph/>")
        .write("0002-b & \"c/manifest.json",
               "{\"name\": \"</script>\", \"description\": \"\u2028\", \"language\": \"de\"}");
  }
  TestFolder output;
};

TEST_F(GalleryTest, ListsWhatIsNewWithoutTouchingTheRest) {
  output.write("0001-a/chart.xml", "<graph/>").write(".0003-c/chart.xml", "<graph/>");
  EXPECT_EQ(update(), first);
  const std::string page = output.read("index.html");
  addSecond();
  output.write("0001-a/manifest.json", "not read again");
  EXPECT_EQ(update(), std::string(first) + second);
  output.write("errors.json", R"(["<lost>"])");
  EXPECT_EQ(update(),
            std::string(first) + second + "chartxmlGallery.error(\"\\u003clost\\u003e\");\n");
  output.write("errors.json", R"(["<lost>", {"message": "m"}, 3])");
  EXPECT_EQ(update(), std::string(first) + second +
                          "chartxmlGallery.error(\"\\u003clost\\u003e\");\n"
                          "chartxmlGallery.error(\"m\");\nchartxmlGallery.error(\"3\");\n");
  EXPECT_EQ(output.read("index.html"), page);
}

TEST_F(GalleryTest, IsMadeAnewWhenItsListIsDamagedOrStale) {
  output.write("0001-a/chart.xml", "<graph/>");
  addSecond();
  const std::string whole = update();
  for (const std::string& damaged :
       {whole.substr(0, whole.size() - 5), std::string("chartxmlGallery.chart(\"x);\n"),
        whole + "x);\n", whole + "chartxmlGallery.chart(\"0003-gone\",{});\n",
        whole + "chartxmlGallery.error(\"old\");\n"}) {
    output.write("gallery.js", damaged);
    EXPECT_EQ(update(), whole) << damaged;
  }
  std::filesystem::remove_all(output.path() / "0002-b & \"c");
  EXPECT_EQ(update(), first);
}

TEST_F(GalleryTest, ShowsPicturesSourcesAndTroubles) {
  output.write("procedures/n.f90", "end\n").write("procedures/n.g", "later");
  output.write("procedures/long.c", std::string(200'001, ' '));
  for (const char* folder : {"1", "2", "3", "4"})
    output.write(fmt::format("{}/chart.xml", folder), "<graph/>")
        .write(fmt::format("{}/manifest.json", folder), R"({"name": "n"})");
  output.write("1/chart.svg", "<svg/>").write("3/manifest.json", R"({"name": "long"})");
  output.write("1/chart.xml", R"(<graph><label id="label_title">All</label><frame>
<label id="label_subtitle">of</label><label id="label_title_2">it</label><label id="x"/></frame>
<frame><element><label id="label_title">no</label></element></frame></graph>)");
  output.write("4/manifest.json", "[");
  const std::string list = update();
  EXPECT_THAT(
      list,
      testing::StartsWith(
          "chartxmlGallery.source(\"n.f90\",\"end\\n\");\n"
          R"(chartxmlGallery.chart("1",{"name":"n","description":"","language":"en","title":"All it","subtitle":"of","picture":"chart.svg","source":"n.f90"});)"
          "\n"
          R"(chartxmlGallery.chart("2",{"name":"n","description":"","language":"en","source":"n.f90"});)"
          "\n"
          R"(chartxmlGallery.chart("3",{"name":"long","description":"","language":"en","source":"long.c"});)"
          "\n"
          R"(chartxmlGallery.chart("4",{"name":"4","trouble":"manifest.json:1:1: )"));
  output.write("5/chart.xml", "<graph").write("5/manifest.json", R"({"name": "n"})");
  EXPECT_EQ(
      update(),
      list +
          R"(chartxmlGallery.chart("5",{"name":"n","description":"","language":"en","trouble":"chart.xml:1:7: unexpected end of input","source":"n.f90"});)"
          "\n");
}

} // namespace
