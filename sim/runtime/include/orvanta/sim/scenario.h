// Scenario files: runs them on a panel runtime and reports PASS or FAIL per file.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "orvanta/sim/panel_runtime.h"

namespace orvanta::sim {

struct script_options {
  std::string model;           // text of a model file added to the default model; empty: none
  bool verbose = false;        // print each line as it runs, and the trace
  bool update_frames = false;  // `expect frame` writes a missing or differing file
  // For fault sweeps, where a file runs under injected failures:
  bool keep_going = false;         // a failing line is counted and the file goes on
  bool skip_expectations = false;  // `expect` and `show` lines are not run
  std::function<void()> on_input;  // called as each input command starts, before it runs
};

struct file_outcome {
  std::string file;  // as given
  bool passed = false;
  std::string report;  // "PASS <file>" or the FAIL line
  std::string reason;  // what failed, for reports
  double seconds = 0;
  int failed_lines = 0;  // with keep_going: the lines that failed
};

// Runs one scenario file on `runtime`, which it resets first. Prints what -v asks for to `out`;
// the PASS or FAIL line is in the outcome, not printed.
file_outcome run_scenario_file(panel_runtime& runtime, const std::string& file,
                               const script_options& options, std::ostream& out);

// `panelsim script`: one line per file, then "N passed, N failed". Writes a JUnit report when
// `junit` names a file. Answers 0 when every file passed, 1 otherwise (2 when the report cannot
// be written).
int run_scripts(const std::vector<std::string>& files, const script_options& options,
                const std::string& junit, std::ostream& out);

// The JUnit XML report of the outcomes: one test case per file.
std::string junit_report(const std::vector<file_outcome>& outcomes);

}  // namespace orvanta::sim
