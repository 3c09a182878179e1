// A scripted test page, its journal and hooks, page helpers and the fixture base of contents tests.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"

namespace orvanta::test {

inline constexpr int kFunc = 1;
// Ordinary pages: group 0, state 2.
inline constexpr int kA = 100;
// The part on which every probe page shows its contents id, at the top left of the frame.
inline constexpr int kIdLabelPart = 9999;
inline constexpr int kB = 101;
inline constexpr int kC = 102;
inline constexpr int kD = 103;

dvc_pnl_ceh_event_proxy* proxy();

class probe;

// What the tests let a page do, per contents id. A hook left empty gives the default answer: 0
// for keys and panel events, 1 (handled) for the GUI notifies.
struct hooks {
  using event_hook = std::function<int(probe&, dvc_pnl_evh_panel_event&)>;
  using notify_hook = std::function<int(probe&, DVU_PNL_GCP_NOTIFY*)>;

  std::function<void(probe&)> load;  // runs in the load, before its draw
  event_hook key;
  event_hook panel;
  std::function<void(probe&, int)> timer;
  notify_hook edit;
  notify_hook button;
  notify_hook list;
};

std::map<int, hooks>& hooks_by_id();

// Calls on the pages in the order they happened, one line each: "load 100", "activate 100",
// "close 101", "destroy 101", "key 101 40", "panel 100 880", "timer 100 5 at 300" and, for the GUI
// notifies, "edit|button|list <id> count <repeat count> at <clock>".
std::vector<std::string>& journal();
void note(const std::string& s);

// A page whose answers the test scripts; it journals every call the framework makes on it.
class probe : public dvc_pnl_ceh_contents_hdl_base {
 public:
  probe(int id, dvu_pnl_gcp_components* gui) : dvc_pnl_ceh_contents_hdl_base(id, gui) {}
  ~probe() override;

  void dvc_pnl_ceh_on_load() override;
  void dvc_pnl_ceh_on_close() override;
  void dvc_pnl_ceh_on_activate() override;
  int dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) override;
  int dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& event) override;
  void dvc_pnl_ceh_on_timer(int id) override;
  int dvc_pnl_ceh_on_gui_edit_notify(DVU_PNL_GCP_NOTIFY* n) override;
  int dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* n) override;
  int dvc_pnl_ceh_on_gui_list_notify(DVU_PNL_GCP_NOTIFY* n) override;

  // Holds LCD output and opens `id` once this page is gone.
  void set_open_after_close(int id);
  // The page that opened `id` as its child, or -1.
  static int opener_of(int id);

 private:
  // Journals the notify of `kind`, then answers through `hook`.
  int notify(const char* kind, const hooks::notify_hook& hook, DVU_PNL_GCP_NOTIFY* n);
};

// The open page `id` of function `func`, or nullptr.
probe* page(int id, int func = kFunc);

// Opens `id` through the proxy as a screen would, from outside any dispatch.
probe* open(int id, int func = kFunc);

dvc_pnl_evh_panel_event key_event(int id, long source = 0);
int press(int id, long source = 0);

// Runs the panel as its runtime does: time in 1 ms steps, posted events delivered at once.
void run_for(unsigned long ms);

std::vector<std::string> journal_with(const std::string& prefix);

// The page stack log from entry `from` on.
std::vector<std::string> log_since(std::size_t from);

void set_app_int(const std::string& key, int value);
int get_app_int(const std::string& key);

// Resets the host, the proxy and the contents statics around each test, clears hooks and journal,
// and has the host create every page as a probe.
class ProbeFixture : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
};

}  // namespace orvanta::test
