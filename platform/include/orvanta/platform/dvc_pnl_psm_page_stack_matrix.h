// Page stack matrix, window list and contents manager of the panel framework.
#pragma once

#include <vector>

namespace orvanta {

class dvc_pnl_ceh_contents_interface;

// One open page as the page stack reports it.
struct DVC_PNL_PSM_PAGE_DESCRIPTOR {
  int group;
  int function;
  int state;
  int contents_id;
  unsigned order;
};

// Pages are opened and closed per cell (group, function, state). Operations answer 0 on success.
class dvc_pnl_psm_page_stack_matrix {
 public:
  static dvc_pnl_psm_page_stack_matrix* dvc_pnl_psm_get_instance();
  virtual ~dvc_pnl_psm_page_stack_matrix() = default;

  // Creates the contents, runs its load and puts its window on the list before it returns.
  virtual int dvc_pnl_psm_open(int group, int function, int state, int contents_id,
                               unsigned order) = 0;
  // Takes the page off the list, runs its close and destroys the contents.
  virtual int dvc_pnl_psm_close(int group, int function, int state, int contents_id) = 0;
  // Closes every page of the cell (group, function, state).
  virtual int dvc_pnl_psm_clear(int group, int function, int state) = 0;
  // The function whose pages are shown.
  virtual int dvc_pnl_psm_get_function() = 0;
  virtual int dvc_pnl_psm_change_function(int function) = 0;
  // The open pages of `function`, bottom first.
  virtual int dvc_pnl_psm_get_open_page_list(int function,
                                             std::vector<DVC_PNL_PSM_PAGE_DESCRIPTOR>& list) = 0;
  // Group and state of the open page `contents_id` of `function`.
  virtual int dvc_pnl_psm_get_ext_page_traits(int contents_id, int function, int& group,
                                              int& state) = 0;
};

// The framework's holder of one open contents.
class dvc_pnl_cmg_contents_manager {
 public:
  virtual ~dvc_pnl_cmg_contents_manager() = default;
  virtual dvc_pnl_ceh_contents_interface* dvc_pnl_cmg_get_contents() = 0;
};

// One open window; in a list the first entry is the bottom page, the last the top page.
struct DVU_PNL_WMG_WINDOW_TRAITS {
  int contents_id;
  unsigned order;
  dvc_pnl_cmg_contents_manager* manager;
  int function;
};

class dvu_pnl_wmg_list_controller {
 public:
  static dvu_pnl_wmg_list_controller* get_instance();
  virtual ~dvu_pnl_wmg_list_controller() = default;

  // All windows shown now, bottom first.
  virtual int dvu_pnl_lst_get_list(std::vector<DVU_PNL_WMG_WINDOW_TRAITS>& list) = 0;
  // A private copy of the windows that still live, bottom first.
  virtual int dvu_pnl_lst_create_survive_list(std::vector<DVU_PNL_WMG_WINDOW_TRAITS>& list) = 0;
  // The position in the all-windows list of the window (id, function), or -1.
  virtual int dvu_pnl_lst_check(int& contents_id, int function) = 0;
};

}  // namespace orvanta
