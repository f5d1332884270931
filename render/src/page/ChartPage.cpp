#include "page/ChartPage.h"

#include <fmt/format.h>

#include "page/Html.h"

namespace render {
namespace {

constexpr std::string_view policy =
    "default-src 'none'; script-src 'self'; style-src 'unsafe-inline'; img-src data: blob:";

std::string header(const Manifest& manifest) {
  std::string html = fmt::format("<body>\n<nav><a href=\"../index.html\">All charts</a></nav>\n"
                                 "<main>\n<h1>{}</h1>\n",
                                 escapeHtml(manifest.name));
  if (!manifest.splitHeader.empty())
    html += fmt::format("<p class=\"soft\">{}</p>\n", escapeHtml(manifest.splitHeader));
  return html;
}

std::string noteList(const Json& notes) {
  if (notes.empty()) return {};
  std::string html = "<h2>Notes</h2>\n<ul id=\"notes\">\n";
  for (const Json& note : notes)
    html += fmt::format("<li>{}</li>\n", escapeHtml(note.get_ref<const std::string&>()));
  return html + "</ul>\n";
}

} // namespace

std::string chartPage(const Manifest& manifest, const Json& spec) {
  const std::string json = spec.dump(-1, ' ', false, Json::error_handler_t::replace);
  return pageHead(manifest.language, manifest.name, policy) + header(manifest) +
         fmt::format(R"(<figure>
<div id="chart" role="img" aria-label="{}"></div>
<p id="trouble" class="later bad">The picture is not drawn: the script ../runtime/chartxml-page.js is missing beside this page, or scripts are switched off.</p>
<figcaption>{}</figcaption>
</figure>
<p id="actions"></p>
{}<details id="data">
<summary>Data</summary>
<div class="table"></div>
</details>
</main>
<script type="application/json" id="spec">{}</script>
<script src="../runtime/chartxml-page.js"></script>
</body>
</html>
)",
                     escapeHtml(spec["description"].get_ref<const std::string&>()),
                     escapeHtml(manifest.description), noteList(spec["usermeta"]["notes"]),
                     escapeScript(json));
}

std::string refusedPage(const Manifest& manifest, std::string_view reason) {
  return pageHead(manifest.language, manifest.name, policy) + header(manifest) +
         fmt::format("<p class=\"bad\">This chart cannot be drawn: {}</p>\n</main>\n</body>\n"
                     "</html>\n",
                     escapeHtml(reason));
}

} // namespace render
