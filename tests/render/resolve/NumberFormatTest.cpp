#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

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

/// The looks that no display format asks for; the others are compared with the formatter.
class NumberTextTest : public testing::TestWithParam<Shown> {};

TEST_P(NumberTextTest, GivesAnExpressionForTheText) {
  EXPECT_EQ(numberText(formatOf(GetParam().attributes), "v"), GetParam().expression);
}

const std::string upToThree =
    R"(format((abs(v)*16%2==1&&floor(abs(v)*1000)%2==0?v*(1-1e-15):v),".3f"))";

INSTANTIATE_TEST_SUITE_P(
    Formats, NumberTextTest,
    testing::Values(Shown{"open", {}, fmt::format("replace({},/[^0-9]0+$|0+$/,\"\")", upToThree)},
                    Shown{"most",
                          {{"minimumFractionDigits", "1"}, {"maximumFractionDigits", "3"}},
                          fmt::format("replace({},/0{{1,2}}$/,\"\")", upToThree)},
                    Shown{"contrary",
                          {{"minimumFractionDigits", "4"}, {"maximumFractionDigits", "3"}},
                          upToThree},
                    Shown{"scientific",
                          {{"minimumFractionDigits", "2"}, {"scientific", "always"}},
                          R"(replace(replace(format(v,".2e"),/e/,"E"),/E[+-](?=[0-9]$)/,"$&0"))"},
                    Shown{"hostile",
                          {{"maximumFractionDigits", "3"},
                           {"minimumFractionDigits", "3"},
                           {"prefix", "$&\\"},
                           {"suffix", "\"+x\xE2\x80\xA8"}},
                          fmt::format(R"(replace({},/^-?/,"$&$$&\\")+"\"+x\u2028")", upToThree)}),
    [](const auto& test) { return test.param.name; });

TEST(TickText, ShowsAsManyDecimalsAsTellTheTicksApart) {
  const NumberFormat whole = formatOf({{"minimumFractionDigits", "0"}, {"useGrouping", "true"}});
  EXPECT_EQ(tickText(whole, "v", 0, 100), R"(format(v,",.0f"))");
  EXPECT_EQ(tickText(whole, "v", 2, 100), R"(format(v,",.2f"))");
  const NumberFormat atMostOne = formatOf({{"maximumFractionDigits", "1"}});
  EXPECT_EQ(tickText(atMostOne, "v", 2, 100), R"(format(v,".1f"))");
  EXPECT_EQ(render::tickText(std::nullopt, "v", 1, 2030), R"(format(v,".1f"))");
}

TEST(TickText, IsScientificWhereThePlainTextWouldCrowdTheAxis) {
  const char* const scientific =
      R"(replace(replace(format(v,"~e"),/e/,"E"),/E[+-](?=[0-9]$)/,"$&0"))";
  EXPECT_EQ(render::tickText(std::nullopt, "v", 0, 1e12), scientific);
  EXPECT_EQ(render::tickText(std::nullopt, "v", 10, 1), scientific);
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
