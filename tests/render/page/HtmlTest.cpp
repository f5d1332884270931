#include <gtest/gtest.h>

#include "page/Html.h"

#include <nlohmann/json.hpp>

namespace {

TEST(EscapeScript, LeavesNothingThatEndsTheScriptAndReadsBackTheSame) {
  const std::string text = "</script><!-- & \xE2\x80\xA8\xE2\x80\xA9 \"";
  const std::string escaped = render::escapeScript(nlohmann::json(text).dump());
  EXPECT_EQ(escaped, R"("\u003c/script\u003e\u003c!-- \u0026 \u2028\u2029 \"")");
  EXPECT_EQ(nlohmann::json::parse(escaped), text);
}

TEST(EscapeHtml, HoldsInAnElementAndInAQuotedAttribute) {
  EXPECT_EQ(render::escapeHtml("<a href=\"x\" b='&'>"),
            "&lt;a href=&quot;x&quot; b=&#39;&amp;&#39;&gt;");
}

TEST(EscapeUrl, KeepsFoldersAndEscapesTheRest) {
  EXPECT_EQ(render::escapeUrl("0001-a b?#%é\"/chart.html"),
            "0001-a%20b%3F%23%25%C3%A9%22/chart.html");
}

} // namespace
