// panelsim: the operation panel on a PC, interactive or driven by scenario files.
#include <CLI/CLI.hpp>

#include <iostream>
#include <string>
#include <vector>

#include "commands.h"
#include "orvanta/sim/scenario.h"

using namespace orvanta::sim;

int main(int argc, char** argv) {
  CLI::App app{
      "panelsim: the operation panel of the printer on a PC, with a simulated machine behind "
      "it.\nWithout a command it runs the interactive panel (run)."};
  app.set_version_flag("--version", std::string("panelsim ") + ORVANTA_VERSION);
  app.require_subcommand(0, 1);
  app.footer(
      "An ID is a number or a CID_ name. Exit codes: 0 success, 1 a scenario failed, 2 bad "
      "usage or input.\nThe key map, the scenario language and model files: docs/panelsim.md.");

  std::string resources;
  app.add_option("--resources", resources,
                 "resource file of texts and icons used instead of the compiled-in one");

  // `run` is the default command, so its options are also accepted without it.
  std::string run_machine;
  int run_function = 1;
  std::string record;
  auto add_run_options = [&](CLI::App* a) {
    a->add_option("--machine", run_machine, "model file added to the default machine");
    a->add_option("--function", run_function, "function shown at the start (default 1, copy)")
        ->check(CLI::Range(0, 36));
    a->add_option("--record", record, "write the session's inputs as a scenario file");
  };
  add_run_options(&app);
  CLI::App* run = app.add_subcommand("run", "interactive panel in the terminal (the default)");
  add_run_options(run);

  std::string demo_machine;
  CLI::App* demo =
      app.add_subcommand("demo", "a built-in tour through a few screens, printing each frame");
  demo->add_option("--machine", demo_machine, "model file added to the default machine");

  std::vector<std::string> files;
  script_options options;
  std::string script_machine;
  std::string junit;
  CLI::App* script = app.add_subcommand("script", "run scenario files");
  script->add_option("FILE", files, "scenario files")->required();
  script->add_option("--machine", script_machine, "model file added to the default machine");
  script->add_flag("-v,--verbose", options.verbose, "print each line as it runs and the trace");
  script->add_option("--junit", junit, "write a JUnit XML report, one test case per file");
  script->add_flag("--update-frames", options.update_frames,
                   "expect frame writes a missing or differing frame file");

  std::vector<std::string> ids;
  CLI::App* info =
      app.add_subcommand("info", "one line per id: <number> <name> <class> group=<g> state=<s>");
  info->add_option("ID", ids, "contents ids: numbers or CID_ names")->required();

  std::string shot_id;
  int shot_function = -1;
  std::string shot_machine;
  std::string png;
  std::string pbm;
  CLI::App* shot = app.add_subcommand(
      "shot", "open a screen and render its frame (text on standard output without a file)");
  shot->add_option("ID", shot_id, "contents id: a number or a CID_ name")->required();
  shot->add_option("--function", shot_function, "function to open it in (default: its area's)")
      ->check(CLI::Range(0, 36));
  shot->add_option("--machine", shot_machine, "model file added to the default machine");
  CLI::Option* png_opt = shot->add_option("--png", png, "write a PNG file");
  CLI::Option* pbm_opt = shot->add_option("--pbm", pbm, "write a PBM file");
  png_opt->excludes(pbm_opt);

  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& e) {
    return app.exit(e);
  } catch (const CLI::CallForAllHelp& e) {
    return app.exit(e);
  } catch (const CLI::CallForVersion& e) {
    return app.exit(e);
  } catch (const CLI::ParseError& e) {
    app.exit(e);
    return kExitUsage;
  }

  try {
    if (!load_resource_file(resources))
      return kExitUsage;
    std::string model;
    if (*script) {
      if (!load_model_file(script_machine, model))
        return kExitUsage;
      options.model = model;
      return run_scripts(files, options, junit, std::cout);
    }
    if (*info)
      return command_info(ids);
    if (*shot) {
      if (!load_model_file(shot_machine, model))
        return kExitUsage;
      return command_shot(shot_id, shot_function, model, png, pbm);
    }
    if (*demo) {
      if (!load_model_file(demo_machine, model))
        return kExitUsage;
      return command_demo(model);
    }
    if (!load_model_file(run_machine, model))
      return kExitUsage;
    return command_run(model, run_function, record);
  } catch (const std::exception& e) {
    std::cerr << "panelsim: " << e.what() << "\n";
    return kExitUsage;
  }
}
