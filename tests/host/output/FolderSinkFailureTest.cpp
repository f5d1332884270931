#include <csignal>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fmt/format.h>
#include <host/OutputText.h>

#include "OutputTest.h"
#include "output/FileWriter.h"

namespace {

using Names = std::vector<std::string>;
using Process = pid_t;

/// Runs the action in a process of its own, which succeeds when it gives true.
template <class Action> Process start(Action action) {
  const pid_t child = fork();
  if (child == 0) _exit(action() ? 0 : 1);
  return child;
}

bool succeeded(Process process) {
  int status = -1;
  waitpid(process, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(FileWriter, says_when_the_disk_is_full) {
  const auto write = [](std::size_t bytes) {
    host::FileWriter file("/dev/full");
    file.write(std::string(bytes, 'x'));
    file.finish();
  };
  for (const std::size_t bytes : {1U, 1000000U})
    EXPECT_EQ(refusalOf([&] { write(bytes); }), "can't write /dev/full: No space left on device");
}

class FolderSinkFailure : public OutputTest {};

TEST_F(FolderSinkFailure, refuses_an_output_folder_that_is_a_file) {
  host::setOutputFolder(scratch.write("file", "mine"));
  const std::string reason = "can't make the folder " + (scratch.path() / "file").native();
  EXPECT_EQ(refusalOf([&] { send("a"); }), reason + ": Not a directory");
  SkError(SkString("lost", 1), SkErrorShow(2), SkErrorLevel(3));
  EXPECT_EQ(reports,
            Names{"the output's error list can't take \"lost\": " + reason + ": Not a directory"});
  EXPECT_EQ(read(scratch.path() / "file"), "mine");
}

TEST_F(FolderSinkFailure, refuses_a_chart_whose_output_folder_vanishes) {
  host::PageWriter pages;
  pages.writeChart = [&](const std::filesystem::path&) { std::filesystem::remove_all(output); };
  EXPECT_THAT(refusalOf([&] { send("a", pages); }),
              testing::MatchesRegex("can't read " + output.native() +
                                    "/.tmp-[0-9]+-[0-9]+: No such file or directory"));
  EXPECT_FALSE(exists(output));
}

TEST_F(FolderSinkFailure, leaves_nothing_of_a_chart_that_finds_no_room) {
  VarDataProcessor columns;
  VarDataProcessor::_varinfo x;
  columns.AddDataSource("source0", 0);
  columns.AddVariable("source0", "V1", x);
  for (std::size_t row = 0; row < 100000; ++row)
    columns.SetVariableValue(x, row, 0.1);
  data = &columns;
  EXPECT_TRUE(succeeded(start([&] {
    const rlimit limit{100000, 100000};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
    return refusalOf([&] { send("a"); }).ends_with("/source0.csv: File too large");
  })));
  EXPECT_EQ(names(output), Names{".lock"});
}

TEST_F(FolderSinkFailure, refuses_a_source_that_would_leave_its_folder) {
  VarDataProcessor columns;
  VarDataProcessor::_varinfo x;
  columns.AddDataSource("../up", 0);
  columns.AddVariable("../up", "V1", x);
  data = &columns;
  EXPECT_EQ(refusalOf([&] { send("a"); }), "the data source \"../up\" can't name a file");
  EXPECT_EQ(names(output), Names{".lock"});
}

TEST_F(FolderSinkFailure, keeps_an_error_list_that_it_cannot_read) {
  for (const auto& [bytes, reason] :
       {std::pair{"{\"mine\": 1}\n", ": not a list"},
        std::pair{"[\n\"cut", ":2:4: syntax error while parsing value"}}) {
    std::filesystem::create_directories(output);
    std::ofstream(output / "errors.json") << bytes;
    EXPECT_THAT(refusalOf([] { host::FolderSink({}).noteError("new"); }),
                testing::StartsWith((output / "errors.json").native() + reason));
    EXPECT_EQ(read(output / "errors.json"), bytes);
    EXPECT_EQ(names(output), (Names{".lock", "errors.json"}));
  }
}

TEST_F(FolderSinkFailure, loses_nothing_of_processes_that_share_a_folder) {
  constexpr int charts = 50;
  const auto sendAll = [&](const std::string& name) {
    for (int i = 0; i < charts; ++i)
      send(name);
    host::FolderSink({}).noteError(name);
    return true;
  };
  const Process first = start([&] { return sendAll("a"); });
  const Process second = start([&] { return sendAll("b"); });
  EXPECT_TRUE(succeeded(first) && succeeded(second));

  std::map<std::string, int> chartsOf;
  int number = 0;
  for (const std::string& name : names(output)) {
    if (name == ".lock" || name == "errors.json") continue;
    EXPECT_EQ(name.substr(0, 5), fmt::format("{:04}-", ++number));
    EXPECT_EQ(names(output / name), (Names{"chart.xml", "manifest.json"}));
    ++chartsOf[name.substr(5)];
  }
  EXPECT_EQ(chartsOf, (std::map<std::string, int>{{"a", charts}, {"b", charts}}));
  EXPECT_THAT(read(output / "errors.json"),
              testing::AnyOf("[\n  \"a\",\n  \"b\"\n]\n", "[\n  \"b\",\n  \"a\"\n]\n"));
}

} // namespace
