// panelsim faults: replays scenario files with one mediator call or data manager read failing at
// a time, each in a child process, and checks that the panel survives it.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace orvanta::sim {

struct sweep_options {
  std::vector<std::string> files;
  // Only the first injection of each distinct point (mediator verb and node, or data manager
  // key) over all files: every injection point the files reach, each hit once.
  bool cover = false;
  int point = -1;  // run only this point of the single file given, in this process
  unsigned hang_seconds = 10;
  std::string model;  // text of a model file added to the default model
  bool list = false;  // print the points instead of running them
};

class panel_runtime;

// Answers 0 when every injection passed, 1 when one failed, 2 on bad input.
int command_faults(const sweep_options& options, std::ostream& out);
// The same on a runtime the caller wired (tests plant screens of their own in it).
int run_faults(panel_runtime& runtime, const sweep_options& options, std::ostream& out);

}  // namespace orvanta::sim
