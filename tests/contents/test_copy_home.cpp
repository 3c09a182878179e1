// The copy and box print home screens where a scenario cannot reach: the originals placed on the
// document processor (event 192 and the verdict event after it), what the screen leaves
// unconsumed for the base handling, and a machine that cannot tell the copy limit.
#include <gtest/gtest.h>

#include "contents/dvc_pnl_ceh_contents_base.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"
#include "orvanta/sim/panel_runtime.h"
#include "screens/home/dvc_pnl_ceh_contents_hdl_d_07_01.h"
#include "support/valueset_builder.h"

namespace orvanta::test {
namespace {

constexpr int kPartDpIcon = 43;
constexpr int kPartOriginalSize = 79;
constexpr int kIconPaperOnDp = 334;

class CopyHome : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ("", rt_.reset()); }

  // Opens the home page of `function` and answers it.
  dvc_pnl_ceh_contents_hdl_d_07_01& open_home(int function, int id) {
    EXPECT_EQ(0, rt_.set_function(function));
    EXPECT_TRUE(rt_.open(id));
    auto* home = dynamic_cast<dvc_pnl_ceh_contents_hdl_d_07_01*>(rt_.top()->contents);
    EXPECT_NE(nullptr, home);
    return *home;
  }
  static int attr(dvc_pnl_ceh_contents_base& page, int part, int attribute) {
    dvu_pnl_gcp_parts* p =
        dvu_pnl_gcp_get_gui_parts_by_id(page.dvc_pnl_ceh_get_gui_components(), part);
    int value = -100;
    if (p != nullptr)
      p->dvu_pnl_gcp_get_int_val(attribute, value);
    return value;
  }
  // The document sensors report originals, and the size the detection found.
  static void originals_placed(long detected_size) {
    dvc_pnl_cmm_value v;
    ASSERT_EQ(0,
              v.dvc_pnl_cmm_set_valueset(make_valueset(
                  {{"0.1210.1211", 1L}, {"0.1210.1212", 1L}, {"0.1210.1213", detected_size}}, 2)));
    ASSERT_EQ(0, host::host_data_manager::instance().dvc_pnl_pdm_set_by_application_scope(
                     DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE, v));
  }
  static int deliver(dvc_pnl_ceh_contents_base& page, int id) {
    dvc_pnl_evh_panel_event event(id);
    return page.dvc_pnl_ceh_on_panel_event(event);
  }
  static machine::simulated_machine& machine() { return machine::simulated_machine::instance(); }

  sim::panel_runtime rt_;
};

TEST_F(CopyHome, PlacedOriginalsShowWithTheNextVerdictEventOnCopy) {
  auto& home = open_home(1, CID_01_01_N1);
  EXPECT_EQ(0, attr(home, kPartDpIcon, DVU_PNL_GCP_ATTR_ICON));
  EXPECT_EQ(33, attr(home, kPartOriginalSize, DVU_PNL_GCP_ATTR_TEXT_RESOURCE));

  originals_placed(3);
  machine().set_int("0.230.356.3996", 1);  // automatic size detection on
  EXPECT_EQ(0, deliver(home, 192)) << "copy only remembers the originals";
  EXPECT_EQ(1, home.dp_update_pending());
  EXPECT_EQ(0, attr(home, kPartDpIcon, DVU_PNL_GCP_ATTR_ICON));

  EXPECT_EQ(1, deliver(home, 219));
  EXPECT_EQ(kIconPaperOnDp, attr(home, kPartDpIcon, DVU_PNL_GCP_ATTR_ICON));
  EXPECT_EQ(34, attr(home, kPartOriginalSize, DVU_PNL_GCP_ATTR_TEXT_RESOURCE))
      << "the detected size code 3";
  EXPECT_EQ(0, home.dp_update_pending());
  EXPECT_EQ(0, deliver(home, 219)) << "nothing waits any more: left to others";
}

TEST_F(CopyHome, BoxPrintShowsPlacedOriginalsAtOnce) {
  auto& home = open_home(6, CID_01_02_03_N1);
  originals_placed(1);
  EXPECT_EQ(1, deliver(home, 192));
  EXPECT_EQ(kIconPaperOnDp, attr(home, kPartDpIcon, DVU_PNL_GCP_ATTR_ICON));
  EXPECT_EQ(0, deliver(home, 222)) << "no colour key waits for a verdict";
  EXPECT_EQ(0, deliver(home, 219)) << "copy's verdict is not box print's";
}

TEST_F(CopyHome, KeysTheScreenLeavesToTheBaseHandling) {
  auto& box = open_home(6, CID_01_02_03_N1);
  // Without a box kind the colour keys and the menu cannot decide.
  for (int key : {35, 36, 81}) {
    dvc_pnl_evh_panel_event event(key);
    EXPECT_EQ(0, box.dvc_pnl_ceh_on_key(event)) << key;
  }
  auto& copy = open_home(1, CID_01_01_N1);
  for (int key : {61, 87, 40}) {
    dvc_pnl_evh_panel_event event(key);
    EXPECT_EQ(0, copy.dvc_pnl_ceh_on_key(event)) << key;
  }
  EXPECT_EQ(0, copy.program_keys().down());
}

TEST_F(CopyHome, AnUnreadableCopyLimitKeepsOne) {
  machine().fail_next(machine::verb::get, "0.230.303.304", 3);
  auto& home = open_home(1, CID_01_01_N1);
  EXPECT_EQ(1, home.copy_limit());
  EXPECT_EQ(1, attr(home, 12, DVU_PNL_GCP_ATTR_INT_MAX));
  // Back on top the machine answers again.
  rt_.open(CID_02_44_N1);
  rt_.press(61);
  EXPECT_EQ(999, home.copy_limit());
}

}  // namespace
}  // namespace orvanta::test
