// The simulated machine behind the command mediator: node tree, services, fixed answers, list
// paging, call log, scripted answers and failure injection.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/platform/dvc_pnl_cmm_command_mediator.h"
#include "orvanta/platform/dvc_pnl_evh_panel_event.h"

namespace orvanta::machine {

class simulated_machine;

enum class verb { get, set, invoke };

// Mediator answers of the machine itself (what armed failures answer is up to the test).
inline constexpr int kDelivered = 0;
inline constexpr int kNoSuchNode = 1;        // get of a node that does not exist
inline constexpr int kBadValue = 2;          // set with an empty key, an empty value or a set
                                             // whose entries do not lie below the node
inline constexpr int kNotDeliverable = 3;    // invoke of a command nobody serves
inline constexpr int kDefaultFailCode = -1;  // fail_next without a code

// RESULT answered by the paged list service for a request it cannot serve (unknown selection
// method, negative count or start).
inline constexpr long kListBadRequest = 1;

// One call the panel made, in the order made.
struct call_record {
  verb kind;
  std::string key;                // dotted full path of the node or command
  dvc_pnl_cmm_valueset request;   // invoke: the request; set: the written value wrapped at `key`
  dvc_pnl_cmm_valueset response;  // invoke: the response; get: the value read wrapped at `key`
  int result;                     // what the mediator answered
};

// What a service sees and fills for one invoke.
struct service_call {
  const dvc_pnl_cmm_key& command;
  const dvc_pnl_cmm_valueset& request;
  dvc_pnl_cmm_valueset& response;
};
// A service answers the mediator's result (0 delivered).
using service = std::function<int(simulated_machine&, service_call&)>;

// One row of a list served by the paged list service: field node -> value.
struct list_row {
  std::map<unsigned long, dvc_pnl_cmm_value> fields;
};

// The response entries of a fixed answer: a dotted path below the command ("1484", "1501.0.1365")
// and its value, an integer, a string or a binary.
using answer_entries = std::vector<std::pair<std::string, dvc_pnl_cmm_value>>;

class simulated_machine final : public dvc_pnl_cmm_command_mediator {
 public:
  static simulated_machine& instance();
  ~simulated_machine() override;
  simulated_machine(const simulated_machine&) = delete;
  simulated_machine& operator=(const simulated_machine&) = delete;

  int dvc_pnl_cmm_get_value(const dvc_pnl_cmm_key& key, dvc_pnl_cmm_value& value,
                            int mode) override;
  int dvc_pnl_cmm_set_value(const dvc_pnl_cmm_key& key, const dvc_pnl_cmm_value& value,
                            int mode) override;
  int dvc_pnl_cmm_invoke(const dvc_pnl_cmm_key& command, const dvc_pnl_cmm_valueset& request,
                         dvc_pnl_cmm_valueset& response) override;

  // ---- the node tree (dotted full paths, e.g. "0.555.2141.1890") ----
  // These helpers are for tests and services: they are not logged and ignore armed failures.
  // A malformed path throws std::invalid_argument; so does a value set whose entries do not lie
  // below `path`.
  void set_node(const std::string& path, const dvc_pnl_cmm_value& value);
  void set_int(const std::string& path, long value);
  void set_string(const std::string& path, const std::string& value);
  // nullopt when the node does not exist.
  std::optional<dvc_pnl_cmm_value> node(const std::string& path) const;
  std::optional<long> int_at(const std::string& path) const;
  void remove_node(const std::string& path);

  // ---- services ----
  // One handler per command: registering a service, a fixed answer or a list on a command drops
  // what served it.
  void register_service(const std::string& command, service s);
  // Every invoke of `command` answers `entries`, each under `<command>.<path>`, with mediator
  // result 0; RESULT (1484) is answered only when it is among the entries. Throws
  // std::invalid_argument for a malformed command or entry path, an entry that lies on or below
  // another, and a value that is not an integer, a string or a binary.
  void register_answer(const std::string& command, const answer_entries& entries);
  // Serves `command` (e.g. "0.938.959") as a paged list of `rows`, with the list header values.
  void register_list(const std::string& command, std::vector<list_row> rows, long header_1337 = 0,
                     long header_1524 = 0);
  // The rows of a registered list, for services and tests that change them; nullptr when
  // `command` is not served as a list.
  std::vector<list_row>* list_rows(const std::string& command);
  // Posts a panel event that the panel receives after the current dispatch.
  void post_event(const dvc_pnl_evh_panel_event& event);

  // ---- scripting and failures ----
  // Each of these answers one call; armed twice, it answers the next two calls in order.
  // The next invoke of `command` answers this response instead of the service.
  void script_next_response(const std::string& command, const dvc_pnl_cmm_valueset& response);
  // The next call of `kind` on `key` (a node or a command) gets mediator result `code`.
  void fail_next(verb kind, const std::string& key, int code = kDefaultFailCode);
  // The next invoke of `command` answers RESULT `result` (node 1484 under the command).
  void fail_next_result(const std::string& command, long result);
  // Call number `n` from now on (0: the next), whatever its verb and key, answers `code`; or, when
  // it is an invoke, RESULT `result`. One such call is armed at a time; arming again replaces it,
  // and a reset drops it. It goes before the failures armed by key.
  void fail_call(std::size_t n, int code = kDefaultFailCode);
  void fail_call_result(std::size_t n, long result);

  // ---- the log ----
  const std::vector<call_record>& log() const;
  void clear_log();

  // ---- models ----
  // Back to the embedded default model, with an empty log and no scripts.
  void reset();
  // Adds to (or, with `replace`, replaces) the model from a JSON text; answers an error text,
  // empty on success.
  std::string load_model_json(const std::string& text, bool replace = false);

 private:
  struct impl;
  simulated_machine();
  std::unique_ptr<impl> impl_;
};

// Dotted form <-> key. Throws std::invalid_argument for anything but dot-separated decimal
// numbers.
dvc_pnl_cmm_key key_from_dotted(const std::string& dotted);

}  // namespace orvanta::machine
