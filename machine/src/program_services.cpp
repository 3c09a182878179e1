// The simulated program store and one touch key store: slots and keys held by number, read,
// registered, deleted and called by the panel's commands.
#include "orvanta/machine/program_services.h"

#include <map>
#include <optional>
#include <string>

#include "machine_internal.h"

namespace orvanta::machine {
namespace {

// Request and answer nodes of the program commands.
constexpr unsigned long kProgramNumber = 1259;
constexpr unsigned long kProgramKind = 1180;
constexpr unsigned long kProgramPreset = 1326;
constexpr unsigned long kProgramState = 2039;
constexpr unsigned long kProgramStatus = 2092;
constexpr long kCopyProgram = 1;

// Request and answer nodes of the one touch key commands.
constexpr unsigned long kKeyNumber = 1488;
constexpr unsigned long kKeyName = 1489;
constexpr unsigned long kDestinationKind = 1491;
constexpr unsigned long kDestinationNumber = 8;
constexpr unsigned long kDestinationSubNumber = 1463;
constexpr long kContact = 1;

struct program {
  long kind = 0;
  long preset = 0;  // kept for copy programs only
};

struct one_touch_key {
  std::string name;
  long destination_kind = 0;
  long destination_number = 0;
  long destination_sub_number = 0;  // kept for contacts only
};

// The numbered entries of one store: `last` of them, named in requests by `number_node`; a
// missing entry is free.
template <typename Entry>
struct numbered {
  unsigned long number_node;
  long last;
  std::map<long, Entry> used;

