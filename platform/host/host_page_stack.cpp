// Host page stack, window list and contents managers: pages per function and their life cycle.
#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "host_internal.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/page_lifecycle.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"

namespace orvanta {
namespace host {
namespace {

constexpr int kFirstShownFunction = 1;

bool function_ok(int function) {
  return function >= host_data_manager::kFunctionMin && function <= host_data_manager::kFunctionMax;
}

// One open page: its place in the stack, its contents and its GUI components. It is also the
// contents manager that windows point at.
struct host_page final : dvc_pnl_cmg_contents_manager {
  int group = 0;
  int function = 0;
  int state = 0;
  int contents_id = 0;
  unsigned order = 0;
  std::uint64_t seq = 0;  // opening sequence, unique for the life of the process
  dvc_pnl_ceh_contents_interface* contents = nullptr;
  std::unique_ptr<dvu_pnl_gcp_components> gui;

  dvc_pnl_ceh_contents_interface* dvc_pnl_cmg_get_contents() override { return contents; }
};

// Window z-order within a function, bottom first: by group, then by order, then by the sequence
// of opening. The framework leaves the meaning of groups and orders to its page stack; this is
// the host's reading, under which a higher layer (group) always covers a lower one, and pages
// placed at the same order stack in the order they opened.
bool below(const host_page& a, const host_page& b) {
  return std::tie(a.group, a.order, a.seq) < std::tie(b.group, b.order, b.seq);
}

// The pages are only touched on the dispatching thread. Every step that calls into a contents
// looks its pages up afresh afterwards, by opening sequence: a contents may open and close pages
// (through the library) from any of its handlers.
class host_page_stack final : public dvc_pnl_psm_page_stack_matrix {
 public:
  int dvc_pnl_psm_open(int group, int function, int state, int contents_id,
                       unsigned order) override {
    log_.push_back("open " + std::to_string(group) + " " + std::to_string(function) + " " +
                   std::to_string(state) + " " + std::to_string(contents_id) + " " +
                   std::to_string(order));
    if (!function_ok(function) || !creator_)
      return 1;
    auto page = std::make_unique<host_page>();
    page->group = group;
    page->function = function;
    page->state = state;
    page->contents_id = contents_id;
    page->order = order;
    page->gui = std::make_unique<dvu_pnl_gcp_components>(contents_id, function);
    build_layout(*page->gui);
    // The creator's constructor takes the contents' lock and may ask the page stack for the
    // shown function: nothing of the new page is on the list yet.
    dvc_pnl_ceh_contents_interface* contents = creator_(contents_id, page->gui.get());
    if (contents == nullptr)
      return 1;
    page->contents = contents;
    page->seq = next_seq_++;
    const std::uint64_t seq = page->seq;
    const host_page* before = top_of(function);
    const std::uint64_t covered = before == nullptr ? 0 : before->seq;
    insert(std::move(page));

    page_lifecycle::instance().opened(function, contents_id);
    // The page is ready: release the lock its constructor took, on the thread that built it.
    contents->dvc_pnl_ceh_unlock();

    const host_page* top = top_of(function);
    if (function == shown_ && covered != 0 && top != nullptr && top->seq == seq) {
      if (host_page* prev = by_seq(function, covered))
        prev->contents->dvc_pnl_ceh_on_deactivate();
    }
    if (host_page* self = by_seq(function, seq))
      self->contents->dvc_pnl_ceh_on_load();
    return 0;
  }

  int dvc_pnl_psm_close(int group, int function, int state, int contents_id) override {
    log_.push_back("close " + std::to_string(group) + " " + std::to_string(function) + " " +
                   std::to_string(state) + " " + std::to_string(contents_id));
    if (!function_ok(function))
      return 1;
    const host_page* page = find_first(function, [&](const host_page& p) {
      return p.group == group && p.state == state && p.contents_id == contents_id;
    });
    if (page == nullptr)
      return 1;
    const std::uint64_t seq = page->seq;
    run_or_defer([this, function, seq] {
      if (by_seq(function, seq) != nullptr)
        close_page(function, seq);
    });
    return 0;
  }

  int dvc_pnl_psm_clear(int group, int function, int state) override {
    log_.push_back("clear " + std::to_string(group) + " " + std::to_string(function) + " " +
                   std::to_string(state));
    if (!function_ok(function))
      return 1;
    // The pages of the cell as they stand now, top first; pages opened meanwhile (by close
    // handlers, or later in the dispatch that asked) are not part of this clear.
    std::vector<std::uint64_t> doomed;
    const auto& list = pages_[function];
    for (auto it = list.rbegin(); it != list.rend(); ++it) {
      if ((*it)->group == group && (*it)->state == state)
        doomed.push_back((*it)->seq);
    }
    run_or_defer([this, function, doomed] {
      for (std::uint64_t seq : doomed) {
        if (by_seq(function, seq) != nullptr)
          close_page(function, seq);
      }
    });
    return 0;
  }

