#include "../support/BuilderTest.h"
#include "../support/EntryArguments.h"

#include <cstdint>

#include <chartxml/EntryPoints.h>
#include <host/OutputText.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class EntryPoints : public BuilderTest {
protected:
  std::int64_t create() {
    return cx_createchartex_(nullptr, nullptr, "proc", Int(4), &chartOut, &source, &graph, &data);
  }
  std::int64_t chartOut = -9, source = -9, graph = -9, data = -9;
};

TEST_F(EntryPoints, BuildTheChartSkeleton) {
  EXPECT_EQ(create(), 0);
  EXPECT_THAT((std::vector{chartOut, source, graph, data}), ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(fragment(0, 0),
            R"(<graph name="proc"><source id="source0"><otherAccess type="object"/></source>)"
            R"(<frame clip="true" id="frame_graph_1" style="frame_graph_1default_style">)"
            R"(<frame clip="false" id="frame_data_1" style="frame_data_1default_style">)"
            R"(<facetLabeling><facetLabel cellStyle="facetLabel_data_1default_style" )"
            R"(id="facetLabel_data_1" level="0"/></facetLabeling></frame></frame></graph>)");
  std::int64_t pie = 0;
  EXPECT_EQ(cx_createpiechart_(nullptr, nullptr, "proc", Int(4), &chartOut, &source, &graph, &pie),
            1);
  EXPECT_THAT(fragment(1, 2), HasSubstr(R"(<frame id="frame_graph_1" style=)"));
  EXPECT_THAT(fragment(1, static_cast<int>(pie)),
              HasSubstr(R"(<frame clip="true" id="frame_pie_1")"));
}

TEST_F(EntryPoints, BuildDimensionsWithAxes) {
  create();
  std::int64_t style = 0, axis = 0;
  const std::int64_t x =
      cx_adddimensionaxis_(Int(0), Int(data), Int(1), Int(-1), Int(1), &style, &axis,
                           Int(text("9%")), Int(-1), Int(-1), Int(text("3")));
  EXPECT_EQ(fragment(0, static_cast<int>(x)),
            R"(<dimension facetsShareScale="true" lowerMapping="3" role="x" upperMargin="9%">)"
            R"(<axis baselineStyle="axis_axisx_1baselineStyle" combineAxisLabels="true" )"
            R"(id="axis_axisx_1" opposite="true" style="axis_axisx_1default_style">)"
            R"(<majorTicks markStyle="axis_axisx_1markStyle" stagger="false" )"
            R"(tickLabelStyle="axis_axisx_1tickLabelStyle"/></axis></dimension>)");
  const std::string before = fragment(0, 0);
  style = axis = -9;
  for (const std::int64_t index : {std::int64_t{0}, std::int64_t{4}, (std::int64_t{1} << 32) + 1}) {
    EXPECT_EQ(cx_adddimensionaxis_(Int(0), Int(data), Int(index), Int(-1), Int(0), &style, &axis,
                                   Int(-1), Int(-1), Int(-1), Int(-1)),
              -1);
  }
  EXPECT_EQ(style, -9) << "all 64 bits of the index count, and nothing is touched";
  EXPECT_EQ(fragment(0, 0), before);
  EXPECT_THAT(takeReports(), IsEmpty());

  std::int64_t xs = 0, xa = 0, ys = -9, ya = -9;
  EXPECT_EQ(cx_addxydimensionwithaxis_(Int(0), Int(77), Int(-1), Int(-1), Int(0), Int(0), &xs, &xa,
                                       &ys, &ya),
            -1);
  EXPECT_EQ(ys, -9) << "nothing is written after the step that failed";
  EXPECT_THAT(takeReports(), ElementsAre("frame handle (77) out of range (0-9)"));
}

// The margins of both dimensions come before the mappings of both.
TEST_F(EntryPoints, BuildTwoDimensionsWithMarginsAndMappings) {
  create();
  std::int64_t xs = 0, xa = 0, ys = 0, ya = 0;
  const std::int64_t x =
      cx_addxydimension_(Int(0), Int(data), Int(-1), Int(-1), Int(0), Int(1), &xs, &xa, &ys, &ya,
                         Int(text("1%")), Int(text("2%")), Int(text("3%")), Int(text("4%")),
                         Int(text("5")), Int(text("6")), Int(text("7")), Int(text("8")));
  EXPECT_THAT(fragment(0, static_cast<int>(x)),
              HasSubstr(R"(<dimension facetsShareScale="true" lowerMapping="6" lowerMargin="2%" )"
                        R"(role="x" upperMapping="5" upperMargin="1%"><axis )"));
  EXPECT_THAT(fragment(0, static_cast<int>(data)),
              HasSubstr(R"(<dimension facetsShareScale="true" lowerMapping="8" lowerMargin="4%" )"
                        R"(role="y" upperMapping="7" upperMargin="3%"><axis )"));
  EXPECT_THAT(fragment(0, static_cast<int>(ya)), HasSubstr(R"(opposite="true")"));
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(xs)), "axisx_1");
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(ys)), "axisy_1");
}

