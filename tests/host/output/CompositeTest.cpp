#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <host/OutputText.h>

#include "OutputTest.h"

namespace {

OmStringCell cell(const std::string& text, const std::string& english = "") {
  OmStringCell made(text, 0, 0);
  made.OriginalValue(english);
  return made;
}

void add(OmComposite& composite, std::initializer_list<const char*> texts) {
  for (const char* text : texts)
    composite.Add(cell(text));
}

TEST(Composite, shows_patterns_by_their_grammar) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"^1 of ^2 and ^1", "a of b and a"},
      {"^3|^0|^99999999999999999999|^02", "|||b"},
      {"\\^1 \\\\ \\[ \\ä ^ ^x 5^", "^1 \\ [ ä ^ ^x 5^"},
      {"end\\", "end\\"},
      {"[%1\\: %2:, ^1\\: ^2:]1", "sex: male, age: 12, height: "},
      {"[", "["},
      {"]1:]^1[", "]1:]a["},
      {"[[%1:^1:]2", "[only"},
      {"[%1:^1:]2]2", "only]2"},
      {"[%1:^1]2", "[%1:a]2"},
      {"[%1:^1::]2", "[%1:a::]2"},
      {"[%1:^1:] 2", "[%1:a:] 2"},
      {"[%1:^1:\\]2:]2", "[%1:a:]2:]2"},
      {"^1%1\\%1", "a%1%1"},
      {"日[%1→:·^1:]2本", "日only→本"},
      {"(^1) [%1:; ^1:]1.", "(a) sex; male; age; 12; height."},
      {"[%2:/^2:]1", "male/12/"},
      {"[first: later:]1", "first later later later later"},
      {"[^1%1:%1^1:]1", "^1sex%1male%1age%112%1height"},
      {"[%99999999999999999999:^1:]1", ""},
      {"[%1:^1:]2|[%1:^1:]3|[%1:^1:]0|[%1:^1:]99999999999999999999", "only|||"},
      {"[cm] [^1 [%1:+^1:]2 [x:y:z:]1 [x:]1 [x:y:] ]1 : [", //
       "[cm] [a only [x:y:z:]1 [x:]1 [x:y:] ]1 : ["},
  };
  for (const auto& [pattern, text] : cases) {
    OmComposite composite(cell(pattern), nullptr, true);
    composite.Add(cell("a"));
    composite.BeginRepeatList();
    add(composite, {"sex", "male", "age", "12", "height"});
    composite.EndRepeatList();
    composite.Add(cell("b"));
    composite.BeginRepeatList();
    add(composite, {"only"});
    composite.EndRepeatList();
    EXPECT_EQ(composite.Text(), text) << pattern;
    composite.End();
    composite.Substitute(nullptr, true);
    EXPECT_EQ(composite.Text(), text) << pattern;
  }
}

// Every byte taken literally.
std::string literal(const std::string& text) {
  std::string pattern;
  for (const char c : text)
    (pattern += '\\') += c;
  return pattern;
}

TEST(Composite, repeats_as_by_hand) {
  using Groups = std::vector<std::pair<std::string, std::string>>;
  EXPECT_TRUE(rc::check([](const std::string& before, const std::string& between,
                           const std::string& after, const Groups& groups) {
    OmComposite composite(cell(literal(before) + "[%1" + literal(between) + "%2:" + //
                               literal(after) + "^1" + literal(between) + "^2:]1" + literal(after)),
                          nullptr, true);
    std::string byHand = before;
    composite.BeginRepeatList();
    for (const auto& [first, second] : groups) {
      if (&first != &groups.front().first) byHand += after;
      byHand.append(first).append(between).append(second);
      composite.Add(cell(first));
      composite.Add(cell(second));
    }
    composite.EndRepeatList();
    RC_ASSERT(composite.Text() == byHand + after);
    RC_ASSERT(composite.EnglishText() == byHand + after);
  }));
}

TEST(Composite, makes_some_text_of_any_pattern) {
  const auto patterns =
      rc::gen::container<std::string>(rc::gen::elementOf(std::string("[]:%^\\1290 a[:]")));
  EXPECT_TRUE(rc::check([&] {
    const std::string pattern = *patterns;
    OmComposite composite(cell(pattern), nullptr, true);
    composite.Add(cell("x"));
    composite.BeginRepeatList();
    add(composite, {"y", "z", "y"});
    composite.EndRepeatList();
    // Nothing comes out that went in nowhere, and every "a" comes out at least once
    // where no repeat list is there to hold it back.
    RC_ASSERT(composite.Text().find_first_not_of(pattern + "xyz") == std::string::npos);
    if (pattern.find(']') == std::string::npos)
      RC_ASSERT(std::ranges::count(composite.Text(), 'a') == std::ranges::count(pattern, 'a'));
  }));
}

std::string times(std::size_t count, std::string_view text) {
  std::string all;
  while (count-- > 0)
    all += text;
  return all;
}

