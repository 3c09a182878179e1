// The terminal of the interactive panel: raw input without echo, and keys read from it.
#pragma once

#include <termios.h>

#include <optional>
#include <string>

namespace orvanta::sim {

// Puts the terminal into raw mode (no echo, no line buffering, Ctrl-C as a byte) for its
// lifetime, and hides the cursor.
class raw_terminal {
 public:
  raw_terminal();
  ~raw_terminal();
  raw_terminal(const raw_terminal&) = delete;
  raw_terminal& operator=(const raw_terminal&) = delete;
  bool ok() const { return ok_; }

 private:
  termios saved_{};
  bool ok_ = false;
};

// What the person pressed, as the key map sees it.
enum class term_key { none, up, down, left, right, enter, backspace, escape, character };

struct key_press {
  term_key key = term_key::none;
  char c = 0;  // for term_key::character
};

// Waits up to `timeout_ms` for a key on standard input.
std::optional<key_press> read_key(int timeout_ms);

}  // namespace orvanta::sim
