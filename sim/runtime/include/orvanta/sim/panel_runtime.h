// One panel run: the library, the host platform and the simulated machine wired together and
// driven the way the panel framework drives them.
#pragma once

#include <atomic>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "orvanta/host/page_lifecycle.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvc_pnl_evh_panel_event.h"
#include "orvanta/sim/frame_render.h"
#include "orvanta/sim/screen_texts.h"

namespace orvanta::sim {

// Virtual: time moves only by wait() (scripts, tests). Real: a timer thread moves the clock with
// the wall clock; its expiries only post events, which the panel thread delivers in drain().
enum class clock_mode { virtual_time, real_time };

// The window on top of the all-windows list: the page the user sees.
struct top_window {
  int contents_id;
  int function;
  dvc_pnl_ceh_contents_interface* contents;
};

// A page the page stack opened.
struct opened_page {
  int function;
  int contents_id;
};

// The panel is made of process-wide singletons, so one runtime exists at a time.
class panel_runtime : private host::page_listener {
 public:
  explicit panel_runtime(clock_mode mode = clock_mode::virtual_time);
  ~panel_runtime();
  panel_runtime(const panel_runtime&) = delete;
  panel_runtime& operator=(const panel_runtime&) = delete;

  // A fresh run without a new process: the machine back to its default model plus `model` (the
  // text of a model file; empty for none), empty data manager, no pages, the library's statics
  // and timers cleared, clock at 0, function 1 shown, the proxy initialized. Answers the model's
  // error text (the default model stays), empty on success.
  std::string reset(const std::string& model = {});

  // ---- inputs: each one delivers its input, then drains what is posted ----

  // The page stack shows `function` (as when a function key is pressed); opens nothing.
  int set_function(int function);
  // Opens `id` in the shown function as the framework opens a page: group and state from the
  // factory's classifiers, order as the proxy places it. True when a page of that id opened.
  bool open(int id);
  // Closes the page `id` of the shown function as the framework closes a page that went away:
  // the page below it becomes active again. False when no page of that id is open.
  bool close(int id);
  // A key press through the proxy's key entry; `remote` puts operation source 2 under (0, 4165),
  // else 1. Answers the proxy (0 consumed).
  int press(int key, bool remote = false);
  // A USB keyboard event (1071) with the keyboard code, or a release.
  void keyboard(long code, bool release = false);
  // A panel event through the dispatcher. False, and nothing delivered, when the proxy is not
  // subscribed to its id.
  bool send_event(const dvc_pnl_evh_panel_event& event);
  // Virtual clock only: moves time by `ms`, stopping at each timer's due time to deliver what
  // it posts, so that later timers see the effects of earlier ones.
  void wait(unsigned long ms);
  // Delivers posted events and 0 ms timers until none is left.
  void drain();

  // ---- what the panel shows ----

  int active_function() const;
  std::optional<top_window> top() const;
  // Open pages of the shown function, bottom first.
  std::vector<host::page_record> stack() const;
  // The last frame that reached the LCD; a blank frame before the first.
  lcd_frame frame() const;
  // Frames sent to the LCD since the reset.
  std::size_t frame_count() const;
  // Pages that opened since the reset, in order, whether or not they are still open.
  const std::vector<opened_page>& opened() const { return opened_; }
  // Texts and icons of the top screen's parts.
  std::vector<shown_item> top_items() const;
  resource_table& resources() { return resources_; }
  unsigned long now_ms() const;
  clock_mode mode() const { return mode_; }

  // Inputs lock this themselves; hold it to read state consistently under the real clock.
  std::recursive_mutex& lock() { return lock_; }

 private:
  void tick();
  void page_opened(int function, int contents_id) override;
  void page_closed(int function, int contents_id) override;

  clock_mode mode_;
  resource_table resources_;
  std::vector<opened_page> opened_;
  mutable std::recursive_mutex lock_;
  std::atomic<bool> stopping_{false};
  std::thread ticker_;
  // Wall time (ms since the epoch of steady_clock) at which the panel clock stood at 0.
  std::atomic<long long> wall_origin_ms_{0};
};

// Reads a whole file; answers an error text, empty on success.
std::string read_file(const std::string& path, std::string& out);

}  // namespace orvanta::sim
