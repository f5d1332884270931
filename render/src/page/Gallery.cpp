#include "page/Gallery.h"

#include <algorithm>
#include <array>
#include <vector>

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <render/Pages.h>

#include "page/Files.h"
#include "page/Html.h"
#include "read/ChartFolder.h"

namespace render {
namespace {

constexpr std::string_view policy = "default-src 'none'; style-src 'unsafe-inline'; img-src 'self'";

std::vector<std::filesystem::path> chartFolders(const std::filesystem::path& outputFolder) {
  std::vector<std::filesystem::path> folders;
  for (const auto& entry : std::filesystem::directory_iterator(outputFolder))
    if (!entry.path().filename().native().starts_with('.') && exists(entry.path() / "chart.xml"))
      folders.push_back(entry.path());
  std::ranges::sort(folders);
  return folders;
}

std::string picture(const std::filesystem::path& folder, const std::string& alternative) {
  static constexpr std::array<const char*, 2> names{"chart.svg", "chart.png"};
  for (const char* name : names)
    if (exists(folder / name))
      return fmt::format("<img src=\"{}\" alt=\"{}\" loading=\"lazy\">",
                         escapeUrl((folder.filename() / name).native()), escapeHtml(alternative));
  return {};
}

std::string card(const std::filesystem::path& folder) {
  const std::string number = folder.filename().native();
  Manifest manifest;
  std::string trouble;
  try {
    manifest = Manifest::read(folder);
  } catch (const RenderError& e) {
    manifest.name = number;
    trouble = fmt::format("<p class=\"bad\">{}</p>", escapeHtml(e.what()));
  }
  const std::string& alternative =
      manifest.description.empty() ? manifest.name : manifest.description;
  const std::string page = escapeUrl((folder.filename() / "chart.html").native());
  return fmt::format("<li lang=\"{6}\"><a href=\"{0}\">{1}</a>\n<h2><a href=\"{0}\">{2}</a></h2>\n"
                     "<p>{3}</p>\n<p class=\"soft\">{4}</p>{5}</li>\n",
                     page, picture(folder, alternative), escapeHtml(manifest.name),
                     escapeHtml(manifest.description), escapeHtml(number), trouble,
                     escapeHtml(manifest.language));
}

/// The entries of errors.json: texts, or objects that hold one as "message".
std::string errorList(const std::filesystem::path& outputFolder) {
  const std::filesystem::path file = outputFolder / "errors.json";
  if (!exists(file)) return {};
  const auto json = nlohmann::json::parse(readFile(file), nullptr, false);
  if (!json.is_array()) return "<p class=\"bad\">errors.json cannot be read</p>\n";
  std::string items;
  for (const auto& entry : json) {
    const auto& text = entry.is_object() ? entry.value("message", nlohmann::json()) : entry;
    items += fmt::format("<li>{}</li>\n",
                         escapeHtml(text.is_string() ? text.get<std::string>() : entry.dump()));
  }
  return items.empty() ? "" : "<h2>Errors</h2>\n<ul>\n" + items + "</ul>\n";
}

} // namespace

std::string galleryPage(const std::filesystem::path& outputFolder) {
  std::string cards;
  for (const std::filesystem::path& folder : chartFolders(outputFolder))
    cards += card(folder);
  if (cards.empty()) cards = "<li><p>There are no charts yet.</p></li>\n";
  return pageHead("en", "Charts", policy) +
         fmt::format("<body>\n<main>\n<h1>Charts</h1>\n<ul class=\"cards\">\n{}</ul>\n{}</main>\n"
                     "</body>\n</html>\n",
                     cards, errorList(outputFolder));
}

} // namespace render
