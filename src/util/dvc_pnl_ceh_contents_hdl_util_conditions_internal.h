// Shared steps of the condition queries: node reads with their failure trace, and commands.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta::conditions {

// A node path from ROOT, e.g. {0, 230, 343, 347}.
using path = std::vector<unsigned long>;
// A request word: node below the command and its value.
using word = std::pair<unsigned long, long>;

// Reads the integer at `node` with start position `start`; `value` is set only on success. A
// failure is traced as "retrieval of setting from cmm failed. ret_code = N" and passed on.
int read_int(const path& node, long& value, int start = 0);
int read_string(const path& node, std::string& value, int start = 0);
// The answer of a yes/no query: 1 when the value read equals `yes`, 0 when it does not,
// `failure` when the read fails.
int answer_equals(const path& node, long yes, int failure, int start = 0);

// Runs `command` with 1320 = 1 and `words`. 0 when RESULT is 0; 3 when the command could not
// run, 2 when RESULT is not 0, or the code of the failed RESULT read. Each failure is traced.
int run_command(const path& command, std::initializer_list<word> words,
                dvc_pnl_cmm_valueset& response);
// The same with a request made by the caller (nested request sets).
int run_command(const path& command, const dvc_pnl_cmm_valueset& request,
                dvc_pnl_cmm_valueset& response);
// Field `node` right below `command` in its response; `value` is set only on success, a failure
// is traced and passed on.
int response_int(const path& command, unsigned long node, const dvc_pnl_cmm_valueset& response,
                 long& value);
int response_string(const path& command, unsigned long node, const dvc_pnl_cmm_valueset& response,
                    std::string& value);

// Leaves of the paper in a feeder (0 the manual tray, 1 to 5 the cassettes).
inline constexpr unsigned long kFeederSize = 373;
inline constexpr unsigned long kFeederKind = 719;
inline constexpr unsigned long kFeederQuantity = 477;
inline constexpr unsigned long kFeederOrientation = 718;
// Reads leaf `leaf` of the paper in `feeder`; a feeder outside 0 to 5 is refused with 6. `value`
// is 0 when the read fails.
int read_feeder(long feeder, unsigned long leaf, long& value);

// The user record command, asked for the guest (1012 = 9001, 1365 = the guest's user number 102).
extern const path kUserRecord;
int guest_user_record(dvc_pnl_cmm_valueset& response);

// Somebody other than the guest is logged in.
bool user_logged_in_not_guest();
// The mode lets users log in (1 or 3).
bool users_log_in(int management);

}  // namespace orvanta::conditions
