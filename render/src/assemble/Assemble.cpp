#include "assemble/Assemble.h"

#include <fmt/format.h>

#include "assemble/Describe.h"
#include "text/Expression.h"
#include "text/PlainValue.h"
#include "text/Wrap.h"
#include "translate/Cell.h"
#include "translate/FacetLabels.h"
#include "translate/Filling.h"
#include "translate/Groups.h"
#include "translate/NamedLegend.h"
#include "translate/Theme.h"

namespace render {
namespace {

/// The rows of each data source, with a field for each variable.
Json sources(const std::vector<Excerpt>& excerpts) {
  Json data = Json::array();
  for (const Excerpt& excerpt : excerpts) {
    Json rows = Json::array();
    for (const std::size_t row : excerpt.rows) {
      Json fields = Json::object();
      for (const Variable* variable : excerpt.variables)
        fields[variable->id] = cellOf(*variable, row);
      rows.push_back(std::move(fields));
    }
    data.push_back({{"name", excerpt.source}, {"values", std::move(rows)}});
  }
  return data;
}

void append(Json& list, Json more) {
  for (Json& item : more)
    list.push_back(std::move(item));
}

/// Texts as the lines of one title. Whole lines are left out past the limit,
/// which is more than anybody prints under a chart.
Json lines(const std::vector<std::string>& texts, const theme::Theme& theme, WrapLimits limits) {
  limits.width = theme.plotWidth + theme::textMargin;
  Json all = Json::array();
  for (const std::string& text : texts)
    append(all, wrap(text, limits));
  return all;
}

void addTitles(Json& spec, Json& plot, const Parts& parts, const theme::Theme& theme) {
  if (!parts.title.empty() || !parts.subtitle.empty())
    spec["title"] = {{"text", lines(parts.title, theme,
                                    {.fontSize = theme::titleSize, .lines = 6, .bold = true})}};
  if (!parts.subtitle.empty())
    spec["title"]["subtitle"] =
        lines(parts.subtitle, theme, {.fontSize = theme::subtitleSize, .lines = 8});
  if (!parts.footnotes.empty())
    plot["title"] = {
        {"text", lines(parts.footnotes, theme, {.fontSize = theme::footnoteSize, .lines = 40})},
        {"orient", "bottom"},
        {"fontSize", theme::footnoteSize},
        {"fontWeight", "normal"},
        {"lineHeight", theme::footnoteSize + 5}};
}

Json tableColumn(const Variable& variable) {
  Json column{{"field", variable.id}, {"title", variable.title}};
  for (const Category& category : variable.categories)
    if (category.label != category.key) column["labels"][category.key] = category.label;
  const std::string value = datum(variable.id);
  if (!variable.categorical)
    column["text"] = textOf(variable, value);
  else if (!std::holds_alternative<std::monostate>(variable.format))
    column["text"] = valueText(variable.format, fmt::format("toNumber({})", value));
  if (std::holds_alternative<DateFormat>(variable.format)) column["date"] = true;
  return column;
}

/// The columns of all data sources, for the page's tables. Those of another source than the
/// first name it.
Json tableColumns(const std::vector<Excerpt>& excerpts) {
  Json columns = Json::array();
  for (const Excerpt& excerpt : excerpts)
    for (const Variable* variable : excerpt.variables) {
      columns.push_back(tableColumn(*variable));
      if (&excerpt != &excerpts.front()) columns.back()["source"] = excerpt.source;
    }
  return columns;
}

/// What the page shows beside the picture.
Json pageMeta(const Chart& chart, const Parts& parts, const std::vector<Excerpt>& excerpts,
              const Words& words, const Notes& notes) {
  const Manifest& manifest = chart.folder->manifest;
  Json meta{{"title", parts.title.empty() ? manifest.name : parts.title.front()},
            {"notes", notes.all()},
            {"columns", tableColumns(excerpts)}};
  for (const Excerpt& excerpt : excerpts)
    if (excerpt.isThinned())
      meta["notes"].push_back(
          words("Thinned^2", {roundedText(static_cast<double>(excerpt.rows.size()), manifest.signs),
                              roundedText(static_cast<double>(excerpt.drawable), manifest.signs)}));
  return meta;
}

} // namespace

Json assemble(const Chart& chart, const Layout& layout, Parts parts,
              const std::vector<Excerpt>& excerpts, const Words& words, const Notes& notes) {
  const theme::Theme& theme = theme::of(chart);
  Json meta = pageMeta(chart, parts, excerpts, words, notes);
  if (Json ofTheme = theme::meta(theme, patternsOf(chart)); !ofTheme.empty())
    meta["theme"] = std::move(ofTheme);
  Json plot{{"type", "group"},
            {"encode",
             {{"update", {{"width", {{"signal", "width"}}}, {"height", {{"signal", "height"}}}}}}}};
  Json spec{{"$schema", "https://vega.github.io/schema/vega/v6.json"},
            {"description", describe(chart, parts, words)},
            {"width", jsonNumber(layout.width)},
            {"height", jsonNumber(layout.height)},
            {"padding", 20},
            {"background", {{"signal", "paper"}}},
            {"config", theme::config(chart.folder->manifest, theme)},
            {"signals", theme::signals(theme)}};
  addTitles(spec, plot, parts, theme);

  addNamedLegends(chart, parts);
  Json scales = Json::array();
  if (!chart.facets.isSplit()) append(scales, std::move(parts.positionScales));
  append(scales, std::move(parts.scales));
  plot["scales"] = std::move(scales);
  plot["axes"] = std::move(parts.axes);
  if (const int room = rowLabelRoom(chart); room > 0)
    for (Json& legend : parts.legends)
      legend["offset"] = theme::legendOffset + room;
  plot["legends"] = std::move(parts.legends);
  plot["marks"] = parts.takeMarks();

  spec["data"] = sources(excerpts);
  append(spec["data"], std::move(parts.data));
  spec["marks"] = Json::array({std::move(plot)});
  spec["usermeta"] = std::move(meta);
  return spec;
}

} // namespace render
