#include <cstdlib>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/ChartBase.h>
#include <host/ChartError.h>
#include <host/ErrorLog.h>

namespace {

using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

class ErrorLog : public testing::Test {
protected:
  ~ErrorLog() override {
    host::setErrorCallback({});
    while (host::takeError()) {
    }
  }
};

TEST_F(ErrorLog, WritesOneLineAReport) {
  CaptureStderr();
  host::reportError(host::ErrorReport{"no datasource", "backend/chartxml/src/chart", 17});
  host::reportError(host::ErrorReport{"no place", "", 17});
  host::reportError(host::ErrorReport{"a\nb\r\tc\x01\x7f é", "s", 1});
  EXPECT_EQ(GetCapturedStderr(), "chartxml: no datasource [backend/chartxml/src/chart:17]\n"
                                 "chartxml: no place\n"
                                 "chartxml: a\\nb\\r\\tc\\x01\\x7f é [s:1]\n");
}

TEST_F(ErrorLog, GivesTheLatestThousandReportsOldestFirst) {
  host::setErrorCallback([](const host::ErrorReport&) {});
  for (int i = 0; i < 1002; ++i)
    host::reportError(std::to_string(i));
  EXPECT_EQ(host::takeError()->message, "2");
  for (int i = 3; i < 1001; ++i)
    host::takeError();
  EXPECT_EQ(host::takeError()->message, "1001");
  EXPECT_FALSE(host::takeError());
}

TEST_F(ErrorLog, ReportFromWithinTheCallbackGoesToStandardError) {
  int calls = 0;
  host::setErrorCallback([&](const host::ErrorReport&) {
    ++calls;
    host::setErrorCallback([&](const host::ErrorReport&) { calls += 10; });
    host::reportError(host::ErrorReport{"inner", "", 0});
  });
  CaptureStderr();
  host::reportError("outer");
  EXPECT_EQ(GetCapturedStderr(), "chartxml: inner\n");
  EXPECT_EQ(calls, 1);
  host::reportError("next");
  EXPECT_EQ(calls, 11);
}

TEST_F(ErrorLog, CallbackMayHandControlBackToTheCaller) {
  host::setErrorCallback([](const host::ErrorReport&) { throw KorvaGoToCaller(); });
  EXPECT_THROW(host::reportError("first"), KorvaGoToCaller);
  EXPECT_THROW(host::reportError("second"), KorvaGoToCaller);
  EXPECT_EQ(host::takeError()->message, "first");
}

TEST_F(ErrorLog, ReportThatTheCallbackFailsToTakeGoesToStandardError) {
  const std::pair<host::ErrorCallback, const char*> cases[] = {
      {[](const host::ErrorReport&) { throw std::runtime_error("no\nroom"); }, "no\\nroom"},
      {[](const host::ErrorReport&) { throw 7; }, "unknown exception"}};
  for (const auto& [callback, reason] : cases) {
    host::setErrorCallback(callback);
    CaptureStderr();
    host::reportError(host::ErrorReport{"no datasource", "s", 17});
    EXPECT_EQ(GetCapturedStderr(), std::string("chartxml: no datasource [s:17]\n"
                                               "chartxml: the error callback failed - ") +
                                       reason + "\n");
    EXPECT_EQ(host::takeError()->message, "no datasource");
  }
}

TEST_F(ErrorLog, TakesReportsWithoutAHandler) {
  CaptureStderr();
  ChartErrorHandler* handler = nullptr;
  handler->error(ChartException("no datasource", "backend/chartxml/src/chart", 5));
  auto* document = ChartBase::createDocument(ChartBase::_utf8);
  try {
    document->createElement(u"1 is no name");
    FAIL() << "the name was taken";
  } catch (const xercesc::DOMException& exception) {
    handler->error(exception);
  }
  ChartBase::releaseDocument(document);
  EXPECT_EQ(GetCapturedStderr(), "chartxml: no datasource [backend/chartxml/src/chart:5]\n"
                                 "chartxml: DOM exception 5: invalid or illegal XML character\n");
}

// The variable is read once a process, so that a process of its own looks.
TEST(TraceDeathTest, WritesLinesWhenSwitchedOn) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto trace = [] {
    ChartBase::printDebugInfo("CreateChart");
    std::exit(0);
  };
  EXPECT_EXIT(trace(), testing::ExitedWithCode(0), "^$");
  setenv("CHARTXML_TRACE", "1", 1);
  EXPECT_EXIT(trace(), testing::ExitedWithCode(0), "^chartxml: trace: CreateChart\n$");
  unsetenv("CHARTXML_TRACE");
}

} // namespace
