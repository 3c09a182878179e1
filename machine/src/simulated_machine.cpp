// The simulated machine: node tree, get/set/invoke with scripts, failures, services, fixed answers
// and the call log.
#include "orvanta/machine/simulated_machine.h"

#include <deque>
#include <mutex>
#include <stdexcept>
#include <utility>

#include "machine_internal.h"
#include "orvanta/host/error_table.h"
#include "orvanta/host/value_faults.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"

namespace orvanta::machine {

using detail::list_data;
using detail::path;

namespace {

constexpr unsigned long kResultNode = 1484;

// A node of the tree: a leaf holds an integer, a string or a binary; anything else is a group
// (possibly empty) of numbered children.
struct tree_node {
  std::optional<dvc_pnl_cmm_value> leaf;
  std::map<unsigned long, tree_node> children;
};

bool is_prefix(const path& prefix, const path& p) {
  return p.size() > prefix.size() && std::equal(prefix.begin(), prefix.end(), p.begin());
}

path path_of(const dvc_pnl_cmm_key& key) {
  return key.nodes();
}

path parse_or_throw(const std::string& dotted) {
  std::optional<path> p = detail::parse_path(dotted);
  if (!p)
    throw std::invalid_argument("not a node path: \"" + dotted + "\"");
  return *p;
}

// Places `sub` at `rel` below `at`, making groups on the way. A leaf on the way, or something
// already at the place, is a conflict: the same set gave a node twice.
bool place(tree_node& at, const path& rel, tree_node&& sub) {
  tree_node* n = &at;
  for (std::size_t i = 0; i < rel.size(); ++i) {
    if (n->leaf)
      return false;
    const bool last = i + 1 == rel.size();
    auto [it, inserted] = n->children.try_emplace(rel[i]);
    if (last && !inserted)
      return false;
    n = &it->second;
  }
  *n = std::move(sub);
  return true;
}

// Reads the entries of `set`, each under its full key below `base`, into the group `out`.
// Nested sets are read the same way one level down.
int subtree_from_set(const dvc_pnl_cmm_valueset& set, const path& base, tree_node& out) {
  dvc_pnl_cmm_valueset_iterator it;
  set.dvc_pnl_cmm_iterator(it);
  while (it.dvc_pnl_cmm_next_one() != 0) {
    dvc_pnl_cmm_key key;
    dvc_pnl_cmm_value value;
    if (it.dvc_pnl_cmm_get_key(key) != 0 || it.dvc_pnl_cmm_get_value(value) != 0)
      return kBadValue;
    const path full = path_of(key);
    if (!is_prefix(base, full))
      return kBadValue;
    NAME_SPACE_NODE_TYPE type{};
    if (value.dvc_pnl_cmm_get_type(type) != 0)
      return kBadValue;
    tree_node sub;
    if (type == NODE_TYPE_VALUESET) {
      dvc_pnl_cmm_valueset nested;
      if (int ret = value.dvc_pnl_cmm_get_valueset(nested); ret != 0)
        return ret;
      if (int ret = subtree_from_set(nested, full, sub); ret != 0)
        return ret;
    } else {
      sub.leaf = std::move(value);
    }
    if (!place(out, path(full.begin() + static_cast<long>(base.size()), full.end()),
               std::move(sub))) {
      return kBadValue;
    }
  }
  return 0;
}

// The subtree that `value` stands for at `at`.
int subtree_from_value(const dvc_pnl_cmm_value& value, const path& at, tree_node& out) {
  NAME_SPACE_NODE_TYPE type{};
  if (value.dvc_pnl_cmm_get_type(type) != 0)
    return kBadValue;
  if (type != NODE_TYPE_VALUESET) {
    out.leaf = value;
    return 0;
  }
  dvc_pnl_cmm_valueset set;
  if (int ret = value.dvc_pnl_cmm_get_valueset(set); ret != 0)
    return ret;
  return subtree_from_set(set, at, out);
}

// The value set of the group `n` at `at`: every entry under its full path, groups nested.
int set_from_group(const tree_node& n, path& at, dvc_pnl_cmm_valueset& out) {
  for (const auto& [id, child] : n.children) {
    at.push_back(id);
    dvc_pnl_cmm_key key;
    int ret = detail::make_key(at, key);
    if (ret == 0) {
      if (child.leaf) {
        ret = out.dvc_pnl_cmm_set_value(key, *child.leaf);
      } else {
        dvc_pnl_cmm_valueset nested;
        ret = set_from_group(child, at, nested);
        if (ret == 0)
          ret = out.dvc_pnl_cmm_set_valueset(key, nested);
      }
    }
    at.pop_back();
    if (ret != 0)
      return ret;
  }
  return 0;
}

int value_of(const tree_node& n, const path& at, dvc_pnl_cmm_value& out) {
  if (n.leaf) {
    out = *n.leaf;
    return 0;
  }
  dvc_pnl_cmm_valueset set;
  path walk = at;
  if (int ret = set_from_group(n, walk, set); ret != 0)
    return ret;
  return out.dvc_pnl_cmm_set_valueset(set);
}

// The group that a fixed answer's entries make, each at its path. Throws std::invalid_argument
// when they cannot make one.
tree_node answer_group(const detail::answer_data& entries) {
  if (std::string overlap = detail::answer_overlap(entries); !overlap.empty())
    throw std::invalid_argument("answer entry " + overlap);
  tree_node group;
  for (const auto& [rel, value] : entries) {
    tree_node leaf;
    leaf.leaf = value;
    // Cannot clash: the entries were checked above.
    place(group, rel, std::move(leaf));
  }
  return group;
}

// `value` stored under `key` in a fresh set, for the log; an empty set when that fails.
dvc_pnl_cmm_valueset wrapped(const dvc_pnl_cmm_key& key, const dvc_pnl_cmm_value& value) {
  dvc_pnl_cmm_valueset set;
  if (!key.empty() && !value.empty() && set.dvc_pnl_cmm_set_value(key, value) != 0)
    set.dvc_pnl_cmm_clear();
  return set;
}

}  // namespace

struct simulated_machine::impl {
  // Services may call back into the machine while an invoke holds the lock.
  mutable std::recursive_mutex lock;
  tree_node top;  // holds ROOT (0) as its only child
  std::map<std::string, service> services;
  std::map<std::string, tree_node> answers;  // by command: the group answered below its key
  std::map<std::string, list_data> lists;
  std::map<std::string, std::deque<dvc_pnl_cmm_valueset>> scripts;
  std::map<std::pair<verb, std::string>, std::deque<int>> failures;
  std::map<std::string, std::deque<long>> result_failures;
  std::vector<call_record> log;
  // A failure armed for one call by its number, whatever its verb and key: mediator calls are
  // counted from the machine's start.
  struct counted_failure {
    std::size_t call;
    bool result;  // RESULT `value` for an invoke, else the mediator answers `value`
    long value;
  };
  std::optional<counted_failure> counted;
  std::size_t calls = 0;

