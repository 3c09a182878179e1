// Walks the panel on the host platform: opens screens through the event proxy, presses keys, lets
// time pass, reads a machine list, hands values between pages and checks typed text.
#include <cstdio>
#include <cstring>
#include <string>

#include "orvanta/host.h"
#include "orvanta/panel.h"

using namespace orvanta;

namespace {

// A user list as the machine answers it: RESULT and a body of elements under 0.938.959.
dvc_pnl_cmm_valueset make_user_list() {
  const char* names[] = {"Anna", "Bert", "Cleo"};
  dvc_pnl_cmm_valueset body;
  for (unsigned long i = 0; i < 3; ++i) {
    dvc_pnl_cmm_valueset element;
    const unsigned long field[] = {0, 938, 959, 1501, i, 1365};
    const unsigned long elem[] = {0, 938, 959, 1501, i};
    dvc_pnl_cmm_key k;
    dvc_pnl_ceh_contents_hdl_build_key(k, field, 6);
    element.dvc_pnl_cmm_set_string(k, names[i]);
    k.dvc_pnl_cmm_clear();
    dvc_pnl_ceh_contents_hdl_build_key(k, elem, 5);
    body.dvc_pnl_cmm_set_valueset(k, element);
  }
  dvc_pnl_cmm_valueset response;
  dvc_pnl_cmm_key list;
  const unsigned long list_nodes[] = {0, 938, 959};
  dvc_pnl_ceh_contents_hdl_build_key(list, list_nodes, 3);
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(response, list, 1484, 0);
  dvc_pnl_ceh_contents_hdl_set_valueset_to_request_node(response, list, 1501, body);
  return response;
}

void read_user_list() {
  std::puts("== a machine list read row by row");
  dvc_pnl_cmm_valueset response = make_user_list();
  // The local path array is reused: element 4 is the row, element 5 the field.
  unsigned long path[] = {0, 938, 959, 1501, 0, 1365, DVC_PNL_CEH_KEY_END};
  dvc_pnl_cmm_valueset body;
  if (dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(path, 0, 4, response, body) != 0) {
    std::puts("  list body missing");
    return;
  }
  for (unsigned long i = 0; i < body.dvc_pnl_cmm_size(); ++i) {
    path[4] = i;
    dvc_pnl_cmm_valueset element;
    const char* name = nullptr;
    if (dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(path, 0, 5, body, element) == 0 &&
        dvc_pnl_ceh_contents_hdl_get_string_from_valueset(path, 0, 6, element, name) == 0) {
      std::printf("  row %lu: %s\n", i, name);
    }
  }
}

void hand_over_between_pages() {
  std::puts("== a hand-over through the data manager");
  const int copy = 1;
  const int page = 0;
  host::page_lifecycle::instance().opened(copy, page);
  dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, 7, copy);
  dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(
      DVC_PNL_PDM_CEH_MENU_SELECTION, copy, static_cast<DVC_PNL_CEH_CONTENTS_ID>(page), 2);
  int handed = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, handed, copy);
  std::printf("  function scope value read by the child: %d\n", handed);
  host::page_lifecycle::instance().closed(copy, page);
  long selection = -1;
  int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(
      DVC_PNL_PDM_CEH_MENU_SELECTION, copy, static_cast<DVC_PNL_CEH_CONTENTS_ID>(page), selection);
  std::printf("  page scope value after its page closed: result %d, value kept at %ld\n", ret,
              selection);
  dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_DVC_CEH_INTEGER, copy);
}

void check_inputs() {
  std::puts("== typed text against field kinds");
  dvc_pnl_ceh_input_validator v;
  struct {
    const char* text;
    int id;
  } cases[] = {{"0123456789", 12}, {"012 345", 12}, {"012 345", 9}, {"a,b", 1}, {"a,b", 2}};
  for (const auto& c : cases) {
    std::string text = c.text;
    std::printf("  id %2d \"%s\": %s\n", c.id, c.text,
                v.dvc_pnl_ceh_valid_check(text, c.id) == 0 ? "accepted" : "refused");
  }
}

// Opens screens as the framework does and prints what the page stack and the devices saw.
void open_screens() {
  std::puts("== screens opened through the event proxy");
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  host::set_contents_creator([factory](int id, dvu_pnl_gcp_components* gui) {
    return factory->dvc_pnl_ceh_create_contents_proc_class(id, gui);
  });
  auto* proxy = dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
  proxy->dvc_pnl_ceh_event_initialize();

  const int copy = 1;
  for (int id : {CID_01_01_N1, CID_02_01_N1, CID_09_01_N1}) {
    CONTENTS_OPEN_INFO open{factory->dvc_pnl_ceh_get_contents_class_group(id), copy,
                            factory->dvc_pnl_ceh_get_contents_class_state(id), id};
    CONTENTS_OPEN_INFO opener{0, copy, 0, 0};
    proxy->dvc_pnl_ceh_open_contents(open, opener);
  }
  dvc_pnl_evh_panel_event back(61);
  int consumed = proxy->dvc_pnl_ceh_gui_event_proc(back);
  std::printf("  key 61 on the top screen: %s\n", consumed == 0 ? "consumed" : "not consumed");
  host::host_clock::instance().advance(1000);
  host::pump();
  for (const std::string& line : host::page_stack_log())
    std::printf("  page stack: %s\n", line.c_str());
  for (const auto& page : host::pages_of(copy)) {
    std::printf("  open page: %s (group %d, state %d, order %u)\n",
                dvc_pnl_ceh_logger::get_cid(page.contents_id), page.group, page.state, page.order);
  }
  host::reset();
}

}  // namespace

int main(int argc, char** argv) {
  const bool show_trace = argc > 1 && std::strcmp(argv[1], "--trace") == 0;
  if (argc > 1 && !show_trace) {
    std::fprintf(stderr, "usage: orvanta_demo [--trace]\n");
    return 2;
  }
  open_screens();
  read_user_list();
  hand_over_between_pages();
  check_inputs();
  if (show_trace) {
    std::puts("== what the panel traced");
    for (const auto& l : host::trace_sink::instance().lines()) {
      std::printf("  [%lu] %s\n", l.level, l.message.c_str());
    }
  }
  return 0;
}
