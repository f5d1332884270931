#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/Wrap.h"

namespace {

using render::wrap;
using testing::ElementsAre;

constexpr std::size_t many = 100;

TEST(Wrap, BreaksBetweenWordsAndAtLineFeeds) {
  EXPECT_THAT(wrap("one two three\n\nfour", {.width = 60, .fontSize = 12, .lines = many}),
              ElementsAre("one two", "three", "", "four"));
}

TEST(Wrap, BreaksAWordThatIsWiderThanALine) {
  EXPECT_THAT(wrap("aaaaaaaa b", {.width = 32, .fontSize = 10, .lines = many}),
              ElementsAre("aaaaa", "aaa b"));
}

TEST(Wrap, KeepsCombiningCharactersTogether) {
  // Five letters e with an acute accent as a character of its own.
  const std::string e = "e\u0301";
  EXPECT_THAT(wrap(e + e + e + e + e, {.width = 25, .fontSize = 10, .lines = many}),
              ElementsAre(e + e + e + e, e));
}

TEST(Wrap, BreaksTextWithoutBlanksWhereItsLanguageAllows) {
  EXPECT_THAT(wrap("ペンギンの体重", {.width = 40, .fontSize = 10, .lines = many}),
              ElementsAre("ペンギン", "の体重"));
}

TEST(Wrap, IsWholeWhenNoWordIsBrokenAndNothingLeftOut) {
  const render::WrapLimits limits{.width = 40, .fontSize = 10, .lines = 2};
  EXPECT_TRUE(render::wrapsWhole("one two three", {.width = 40, .fontSize = 10, .lines = 3}));
  EXPECT_FALSE(render::wrapsWhole("one two three four", limits));
  EXPECT_FALSE(render::wrapsWhole("penguins", limits));
  EXPECT_TRUE(render::wrapsWhole("ペンギンの体重", limits));
}

TEST(Wrap, EndsInAnEllipsisPastTheLastLine) {
  EXPECT_THAT(wrap("one two three four", {.width = 60, .fontSize = 12, .lines = 1}),
              ElementsAre("one two…"));
}

TEST(Wrap, TakesATextOfAnyLengthAndBytesThatAreNoText) {
  EXPECT_EQ(wrap(std::string(1'000'000, 'x'), {.width = 700, .fontSize = 12, .lines = 3}).size(),
            3U);
  EXPECT_THAT(wrap("\xFF", {.width = 70, .fontSize = 12, .lines = 3}), ElementsAre("\uFFFD"));
  EXPECT_THAT(wrap("", {.width = 70, .fontSize = 12, .lines = 3}), ElementsAre());
}

} // namespace
