#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <host/DataSet.h>

#include <fmt/format.h>

#include "ScratchFolder.h"

namespace {

using host::DataSet;

/// The message that opening a file of the scratch folder gives, without the
/// folder's name.
std::string messageOf(const ScratchFolder& folder, const std::filesystem::path& path) {
  try {
    DataSet::open(path);
    return "opened";
  } catch (const host::DataError& error) {
    std::string message = error.what();
    const std::string prefix = folder.path().string() + "/";
    if (message.starts_with(prefix)) message.erase(0, prefix.size());
    return message;
  }
}

struct BadText {
  const char* what;
  std::string bytes;
  std::string message;
};

TEST(DataSet, RefusesAMalformedCsvWithFileLineAndField) {
  const std::string longest(32767, 'x');
  const BadText cases[] = {
      {"nothing", "", "t.csv: the file is empty"},
      {"empty lines only", "\xEF\xBB\xBF\r\n\n", "t.csv: the file is empty"},
      {"short row", "a,b,c\n1,2,3\n1,2\n",
       "t.csv:3:3: field \"c\": the row ends after 2 of 3 fields"},
      {"long row", "a,b\r\n1,2\r\n\r\n1,2,3\r\n", "t.csv:4:3: more fields than the header's 2"},
      {"column without name", "a,,c\n", "t.csv:1:2: the column has no name"},
      {"name twice", "a,b,a\n", "t.csv:1:3: the column name \"a\" stands in field 1 already"},
      {"invalid byte", "a,b\n1,caf\xE9\n", "t.csv:2:2: field \"b\": not valid UTF-8"},
      {"invalid name", "a,\xC3\n", "t.csv:1:2: not valid UTF-8"},
      {"surrogate", "a\n\xED\xA0\x80\n", "t.csv:2:1: field \"a\": not valid UTF-8"},
      {"NUL", std::string("a\n1\n\0\n", 6), "t.csv:3:1: field \"a\": a NUL character"},
      {"open quote", "a,b\n\"1\n\n\",\"2\n3,4\n",
       "t.csv:4:2: field \"b\": the quoted field is not closed"},
      {"quote inside", "a,b\n1,x\"y\n",
       "t.csv:2:2: field \"b\": a quote must enclose the whole field and be doubled inside it"},
      {"text after quote", "a,b\n\"x\" ,1\n",
       "t.csv:2:1: field \"a\": a quote must enclose the whole field and be doubled inside it"},
      {"lone carriage returns", "a\r\"1\r2\"\n1,2\r", "t.csv:4:2: more fields than the header's 1"},
      {"longest cell", fmt::format("a\n{}\n", longest), "opened"},
      {"longest cell, its closing quote at the end of a piece",
       fmt::format("a\n{:x>32764}\n\"{}\"\n", "", longest), "opened"},
      {"cell too long", fmt::format("a\n{}x\n", longest),
       "t.csv:2:1: field \"a\": more than 32767 bytes in one field"},
      {"cell of 10 MB", fmt::format("a,b\n1,{:x>10000000}", ""),
       "t.csv:2:2: field \"b\": more than 32767 bytes in one field"},
  };
  ScratchFolder folder;
  for (const BadText& bad : cases)
    EXPECT_EQ(messageOf(folder, folder.write("t.csv", bad.bytes)), bad.message) << bad.what;
}

TEST(DataSet, Takes65536ColumnsAndRefusesAMillion) {
  ScratchFolder folder;
  std::string header = "1";
  const auto widenTo = [&](int columns) {
    for (int column = std::stoi(header.substr(header.rfind(',') + 1)) + 1; column <= columns;
         ++column)
      header += fmt::format(",{}", column);
    return messageOf(folder, folder.write("t.csv", header));
  };
  EXPECT_EQ(widenTo(65'536), "opened");
  EXPECT_EQ(widenTo(1'000'000), "t.csv:1:65537: more than 65536 columns");
}

TEST(DataSet, RefusesAPathThatNamesNoFile) {
  ScratchFolder folder;
  EXPECT_EQ(messageOf(folder, folder.path() / "no.csv"), "no.csv: No such file or directory");
  EXPECT_EQ(messageOf(folder, folder.path()), "datapackage.json: No such file or directory");
  EXPECT_EQ(messageOf(folder, "/dev/zero"), "/dev/zero: not a regular file");
  EXPECT_EQ(messageOf(folder, ""), "a data set without a path");
}

TEST(DataSet, RefusesCellsThatTheirDescriptionDoesNotAllow) {
  const BadText cases[] = {
      {"text", "n,i,b\n1,1,1\nabc,1,1\n", "t.csv:3:1: field \"n\": \"abc\" is not a number"},
      {"infinity", "n,i,b\ninf,1,1\n", "t.csv:2:1: field \"n\": \"inf\" is not a number"},
      {"hexadecimal", "n,i,b\n0x10,1,1\n", "t.csv:2:1: field \"n\": \"0x10\" is not a number"},
      {"two signs", "n,i,b\n+-1,1,1\n", "t.csv:2:1: field \"n\": \"+-1\" is not a number"},
      {"range", "n,i,b\n1e400,1,1\n",
       "t.csv:2:1: field \"n\": \"1e400\" is out of the range of numbers"},
      {"fraction", "n,i,b\n1,1.5,1\n", "t.csv:2:2: field \"i\": \"1.5\" is not an integer"},
      {"no boolean", "n,i,b\n1,1,yes\n",
       "t.csv:2:3: field \"b\": \"yes\" is neither true nor false"},
      {"other name", "n,j,b\n", "t.csv:1:2: the column \"j\" is described as \"i\""},
      {"more columns", "n,i,b,x\n", "t.csv:1:4: the column \"x\" is not described"},
      {"fewer columns", "n,i\n", "t.csv:1:3: the column \"b\" is missing"},
      {"long text", fmt::format("n,i,b\n{:x>39}\xC3\xA9\xC3\xA9,1,1\n", ""),
       fmt::format("t.csv:2:1: field \"n\": \"{:x>39}...\" is not a number", "")},
  };
  ScratchFolder folder;
  folder.write("datapackage.json", R"({"resources": [{"path": "t.csv", "schema": {"fields": [
    {"name": "n", "type": "number"}, {"name": "i", "type": "integer"},
    {"name": "b", "type": "boolean"}]}}]})");
  for (const BadText& bad : cases) {
    folder.write("t.csv", bad.bytes);
    EXPECT_EQ(messageOf(folder, folder.path()), bad.message) << bad.what;
  }
}

