// Host framework around the panel library: clock, event pump, pages, GUI and device records.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/platform/dvc_pnl_ceh_contents_interface.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "orvanta/platform/dvu_pnl_dec_controllers.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta::host {

// ---- clock ----

// Time of the host. Under the virtual clock (the default) time moves only by advance(); timers
// due on the way expire in order of due time, then of start, each running its callback (which
// posts an event) with the clock standing at its due time. Timers are one-shot. A timer started
// with 0 ms is due at once but runs only in the next advance() or run_due(), never inside
// start(); one started with 0 ms by a callback during an expiry pass waits for the pass after,
// so a 0 ms timer that restarts itself cannot stall time.
class host_clock {
 public:
  static host_clock& instance();
  unsigned long now_ms() const;
  // Moves time forward by `ms`, expiring the timers that fall due on the way.
  void advance(unsigned long ms);
  // Expires timers that are due now (0 ms timers included) without moving time.
  void run_due();
  // Number of timers started and not yet expired or stopped.
  std::size_t pending() const;
  // The due time of the earliest running timer, or nothing when none runs.
  std::optional<unsigned long> next_due_ms() const;
  // Back to 0 with no timers (a fresh run).
  void reset();
};

// ---- events ----

// Delivers posted events, oldest first, through the dispatcher's subscriptions until the queue
// is empty (events posted during delivery come in the same pump, after); answers the number
// delivered. Posting may happen on any thread; delivery runs on the caller's.
std::size_t pump();
// Events posted and not yet delivered.
std::size_t posted_count();
// While kept (off by default; reset() keeps the setting and empties the log), every posted event
// is also copied to a log, so that a runner can see what the panel threw even after delivery.
void keep_posted_log(bool on);
// The events posted since the previous take, oldest first; empties the log.
std::vector<dvc_pnl_evh_panel_event> take_posted_log();
// Delivers one event now to every handler subscribed to its id, once each however often it is
// subscribed and in the order of subscription, then to the after-event handlers. A handler that
// an earlier one unsubscribes during this delivery does not hear the event.
void deliver(const dvc_pnl_evh_panel_event& event);
// How often `handler` is subscribed to `event_id`.
int subscription_count(int event_id, const dvu_pnl_evd_event_handler* handler);
// The ids `handler` is subscribed to, in the order of their first subscription.
std::vector<int> subscriptions_of(const dvu_pnl_evd_event_handler* handler);

// ---- pages ----

// Makes the contents of an id; the runtime wires the library's factory in here. Answering
// nullptr makes the open fail. The creator stays set across reset(): it is wiring, not state.
using contents_creator =
    std::function<dvc_pnl_ceh_contents_interface*(int contents_id, dvu_pnl_gcp_components* gui)>;
void set_contents_creator(contents_creator creator);

// A page as the host page stack holds it.
struct page_record {
  int group;
  int function;
  int state;
  int contents_id;
  unsigned order;
  dvc_pnl_ceh_contents_interface* contents;
};
// Marks a dispatch of the framework into the library (a key, an event, a timer expiry): page
// closes and clears asked for while a scope is alive wait, in the order asked, until the
// outermost scope ends, so that a handler never runs on a page that is already gone. Opens take
// effect at once. deliver() and pump() open a scope around each event; whoever calls the
// proxy's key entry opens one around the call.
class dispatch_scope {
 public:
  dispatch_scope();
  ~dispatch_scope();
  dispatch_scope(const dispatch_scope&) = delete;
  dispatch_scope& operator=(const dispatch_scope&) = delete;
};

// Open pages of `function`, bottom first (the window order: by group, then order, then the
// sequence of opening).
std::vector<page_record> pages_of(int function);
// Every call the page stack received, for tests: "open g f s id order", "close g f s id",
// "clear g f s", "change f".
const std::vector<std::string>& page_stack_log();

// ---- GUI ----

// What tests can force on the components of a page. Unforced, the parts answer for themselves:
// their layout decides which parts take keys, what a draw shows and whether a cursor is shown.
struct gui_script {
  std::optional<bool> draw_changes;  // forced: a draw answers this and renders only when true
  std::optional<DVU_PNL_GCP_NOTIFY> next_notify;  // forced: what dvu_pnl_gcp_on_key reports
  bool has_cursor = false;                        // forces a cursor at cursor_rect
  std::array<int, 4> cursor_rect{};
  std::vector<int> keys_seen;  // event ids handed to dvu_pnl_gcp_on_key
  int draws = 0;               // calls of dvu_pnl_gcp_draw
};
// The script of the components of the open page `contents_id` of `function`, or nullptr.
gui_script* gui_of(int contents_id, int function);
// Adds (or replaces) the part `part_id` of those components and answers it. Throws
// std::invalid_argument when no such page is open.
dvu_pnl_gcp_parts* add_part(int contents_id, int function, int part_id,
                            std::unique_ptr<dvu_pnl_gcp_parts> part);
