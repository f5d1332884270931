#include "page/ChartPage.h"

#include <fmt/format.h>

#include "page/Html.h"

namespace render {
namespace {

constexpr std::string_view policy =
    "default-src 'none'; script-src 'self'; style-src 'unsafe-inline'; "
    "img-src 'self' data: blob:; font-src data:";

std::string header(const Manifest& manifest, std::string_view title, const Words& words) {
  std::string html =
      fmt::format("<body>\n<nav><a href=\"../index.html\">{}</a></nav>\n<main>\n<h1>{}</h1>\n",
                  escapeHtml(words("All charts")), escapeHtml(title));
  if (title != manifest.name)
    html += fmt::format("<p id=\"name\" class=\"soft\">{}</p>\n", escapeHtml(manifest.name));
  if (!manifest.splitHeader.empty())
    html += fmt::format("<p class=\"soft\">{}</p>\n", escapeHtml(manifest.splitHeader));
  return html;
}

/// The notes of the chart, and of the fonts that are missing where the page is written.
Json notesOf(const Json& spec, const FontCss& fonts) {
  Json notes = spec["usermeta"]["notes"];
  for (const std::string& file : fonts.missing)
    notes.push_back(fmt::format("the font file {} is missing or damaged: the picture has its "
                                "letters from other fonts, those of its reader",
                                file));
  return notes;
}

std::string noteList(const Json& notes, const Words& words) {
  if (notes.empty()) return {};
  std::string html = fmt::format("<h2>{}</h2>\n<p class=\"soft\">{}</p>\n<ul id=\"notes\">\n",
                                 escapeHtml(words("Notes")), escapeHtml(words("About notes")));
  for (const Json& note : notes)
    html += fmt::format("<li>{}</li>\n", escapeHtml(note.get_ref<const std::string&>()));
  return html + "</ul>\n";
}

/// Its content goes into pictures that are saved too.
std::string fontStyle(const FontCss& fonts) {
  return fmt::format("<style id=\"fonts\">{}</style>\n", fonts.css);
}

} // namespace

std::string chartPage(const Manifest& manifest, const Json& spec, const FontCss& fonts,
                      const Words& words) {
  constexpr std::string_view script = "../runtime/chartxml-page.js";
  const std::string json = spec.dump(-1, ' ', false, Json::error_handler_t::replace);
  const auto& title = spec["usermeta"]["title"].get_ref<const std::string&>();
  const auto word = [&words](std::string_view key) { return escapeHtml(words(key)); };
  return pageHead(manifest.language, title, policy, fontStyle(fonts)) +
         header(manifest, title, words) +
         fmt::format(
             R"(<figure>
<div class="plot"><div id="chart" role="img" aria-label="{title}"></div></div>
<img id="still" src="chart.svg" alt="" loading="lazy">
<p id="trouble" class="later bad">{trouble} {alone}</p>
<p id="live" role="status"></p>
<figcaption>{description}</figcaption>
</figure>
<div id="filters"></div>
<p id="actions"></p>
<p id="keys" class="soft" hidden>{keys} <span id="zoom-keys" hidden>{zoomKeys}</span></p>
<h2>{shows}</h2>
<p id="about">{about}</p>
{notes}<details id="data">
<summary>{data}</summary>
<div class="table" tabindex="0" role="region" aria-label="{data}"></div>
</details>
</main>
<script type="application/json" id="words">{words}</script>
<script type="application/json" id="spec">{spec}</script>
<script id="runtime" src="{script}"></script>
</body>
</html>
)",
             fmt::arg("title", escapeHtml(title)),
             fmt::arg("trouble", escapeHtml(words("No script^1", {script}))),
             fmt::arg("alone", escapeHtml(words("Send alone^1", {words("Save the page")}))),
             fmt::arg("description", escapeHtml(manifest.description)),
             fmt::arg("keys", word("Keys")), fmt::arg("zoomKeys", word("Zoom keys")),
             fmt::arg("shows", word("What it shows")),
             fmt::arg("about", escapeHtml(spec["description"].get_ref<const std::string&>())),
             fmt::arg("notes", noteList(notesOf(spec, fonts), words)),
             fmt::arg("data", word("Data")), fmt::arg("words", escapeScript(words.json().dump())),
             fmt::arg("spec", escapeScript(json)), fmt::arg("script", script));
}

std::string refusedPage(const Manifest& manifest, std::string_view reason) {
  const Words words(manifest.language);
  return pageHead(manifest.language, manifest.name, policy) +
         header(manifest, manifest.name, words) +
         fmt::format("<p class=\"bad\">{}</p>\n</main>\n</body>\n</html>\n",
                     escapeHtml(words("Refused^1", {reason})));
}

} // namespace render
