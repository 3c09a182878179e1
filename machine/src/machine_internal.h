// Pieces of the simulated machine shared by its source files: paths, request and answer words of
// services, the list service, fixed answers, the model file parser and the sample records.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "orvanta/machine/lock_service.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvc_pnl_cmn_error_table.h"

namespace orvanta::machine::detail {

using path = std::vector<unsigned long>;

// Dot-separated decimal node ids; nullopt for anything else (empty parts, signs, overflow).
std::optional<path> parse_path(std::string_view dotted);
std::string to_dotted(const path& p);
// Builds `out` from `p`; answers the first failing append's code.
int make_key(const path& p, dvc_pnl_cmm_key& out);

// Puts `value` (or the set `inner`) under `p` into `set`; answers the value layer's code.
int put_value(dvc_pnl_cmm_valueset& set, const path& p, const dvc_pnl_cmm_value& value);
int put_set(dvc_pnl_cmm_valueset& set, const path& p, const dvc_pnl_cmm_valueset& inner);
// Builds `out` from leaves at full paths, nested as the machine nests its answers and events: a
// path longer than `top` nodes lies in a set under each of its prefixes from `top` nodes on.
// Answers kBadValue for a path shorter than `top`, else the value layer's first failing code.
int nested_set(const std::vector<std::pair<path, dvc_pnl_cmm_value>>& leaves, std::size_t top,
               dvc_pnl_cmm_valueset& out);

// The integer `node` right below the command in the request; false when the request lacks it.
bool request_int(const service_call& call, unsigned long node, long& out);
// Puts `value` at `node` right below the command into the response; answers the value layer's
// code.
int answer_value(service_call& call, unsigned long node, const dvc_pnl_cmm_value& value);
// Puts RESULT (1484) right below the command into the response.
int answer_result(service_call& call, long result);

// A list served by the paged list service.
struct list_data {
  std::vector<list_row> rows;
  long header_1337 = 0;
  long header_1524 = 0;
};

// Answers one paged list request of `command` into `response` (cleared first). The mediator
// result is the value layer's code should building the answer fail, 0 otherwise.
int serve_list(const list_data& list, const dvc_pnl_cmm_key& command,
               const dvc_pnl_cmm_valueset& request, dvc_pnl_cmm_valueset& response);

// The entries of a fixed answer: path below the command -> leaf value.
using answer_data = std::vector<std::pair<path, dvc_pnl_cmm_value>>;
// Why `entries` cannot make one response: an entry given twice or lying below another, named by
// their dotted paths. Empty when every entry has a place of its own.
std::string answer_overlap(const answer_data& entries);

// A model file, parsed and checked, not yet applied.
struct model {
  std::vector<std::pair<path, dvc_pnl_cmm_value>> nodes;
  std::map<std::string, list_data> lists;      // by dotted command path
  std::map<std::string, answer_data> answers;  // by dotted command path
  bool replace = false;
  std::vector<lock_record> locks;  // records other panels hold
  // Rows for the platform's error table; the table stays as it is without them.
  std::optional<std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW>> error_table;
};
// Throws std::runtime_error with a readable text for malformed JSON or content.
model parse_model(const std::string& text);

// The lock service: registers its two commands on `machine` with nothing held; and adds the
// records of a model file that other panels hold (after dropping the earlier ones on `replace`).
void install_lock_service(simulated_machine& machine);
void apply_locks(const std::vector<lock_record>& records, bool replace);

// The simulator's sample machine, as a model file.
const char* default_model_json();

// A record the record services hold: field node -> value.
using record_fields = std::map<unsigned long, dvc_pnl_cmm_value>;
struct record_book {
  std::map<long, record_fields> users;     // by user number (1365)
  std::map<long, record_fields> accounts;  // by account id (1362)
  std::map<long, record_fields> boxes;     // by box id (197)
};
// The default machine's job settings of every function, in both scopes, and the paper settings
// beside them (sample data); written over the tree, after the default model file.
void apply_job_settings(simulated_machine& machine);

// The setting transaction service: registers its three commands on `machine` with no level open.
void install_transaction_service(simulated_machine& machine);

// The simulator's sample records, in the default model's file.
record_book default_records();
// The record services: registers their commands on `machine`, holding the sample records.
void install_record_services(simulated_machine& machine);
// The program and one touch key stores: registers their commands on `machine`, holding the
// sample programs and keys.
void install_program_services(simulated_machine& machine);

// The main message lists of every function (sample data), served as lists on their commands.
void install_main_messages(simulated_machine& machine);

// The verdicts on written job settings: starts with no conflicts.
void install_setting_verdicts(simulated_machine& machine);
// After a write at `written` (a full path) that the tree took: posts the verdict event of the
// function whose current job settings lie at or above it.
void after_setting_write(simulated_machine& machine, const path& written);

}  // namespace orvanta::machine::detail
