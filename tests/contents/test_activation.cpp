// A page coming back to the top: plain activation, and the reload or redraw after a function
// login that keeps the list's place when it can.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contents_probe.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvc_pnl_cly_contents_layout.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "support/trace_expect.h"

namespace orvanta {
namespace {

using namespace test;

constexpr int kList = 64;
constexpr int kRowsBefore = 5;
constexpr int kSelectBefore = 3;
constexpr int kScrollBefore = 2;
constexpr unsigned long kReload = DVC_PNL_CLY_ATTR_RELOAD_ON_FUNCTION_LOGIN;
constexpr unsigned long kRedraw = DVC_PNL_CLY_ATTR_REDRAW_ON_FUNCTION_LOGIN;

struct activation_case {
  const char* name;
  int mode;            // DVC_PNL_PDM_AUTHENTICATION_MODE
  int function_login;  // DVC_PNL_PDM_FUNCTION_LOGIN_SETTING
  int user;            // DVC_PNL_PDM_AUTHENTICATION_ID
  unsigned long layout_attributes;
  int rows_on_reload;
  // What must happen when the page above closes.
  bool reloads;
  bool activates;
  int select_after;
  int scroll_after;
};

std::ostream& operator<<(std::ostream& os, const activation_case& c) {
  return os << c.name;
}

dvu_pnl_gcp_list* list_of(probe& page) {
  return dynamic_cast<dvu_pnl_gcp_list*>(
      dvu_pnl_gcp_get_gui_parts_by_id(page.dvc_pnl_ceh_get_gui_components(), kList));
}

void fill(dvu_pnl_gcp_list& list, int rows) {
  for (int i = 0; i < rows; ++i) {
    dvu_pnl_gcp_list_row row;
    row.dvu_pnl_gcp_add_text(0, 21, "row " + std::to_string(i));
    list.dvu_pnl_gcp_add_row(row);
  }
}

int list_int(dvu_pnl_gcp_list& list, int attribute) {
  int value = -1;
  EXPECT_EQ(list.dvu_pnl_gcp_get_int_val(attribute, value), 0);
  return value;
}

class ActivationTest : public ProbeFixture {
 protected:
  // Opens A with a list of five rows, row 3 selected and scrolled to 2, and B above it.
  dvu_pnl_gcp_list* open_list_page_under_another() {
    open(kA);
    dvu_pnl_gcp_list* list = host::add_list_part(kA, kFunc, kList);
    fill(*list, kRowsBefore);
    list->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, kSelectBefore);
    list->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, kScrollBefore);
    open(kB);
    return list;
  }

  // Closes B from its own key handling, as a screen going back does.
  void close_top() {
    hooks_by_id()[kB].key = [](probe& self, dvc_pnl_evh_panel_event&) {
      self.back_to_parent();
      return 1;
    };
    press(40);
  }
};

class FunctionLoginRefresh : public ActivationTest,
                             public ::testing::WithParamInterface<activation_case> {};

