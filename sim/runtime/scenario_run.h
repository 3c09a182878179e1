// The running of one scenario file: its state between lines, its commands and expectations.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "orvanta/host/trace_sink.h"
#include "orvanta/platform/dvc_pnl_evh_panel_event.h"
#include "orvanta/sim/scenario.h"
#include "orvanta/sim/scenario_syntax.h"

namespace orvanta::sim {

// An expectation that does not hold; the text says what was found.
class expectation_failed : public scenario_error {
 public:
  using scenario_error::scenario_error;
};

// Where a file failed.
struct line_failure {
  std::string file;
  int line = 0;
  std::string text;  // the line, trimmed
  std::string message;
};

class scenario_run {
 public:
  scenario_run(panel_runtime& runtime, const script_options& options, std::ostream& out);

  // Runs the lines of `path` (`shown` is how reports name it). Throws line_failure.
  void run_file(const std::string& path, const std::string& shown, int depth);
  // With keep_going: the lines that failed, the first of them in `first_failure`.
  int failed_lines() const { return failed_lines_; }
  const line_failure& first_failure() const { return first_failure_; }

 private:
  void execute(const std::vector<std::string>& tokens, const std::string& dir, int depth);

  // Set-up commands.
  void machine_command(const std::vector<std::string>& t);
  void reply_command(const std::vector<std::string>& t);
  void dm_command(const std::vector<std::string>& t);
  void gui_command(const std::vector<std::string>& t);
  // Input commands.
  void event_command(const std::vector<std::string>& t);
  void keyboard_command(const std::vector<std::string>& t);
  // Expectations (scenario_expect.cpp).
  void expect(const std::vector<std::string>& t, const std::string& dir);
  void expect_page(const std::vector<std::string>& t);
  void expect_invoked(const std::vector<std::string>& t, bool wanted);
  void expect_dm(const std::vector<std::string>& t);
  void expect_part(const std::vector<std::string>& t);
  void expect_row(const std::vector<std::string>& t);
  void expect_timer(const std::vector<std::string>& t);
  void expect_frame(const std::vector<std::string>& t, const std::string& dir);
  void show();

  // The start of a new input window.
  void mark_input();
  // Collects what the panel posted and traced since the last call.
  void harvest();

  panel_runtime& rt_;
  const script_options& options_;
  std::ostream& out_;

  std::vector<dvc_pnl_evh_panel_event> posted_;
  std::vector<host::trace_line> traces_;

  // Input window: positions when the latest input command began.
  std::size_t machine_mark_ = 0;
  std::size_t opened_mark_ = 0;
  std::size_t frame_mark_ = 0;
  std::size_t command_mark_ = 0;
  std::size_t posted_mark_ = 0;
  // Expectation windows: positions after the latest expectation of each kind.
  std::size_t buzzer_seen_ = 0;
  std::size_t lockword_seen_ = 0;
  std::size_t trace_seen_ = 0;

  int failed_lines_ = 0;
  line_failure first_failure_;
};

// A contents id token, or a scenario_error.
int parse_id(const std::string& token);
// A number that fits an int, or a scenario_error naming `what`.
int parse_int(const std::string& token, const char* what);
// Throws scenario_error naming the usage when the line has fewer than `count` tokens.
void need(const std::vector<std::string>& t, std::size_t count, const char* usage);

}  // namespace orvanta::sim
