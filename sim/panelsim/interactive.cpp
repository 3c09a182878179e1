// panelsim run: the panel in the terminal under the real clock, keys from the PC keyboard.
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <mutex>
#include <sstream>
#include <string>

#include "commands.h"
#include "orvanta/sim/frame_render.h"
#include "orvanta/sim/names.h"
#include "orvanta/sim/panel_runtime.h"
#include "terminal.h"

namespace orvanta::sim {
namespace {

constexpr int kPollMs = 20;
constexpr std::size_t kShownItems = 4;
constexpr char kCtrlC = 3;

const char* const kHelp =
    "keys: arrows  Enter enter  Backspace/b back  Esc/x stop  s start  r reset  c clear  "
    "m menu  0-9 digits\n"
    "      [ ] flexible keys  u release  o local/remote  #<number>Enter any key\n"
    "      /<id>Enter open a screen  @<function>Enter change function  q quit";

// The panel key of a PC key; nothing for keys without one.
std::optional<int> panel_key(const key_press& k) {
  switch (k.key) {
    case term_key::up:
      return parse_key("up");
    case term_key::down:
      return parse_key("down");
    case term_key::left:
      return parse_key("left");
    case term_key::right:
      return parse_key("right");
    case term_key::enter:
      return parse_key("enter");
    case term_key::backspace:
      return parse_key("back");
    case term_key::escape:
      return parse_key("stop");
    case term_key::character:
      break;
    default:
      return std::nullopt;
  }
  switch (k.c) {
    case 'b':
      return parse_key("back");
    case 'x':
      return parse_key("stop");
    case 's':
      return parse_key("start");
    case 'r':
      return parse_key("reset");
    case 'c':
      return parse_key("clear");
    case 'm':
      return parse_key("menu");
    case 'u':
      return parse_key("release");
    case '[':
      return parse_key("fleft");
    case ']':
      return parse_key("fright");
    default:
      break;
  }
  if (k.c >= '0' && k.c <= '9')
    return parse_key(std::string(1, k.c));
  return std::nullopt;
}

class session {
 public:
  session(panel_runtime& rt, std::ofstream* record) : rt_(rt), record_(record) {}

  // Handles one key; false when the person quits.
  bool handle(const key_press& k) {
    if (k.key == term_key::character && (k.c == 'q' || k.c == kCtrlC))
      return false;
    if (prompt_ != 0) {
      edit_prompt(k);
      return true;
    }
    if (k.key == term_key::character && (k.c == '#' || k.c == '/' || k.c == '@')) {
      prompt_ = k.c;
      entry_.clear();
      message_.clear();
      return true;
    }
    if (k.key == term_key::character && k.c == 'o') {
      remote_ = !remote_;
      return true;
    }
    if (std::optional<int> key = panel_key(k))
      press(*key);
    return true;
  }

  std::string screen() const {
    std::lock_guard<std::recursive_mutex> guard(rt_.lock());
    std::ostringstream s;
    const std::optional<top_window> top = rt_.top();
    s << "panelsim   function " << rt_.active_function() << "   top "
      << (top ? contents_name(top->contents_id) + " (" + std::to_string(top->contents_id) + ")"
              : std::string("none"))
      << "   source " << (remote_ ? "remote" : "local") << "\n";
    s << render_boxed(rt_.frame());
    s << "LEDs:";
    if (host::devices().led_status.empty())
      s << " none set";
    for (const auto& led : host::devices().led_status)
      s << " " << led.id << "=" << led.status;
    const auto& buzzer = host::devices().buzzer;
    s << "   buzzer: "
      << (buzzer.empty() ? std::string("none yet") : "pattern " + std::to_string(buzzer.back()))
      << "\npages:";
    for (const host::page_record& p : rt_.stack())
      s << " " << contents_name(p.contents_id);
    s << "\n";
    const std::vector<shown_item> items = rt_.top_items();
    for (std::size_t i = 0; i < kShownItems; ++i)
      s << (i < items.size() ? format_items({items[i]}) : "\n");
    if (prompt_ != 0) {
      const char* what = prompt_ == '#' ? "key number" : prompt_ == '/' ? "open" : "function";
      s << what << ": " << entry_ << "_  (Enter takes it, Esc cancels)\n";
    } else {
      s << message_ << "\n";
    }
    s << kHelp << "\n";
    return s.str();
  }

