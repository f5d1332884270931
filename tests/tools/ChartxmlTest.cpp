#include <ostream>
#include <regex>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>
#include <host/Version.h>
#include <nlohmann/json.hpp>

#include "tools/CommandTest.h"

namespace {

using testing::HasSubstr;

class Command : public CommandTest {};

/// What is done to the chart folder first, what is called then, and what comes of it.
struct Case {
  std::string before;
  std::string arguments;
  Outcome run;
};

void PrintTo(const Case& tried, std::ostream* out) {
  *out << tried.before << "; chartxml " << tried.arguments;
}

class CommandOnChart : public CommandTest, public testing::WithParamInterface<Case> {};

TEST_P(CommandOnChart, SaysWhatItFindsAndEndsWithItsStatus) {
  const auto& [before, arguments, run] = GetParam();
  ASSERT_EQ(shell("cd charts/0001-small && " + before), (Outcome{0, ""}));
  EXPECT_EQ(chartxml(arguments), run);
}

constexpr const char* moreHelp = "Run with --help for more information.\n";

INSTANTIATE_TEST_SUITE_P(
    Usage, CommandOnChart,
    testing::Values(
        Case{"true", "--version", {0, fmt::format("chartxml {}\n", host::libraryVersion())}},
        Case{"true",
             "frobnicate",
             {2, fmt::format("The following argument was not expected: frobnicate\n{}", moreHelp)}},
        Case{"true", "verify", {2, fmt::format("folder is required\n{}", moreHelp)}},
        Case{
            "true", "render nix", {2, fmt::format("file: Path does not exist: nix\n{}", moreHelp)}},
        Case{"true",
             "render charts --theme none",
             {2, fmt::format("--theme: none not in {{default,print,dark,presentation}}\n{}",
                             moreHelp)}},
        Case{"mkdir ../../none",
             "info none",
             {2, "chartxml: none: no chart here or one folder below\n"}},
        Case{"mkdir ../../none",
             "gallery none",
             {2, "chartxml: none: no chart here or one folder below\n"}},
        Case{"true", "info charts >/dev/full", {3, "chartxml: the output cannot be written\n"}}));

INSTANTIATE_TEST_SUITE_P(
    Verify, CommandOnChart,
    testing::Values(
        Case{"sed -i 's|\"files\": {|&\"../../secret\": \"sha256:0\",|' manifest.json; touch "
             "../../secret",
             "verify charts",
             {1, "charts/0001-small/../../secret: missing\n1 chart, 1 finding\n"}},
        Case{"true", "verify charts/", {0, "1 chart, 0 findings\n"}},
        Case{"echo >>chart.xml; rm source0.csv; mkdir sub; touch .hidden sub/x",
             "verify charts",
             {1, "charts/0001-small/chart.xml: changed\n"
                 "charts/0001-small/source0.csv: missing\n"
                 "charts/0001-small/.hidden: extra\n"
                 "charts/0001-small/sub/x: extra\n"
                 "1 chart, 4 findings\n"}},
        Case{"rm chart.xml; echo >>source0.csv", "verify charts --json", {1, R"({
  "charts": [
    {
      "folder": "charts/0001-small",
      "findings": [
        {
          "file": "chart.xml",
          "is": "missing"
        },
        {
          "file": "source0.csv",
          "is": "changed"
        }
      ]
    }
  ]
}
)"}},
        Case{"rm manifest.json",
             "verify charts/0001-small",
             {1, "charts/0001-small/manifest.json: missing\n1 chart, 1 finding\n"}},
        Case{"echo '{\"name\": \"a\"}' >manifest.json",
             "verify charts",
             {1, "charts/0001-small/manifest.json: damaged: it lists no files\n"
                 "1 chart, 1 finding\n"}},
        Case{"echo '{\"files\": {\"../x\": \"sha256:0\"}' >manifest.json",
             "verify charts",
             {1, "charts/0001-small/manifest.json: damaged: 1:31: "
                 "syntax error while parsing object - unexpected end of input; expected '}'\n"
                 "1 chart, 1 finding\n"}}));

INSTANTIATE_TEST_SUITE_P(
    Validate, CommandOnChart,
    testing::Values(
        Case{"cp '" GOOD_CHART "' chart.xml",
             "validate charts/0001-small/chart.xml",
             {0, "1 document, 0 findings\n"}},
        Case{"cp '" GOOD_CHART "' chart.xml",
             "validate charts",
             {1,
              "charts/0001-small/chart.xml: element5/color: its variable names a node that has "
              "no id, and nothing is drawn of it; name a variable of the chart\n"
              "charts/0001-small/chart.xml: variable1: it is the column V1 of source0.csv, which "
              "has A, B, Group only; put the column there, or leave the variable out\n"
              "1 document, 2 findings\n"}},
        Case{"cp '" GOOD_CHART "' chart.xml; echo '\"' >source0.csv",
             "validate charts",
             {1,
              "charts/0001-small/chart.xml: charts/0001-small/source0.csv:1:1: the quoted field is "
              "not closed\n"
              "1 document, 1 finding\n"}},
        Case{"printf '<graph>\\n<odd></graph>' >chart.xml",
             "validate charts",
             {1, "charts/0001-small/chart.xml:2:6: graph/odd: does not belong here\n"
                 "charts/0001-small/chart.xml:2:8: graph/odd: expected end of tag 'odd'\n"
                 "1 document, 2 findings\n"}},
        Case{"printf '<graph' >bad.xml", "validate --json charts/0001-small/bad.xml", {1, R"({
  "documents": [
    {
      "file": "charts/0001-small/bad.xml",
      "findings": [
        {
          "line": 1,
          "column": 7,
          "reason": "unexpected end of input"
        }
      ]
    }
  ]
}
)"}},
        Case{"mkfifo pipe",
             "validate charts/0001-small/pipe",
             {1, "charts/0001-small/pipe: not a regular file\n1 document, 1 finding\n"}}));

// One rule for what is wrong with a chart, whichever verb meets it.
INSTANTIATE_TEST_SUITE_P(
    Damage, CommandOnChart,
    testing::Values(
        Case{
            "rm chart.xml",
            "validate charts",
            {1, "charts/0001-small/chart.xml: No such file or directory\n1 document, 1 finding\n"}},
        Case{"rm chart.xml",
             "render charts",
             {1, "chartxml: charts/0001-small/chart.xml: No such file or directory\n"
                 "open /charts/index.html\n"}},
        Case{"rm chart.xml",
             "info charts >/dev/null",
             {1, "chartxml: charts/0001-small/chart.xml: No such file or directory\n"}},
        Case{"rm chart.xml; mkfifo chart.xml",
             "render charts",
             {1, "chartxml: charts/0001-small/chart.xml: not a regular file\n"
                 "open /charts/index.html\n"}},
        Case{"rm manifest.json; mkfifo manifest.json",
             "info charts >/dev/null",
             {1, "chartxml: charts/0001-small/manifest.json: not a regular file\n"}},
        Case{"rm source0.csv",
             "render charts",
             {1, "chartxml: charts/0001-small/source0.csv: No such file or directory\n"
                 "open /charts/index.html\n"}},
        Case{"sed -i '$d' source0.csv; rm -f calls.json; mkfifo calls.json",
             "render charts",
             {1, "chartxml: charts/0001-small: source0: source0.csv has 2 rows where the manifest "
                 "lists 3; put the whole file back\nopen /charts/index.html\n"}},
        Case{"echo '{\"name\": 3,' >manifest.json",
             "render charts",
             {1,
              "chartxml: charts/0001-small/manifest.json:1:12: syntax error while parsing object "
              "key - unexpected end of input; expected string literal\n"
              "open /charts/index.html\n"}},
        Case{"echo '{\"name\": 3,' >manifest.json",
             "info charts >/dev/null",
             {1,
              "chartxml: charts/0001-small/manifest.json:1:12: syntax error while parsing object "
              "key - unexpected end of input; expected string literal\n"}},
        Case{"echo '{\"name\": 3}' >manifest.json",
             "render charts",
             {1, "chartxml: charts/0001-small/manifest.json: type must be string, but is number\n"
                 "open /charts/index.html\n"}}));

TEST_F(Command, TellsWhatAChartIs) {
  EXPECT_THAT(chartxml("info charts").text, HasSubstr(R"(charts/0001-small
  name         small
  description  A small chart.
  language     en
  source       source0: 3 rows, 3 columns
    A          number               A label
    B          number               )"
                                                      "\n"
                                                      R"(    Group      string  categorical  Group
               1 value label
  file         chart.html)"));
  ASSERT_EQ(chartxml("info charts --json >info.json"), (Outcome{0, ""}));
  const auto info = nlohmann::json::parse(scratch.read("info.json"))["charts"][0];
  EXPECT_EQ(info["sources"][0]["rows"], 3);
  EXPECT_EQ(info["files"]["source0.csv"], files().at("source0.csv").size());
  EXPECT_EQ(info["versions"]["library"], host::libraryVersion());
  EXPECT_EQ(info["notes"], nlohmann::json::array());
}

TEST_F(Command, MakesTheSameBytesAgain) {
  const auto sent = files();
  const Outcome opened{0, "open /charts/index.html\n"};
  ASSERT_EQ(shell("rm charts/0001-small/chart.html && chartxml render charts"), opened);
  EXPECT_EQ(files(), sent);
  ASSERT_EQ(chartxml("render charts/0001-small --svg --png --pdf"), opened);
  EXPECT_EQ(chartxml("verify charts"), (Outcome{0, "1 chart, 0 findings\n"}));
  auto drawn = files();
  ASSERT_EQ(chartxml("render charts --svg --png --pdf"), opened);
  EXPECT_EQ(files(), drawn);
  EXPECT_THAT(drawn.at("chart.svg"), HasSubstr("<svg"));
  EXPECT_EQ(drawn.at("chart.png").substr(1, 3), "PNG");
  EXPECT_EQ(drawn.at("chart.pdf").substr(0, 5), "%PDF-");
  EXPECT_THAT(drawn.at("chart.pdf"), testing::Not(HasSubstr("Date")));
  for (const char* picture : {"chart.svg", "chart.png", "chart.pdf"})
    drawn.erase(picture);
  drawn["manifest.json"] = sent.at("manifest.json");
  EXPECT_EQ(drawn, sent);
}

TEST_F(Command, DrawsInAnotherThemeUntilItDrawsInThatOfTheTemplate) {
  const auto svg = [&] { return scratch.read("charts/0001-small/chart.svg"); };
  ASSERT_EQ(chartxml("render charts --svg").status, 0);
  const auto usual = files();
  ASSERT_EQ(chartxml("render charts --svg --theme print").status, 0);
  EXPECT_THAT(svg(),
              testing::ContainsRegex("</style><defs><pattern id=\"p[0-9a-z]+-chartxml-rising\""));
  EXPECT_THAT(svg(), HasSubstr("fill=\"#000000\""));
  ASSERT_EQ(chartxml("render charts --svg --theme presentation").status, 0);
  std::smatch size;
  const std::string large = svg().substr(0, 400); // the letters of the picture come after
  ASSERT_TRUE(
      std::regex_search(large, size, std::regex(R"re(width="(\S+)" .*viewBox="0 0 (\S+))re")));
  EXPECT_DOUBLE_EQ(std::stod(size[1]), 1.75 * std::stod(size[2]));
  ASSERT_EQ(chartxml("render charts --svg").status, 0);
  EXPECT_EQ(files(), usual);
}

TEST_F(Command, RendersWhatWasChangedWithoutListingTheChange) {
  ASSERT_EQ(shell("cd charts/0001-small && sed -i 's/A label/An edit/' chart.xml"),
            (Outcome{0, ""}));
  EXPECT_EQ(chartxml("render charts").status, 0);
  EXPECT_THAT(scratch.read("charts/0001-small/chart.html"), HasSubstr("An edit"));
  EXPECT_EQ(chartxml("verify charts"),
            (Outcome{1, "charts/0001-small/chart.xml: changed\n1 chart, 1 finding\n"}));
}

TEST_F(Command, TellsWhatIsFoundInAChartThatIsRendered) {
  ASSERT_EQ(shell("cd charts/0001-small && sed -i '1s/B,/C,/' source0.csv"), (Outcome{0, ""}));
  const std::string finding = "v2: \"b\" is the column B of source0.csv, which has A, C, Group "
                              "only; put the column there, or leave the variable out";
  EXPECT_EQ(chartxml("render charts"), (Outcome{1, "chartxml: charts/0001-small: " + finding +
                                                       "\nopen /charts/index.html\n"}));
  const auto manifest = nlohmann::json::parse(scratch.read("charts/0001-small/manifest.json"));
  ASSERT_EQ(manifest["findings"].size(), 1U);
  EXPECT_EQ(manifest["findings"][0]["text"], finding);
  ASSERT_EQ(shell("cd charts/0001-small && sed -i '1s/C,/B,/' source0.csv && "
                  "cd ../.. && chartxml render charts && chartxml verify charts"),
            (Outcome{0, "open /charts/index.html\n1 chart, 0 findings\n"}));
}

TEST_F(Command, NamesChartsThatCannotBeDrawnAndDrawsTheOthers) {
  const auto errors = [&] {
    return nlohmann::json::parse(scratch.read("charts/0001-small/manifest.json"))["errors"].dump();
  };
  ASSERT_EQ(shell("cp -r charts/0001-small charts/0002-good; cd charts/0001-small; "
                  "mv chart.xml kept; echo '<graph' >chart.xml"),
            (Outcome{0, ""}));
  EXPECT_EQ(chartxml("render charts --svg"),
            (Outcome{1, "chartxml: charts/0001-small/chart.xml:2:1: unexpected end of input\n"
                        "open /charts/index.html\n"}));
  EXPECT_EQ(errors(), R"(["chart.xml:2:1: unexpected end of input"])");
  EXPECT_THAT(scratch.read("charts/0002-good/chart.svg"), HasSubstr("<svg"));
  ASSERT_EQ(shell("mv charts/0001-small/kept charts/0001-small/chart.xml; "
                  "chartxml render charts/0001-small && chartxml verify charts"),
            (Outcome{0, "open /charts/index.html\n2 charts, 0 findings\n"}));
  EXPECT_EQ(errors(), "[]");
}

TEST_F(Command, PutsTextsWithTheirFontsIntoAPdfUnlessTheyRunFromRightToLeft) {
  const auto drawWithTitle = [&](std::string_view title) {
    return shell(fmt::format("cp charts/0001-small/chart.xml kept; "
                             "sed -i 's|</graph>|<frame><label id=\"title\">{}</label></frame>&|' "
                             "charts/0001-small/chart.xml; chartxml render charts --pdf; "
                             "status=$?; mv kept charts/0001-small/chart.xml; (exit $status)",
                             title));
  };
  EXPECT_EQ(drawWithTitle("年 a").status, 0);
  const std::string pdf = scratch.read("charts/0001-small/chart.pdf");
  EXPECT_THAT(pdf, HasSubstr("+LiberationSans-Bold\n"));
  EXPECT_THAT(pdf, HasSubstr("+NotoSansCJKjp-Bold\n"));
  EXPECT_EQ(drawWithTitle("שלום"),
            (Outcome{1, "chartxml: charts/0001-small: the picture cannot be drawn: texts written "
                        "from right to left cannot be put into a PDF\n"
                        "chartxml: charts/0001-small/chart.pdf: removed, as it showed the chart as "
                        "it was before\nopen /charts/index.html\n"}));
}

TEST_F(Command, MakesTheGalleryAnew) {
  ASSERT_EQ(shell("rm -r charts/index.html charts/runtime; chartxml gallery charts"),
            (Outcome{0, "open /charts/index.html\n"}));
  EXPECT_THAT(scratch.read("charts/index.html"), HasSubstr("gallery.js"));
  EXPECT_THAT(scratch.read("charts/gallery.js"), HasSubstr("chart(\"0001-small\""));
  EXPECT_FALSE(scratch.read("charts/runtime/chartxml-page.js").empty());
}

TEST_F(Command, IsCompletedByTheShellWithItsOwnVerbsAndOptions) {
  const auto completed = [&](const std::string& words, int at) {
    return shell(fmt::format("bash -c 'source <(chartxml completion bash); compopt() {{ :; }}; "
                             "COMP_WORDS=({}); COMP_CWORD={}; _chartxml; echo ${{COMPREPLY[@]}}'",
                             words, at))
        .text;
  };
  EXPECT_EQ(completed("chartxml v", 1), "validate verify\n");
  EXPECT_EQ(completed("chartxml render --", 2),
            "--help --data --output --svg --png --pdf --theme --node --json\n");
  EXPECT_EQ(completed("chartxml render charts --theme pr", 4), "print presentation\n");
  EXPECT_EQ(completed("chartxml completion b", 2), "bash\n");
  EXPECT_EQ(completed("chartxml verify charts/0", 2), "charts/0001-small\n");
  EXPECT_EQ(completed("chartxml render charts --node charts/0001-small/s", 4),
            "charts/0001-small/source0.csv\n");
  EXPECT_EQ(completed("chartxml validate charts/0001-small/chart.x", 2),
            "charts/0001-small/chart.xml\n");
  EXPECT_THAT(chartxml("completion zsh").text,
              HasSubstr("  gallery)\n    _arguments \\\n"
                        "      '--help[Print this help message and exit]' \\\n"
                        "      '*:folder:_files -/' \\\n"
                        "      '--json[Print one JSON value instead of lines]' ;;\n"));
}

} // namespace
