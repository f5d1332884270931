#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "translate/Translator.h"

/// The scales by which groups are told apart, one set a grouping variable.
namespace render {

/// "color_variable5" and its like: the scale of that purpose of a variable.
std::string scaleName(std::string_view purpose, std::string_view id);

/// An ordinal scale from the keys of categories to a range.
Json categoryScale(const std::string& name, const std::vector<Category>& categories, Json range);

/// A range of the texts of categories, which `lay` turns into what Vega draws: a text
/// or lines. Texts that Vega computes come in a signal.
Json labelRange(const std::vector<Category>& categories,
                const std::function<Json(const std::string&)>& lay = {});

/// Adds the scale "label" of a categorical variable, unless it is there.
void addLabelScale(const Variable& variable, Parts& parts);

/// Adds the scales "color", "symbol" and "dash" of a grouping variable, unless
/// they are there.
void addGroupScales(const Variable& group, Parts& parts);

/// Whether colored points show these groups; lines need no dashes then.
bool hasPoints(const Variable& group, const Chart& chart);

} // namespace render
