// Pictures that cannot be drawn, and charts that are no folders yet.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "tools/CommandTest.h"

namespace {

using testing::HasSubstr;

constexpr const char* gallery = "open /charts/index.html\n";

class Render : public CommandTest {
protected:
  /// A Node.js that is ended when it reads the Vega text of a chart whose folder is named
  /// after 0003, and finds that of 0005 as large as a city.
  Render() {
    scratch.write("fail.mjs", R"(import fs from 'node:fs';
import {syncBuiltinESMExports} from 'node:module';
const read = fs.readFileSync;
fs.readFileSync = (file, ...rest) => {
  if (String(file).includes('/0003')) process.kill(process.pid, 'SIGKILL');
  const text = read(file, ...rest);
  return String(file).includes('/0005') ? text.replace('"width": 720', '"width": 9e6') : text;
};
syncBuiltinESMExports();
)");
    scratch.write("node", "#!/bin/sh\nexec node --import \"$(dirname \"$0\")/fail.mjs\" \"$@\"\n");
    EXPECT_EQ(shell("chmod +x node"), (Outcome{0, ""}));
  }

  nlohmann::json printed(const std::string& arguments, int status) const {
    EXPECT_EQ(shell("chartxml " + arguments + " >out.json"), (Outcome{status, ""}));
    return nlohmann::json::parse(scratch.read("out.json"), nullptr, false);
  }
};

TEST_F(Render, GoesOnAfterAChartThatEndsNode) {
  ASSERT_EQ(
      shell("for i in $(seq 2 17); do cp -r charts/0001-small charts/$(printf %04d $i); done"),
      (Outcome{0, ""}));
  EXPECT_EQ(chartxml("render charts --png --node ./node"),
            (Outcome{3, std::string("chartxml: charts/0003: the picture cannot be drawn: Node.js "
                                    "was ended by signal 9\n"
                                    "chartxml: charts/0005: the picture cannot be drawn: it would "
                                    "be 9000000 by 480 pixels large, and pictures have at most "
                                    "16384 along a side and 16777216 in all\n") +
                            gallery}));
  EXPECT_EQ(shell("ls charts/*/chart.png | wc -l; ls -A charts/0003 charts/0005 | grep -c png"),
            (Outcome{1, "15\n0\n"}));
}

TEST_F(Render, NamesWhatIsAmissWithNode) {
  ASSERT_EQ(chartxml("render charts --png"), (Outcome{0, gallery}));
  const std::string refused = "chartxml: charts/0001-small: the picture cannot be drawn: ";
  const std::string left = "chartxml: charts/0001-small/chart.png: left as it was drawn before\n";
  EXPECT_EQ(chartxml("render charts --png --node /bin/false"),
            (Outcome{3, refused + "Node.js ended with status 1\n" + left + gallery}));
  EXPECT_EQ(chartxml("render charts --png --node /etc/passwd"),
            (Outcome{3, refused + "/etc/passwd: Permission denied\n" + left + gallery}));
  EXPECT_EQ(chartxml("verify charts"), (Outcome{0, "1 chart, 0 findings\n"}));
  ASSERT_EQ(shell("mkdir charts/0001-small/chart.svg"), (Outcome{0, ""}));
  const Outcome outcome = chartxml("render charts --svg --png");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.text, testing::StartsWith(refused + "EISDIR: illegal operation"));
}

TEST_F(Render, RemovesPicturesOfAnotherTheme) {
  ASSERT_EQ(chartxml("render charts --svg --png"), (Outcome{0, gallery}));
  ASSERT_EQ(chartxml("render charts"), (Outcome{0, gallery}));
  EXPECT_EQ(chartxml("render charts --svg --theme print"),
            (Outcome{0, std::string("chartxml: charts/0001-small/chart.png: removed, as it showed "
                                    "the chart as it was before\n") +
                            gallery}));
  EXPECT_EQ(shell("ls charts/0001-small/*.*g; chartxml verify charts"),
            (Outcome{0, "charts/0001-small/chart.svg\n1 chart, 0 findings\n"}));
}