  // Counts this call; answers the failure armed for it, if any.
  std::optional<counted_failure> count_call() {
    const std::size_t n = calls++;
    if (!counted || counted->call != n)
      return std::nullopt;
    std::optional<counted_failure> f = counted;
    counted.reset();
    return f;
  }

  const tree_node* find(const path& p) const {
    const tree_node* n = &top;
    for (unsigned long id : p) {
      auto it = n->children.find(id);
      if (it == n->children.end())
        return nullptr;
      n = &it->second;
    }
    return n;
  }

  // Replaces the node at `p` (and all below it) with `sub`, making groups on the way; a leaf on
  // the way becomes a group.
  void replace(const path& p, tree_node&& sub) {
    tree_node* n = &top;
    for (unsigned long id : p) {
      n->leaf.reset();
      n = &n->children[id];
    }
    *n = std::move(sub);
  }

  void remove(const path& p) {
    if (p.empty())
      return;
    tree_node* n = &top;
    for (std::size_t i = 0; i + 1 < p.size(); ++i) {
      auto it = n->children.find(p[i]);
      if (it == n->children.end())
        return;
      n = &it->second;
    }
    n->children.erase(p.back());
  }

  // Takes the armed failure of this call, if any.
  std::optional<int> take_failure(verb kind, const std::string& key) {
    auto it = failures.find({kind, key});
    if (it == failures.end())
      return std::nullopt;
    int code = it->second.front();
    it->second.pop_front();
    if (it->second.empty())
      failures.erase(it);
    return code;
  }

