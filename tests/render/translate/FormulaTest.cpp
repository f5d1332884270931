#include <gtest/gtest.h>

#include "translate/Formula.h"

namespace {

using render::translateFormula;

struct Translation {
  std::string formula;
  std::string expression;
};

class FormulaTest : public testing::TestWithParam<Translation> {};

TEST_P(FormulaTest, BecomesAnExpressionOfTheSameValue) {
  EXPECT_EQ(translateFormula(GetParam().formula, "X"), GetParam().expression);
}

const std::string origin = R"(datetodouble("1582-10-14T00:00:00.000"))";

INSTANTIATE_TEST_SUITE_P(
    Models, FormulaTest,
    testing::Values(Translation{"49.68 * x + -5780.83", "((49.68 * X) + (-5780.83))"},
                    Translation{"1 + 2 * log(x)", "(1 + (2 * log(X)))"},
                    Translation{"1 + 2 / x", "(1 + (2 / X))"},
                    Translation{"1 + 2 * x + 3 * x*x", "((1 + (2 * X)) + ((3 * X) * X))"},
                    Translation{"1.5 * 2**x", "(1.5 * pow(2, X))"},
                    Translation{"exp( 1 + 2 / x )", "exp((1 + (2 / X)))"},
                    Translation{"1 / ( 3 + 1 * 2**x )", "(1 / (3 + (1 * pow(2, X))))"},
                    Translation{"2 * (x - " + origin + " ) + 1", "((2 * (X - 0)) + 1)"},
                    Translation{R"(datetodouble("2024-02-29T12:30:15.500"))", "13928589015.5"}));

INSTANTIATE_TEST_SUITE_P(
    Precedence, FormulaTest,
    testing::Values(Translation{"2**3**x", "pow(2, pow(3, X))"},
                    Translation{"-x**2", "(-pow(X, 2))"}, Translation{"2**-x", "pow(2, (-X))"},
                    Translation{"1-2-3", "((1 - 2) - 3)"}, Translation{"1 - -2", "(1 - (-2))"},
                    Translation{"8/4/2", "((8 / 4) / 2)"}, Translation{"1e-05*x", "(1e-05 * X)"}));

struct Refusal {
  std::string formula;
  std::string message;
};

class RefusedFormulaTest : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedFormulaTest, TellsWhatWasExpectedAndWhere) {
  try {
    translateFormula(GetParam().formula, "X");
    FAIL() << "taken: " << GetParam().formula;
  } catch (const render::FormulaError& e) {
    EXPECT_EQ(e.what(), GetParam().message);
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, RefusedFormulaTest,
    testing::Values(Refusal{"", "expected a number, x, a function or \"(\" at the end"},
                    Refusal{"1 +", "expected a number, x, a function or \"(\" at the end"},
                    Refusal{"(x", "expected \")\" at the end"},
                    Refusal{"x x", "expected nothing more at character 3"},
                    Refusal{"sin(x)", "expected a number, x, a function or \"(\" at character 1"},
                    Refusal{"alert(1)", "expected a number, x, a function or \"(\" at character 1"},
                    Refusal{"datetodouble(\"1582-13-14T00:00:00\")",
                            "expected a date like 1582-10-14T00:00:00.000 at character 15"},
                    Refusal{std::string(100000, '('),
                            "expected fewer nested parts at character 101"}));

TEST(RoundedFormulaTest, HasNumbersThatPeopleRead) {
  const std::pair<const char*, const char*> texts[] = {
      {"10.787245614035088 * x + -38.10298245614034", "10,79 * x - 38,1"},
      {"1 / ( 0.004 + 0.31970004415641945 * 0.7451835473921872**x )",
       "1 / ( 0,004 + 0,3197 * 0,7452**x )"},
      {"1.5e-07 * x*x + 12345.67", "1.5e-07 * x*x + 12.346"}};
  for (const auto& [formula, rounded] : texts)
    EXPECT_EQ(render::roundedFormula(formula, {.decimal = ",", .grouping = "."}), rounded);
}

} // namespace
