// The simulated setting transaction service (0.821.822: 823 startup, 824 commit, 825 cancel): the
// levels of undo the machine keeps over each function's job settings.
#pragma once

#include <cstddef>

namespace orvanta::machine {

// RESULT of each command when it succeeds, and of a request the service refuses (no level to
// close, no 1320 = 1, no common function at 1035).
inline constexpr long kSettingStarted = 0;
inline constexpr long kSettingCommitted = 1;
inline constexpr long kSettingRefused = 2;
inline constexpr long kSettingCancelled = 3;

// How many levels are open for the common function (1035 of the requests), innermost included.
std::size_t open_setting_levels(long common_function);

}  // namespace orvanta::machine