  // The number the request names, when it lies in 1 to `last`.
  std::optional<long> number(const service_call& call) const {
    long n = 0;
    if (!detail::request_int(call, number_node, n) || n < 1 || n > last)
      return std::nullopt;
    return n;
  }
  // The used entry the request names; nullptr for a free one or a number outside the store.
  Entry* used_entry(const service_call& call) {
    const std::optional<long> n = number(call);
    if (!n)
      return nullptr;
    auto it = used.find(*n);
    return it == used.end() ? nullptr : &it->second;
  }
};

struct stores {
  numbered<program> programs{kProgramNumber, kProgramSlots, {}};
  numbered<one_touch_key> keys{kKeyNumber, kOneTouchKeys, {}};
};

// Only the services and reset() touch them, both under the machine's lock.
stores& held() {
  static auto* s = new stores;  // never destroyed: the machine lives to the end
  return *s;
}

// SAMPLE DATA of the default machine: program 1 is a copy program registered with the copy
// preset on; one touch key 1 is the mail address (3) of contact 2 of the address book, key 2 is
// group 1. Every other slot and key is free.
stores sample_stores() {
  stores s;
  s.programs.used[1] = program{kCopyProgram, 1};
  s.keys.used[1] = one_touch_key{"", kContact, 2, 3};
  s.keys.used[2] = one_touch_key{"", 2, 1, 0};
  return s;
}

dvc_pnl_cmm_value integer(long v) {
  dvc_pnl_cmm_value value;
  value.dvc_pnl_cmm_set_int(v);
  return value;
}

std::optional<std::string> request_string(const service_call& call, unsigned long node) {
  detail::path p = call.command.nodes();
  p.push_back(node);
  dvc_pnl_cmm_key key;
  const char* text = nullptr;
  if (detail::make_key(p, key) != 0 || call.request.dvc_pnl_cmm_get_string(key, text) != 0)
    return std::nullopt;
  return std::string(text != nullptr ? text : "");
}

// RESULT `result` and the integer fields given.
int answer(service_call& call, long result, const std::map<unsigned long, long>& fields = {}) {
  int ret = detail::answer_result(call, result);
  for (auto it = fields.begin(); ret == 0 && it != fields.end(); ++it)
    ret = detail::answer_value(call, it->first, integer(it->second));
  return ret;
}

int aquire_program(simulated_machine&, service_call& call) {
  const std::optional<long> number = held().programs.number(call);
  if (!number)
    return answer(call, kStoreRefused);
  const program* slot = held().programs.used_entry(call);
  if (slot == nullptr)
    return answer(call, kProgramQueryDone, {{kProgramKind, 0}, {kProgramState, kProgramFree}});
  return answer(call, kProgramQueryDone,
                {{kProgramKind, slot->kind}, {kProgramState, kProgramInUse}});
}

// Every user may call every used program.
int confirm_program(simulated_machine&, service_call& call) {
  if (held().programs.used_entry(call) == nullptr)
    return answer(call, kStoreRefused);
  return answer(call, kProgramQueryDone, {{kProgramStatus, kProgramCallAllowed}});
}

int register_program(simulated_machine&, service_call& call) {
  const std::optional<long> number = held().programs.number(call);
  program made;
  if (!number || !detail::request_int(call, kProgramKind, made.kind))
    return answer(call, kStoreRefused);
  if (made.kind == kCopyProgram && !detail::request_int(call, kProgramPreset, made.preset))
    return answer(call, kStoreRefused);
  held().programs.used[*number] = made;
  return answer(call, kStoreDone);
}

// Empties the entry the request names, used or free.
template <typename Entry>
service delete_from(numbered<Entry> stores::*store) {
  return [store](simulated_machine&, service_call& call) {
    numbered<Entry>& entries = held().*store;
    const std::optional<long> number = entries.number(call);
    if (!number)
      return answer(call, kStoreRefused);
    entries.used.erase(*number);
    return answer(call, kStoreDone);
  };
}

int call_program(simulated_machine&, service_call& call) {
  const program* slot = held().programs.used_entry(call);
  if (slot == nullptr)
    return answer(call, kStoreRefused);
  if (slot->kind == kCopyProgram)
    return answer(call, kStoreDone, {{kProgramKind, slot->kind}, {kProgramPreset, slot->preset}});
  return answer(call, kStoreDone, {{kProgramKind, slot->kind}});
}

int aquire_one_touch_key(simulated_machine&, service_call& call) {
  if (!held().keys.number(call))
    return answer(call, kStoreRefused);
  const one_touch_key* key = held().keys.used_entry(call);
  if (key == nullptr)
    return answer(call, kOneTouchKeyFree);
  std::map<unsigned long, long> fields = {{kDestinationKind, key->destination_kind},
                                          {kDestinationNumber, key->destination_number}};
  if (key->destination_kind == kContact)
    fields[kDestinationSubNumber] = key->destination_sub_number;
  int ret = answer(call, kStoreDone, fields);
  dvc_pnl_cmm_value name;
  if (ret == 0)
    ret = name.dvc_pnl_cmm_set_string(key->name.c_str());
  if (ret == 0)
    ret = detail::answer_value(call, kKeyName, name);
  return ret;
}

// The key the request describes; nullopt when it lacks a field.
std::optional<one_touch_key> sent_key(const service_call& call) {
  one_touch_key key;
  const std::optional<std::string> name = request_string(call, kKeyName);
  if (!name || !detail::request_int(call, kDestinationKind, key.destination_kind) ||
      !detail::request_int(call, kDestinationNumber, key.destination_number))
    return std::nullopt;
  key.name = *name;
  if (key.destination_kind == kContact &&
      !detail::request_int(call, kDestinationSubNumber, key.destination_sub_number))
    return std::nullopt;
  return key;
}

// A new key goes only to a free one, an overwrite only to a used one.
service store_key(bool key_is_new) {
  return [key_is_new](simulated_machine&, service_call& call) {
    const std::optional<long> number = held().keys.number(call);
    const std::optional<one_touch_key> key = sent_key(call);
    if (!number || !key || (held().keys.used_entry(call) == nullptr) != key_is_new)
      return answer(call, kStoreRefused);
    held().keys.used[*number] = *key;
    return answer(call, kStoreDone);
  };
}

// The job's destinations are not simulated: a used key is accepted, any other refused.
int call_one_touch_key(simulated_machine&, service_call& call) {
  return answer(call, held().keys.used_entry(call) == nullptr ? kStoreRefused : kStoreDone);
}

}  // namespace

namespace detail {

void install_program_services(simulated_machine& machine) {
  held() = sample_stores();
  machine.register_service("0.865.584", aquire_program);
  machine.register_service("0.865.2074", confirm_program);
  machine.register_service("0.865.351", register_program);
  machine.register_service("0.865.862", delete_from(&stores::programs));
  machine.register_service("0.865.919", call_program);
  machine.register_service("0.503.990.584", aquire_one_touch_key);
  machine.register_service("0.503.990.351", store_key(true));
  machine.register_service("0.503.990.583", store_key(false));
  machine.register_service("0.503.990.862", delete_from(&stores::keys));
  machine.register_service("0.896.351.2033", call_one_touch_key);
}

}  // namespace detail
}  // namespace orvanta::machine
