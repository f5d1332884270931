#include "../support/BuilderTest.h"
#include "../support/EntryArguments.h"

#include <cstdint>
#include <string>

#include <fmt/format.h>

#include <chartxml/EntryPoints.h>

using testing::ElementsAre;
using testing::IsEmpty;

class MatrixEntryPoints : public BuilderTest {
protected:
  static std::string axis(const std::string& name, const char* extra, const char* ticks) {
    return fmt::format(R"(<axis baselineStyle="axis_{0}_1baselineStyle" {1}id="axis_{0}_1" )"
                       R"(style="axis_{0}_1default_style"><majorTicks {2})"
                       R"(markStyle="axis_{0}_1markStyle" stagger="false" )"
                       R"(tickLabelStyle="axis_{0}_1tickLabelStyle"/></axis>)",
                       name, extra, ticks);
  }
  static std::string innerAxis(const std::string& name) {
    return axis(name, R"(combineAxisLabels="true" )", "");
  }
  std::string drawn() const { return fragment(0, static_cast<int>(frame.value)); }
  std::int64_t variable() {
    return cx_addaggregate_(c, source, Int(17), Int(0), Int(-1), Int(-1), Int(-1));
  }

  Int c = cx_createchart_(nullptr, nullptr, "p", Int(1));
  Int source = cx_addsource_(c);
  Int frame = cx_addframe_(c, Int(0), Int(text("f")));
  std::int64_t element = -9;
};

