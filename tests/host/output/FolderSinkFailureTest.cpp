#include <csignal>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
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
  pages.writeChart = [&](const std::filesystem::path&) {
    std::filesystem::remove_all(output);
    return Findings();
  };
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

// No file may grow beyond a limit: what would is refused, and nothing of it stays.
TEST_F(FolderSinkFailure, leaves_nothing_where_a_text_finds_no_room) {
  const std::string shortText = "<graph/>";
  const std::string longText(20000, 'x');
  const std::string empty;
  struct Case {
    const char* file;
    std::function<void(host::FolderSink&)> write;
  };
  const Case cases[] = {
      {"/chart.xml",
       [&](host::FolderSink& sink) {
         sink.send({empty, longText, empty, empty, empty, empty, visualization, data});
       }},
      {"/manifest.json",
       [&](host::FolderSink& sink) {
         sink.send({empty, shortText, longText, empty, empty, empty, visualization, data});
       }},
      {"/errors.json", [&](host::FolderSink& sink) { sink.noteError(longText); }},
  };
  for (const Case& k : cases) {
    EXPECT_TRUE(succeeded(start([&] {
      const rlimit limit{10000, RLIM_INFINITY};
      std::signal(SIGXFSZ, SIG_IGN);
      setrlimit(RLIMIT_FSIZE, &limit);
      host::FolderSink sink({});
      const std::string refusal = refusalOf([&] { k.write(sink); });
      send("next");
      return refusal.ends_with(std::string(k.file) + ": File too large");
    }))) << k.file;
    EXPECT_EQ(names(output), (Names{".lock", "0001-next"})) << k.file;
    std::filesystem::remove_all(output);
  }
}

TEST_F(FolderSinkFailure, leaves_nothing_of_a_chart_whose_draft_vanishes) {
  host::PageWriter pages;
  pages.writeChart = [](const std::filesystem::path& folder) {
    std::filesystem::remove_all(folder);
    return Findings();
  };
  EXPECT_THAT(refusalOf([&] { send("a", pages); }),
              testing::MatchesRegex("can't read " + output.native() +
                                    "/.tmp-[0-9]+-[0-9]+: No such file or directory"));
  EXPECT_EQ(names(output), Names{".lock"});
}

/// Root may write where nobody may, until it gives that up.
bool heedPermissions() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  const __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3]{};
  return syscall(SYS_capset, &header, none) == 0;
}

// What can't be removed now goes with the next chart.
TEST_F(FolderSinkFailure, publishes_no_chart_into_a_folder_that_becomes_read_only) {
  using std::filesystem::perms;
  host::PageWriter pages;
  pages.writeChart = [&](const std::filesystem::path&) {
    permissions(output, perms::owner_read | perms::owner_exec);
    return Findings();
  };
  EXPECT_TRUE(succeeded(start([&] {
    if (!heedPermissions()) return false;
    const std::string refusal = refusalOf([&] { send("a", pages); });
    const bool isHidden = names(output).size() == 2 && !exists(output / "0001-a");
    const std::string again = refusalOf([&] { send("b"); });
    permissions(output, perms::owner_all);
    send("next");
    return isHidden && again.ends_with(": Permission denied") &&
           refusal == "can't publish " + (output / "0001-a").native() + ": Permission denied";
  })));
  EXPECT_EQ(names(output), (Names{".lock", "0001-next"}));
}

// Whatever is thrown on the way, the chart is there whole or not at all.
TEST_F(FolderSinkFailure, takes_every_exception_of_the_page_writers) {
  const auto goBack = [](const std::filesystem::path&) -> Findings { throw KorvaGoToCaller(); };
  const auto unknown = [](const std::filesystem::path&) -> Findings { throw 7; };
  EXPECT_THROW(send("gone", {goBack, {}}), KorvaGoToCaller);
  EXPECT_EQ(names(output), Names{".lock"});
  EXPECT_THROW(send("there", {{}, goBack}), KorvaGoToCaller);
  EXPECT_EQ(names(output), (Names{".lock", "0001-there"}));
  send("bare", {unknown, unknown});
  EXPECT_EQ(names(output), (Names{".lock", "0001-there", "0002-bare"}));
  for (const char* folder : {"0001-there", "0002-bare"})
    EXPECT_EQ(names(output / folder), (Names{"chart.xml", "manifest.json"}));
  EXPECT_EQ(reports,
            (Names{"the page of " + (output / "0002-bare").native() +
                       " was not written: unknown exception",
                   "the gallery of " + output.native() + " was not written: unknown exception"}));
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
