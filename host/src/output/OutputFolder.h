#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "output/Descriptor.h"

/// The folder that processes share: turns, drafts and numbers.
namespace host {

/// This process's turn in an output folder: waits for the others' to end. Throws
/// ChartException.
class OutputTurn {
public:
  explicit OutputTurn(const std::filesystem::path& outputFolder);

private:
  Descriptor lock_;
};

/// A hidden folder inside of an output folder, for what is being written aside.
/// It is removed at the end unless it was published.
class Draft {
public:
  /// Makes the output folder when it is missing, waits for a turn in it, removes
  /// what dead processes left there and makes the draft. Throws ChartException.
  explicit Draft(std::filesystem::path outputFolder);
  ~Draft();
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;

  const std::filesystem::path& path() const { return path_; }

  /// Turns the draft into the next chart folder of that name and returns the
  /// folder's name; the caller has the turn. Throws ChartException.
  std::string publish(std::string_view name, const OutputTurn& turn);

private:
  std::filesystem::path outputFolder_;
  std::filesystem::path path_;
  Descriptor sign_; ///< holds a lock on the folder: its process is alive
};

/// A chart's name as part of a folder's: lower-case ASCII letters and digits with
/// single '-' between them, at most 60 bytes, "chart" when nothing is left.
std::string folderNameOf(std::string_view chartName);

} // namespace host