  int dvc_pnl_psm_get_function() override { return shown_; }

  // Switching shows another function's pages; it opens, closes and activates nothing.
  int dvc_pnl_psm_change_function(int function) override {
    log_.push_back("change " + std::to_string(function));
    if (!function_ok(function))
      return 1;
    shown_ = function;
    return 0;
  }

  int dvc_pnl_psm_get_open_page_list(int function,
                                     std::vector<DVC_PNL_PSM_PAGE_DESCRIPTOR>& list) override {
    list.clear();
    if (!function_ok(function))
      return 1;
    for (const auto& p : pages_[function])
      list.push_back({p->group, p->function, p->state, p->contents_id, p->order});
    return 0;
  }

  int dvc_pnl_psm_get_ext_page_traits(int contents_id, int function, int& group,
                                      int& state) override {
    if (!function_ok(function))
      return 1;
    const host_page* page =
        find_first(function, [&](const host_page& p) { return p.contents_id == contents_id; });
    if (page == nullptr)
      return 1;
    group = page->group;
    state = page->state;
    return 0;
  }

  // ---- for the window list and the host API ----

  // The pages of `function`, bottom first; empty for a function with none.
  const std::vector<std::unique_ptr<host_page>>& list_of(int function) {
    static const std::vector<std::unique_ptr<host_page>> none;
    auto it = pages_.find(function);
    return it == pages_.end() ? none : it->second;
  }

  template <typename Pred>
  host_page* find_first(int function, Pred pred) {
    for (const auto& p : list_of(function)) {
      if (pred(*p))
        return p.get();
    }
    return nullptr;
  }

  void set_creator(contents_creator creator) { creator_ = std::move(creator); }
  const std::vector<std::string>& log() const { return log_; }

  // Drops every page without its close handler; the contents and components are destroyed, and
  // the page lifecycle hears of each page so that its listeners stay in step.
  void reset() {
    auto all = std::move(pages_);
    pages_.clear();
    for (auto& [function, list] : all) {
      while (!list.empty()) {
        std::unique_ptr<host_page> page = std::move(list.back());
        list.pop_back();
        page_lifecycle::instance().closed(function, page->contents_id);
        delete page->contents;
      }
    }
    shown_ = kFirstShownFunction;
    log_.clear();
    deferred_.clear();
    dispatch_depth_ = 0;
  }

  // A dispatch of the framework into the library begins or ends. Closes asked for while one is
  // on are carried out, in the order asked, when the outermost one ends: a handler that closes
  // its own page (or clears its function) still runs on a live object.
  void enter_dispatch() { ++dispatch_depth_; }
  void leave_dispatch() {
    if (dispatch_depth_ == 0 || --dispatch_depth_ != 0)
      return;
    // Close handlers run here may ask for more closes; with no dispatch on, those run at once.
    std::vector<std::function<void()>> work = std::move(deferred_);
    deferred_.clear();
    for (auto& step : work)
      step();
  }

 private:
  void run_or_defer(std::function<void()> step) {
    if (dispatch_depth_ > 0)
      deferred_.push_back(std::move(step));
    else
      step();
  }

  host_page* top_of(int function) {
    const auto& list = list_of(function);
    return list.empty() ? nullptr : list.back().get();
  }

  host_page* by_seq(int function, std::uint64_t seq) {
    return find_first(function, [seq](const host_page& p) { return p.seq == seq; });
  }

  void insert(std::unique_ptr<host_page> page) {
    auto& list = pages_[page->function];
    auto pos = std::upper_bound(list.begin(), list.end(), page,
                                [](const std::unique_ptr<host_page>& a,
                                   const std::unique_ptr<host_page>& b) { return below(*a, *b); });
    list.insert(pos, std::move(page));
  }

  // Takes the page off the list, runs its close, tells the page lifecycle, destroys the contents
  // and then its components. Only then, if the page was on top of the shown function, the page
  // it uncovered comes on top again and is activated: unless the close handler opened or closed
  // pages so that another page is on top, which its own open or close has already dealt with.
  void close_page(int function, std::uint64_t seq) {
    auto& list = pages_[function];
    auto it = std::find_if(list.begin(), list.end(),
                           [seq](const std::unique_ptr<host_page>& p) { return p->seq == seq; });
    const bool was_top = std::next(it) == list.end();
    std::unique_ptr<host_page> page = std::move(*it);
    list.erase(it);
    const host_page* uncovered = top_of(function);
    const std::uint64_t uncovered_seq = uncovered == nullptr ? 0 : uncovered->seq;

    page->contents->dvc_pnl_ceh_on_close();
    page_lifecycle::instance().closed(function, page->contents_id);
    delete page->contents;
    page->contents = nullptr;
    page.reset();

    if (!was_top || function != shown_ || uncovered_seq == 0)
      return;
    host_page* top = top_of(function);
    if (top != nullptr && top->seq == uncovered_seq)
      top->contents->dvc_pnl_ceh_on_activate_pre();
  }

