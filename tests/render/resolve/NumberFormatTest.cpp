#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resolve/NumberFormat.h"

namespace {

using render::Node;
using render::NumberFormat;

using Attributes = std::vector<std::pair<std::string, std::string>>;

NumberFormat formatOf(const Attributes& attributes) {
  render::Notes notes;
  NumberFormat format =
      NumberFormat::read(Node{.kind = "numberFormat", .attributes = attributes}, notes);
  EXPECT_TRUE(notes.all().empty());
  return format;
}

struct Shown {
  std::string name;
  Attributes attributes;
  std::string expression;
};

class NumberTextTest : public testing::TestWithParam<Shown> {};

TEST_P(NumberTextTest, GivesAnExpressionForTheText) {
  EXPECT_EQ(numberText(formatOf(GetParam().attributes), "v"), GetParam().expression);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, NumberTextTest,
    testing::Values(
        Shown{"plain",
              {{"minimumFractionDigits", "0"}, {"useGrouping", "false"}},
              R"(format(v,".3~f"))"},
        Shown{"comma", {{"minimumFractionDigits", "2"}}, R"(format(v,",.2f"))"},
        Shown{
            "dollar", {{"minimumFractionDigits", "2"}, {"prefix", "$"}}, R"("$"+format(v,",.2f"))"},
        Shown{"percent",
              {{"minimumFractionDigits", "1"}, {"suffix", "%"}, {"useGrouping", "false"}},
              R"(format(v,".1f")+"%")"},
        Shown{"most",
              {{"minimumFractionDigits", "4"}, {"maximumFractionDigits", "1"}},
              R"(format(v,",.1f"))"},
        Shown{"none",
              {{"minimumFractionDigits", "0"}, {"maximumFractionDigits", "0"}},
              R"(format(v,",.0f"))"},
        Shown{"scientific", {{"scientific", "always"}}, R"(format(v,"~e"))"},
        Shown{"automatic", {{"scientific", "auto"}}, R"(format(v,".6~g"))"},
        Shown{"outside",
              {{"minimumFractionDigits", "0"},
               {"maximumFractionDigits", "0"},
               {"prefix", "€"},
               {"negativesOutside", "true"}},
              R"((v < 0 ? "\u2212" : "")+"\u20ac"+format(abs(v),",.0f"))"},
        Shown{"parentheses",
              {{"minimumFractionDigits", "2"}, {"prefix", "$"}, {"negativesInParentheses", "true"}},
              R"e((v < 0 ? "("+"$"+format(abs(v),",.2f")+")" : "$"+format(abs(v),",.2f")))e"},
        Shown{"hostile",
              {{"minimumFractionDigits", "2"}, {"suffix", "\"+x\xE2\x80\xA8"}},
              R"(format(v,",.2f")+"\"+x\u2028")"}),
    [](const auto& test) { return test.param.name; });

TEST(NumberText, WithoutAFormatIsTheShortestInSixDigits) {
  EXPECT_EQ(render::numberText(std::nullopt, "v"), R"(format(v,".6~g"))");
}

TEST(TickText, ShowsAsManyDecimalsAsTellTheTicksApart) {
  const NumberFormat whole = formatOf({{"minimumFractionDigits", "0"}, {"useGrouping", "false"}});
  EXPECT_EQ(tickText(whole, "v", 0, 100), R"(format(v,".0f"))");
  EXPECT_EQ(tickText(whole, "v", 2, 100), R"(format(v,".2f"))");
  const NumberFormat atMostOne = formatOf({{"maximumFractionDigits", "1"}});
  EXPECT_EQ(tickText(atMostOne, "v", 2, 100), R"(format(v,",.1f"))");
  EXPECT_EQ(render::tickText(std::nullopt, "v", 1, 2030), R"(format(v,".1f"))");
}

TEST(TickText, IsScientificWhereThePlainTextWouldCrowdTheAxis) {
  EXPECT_EQ(render::tickText(std::nullopt, "v", 0, 1e12), R"(format(v,"~e"))");
  EXPECT_EQ(render::tickText(std::nullopt, "v", 10, 1), R"(format(v,"~e"))");
}

TEST(NumberFormat, NotesDigitsThatAreNoNumber) {
  render::Notes notes;
  NumberFormat::read(Node{.kind = "numberFormat", .attributes = {{"minimumFractionDigits", "two"}}},
                     notes);
  EXPECT_THAT(notes.all(),
              testing::ElementsAre(
                  "numberFormat: minimumFractionDigits=\"two\" is not a number of digits"));
}

} // namespace
