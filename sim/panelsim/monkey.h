// panelsim monkey: random keys, panel events and time on every screen the factory routes, each
// run in a child process, with the failing runs cut down to a scenario file.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace orvanta::sim {

struct monkey_options {
  unsigned long seed = 1;
  int events = 50;             // inputs per id after its screens open
  std::vector<int> ids;        // empty: every id the factory routes
  std::string out_dir = ".";   // where the scenario files of failures go
  int stack_bound = 24;        // open pages (all functions) that count as runaway growth
  unsigned hang_seconds = 10;  // a step that takes longer is a hang
  int max_trials = 200;        // child runs spent on cutting one failure down
  int batch = 50;              // ids run one after another in one child
  std::string model;           // text of a model file added to the default model
};

class panel_runtime;

// Answers 0 when every id passed, 1 when one failed (its scenario file written), 2 on bad input.
int command_monkey(const monkey_options& options, std::ostream& out);
// The same on a runtime the caller wired (tests plant screens of their own in it).
int run_monkey(panel_runtime& runtime, const monkey_options& options, std::ostream& out);

// Every id for which the factory makes a screen, ascending.
std::vector<int> routed_ids();
// The screen a monkey or fault run opens first in `function`: the function's first screen, and
// the maintenance top for maintenance.
int base_screen_of(int function);

}  // namespace orvanta::sim