TEST_F(EntryPoints, BuildElementsLegendsAndTitles) {
  create();
  std::int64_t style = 0, legend = 0, element = 0;
  EXPECT_EQ(cx_addframewithlabel_(Int(0), Int(graph), Int(17), Int(1), Int(text("T"))), 6);
  EXPECT_EQ(cx_addxyelementex_(Int(0), Int(data), Int(1), Int(23), Int(source), Int(source),
                               Int(96), &element),
            -1);
  EXPECT_EQ(element, 8) << "the element is there, its x is not";
  EXPECT_EQ(cx_addlegendframe_(Int(0), Int(graph), Int(element), Int(2), Int(36), Int(0), &style,
                               &legend),
            legend);
  EXPECT_EQ(fragment(0, static_cast<int>(legend) - 1),
            R"(<frame id="frame_legend_2" style="frame_legend_2default_style">)"
            R"(<legend id="legend_legend_2" style="legend_legend_2default_style">)"
            R"(<legendTarget aesthetic="styleBy" element="element_scatter_1" )"
            R"(id="legendTarget_legend_2"/></legend></frame>)");
  EXPECT_EQ(fragment(0, 6),
            R"(<frame id="frame_title_1" style="frame_title_1default_style"><label )"
            R"(id="label_title_1" style="label_title_1default_style">T</label></frame>)");
  EXPECT_THAT(takeReports(), ElementsAre("x requires a variable id reference source"));
}

TEST_F(EntryPoints, ReadTheLow32BitsAndAnyLogicalAndExactTexts) {
  create();
  const std::int64_t high = std::int64_t{5} << 32;
  EXPECT_EQ(cx_setframeclipping_(Int(high), Int(high + graph), Int(std::int64_t{1} << 40)), graph);
  EXPECT_THAT(fragment(0, 2), HasSubstr(R"(clip="true")"));
  const std::int64_t blanks = cx_nstring_(Int(0), "a  bcd", Int(3));
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(blanks)), "a  ");
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(cx_string_(Int(0), "abc", Int(-4)))), "");
  EXPECT_EQ(cx_addframe_(Int(0), Int(-1), Int(-1)), std::int64_t{-1}) << "sign-extended";
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(cx_integer_(Int(0), Int(high - 7)))), "-7");
}

