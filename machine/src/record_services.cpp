// The simulated record services: a read answers the stored user, account or box; a change stores
// what the request sends under its nodes; a new box gets the lowest free box id.
#include "orvanta/machine/record_services.h"

#include <algorithm>
#include <initializer_list>
#include <set>

#include "machine_internal.h"

namespace orvanta::machine {
namespace {

using detail::record_fields;
using record_map = std::map<long, record_fields>;

constexpr unsigned long kRequestKind = 1320;
constexpr unsigned long kActingUser = 1012;
constexpr unsigned long kUserNumber = 1365;
constexpr unsigned long kAccountId = 1362;
constexpr unsigned long kBoxId = 197;
constexpr unsigned long kBoxChangeAnswer = 1114;
const char* const kUserList = "0.938.959";

// The records held. Only the services and reset() touch them, both under the machine's lock.
detail::record_book& book() {
  static auto* b = new detail::record_book;  // never destroyed: the machine lives to the end
  return *b;
}

dvc_pnl_cmm_value integer(long v) {
  dvc_pnl_cmm_value value;
  value.dvc_pnl_cmm_set_int(v);
  return value;
}

// The leaves right below the command in the request, but those of `skip`.
record_fields sent_fields(const service_call& call, std::initializer_list<unsigned long> skip) {
  const std::set<unsigned long> skipped(skip);
  const detail::path command = call.command.nodes();
  record_fields sent;
  dvc_pnl_cmm_valueset_iterator it;
  call.request.dvc_pnl_cmm_iterator(it);
  while (it.dvc_pnl_cmm_next_one() != 0) {
    dvc_pnl_cmm_key key;
    dvc_pnl_cmm_value value;
    NAME_SPACE_NODE_TYPE type{};
    if (it.dvc_pnl_cmm_get_key(key) != 0 || it.dvc_pnl_cmm_get_value(value) != 0 ||
        value.dvc_pnl_cmm_get_type(type) != 0 || type == NODE_TYPE_VALUESET)
      continue;
    const detail::path p = key.nodes();
    if (p.size() != command.size() + 1 || !std::equal(command.begin(), command.end(), p.begin()) ||
        skipped.count(p.back()) != 0)
      continue;
    sent[p.back()] = std::move(value);
  }
  return sent;
}

// The record that `id_node` of the request names; nullptr when there is none.
record_fields* named_record(record_map& records, const service_call& call, unsigned long id_node) {
  long id = 0;
  if (!detail::request_int(call, id_node, id))
    return nullptr;
  auto it = records.find(id);
  return it == records.end() ? nullptr : &it->second;
}

// RESULT 0 and every field of `fields` below the command.
int answer_fields(service_call& call, const record_fields& fields) {
  int ret = detail::answer_result(call, 0);
  for (auto it = fields.begin(); ret == 0 && it != fields.end(); ++it)
    ret = detail::answer_value(call, it->first, it->second);
  return ret;
}

void store(record_fields& record, const record_fields& sent) {
  for (const auto& [node, value] : sent)
    record[node] = value;
}

// A read: the whole record that `id_node` names.
service reader(record_map detail::record_book::*records, unsigned long id_node) {
  return [records, id_node](simulated_machine&, service_call& call) {
    const record_fields* record = named_record(book().*records, call, id_node);
    return record == nullptr ? detail::answer_result(call, kRecordUnknown)
                             : answer_fields(call, *record);
  };
}

// The rows of the user list that show user `number` take the fields the change sent.
void follow_in_user_list(simulated_machine& machine, long number, const record_fields& sent) {
  std::vector<list_row>* rows = machine.list_rows(kUserList);
  if (rows == nullptr)
    return;
  for (list_row& row : *rows) {
    auto id = row.fields.find(kUserNumber);
    long shown = 0;
    if (id == row.fields.end() || id->second.dvc_pnl_cmm_get_int(shown) != 0 || shown != number)
      continue;
    for (auto& [node, value] : row.fields) {
      auto changed = sent.find(node);
      if (changed != sent.end())
        value = changed->second;
    }
  }
}

int change_user(simulated_machine& machine, service_call& call) {
  record_fields* user = named_record(book().users, call, kUserNumber);
  if (user == nullptr)
    return detail::answer_result(call, kRecordUnknown);
  // Who made the change is not part of the user.
  const record_fields sent = sent_fields(call, {kRequestKind, kUserNumber, kActingUser});
  store(*user, sent);
  long number = 0;
  detail::request_int(call, kUserNumber, number);
  follow_in_user_list(machine, number, sent);
  return detail::answer_result(call, 0);
}

// The second step of a user change: accepted for a user the machine holds.
int change_user_card(simulated_machine&, service_call& call) {
  return detail::answer_result(
      call, named_record(book().users, call, kUserNumber) == nullptr ? kRecordUnknown : 0);
}

int change_account(simulated_machine&, service_call& call) {
  record_fields* account = named_record(book().accounts, call, kAccountId);
  if (account == nullptr)
    return detail::answer_result(call, kRecordUnknown);
  store(*account, sent_fields(call, {kRequestKind, kAccountId}));
  return detail::answer_result(call, 0);
}

// Answers RESULT 0 with the box's id at 197 and its node 1114.
int answer_box(service_call& call, long id, const record_fields& box) {
  int ret = detail::answer_result(call, 0);
  if (ret == 0)
    ret = detail::answer_value(call, kBoxId, integer(id));
  auto number = box.find(kBoxChangeAnswer);
  if (ret == 0 && number != box.end())
    ret = detail::answer_value(call, kBoxChangeAnswer, number->second);
  return ret;
}

int new_box(simulated_machine&, service_call& call) {
  record_map& boxes = book().boxes;
  long id = 1;
  while (boxes.count(id) != 0)
    ++id;
  // A new box is empty and known by its id; what the request leaves out is empty too.
  dvc_pnl_cmm_value empty_text;
  empty_text.dvc_pnl_cmm_set_string("");
  record_fields box = {{kBoxId, integer(id)}, {1346, integer(0)}, {1350, empty_text},
                       {1351, integer(0)},    {1352, integer(0)}, {kBoxChangeAnswer, integer(id)},
                       {1529, integer(0)},    {1887, integer(0)}};
  store(box, sent_fields(call, {kRequestKind}));
  const record_fields& made = boxes[id] = std::move(box);
  return answer_box(call, id, made);
}

int change_box(simulated_machine&, service_call& call) {
  record_fields* box = named_record(book().boxes, call, kBoxId);
  if (box == nullptr)
    return detail::answer_result(call, kRecordUnknown);
  store(*box, sent_fields(call, {kRequestKind, kBoxId}));
  long id = 0;
  detail::request_int(call, kBoxId, id);
  return answer_box(call, id, *box);
}

}  // namespace

namespace detail {

void install_record_services(simulated_machine& machine) {
  book() = default_records();
  machine.register_service("0.681.843.584", reader(&record_book::users, kUserNumber));
  machine.register_service("0.681.843.583", change_user);
  machine.register_service("0.681.843.2394.2499", change_user_card);
  machine.register_service("0.679.843.584", reader(&record_book::accounts, kAccountId));
  machine.register_service("0.679.843.583", change_account);
  machine.register_service("0.857.860.584", reader(&record_book::boxes, kBoxId));
  machine.register_service("0.857.860.351", new_box);
  machine.register_service("0.857.860.583", change_box);
}

}  // namespace detail
}  // namespace orvanta::machine
