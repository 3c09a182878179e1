// Child processes for the monkey and the fault sweep: fork, a watchdog per step, and the reading
// of how the child ended.
#include "isolated.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>

namespace orvanta::sim {

std::string child_result::what() const {
  if (ok)
    return "passed";
  if (hang)
    return "hang: a dispatch did not return within the bound";
  if (signal != 0)
    return std::string("crash: ended by signal ") + std::to_string(signal) + " (" +
           strsignal(signal) + ")";
  switch (exit_code) {
    case kChildTimerLoop:
      return "hang: the proxy stopped a 0 ms timer that fired 100 times in a row";
    case kChildPostingLoop:
      return "hang: events kept being posted and the drain stopped";
    case kChildStackBound:
      return "page stack grew past its bound";
    case kChildLockCount:
      return "a hard key lock count stayed above zero after its screens closed";
    case kChildDeadPage:
      return "a page in the stack does not answer";
    case kChildThrew:
      return "an exception left the panel";
    case kChildMissedPoint:
      return "the fault hit another call than the clean run made there: the run is not repeatable";
    default:
      return "crash or sanitizer report: exit code " + std::to_string(exit_code);
  }
}

void watchdog(unsigned seconds) {
  alarm(seconds);
}

child_result run_isolated(const std::function<int()>& body, bool quiet) {
  std::cout.flush();
  std::cerr.flush();
  std::fflush(nullptr);
  const pid_t pid = fork();
  if (pid < 0) {
    child_result r;
    r.crash = true;
    r.exit_code = -1;
    return r;
  }
  if (pid == 0) {
    if (quiet) {
      const int null = open("/dev/null", O_WRONLY);
      if (null >= 0) {
        dup2(null, STDOUT_FILENO);
        dup2(null, STDERR_FILENO);
        close(null);
      }
    }
    // SIGALRM ends the child with its default action: the parent reads that as a hang.
    signal(SIGALRM, SIG_DFL);
    int code = 0;
    try {
      code = body();
    } catch (const std::exception& e) {
      std::cerr << "exception: " << e.what() << "\n";
      code = kChildThrew;
    }
    alarm(0);
    std::cout.flush();
    std::cerr.flush();
    // exit(), not _exit(): LeakSanitizer checks for leaks at exit.
    std::exit(code);
  }
  int status = 0;
  while (waitpid(pid, &status, 0) < 0) {
    if (errno != EINTR) {
      child_result r;
      r.crash = true;
      r.exit_code = -1;
      return r;
    }
  }
  child_result r;
  if (WIFEXITED(status)) {
    r.exit_code = WEXITSTATUS(status);
    r.ok = r.exit_code == 0;
    r.crash = !r.ok && (r.exit_code < kChildTimerLoop || r.exit_code > kChildMissedPoint);
  } else if (WIFSIGNALED(status)) {
    r.signal = WTERMSIG(status);
    r.hang = r.signal == SIGALRM;
    r.crash = !r.hang;
  }
  return r;
}

}  // namespace orvanta::sim
