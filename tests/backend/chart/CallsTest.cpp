#include "../support/BuilderTest.h"
#include "../support/EntryArguments.h"

#include <string>
#include <string_view>

#include <fmt/format.h>

#include <chartxml/EntryPoints.h>

using testing::ElementsAre;

namespace {

class Calls : public BuilderTest {
protected:
  /// "<node>: <call> <name>" for each node that is told of.
  static std::vector<std::string> linesOf(const host::NodeCalls& calls) {
    std::vector<std::string> lines;
    calls([&](std::string_view node, unsigned call, std::string_view name) {
      lines.push_back(fmt::format("{}: {} {}", node, call, name));
    });
    return lines;
  }

  Dictionary* dictionary = described({Column("a", "A", 0, {5, 8, 0})}, {0});
};

TEST_F(Calls, AreThoseOfTheEntryPointsWhateverTheyCall) {
  KORVA_FortranDictionary* run = dictionary;
  std::int64_t c = -1, source = -1, graph = -1, data = -1;
  cx_createchartex_(nullptr, reinterpret_cast<void* const*>(&run), "p", Int(1), &c, &source, &graph,
                    &data);
  const Int chartHandle(c), frame(data);
  const Int variable = cx_addvariable_(chartHandle, Int(source), Int(1), Int(1));
  cx_addrow_(chartHandle, Int(source));
  const double value = 1;
  cx_adddoubledatavalue_(chartHandle, Int(source), variable, &value);
  std::int64_t element = -1;
  cx_addxyelementex_(chartHandle, frame, Int(1), Int(21), variable, variable, Int(31), &element);
  cx_addx_(chartHandle, Int(element), variable);
  cx_addx_(chartHandle, Int(9999), variable); // refused, and counted like any other
  cx_addfacetvariable_(chartHandle, Int(cx_addcoordinatefacet_(chartHandle, frame)), Int(1),
                       variable);
  cx_addsplit_(chartHandle, Int(element), variable);
  std::vector<std::string> told;
  whenSent = [&](const host::SentChart& sentChart) { told = linesOf(sentChart.calls); };
  ASSERT_EQ(cx_endchart_(chartHandle), 0);
  // The copy that the split reads now stands for the variable that was added.
  EXPECT_THAT(
      told, ElementsAre("source0: 1 cx_createchartex_", "variable4_attributes: 2 cx_addvariable_",
                        "variable4: 2 cx_addvariable_", "frame_graph_1: 1 cx_createchartex_",
                        "frame_data_1/coordinateFacet: 6 cx_addcoordinatefacet_",
                        "frame_data_1/coordinateFacet/facetVariable: 7 cx_addfacetvariable_",
                        "element_polar_1: 3 cx_addxyelementex_", "element_polar_1/x[2]: 4 cx_addx_",
                        "element_polar_1/split: 8 cx_addsplit_"));
}

TEST_F(Calls, AreThoseOfTheOperationsForCxxPrograms) {
  const int handle = chartOn(dictionary);
  const int frame = registry().AddFrame(handle, 0, -1);
  const int guide = registry().AddYOfXLogistic(handle, frame, -1, 1.0, 2.0, 3.0, false);
  EXPECT_GE(guide, 0);
  Chart& direct = chart(handle);
  const int source = direct.AddSource();
  const int variable = direct.AddVariable(source, 0, true);
  direct.AddX(direct.AddElement(frame, 21, -1), variable);
  EXPECT_THAT(
      linesOf([&](const host::TakeCall& take) { direct.visitCalls(take); }),
      testing::IsSupersetOf({"source0: 4 Chart::AddSource", "variable3: 6 Chart::AddVariable",
                             "frame1: 2 ChartXml::AddFrame", "guide2: 3 ChartXml::AddYOfXLogistic",
                             "element4: 7 Chart::AddElement", "element4/x: 8 Chart::AddX"}));
}

} // namespace