TEST_F(MatrixEntryPoints, BuildScatterplotMatrices) {
  const std::int64_t variables[] = {variable(), variable(), variable() + (std::int64_t{1} << 32)};
  const auto word = [](const char* bytes) { return Int(text(bytes)); };
  const std::int64_t made =
      cx_addsplomelementex_(c, frame, variables, Int(3), &element, word("1%"), word("2%"),
                            word("3%"), Int(-1), word("5"), Int(-1), word("7"), word("8"));
  EXPECT_EQ(made, element);
  const std::string panels =
      R"(<frame id="frame_f" style="frame_fdefault_style"><facetLabeling cellAspect="1">)"
      R"(<facetLabel id="facetLabel_matrixscatterx_1" level="1">)" +
      axis("matrixscatterx", "", R"(length="0" )") +
      R"(</facetLabel><facetLabel cellStyle="facetLabel_matrixscattery_1default_style" )"
      R"(id="facetLabel_matrixscattery_1" level="2">)" +
      axis("matrixscattery", "", R"(labelAngle="-90" length="0" )") +
      R"(</facetLabel></facetLabeling><dimension domain="variable5" facetsShareScale="true" )"
      R"(lowerMargin="2%" role="x" upperMapping="5" upperMargin="1%">)" +
      innerAxis("matrixscatterinnerx") +
      R"(</dimension><dimension domain="variable6" facetsShareScale="true" lowerMapping="8" )"
      R"(role="y" upperMapping="7" upperMargin="3%">)" +
      innerAxis("matrixscatterinnery") +
      R"(</dimension><element id="element_matrixscatter_1" labelCollisionHandling="normal" )"
      R"(showCollidingLabels="true" style="element_matrixscatter_1default_style" type="point">)"
      R"(<facetStyle style="facetStyle_matrixscatter_1default_style" )"
      R"(when="matrixscatterdiagonal"/><x variable="variable5"/><y variable="variable6"/>)"
      R"(</element></frame>)";
  EXPECT_EQ(drawn(), panels);
  const auto derived = [](int id, const char* terms, const char* name) {
    return fmt::format(R"(<variable categorical="false" expression="{1}" id="variable{0}" )"
                       R"(label="{2}" shortLabel="{2}"><meta creator="internal_variable"/>)"
                       R"(</variable>)",
                       id, terms, name);
  };
  EXPECT_THAT(fragment(0, 0),
              testing::HasSubstr(derived(5,
                                         "variable2/variable2label + variable3/variable3label + "
                                         "variable4/variable4label",
                                         "X Axis") +
                                 derived(6,
                                         "variable4/variable4label + variable3/variable3label + "
                                         "variable2/variable2label",
                                         "Y Axis")));
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(MatrixEntryPoints, GiveScatterplotMatricesMargins) {
  const std::int64_t variables[] = {variable(), variable()};
  const std::int64_t made = cx_addsplomelement_(c, frame, variables, Int(2), &element);
  EXPECT_GT(made, 0);
  EXPECT_EQ(element, made);
  for (const char* dimension : {R"(domain="variable4" facetsShareScale="true" lowerMargin="15%" )"
                                R"(role="x" upperMargin="15%">)",
                                R"(domain="variable5" facetsShareScale="true" lowerMargin="15%" )"
                                R"(role="y" upperMargin="15%">)"}) {
    EXPECT_THAT(drawn(), testing::HasSubstr(dimension));
  }
}

TEST_F(MatrixEntryPoints, EndAtTheFirstStepThatFails) {
  const std::string before = fragment(0, 0);
  const std::int64_t variables[] = {source.value, frame.value};
  EXPECT_EQ(cx_addsplomelement_(c, frame, variables, Int(2), &element), -1);
  EXPECT_THAT(takeReports(), ElementsAre("handle does not refer to a variable element source 1"));
  EXPECT_EQ(cx_addsplomelement_(c, frame, nullptr, Int(std::int64_t{1} << 40), &element), -1);
  EXPECT_THAT(takeReports(), ElementsAre("variable handle (-1) out of range (0-3)"));
  EXPECT_EQ(cx_addsplomelement_(Int(7), frame, variables, Int(2), &element), -1);
  EXPECT_THAT(takeReports(), ElementsAre("chart handle (7) out of range (0-1)"));
  EXPECT_EQ(cx_addxyzwireframe_(c, Int(99)), -1);
  EXPECT_EQ(cx_addxyzbackplanes_(c, Int(-1)), -1);
  EXPECT_THAT(takeReports(), ElementsAre("frame handle (99) out of range (0-3)",
                                         "frame handle (-1) out of range (0-3)"));
  EXPECT_EQ(fragment(0, 0), before);
  const std::int64_t one = variable();
  EXPECT_EQ(cx_addsplomelement_(c, source, &one, Int(1), &element), -1);
  EXPECT_EQ(element, -9) << "nothing is written after the step that failed";
  EXPECT_THAT(takeReports(),
              ElementsAre("can't add a facet labeling to anything but a frame - source"));
}

TEST_F(MatrixEntryPoints, BuildSpaces) {
  const auto planes = [](const std::string& parameters, const std::string& wires) {
    std::string space =
        R"(<frame id="frame_f" style="frame_fdefault_style"><coordinateTransform )"
        R"(method="rectangular"><parameter name="theta" value="10"/><parameter name="phi" )"
        R"(value="-35"/><parameter name="zeta" value="0"/><parameter name="distance" )"
        R"(value="1.3"/>)" +
        parameters + "</coordinateTransform>" + wires;
    for (const char* plane : {"yzx", "xzy", "xyz"}) {
      space += fmt::format(R"(<guide id="guide_{0}{1}plane_1" )"
                           R"(style="guide_{0}{1}plane_1default_style" type="plane">)"
                           R"(<parameter name="normal" value="{2}"/></guide>)",
                           plane[0], plane[1], plane[2]);
    }
    return space + "</frame>";
  };
  EXPECT_EQ(cx_addxyzwireframe_(c, frame), frame.value);
  EXPECT_EQ(drawn(), planes(R"(<parameter name="dx" value="0.1"/><parameter name="dy" )"
                            R"(value="0.1"/>)",
                            R"(<guide id="guide_frame_1" style="guide_frame_1default_style" )"
                            R"(type="frame"><parameter name="complete" value="false"/></guide>)"));
  const Int other = cx_createchart_(nullptr, nullptr, "p", Int(1));
  const Int bare = cx_addframe_(other, Int(0), Int(text("f")));
  EXPECT_EQ(cx_addxyzbackplanes_(other, bare), bare.value);
  EXPECT_EQ(fragment(1, static_cast<int>(bare.value)), planes("", ""));
  EXPECT_THAT(takeReports(), IsEmpty());
}
