#include "../support/RefusalTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

// What the operations on variables and elements refuse, and how they say it.
class ElementRefusals : public RefusalTest {
protected:
  int handle = chartOn(described({Column("v", "", 0, {5, 8, 0})}, {0}));
  Chart& c = chart(handle);
  int source = c.AddSource();
  int v = c.AddVariable(source, 0, false);
  int frame = c.AddFrame(0, none);
  int element = c.AddElement(frame, 21, none);
  int size = c.AddSize(element, v);
  int list = c.BeginVariableList();
  int next = size + 1; ///< in range, yet no node

  std::string range(const char* noun) const { return outOfRange(noun, next); }
};

TEST_F(ElementRefusals, OfVariables) {
  const std::string variable = range("variable");
  expectRefused(
      c, handle, next,
      {{[&] { return c.AddVariable(source, 1, false); }, {"invalid variable index 1"}},
       {[&] { return c.AddVariable(source, -1, false); }, {"invalid variable index -1"}},
       {[&] { return c.AddVariable(next, 0, false); }, {}},
       {[&] { return c.AddLabelingVariable(source, 1, true); }, {"invalid variable index 1"}},
       {[&] { return c.AddWeightVariable(source, 1); }, {"invalid variable index 1"}},
       {[&] { return c.AddWeightVariable(next, 0); }, {}},
       {[&] { return c.CopyVariable(far); }, {variable}},
       {[&] { return c.CopyVariable(next); }, {}},
       {[&] { return c.SetVariable(far, 1, false); }, {"invalid variable index 1"}},
       {[&] { return c.SetVariable(far, 0, false); }, {variable}},
       {[&] { return c.SetVariable(next, 0, false); }, {}},
       {[&] { return c.SetVariableExternal(far); }, {variable}},
       {[&] { return c.SetVariableExternal(next); }, {}},
       {[&] { return c.SetVariableLabel(far, word); }, {variable}},
       {[&] { return c.SetVariableLabel(v, none); }, {"label handle out of range"}},
       {[&] { return c.SetVariableLabel(next, word); }, {}},
       {[&] { return c.SetVariableName(far, word); }, {variable}},
       {[&] { return c.SetVariableName(v, far); }, {"name handle out of range"}},
       {[&] { return c.SetVariableValue(far, word); }, {variable}},
       {[&] { return c.SetVariableValue(v, far); }, {"value handle out of range"}},
       {[&] { return c.SetVariableValue(next, word); }, {}},
       {[&] { return c.SetVariableFormat(far, 0); }, {variable}},
       {[&] { return c.SetVariableFormat(next, 0); }, {}},
       {[&] { return c.SetVariableCategorical(far, true); }, {variable}},
       {[&] { return c.SetVariableCategorical(next, true); }, {}},
       {[&] { return c.GetVariableLabel(far); }, {variable}},
       {[&] { return c.GetVariableLabel(next); }, {}},
       {[&] { return c.GetVariableFormat(1); }, {"invalid variable index 1"}},
       {[&] { return c.CreateLogVar(far); }, {variable}},
       {[&] { return c.CreateLogVar(next); }, {}},
       {[&] { return c.AddToVariableList(1, v); }, {"variable list handle out of range 1"}},
       {[&] { return c.AddToVariableList(list, far); }, {variable}},
       {[&] { return c.AddToVariableList(list, frame); },
        {fmt::format("handle does not refer to a variable element frame {}", frame)}},
       {[&] { return c.AddToVariableList(list, next); },
        {fmt::format("handle does not refer to a variable element  {}", next)}},
       {[&] { return c.AddOverlayVariable(-1, 1); }, {"variable list handle out of range -1"}},
       {[&] { return c.AddOverlayVariable(list, 8); }, {"invalid role 8"}},
       {[&] { return c.AddOverlayVariable(list, 0); }, {"invalid role 0"}},
       {[&] { return c.AddRangeVariable(1); }, {"variable list handle out of range 1"}},
       {[&] { return c.AddMatrixVariable(1); }, {"variable list handle out of range 1"}},
       {[&] { return c.AddAggregate(source, word, true, far, none, none); },
        {"label handle out of range"}},
       {[&] { return c.AddAggregate(source, word, true, none, far, none); },
        {"shortLabel handle out of range"}},
       {[&] { return c.AddAggregate(source, word, true, none, none, far); }, {range("domain")}},
       {[&] { return c.AddAggregate(source, word, true, none, none, next); }, {}},
       {[&] { return c.AddLabelingAggregate(next, word, true, none, none, none); }, {}},
       {[&] { return c.AddWeightAggregate(source, word, far); }, {"label handle out of range"}},
       {[&] { return c.CreateChartDescription(none); }, {"description handle out of range"}},
       {[&] { return c.SetSummaryFunction(far, 8, 0, 0); }, {variable}},
       {[&] { return c.SetSummaryFunction(next, 8, 0, 0); }, {}}});
}