  std::map<int, std::vector<std::unique_ptr<host_page>>> pages_;  // by function, bottom first
  int shown_ = kFirstShownFunction;
  std::uint64_t next_seq_ = 1;
  int dispatch_depth_ = 0;
  std::vector<std::function<void()>> deferred_;
  std::vector<std::string> log_;
  contents_creator creator_;
};

// Never destroyed: contents left open at the end of the process would run their destructors
// against singletons that may already be gone.
host_page_stack& stack() {
  static auto* s = new host_page_stack;
  return *s;
}

// The windows of every function, those of the shown function on top: the top window is the page
// the user sees, and a page of a function in the background always has a window above it, so it
// never reaches the LCD. Closes take effect at once on the host, so the survive list is the same
// as the list of all windows.
class host_window_list final : public dvu_pnl_wmg_list_controller {
 public:
  int dvu_pnl_lst_get_list(std::vector<DVU_PNL_WMG_WINDOW_TRAITS>& list) override {
    list.clear();
    const int shown = stack().dvc_pnl_psm_get_function();
    auto add = [&list](int function) {
      for (const auto& p : stack().list_of(function))
        list.push_back({p->contents_id, p->order, p.get(), p->function});
    };
    for (int f = host_data_manager::kFunctionMin; f <= host_data_manager::kFunctionMax; ++f) {
      if (f != shown)
        add(f);
    }
    add(shown);
    return 0;
  }

  int dvu_pnl_lst_create_survive_list(std::vector<DVU_PNL_WMG_WINDOW_TRAITS>& list) override {
    return dvu_pnl_lst_get_list(list);
  }

  int dvu_pnl_lst_check(int& contents_id, int function) override {
    std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list;
    dvu_pnl_lst_get_list(list);
    for (std::size_t i = 0; i < list.size(); ++i) {
      if (list[i].contents_id == contents_id && list[i].function == function)
        return static_cast<int>(i);
    }
    return -1;
  }
};

}  // namespace

void set_contents_creator(contents_creator creator) {
  stack().set_creator(std::move(creator));
}

std::vector<page_record> pages_of(int function) {
  std::vector<page_record> out;
  for (const auto& p : stack().list_of(function))
    out.push_back({p->group, p->function, p->state, p->contents_id, p->order, p->contents});
  return out;
}

const std::vector<std::string>& page_stack_log() {
  return stack().log();
}

gui_script* gui_of(int contents_id, int function) {
  host_page* page = stack().find_first(
      function, [contents_id](const host_page& p) { return p.contents_id == contents_id; });
  return page == nullptr ? nullptr : &page->gui->script();
}

dvu_pnl_gcp_parts* add_part(int contents_id, int function, int part_id,
                            std::unique_ptr<dvu_pnl_gcp_parts> part) {
  host_page* page = stack().find_first(
      function, [contents_id](const host_page& p) { return p.contents_id == contents_id; });
  if (page == nullptr) {
    throw std::invalid_argument("add_part: no open page " + std::to_string(contents_id) +
                                " in function " + std::to_string(function));
  }
  return page->gui->add(part_id, std::move(part));
}

dvu_pnl_gcp_parts* add_part(dvu_pnl_gcp_components* gui, int part_id,
                            std::unique_ptr<dvu_pnl_gcp_parts> part) {
  if (gui == nullptr)
    throw std::invalid_argument("add_part: no components");
  return gui->add(part_id, std::move(part));
}

std::vector<std::pair<int, dvu_pnl_gcp_parts*>> parts_of(int contents_id, int function) {
  std::vector<std::pair<int, dvu_pnl_gcp_parts*>> out;
  host_page* page = stack().find_first(
      function, [contents_id](const host_page& p) { return p.contents_id == contents_id; });
  if (page == nullptr)
    return out;
  for (const auto& [id, part] : page->gui->parts())
    out.emplace_back(id, part.get());
  return out;
}

void add_icon_part(int contents_id, int function, int part_id, int icon) {
  auto part = std::make_unique<dvu_pnl_gcp_icon>();
  part->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, icon);
  add_part(contents_id, function, part_id, std::move(part));
}

dvu_pnl_gcp_list* add_list_part(int contents_id, int function, int part_id) {
  return static_cast<dvu_pnl_gcp_list*>(
      add_part(contents_id, function, part_id, std::make_unique<dvu_pnl_gcp_list>()));
}

dispatch_scope::dispatch_scope() {
  stack().enter_dispatch();
}

dispatch_scope::~dispatch_scope() {
  stack().leave_dispatch();
}

void reset_pages() {
  stack().reset();
}

}  // namespace host

dvc_pnl_psm_page_stack_matrix* dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance() {
  return &host::stack();
}

dvu_pnl_wmg_list_controller* dvu_pnl_wmg_list_controller::get_instance() {
  static host::host_window_list windows;
  return &windows;
}

}  // namespace orvanta
