#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace tools {

/// A Node.js process that runs a script, with pipes to its standard input and from its
/// standard output.
class Node {
public:
  /// Throws std::runtime_error when it cannot be started.
  Node(const std::string& program, const std::string& script);
  ~Node();
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;

  /// Hands over the whole input and takes the lines of the output until it ends.
  void talk(std::string_view input, const std::function<void(std::string_view line)>& take);
  /// Waits for its end: empty when it ended well, else "ended with status 1" or "was ended
  /// by signal 6".
  std::string wait();

  pid_t id() const { return process_; }

private:
  void send(std::string_view bytes) const;

  pid_t process_ = 0;
  int input_ = -1;
  int output_ = -1;
};

} // namespace tools