// Without data the first check of a declaration stops it.
TEST_F(ElementRefusals, OfVariablesWithoutData) {
  c.SetDataSource(nullptr);
  const std::vector<std::string> twice = {"no datasource", "invalid variable index 0"};
  expectRefused(c, handle, next,
                {{[&] { return c.AddVariable(source, 0, false); }, {"no datasource"}},
                 {[&] { return c.AddLabelingVariable(source, 0, false); }, {"no datasource"}},
                 {[&] { return c.AddWeightVariable(source, 0); }, {"no datasource"}},
                 {[&] { return c.SetVariable(v, 0, false); }, twice},
                 {[&] { return c.AddVariableLabels(*c.getElement(v), 0); }, twice},
                 {[&] { return c.GetVariableFormat(0); }, twice}});
}

// No call loses a list; the operations say so all the same.
TEST_F(ElementRefusals, OfListsThatAreLost) {
  loseVariableLists(handle);
  expectRefused(c, handle, next,
                {{[&] { return c.AddToVariableList(list, v); },
                  {"AddToVariableList failed: could not find key 0"}},
                 {[&] { return c.AddOverlayVariable(list, 1); },
                  {"AddOverlayExpressionVariable failed: could not find key 0"}},
                 {[&] { return c.AddMatrixVariable(list); },
                  {"AddMatrixVariable failed: could not find key 0"}}});
}

TEST_F(ElementRefusals, OfElements) {
  const std::string parent = "can't add element to anything but frame or elementGroup - ";
  const std::string modified = "can't set positionModifier attribute for anything but an element ";
  const auto binned = [&](int frameOf, int x, int y) {
    return c.AddBinnedElement(frameOf, 23, none, x, y);
  };
  expectRefused(
      c, handle, next,
      {{[&] { return c.AddFrame(far, none); }, {range("parent")}},
       {[&] { return c.AddFrame(frame, far); }, {"suffix handle out of range"}},
       {[&] { return c.AddFrame(element, none); },
        {"can't add frame to anything but graph or frame - element"}},
       {[&] { return c.AddElement(far, 21, none); }, {range("frame or elementGroup")}},
       {[&] { return c.AddElement(frame, none, none); }, {"type handle out of range"}},
       {[&] { return c.AddElement(frame, 21, far); }, {"suffix handle out of range"}},
       {[&] { return c.AddElement(element, 21, none); }, {parent + "element"}},
       {[&] { return c.AddElement(next, 21, none); }, {parent}},
       {[&] { return binned(far, v, v); }, {range("frame or elementGroup")}},
       {[&] { return c.AddBinnedElement(frame, far, none, v, v); }, {"type handle out of range"}},
       {[&] { return c.AddBinnedElement(frame, 23, far, v, v); }, {"suffix handle out of range"}},
       {[&] { return binned(frame, far, v); }, {range("x-variable")}},
       {[&] { return binned(frame, v, far); }, {range("y-variable")}},
       {[&] { return binned(element, v, v); }, {parent + "element"}},
       {[&] { return c.AddElementGroup(far, none); }, {range("frame")}},
       {[&] { return c.AddElementGroup(frame, far); }, {"suffix handle out of range"}},
       {[&] { return c.AddElementGroup(element, none); },
        {"can't add element to anything but frame - element"}},
       {[&] { return c.SetElementName(far, word); }, {range("element")}},
       {[&] { return c.SetElementName(element, none); }, {"name handle out of range"}},
       {[&] { return c.SetElementName(frame, word); }, {}},
       {[&] { return c.SetElementDot(far, word); }, {range("element")}},
       {[&] { return c.SetElementDot(element, none); }, {"dot handle out of range"}},
       {[&] { return c.SetElementDot(frame, word); }, {}},
       {[&] { return c.SetElementPositionModifier(far, word); }, {range("element")}},
       {[&] { return c.SetElementPositionModifier(element, none); },
        {"positionModifier handle out of range"}},
       {[&] { return c.SetElementPositionModifier(frame, word); }, {modified + "frame"}},
       {[&] { return c.SetElementPositionModifier(next, word); }, {modified}},
       {[&] { return c.AddStack(far, true); }, {range("position")}},
       {[&] { return c.AddStack(element, true); }, {modified + "frame"}},
       {[&] { return c.AddStack(next, true); }, {modified}},
       {[&] { return c.AddStack(0, true); }, {modified + "#document"}},
       {[&] { return c.AddStatistic(far, word); }, {range("parent")}},
       {[&] { return c.AddStatistic(element, none); }, {"method handle out of range"}},
       {[&] { return c.AddStatistic(next, word); }, {}},
       {[&] { return c.AddParam(far, word, word); }, {range("statistic")}},
       {[&] { return c.AddParam(element, none, word); }, {"name handle out of range"}},
       {[&] { return c.AddParam(element, word, none); }, {"value handle out of range"}},
       {[&] { return c.AddParam(next, word, word); }, {}},
       {[&] { return c.AddLabel(far, none, none); }, {range("parent")}},
       {[&] { return c.AddLabel(frame, far, none); }, {"id handle out of range"}},
       {[&] { return c.AddLabel(frame, none, far); }, {"content handle out of range"}},
       {[&] { return c.AddLabel(next, none, none); }, {}}});
}

