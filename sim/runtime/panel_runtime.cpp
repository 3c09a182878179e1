// The panel runtime: wiring, reset, inputs as the framework delivers them, and the two clocks.
#include "orvanta/sim/panel_runtime.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "contents/dvc_pnl_ceh_contents_base.h"
#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "contents/dvc_pnl_ceh_statics.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvc_pnl_cmm_key.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"

namespace orvanta::sim {
namespace {

constexpr int kKeyboardEvent = DVC_PNL_CEH_EVENT_USB_KEYBOARD;
constexpr unsigned long kOperationSourceNode = 4165;
constexpr long kSourceLocal = 1;
constexpr long kSourceRemote = 2;
// How often the real clock's timer thread moves the panel clock.
constexpr auto kTickPeriod = std::chrono::milliseconds(5);
// A drain that does not end after this many rounds has a posting loop the proxy does not stop.
constexpr int kDrainRounds = 100000;

dvc_pnl_ceh_event_proxy* proxy() {
  return dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
}

long long wall_ms() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

dvc_pnl_cmm_valueset source_set(unsigned long node, long value) {
  dvc_pnl_cmm_key key;
  key.dvc_pnl_cmm_add_key(0);
  key.dvc_pnl_cmm_add_key(node);
  dvc_pnl_cmm_valueset set;
  set.dvc_pnl_cmm_set_int(key, value);
  return set;
}

}  // namespace

std::string read_file(const std::string& path, std::string& out) {
  std::error_code ec;
  if (std::filesystem::is_directory(path, ec))
    return path + " is a directory";
  std::ifstream in(path, std::ios::binary);
  if (!in)
    return "cannot open " + path;
  std::ostringstream text;
  text << in.rdbuf();
  if (in.bad())
    return "cannot read " + path;
  out = text.str();
  return {};
}

panel_runtime::panel_runtime(clock_mode mode) : mode_(mode) {
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  host::set_contents_creator(
      [factory](int id, dvu_pnl_gcp_components* gui) -> dvc_pnl_ceh_contents_interface* {
        return factory->dvc_pnl_ceh_create_contents_proc_class(id, gui);
      });
  host::keep_posted_log(true);
  host::page_lifecycle::instance().add_listener(this);
  reset();
  if (mode_ == clock_mode::real_time)
    ticker_ = std::thread([this] { tick(); });
}

panel_runtime::~panel_runtime() {
  stopping_ = true;
  if (ticker_.joinable())
    ticker_.join();
  std::lock_guard<std::recursive_mutex> guard(lock_);
  host::reset();
  dvc_pnl_ceh_reset_library_statics();
  host::keep_posted_log(false);
  host::page_lifecycle::instance().remove_listener(this);
}

void panel_runtime::page_opened(int function, int contents_id) {
  opened_.push_back({function, contents_id});
}

void panel_runtime::page_closed(int, int) {}

std::string panel_runtime::reset(const std::string& model) {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  // Pages go first: their destructors stop timers and let go of holds through the library.
  host::reset();
  dvc_pnl_ceh_reset_library_statics();
  machine::simulated_machine& m = machine::simulated_machine::instance();
  m.reset();
  std::string error;
  if (!model.empty())
    error = m.load_model_json(model);
  host::trace_sink::instance().clear();
  opened_.clear();
  proxy()->dvc_pnl_ceh_event_initialize();
  wall_origin_ms_ = wall_ms();
  return error;
}

int panel_runtime::set_function(int function) {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  const int ret =
      dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(
          function);
  drain();
  return ret;
}

bool panel_runtime::open(int id) {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  const int function = active_function();
  CONTENTS_OPEN_INFO info{factory->dvc_pnl_ceh_get_contents_class_group(id), function,
                          factory->dvc_pnl_ceh_get_contents_class_state(id), id};
  // The framework opens a page on its own behalf: no page asks for it.
  CONTENTS_OPEN_INFO opener{0, function, 0, 0};
  const std::size_t before = opened_.size();
  proxy()->dvc_pnl_ceh_open_contents(info, opener);
  drain();
  for (std::size_t i = before; i < opened_.size(); ++i) {
    if (opened_[i].contents_id == id)
      return true;
  }
  return false;
}

bool panel_runtime::close(int id) {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  CONTENTS_OPEN_INFO info{factory->dvc_pnl_ceh_get_contents_class_group(id), active_function(),
                          factory->dvc_pnl_ceh_get_contents_class_state(id), id};
  const int ret = proxy()->dvc_pnl_ceh_close_contents(info);
  drain();
  return ret != -1;
}

int panel_runtime::press(int key, bool remote) {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  dvc_pnl_evh_panel_event event(key);
  event.dvc_pnl_evh_set_event_source_valueset(
      source_set(kOperationSourceNode, remote ? kSourceRemote : kSourceLocal));
  int ret;
  {
    host::dispatch_scope scope;
    ret = proxy()->dvc_pnl_ceh_gui_event_proc(event);
  }
  drain();
  return ret;
}

void panel_runtime::keyboard(long code, bool release) {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  dvc_pnl_evh_panel_event event(kKeyboardEvent);
  dvc_pnl_cmm_valueset source = source_set(host::kKeyboardCodeNode, code);
  if (release) {
    dvc_pnl_cmm_key key;
    key.dvc_pnl_cmm_add_key(0);
    key.dvc_pnl_cmm_add_key(host::kKeyboardReleaseNode);
    source.dvc_pnl_cmm_set_int(key, 1);
  }
  event.dvc_pnl_evh_set_event_source_valueset(source);
  host::deliver(event);
  drain();
}

bool panel_runtime::send_event(const dvc_pnl_evh_panel_event& event) {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  if (host::subscription_count(event.dvc_pnl_evh_get_id(), proxy()) == 0)
    return false;
  host::deliver(event);
  drain();
  return true;
}

void panel_runtime::wait(unsigned long ms) {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  host::host_clock& clock = host::host_clock::instance();
  const unsigned long target = clock.now_ms() + ms;
  drain();
  for (;;) {
    const std::optional<unsigned long> due = clock.next_due_ms();
    if (!due || *due > target) {
      clock.advance(target - clock.now_ms());
      drain();
      return;
    }
    clock.advance(*due - clock.now_ms());
    drain();
  }
}

void panel_runtime::drain() {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  host::host_clock& clock = host::host_clock::instance();
  for (int round = 0; round < kDrainRounds; ++round) {
    // 0 ms timers started by the last round are due now; their expiries post events.
    clock.run_due();
    if (host::posted_count() == 0)
      return;
    host::pump();
  }
  host::trace_sink::instance().add(0, 0, 0, "panel runtime: posting loop, drain stopped");
}

int panel_runtime::active_function() const {
  return dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_get_function();
}

std::optional<top_window> panel_runtime::top() const {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list;
  dvu_pnl_wmg_list_controller::get_instance()->dvu_pnl_lst_get_list(list);
  if (list.empty())
    return std::nullopt;
  const DVU_PNL_WMG_WINDOW_TRAITS& w = list.back();
  return top_window{w.contents_id, w.function,
                    w.manager != nullptr ? w.manager->dvc_pnl_cmg_get_contents() : nullptr};
}

std::vector<host::page_record> panel_runtime::stack() const {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  return host::pages_of(active_function());
}

lcd_frame panel_runtime::frame() const {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  lcd_frame out{};
  const auto& frames = host::devices().frames;
  if (!frames.empty())
    out = frames.back();
  return out;
}

std::size_t panel_runtime::frame_count() const {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  return host::devices().frames.size();
}

std::vector<shown_item> panel_runtime::top_items() const {
  std::lock_guard<std::recursive_mutex> guard(lock_);
  const std::optional<top_window> t = top();
  if (!t)
    return {};
  return shown_items(host::parts_of(t->contents_id, t->function), resources_);
}

unsigned long panel_runtime::now_ms() const {
  return host::host_clock::instance().now_ms();
}

void panel_runtime::tick() {
  while (!stopping_) {
    std::this_thread::sleep_for(kTickPeriod);
    std::lock_guard<std::recursive_mutex> guard(lock_);
    host::host_clock& clock = host::host_clock::instance();
    const long long elapsed = wall_ms() - wall_origin_ms_;
    const long long behind = elapsed - static_cast<long long>(clock.now_ms());
    // Expiries run here, on the timer thread, and only post their events; the panel thread
    // delivers them in its next drain().
    if (behind > 0)
      clock.advance(static_cast<unsigned long>(behind));
  }
}

}  // namespace orvanta::sim
