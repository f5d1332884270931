#include "../support/BuilderTest.h"

#include <array>
#include <limits>

#include <fmt/format.h>

#include <host/StringTables.h>

using testing::ElementsAre;
using testing::IsEmpty;

class Formats : public BuilderTest {
protected:
  int handle = registry().CreateChart();
  Chart& made = chart(handle);
  int frame = made.AddFrame(0, -1);
  int meta = made.AddMeta(frame);

  std::string metaText() { return fragment(handle, meta); }
};

namespace {

constexpr long date = 20 << 16 | 11 << 8;
constexpr long percentage = 31 << 16 | 8 << 8 | 1;
const char* const shortDate = R"(<dayOfMonth fill="true"/><monthName/><year/>)";

struct Layout {
  int type;
  int width;
  const char* date; ///< null: there is no such element
  const char* time;
  const char* attributes = "";
};

std::string holder(const char* name, const char* parts) {
  if (!parts) return {};
  return *parts ? fmt::format("<{0}>{1}</{0}>", name, parts) : fmt::format("<{}/>", name);
}

std::string expected(const Layout& layout) {
  const std::string parts = holder("dateFormat", layout.date) + holder("timeFormat", layout.time);
  if (parts.empty()) return "<meta><dateTimeFormat/></meta>";
  return fmt::format("<meta><dateTimeFormat{}>{}</dateTimeFormat></meta>", layout.attributes,
                     parts);
}

} // namespace

TEST_F(Formats, ShowOfDatesAndTimesWhatTypeAndWidthAskFor) {
  const char* const longDate = R"(<dayOfMonth fill="true"/><monthName/><year showCentury="true"/>)";
  const char* const digits = R"(<dayOfMonth fill="true"/><month fill="true"/><year/>)";
  const char* const longDigits =
      R"(<dayOfMonth fill="true"/><month fill="true"/><year showCentury="true"/>)";
  const char* const hours = R"(<hour fill="true" twentyFour="true"/><minute fill="true"/>)";
  const char* const seconds = R"(<hour fill="true" twentyFour="true"/><minute fill="true"/>)"
                              R"(<second fill="true"/>)";
  const char* const milliseconds = R"(<hour fill="true" twentyFour="true"/><minute fill="true"/>)"
                                   R"(<second fill="true" milliseconds="true"/>)";
  const char* const unfilledMonth =
      R"(<dayOfMonth fill="true"/><month/><year showCentury="true"/>)";
  const char* const dayOfYear = R"(<dayOfYear fill="true"/>)";
  const Layout layouts[] = {
      {20, 9, shortDate, ""},
      {20, 10, longDate, ""},
      {20, -5, shortDate, ""},
      {21, 5, nullptr, hours},
      {21, 6, nullptr, seconds},
      {21, 8, nullptr, seconds},
      {21, 9, nullptr, milliseconds},
      {22, std::numeric_limits<int>::min(), longDate, hours},
      {22, 17, longDate, hours},
      {22, 18, longDate, seconds},
      {22, 20, longDate, seconds},
      {22, 21, longDate, milliseconds},
      {23, 8, digits, ""},
      {23, 9, longDigits, ""},
      {24, 5, R"(<dayOfYear fill="true"/><year/>)", ""},
      {24, 6, R"(<dayOfYear fill="true"/><year showCentury="true"/>)", ""},
      {25, 9, dayOfYear, hours},
      {25, 10, dayOfYear, seconds},
      {25, 12, dayOfYear, seconds},
      {25, 13, dayOfYear, milliseconds},
      {26, 3, "<dayOfWeek/>", ""},
      {26, 4, R"(<dayOfWeek long="true"/>)", ""},
      {27, 3, "<monthName/>", ""},
      {27, 4, R"(<monthName long="true"/>)", ""},
      {28, 6, "<monthName/><year/>", ""},
      {28, 7, R"(<monthName/><year showCentury="true"/>)", ""},
      {29, 7, R"(<quarter suffix=" Q "/><year/>)", ""},
      {29, 8, R"(<quarter suffix=" Q "/><year showCentury="true"/>)", ""},
      {30, 8, "<week/><year/>", "", R"( prefix=" WK ")"},
      {30, 9, R"(<week/><year showCentury="true"/>)", "", R"( prefix=" WK ")"},
      {38, 8, digits, ""},
      {38, 9, longDigits, ""},
      {39, 8, digits, ""},
      {39, 9, longDigits, ""},
      {85, 40, nullptr, nullptr},
      {86, 19, unfilledMonth, R"(<minute fill="true"/><second fill="true"/>)"},
      {86, 20, unfilledMonth, R"(<minute fill="true"/><second fill="true" milliseconds="true"/>)"},
      {5, 8, nullptr, nullptr},
      {-1, 8, nullptr, nullptr},
  };
  for (const Layout& layout : layouts) {
    EXPECT_EQ(made.AddDateFormat(meta, layout.type, layout.width), layout.type == 30 ? 0 : -1);
    EXPECT_EQ(metaText(), expected(layout)) << layout.type << " " << layout.width;
  }
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Formats, GiveEveryNodeOfADateFormatAHandleInOrder) {
  made.AddDateFormat(meta, 20, 9);
  const char* const parts[] = {"<dayOfMonth fill=\"true\"/>", "<monthName/>", "<year/>",
                               "<timeFormat/>"};
  int node = meta + 3; // after the two that hold others
  for (const char* part : parts)
    EXPECT_EQ(fragment(handle, node++), part);
  EXPECT_EQ(made.AddFrame(0, -1), node);
}

