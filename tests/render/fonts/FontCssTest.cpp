#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H
#include <nettle/base64.h>
#include <render/Pages.h>

#include "fonts/FontCss.h"
#include "fonts/FontFiles.h"
#include "render/support/ChartFolder.h"

namespace {

using render::Json;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* families = "'Liberation Sans', 'Noto Sans CJK KR', 'DejaVu Sans'";

/// Another reader of fonts than the one that they are made with.
class Reader {
public:
  Reader() { FT_Init_FreeType(&library_); }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;
  ~Reader() { FT_Done_FreeType(library_); }

  using Face = std::unique_ptr<FT_FaceRec, std::function<void(FT_Face)>>;

  /// The bytes have to live as long as the face.
  Face read(const std::string& bytes) const {
    FT_Face face = nullptr;
    FT_New_Memory_Face(library_, reinterpret_cast<const FT_Byte*>(bytes.data()),
                       static_cast<FT_Long>(bytes.size()), 0, &face);
    return {face, FT_Done_Face};
  }
  Face open(const std::filesystem::path& file, FT_Long index) const {
    FT_Face face = nullptr;
    FT_New_Face(library_, file.c_str(), index, &face);
    return {face, FT_Done_Face};
  }

private:
  FT_Library library_ = nullptr;
};

std::u32string charactersOf(FT_Face face) {
  std::u32string characters;
  FT_UInt glyph = 0;
  for (FT_ULong c = FT_Get_First_Char(face, &glyph); glyph != 0;
       c = FT_Get_Next_Char(face, c, &glyph))
    characters += static_cast<char32_t>(c);
  return characters;
}

/// How far a character moves the pen, and its outline.
std::vector<FT_Pos> shapeOf(FT_Face face, char32_t character) {
  FT_Load_Char(face, character, FT_LOAD_NO_SCALE);
  const FT_GlyphSlot glyph = face->glyph;
  std::vector<FT_Pos> shape{glyph->metrics.horiAdvance};
  for (int i = 0; i < glyph->outline.n_points; ++i)
    shape.insert(shape.end(), {glyph->outline.points[i].x, glyph->outline.points[i].y});
  return shape;
}

struct Rule {
  std::string weight, font, range;
};

/// Takes a text off the front that begins after `before` and ends with `end`. Regular
/// expressions of the standard library recurse for each letter of a font.
std::string take(std::string_view& rest, std::string_view before, char end) {
  EXPECT_EQ(rest.substr(0, before.size()), before);
  rest.remove_prefix(std::min(before.size(), rest.size()));
  const std::size_t length = std::min(rest.find(end), rest.size());
  std::string text(rest.substr(0, length));
  rest.remove_prefix(length);
  return text;
}

std::string decoded(const std::string& base64) {
  base64_decode_ctx context;
  base64_decode_init(&context);
  std::string bytes(BASE64_DECODE_LENGTH(base64.size()), '\0');
  std::size_t size = bytes.size();
  base64_decode_update(&context, &size, reinterpret_cast<std::uint8_t*>(bytes.data()),
                       base64.size(), base64.data());
  bytes.resize(size);
  return bytes;
}

std::vector<Rule> rulesOf(std::string_view css) {
  std::vector<Rule> rules;
  while (!css.empty()) {
    Rule rule;
    rule.weight = take(css, "@font-face{font-family:'Liberation Sans';font-weight:", ';');
    rule.font = decoded(take(css, ";src:url(data:font/woff;base64,", ')'));
    rule.range = take(css, ");unicode-range:", '}');
    EXPECT_EQ(take(css, "}\n", '@'), "");
    rules.push_back(std::move(rule));
  }
  return rules;
}

const Json spec{
    {"description", "說"},
    {"data", Json::array({{{"values", Json::array({{{"g", "x\u0304\u4E00"}}})}}})},
    {"title", {{"text", Json::array({"Aé"})}, {"subtitle", "Bé"}}},
    {"marks",
     {{{"type", "group"},
       {"title", {{"text", "footnote"}, {"fontWeight", "normal"}}},
       {"axes", {{{"title", "d\u21D2"}, {"encode", {{"signal", "\"\\u5e74\\ud842\\udfb7\""}}}}}},
       {"legends", {{{"title", "e\u0301"}}}}}}},
    {"usermeta", {{"title", "題"}}}};

/// Printable ASCII, é and what Vega writes of its own.
std::u32string ofFirstFont() {
  std::u32string all;
  for (char32_t c = U' '; c <= U'~'; ++c)
    all += c;
  for (const char32_t c : {U'\u00E9', U'\u2026', U'\u2212'})
    all += c;
  return all;
}

TEST(FontCss, HoldsTheLettersOfTheTextsAloneInTheFontsThatBitmapsTakeThemFrom) {
  const render::FontCss fonts = render::fontCss(spec, families);
  const std::vector<Rule> rules = rulesOf(fonts.css);
  EXPECT_THAT(fonts.missing, ElementsAre());
  ASSERT_EQ(rules.size(), 5U);

  struct Expected {
    std::size_t font; // in the list of files
    std::string weight;
    std::u32string_view characters;
    std::string range;
  };
  const std::u32string ofFirst = ofFirstFont();
  // The first font has no marks: letters that need them come from the second with them,
  // and from the first where it has both in one.
  const std::vector<Expected> expected{
      {2, "normal", U"\u4E00\u5E74\U00020BB7", "U+4E00,U+5E74,U+20BB7"},
      {1, "normal", U"ex\u0301\u0304\u21D2", "U+65,U+78,U+301,U+304,U+21D2"},
      {0, "normal", ofFirst, "U+20-7E,U+E9,U+2026,U+2212"},
      {1, "bold", U"e\u0301", "U+65,U+301"},
      {0, "bold", U"A\u00E9", "U+41,U+E9"},
  };
  const Reader reader;
  for (std::size_t i = 0; i < rules.size(); ++i) {
    const auto& [font, weight, characters, range] = expected[i];
    EXPECT_EQ(rules[i].weight, weight);
    EXPECT_EQ(rules[i].range, range);
    const Reader::Face face = reader.read(rules[i].font);
    ASSERT_TRUE(face);
    EXPECT_EQ(charactersOf(face.get()), characters) << range;

    const render::FontFiles files = render::fontFiles()[font];
    constexpr FT_Long korean = 1;
    const Reader::Face whole =
        reader.open(weight == "bold" ? files.bold : files.regular, font == 2 ? korean : 0);
    for (const char32_t c : characters)
      EXPECT_EQ(shapeOf(face.get(), c), shapeOf(whole.get(), c)) << range;
    const auto changed = [](const Reader::Face& of) {
      const auto* head = static_cast<TT_Header*>(FT_Get_Sfnt_Table(of.get(), FT_SFNT_HEAD));
      return std::pair(head->Modified[0], head->Modified[1]);
    };
    EXPECT_EQ(changed(face), changed(whole)) << "a time of its own in " << range;
  }
  EXPECT_EQ(render::fontCss(spec, families).css, fonts.css);
}

/// Fonts in a folder of the test's own.
class FontFolder : public testing::Test {
protected:
  FontFolder() { setenv("CHARTXML_FONTS", folder.path().c_str(), 1); }
  ~FontFolder() override { unsetenv("CHARTXML_FONTS"); }