TEST(DataSet, RefusesDatesAndTimesThatAreNone) {
  const std::pair<const char*, std::vector<const char*>> cases[] = {
      {"date",
       {"2000-13-01", "2001-02-29", "2000-01-00", "2000-1-05", "2000-01-05x", "20000105",
        "2000-01-0-", "-200-01-01", "2000/01/05", "0", "2000-01-05T00:00:00"}},
      {"datetime",
       {"2000-01-05", "2000-01-05 13:45:30", "2000-01-05T13:45", "2000-01-05T24:00:00",
        "2000-01-05T13:45:30+", "2000-01-05T13:45:30+25:00", "2000-01-05T13:45:30ZZ",
        "2000-01-32T13:45:30"}},
      {"time", {"13:45", "13:60:00", "13:45:60", "13:45:30.", "13:45:30Z", "1:45:30", "13:45:-1"}},
      {"year", {"200", "20.00", "+2000", "2000-01", "1234567890"}},
      {"yearmonth", {"2000-00", "2000-13", "2000-1", "2000"}},
  };
  const std::map<std::string, const char*> shapes = {
      {"date", "a date (yyyy-mm-dd)"},
      {"datetime", "a date and time (yyyy-mm-ddThh:mm:ss)"},
      {"time", "a time (hh:mm:ss)"},
      {"year", "a year (yyyy)"},
      {"yearmonth", "a year and month (yyyy-mm)"},
  };
  ScratchFolder folder;
  for (const auto& [type, texts] : cases) {
    folder.write("datapackage.json",
                 fmt::format(R"({{"resources": [{{"path": "t.csv", "schema": {{"fields": [
                     {{"name": "n", "type": "{}"}}]}}}}]}})",
                             type));
    for (const char* text : texts) {
      folder.write("t.csv", fmt::format("n\n\n{}\n", text));
      EXPECT_EQ(messageOf(folder, folder.path()),
                fmt::format("t.csv:3:1: field \"n\": \"{}\" is not {}", text, shapes.at(type)));
    }
  }
}

TEST(DataSet, RefusesADescriptorThatIsNotJsonWithLineAndColumn) {
  const BadText cases[] = {
      {"nothing", "",
       "p.json:1:1: syntax error while parsing value - unexpected end of input; "
       "expected '[', '{', or a literal"},
      {"no quotes", "{\n  name: 1}",
       "p.json:2:4: syntax error while parsing object key - invalid literal; expected string "
       "literal"},
      {"number", "{\n\"a\": 1e999}", "p.json:2:11: a number is out of the range of numbers"},
      {"invalid byte", "{\"a\": \"\xFF\"}",
       "p.json:1:8: syntax error while parsing value - invalid string: ill-formed UTF-8 byte"},
  };
  ScratchFolder folder;
  for (const BadText& bad : cases)
    EXPECT_EQ(messageOf(folder, folder.write("p.json", bad.bytes)), bad.message) << bad.what;
}

