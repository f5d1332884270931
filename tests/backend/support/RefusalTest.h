#pragma once

#include <functional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "BuilderTest.h"

/// Calls that a chart refuses: each reports it word for word and changes nothing.
class RefusalTest : public BuilderTest {
protected:
  static constexpr int none = -1;
  static constexpr int far = 999; ///< no node and no string
  static constexpr int word = 17; ///< some string

  struct Case {
    std::function<int()> call;
    std::vector<std::string> messages; ///< none: refused silently
  };

  /// `next` is the handle that no node has yet.
  void expectRefused(Chart& made, int chartHandle, int next, const std::vector<Case>& cases) {
    const std::string before = fragment(chartHandle, 0);
    for (std::size_t i = 0; i < cases.size(); ++i) {
      EXPECT_EQ(cases[i].call(), -1) << "case " << i;
      EXPECT_EQ(takeReports(), cases[i].messages) << "case " << i;
    }
    EXPECT_EQ(fragment(chartHandle, 0), before);
    EXPECT_EQ(made.AddFrame(0, none), next) << "no handle was given out";
  }

  static std::string outOfRange(const char* noun, int next) {
    return fmt::format("{} handle ({}) out of range (0-{})", noun, far, next);
  }
};
