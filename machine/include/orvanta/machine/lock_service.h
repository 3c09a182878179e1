// The simulated lock service (0.503.2528 lock, 0.503.2529 unlock): records the panel holds and
// records other panels hold, which it refuses to the panel.
#pragma once

#include <vector>

namespace orvanta::machine {

// A lockable record: the lock kind (1180) and the two arguments that name the record (1301 and
// 197). The request's third argument (2611) says why and is not part of the record.
struct lock_record {
  long kind;
  long first;
  long second;
  friend bool operator==(const lock_record&, const lock_record&) = default;
};

// RESULT of a lock or unlock refused because another panel holds the record, and of a request
// without a kind.
inline constexpr long kLockRefused = 1;
inline constexpr long kLockBadRequest = 2;

// Another panel takes `record`, or gives it back. Model files list such records under "locks".
void hold_lock_elsewhere(const lock_record& record);
void release_lock_elsewhere(const lock_record& record);
// What the panel holds now, in the order it took it, and what other panels hold.
std::vector<lock_record> locks_held_by_panel();
std::vector<lock_record> locks_held_elsewhere();

}  // namespace orvanta::machine
