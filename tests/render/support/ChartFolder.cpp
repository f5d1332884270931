#include "render/support/ChartFolder.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include <fmt/format.h>
#include <render/Pages.h>

TestFolder::TestFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "render-XXXXXX").native();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = name;
}

TestFolder::~TestFolder() { std::filesystem::remove_all(path_); }

const TestFolder& TestFolder::write(std::string_view name, std::string_view text) const {
  const std::filesystem::path file = path_ / name;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
  return *this;
}

std::string TestFolder::read(std::string_view name) const {
  std::ifstream stream(path_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

nlohmann::json TestFolder::spec() const {
  render::writeChart(path_);
  return nlohmann::json::parse(read("chart.vg.json"));
}

std::string document(std::string_view plot, std::string_view rest) {
  return fmt::format(R"(<graph name="small">
<source id="source0"><otherAccess type="object"/></source>
<variable id="v1" sourceName="A" source="source0" categorical="false" label="A label"/>
<variable id="v2" sourceName="B" source="source0" categorical="false" shortLabel="b"/>
<variable id="v3" sourceName="Group" source="source0" categorical="true" label="Group">
 <relabel from="a" to="Ä"/></variable>
<frame id="data">{}</frame>{}</graph>)",
                     plot, rest);
}
