// Countdown table behind the host's value-layer failure injection.
#include "orvanta/host/value_faults.h"

#include <array>

namespace orvanta::host {
namespace {
// -1: disarmed; n >= 0: calls still to pass before one fails.
std::array<int, static_cast<int>(value_op::count_)> countdown = [] {
  std::array<int, static_cast<int>(value_op::count_)> a{};
  a.fill(-1);
  return a;
}();
bool any_armed = false;
int pause_depth = 0;
}  // namespace

value_fault_pause::value_fault_pause() {
  ++pause_depth;
}
value_fault_pause::~value_fault_pause() {
  --pause_depth;
}

void fail_value_op(value_op op, int skip) {
  countdown[static_cast<int>(op)] = skip < 0 ? 0 : skip;
  any_armed = true;
}

void clear_value_faults() {
  countdown.fill(-1);
  any_armed = false;
}

bool value_fault_hit(value_op op) {
  if (!any_armed || pause_depth > 0)
    return false;
  int& c = countdown[static_cast<int>(op)];
  if (c < 0)
    return false;
  if (c == 0) {
    c = -1;
    return true;
  }
  --c;
  return false;
}

}  // namespace orvanta::host
