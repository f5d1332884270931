#include "../support/BuilderTest.h"
#include "../support/EntryArguments.h"

#include <stdexcept>

#include <chartxml/EntryPoints.h>
#include <host/StringTables.h>

using testing::IsEmpty;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

namespace {

using Action = std::function<void()>;

/// Fails as it is told, else keeps the names of the charts.
struct FailingSink : host::ChartSink {
  FailingSink(Action& sending, Action& noting, std::vector<std::string>& names)
      : onSend(sending), onNote(noting), taken(names) {}

  void send(const host::SentChart& chart) override {
    if (onSend) onSend();
    taken.push_back(chart.name);
  }
  void noteError(const std::string& text) override {
    if (onNote) onNote();
    taken.push_back(text);
  }

  Action& onSend;
  Action& onNote;
  std::vector<std::string>& taken;
};

const Action refuse = [] { throw ChartException("no room", "sink", 1); };
const Action fail = [] { throw std::runtime_error("broken"); };
const Action failOddly = [] { throw 7; };
const Action goBack = [] { throw KorvaGoToCaller(); };

const char* const fatal = "Fatal error while sending chart [ what it shows ]";
const char* const sendError = "Chart XML Send Error";

} // namespace

/// Charts that end, as a procedure ends them, before an output system that fails.
class FailingOutput : public BuilderTest {
protected:
  FailingOutput() { host::setChartSink(std::make_unique<FailingSink>(onSend, onNote, taken)); }

  /// A new chart, ended.
  static std::int64_t end() {
    const int handle = registry().CreateChart();
    registry().SetProcedure(handle, "p");
    registry().SetChartDescription(handle, "what it shows");
    return cx_endchart_(Int(handle));
  }

  Action onSend;
  Action onNote;
  std::vector<std::string> taken;
};

TEST_F(FailingOutput, TellsWhatItWasAndTakesTheNextChart) {
  const std::string lost = "the output's error list can't take \"Chart XML Send Error\": no room";
  struct Case {
    Action send;
    Action note;
    std::vector<std::string> reports;
    std::vector<std::string> listed;
    bool goesBack = false;
  };
  const Case cases[] = {{refuse, {}, {"no room"}, {sendError}},
                        {refuse, refuse, {"no room", lost}, {}},
                        {refuse, fail, {"no room", fatal}, {}},
                        {refuse, failOddly, {"no room", fatal}, {}},
                        {refuse, goBack, {"no room"}, {}, true},
                        {fail, {}, {fatal}, {}},
                        {failOddly, {}, {fatal}, {}},
                        {goBack, {}, {}, {}, true}};
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    const auto& [send, note, reports, listed, goesBack] = cases[i];
    onSend = send;
    onNote = note;
    if (goesBack) {
      EXPECT_THROW(end(), KorvaGoToCaller) << i;
    } else {
      EXPECT_EQ(end(), -1) << i;
    }
    EXPECT_EQ(takeReports(), reports) << i;
    EXPECT_EQ(std::exchange(taken, {}), listed) << i;
    onSend = onNote = nullptr;
    EXPECT_EQ(end(), 0) << i;
    EXPECT_EQ(std::exchange(taken, {}), std::vector<std::string>{"p"}) << i;
    EXPECT_THAT(takeReports(), IsEmpty()) << i;
  }
}

// The program's own error callback fails over each of the reports.
TEST_F(FailingOutput, LosesNoReportThatTheProgramFailsToTake) {
  const std::pair<Action, std::vector<const char*>> cases[] = {
      {refuse, {"no room"}}, {fail, {fatal}}, {failOddly, {fatal}}};
  for (const auto& [send, messages] : cases) {
    for (const auto& [broken, reason] :
         {std::pair{fail, "broken"}, std::pair{failOddly, "unknown exception"}}) {
      host::setErrorCallback([thrown = broken](const host::ErrorReport&) { thrown(); });
      onSend = send;
      CaptureStderr();
      EXPECT_EQ(end(), -1);
      std::vector<testing::Matcher<std::string>> lines;
      for (const char* message : messages) {
        lines.push_back(testing::HasSubstr(std::string("chartxml: ") + message + " ["));
        lines.push_back(testing::HasSubstr(
            std::string("]\nchartxml: the error callback failed - ") + reason + "\n"));
      }
      EXPECT_THAT(GetCapturedStderr(), testing::AllOfArray(lines));
      onSend = nullptr;
      EXPECT_EQ(end(), 0) << reason;
    }
  }
}
