#include <exception>
#include <functional>
#include <iostream>
#include <string>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <host/ChartError.h>
#include <host/Version.h>
#include <render/Pages.h>

#include "Completion.h"
#include "Verbs.h"

/// The command line for charts that were written before.
namespace {

using tools::Status;

constexpr const char* exitStatus = R"text(
Exit status:
  0  all is well
  1  a chart is not as it should be: a file of it is missing, damaged or refused
  2  the command line is not understood, or names what is not there
  3  the work could not be done: a file cannot be written, Node.js is missing or ended

"chartxml <verb> --help" tells more of a verb; "source <(chartxml completion bash)", or
zsh, completes verbs and options.)text";

/// The command line with what each verb does.
class CommandLine {
public:
  CommandLine() {
    app_.set_version_flag("--version", fmt::format("chartxml {}", host::libraryVersion()),
                          "Print the version and end");
    addRender();
    addGallery();
    addValidate();
    addVerify();
    addInfo();
    app_.footer("\nExamples:\n" + examples_ + exitStatus);
    addCompletion();
  }

  Status run(int argc, char** argv) {
    try {
      app_.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
      return app_.exit(error) == 0 ? tools::good : tools::usage;
    }
    if (verb_) return verb_();
    std::cerr << app_.help();
    return tools::usage;
  }

private:
  /// A verb and its example; `run` is what it does.
  CLI::App& add(const char* name, const char* purpose, const char* example,
                std::function<Status()> run) {
    CLI::App& verb = *app_.add_subcommand(name, purpose);
    verb.footer(fmt::format("\nExample:\n  {}", example));
    examples_ += fmt::format("  {}\n", example);
    verb.callback([this, run = std::move(run)] { verb_ = run; });
    return verb;
  }

  void takeFolders(CLI::App& verb, const char* what) {
    verb.add_option("folder", arguments_, what)->required()->check(CLI::ExistingDirectory);
  }

  void offerJson(CLI::App& verb) {
    verb.add_flag("--json", asJson_, "Print one JSON value instead of lines");
  }

  void addRender() {
    CLI::App& verb =
        add("render", "Draw charts anew: Vega chart, page, pictures, gallery",
            "chartxml render charts --svg --png\n"
            "  chartxml render speeds.xml --data source0.csv --output drawn",
            [this] { return tools::render(arguments_, documents_, pictures_, asJson_); });
    verb.add_option("file", arguments_,
                    "Chart folders, output folders that hold some, or documents: of each a chart "
                    "folder of its name is made")
        ->required()
        ->check(CLI::ExistingPath);
    verb.add_option("--data", documents_.data,
                    "A CSV file that a document reads, by name that of a source; else those "
                    "beside it. May be given again")
        ->allow_extra_args(false)
        ->check(CLI::ExistingFile);
    verb.add_option("--output", documents_.output,
                    "Make the chart folders of documents here, not beside them");
    verb.add_flag("--svg", pictures_.svg, "Draw chart.svg");
    verb.add_flag("--png", pictures_.png, "Draw chart.png");
    verb.add_flag("--pdf", pictures_.pdf, "Draw chart.pdf");
    verb.add_option("--theme", pictures_.theme,
                    "Draw in this theme, whatever the charts' templates say")
        ->check(CLI::IsMember(render::themes()));
    verb.add_option("--node", pictures_.node, "The Node.js program to draw pictures with")
        ->check(CLI::ExistingFile);
    offerJson(verb);
  }

  void addGallery() {
    CLI::App& verb =
        add("gallery", "Make index.html of an output folder anew", "chartxml gallery charts",
            [this] { return tools::gallery(arguments_, asJson_); });
    takeFolders(verb, "Output folders");
    offerJson(verb);
  }

  void addValidate() {
    CLI::App& verb = add("validate", "Check chart documents against their grammar and their data",
                         "chartxml validate charts/0001-penguins/chart.xml",
                         [this] { return tools::validate(arguments_, asJson_); });
    verb.add_option("file", arguments_,
                    "Documents, chart folders, or output folders that hold some")
        ->required()
        ->check(CLI::ExistingPath);
    offerJson(verb);
  }

  void addVerify() {
    CLI::App& verb =
        add("verify", "Check that chart folders are as their manifests list them",
            "chartxml verify charts", [this] { return tools::verify(arguments_, asJson_); });
    takeFolders(verb, "Chart folders, or output folders that hold some");
    offerJson(verb);
  }

  void addInfo() {
    CLI::App& verb = add("info", "Tell what charts are: texts, data, files, versions",
                         "chartxml info charts/0001-penguins --json",
                         [this] { return tools::info(arguments_, asJson_); });
    takeFolders(verb, "Chart folders, or output folders that hold some");
    offerJson(verb);
  }

  void addCompletion() {
    CLI::App& verb = add("completion", "Print the script by which a shell completes chartxml",
                         "source <(chartxml completion bash)", [this] {
                           std::cout << (shell_ == "zsh" ? tools::zshCompletion(app_)
                                                         : tools::bashCompletion(app_));
                           return tools::good;
                         });
    verb.add_option("shell", shell_, "bash or zsh")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh"}));
  }

  CLI::App app_{"Pages, pictures and checks of charts.", "chartxml"};
  tools::Arguments arguments_;
  tools::DocumentOptions documents_;
  tools::PictureOptions pictures_;
  std::string shell_;
  std::string examples_;
  bool asJson_ = false;
  std::function<Status()> verb_;
};

Status fail(Status status, const std::string& why) {
  std::cerr << "chartxml: " << why << '\n';
  return status;
}

} // namespace

int main(int argc, char** argv) {
  try {
    const Status status = CommandLine().run(argc, argv);
    return std::cout.flush() ? status : fail(tools::failed, "the output cannot be written");
  } catch (const tools::UsageError& error) {
    return fail(tools::usage, error.what());
  } catch (const tools::ChartError& error) {
    return fail(tools::findings, error.what());
  } catch (const ChartException& error) {
    return fail(tools::failed, error.what());
  } catch (const std::exception& error) {
    return fail(tools::failed, error.what());
  }
}