// The same on the components that the contents creator is handed, before the contents is built:
// the parts a page's layout starts with. Throws std::invalid_argument for null components.
dvu_pnl_gcp_parts* add_part(dvu_pnl_gcp_components* gui, int part_id,
                            std::unique_ptr<dvu_pnl_gcp_parts> part);
// The parts of the open page `contents_id` of `function` by ascending part id; empty when no
// such page is open.
std::vector<std::pair<int, dvu_pnl_gcp_parts*>> parts_of(int contents_id, int function);
// The same for an icon part showing `icon`, and for an empty list part.
void add_icon_part(int contents_id, int function, int part_id, int icon);
dvu_pnl_gcp_list* add_list_part(int contents_id, int function, int part_id);

// The attribute word that dvc_pnl_cly_get_layout_name answers for `contents_id` (0 until set;
// reset() clears every word).
void set_layout_attributes(int contents_id, unsigned long attributes);

// The resource table behind dvu_pnl_gcp_resource and the drawing of parts: texts and icon bitmaps
// by resource id. It starts as the host's resource file that is compiled in, and, being data
// rather than state, is kept across reset(). An id without a text reads as its number.
struct icon_bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::string> rows;  // `height` rows of `width` characters: '#' dark, '.' light
};
void set_text_resource(int rid, const std::string& text);
void clear_text_resources();
// Replaces every text and icon by those of a resource file's content (the format of the file
// compiled in: "text <id> <text>" lines, and "icon <id> <width> <height>" followed by its rows;
// blank lines and lines starting with '#' are skipped). Throws std::invalid_argument naming the
// line of the first error, and then leaves the table as it was.
void load_resources(const std::string& content);
// Brings the compiled-in resource file back.
void restore_default_resources();
// The bitmap of icon `rid`; false when the table has none.
bool icon_of(int rid, icon_bitmap& out);

// What the language attribute manager answers: by default neither attribute (a reset brings the
// defaults back). A manager made unavailable makes dvc_pnl_rmg_get_instance answer nullptr.
struct language_attributes {
  int furigana = 0;
  int report_menu_map = 0;
};
void set_language_attributes(const language_attributes& attributes);
void set_language_manager_available(bool available);

// The LCD frame: 128x64 pixels, row-major, 16 bytes a row, most significant bit leftmost,
// 1 = dark.
inline constexpr int kFrameWidth = 128;
inline constexpr int kFrameHeight = 64;
inline constexpr int kFrameStride = 16;
inline constexpr int kFrameBytes = 1024;
// Whether pixel (x, y) of `img` is dark; false outside the frame.
bool frame_pixel(const unsigned char* img, int x, int y);

// The layout of a page is that of its screen family: dvc_pnl_cly_get_layout_name answers the
// family's name ("d_07_01", ...), and the page starts with that layout's parts. The name of the
// layout (shared by several families) that a contents id gets, or "" when no family serves it.
std::string layout_of(int contents_id);

// USB keyboard events carry their key code in the source value set under (0, kKeyboardCodeNode),
// and a release under (0, kKeyboardReleaseNode) with the value 1. The keyboard convertor maps
// Enter (13) to 40, Escape (27) to 61, Backspace (8) to 38, '0'..'9' to 45..54 and a release to
// 87; other keys have no hard key.
inline constexpr unsigned long kKeyboardCodeNode = 4166;
inline constexpr unsigned long kKeyboardReleaseNode = 4167;

// The two flexible keys under the LCD. The GUI stand-in answers them itself, whatever the page's
// script says: the left one reports a button notify of type 3, the right one type 4 (no repeat).
// Their ids lie in the range of key events, so a key's operation source is read from them.
inline constexpr int kKeyFlexLeft = 31;
inline constexpr int kKeyFlexRight = 32;
inline constexpr int kNotifyFlexLeft = 3;
inline constexpr int kNotifyFlexRight = 4;

// ---- devices ----

struct lock_screen_frame {
  std::array<unsigned char, 1024> image;
  int source;
  int exist;
};
struct blink_call {
  int x, width, y, height, mode;
};
struct device_record {
  std::vector<std::array<unsigned char, 1024>> frames;  // dvu_pnl_dec_set_lcd_bitmap_data
  std::vector<lock_screen_frame> lock_screen_frames;
  std::vector<blink_call> blinks;
  int blink_ends = 0;
  std::vector<int> buzzer;  // patterns in order
  std::vector<DVU_PNL_DEC_LED_STATUS> led_calls;
  std::vector<DVU_PNL_DEC_LED_STATUS> led_status;  // latest status per LED, in order of first set
  std::vector<int> panel_commands;                 // thrown key events
  bool refuse_buzzer = false;  // controllers answer 0 while set, and record nothing
  bool refuse_lcd = false;
  bool refuse_led = false;
  bool refuse_key = false;
};
device_record& devices();

// ---- all ----

// A fresh host: clock at 0, no timers, no posted events, no subscriptions, no pages (pages are
// closed without their close handlers, but their contents and components are destroyed and the
// page lifecycle hears of each), empty page stack log, empty device records, empty data manager,
// empty trace sink, no injected value faults, function 1.
void reset();

}  // namespace orvanta::host
