#pragma once

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "render/support/ChartFolder.h"

/// What the command printed, on both streams, and how it ended.
struct Outcome {
  int status;
  std::string text;

  bool operator==(const Outcome&) const = default;
};

inline void PrintTo(const Outcome& run, std::ostream* out) {
  *out << run.status << "\n" << run.text;
}

/// An output folder charts/ with the chart 0001-small, sent by the library, and the
/// command run beside it.
class CommandTest : public testing::Test {
protected:
  CommandTest();

  /// Runs a shell command that finds chartxml on its path.
  Outcome shell(const std::string& line) const;
  Outcome chartxml(const std::string& arguments) const { return shell("chartxml " + arguments); }

  /// The bytes of all files in the chart folder by name.
  std::map<std::string, std::string> files() const;

  const TestFolder scratch;
  const std::filesystem::path chart = scratch.path() / "charts/0001-small";
};