  TestFolder folder;
};

TEST_F(FontFolder, IsWhereFontsAreLookedForAndTheirLackIsNotedOnThePage) {
  const render::FontFiles liberation = [] {
    unsetenv("CHARTXML_FONTS");
    return render::fontFiles().front();
  }();
  setenv("CHARTXML_FONTS", folder.path().c_str(), 1);
  create_symlink(liberation.regular, folder.path() / liberation.regular.filename());
  folder.write(liberation.bold.filename().native(), "no font");

  const render::FontCss fonts = render::fontCss(spec, families);
  ASSERT_EQ(rulesOf(fonts.css).size(), 1U);
  EXPECT_EQ(rulesOf(fonts.css)[0].range, "U+20-7E,U+E9,U+2026,U+2212");
  EXPECT_THAT(fonts.missing,
              ElementsAre("DejaVuSans.ttf", "NotoSansCJK-Regular.ttc", "LiberationSans-Bold.ttf"));

  const TestFolder chart;
  chart.write("source0.csv", "A,B,Group\n1,2,a\n")
      .write("chart.xml", document(point, "<frame><label id=\"title\">Title</label></frame>"));
  EXPECT_EQ(chart.spec()["usermeta"]["notes"], nlohmann::json::array());
  EXPECT_THAT(
      chart.read("chart.html"),
      HasSubstr("<ul id=\"notes\">\n<li>the font file LiberationSans-Bold.ttf is missing or "
                "damaged: the picture has its letters from other fonts, those of its "
                "reader</li>\n</ul>"));
}

} // namespace
