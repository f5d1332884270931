#include <host/ChartFiles.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <fmt/format.h>
#include <host/DataSet.h>
#include <nettle/sha2.h>
#include <unistd.h>

#include "data/JsonFile.h"
#include "output/Descriptor.h"
#include "output/Failure.h"
#include "output/JsonWriter.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* errorsKey = "errors";
constexpr const char* findingsKey = "findings";
constexpr const char* versionsKey = "versions";
constexpr const char* filesKey = "files";
constexpr std::array endKeys{errorsKey, findingsKey, versionsKey, filesKey};

nlohmann::ordered_json findingsJson(const std::vector<Finding>& findings) {
  auto json = nlohmann::ordered_json::array();
  for (const Finding& finding : findings) {
    nlohmann::ordered_json one{{"check", finding.check}, {"node", finding.node}};
    if (finding.call > 0) one.update({{"call", finding.call}, {"name", finding.callName}});
    one["text"] = finding.text;
    json.push_back(std::move(one));
  }
  return json;
}

/// Copies a manifest up to its end, which is written anew.
class CopyManifest final : public nlohmann::json_sax<nlohmann::json> {
public:
  CopyManifest(JsonWriter& writer, const ChartFiles& files) : writer_(writer), files_(files) {}

  bool null() override { return copy(nullptr); }
  bool boolean(bool value) override { return copy(value); }
  bool number_integer(number_integer_t value) override { return copy(value); }
  bool number_unsigned(number_unsigned_t value) override { return copy(value); }
  bool number_float(number_float_t, const string_t& text) override {
    if (!skips_) writer_.number(text);
    return true;
  }
  bool string(string_t& text) override { return copy(text); }
  bool binary(binary_t&) override { return false; } // no JSON text holds one

  bool key(string_t& name) override {
    if (depth_ == 1) skips_ = std::ranges::find(endKeys, name) != endKeys.end();
    if (!skips_) writer_.key(name);
    return true;
  }
  bool start_object(std::size_t) override {
    ++depth_;
    if (!skips_) writer_.beginObject();
    return true;
  }
  bool start_array(std::size_t) override {
    ++depth_;
    if (!skips_) writer_.beginArray();
    return true;
  }
  bool end_object() override { return end(); }
  bool end_array() override { return end(); }

  bool parse_error(std::size_t, const std::string&,
                   const nlohmann::detail::exception& error) override {
    reason_ = reasonOf(error);
    return false;
  }
  const std::string& reason() const { return reason_; }

private:
  bool copy(const nlohmann::ordered_json& value) {
    if (!skips_) writer_.value(value);
    return true;
  }

  bool end() {
    if (--depth_ == 0) writeEnd();
    if (!skips_) writer_.end();
    return true;
  }

  void writeEnd() {
    skips_ = false;
    writer_.member(errorsKey, files_.errors);
    writer_.member(findingsKey, findingsJson(files_.findings));
    writer_.member(versionsKey, files_.versions);
    writer_.member(filesKey, files_.files);
  }

  JsonWriter& writer_;
  const ChartFiles& files_;
  std::string reason_;
  std::size_t depth_ = 0;
  bool skips_ = false; ///< inside of what is written anew
};

void copyManifest(const fs::path& from, const fs::path& to, const ChartFiles& files) {
  std::ifstream in(from, std::ios::binary);
  if (!in) fail("read", from, lastError());
  FileWriter out(to);
  JsonWriter writer(out);
  CopyManifest copy(writer, files);
  if (!nlohmann::json::sax_parse(in, &copy))
    throw DataError(fmt::format("{}: {}", from.native(), copy.reason()));
  out.finish();
}

std::map<std::string, std::string> textsOf(const nlohmann::json& manifest, const char* key) {
  std::map<std::string, std::string> texts;
  if (const nlohmann::json* object = member(manifest, key); object && object->is_object())
    for (const auto& [name, value] : object->items())
      if (value.is_string()) texts.emplace(name, value.get<std::string>());
  return texts;
}

} // namespace

std::string hashOf(const fs::path& file) {
  Descriptor in(open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (!in) fail("read", file, lastError());
  sha256_ctx context;
  sha256_init(&context);
  std::vector<std::uint8_t> buffer(std::size_t{1} << 16);
  while (const ssize_t count = read(in.get(), buffer.data(), buffer.size())) {
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail("read", file, lastError());
    sha256_update(&context, static_cast<std::size_t>(count), buffer.data());
  }
  std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest{};
  sha256_digest(&context, digest.size(), digest.data());
  return fmt::format("sha256:{:02x}", fmt::join(digest, ""));
}

std::vector<std::string> filesIn(const fs::path& chartFolder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::recursive_directory_iterator entry(chartFolder, error), end; !error && entry != end;
       entry.increment(error)) {
    const bool isFolder = entry->is_directory() && !entry->is_symlink();
    std::string name = entry->path().lexically_relative(chartFolder).native();
    if (!isFolder && name != manifestName) names.push_back(std::move(name));
  }
  if (error) fail("read", chartFolder, error);
  std::ranges::sort(names);
  return names;
}

ChartFiles readChartFiles(const fs::path& chartFolder) {
  const nlohmann::json manifest = readJson(chartFolder / manifestName);
  ChartFiles files{.errors = {},
                   .versions = textsOf(manifest, versionsKey),
                   .files = textsOf(manifest, filesKey),
                   .findings = {}};
  if (const nlohmann::json* errors = member(manifest, errorsKey); errors && errors->is_array())
    for (const nlohmann::json& text : *errors)
      if (text.is_string()) files.errors.push_back(text.get<std::string>());
  return files;
}

void writeChartFiles(const fs::path& chartFolder, const ChartFiles& files) {
  const fs::path manifest = chartFolder / manifestName;
  const fs::path aside = chartFolder / fmt::format("{}.{}.tmp", manifestName, getpid());
  std::error_code error;
  try {
    copyManifest(manifest, aside, files);
  } catch (...) {
    fs::remove(aside, error);
    throw;
  }
  fs::rename(aside, manifest, error);
  if (!error) return;
  std::error_code ignored;
  fs::remove(aside, ignored);
  fail("write", manifest, error);
}

} // namespace host
