#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/ChartError.h>
#include <host/ChartSink.h>
#include <host/ErrorLog.h>

#include "../data/ScratchFolder.h"

/// The message with which an action is refused.
template <class Action> std::string refusalOf(Action action) {
  try {
    action();
    return "nothing refused";
  } catch (const ChartException& exception) {
    return exception.what();
  }
}

using Findings = std::vector<host::Finding>;

/// An output folder of its own, a folder sink without pages, and the reports made.
class OutputTest : public testing::Test {
protected:
  void SetUp() override {
    host::setOutputFolder(output);
    host::setErrorCallback(
        [this](const host::ErrorReport& report) { reports.push_back(report.message); });
  }
  void TearDown() override {
    host::setChartSink(nullptr);
    host::setErrorCallback({});
    host::setOutputFolder({});
  }

  void send(const std::string& name, host::PageWriter pages = {}) {
    const std::string empty;
    const std::string xml = "<graph/>";
    const std::string language = "en";
    host::FolderSink(std::move(pages))
        .send({name, xml, empty, empty, empty, language, visualization, data});
  }

  /// The names in a folder, hidden ones too, in order.
  static std::vector<std::string> names(const std::filesystem::path& folder) {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
      found.push_back(entry.path().filename().string());
    std::ranges::sort(found);
    return found;
  }

  static std::string read(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "no such file";
  }

  ScratchFolder scratch;
  std::filesystem::path output = scratch.path() / "out";
  ZephVisualization visualization;
  const VarDataProcessor* data = nullptr;
  std::vector<std::string> reports;
};
