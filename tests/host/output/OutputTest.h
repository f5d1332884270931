#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <host/ChartSink.h>
#include <host/ErrorLog.h>

#include "../data/ScratchFolder.h"

/// An output folder of its own, a folder sink without pages, and the reports made.
class OutputTest : public testing::Test {
protected:
  OutputTest() {
    host::setOutputFolder(output);
    host::setErrorCallback(
        [this](const host::ErrorReport& report) { reports.push_back(report.message); });
  }
  ~OutputTest() override {
    host::setErrorCallback({});
    host::setOutputFolder({});
  }

  void send(const std::string& name, host::PageWriter pages = {}) {
    const std::string empty, xml = "<graph/>", language = "en";
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
