#include "Pictures.h"

#include <algorithm>
#include <deque>
#include <numeric>
#include <set>
#include <stdexcept>

#include <fmt/format.h>
#include <host/StringTables.h>
#include <nlohmann/json.hpp>

#include "Node.h"

namespace tools {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

/// Charts by their numbers among those that are drawn.
using Charts = std::vector<std::size_t>;

fs::path runtimeFile(const char* name) { return fs::path(host::shareFolder()) / "runtime" / name; }

/// The Node.js that came with the picture packages, else the one on the path.
std::string nodeProgram(const PictureOptions& options) {
  if (!options.node.empty()) return options.node;
  const fs::path beside = runtimeFile("node");
  return exists(beside) ? beside.native() : "node";
}

fs::path pictureScript() {
  fs::path script = runtimeFile("chartxml-pictures.mjs");
  if (!exists(script))
    throw std::runtime_error(fmt::format("pictures need {}, which is not there: it is built when "
                                         "the packages of package.json are installed (npm ci)",
                                         script.native()));
  return script;
}

/// Draws charts with one process after the other.
class Drawing {
public:
  Drawing(const std::vector<fs::path>& folders, const PictureOptions& options)
      : folders_(folders), options_(options), pictures_(folders.size()) {
    Charts all(folders.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    if (!all.empty()) turns_.push_back(std::move(all));
  }

  std::vector<DrawnPictures> run() {
    while (!turns_.empty()) {
      const Charts charts = std::move(turns_.front());
      turns_.pop_front();
      try {
        drawInTurn(charts);
      } catch (const std::runtime_error& error) {
        fail(charts, error.what());
      }
    }
    return std::move(pictures_);
  }

private:
  /// What a process has told, by the places of charts in its turn.
  struct Told {
    std::set<std::size_t> begun{}; ///< and not ended
    std::set<std::size_t> ended{};
  };

  void drawInTurn(const Charts& charts) {
    Node node(nodeProgram(options_), pictureScript().native());
    Told told;
    node.talk(requestFor(charts), [&](std::string_view line) { take(line, charts, told); });
    const std::string end = node.wait();
    if (told.ended.size() == charts.size()) return;
    removeRests(charts, node.id());
    goOn(charts, told, fmt::format("Node.js {}", end.empty() ? "ended" : end));
  }

  std::string requestFor(const Charts& charts) const {
    json request{{"svg", options_.svg}, {"png", options_.png}, {"pdf", options_.pdf}};
    for (const std::size_t chart : charts)
      request["folders"].push_back(folders_[chart].native());
    return request.dump(-1, ' ', false, json::error_handler_t::replace);
  }

  /// A line that is none of the script's is passed over.
  void take(std::string_view line, const Charts& charts, Told& told) {
    const json event = json::parse(line, nullptr, false);
    if (!event.is_object()) return;
    const json number = event.value(event.contains("begun") ? "begun" : "ended", json());
    const std::size_t place =
        number.is_number_unsigned() ? number.get<std::size_t>() : charts.size();
    if (place >= charts.size()) return;
    if (event.contains("begun")) {
      told.begun.insert(place);
      return;
    }
    told.begun.erase(place);
    told.ended.insert(place);
    DrawnPictures& drawn = pictures_[charts[place]];
    for (const json& file : event.value("files", json::array()))
      if (file.is_string()) drawn.files.push_back(file.get<std::string>());
    if (const json trouble = event.value("trouble", json()); trouble.is_string())
      drawn.trouble = trouble.get<std::string>();
  }

  /// A process that ended early did so at the chart that it drew. Of several, which threads
  /// drew, each is tried by itself; the others follow.
  void goOn(const Charts& charts, const Told& told, const std::string& why) {
    Charts suspects;
    Charts others;
    for (std::size_t place = 0; place < charts.size(); ++place)
      if (!told.ended.contains(place))
        (told.begun.contains(place) ? suspects : others).push_back(charts[place]);
    if (suspects.size() == 1) fail(suspects, why);
    if (suspects.empty() && told.ended.empty()) return fail(others, why);
    if (!others.empty()) turns_.push_front(std::move(others));
    if (suspects.size() == 1) return;
    for (const std::size_t suspect : suspects)
      turns_.push_back({suspect});
  }

  void fail(const Charts& charts, const std::string& why) {
    for (const std::size_t chart : charts)
      pictures_[chart] = {.trouble = why, .nodeFailed = true};
  }

  /// What the process was writing when it ended.
  void removeRests(const Charts& charts, pid_t process) const {
    const std::string ending = fmt::format(".{}.tmp", process);
    std::error_code ignored;
    for (const std::size_t chart : charts)
      for (const char* picture : {"chart.svg", "chart.png", "chart.pdf"})
        fs::remove(folders_[chart] / (picture + ending), ignored);
  }

  const std::vector<fs::path>& folders_;
  const PictureOptions& options_;
  std::vector<DrawnPictures> pictures_;
  std::deque<Charts> turns_; ///< each for a process of its own
};

} // namespace

std::vector<DrawnPictures> drawPictures(const std::vector<fs::path>& folders,
                                        const PictureOptions& options) {
  return Drawing(folders, options).run();
}

} // namespace tools
