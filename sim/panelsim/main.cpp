// panelsim: the operation panel on a PC, interactive or driven by scenario files.
#include <CLI/CLI.hpp>

#include <iostream>
#include <string>
#include <vector>

#include "commands.h"
#include "fault_sweep.h"
#include "monkey.h"
#include "orvanta/sim/names.h"
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

  monkey_options monkey_opts;
  std::vector<std::string> monkey_ids;
  std::string monkey_machine;
  CLI::App* monkey = app.add_subcommand(
      "monkey",
      "random keys, panel events and time on every screen; a failure is cut down to a "
      "scenario file");
  monkey->add_option("--seed", monkey_opts.seed, "seed of the random streams (default 1)");
  monkey->add_option("--events", monkey_opts.events, "inputs per screen (default 50)")
      ->check(CLI::Range(0, 1000000));
  monkey->add_option("--id", monkey_ids, "only these contents ids (default: every routed id)");
  monkey->add_option("--out", monkey_opts.out_dir,
                     "folder for the scenario files of failures (default .)");
  monkey
      ->add_option("--stack-bound", monkey_opts.stack_bound,
                   "open pages that count as runaway growth (default 24)")
      ->check(CLI::Range(1, 100000));
  monkey
      ->add_option("--hang-seconds", monkey_opts.hang_seconds,
                   "a step taking longer is a hang (default 10)")
      ->check(CLI::Range(1, 3600));
  monkey
      ->add_option("--batch", monkey_opts.batch,
                   "ids run in one child process; a failing batch runs again an id a child "
                   "(default 50)")
      ->check(CLI::Range(1, 100000));
  monkey->add_option("--machine", monkey_machine, "model file added to the default machine");

  sweep_options sweep_opts;
  std::string sweep_machine;
  CLI::App* faults = app.add_subcommand(
      "faults",
      "replay scenario files with each mediator call and data manager read failing in turn");
  faults->add_option("FILE", sweep_opts.files, "scenario files")->required();
  faults->add_flag("--cover", sweep_opts.cover,
                   "only the first injection of each distinct point over all files");
  faults->add_option("--point", sweep_opts.point, "run only this point of one file, in process");
  faults->add_flag("--list", sweep_opts.list, "print the injection points, run nothing");
  faults
      ->add_option("--hang-seconds", sweep_opts.hang_seconds,
                   "an input taking longer is a hang (default 10)")
      ->check(CLI::Range(1, 3600));
  faults->add_option("--machine", sweep_machine, "model file added to the default machine");

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
    if (*monkey) {
      if (!load_model_file(monkey_machine, model))
        return kExitUsage;
      monkey_opts.model = model;
      for (const std::string& text : monkey_ids) {
        const std::optional<int> id = parse_contents_id(text);
        if (!id) {
          std::cerr << "panelsim: unknown contents id " << text << "\n";
          return kExitUsage;
        }
        monkey_opts.ids.push_back(*id);
      }
      return command_monkey(monkey_opts, std::cout);
    }
    if (*faults) {
      if (!load_model_file(sweep_machine, model))
        return kExitUsage;
      sweep_opts.model = model;
      return command_faults(sweep_opts, std::cout);
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