TEST_P(FunctionLoginRefresh, ComingBackToTheTop) {
  const activation_case& c = GetParam();
  dvu_pnl_gcp_list* list = open_list_page_under_another();
  set_app_int(DVC_PNL_PDM_AUTHENTICATION_MODE, c.mode);
  set_app_int(DVC_PNL_PDM_FUNCTION_LOGIN_SETTING, c.function_login);
  set_app_int(DVC_PNL_PDM_AUTHENTICATION_ID, c.user);
  host::set_layout_attributes(kA, c.layout_attributes);
  int pre_loading_seen = -1;
  int rows_seen_at_load = -1;
  hooks_by_id()[kA].load = [&](probe& self) {
    pre_loading_seen = get_app_int(DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING);
    rows_seen_at_load = list_of(self)->dvu_pnl_gcp_get_max_row() + 1;
    fill(*list_of(self), c.rows_on_reload);
  };
  const int draws_before = host::gui_of(kA, kFunc)->draws;
  journal().clear();

  close_top();

  EXPECT_EQ(journal_with("load 100").size(), c.reloads ? 1u : 0u);
  EXPECT_EQ(journal_with("activate 100").size(), c.activates ? 1u : 0u);
  if (c.reloads) {
    // The rows are cleared before the load, which runs with the pre-loading flag up.
    EXPECT_EQ(rows_seen_at_load, 0);
    EXPECT_EQ(pre_loading_seen, 1);
    EXPECT_EQ(get_app_int(DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING), 0);
  }
  EXPECT_EQ(list->dvu_pnl_gcp_get_max_row() + 1, c.reloads ? c.rows_on_reload : kRowsBefore);
  EXPECT_EQ(list_int(*list, DVU_PNL_GCP_ATTR_LIST_SELECT_ROW), c.select_after);
  EXPECT_EQ(list_int(*list, DVU_PNL_GCP_ATTR_LIST_SCROLL_POS), c.scroll_after);
  // Every way back to the top draws the page once more at least.
  EXPECT_GT(host::gui_of(kA, kFunc)->draws, draws_before);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, FunctionLoginRefresh,
    ::testing::Values(
        activation_case{"no_management", 0, 1, 5, kReload | kRedraw, 0, false, true, kSelectBefore,
                        kScrollBefore},
        activation_case{"accounting_only", 2, 1, 5, kReload | kRedraw, 0, false, true,
                        kSelectBefore, kScrollBefore},
        activation_case{"function_login_off", 1, 0, 5, kReload | kRedraw, 0, false, true,
                        kSelectBefore, kScrollBefore},
        activation_case{"guest", 1, 1, 9001, kReload | kRedraw, 0, false, true, kSelectBefore,
                        kScrollBefore},
        activation_case{"layout_asks_nothing", 1, 1, 5, 0, 0, false, true, kSelectBefore,
                        kScrollBefore},
        activation_case{"same_rows_keep_place", 1, 1, 5, kReload, kRowsBefore, true, true,
                        kSelectBefore, kScrollBefore},
        activation_case{"more_rows_keep_place", 3, 1, 5, kReload, 7, true, true, kSelectBefore,
                        kScrollBefore},
        activation_case{"fewer_rows_back_to_row_0", 1, 1, 5, kReload, 4, true, true, 0, 0},
        activation_case{"redraw_only", 1, 1, 5, kRedraw, 0, false, false, kSelectBefore,
                        kScrollBefore},
        activation_case{"reload_and_redraw", 3, 1, 5, kReload | kRedraw, 2, true, false, 0, 0}),
    [](const ::testing::TestParamInfo<activation_case>& info) { return info.param.name; });

TEST_F(ActivationTest, ReloadWithoutAListOnlyLoadsAgain) {
  open(kA);
  open(kB);
  set_app_int(DVC_PNL_PDM_AUTHENTICATION_MODE, 1);
  set_app_int(DVC_PNL_PDM_FUNCTION_LOGIN_SETTING, 1);
  set_app_int(DVC_PNL_PDM_AUTHENTICATION_ID, 5);
  host::set_layout_attributes(kA, kReload);
  journal().clear();
  close_top();
  EXPECT_EQ(journal_with("load 100").size(), 1u);
  EXPECT_EQ(journal_with("activate 100").size(), 1u);
}

TEST_F(ActivationTest, UnreadableLoginStateCountsAsNoLogin) {
  open_list_page_under_another();
  // The mode was never stored: its read fails, is traced, and counts as 0.
  set_app_int(DVC_PNL_PDM_FUNCTION_LOGIN_SETTING, 1);
  set_app_int(DVC_PNL_PDM_AUTHENTICATION_ID, 5);
  host::set_layout_attributes(kA, kReload);
  journal().clear();
  close_top();
  EXPECT_TRUE(journal_with("load 100").empty());
  EXPECT_EQ(journal_with("activate 100").size(), 1u);
  EXPECT_NE(trace_dump().find("DVC_PNL_PDM_AUTHENTICATION_MODE read failed ret_code = "),
            std::string::npos)
      << trace_dump();
}

}  // namespace
}  // namespace orvanta
