#include "Completion.h"

#include <algorithm>
#include <vector>

#include <fmt/format.h>

namespace tools {
namespace {

std::vector<const CLI::App*> verbsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App*) { return true; });
}

bool isNamed(const CLI::Option* option) { return !option->get_lnames().empty(); }
bool takesValue(const CLI::Option* option) { return option->get_items_expected_max() > 0; }

std::string nameOf(const CLI::Option* option) { return "--" + option->get_lnames().front(); }

/// Names of options and, of the command itself, of verbs.
std::string wordsOf(const CLI::App& app) {
  std::string words;
  for (const CLI::App* verb : verbsOf(app))
    words += verb->get_name() + " ";
  for (const CLI::Option* option :
       app.get_options([](const CLI::Option* each) { return isNamed(each); }))
    words += nameOf(option) + " ";
  if (!words.empty()) words.pop_back();
  return words;
}

bool takesFolders(const CLI::Option* option) {
  return option->get_type_name().find("DIR") != std::string::npos;
}

std::vector<const CLI::Option*> positionalsOf(const CLI::App& verb) {
  return verb.get_options([](const CLI::Option* each) { return each->get_positional(); });
}

/// compgen's letter for what the verb's arguments are.
char kindOfArguments(const CLI::App& verb) {
  const auto positionals = positionalsOf(verb);
  return !positionals.empty() && takesFolders(positionals.front()) ? 'd' : 'f';
}

/// What may follow an option that takes one of a few words, "TEXT:{one,other}" to CLI11;
/// empty for others.
std::string choicesOf(const CLI::Option* option) {
  const std::string type = option->get_type_name();
  const std::size_t begin = type.find('{');
  if (begin == type.npos) return {};
  std::string choices = type.substr(begin + 1, type.find('}') - begin - 1);
  std::ranges::replace(choices, ',', ' ');
  return choices;
}

/// The names of options that are followed by a file.
std::string valuedOf(const CLI::App& verb) {
  std::string names;
  for (const CLI::Option* option :
       verb.get_options([](const CLI::Option* each) { return isNamed(each) && takesValue(each); }))
    if (choicesOf(option).empty()) names += nameOf(option) + " ";
  return names;
}

/// What follows options that take one of a few words, or the verb, as cases of the shell.
std::string choiceCases(const CLI::App& verb) {
  std::string cases;
  for (const CLI::Option* option : verb.get_options())
    if (const std::string choices = choicesOf(option); !choices.empty())
      cases += fmt::format("  '{} {}') choices='{}' ;;\n", verb.get_name(),
                           isNamed(option) ? nameOf(option) : verb.get_name(), choices);
  return cases;
}

/// A text between single quotes, without the signs that zsh's _arguments reads.
std::string quoted(const std::string& text) {
  std::string safe;
  for (const char c : text) {
    if (c == '\'') {
      safe += "'\\''";
      continue;
    }
    if (std::string_view("[]:\\").find(c) != std::string_view::npos) safe += '\\';
    safe += c;
  }
  return safe;
}

std::string zshArguments(const CLI::App& verb) {
  std::string arguments;
  for (const CLI::Option* option : verb.get_options()) {
    const char* const files = takesFolders(option) ? "_files -/" : "_files";
    const std::string choices = choicesOf(option);
    if (isNamed(option) && !choices.empty())
      arguments += fmt::format(" \\\n      '{}[{}]:word:({})'", nameOf(option),
                               quoted(option->get_description()), choices);
    else if (isNamed(option))
      arguments +=
          fmt::format(" \\\n      '{}[{}]{}'", nameOf(option), quoted(option->get_description()),
                      takesValue(option) ? ":file:_files" : "");
    else if (!choices.empty())
      arguments += fmt::format(" \\\n      ':{}:({})'", quoted(option->get_name()), choices);
    else
      arguments += fmt::format(" \\\n      '*:{}:{}'", quoted(option->get_name()), files);
  }
  return arguments;
}

} // namespace

std::string bashCompletion(const CLI::App& app) {
  std::string cases = fmt::format("  '') words='{}' ;;\n", wordsOf(app));
  std::string choices;
  for (const CLI::App* verb : verbsOf(app)) {
    cases += fmt::format("  {}) words='{}' valued=' {}' kind={} ;;\n", verb->get_name(),
                         wordsOf(*verb), valuedOf(*verb), kindOfArguments(*verb));
    choices += choiceCases(*verb);
  }
  return fmt::format(R"(# Completes {0} in bash; printed by: {0} completion bash
_{0}() {{
  local word=${{COMP_WORDS[COMP_CWORD]}} verb= words= valued= choices= kind=f i
  for ((i = 1; i < COMP_CWORD; i++)); do
    [[ ${{COMP_WORDS[i]}} == -* ]] || {{ verb=${{COMP_WORDS[i]}} && break; }}
  done
  case $verb in
{1}  esac
  case "$verb ${{COMP_WORDS[COMP_CWORD - 1]}}" in
{2}  esac
  if [[ -n $choices ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$word")
  elif [[ -z $verb || $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  else
    [[ $valued == *" ${{COMP_WORDS[COMP_CWORD - 1]}} "* ]] && kind=f
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -$kind -- "$word")
  fi
}}
complete -F _{0} {0}
)",
                     app.get_name(), cases, choices);
}

std::string zshCompletion(const CLI::App& app) {
  std::string verbs;
  std::string cases;
  for (const CLI::App* verb : verbsOf(app)) {
    verbs += fmt::format("    '{}:{}'\n", verb->get_name(), quoted(verb->get_description()));
    cases += fmt::format("  {})\n    _arguments{} ;;\n", verb->get_name(), zshArguments(*verb));
  }
  return fmt::format(R"(#compdef {0}
# Completes {0} in zsh; printed by: {0} completion zsh
_{0}() {{
  local -a verbs=(
{1}  )
  if ((CURRENT == 2)) && [[ $words[2] != -* ]]; then
    _describe verb verbs
    return
  fi
  if ((CURRENT == 2)); then
    _arguments{3}
    return
  fi
  shift words
  ((CURRENT--))
  case $words[1] in
{2}  esac
}}
_{0} "$@"
)",
                     app.get_name(), verbs, cases, zshArguments(app));
}

} // namespace tools
