#include "data/PackageDescriptor.h"

#include <algorithm>

#include <fmt/format.h>
#include <host/DataSet.h>

#include "data/JsonFile.h"
#include "data/Refusal.h"
#include "data/TableSchema.h"

namespace host {

using nlohmann::json;

namespace {

/// The standard's defaults, which is what the CSV reader reads; null stands for
/// absent.
void checkDialect(const json& resource) {
  static const json supported = {
      {"delimiter", ","},        {"quoteChar", "\""},     {"doubleQuote", true},
      {"header", true},          {"headerRows", {1}},     {"skipInitialSpace", false},
      {"commentChar", nullptr},  {"escapeChar", nullptr}, {"commentRows", nullptr},
      {"nullSequence", nullptr},
  };
  const json* dialect = member(resource, "dialect");
  const json* nested = dialect ? member(*dialect, "csv") : nullptr;
  if (nested) dialect = nested;
  if (!dialect) return;
  if (!dialect->is_object()) throw Refusal("\"dialect\" must be an object");
  for (const auto& [key, value] : dialect->items()) {
    const json* usual = member(supported, key.c_str());
    if (usual && value != *usual)
      throw Refusal(
          fmt::format("\"dialect\": \"{}\" of {} is not supported", key, shownJson(value)));
  }
}

std::filesystem::path pathOf(const json& resource) {
  std::filesystem::path path = textMember(resource, "path", "");
  if (path.empty()) throw Refusal("the first resource has no \"path\"");
  if (path.is_absolute() || std::ranges::find(path, "..") != path.end())
    throw Refusal(fmt::format("\"path\" {} leads out of the package", shown(path.native())));
  return path;
}

PackagedTable tableOf(const json& package) {
  const json& resources = listMember(package, "resources");
  if (resources.empty()) throw Refusal("\"resources\" names no resource");
  const json& resource = resources.front();
  const std::string encoding = textMember(resource, "encoding", "utf-8");
  if (encoding != "utf-8" && encoding != "UTF-8")
    throw Refusal(fmt::format("the encoding {} is not supported, only utf-8", shown(encoding)));
  checkDialect(resource);

  PackagedTable table{.csv = pathOf(resource)};
  if (const json* schema = member(resource, "schema")) table.fields = fieldsOf(*schema);
  return table;
}

} // namespace

PackagedTable readDescriptor(const std::filesystem::path& file) {
  const json package = readJson(file);
  try {
    PackagedTable table = tableOf(package);
    table.csv = file.parent_path() / table.csv;
    return table;
  } catch (const Refusal& refusal) {
    throw DataError(fmt::format("{}: {}", file.native(), refusal.what()));
  }
}

} // namespace host