TEST_F(ElementRefusals, OfAesthetics) {
  using Add = int (Chart::*)(int, int);
  struct Aesthetic {
    Add add;
    const char* parents;
    const char* refusal;
    const char* needsVariable; ///< null: it takes any node as the variable
  };
  const Aesthetic aesthetics[] = {
      {&Chart::AddX, "element or position", "can't add x to anything but element or position - ",
       "x requires a variable id reference "},
      {&Chart::AddY, "element or position", "can't add y to anything but element or position - ",
       "y requires a variable id reference "},
      {&Chart::AddZ, "element or position", "can't add z to anything but element or position - ",
       "z requires a variable id reference "},
      {&Chart::AddR, "element or position", "can't add r to anything but element or position - ",
       "r requires a variable id reference "},
      {&Chart::AddTheta, "element or position",
       "can't add theta to anything but element or position - ",
       "theta requires a variable id reference "},
      {&Chart::AddPhi, "element or position",
       "can't add phi to anything but element or position - ",
       "phi requires a variable id reference "},
      {&Chart::AddSize, "element or labeling",
       "can't add size to anything but element or labeling - ",
       "size requires a variable id reference "},
      {&Chart::AddColor, "element", "can't add color to anything but element - ", nullptr},
      {&Chart::AddSplit, "element", "can't add split to anything but element - ", nullptr},
      {&Chart::AddLabeling, "element", "can't add labeling to anything but element - ", nullptr},
      {&Chart::AddStyleBy, "element", "can't add styleBy to anything but element - ", nullptr},
      {&Chart::AddStyleByColor, "element", "can't add styleBy to anything but element ", nullptr},
      {&Chart::AddStyleByPattern, "element", "can't add styleBy to anything but element ", nullptr},
      {&Chart::AddStyleByColorAndPattern, "element", "can't add styleBy to anything but element ",
       nullptr},
  };
  std::vector<Case> cases;
  for (const auto& [add, parents, refusalText, needsVariable] : aesthetics) {
    const auto call = [this, bind = add](int parent, int variable) {
      return [=, this] { return (c.*bind)(parent, variable); };
    };
    const std::string refusal = refusalText;
    cases.push_back({call(far, v), {range(parents)}});
    cases.push_back({call(element, far), {range("variable")}});
    cases.push_back({call(frame, v), {refusal + "frame"}});
    cases.push_back({call(next, v), {refusal}});
    cases.push_back({call(element, next), {}});
    if (!needsVariable) continue;
    cases.back().messages = {needsVariable};
    cases.push_back({call(element, frame), {std::string(needsVariable) + "frame"}});
  }
  cases.push_back({[&] { return c.AddPosition(far); }, {range("element")}});
  cases.push_back({[&] { return c.AddPosition(frame); },
                   {"can't add position to anything but element - frame"}});
  cases.push_back({[&] { return c.SetSizeLow(far, word); }, {range("size")}});
  cases.push_back({[&] { return c.SetSizeLow(size, none); }, {"low handle out of range"}});
  cases.push_back({[&] { return c.SetSizeLow(element, word); }, {}});
  cases.push_back({[&] { return c.SetSizeHigh(size, none); }, {"high handle out of range"}});
  cases.push_back({[&] { return c.SetSizeHigh(element, word); }, {}});
  expectRefused(c, handle, next, cases);
}