  template <typename T>
  static std::optional<T> take_next(std::map<std::string, std::deque<T>>& armed,
                                    const std::string& key) {
    auto it = armed.find(key);
    if (it == armed.end())
      return std::nullopt;
    T next = std::move(it->second.front());
    it->second.pop_front();
    if (it->second.empty())
      armed.erase(it);
    return next;
  }

  void apply(detail::model&& m) {
    if (m.replace) {
      top = tree_node{};
      lists.clear();
      answers.clear();
    }
    for (auto& [p, value] : m.nodes) {
      tree_node leaf;
      leaf.leaf = std::move(value);
      replace(p, std::move(leaf));
    }
    for (auto& [command, list] : m.lists) {
      services.erase(command);
      answers.erase(command);
      lists[command] = std::move(list);
    }
    for (auto& [command, entries] : m.answers) {
      services.erase(command);
      lists.erase(command);
      answers[command] = answer_group(entries);
    }
    detail::apply_locks(m.locks, m.replace);
    if (m.error_table)
      host::set_error_table(std::move(*m.error_table));
    else if (m.replace)
      host::reset_error_table();
  }
};

simulated_machine::simulated_machine() : impl_(std::make_unique<impl>()) {
  reset();
}

simulated_machine::~simulated_machine() = default;

simulated_machine& simulated_machine::instance() {
  // Never destroyed: objects with static lifetime may still call the mediator at exit.
  static auto* machine = new simulated_machine;
  return *machine;
}

int simulated_machine::dvc_pnl_cmm_get_value(const dvc_pnl_cmm_key& key, dvc_pnl_cmm_value& value,
                                             int /*mode*/) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  const host::value_fault_pause machine_work;
  const std::string dotted = key.to_dotted();
  call_record rec{verb::get, dotted, {}, {}, 0};
  const std::optional<impl::counted_failure> counted = impl_->count_call();
  if (counted && !counted->result) {
    rec.result = static_cast<int>(counted->value);
  } else if (std::optional<int> code = impl_->take_failure(verb::get, dotted)) {
    rec.result = *code;
  } else if (const tree_node* n = key.empty() ? nullptr : impl_->find(path_of(key))) {
    dvc_pnl_cmm_value read;
    rec.result = value_of(*n, path_of(key), read);
    if (rec.result == 0) {
      rec.response = wrapped(key, read);
      value = std::move(read);
    }
  } else {
    rec.result = kNoSuchNode;
  }
  impl_->log.push_back(std::move(rec));
  return impl_->log.back().result;
}

int simulated_machine::dvc_pnl_cmm_set_value(const dvc_pnl_cmm_key& key,
                                             const dvc_pnl_cmm_value& value, int /*mode*/) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  const host::value_fault_pause machine_work;
  const std::string dotted = key.to_dotted();
  call_record rec{verb::set, dotted, wrapped(key, value), {}, 0};
  const std::optional<impl::counted_failure> counted = impl_->count_call();
  if (counted && !counted->result) {
    rec.result = static_cast<int>(counted->value);
  } else if (std::optional<int> code = impl_->take_failure(verb::set, dotted)) {
    rec.result = *code;
  } else if (key.empty() || key[0] != 0) {
    rec.result = kBadValue;
  } else {
    // Built aside first, so a set that cannot be read leaves the tree as it was.
    tree_node sub;
    rec.result = subtree_from_value(value, path_of(key), sub);
    if (rec.result == 0)
      impl_->replace(path_of(key), std::move(sub));
  }
  impl_->log.push_back(std::move(rec));
  const int result = impl_->log.back().result;
  if (result == 0)
    detail::after_setting_write(*this, path_of(key));
  return result;
}

