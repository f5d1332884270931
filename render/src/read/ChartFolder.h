#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "read/Document.h"
#include "read/Table.h"

namespace render {

/// The signs of numbers in texts that people read.
struct NumberSigns {
  std::string decimal = ".";
  std::string grouping = ",";
};

/// An icicle plot: which way its bars hang, and how many there are.
struct Icicle {
  bool lies = false; ///< the cases stand below each other, not side by side
  std::size_t bars = 0;
};

/// What a chart's manifest says that its document does not.
struct Manifest {
  std::string name;
  std::string description{};
  std::string splitHeader{};
  std::string language = "en";
  std::string chartTemplate{}; ///< names the theme that it is drawn in
  std::optional<Icicle> icicle{};
  NumberSigns signs{}; ///< those of the language, unless the manifest has its own
  std::map<std::string, std::size_t, std::less<>> rowsOfFile{}; ///< of each source's CSV file

  /// Reads manifest.json of a chart folder; a folder without one has a manifest
  /// that names the folder. Throws RenderError.
  static Manifest read(const std::filesystem::path& chartFolder);
};

/// Whether a variable has a column of its own in its source: it is neither composed nor
/// constant nor counted while the chart is drawn.
bool hasOwnColumn(const Node& variable);

/// What a source's CSV file is called.
std::string csvNameOf(std::string_view source);

/// A chart as its folder holds it.
struct ChartFolder {
  Manifest manifest;
  Document document;
  std::map<std::string, Table, std::less<>> tables; ///< by source id
  std::filesystem::path path;

  /// Throws RenderError for a file that is missing or malformed.
  static ChartFolder read(const std::filesystem::path& folder);
};

} // namespace render