TEST_F(EntryPoints, TakeAMissingAddressAsAMissingArgument) {
  EXPECT_EQ(cx_addframe_(nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(cx_adddimensionaxis_(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                 nullptr, nullptr, nullptr, nullptr),
            -1);
  EXPECT_EQ(cx_double_(nullptr), -1);
  EXPECT_GE(cx_nstring_(nullptr, nullptr, nullptr), 0);
  EXPECT_THAT(takeReports(), ElementsAre("chart handle (-1) out of range (0-0)"));
}

class EntryTexts : public EntryPoints {
protected:
  EntryTexts() {
    dictionary->splits = {0, 1};
    host::writeText("Torgersen", 10, row + 1);
    chart = cx_createchart_(nullptr, run, "p", Int(1));
  }
  static std::string read(std::int64_t string) {
    return string == -1 ? "-1" : registry().getUTF8String(static_cast<int>(string));
  }

  Dictionary* dictionary =
      described({Column("sex", "Sex", 0, {5, 8, 0}), Column("isle", "", 10, {1, 10, 0})}, {0, 1});
  KORVA_FortranDictionary* address = dictionary;
  void* const* run = reinterpret_cast<void* const*>(&address);
  OBS row[3] = {{.number = 2}};
  Int chart = 0;
};

TEST_F(EntryTexts, FormatNumbersWithoutAnIgnoredFirstArgument) {
  const double third = 1.0 / 3;
  EXPECT_EQ(read(cx_lrvalueasstring_(&third, Int(5 << 16 | 8 << 8 | 3))), "0.333");
  EXPECT_EQ(read(cx_ivalueasstring_(Int(-7), Int(5 << 16 | 8 << 8 | 1))), "-7.0");
  EXPECT_EQ(read(cx_ivalueasstring_(Int(7), nullptr)), "7") << "as for machines";
  EXPECT_EQ(read(cx_ivalue_(Int(0), Int(7), Int(5 << 16 | 8 << 8 | 2))), "7.00");
  EXPECT_EQ(cx_ivalueasstring_(nullptr, Int(-1)), -1);
  EXPECT_EQ(cx_lrvalueasstring_(nullptr, Int(-1)), -1);
}

TEST_F(EntryTexts, TellOfWeightsAndSplits) {
  EXPECT_EQ(read(cx_weightinfo_(Int(0), Int(0), Int(1), Int(1))), "Cases weighted by Sex");
  EXPECT_EQ(read(cx_weightinfo_(Int(0), Int(0), Int(2), Int(0))), "Weighted by isle");
  EXPECT_EQ(cx_weightinfo_(nullptr, nullptr, Int(0), Int(1)), -1);
  EXPECT_EQ(cx_weightinfo_(nullptr, nullptr, Int(-(std::int64_t{1} << 32) + 1), Int(1)), -1)
      << "all 64 bits count";
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(cx_weightinfo_(nullptr, nullptr, Int(3), Int(1)), -1);

  const int label = text("L");
  const auto info = [&](std::int64_t of, std::int64_t count, bool show, bool keyed) {
    return cx_splitvariableinfo_(Int(0), Int(of), row, Int(count), Int(1), Int(0), Int(1), Int(0),
                                 Int(show), Int(keyed));
  };
  const std::string splits = " sex = 2; isle = Torgersen";
  EXPECT_EQ(info(label, 0, true, true), label);
  EXPECT_EQ(info(label, -1, true, false), label);
  EXPECT_EQ(info(label, 2, false, true), label);
  EXPECT_EQ(info(-1, 2, false, true), -1);
  const auto keyed = [&](const char* key) { return registry().translate(key).toUTF8(); };
  const std::string pattern = keyed("E61219^1");
  const std::size_t place = pattern.find("^1");
  EXPECT_EQ(read(info(label, 2, true, true)),
            pattern.substr(0, place) + "L" + pattern.substr(place + 2) + splits);
  EXPECT_EQ(read(info(label, 2, false, false)), "L ;" + splits);
  EXPECT_EQ(read(info(-1, 2, true, true)), keyed("E61218") + splits);
  EXPECT_EQ(read(info(-1, 1, false, false)), ";" + splits);
  EXPECT_EQ(info(-2, 2, true, true), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("variable index out of range 3 2", "invalid variable index -1",
                          "parameter handle out of range"));
}

// Every leading argument that is not read is there, and no more.
TEST_F(EntryTexts, PassTheirArgumentsInOrder) {
  const Int none = 0;
  const OBS* isle = row + 1;
  const double half = 0.5;
  const Int first = cx_nstringnotranslate_(none, "one", Int(3));
  const Int list = cx_compositestring_(none, "^1[: ^2-^1:]1", Int(13));
  EXPECT_EQ(cx_addparameter_(none, list, first), 0);
  EXPECT_EQ(cx_beginrepeat_(none, list), 0);
  for (const Int handle :
       {first, first, Int(cx_value_(Int(2), isle)), Int(cx_objectlabel_(Int(1), row))}) {
    EXPECT_EQ(cx_addparameter_(none, list, handle), 0);
  }
  EXPECT_EQ(cx_endrepeat_(none, list), 0);
  EXPECT_EQ(cx_endcompositestring_(none, list), list.value);
  EXPECT_EQ(read(list.value), "one 2-Torgersen");
  EXPECT_EQ(SkCellText::text(static_cast<int>(cx_tosk_(none, list))), "one 2-Torgersen");

  const std::pair<std::int64_t, const char*> texts[] = {
      {cx_stylestring_(none, Int(17), Int(2)), "title_2"},
      {cx_variablename_(none, none, Int(2)), "isle"},
      {cx_variablelabel_(none, none, Int(1)), "Sex"},
      {cx_meanvalue_(Int(1), row), "2.00"},
      {cx_valuelabel_(none, Int(2), isle), "Torgersen"},
      {cx_valuelabelshort_(Int(2), isle, Int(3)), "Tor"},
      {cx_splitlist_(none, row, none, Int(1), Int(0), Int(1), Int(0)), "sex = 2; isle = Torgersen"},
      {cx_splitlist_(none, row, none, Int(0), Int(1), Int(0), Int(1)), "Sex = 2; isle = Torgersen"},
      {cx_splitheader_(row, Int(1)), "Sex: 2, isle: Torgersen"},
      {cx_lrvalue_(none, &half, Int(5 << 16 | 8 << 8 | 3)), "0.500"},
      {cx_double_(&half), "0.5"},
      {cx_variablelabelfromdictionary_(nullptr, run, Int(1)), "Sex"},
  };
  for (const auto& [handle, expected] : texts)
    EXPECT_EQ(read(handle), expected);
  EXPECT_EQ(cx_lrvalue_(none, &half, Int(41 << 16 | 8 << 8)), -1) << "a format of no numbers";
  EXPECT_EQ(cx_splitlist_(none, nullptr, none, Int(1), Int(1), Int(1), Int(1)), -1);
  EXPECT_THAT(takeReports(), ElementsAre("no values of the split variables"));
}

TEST_F(EntryTexts, FormatAndWeightVariables) {
  const Int rows = cx_addsource_(chart);
  const std::int64_t weight = cx_addweightaggregate_(chart, rows, Int(17), Int(text("Weight")));
  EXPECT_EQ(cx_setvariableformat_(chart, Int(weight), Int(17 << 16)), weight);
  EXPECT_EQ(cx_setvariableformat_(chart, Int(weight), Int((1LL << 32) + (26 << 16))), weight);
  EXPECT_EQ(
      fragment(0, static_cast<int>(weight)),
      R"(<variable categorical="false" id="variable1" label="Weight" source="source0" )"
      R"(sourceName="V1"><meta creator="internal_aggregate" weight="true"><dateTimeFormat>)"
      R"(<dateFormat><dayOfWeek/></dateFormat><timeFormat/></dateTimeFormat></meta></variable>)");
  EXPECT_EQ(cx_setvariableformat_(chart, rows, Int(5 << 16)), rows.value) << "it has no meta";
  EXPECT_EQ(cx_addweightaggregate_(chart, rows, Int(17), Int(-2)), -1);
  EXPECT_EQ(cx_setvariableformat_(chart, Int(99), Int(5 << 16)), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("label handle out of range", "variable handle (99) out of range (0-9)"));
}

TEST_F(EntryTexts, HeadChartsBySplitGroups) {
  const std::int64_t frame = cx_addsplitheaderex_(chart, Int(0), row, Int(1));
  EXPECT_EQ(fragment(0, static_cast<int>(frame)),
            R"(<frame id="frame_subtitle_1" style="frame_subtitle_1default_style"><label )"
            R"(id="label_subtitle_1" style="label_subtitle_1default_style">)"
            R"(Sex: 2, isle: Torgersen</label></frame>)");
  EXPECT_EQ(cx_addsplitheaderex_(chart, Int(99), row, Int(1)), -1);
  EXPECT_EQ(cx_setsplitcomposite_(Int(9), row, Int(0)), -1);
  EXPECT_THAT(takeReports(), ElementsAre("parent handle (99) out of range (0-3)",
                                         "chart handle (9) out of range (0-1)"));
  EXPECT_EQ(cx_setsplitcomposite_(chart, nullptr, Int(0)), -1);
  EXPECT_THAT(takeReports(), ElementsAre("no values of the split variables"));
  EXPECT_EQ(cx_setsplitcomposite_(chart, row, Int(0)), 0);
  EXPECT_EQ(cx_endchart_(chart), 0);
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_EQ(sent[0].splitHeader, "Sex: 2, isle: Torgersen");
}

TEST_F(EntryPoints, AnswerLifeCycleCalls) {
  EXPECT_EQ(cx_init_(nullptr, nullptr, "p", Int(1)), 0);
  EXPECT_EQ(cx_createchart_(nullptr, nullptr, "p", Int(1)), 0);
  EXPECT_EQ(cx_setchartdescription_(Int(5), "d", Int(1)), -1);
  EXPECT_EQ(registry().String(""), 158) << "the description's string was made all the same";
  EXPECT_EQ(cx_endchart_(Int(0)), 0);
  EXPECT_EQ(cx_killchart_(Int(0)), 0);
  EXPECT_EQ(cx_killcharts_(), 0);
  EXPECT_EQ(cx_dumpxml_(nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(cx_statisticssummary_(nullptr, nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(cx_terminate_(), 0);
  EXPECT_EQ(cx_terminate_(), 0);
}

// Arguments of one type are easily swapped: every one here has a value of its own.
TEST_F(EntryPoints, PassTheirArgumentsInOrder) {
  Dictionary* dictionary = described({Column("v", "", 0, {5, 8, 0})}, {0});
  KORVA_FortranDictionary* address = dictionary;
  void* const* run = reinterpret_cast<void* const*>(&address);
  const Int c = cx_createchart_(nullptr, run, "p", Int(1));
  const auto word = [](const char* bytes) { return Int(text(bytes)); };
  const Int rows = cx_addsource_(c);
  const Int frame = cx_addframe_(c, Int(0), word("f"));
  const Int v = cx_addvariable_(c, rows, Int(1), Int(0));
  cx_addrelabel_(c, v, word("from"), word("to"));
  const Int computed =
      cx_addaggregate_(c, rows, Int(17), Int(1), word("label"), word("short"), frame);
  cx_createlogvar_(c, computed);
  const Int element = cx_addelement_(c, frame, Int(21), word("e"));
  const Int position = cx_addposition_(c, element);
  cx_addx_(c, position, v);
  cx_addy_(c, position, computed);
  cx_addz_(c, position, v);
  cx_addtheta_(c, position, computed);
  cx_addcolor_(c, element, v);
  cx_setelementname_(c, element, word("n"));
  cx_addparam_(c, Int(cx_addstatistic_(c, element, word("m"))), word("name"), word("value"));
  const Int y = cx_adddimension_(c, frame, Int(2), v);
  cx_setdimensionupper_(c, y, word("up"));
  cx_setdimensionlowermapping_(c, y, word("low"));
  cx_setdimensionuppermargin_(c, y, word("1%"));
  cx_setdimensionlowermargin_(c, y, word("2%"));
  const Int axis = cx_addaxis_(c, y, word("a"), Int(1));
  cx_addmajorticks_(c, axis, word("pos"), Int(0), word("len"), word("angle"), Int(1),
                    word("delta"));
  cx_addlabel_(c, axis, word("l"), word("content"));
  cx_addguide_(c, frame, word("type"), word("g"));
  cx_addyfunctionofx_(c, frame, word("2*x"), Int(7));
  const Int labeling = cx_addfacetlabeling_(c, frame);
  cx_setfacetlabelcellstyle_(c, Int(cx_addfacetlabel_(c, labeling, word("fl"), Int(3), Int(1))),
                             word("cell"));
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(cx_getdimension_(c, frame, Int(2)), y.value);
  EXPECT_EQ(cx_getvariableformat_(c, Int(1)), 5 << 16 | 8 << 8);
  EXPECT_EQ(fragment(0, 0),
            R"(<graph name="p"><source id="source0"><otherAccess type="object"/></source>)"
            R"(<variable categorical="false" id="variable2" shortLabel="v" source="source0" )"
            R"(sourceName="V2"><meta creator="external_datasource"><numberFormat )"
            R"(minimumFractionDigits="0" minimumIntegerDigits="1" useGrouping="false"/></meta>)"
            R"(<relabel from="from" to="to"/></variable><variable categorical="true" )"
            R"(domain="frame_f" id="variable3" label="label" shortLabel="short" source="source0" )"
            R"(sourceName="V3"><meta creator="internal_aggregate" description="log"/></variable>)"
            R"(<frame id="frame_f" style="frame_fdefault_style"><facetLabeling><facetLabel )"
            R"(cellStyle="facetLabel_celldefault_style" id="facetLabel_fl" level="3" )"
            R"(reverse="true"/></facetLabeling><dimension domain="variable2" )"
            R"(facetsShareScale="true" lowerMapping="low" lowerMargin="2%" role="y" )"
            R"(upperMapping="up" upperMargin="1%"><axis baselineStyle="axis_abaselineStyle" )"
            R"(combineAxisLabels="true" id="axis_a" opposite="true" style="axis_adefault_style">)"
            R"(<label id="label_l" style="label_ldefault_style">content</label><majorTicks )"
            R"(delta="delta" labelAngle="angle" length="len" markStyle="axis_amarkStyle" )"
            R"(position="pos" stagger="true" tickLabelStyle="axis_atickLabelStyle"/></axis>)"
            R"(</dimension><element id="element_e" name="n" showCollidingLabels="true" )"
            R"(style="element_edefault_style" type="line"><position><x variable="variable2"/>)"
            R"(<y variable="variable3"/><theta variable="variable3"/><z variable="variable2"/>)"
            R"(</position><color variable="variable2"/><statistic method="m"><parameter )"
            R"(name="name" value="value"/></statistic></element><guide id="guide_g" )"
            R"(style="guide_gdefault_style" type="type"/><guide id="guide_yFunctionOfX_7" )"
            R"(style="guide_yFunctionOfX_7default_style" type="function"><parameter name="y" )"
            R"(value="2*x"/><parameter name="numPoints" value="1000"/></guide></frame></graph>)");
}
