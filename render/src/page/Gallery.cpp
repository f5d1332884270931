#include "page/Gallery.h"

#include <array>

#include <fmt/format.h>

#include "page/GalleryList.h"
#include "page/Html.h"
#include "text/Words.h"

namespace render {
namespace {

constexpr std::string_view policy =
    "default-src 'none'; script-src 'self'; style-src 'unsafe-inline'; img-src 'self'";

constexpr std::array<const char*, 11> languages{"en", "de", "fr", "es",    "it",   "pl",
                                                "ru", "ja", "ko", "zh-cn", "zh-tw"};

constexpr std::array<std::string_view, 8> shownWords{
    "Charts", "Search", "Language", "All", "Found^2", "No charts", "Errors", "Source^1"};

Json wordsOfLanguages() {
  Json json = Json::object();
  for (const char* language : languages) {
    const Words words(language);
    for (const std::string_view key : shownWords)
      json[language][std::string(key)] = words(key);
  }
  return json;
}

} // namespace

std::string galleryPage() {
  const Words words("en");
  return pageHead("en", words("Charts"), policy) +
         fmt::format(R"(<body>
<main>
<h1>{0}</h1>
<p class="search"><label for="search">{1}</label> <input id="search" type="search"> <label for="language" hidden>{5}</label> <select id="language" hidden></select> <span id="found" role="status"></span></p>
<noscript><p class="bad">{2}</p></noscript>
<ul class="cards" id="charts"></ul>
<div id="errors"></div>
</main>
<script type="application/json" id="words">{3}</script>
<script src="runtime/chartxml-gallery.js"></script>
<script src="{4}"></script>
</body>
</html>
)",
                     escapeHtml(words("Charts")), escapeHtml(words("Search")),
                     escapeHtml(words("No script^1", {"runtime/chartxml-gallery.js"})),
                     escapeScript(wordsOfLanguages().dump()), galleryListName,
                     escapeHtml(words("Language")));
}

} // namespace render
