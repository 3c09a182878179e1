// The scripted test page, its journal and hooks, page helpers and the contents fixture base.
#include "contents_probe.h"

#include <memory>
#include <string>

#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_statics.h"
#include "orvanta/host/font.h"
#include "orvanta/host/panel_host.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"

namespace orvanta::test {

dvc_pnl_ceh_event_proxy* proxy() {
  return dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
}

std::map<int, hooks>& hooks_by_id() {
  static std::map<int, hooks> h;
  return h;
}

std::vector<std::string>& journal() {
  static std::vector<std::string> j;
  return j;
}

void note(const std::string& s) {
  journal().push_back(s);
}

// ---------------------------------------------------------------- probe

probe::~probe() {
  note("destroy " + std::to_string(contents_id_));
}

void probe::dvc_pnl_ceh_on_load() {
  note("load " + std::to_string(contents_id_));
  if (auto it = hooks_by_id().find(contents_id_); it != hooks_by_id().end() && it->second.load)
    it->second.load(*this);
  draw();
}

void probe::dvc_pnl_ceh_on_close() {
  note("close " + std::to_string(contents_id_));
}

void probe::dvc_pnl_ceh_on_activate() {
  note("activate " + std::to_string(contents_id_));
  draw();
}

int probe::dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) {
  note("key " + std::to_string(contents_id_) + " " + std::to_string(event.dvc_pnl_evh_get_id()));
  hooks& h = hooks_by_id()[contents_id_];
  return h.key ? h.key(*this, event) : 0;
}

int probe::dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& event) {
  note("panel " + std::to_string(contents_id_) + " " + std::to_string(event.dvc_pnl_evh_get_id()));
  hooks& h = hooks_by_id()[contents_id_];
  return h.panel ? h.panel(*this, event) : 0;
}

void probe::dvc_pnl_ceh_on_timer(int id) {
  note("timer " + std::to_string(contents_id_) + " " + std::to_string(id) + " at " +
       std::to_string(emwOSWGetSysTimer()));
  hooks& h = hooks_by_id()[contents_id_];
  if (h.timer)
    h.timer(*this, id);
}

int probe::dvc_pnl_ceh_on_gui_edit_notify(DVU_PNL_GCP_NOTIFY* n) {
  return notify("edit", hooks_by_id()[contents_id_].edit, n);
}

int probe::dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* n) {
  return notify("button", hooks_by_id()[contents_id_].button, n);
}

int probe::dvc_pnl_ceh_on_gui_list_notify(DVU_PNL_GCP_NOTIFY* n) {
  return notify("list", hooks_by_id()[contents_id_].list, n);
}

int probe::notify(const char* kind, const hooks::notify_hook& hook, DVU_PNL_GCP_NOTIFY* n) {
  note(std::string(kind) + " " + std::to_string(contents_id_) + " count " +
       std::to_string(n->repeat_count) + " at " + std::to_string(emwOSWGetSysTimer()));
  return hook ? hook(*this, n) : 1;
}

void probe::set_open_after_close(int id) {
  open_after_close_ = static_cast<DVC_PNL_CEH_CONTENTS_ID>(id);
  dvc_pnl_ceh_event_proxy::redraw_pausing_ = 1;
}

int probe::opener_of(int id) {
  auto it = child_opener_.find(id);
  return it == child_opener_.end() ? -1 : it->second;
}

// ---------------------------------------------------------------- pages and input

probe* page(int id, int func) {
  for (const host::page_record& p : host::pages_of(func)) {
    if (p.contents_id == id)
      return dynamic_cast<probe*>(p.contents);
  }
  return nullptr;
}

probe* open(int id, int func) {
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  CONTENTS_OPEN_INFO info{factory->dvc_pnl_ceh_get_contents_class_group(id), func,
                          factory->dvc_pnl_ceh_get_contents_class_state(id), id};
  CONTENTS_OPEN_INFO opener{0, func, 0, 0};
  EXPECT_EQ(proxy()->dvc_pnl_ceh_open_contents(info, opener), 0);
  return page(id, func);
}

dvc_pnl_evh_panel_event key_event(int id, long source) {
  dvc_pnl_evh_panel_event event(id);
  if (source != 0)
    event.dvc_pnl_evh_set_event_source_valueset(make_valueset({{"0.4165", source}}));
  return event;
}

int press(int id, long source) {
  host::dispatch_scope scope;
  return proxy()->dvc_pnl_ceh_gui_event_proc(key_event(id, source));
}

void run_for(unsigned long ms) {
  for (unsigned long i = 0; i < ms; ++i) {
    host::host_clock::instance().advance(1);
    host::pump();
  }
}

// ---------------------------------------------------------------- records and data

std::vector<std::string> journal_with(const std::string& prefix) {
  std::vector<std::string> out;
  for (const std::string& s : journal()) {
    if (s.rfind(prefix, 0) == 0)
      out.push_back(s);
  }
  return out;
}

std::vector<std::string> log_since(std::size_t from) {
  const auto& log = host::page_stack_log();
  return std::vector<std::string>(log.begin() + static_cast<std::ptrdiff_t>(from), log.end());
}

void set_app_int(const std::string& key, int value) {
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(key, value), 0);
}

int get_app_int(const std::string& key) {
  int value = -1;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(key, value), 0);
  return value;
}

// ---------------------------------------------------------------- fixture

void ProbeFixture::SetUp() {
  host::reset();
  dvc_pnl_ceh_reset_library_statics();
  hooks_by_id().clear();
  journal().clear();
  host::set_contents_creator(
      [](int id, dvu_pnl_gcp_components* gui) -> dvc_pnl_ceh_contents_interface* {
        // Every probe page shows its id, so that a frame tells which page drew it.
        auto* label = host::add_part(gui, kIdLabelPart, std::make_unique<dvu_pnl_gcp_text>());
        label->dvu_pnl_gcp_set_size(host::kFrameWidth, host::kGlyphHeight);
        label->dvu_pnl_gcp_set_str_val(DVU_PNL_GCP_ATTR_LITERAL, std::to_string(id));
        return new probe(id, gui);
      });
  proxy()->dvc_pnl_ceh_event_initialize();
}

void ProbeFixture::TearDown() {
  host::reset();
  dvc_pnl_ceh_reset_library_statics();
  hooks_by_id().clear();
  journal().clear();
}

}  // namespace orvanta::test
