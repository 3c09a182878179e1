// The main messages of the simulated machine: each function's list answered by the paged list
// service on its acquire command, the sample lists of the default machine, and the refresh event.
#include "orvanta/machine/main_messages.h"

#include <utility>

#include "machine_internal.h"

namespace orvanta::machine {
namespace {

constexpr unsigned long kEventCount = 1059;
constexpr unsigned long kEventList = 1060;

struct message_function {
  int function;
  unsigned long acquire_node;  // 0.800.<node>
  unsigned long event_group;   // 0.<group> in the refresh event
  int event_id;
};

constexpr message_function kFunctions[] = {
    {1, 801, 1058, 113}, {3, 802, 1074, 114}, {4, 803, 1075, 115},
    {6, 805, 1077, 117}, {7, 806, 1078, 118},
};

const message_function* find_function(int function) {
  for (const message_function& f : kFunctions) {
    if (f.function == function)
      return &f;
  }
  return nullptr;
}

// The source value set of the refresh event, nested as the machine nests its answers: 0.<group>
// holding 1059 and 1060, 1060 holding one set per message, each holding its fields.
int event_source(unsigned long group, const std::vector<list_row>& messages,
                 dvc_pnl_cmm_valueset& source) {
  const detail::path base = {0, group};
  dvc_pnl_cmm_valueset list;
  for (std::size_t i = 0; i < messages.size(); ++i) {
    const detail::path element_path = {0, group, kEventList, i};
    dvc_pnl_cmm_valueset element;
    for (const auto& [field, value] : messages[i].fields) {
      detail::path field_path = element_path;
      field_path.push_back(field);
      if (int ret = detail::put_value(element, field_path, value); ret != 0)
        return ret;
    }
    if (int ret = detail::put_set(list, element_path, element); ret != 0)
      return ret;
  }
  dvc_pnl_cmm_value count;
  dvc_pnl_cmm_valueset group_set;
  int ret = count.dvc_pnl_cmm_set_int(static_cast<long>(messages.size()));
  if (ret == 0)
    ret = detail::put_value(group_set, {0, group, kEventCount}, count);
  if (ret == 0)
    ret = detail::put_set(group_set, {0, group, kEventList}, list);
  if (ret == 0)
    ret = detail::put_set(source, base, group_set);
  return ret;
}

}  // namespace

std::string main_message_command(int function) {
  const message_function* f = find_function(function);
  return f == nullptr ? std::string() : "0.800." + std::to_string(f->acquire_node);
}

list_row main_message(long id) {
  list_row row;
  row.fields[kMessageId].dvc_pnl_cmm_set_int(id);
  return row;
}

void set_main_messages(simulated_machine& machine, int function, std::vector<list_row> messages) {
  const std::string command = main_message_command(function);
  if (!command.empty())
    machine.register_list(command, std::move(messages));
}

bool post_main_messages_refresh(simulated_machine& machine, int function) {
  const message_function* f = find_function(function);
  if (f == nullptr)
    return false;
  const std::vector<list_row>* messages = machine.list_rows(main_message_command(function));
  if (messages == nullptr)
    return false;
  dvc_pnl_cmm_valueset source;
  if (event_source(f->event_group, *messages, source) != 0)
    return false;
  dvc_pnl_evh_panel_event event(f->event_id);
  if (event.dvc_pnl_evh_set_event_source_valueset(source) != 0)
    return false;
  machine.post_event(event);
  return true;
}

namespace detail {

void install_main_messages(simulated_machine& machine) {
  // SAMPLE DATA: ids the panel's message table knows, so that copy rotates over two messages
  // and every other function shows one.
  set_main_messages(machine, 1, {main_message(4), main_message(9)});
  set_main_messages(machine, 3, {main_message(10)});
  set_main_messages(machine, 4, {main_message(6)});
  set_main_messages(machine, 6, {main_message(9)});
  set_main_messages(machine, 7, {main_message(4)});
}

}  // namespace detail
}  // namespace orvanta::machine
