// Raw terminal mode and the decoding of key presses, arrows included.
#include "terminal.h"

#include <poll.h>
#include <unistd.h>

#include <cstdio>

namespace orvanta::sim {
namespace {

// One byte from standard input within `timeout_ms`, or nothing.
std::optional<unsigned char> read_byte(int timeout_ms) {
  pollfd fd{STDIN_FILENO, POLLIN, 0};
  if (poll(&fd, 1, timeout_ms) <= 0)
    return std::nullopt;
  unsigned char c = 0;
  if (::read(STDIN_FILENO, &c, 1) != 1)
    return std::nullopt;
  return c;
}

// Escape sequences arrive in one burst; a lone Escape is followed by nothing for a while.
constexpr int kSequenceGapMs = 30;

}  // namespace

raw_terminal::raw_terminal() {
  if (tcgetattr(STDIN_FILENO, &saved_) != 0)
    return;
  termios raw = saved_;
  raw.c_lflag &= static_cast<tcflag_t>(~(ECHO | ICANON | ISIG | IEXTEN));
  raw.c_iflag &= static_cast<tcflag_t>(~(IXON | ICRNL));
  raw.c_cc[VMIN] = 1;
  raw.c_cc[VTIME] = 0;
  ok_ = tcsetattr(STDIN_FILENO, TCSAFLUSH, &raw) == 0;
  std::fputs("\x1b[?25l\x1b[2J", stdout);
  std::fflush(stdout);
}

raw_terminal::~raw_terminal() {
  if (ok_)
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &saved_);
  std::fputs("\x1b[?25h\n", stdout);
  std::fflush(stdout);
}

std::optional<key_press> read_key(int timeout_ms) {
  const std::optional<unsigned char> c = read_byte(timeout_ms);
  if (!c)
    return std::nullopt;
  switch (*c) {
    case '\r':
    case '\n':
      return key_press{term_key::enter};
    case 127:
    case 8:
      return key_press{term_key::backspace};
    case 27: {
      const std::optional<unsigned char> next = read_byte(kSequenceGapMs);
      if (!next)
        return key_press{term_key::escape};
      if (*next != '[' && *next != 'O')
        return key_press{term_key::escape};
      const std::optional<unsigned char> final_byte = read_byte(kSequenceGapMs);
      if (!final_byte)
        return key_press{term_key::escape};
      switch (*final_byte) {
        case 'A':
          return key_press{term_key::up};
        case 'B':
          return key_press{term_key::down};
        case 'C':
          return key_press{term_key::right};
        case 'D':
          return key_press{term_key::left};
        default:
          return key_press{term_key::none};
      }
    }
    default:
      return key_press{term_key::character, static_cast<char>(*c)};
  }
}

}  // namespace orvanta::sim
