#include <map>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

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