TEST(DataSet, RefusesADescriptorThatDescribesNoTable) {
  const BadText cases[] = {
      {"no resource", R"({"resources": []})", "\"resources\" names no resource"},
      {"no list", R"({"resources": {}})", "\"resources\" must be a list"},
      {"no path", R"({"resources": [{}]})", "the first resource has no \"path\""},
      {"path list", R"({"resources": [{"path": ["t.csv"]}]})",
       "\"path\" must be a text, not a list"},
      {"parent", R"({"resources": [{"path": "a/../../t.csv"}]})",
       "\"path\" \"a/../../t.csv\" leads out of the package"},
      {"absolute", R"({"resources": [{"path": "/t.csv"}]})",
       "\"path\" \"/t.csv\" leads out of the package"},
      {"NUL", R"({"resources": [{"path": "t\u0000.csv"}]})", "\"path\" holds a NUL character"},
      {"encoding", R"({"resources": [{"path": "t.csv", "encoding": "latin1"}]})",
       "the encoding \"latin1\" is not supported, only utf-8"},
      {"dialect", R"({"resources": [{"path": "t.csv", "dialect": {"delimiter": ";"}}]})",
       "\"dialect\": \"delimiter\" of \";\" is not supported"},
      {"schema", R"({"resources": [{"path": "t.csv", "schema": "s.json"}]})",
       "\"schema\" must be an object"},
      {"fields", R"({"resources": [{"path": "t.csv", "schema": {}}]})",
       "\"schema\" has no \"fields\""},
  };
  ScratchFolder folder;
  for (const BadText& bad : cases)
    EXPECT_EQ(messageOf(folder, folder.write("p.json", bad.bytes)),
              fmt::format("p.json: {}", bad.message))
        << bad.what;
}

TEST(DataSet, RefusesADescriptionOfAFieldWithItsName) {
  const BadText cases[] = {
      {"no name", R"({"type": "number"})", "1: the field has no \"name\""},
      {"type", R"({"name": "a", "type": "duration"})",
       "\"a\": the type \"duration\" is not supported, only string, number, integer, boolean, "
       "date, datetime, time, year and yearmonth"},
      {"pattern", R"({"name": "a", "type": "date", "format": "%d.%m.%Y"})",
       "\"a\": a date is read in the standard's default form only, not as \"%d.%m.%Y\""},
      {"any form", R"({"name": "a", "type": "time", "format": "any"})",
       "\"a\": a time is read in the standard's default form only, not as \"any\""},
      {"date's decimals", R"({"name": "a", "type": "number", "format": "DATE11.2"})",
       "\"a\": the display format \"DATE11.2\" needs a width of 1 to 40 and 0 to 0 decimals"},
      {"text by code", R"({"name": "a", "format": "FORMAT1.8"})",
       "\"a\": the display format \"FORMAT1.8\" is not known"},
      {"unknown code", R"({"name": "a", "type": "number", "format": "FORMAT41.8"})",
       "\"a\": the display format \"FORMAT41.8\" is not known"},
      {"category's date", R"({"name": "a", "type": "date", "categories": ["5"]})",
       "\"a\": \"5\" is not a date (yyyy-mm-dd)"},
      {"format", R"({"name": "a", "type": "number", "format": "Q8"})",
       "\"a\": the display format \"Q8\" is not known"},
      {"format's shape", R"({"name": "a", "type": "number", "format": "F8.x"})",
       "\"a\": the display format \"F8.x\" is not a name, a width and decimals like F8.2"},
      {"format's width", R"({"name": "a", "type": "number", "format": "F41.2"})",
       "\"a\": the display format \"F41.2\" needs a width of 1 to 40 and 0 to 16 decimals"},
      {"format's kind", R"({"name": "a", "type": "number", "chartxml:format": "A8"})",
       "\"a\": the display format \"A8\" does not go with the type \"number\""},
      {"category", R"({"name": "a", "type": "number", "categories": ["x"]})",
       "\"a\": the category \"x\" does not go with the type \"number\""},
      {"category twice", R"({"name": "a", "categories": ["x", {"value": "x ", "label": "X"}]})",
       "\"a\": the category \"x \" stands twice"},
      {"category without value", R"({"name": "a", "categories": [{"label": "X"}]})",
       "\"a\": a category has no \"value\""},
      {"title", R"({"name": "a", "title": 7})", "\"a\": \"title\" must be a text, not \"7\""},
      {"missing values", R"({"name": "a", "missingValues": "NA"})",
       "\"a\": \"missingValues\" must be a list"},
  };
  ScratchFolder folder;
  for (const BadText& bad : cases) {
    const auto path =
        folder.write("p.json", R"({"resources": [{"path": "t.csv", "schema": {"fields": [)" +
                                   bad.bytes + "]}}]}");
    EXPECT_EQ(messageOf(folder, path), fmt::format("p.json: field {}", bad.message)) << bad.what;
  }
}

} // namespace
