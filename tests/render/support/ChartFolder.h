#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

/// A chart folder of its own for each test, removed at the end.
class TestFolder {
public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  const TestFolder& write(std::string_view name, std::string_view text) const;
  std::string read(std::string_view name) const;

  /// Draws the folder's chart.
  nlohmann::json spec() const;

private:
  std::filesystem::path path_;
};

/// A chart document with source0, the variables v1 (A, continuous), v2 (B,
/// continuous) and v3 (Group, categorical, "a" labelled Ä) and a data frame of
/// the given content, followed by the rest.
std::string document(std::string_view plot, std::string_view rest = "");

constexpr std::string_view smallTable = "A,B,Group\n"
                                        "0,10,b\n"
                                        "5,20,a\n"
                                        "10,,a\n";

constexpr std::string_view point =
    R"(<element type="point" id="points"><x variable="v1"/><y variable="v2"/></element>)";
