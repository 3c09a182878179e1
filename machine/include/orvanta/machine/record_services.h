// The simulated record services: user records (0.681.843), job accounting accounts (0.679.843)
// and custom boxes (0.857.860), which the panel reads and changes.
#pragma once

namespace orvanta::machine {

// RESULT of a read or change of a record the machine does not hold, and of a request that names
// none.
inline constexpr long kRecordUnknown = 1;

}  // namespace orvanta::machine
