#include "Node.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <stdexcept>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <fmt/format.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tools {
namespace {

void check(int error, std::string_view what) {
  if (error != 0) throw std::runtime_error(fmt::format("{}: {}", what, std::strerror(error)));
}

struct Pipe {
  Pipe() { check(pipe2(ends, O_CLOEXEC) == 0 ? 0 : errno, "pipe"); }
  ~Pipe() {
    for (const int end : ends)
      if (end >= 0) close(end);
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  int keep(int which) { return std::exchange(ends[which], -1); }

  int ends[2] = {-1, -1};
};

} // namespace

Node::Node(const std::string& program, const std::string& script) {
  Pipe in;
  Pipe out;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in.ends[0], STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, out.ends[1], STDOUT_FILENO);
  char* const arguments[] = {const_cast<char*>(program.c_str()), const_cast<char*>(script.c_str()),
                             nullptr};
  const int error = posix_spawnp(&process_, program.c_str(), &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  check(error, program);
  input_ = in.keep(1);
  output_ = out.keep(0);
}

Node::~Node() {
  for (const int end : {input_, output_})
    if (end >= 0) close(end);
}

/// A process that ends early is told by its status.
void Node::send(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t written = write(input_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void Node::talk(std::string_view input, const std::function<void(std::string_view line)>& take) {
  std::signal(SIGPIPE, SIG_IGN);
  // Whatever the program reads and writes first, neither waits for the other.
  const std::jthread sender([this, input] {
    send(input);
    close(std::exchange(input_, -1));
  });
  std::string line;
  std::array<char, 4096> buffer;
  while (const ssize_t count = read(output_, buffer.data(), buffer.size())) {
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return;
    for (const char c : std::string_view(buffer.data(), static_cast<std::size_t>(count))) {
      if (c != '\n') {
        line += c;
        continue;
      }
      take(line);
      line.clear();
    }
  }
}

std::string Node::wait() {
  int status = 0;
  while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFSIGNALED(status)) return fmt::format("was ended by signal {}", WTERMSIG(status));
  const int code = WEXITSTATUS(status);
  return code == 0 ? std::string() : fmt::format("ended with status {}", code);
}

} // namespace tools