int simulated_machine::dvc_pnl_cmm_invoke(const dvc_pnl_cmm_key& command,
                                          const dvc_pnl_cmm_valueset& request,
                                          dvc_pnl_cmm_valueset& response) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  const host::value_fault_pause machine_work;
  const std::string dotted = command.to_dotted();
  call_record rec{verb::invoke, dotted, request, {}, 0};
  // Whether the machine answered into `response`; undelivered calls leave it untouched.
  bool answered = true;
  const std::optional<impl::counted_failure> counted = impl_->count_call();
  // A RESULT armed for this call: the response holds it alone.
  const auto answer_result = [&](long result) {
    response.dvc_pnl_cmm_clear();
    path p = path_of(command);
    p.push_back(kResultNode);
    dvc_pnl_cmm_key key;
    rec.result = detail::make_key(p, key);
    if (rec.result == 0)
      rec.result = response.dvc_pnl_cmm_set_int(key, result);
  };
  if (counted && !counted->result) {
    rec.result = static_cast<int>(counted->value);
    answered = false;
  } else if (counted) {
    answer_result(counted->value);
  } else if (std::optional<dvc_pnl_cmm_valueset> scripted =
                 impl::take_next(impl_->scripts, dotted)) {
    response = std::move(*scripted);
  } else if (std::optional<int> code = impl_->take_failure(verb::invoke, dotted)) {
    rec.result = *code;
    answered = false;
  } else if (std::optional<long> result = impl::take_next(impl_->result_failures, dotted)) {
    answer_result(*result);
  } else if (auto s = impl_->services.find(dotted); s != impl_->services.end()) {
    response.dvc_pnl_cmm_clear();
    service_call call{command, request, response};
    // A copy: the service may register or drop services, its own included.
    service run = s->second;
    rec.result = run(*this, call);
  } else if (auto a = impl_->answers.find(dotted); a != impl_->answers.end()) {
    response.dvc_pnl_cmm_clear();
    path at = path_of(command);
    rec.result = set_from_group(a->second, at, response);
  } else if (auto l = impl_->lists.find(dotted); l != impl_->lists.end()) {
    rec.result = detail::serve_list(l->second, command, request, response);
  } else {
    rec.result = kNotDeliverable;
    answered = false;
  }
  if (answered)
    rec.response = response;
  impl_->log.push_back(std::move(rec));
  return impl_->log.back().result;
}

void simulated_machine::set_node(const std::string& path_text, const dvc_pnl_cmm_value& value) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  const path p = parse_or_throw(path_text);
  if (p.empty() || p[0] != 0)
    throw std::invalid_argument("node path must start at ROOT (0): \"" + path_text + "\"");
  tree_node sub;
  if (subtree_from_value(value, p, sub) != 0)
    throw std::invalid_argument("value cannot be stored at \"" + path_text + "\"");
  impl_->replace(p, std::move(sub));
}

void simulated_machine::set_int(const std::string& path_text, long value) {
  dvc_pnl_cmm_value v;
  if (v.dvc_pnl_cmm_set_int(value) != 0)
    throw std::runtime_error("value layer refused an integer");
  set_node(path_text, v);
}

void simulated_machine::set_string(const std::string& path_text, const std::string& value) {
  dvc_pnl_cmm_value v;
  if (v.dvc_pnl_cmm_set_string(value.c_str()) != 0)
    throw std::runtime_error("value layer refused a string");
  set_node(path_text, v);
}

std::optional<dvc_pnl_cmm_value> simulated_machine::node(const std::string& path_text) const {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  const path p = parse_or_throw(path_text);
  const tree_node* n = impl_->find(p);
  if (n == nullptr || p.empty())
    return std::nullopt;
  dvc_pnl_cmm_value out;
  if (value_of(*n, p, out) != 0)
    return std::nullopt;
  return out;
}

std::optional<long> simulated_machine::int_at(const std::string& path_text) const {
  std::optional<dvc_pnl_cmm_value> v = node(path_text);
  long out = 0;
  if (!v || v->dvc_pnl_cmm_get_int(out) != 0)
    return std::nullopt;
  return out;
}

void simulated_machine::remove_node(const std::string& path_text) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->remove(parse_or_throw(path_text));
}

void simulated_machine::register_service(const std::string& command, service s) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  const std::string key = detail::to_dotted(parse_or_throw(command));
  impl_->lists.erase(key);
  impl_->answers.erase(key);
  impl_->services[key] = std::move(s);
}

