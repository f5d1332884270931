#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "render/support/Node.h"
#include "text/Wrap.h"
#include "translate/Theme.h"

namespace {

using render::Manifest;

std::string familiesOf(const std::string& language) {
  Manifest manifest{.name = ""};
  manifest.language = language;
  return render::theme::font(manifest);
}

TEST(Letters, AreMeasuredAsTheyAreDrawn) {
  const std::vector<std::string> texts{"Consumer spending (dollars)",
                                       "Größe übers Jahr, élan, ½",
                                       "Средняя доля, шт.",
                                       "年代: 1970年代。年9.3%の成長 & n = 20",
                                       "1인당 소비 지출",
                                       "ｱｲｳ R² ≤ 5 €, ₩ 1, ⇒ Việt",
                                       "各年代的“趋势”——美元/年"};
  constexpr double fontSize = 40;
  constexpr double kerning = 0.02; // letters that stand closer in pairs
  for (const bool bold : {false, true}) {
    std::vector<std::string> arguments{"40", bold ? "bold" : "normal", familiesOf("ja")};
    arguments.insert(arguments.end(), texts.begin(), texts.end());
    const nlohmann::json widths = scriptOutput("letters.mjs", arguments);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const double width = render::textWidth(texts[i], fontSize, bold);
      const double ofPictures = widths[i][0];
      const double drawn = widths[i][1];
      EXPECT_NEAR(ofPictures, width, 1e-6) << texts[i];
      EXPECT_NEAR(drawn, width, width * kerning) << texts[i];
    }
  }
}

TEST(Letters, AreDrawnTheSameWithTheFontsThatTheyNeedAlone) {
  const std::pair<std::string, int> cases[] = {{"Größe, R² ≤ 5 € ⇒ Доля", 4},
                                               {"年代: 9.3%の成長, 소비 지출", 6},
                                               {"שלום, 5 €", 6},
                                               {"a rare \U00020BB7", 6}};
  std::vector<std::string> arguments{familiesOf("ja")};
  for (const auto& [text, files] : cases)
    arguments.push_back(text);
  const nlohmann::json found = scriptOutput("faces.mjs", arguments);
  for (std::size_t i = 0; i < std::size(cases); ++i)
    EXPECT_EQ(found[i], nlohmann::json({cases[i].second, true})) << cases[i].first;
}

TEST(Letters, ComeFromTheFacesOfTheLanguageFirst) {
  const std::pair<const char*, const char*> cases[] = {
      {"ja", "'Noto Sans CJK JP'"},    {"ko", "'Noto Sans CJK KR'"},
      {"zh-cn", "'Noto Sans CJK SC'"}, {"zh-tw", "'Noto Sans CJK TC'"},
      {"de", "'Noto Sans CJK JP'"},
  };
  for (const auto& [language, family] : cases) {
    const std::string families = familiesOf(language);
    EXPECT_EQ(families.find("'Liberation Sans'"), 0U);
    EXPECT_EQ(families.substr(families.find("'Noto Sans CJK"), std::string(family).size()), family);
  }
}

} // namespace