 private:
  void edit_prompt(const key_press& k) {
    constexpr std::size_t kLongest = 24;
    if (k.key == term_key::character && k.c > ' ' && k.c < 127 && entry_.size() < kLongest) {
      entry_ += k.c;
    } else if (k.key == term_key::backspace && !entry_.empty()) {
      entry_.pop_back();
    } else if (k.key == term_key::escape) {
      prompt_ = 0;
    } else if (k.key == term_key::enter) {
      const char prompt = prompt_;
      prompt_ = 0;
      take_prompt(prompt);
    }
  }

  void take_prompt(char prompt) {
    if (prompt == '/') {
      const std::optional<int> id = parse_contents_id(entry_);
      if (!id) {
        message_ = "unknown contents id " + entry_;
        return;
      }
      input("open " + contents_name(*id), [&] {
        if (!rt_.open(*id))
          message_ = entry_ + " opens no screen";
      });
      return;
    }
    const std::optional<long> n = parse_number(entry_);
    if (!n || *n < 0) {
      message_ = "not a number: " + entry_;
      return;
    }
    if (prompt == '#') {
      press(static_cast<int>(*n));
      return;
    }
    input("function " + entry_, [&] {
      if (rt_.set_function(static_cast<int>(*n)) != 0)
        message_ = "the page stack refused function " + entry_;
    });
  }

  void press(int key) {
    input("key " + key_name(key) + (remote_ ? " remote" : ""), [&] { rt_.press(key, remote_); });
  }

  // Records the input as a scenario line at the panel's time, then carries it out.
  template <typename Action>
  void input(const std::string& line, Action action) {
    std::lock_guard<std::recursive_mutex> guard(rt_.lock());
    // Timers that fell due before the input are delivered first, as a replay will.
    rt_.drain();
    const unsigned long now = rt_.now_ms();
    if (record_ != nullptr) {
      if (now > last_input_ms_)
        *record_ << "wait " << now - last_input_ms_ << "\n";
      *record_ << line << "\n";
      record_->flush();
    }
    last_input_ms_ = now;
    message_.clear();
    action();
  }

  panel_runtime& rt_;
  std::ofstream* record_;
  bool remote_ = false;
  char prompt_ = 0;  // '#', '/' or '@' while a number or id is typed
  std::string entry_;
  std::string message_;
  unsigned long last_input_ms_ = 0;
};

}  // namespace

int command_run(const std::string& model, int function, const std::string& record) {
  if (!isatty(STDIN_FILENO) || !isatty(STDOUT_FILENO)) {
    std::cerr << "panelsim: no terminal; running the demo instead\n";
    return command_demo(model);
  }
  std::ofstream record_file;
  if (!record.empty()) {
    record_file.open(record);
    if (!record_file) {
      std::cerr << "panelsim: cannot write " << record << "\n";
      return kExitUsage;
    }
  }
  panel_runtime rt(clock_mode::real_time);
  if (std::string error = rt.reset(model); !error.empty()) {
    std::cerr << "panelsim: bad model: " << error << "\n";
    return kExitUsage;
  }
  const int first = first_screen_of(function);
  {
    std::lock_guard<std::recursive_mutex> guard(rt.lock());
    rt.set_function(function);
    rt.open(first);
  }
  if (record_file) {
    record_file << "# A panelsim session; replay it with panelsim script"
                << (model.empty() ? "" : " and the same --machine file") << ".\n"
                << "function " << function << "\n"
                << "open " << contents_name(first) << "\n";
  }
  session s(rt, record_file.is_open() ? &record_file : nullptr);
  raw_terminal terminal;
  if (!terminal.ok()) {
    std::cerr << "panelsim: cannot set up the terminal\n";
    return kExitUsage;
  }
  std::string shown;
  for (;;) {
    const std::optional<key_press> k = read_key(kPollMs);
    if (k && !s.handle(*k))
      break;
    rt.drain();
    std::string now = s.screen();
    if (now != shown) {
      shown = now;
      // Home, then each line cleared to its end: no flicker from clearing the whole screen.
      std::string out = "\x1b[H";
      std::istringstream lines(now);
      for (std::string line; std::getline(lines, line);)
        out += line + "\x1b[K\n";
      out += "\x1b[J";
      std::fputs(out.c_str(), stdout);
      std::fflush(stdout);
    }
  }
  return kExitOk;
}

}  // namespace orvanta::sim
