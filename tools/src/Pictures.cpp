#include "Pictures.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <fmt/format.h>
#include <host/StringTables.h>
#include <nlohmann/json.hpp>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tools {
namespace {

std::filesystem::path runtimeFile(const char* name) {
  return std::filesystem::path(host::shareFolder()) / "runtime" / name;
}

void check(int error, std::string_view what) {
  if (error != 0) throw std::runtime_error(fmt::format("{}: {}", what, std::strerror(error)));
}

/// A running program and the pipe to its standard input.
class Child {
public:
  Child(const std::string& program, const std::string& script) {
    int ends[2];
    check(pipe2(ends, O_CLOEXEC) == 0 ? 0 : errno, "pipe");
    input_ = ends[1];
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[0], STDIN_FILENO);
    char* const arguments[] = {const_cast<char*>(program.c_str()),
                               const_cast<char*>(script.c_str()), nullptr};
    const int error =
        posix_spawnp(&process_, program.c_str(), &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[0]);
    if (error == 0) return;
    close(input_);
    check(error, program);
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  /// Hands over the whole input. A child that ends early is told by its status.
  void send(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = write(input_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) break;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    close(input_);
  }

  /// Its exit status, or -1 when it was ended by a signal.
  int wait() const {
    int status = 0;
    while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

private:
  pid_t process_ = 0;
  int input_ = -1;
};

/// The Node.js that came with the picture packages, else the one on the path.
std::string nodeProgram(const PictureOptions& options) {
  if (!options.node.empty()) return options.node;
  const std::filesystem::path beside = runtimeFile("node");
  return exists(beside) ? beside.native() : "node";
}

} // namespace

bool drawPictures(const std::vector<std::filesystem::path>& folders,
                  const PictureOptions& options) {
  if (folders.empty()) return true;
  const std::filesystem::path script = runtimeFile("chartxml-pictures.mjs");
  if (!exists(script))
    throw std::runtime_error(fmt::format("pictures need {}, which is not there: it is built when "
                                         "the packages of package.json are installed (npm ci)",
                                         script.native()));
  nlohmann::json request{{"svg", options.svg}, {"png", options.png}, {"pdf", options.pdf}};
  for (const std::filesystem::path& folder : folders)
    request["folders"].push_back(folder.native());

  std::signal(SIGPIPE, SIG_IGN);
  Child child(nodeProgram(options), script.native());
  child.send(request.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
  return child.wait() == 0;
}

} // namespace tools