TEST_F(Render, PrintsWhatAProgramReads) {
  ASSERT_EQ(shell("cp -r charts/0001-small charts/0002; rm charts/0002/chart.xml; "
                  "sed -i '$d' charts/0001-small/source0.csv"),
            (Outcome{0, ""}));
  const std::string text = "source0: source0.csv has 2 rows where the manifest lists 3; put the "
                           "whole file back";
  const std::string page = (scratch.path() / "charts/index.html").native();
  EXPECT_EQ(printed("render charts --svg --json", 1),
            nlohmann::json::parse(fmt::format(R"({{
    "charts": [
      {{"folder": "charts/0001-small", "files": ["chart.vg.json", "chart.html", "chart.svg"],
        "removed": [], "errors": [],
        "findings": [{{"check": "changed-data", "node": "source0", "text": "{}"}}]}},
      {{"folder": "charts/0002", "files": ["chart.html"], "removed": [],
        "errors": ["chart.xml: No such file or directory"], "findings": []}}],
    "galleries": ["{}"]}})",
                                              text, page)));
  EXPECT_EQ(printed("gallery charts --json", 0), (nlohmann::json{{"galleries", {page}}}));
}

TEST_F(Render, MakesAChartFolderOfADocumentAndItsData) {
  ASSERT_EQ(shell("mkdir own && mv charts/0001-small/chart.xml own/speeds.xml && "
                  "mv charts/0001-small/source0.csv own && rm -r charts"),
            (Outcome{0, ""}));
  EXPECT_EQ(chartxml("render own/speeds.xml --svg"), (Outcome{0, "open /own/index.html\n"}));
  EXPECT_THAT(scratch.read("own/speeds/chart.svg"), HasSubstr("A label"));
  EXPECT_EQ(chartxml("verify own"), (Outcome{0, "1 chart, 0 findings\n"}));
  ASSERT_EQ(shell("mv own/source0.csv rows.csv"), (Outcome{0, ""}));
  EXPECT_EQ(chartxml("render own/speeds.xml"),
            (Outcome{2, "chartxml: own/speeds.xml: its data source0.csv are neither beside it nor "
                        "given with --data\n"}));
  EXPECT_EQ(chartxml("render own/speeds.xml --data rows.csv --output made/here"),
            (Outcome{0, "open /made/here/index.html\n"}));
  EXPECT_EQ(chartxml("verify made/here/speeds"), (Outcome{0, "1 chart, 0 findings\n"}));
  EXPECT_EQ(shell("cmp rows.csv made/here/speeds/source0.csv"), (Outcome{0, ""}));
  EXPECT_EQ(chartxml("render made/here/speeds/chart.xml"),
            (Outcome{0, "open /made/here/index.html\n"}));
}

TEST_F(Render, RefusesDocumentsThatItCannotPlace) {
  ASSERT_EQ(shell("cp charts/0001-small/chart.xml a.xml; cp charts/0001-small/source0.csv .; "
                  "mkdir a; echo 1 >a/mine; echo '<graph' >b.xml"),
            (Outcome{0, ""}));
  EXPECT_EQ(chartxml("render a.xml"),
            (Outcome{2, "chartxml: a: it is there and holds no chart\n"}));
  EXPECT_EQ(chartxml("render a.xml --data fail.mjs --data source0.csv"),
            (Outcome{2, "chartxml: --data fail.mjs: no document reads it; their data are "
                        "source0.csv\n"}));
  EXPECT_EQ(chartxml("render a.xml ./a.xml --output made"),
            (Outcome{2, "chartxml: made/a: two documents would be drawn there\n"}));
  EXPECT_EQ(chartxml("render b.xml"),
            (Outcome{1, "chartxml: b.xml:2:1: unexpected end of input\n"}));
  EXPECT_EQ(
      chartxml("render charts --output made"),
      (Outcome{2, "chartxml: --output: only documents are drawn there, and none is named\n"}));
}

} // namespace
