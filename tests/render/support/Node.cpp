#include "render/support/Node.h"

#include <cstdio>
#include <memory>
#include <string_view>

#include <fmt/format.h>

namespace {

std::string quoted(const std::string& argument) {
  std::string text(1, '\'');
  for (const char c : argument)
    text += c == '\'' ? std::string_view("'\\''") : std::string_view(&c, 1);
  text += '\'';
  return text;
}

} // namespace

nlohmann::json scriptOutput(const std::string& script, const std::vector<std::string>& arguments) {
  std::string command = quoted(NODE);
  command.append(" ").append(quoted(fmt::format("{}/render/support/{}", TESTS, script)));
  for (const std::string& argument : arguments)
    command.append(" ").append(quoted(argument));
  const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose);
  return nlohmann::json::parse(output.get());
}