TEST_F(Formats, AreChosenByTypeCode) {
  constexpr std::size_t numbers[] = {3,  4,  5,  6,  8,  9,  11, 15, 16, 17,
                                     25, 31, 32, 33, 34, 35, 36, 37, 40};
  constexpr std::size_t dates[] = {20, 21, 22, 23, 24, 26, 27, 28, 29, 30, 38, 39, 85, 86};
  std::array<const char*, 256> kinds{};
  for (const std::size_t type : numbers)
    kinds[type] = "numberFormat";
  for (const std::size_t type : dates)
    kinds[type] = "dateTimeFormat";
  std::vector<Column> columns;
  columns.reserve(kinds.size());
  for (int type = 0; type < 256; ++type)
    columns.emplace_back("v", "", 0, KORVA_Format(type, 11, 2));
  registry().SetDataSource(handle, nullptr, described(std::move(columns)));

  for (int type = 0; type < 256; ++type) {
    const char* const kind = kinds[static_cast<std::size_t>(type)];
    const int parent = made.AddFrame(0, -1);
    xercesc::DOMElement& variable = *made.getElement(parent);
    const int byCode = made.AddMetaFormat(variable, type);
    const xercesc::DOMElement* child = variable.getFirstElementChild();
    EXPECT_EQ(byCode, kind ? parent + 1 : -1) << type;
    EXPECT_EQ(child != nullptr, kind != nullptr) << type << ": no meta for nothing";

    const int byColumn = made.AddMeta(made.AddFrame(0, -1));
    EXPECT_EQ(registry().AddFormat(handle, byColumn, type), -1);
    const std::string added = fragment(handle, byColumn);
    const char* const wanted = type == 1 ? "stringFormat" : kind;
    EXPECT_THAT(added, testing::StartsWith(wanted ? fmt::format("<meta><{}", wanted) : "<meta/>"));
    EXPECT_TRUE(!child || fragment(handle, byCode) == added) << type;
  }
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Formats, ReplaceFormerOnesInTheOneMetaOfAVariable) {
  xercesc::DOMElement& variable = *made.getElement(frame);
  EXPECT_EQ(made.AddMeta(meta), meta) << "a meta is its own";
  for (int i = 0; i < 2; ++i)
    EXPECT_EQ(made.AddMetaFormatFromCode(variable, percentage), meta) << "numbers are added";
  const int number = made.getVariableNumFormat(frame);
  EXPECT_EQ(fragment(handle, number),
            R"(<numberFormat minimumFractionDigits="1" )"
            R"(minimumIntegerDigits="1" suffix="%" useGrouping="false"/>)");
  EXPECT_EQ(made.SetMetaFormat(*made.getElement(meta), date), meta);
  const std::string dateText = metaText();
  EXPECT_EQ(dateText, expected({20, 11,
                                R"(<dayOfMonth fill="true"/><monthName/>)"
                                R"(<year showCentury="true"/>)",
                                ""}));
  EXPECT_EQ(made.getVariableNumFormat(frame), -1);
  EXPECT_EQ(made.SetMetaFormat(variable, percentage), meta) << "handed the variable";
  EXPECT_EQ(metaText(), "<meta>" + fragment(handle, number) + "</meta>");
  EXPECT_EQ(made.AddDateMeta(variable, 20, 11), meta);
  EXPECT_EQ(metaText(), dateText);
  EXPECT_EQ(made.AddStringMeta(variable), meta);
  EXPECT_EQ(metaText(), "<meta><stringFormat/></meta>");
  EXPECT_EQ(made.AddNumberMeta(variable, 40, 8, 2), meta);
  EXPECT_EQ(metaText(), R"(<meta><stringFormat/><numberFormat scientific="auto"/></meta>)");
  EXPECT_EQ(made.SetMetaFormat(variable, 1 << 16), -1);
  EXPECT_EQ(metaText(), "<meta/>") << "emptied, and nothing added";
  xercesc::DOMElement& bare = *made.getElement(made.AddFrame(0, -1));
  EXPECT_EQ(made.SetMetaFormat(bare, 1 << 16), -1);
  EXPECT_FALSE(bare.hasChildNodes());
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Formats, NameQuartersAndWeeksInTheOutputLanguage) {
  ASSERT_TRUE(host::setOutputLanguage("de"));
  registry().Terminate();
  ChartXml& german = *ChartXml::Initialize();
  Chart& c = chart(german.CreateChart());
  const int own = c.AddMeta(c.AddFrame(0, -1));
  EXPECT_EQ(c.AddDateFormat(own, 29, 8), -1);
  EXPECT_EQ(fragment(0, own),
            R"(<meta><dateTimeFormat><dateFormat><quarter suffix=". Quartal "/>)"
            R"(<year showCentury="true"/></dateFormat><timeFormat/></dateTimeFormat></meta>)");
  ASSERT_TRUE(host::setOutputLanguage(""));
}

