// A chart from the first call of its procedure to its page: what is found in it is told
// wherever somebody may look.
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chartxml/ChartXml.h>
#include <chartxml/EntryPoints.h>
#include <host/ChartSink.h>
#include <host/ErrorLog.h>
#include <nlohmann/json.hpp>

#include "backend/support/EntryArguments.h"
#include "render/support/ChartFolder.h"

namespace {

TEST(SentChart, TellsItsFindingsInLogManifestAndPage) {
  const TestFolder output;
  host::setOutputFolder(output.path());
  std::vector<std::string> reports;
  host::setErrorCallback([&](const host::ErrorReport& report) {
    reports.push_back(report.message + " [" + report.source + "]");
  });

  const auto text = [](const char* bytes) {
    return Int(ChartXml::GetInstance()->NStringNoTranslate(bytes));
  };
  const Int none(-1);
  const Int chart = cx_createchart_(nullptr, nullptr, "speeds", Int(6));
  const Int source = cx_addsource_(chart);
  const Int x = cx_addaggregate_(chart, source, none, Int(0), text("Time"), none, none);
  const Int y = cx_addaggregate_(chart, source, none, Int(0), text("Speed"), none, none);
  for (const double value : {1.0, 2.0}) {
    cx_addrow_(chart, source);
    cx_adddoubledatavalue_(chart, source, x, &value);
  }
  const Int frame = cx_addframe_(chart, Int(0), text("data_1"));
  const Int element = cx_addelement_(chart, frame, Int(21), text("simpleline"));
  cx_addx_(chart, element, x);
  cx_addy_(chart, element, y);
  cx_addy_(chart, element, x);
  ASSERT_EQ(cx_endchart_(chart), 0);
  cx_terminate_();
  host::setErrorCallback({});
  host::setOutputFolder({});

  const std::string twice =
      "element_simpleline/y[2]: y of the element is bound to \"Speed\" and again to \"Time\", and "
      "only one can be drawn; bind it once, or add another element (call 9, cx_addy_)";
  const std::string empty = "variable2: \"Speed\" has no value in any of 2 rows; load its values, "
                            "or leave it out (call 4, cx_addaggregate_)";
  const std::string folder = (output.path() / "0001-speeds").native();
  EXPECT_EQ(reports, (std::vector<std::string>{
                         folder + ": " + twice + " [render/src/check/Roles.cpp]",
                         folder + ": " + empty + " [render/src/check/EmptyVariables.cpp]"}));

  const auto manifest = nlohmann::json::parse(output.read("0001-speeds/manifest.json"));
  const auto calls = nlohmann::json::parse(output.read("0001-speeds/calls.json"));
  EXPECT_EQ(calls["element_simpleline/y[2]"], "9 cx_addy_");
  EXPECT_EQ(manifest["findings"],
            nlohmann::json::parse(R"([
    {"check": "role-twice", "node": "element_simpleline/y[2]", "call": 9, "name": "cx_addy_"},
    {"check": "empty-variable", "node": "variable2", "call": 4, "name": "cx_addaggregate_"}])")
                .patch({{{"op", "add"}, {"path", "/0/text"}, {"value", twice}},
                        {{"op", "add"}, {"path", "/1/text"}, {"value", empty}}}));

  const std::string page = output.read("0001-speeds/chart.html");
  EXPECT_THAT(page, testing::HasSubstr("<li>element_simpleline/y[2]: y of the element is bound to "
                                       "&quot;Speed&quot; and again to"));
  EXPECT_THAT(page, testing::HasSubstr("(call 4, cx_addaggregate_)</li>"));
}

} // namespace
