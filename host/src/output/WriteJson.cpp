#include "output/WriteJson.h"

#include "output/FileWriter.h"

void host::writeJson(const std::filesystem::path& path, const nlohmann::ordered_json& json) {
  constexpr int indent = 2;
  FileWriter file(path);
  file.write(json.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
  file.write('\n');
  file.finish();
}