TEST_F(Formats, ForgetThePlacesOfNodesThatTheyReplace) {
  followsGrammar = false; // nodes of no kind
  xercesc::DOMElement& node = *made.getElement(meta);
  const XMLCh* const first[] = {u"first"};
  const XMLCh* const second[] = {u"second"};
  for (int i = 0; i < 20; ++i)
    made.insertBeforeSiblings(node, *made.getChart()->createElement(u"second"), first);
  made.AddStringFormat(meta);
  made.insertBeforeSiblings(node, *made.getChart()->createElement(u"first"), second);
  EXPECT_EQ(metaText(), "<meta><stringFormat/><first/></meta>");
}

TEST_F(Formats, MarkWeightsAndTakeAffixes) {
  followsGrammar = false; // several date formats below one meta
  EXPECT_EQ(made.SetMetaWeight(meta, true), meta);
  EXPECT_EQ(metaText(), R"(<meta weight="true"/>)");
  EXPECT_EQ(made.SetMetaWeight(meta, false), meta);
  xercesc::DOMElement* format = nullptr;
  xercesc::DOMElement& parent = *made.getElement(meta);
  EXPECT_EQ(made.AddDateTimeFormat(parent, format, -1, -1), -1);
  EXPECT_EQ(made.AddDateTimeFormat(parent, format, text("<"), -1), 0);
  EXPECT_EQ(made.AddDateTimeFormat(parent, format, 9999, text(">")), 0);
  EXPECT_EQ(made.AddDateTimeFormat(parent, format, -2, -2), -1);
  EXPECT_EQ(metaText(), R"(<meta weight="false"><dateTimeFormat/><dateTimeFormat prefix="<"/>)"
                        R"(<dateTimeFormat suffix=">"/><dateTimeFormat/></meta>)");
  EXPECT_EQ(format, parent.getLastChild());
  EXPECT_THAT(takeReports(), ElementsAre("prefix handle out of range", "prefix handle out of range",
                                         "suffix handle out of range"));
}

// Reached through the registry, whose every operation names the chart first.
TEST_F(Formats, RefuseBadHandlesAndOtherKindsOfNodes) {
  ChartXml& r = registry();
  const int next = meta + 1;
  const std::string before = fragment(handle, 0);
  const int other[] = {
      r.SetMetaWeight(handle, frame, true),     r.AddStringFormat(handle, frame),
      r.AddDateFormat(handle, 0, 20, 9),        r.SetMetaWeight(handle, next, true),
      r.AddStringFormat(handle, next),          r.AddDateFormat(handle, next, 20, 9),
      r.AddNumberFormat(handle, next, 5, 8, 2), r.AddMeta(handle, next),
      r.getVariableNumFormat(handle, next),     r.AddDateFormat(handle, 99, 20, 9),
      r.AddNumberFormat(handle, -1, 5, 8, 2)};
  EXPECT_THAT(other, testing::Each(-1));
  EXPECT_THAT(takeReports(), IsEmpty());
  const int refused[] = {r.AddMeta(handle, 99),
                         r.AddStringFormat(handle, -1),
                         r.SetMetaWeight(handle, 99, true),
                         r.getVariableNumFormat(handle, 99),
                         r.AddFormat(handle, 99, 0),
                         r.AddFormat(handle, meta, 0)};
  EXPECT_THAT(refused, testing::Each(-1));
  EXPECT_EQ(made.AddMetaFormat(*made.getElement(meta), -1), -1);
  EXPECT_EQ(fragment(handle, 0), before);
  EXPECT_THAT(takeReports(), ElementsAre("variable handle (99) out of range (0-3)",
                                         "meta handle (-1) out of range (0-3)",
                                         "meta handle (99) out of range (0-3)",
                                         "variableHandle handle (99) out of range (0-3)",
                                         "meta handle (99) out of range (0-3)", "no datasource",
                                         "invalid variable index 0", "invalid variable index -1"));
  EXPECT_EQ(r.AddNumberFormat(handle, meta, 3, -8, 100), next);
  EXPECT_EQ(metaText(), R"(<meta><numberFormat minimumFractionDigits="100"/></meta>)");
}