// By the square of the length these would take minutes, and the test be stopped.
TEST(Composite, takes_time_by_the_length_of_pattern_and_list) {
  constexpr std::size_t many = 400'000;
  const struct {
    std::string pattern, text;
    std::size_t items = 0;
  } cases[] = {
      {times(many, "["), times(many, "[")},
      {times(many, "[:"), times(many, "[:")},
      {times(many, "[::]"), times(many, "[::]")},
      {times(many, "[::]2"), ""},
      {times(many, "^1"), times(many, "x")},
      {std::string("^").append(many, '9'), ""},
      {"[%1:^1:]1", times(many, "y"), many},
      {std::string("[%").append(many, '9').append(":^1:]1"), "", many},
  };
  for (const auto& [pattern, text, items] : cases) {
    OmComposite composite(cell(pattern), nullptr, true);
    composite.Add(cell("x"));
    composite.BeginRepeatList();
    for (std::size_t i = 0; i < items; ++i)
      composite.Add(cell("y"));
    composite.EndRepeatList();
    EXPECT_TRUE(composite.Text() == text) << pattern.substr(0, 12);
  }
}

TEST(Composite, refuses_a_text_that_grows_past_bounds) {
  const std::pair<int, std::string> cases[] = {
      {7, "nothing refused"},
      {8, "can't substitute a composite that comes to more than 67108864 bytes"}};
  for (const auto& [levels, refusal] : cases) {
    std::string text = "x";
    for (int level = 1; level < levels; ++level) {
      OmComposite composite(cell("^1^1^1^1^1^1^1^1^1^1"), nullptr, true);
      composite.Add(cell(text));
      text = composite.Text();
    }
    OmComposite last(cell("^1^1^1^1^1^1^1^1^1^1"), nullptr, true);
    last.Add(cell(text));
    last.End();
    EXPECT_EQ(refusalOf([&] { last.Substitute(nullptr, true); }), refusal);
    EXPECT_EQ(last.Text().size(), refusal == "nothing refused" ? 10'000'000U : 0U);
    if (refusal != "nothing refused") last.Add(cell("it is open as before"));
  }
  OmComposite idle(cell(times(20'000, "[::]1")), nullptr, true);
  idle.BeginRepeatList();
  for (int i = 0; i < 20'000; ++i)
    idle.Add(cell(""));
  idle.EndRepeatList();
  idle.End();
  EXPECT_EQ(refusalOf([&] { idle.Substitute(nullptr, true); }), cases[1].second);
}

TEST(Composite, makes_the_english_text_of_english_parts_where_there_are_any) {
  OmComposite composite(cell("^1 nach ^2[: ^1:]1", "^2 by ^1"), nullptr, true);
  composite.Add(cell("Größe", "size"));
  composite.Add(cell("Art"));
  EXPECT_EQ(composite.Text(), "Größe nach Art");
  EXPECT_EQ(composite.EnglishText(), "Art by size");
  OmComposite untranslated(cell("<^1>"), nullptr, true);
  untranslated.Add(composite);
  EXPECT_EQ(untranslated.Text(), "<Größe nach Art>");
  EXPECT_EQ(untranslated.EnglishText(), "<Art by size>");
}

TEST(Composite, takes_a_copy_of_itself_as_it_is_so_far) {
  OmComposite composite(cell("<^1^2>"), nullptr, true);
  composite.Add(composite);
  composite.Add(composite);
  EXPECT_EQ(composite.Text(), "<<><<>>>");
}

TEST(Composite, refuses_calls_out_of_order_and_stays_as_it_was) {
  const std::map<std::string, void (*)(OmComposite&)> calls = {
      {"add", [](OmComposite& c) { c.Add(c); }},
      {"begin", [](OmComposite& c) { c.BeginRepeatList(); }},
      {"endList", [](OmComposite& c) { c.EndRepeatList(); }},
      {"end", [](OmComposite& c) { c.End(); }},
      {"substitute", [](OmComposite& c) { c.Substitute(nullptr, true); }},
  };
  using Names = std::vector<std::string>;
  const std::tuple<Names, std::string, std::string> cases[] = {
      {{}, "endList", "end a repeat list in a composite that is open"},
      {{}, "substitute", "substitute a composite that is open"},
      {{"begin"}, "begin", "begin a repeat list in a composite that has an open repeat list"},
      {{"begin"}, "end", "end a composite that has an open repeat list"},
      {{"end"}, "add", "add a parameter to a composite that has ended"},
      {{"end"}, "end", "end a composite that has ended"},
      {{"end", "substitute"}, "substitute", "substitute a composite that is substituted"},
  };
  for (const auto& [before, refused, message] : cases) {
    OmComposite composite(cell("^1"), nullptr, true);
    add(composite, {"a"});
    for (const std::string& call : before)
      calls.at(call)(composite);
    EXPECT_EQ(refusalOf([&] { calls.at(refused)(composite); }), "can't " + message);
    EXPECT_EQ(composite.Text(), "a");
  }
}

TEST(CellText, keeps_a_copy_by_handle) {
  const int first = SkCellText::Replicate(SkString("one", 0));
  const std::string_view text = SkCellText::text(first);
  EXPECT_EQ(SkCellText::Replicate(SkString("two", 0)), first + 1);
  EXPECT_EQ(text, "one");
  EXPECT_EQ(SkCellText::text(-1), "");
  EXPECT_EQ(SkCellText::text(first + 2), "");
}

} // namespace