void simulated_machine::register_answer(const std::string& command, const answer_entries& entries) {
  const std::string key = detail::to_dotted(parse_or_throw(command));
  detail::answer_data data;
  for (const auto& [rel, value] : entries) {
    NAME_SPACE_NODE_TYPE type{};
    if (value.dvc_pnl_cmm_get_type(type) != 0 || type == NODE_TYPE_VALUESET)
      throw std::invalid_argument("answer entry \"" + rel +
                                  "\" must be an integer, a string or a binary");
    data.emplace_back(parse_or_throw(rel), value);
  }
  // Built before the lock: a refused answer leaves the command's handler as it was.
  tree_node group = answer_group(data);
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->services.erase(key);
  impl_->lists.erase(key);
  impl_->answers[key] = std::move(group);
}

void simulated_machine::register_list(const std::string& command, std::vector<list_row> rows,
                                      long header_1337, long header_1524) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  const std::string key = detail::to_dotted(parse_or_throw(command));
  impl_->services.erase(key);
  impl_->answers.erase(key);
  impl_->lists[key] = list_data{std::move(rows), header_1337, header_1524};
}

std::vector<list_row>* simulated_machine::list_rows(const std::string& command) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  auto it = impl_->lists.find(detail::to_dotted(parse_or_throw(command)));
  return it == impl_->lists.end() ? nullptr : &it->second.rows;
}

void simulated_machine::post_event(const dvc_pnl_evh_panel_event& event) {
  dvc_pnl_evh_event_handler::dvc_pnl_evh_instance()->dvc_pnl_evm_notify_panel_event(event);
}

void simulated_machine::script_next_response(const std::string& command,
                                             const dvc_pnl_cmm_valueset& response) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->scripts[detail::to_dotted(parse_or_throw(command))].push_back(response);
}

void simulated_machine::fail_next(verb kind, const std::string& key, int code) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->failures[{kind, detail::to_dotted(parse_or_throw(key))}].push_back(code);
}

void simulated_machine::fail_next_result(const std::string& command, long result) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->result_failures[detail::to_dotted(parse_or_throw(command))].push_back(result);
}

void simulated_machine::fail_call(std::size_t n, int code) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->counted = impl::counted_failure{impl_->calls + n, false, code};
}

void simulated_machine::fail_call_result(std::size_t n, long result) {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->counted = impl::counted_failure{impl_->calls + n, true, result};
}

const std::vector<call_record>& simulated_machine::log() const {
  return impl_->log;
}

void simulated_machine::clear_log() {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->log.clear();
}

void simulated_machine::reset() {
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->top = tree_node{};
  impl_->services.clear();
  impl_->answers.clear();
  impl_->lists.clear();
  impl_->scripts.clear();
  impl_->failures.clear();
  impl_->result_failures.clear();
  impl_->counted.reset();
  impl_->log.clear();
  // The embedded model is part of the build: failing to read it is a defect, not a user error.
  const std::string error = load_model_json(detail::default_model_json(), true);
  if (!error.empty())
    throw std::logic_error("default model: " + error);
  detail::apply_job_settings(*this);
  detail::install_lock_service(*this);
  detail::install_record_services(*this);
  detail::install_program_services(*this);
  detail::install_transaction_service(*this);
  detail::install_main_messages(*this);
  detail::install_setting_verdicts(*this);
}

std::string simulated_machine::load_model_json(const std::string& text, bool replace) {
  detail::model m;
  try {
    m = detail::parse_model(text);
  } catch (const std::exception& e) {
    return e.what();
  }
  m.replace = m.replace || replace;
  std::lock_guard<std::recursive_mutex> guard(impl_->lock);
  impl_->apply(std::move(m));
  return {};
}

dvc_pnl_cmm_key key_from_dotted(const std::string& dotted) {
  dvc_pnl_cmm_key key;
  if (detail::make_key(parse_or_throw(dotted), key) != 0)
    throw std::runtime_error("value layer refused a key: \"" + dotted + "\"");
  return key;
}

}  // namespace orvanta::machine

namespace orvanta {

// On a PC the panel's mediator is the simulated machine.
dvc_pnl_cmm_command_mediator& dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance() {
  return machine::simulated_machine::instance();
}

}  // namespace orvanta
