#include "../support/BuilderTest.h"
#include "../support/EntryArguments.h"

#include <array>
#include <cstdint>
#include <functional>
#include <limits>

#include <fmt/format.h>

#include <chartxml/EntryPoints.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

using Coefficients = std::array<double, 4>;
using Add = std::function<std::int64_t(Int frame, Int style, const Coefficients&, Int dates)>;

using TwoCoefficients = decltype(cx_addyofxlinear_);
using ThreeCoefficients = decltype(cx_addyofxquadratic_);
using FourCoefficients = decltype(cx_addyofxcubic_);

Add with(TwoCoefficients* add) {
  return [add](Int frame, Int style, const Coefficients& b, Int dates) {
    return add(Int(0), frame, style, b.data(), &b[1], dates);
  };
}
Add with(ThreeCoefficients* add) {
  return [add](Int frame, Int style, const Coefficients& b, Int dates) {
    return add(Int(0), frame, style, b.data(), &b[1], &b[2], dates);
  };
}
Add with(FourCoefficients* add) {
  return [add](Int frame, Int style, const Coefficients& b, Int dates) {
    return add(Int(0), frame, style, b.data(), &b[1], &b[2], &b[3], dates);
  };
}

struct Case {
  const char* name;
  Add add;
  bool looksForInfinity;
  const char* plain;
  const char* overDates; ///< with D for the first day
};

// The coefficients are 2, 0.5, -3 and 1e-20.
const Case cases[] = {
    {"Linear", with(cx_addyofxlinear_), true, "0.5 * x + 2", "0.5 * (x - D ) + 2"},
    {"Logarithmic", with(cx_addyofxlogarithmic_), true, "2 + 0.5 * log(x)", "2 + 0.5 * log(x - D)"},
    {"Inverse", with(cx_addyofxinverse_), true, "2 + 0.5 / x", "2 + 0.5 / (x - D )"},
    {"Quadratic", with(cx_addyofxquadratic_), false, "2 + 0.5 * x + -3 * x*x",
     "2 + 0.5 * (x - D ) + -3 * (x - D )*(x - D )"},
    {"Cubic", with(cx_addyofxcubic_), false, "2 + 0.5 * x + -3 * x*x + 1e-20 * x*x*x",
     "2 + 0.5 * (x - D) + -3 * (x - D)*(x - D) + 1e-20 * (x - D)*(x - D)*(x - D )"},
    {"Compound", with(cx_addyofxcompound_), true, "2 * 0.5**x", "2 * 0.5**(x - D )"},
    {"Power", with(cx_addyofxpower_), true, "2 * x**0.5", "2 * (x - D )**0.5"},
    {"S", with(cx_addyofxs_), true, "exp( 2 + 0.5 / x )", "exp( 2 + 0.5 / (x - D ) )"},
    {"Growth", with(cx_addyofxgrowth_), true, "exp( 2 + 0.5 * x )", "exp( 2 + 0.5 * (x - D ) )"},
    {"Exponential", with(cx_addyofxexponential_), true, "2 * exp( 0.5 * x )",
     "2 * exp( 0.5 * (x  - D ) )"},
    {"Logistic", with(cx_addyofxlogistic_), false, "1 / ( -3 + 2 * 0.5**x )",
     "1 / ( -3 + 2 * 0.5**(x - D ) )"}};

std::string withFirstDay(std::string formula) {
  static constexpr std::string_view day = R"(datetodouble("1582-10-14T00:00:00.000"))";
  for (std::size_t at = formula.find('D'); at != std::string::npos; at = formula.find('D', at)) {
    formula.replace(at, 1, day);
    at += day.size();
  }
  return formula;
}

class FitLines : public BuilderTest {
protected:
  static std::string guide(int style, const std::string& name, const std::string& formula) {
    return fmt::format(R"(<guide id="guide_yFunctionOfX_{0}" name="{1}" )"
                       R"(style="guide_yFunctionOfX_{0}default_style" type="function">)"
                       R"(<parameter name="y" value="{2}"/>)"
                       R"(<parameter name="numPoints" value="1000"/></guide>)",
                       style, name, formula);
  }

  int chart = registry().CreateChart();
  Int frame = registry().AddFrame(chart, 0, -1);
  Coefficients coefficients{2, 0.5, -3, 1e-20};
};

} // namespace

TEST_F(FitLines, AreDrawnByTheirFormulas) {
  int style = 0;
  for (const auto& [name, add, looks, plain, overDates] : cases) {
    for (const bool dates : {false, true}) {
      const std::int64_t curve = add(frame, Int(++style), coefficients, Int(dates ? -7 : 0));
      EXPECT_EQ(fragment(chart, static_cast<int>(curve)),
                guide(style, name, dates ? withFirstDay(overDates) : plain));
    }
  }
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(FitLines, OfTwoCoefficientsAreNotDrawnWithAnInfiniteOne) {
  const std::string before = fragment(chart, 0);
  for (const auto& [name, add, looks, plain, overDates] : cases) {
    if (!looks) continue;
    EXPECT_EQ(add(frame, Int(1), {infinity, 1}, Int(0)), -1) << name;
    EXPECT_EQ(add(frame, Int(1), {1, infinity}, Int(1)), -1) << name;
  }
  EXPECT_EQ(fragment(chart, 0), before);
  EXPECT_THAT(takeReports(), IsEmpty());
  const int below = static_cast<int>(cx_addyofxpower_(
      Int(0), frame, Int(1), std::array{-infinity}.data(), coefficients.data(), Int(0)));
  EXPECT_EQ(fragment(chart, below), guide(1, "Power", "-inf * x**2"));
  const Int cubic = cases[4].add(frame, Int(2), {infinity, 1, infinity, 1}, Int(0));
  EXPECT_EQ(fragment(chart, static_cast<int>(cubic.value)),
            guide(2, "Cubic", "inf + 1 * x + inf * x*x + 1 * x*x*x"));
}

// Where no curve can be, those of more coefficients name it all the same.
TEST_F(FitLines, AreRefusedByTheStepThatFails) {
  const std::string before = fragment(chart, 0);
  for (const auto& [name, add, looks, plain, overDates] : cases) {
    EXPECT_EQ(add(Int(99), Int(1), coefficients, Int(0)), -1) << name;
    std::vector<std::string> reports{"frame handle (99) out of range (0-2)"};
    if (!looks) reports.emplace_back("element handle (-1) out of range (0-2)");
    EXPECT_EQ(takeReports(), reports) << name;
    EXPECT_EQ(add(frame, Int(1), {2, -std::numeric_limits<double>::max()}, Int(0)), -1) << name;
    EXPECT_THAT(takeReports(), ElementsAre("parameter handle out of range")) << name;
  }
  EXPECT_EQ(fragment(chart, 0), before);
  cx_killchart_(Int(0));
  for (const auto& line : cases) {
    EXPECT_EQ(line.add(frame, Int(1), coefficients, Int(0)), -1) << line.name;
    EXPECT_THAT(takeReports(), ElementsAre("chart with this handle not found 0")) << line.name;
  }
}
