// The machine's verdict on a written job setting: the prohibition event of the function, with the
// settings the write changed besides.
#pragma once

#include <string>

#include "orvanta/machine/simulated_machine.h"

namespace orvanta::machine {

// Writing `value` at the setting `setting` (a dotted full path of a current job setting, e.g.
// "0.1.2.160.99.100") makes the machine change the setting `changed` (its path below the root as
// the verdict names it, e.g. "1.2.160.12.13.14") to `change_value`.
struct setting_conflict {
  std::string setting;
  long value = 0;
  std::string changed;
  long change_value = 0;
};

// Adds a conflict rule. Throws std::invalid_argument for a malformed path, or a setting that does
// not lie in the current job settings of a function.
void add_setting_conflict(simulated_machine& machine, const setting_conflict& conflict);
// Drops every rule; a reset of the machine does the same.
void clear_setting_conflicts(simulated_machine& machine);

// The verdict event of `function` (219 copy, 220 send, 221 fax, 222 box print, 224 box store), 0
// for a function without one.
int setting_verdict_event(int function);

}  // namespace orvanta::machine
