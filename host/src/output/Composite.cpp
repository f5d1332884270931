#include <host/OutputText.h>

#include <source_location>

#include <fmt/format.h>
#include <host/ChartError.h>

#include "output/Pattern.h"

struct OmComposite::State {
  enum class Phase { open, inRepeatList, ended, substituted };

  Phase phase = Phase::open;
  host::Wording pattern;
  host::PatternParameters parameters;
  host::Wording text; ///< once substituted

  void need(Phase needed, const char* operation,
            std::source_location where = std::source_location::current()) const {
    if (phase != needed) refuse(operation, where);
  }

  [[noreturn]] void refuse(const char* operation,
                           std::source_location where = std::source_location::current()) const {
    constexpr const char* names[] = {"is open", "has an open repeat list", "has ended",
                                     "is substituted"};
    throw ChartException(
        fmt::format("can't {} a composite that {}", operation, names[static_cast<int>(phase)]),
        where.file_name(), where.line());
  }

  std::string shown(std::string host::Wording::* wording) const {
    if (phase == Phase::substituted) return text.*wording;
    return host::assemble(pattern.*wording, parameters, wording).value_or("");
  }

  std::string assembled(std::string host::Wording::* wording,
                        std::source_location where = std::source_location::current()) const {
    auto made = host::assemble(pattern.*wording, parameters, wording);
    if (made) return *std::move(made);
    throw ChartException(
        fmt::format("can't substitute a composite that comes to more than {} bytes",
                    host::mostAssembled),
        where.file_name(), where.line());
  }
};

namespace {

host::Wording wordingOf(const OmCellText& cell) {
  host::Wording wording{cell.Text(), cell.EnglishText()};
  if (wording.english.empty()) wording.english = wording.display;
  return wording;
}

} // namespace

OmComposite::OmComposite(const OmStringCell& pattern, void* /*region*/, bool)
    : state_(std::make_unique<State>()) {
  state_->pattern = wordingOf(pattern);
}

OmComposite::~OmComposite() = default;

void OmComposite::Add(const OmCellText& parameter) {
  host::PatternParameters& parameters = state_->parameters;
  switch (state_->phase) {
  case State::Phase::open:
    return parameters.plain.push_back(wordingOf(parameter));
  case State::Phase::inRepeatList:
    return parameters.lists.back().push_back(wordingOf(parameter));
  default:
    state_->refuse("add a parameter to");
  }
}

void OmComposite::BeginRepeatList() {
  state_->need(State::Phase::open, "begin a repeat list in");
  state_->parameters.lists.emplace_back();
  state_->phase = State::Phase::inRepeatList;
}

void OmComposite::EndRepeatList() {
  state_->need(State::Phase::inRepeatList, "end a repeat list in");
  state_->phase = State::Phase::open;
}

void OmComposite::End() {
  state_->need(State::Phase::open, "end");
  state_->phase = State::Phase::ended;
}

void OmComposite::Substitute(const void* /*parseTree*/, bool) {
  state_->need(State::Phase::ended, "substitute");
  state_->phase = State::Phase::open; // and stays so when there is no text
  state_->text = {state_->assembled(&host::Wording::display),
                  state_->assembled(&host::Wording::english)};
  state_->phase = State::Phase::substituted;
  state_->parameters = {};
}

std::string OmComposite::Text() const { return state_->shown(&host::Wording::display); }

std::string OmComposite::EnglishText() const { return state_->shown(&host::Wording::english); }
