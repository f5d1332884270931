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
        whole + "chartxmlGallery.chart(\"0003-gone\",{});\n",
        whole + "chartxmlGallery.error(\"old\");\n"}) {
    output.write("gallery.js", damaged);
    EXPECT_EQ(update(), whole) << damaged;
  }
  std::filesystem::remove_all(output.path() / "0002-b & \"c");
  EXPECT_EQ(update(), first);
}

TEST_F(GalleryTest, ShowsPicturesSourcesAndTroubles) {
  for (const char* name : {"1", "2"})
    output.write(fmt::format("{}/chart.xml", name), "<graph/>")
        .write(fmt::format("{}/chart.svg", name), "<svg/>")
        .write(fmt::format("{}/procedure.f90", name), "end\n");
  output.write("2/manifest.json", "[").write("2/procedure.f90", std::string(200'001, ' '));
  const std::string list = renew();
  EXPECT_THAT(list, HasSubstr("chartxmlGallery.source(\"end\\n\");\n"));
  EXPECT_THAT(list,
              HasSubstr(R"("picture":"chart.svg","sourceFile":"procedure.f90","source":0});)"));
  EXPECT_THAT(list, HasSubstr(R"("2",{"name":"2","trouble":")"));
  EXPECT_THAT(list, HasSubstr(R"("picture":"chart.svg","sourceFile":"procedure.f90"});)"));
}

} // namespace
