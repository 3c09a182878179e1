// Runs a piece of the panel in a child process, so that a crash, a sanitizer report or a hang
// ends the child and not the harness that drives it.
#pragma once

#include <functional>
#include <string>

namespace orvanta::sim {

// Exit codes a child uses for the checks the harness makes itself; anything else non-zero is a
// crash or a sanitizer report.
inline constexpr int kChildTimerLoop = 70;    // the proxy stopped a 0 ms timer loop
inline constexpr int kChildPostingLoop = 71;  // the runtime's drain found a posting loop
inline constexpr int kChildStackBound = 72;   // more pages open than the bound allows
inline constexpr int kChildLockCount = 73;    // a hard key lock count outlived its screens
inline constexpr int kChildDeadPage = 74;     // a page in the stack does not answer
inline constexpr int kChildThrew = 75;        // an exception left the body
inline constexpr int kChildMissedPoint = 76;  // a fault landed on another call than the clean run's

struct child_result {
  bool ok = false;
  bool hang = false;   // the child's step watchdog fired
  bool crash = false;  // killed by a signal, or a sanitizer's exit
  int exit_code = 0;   // when it exited
  int signal = 0;      // when a signal ended it
  std::string what() const;
};

// Re-arms the child's watchdog: the child is ended (a hang) when the next call does not come
// within `seconds`. Call it before each step that could hang.
void watchdog(unsigned seconds);

// Forks; the child runs `body` and exits with its answer (0 success). With `quiet` the child's
// standard output and error go to /dev/null. The child's exit runs the leak check of
// LeakSanitizer when the build has it.
child_result run_isolated(const std::function<int()>& body, bool quiet);

}  // namespace orvanta::sim
