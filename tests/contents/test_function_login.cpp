// The function login of a guest and the maintenance mode login flag: what is stored, what opens.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "contents_probe.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "screens/common/dvc_pnl_ceh_function_login.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_actions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"

namespace orvanta::test {
namespace {

using machine::service_call;
using machine::simulated_machine;

constexpr long kGuestId = DVC_PNL_CEH_USER_GUEST;
// Guest permissions of the user information answer: 3060 stands for the first mask bit asked.
constexpr unsigned long kFirstPermission = 3060;

class FunctionLogin : public ProbeFixture {
 protected:
  void SetUp() override {
    ProbeFixture::SetUp();
    simulated_machine::instance().reset();
  }
  void TearDown() override {
    simulated_machine::instance().reset();
    ProbeFixture::TearDown();
  }

  // Who is logged in, with the guest's permission for the first function of the masks below.
  static void user(long id, long permission) {
    set_app_int(DVC_PNL_PDM_AUTHENTICATION_MODE, 1);
    set_app_int(DVC_PNL_PDM_AUTHENTICATION_ID, static_cast<int>(id));
    set_app_int(DVC_PNL_PDM_FUNCTION_LOGIN_SETTING, 1);
    simulated_machine::instance().register_service("0.874.844", [permission](simulated_machine&,
                                                                             service_call& call) {
      call.response = make_valueset(
          {{"0.874.844.1484", 0L}, {"0.874.844." + std::to_string(kFirstPermission), permission}});
      return 0;
    });
  }

  // Presses a key on page kA, which asks for the login of `mask`; answers what the opener said.
  static int ask(long mask) {
    int answer = -1;
    hooks_by_id()[kA].key = [&answer, mask](probe& p, dvc_pnl_evh_panel_event&) {
      answer = open_function_login_contents(p, mask);
      return 1;
    };
    press(40);
    return answer;
  }
};

TEST_F(FunctionLogin, AGuestRefusedTheFunctionIsSentToTheLogin) {
  open(kA);
  user(kGuestId, 1);
  EXPECT_EQ(1, ask(0x10));
  const DVC_PNL_CEH_CONTENTS_ID login = dvc_pnl_ceh_contents_hdl_get_job_info_login_page();
  EXPECT_NE(nullptr, page(login)) << "the login page is open";

  DVC_PNL_CEH_AUTHENTICATION_INFO info{};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_CEH_AUTHENTICATION_INFO,
                                                           &info, sizeof info, kFunc));
  EXPECT_EQ(DVC_PNL_CEH_AUTHENTICATION_KIND_FUNCTION, info.kind);
  EXPECT_EQ(kA, info.target);
  EXPECT_EQ(kA, info.refused);
  EXPECT_EQ('\0', info.user_name[0]);
}

TEST_F(FunctionLogin, NothingOpensUnlessAllThreeConditionsHold) {
  struct login_case {
    long id;
    long permission;
    long mask;
  };
  const std::vector<login_case> cases = {
      {kGuestId, 1, 0x8},   // a function outside the login mask
      {kGuestId, 0, 0x10},  // the guest may use it
      {17, 1, 0x10},        // somebody else is logged in
  };
  open(kA);
  for (const login_case& c : cases) {
    SCOPED_TRACE(c.mask);
    user(c.id, c.permission);
    EXPECT_EQ(0, ask(c.mask));
    EXPECT_EQ(nullptr, page(dvc_pnl_ceh_contents_hdl_get_job_info_login_page()));
  }
  DVC_PNL_CEH_AUTHENTICATION_INFO info{};
  EXPECT_NE(0, dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_CEH_AUTHENTICATION_INFO,
                                                           &info, sizeof info, kFunc));
}

TEST_F(FunctionLogin, ARecordThatCannotBeStoredOpensNothing) {
  open(kA);
  user(kGuestId, 1);
  host::host_data_manager::instance().fail_next(host::dm_op::set);
  EXPECT_EQ(0, ask(0x10));
  EXPECT_EQ(nullptr, page(dvc_pnl_ceh_contents_hdl_get_job_info_login_page()));
}

TEST_F(FunctionLogin, MaintenanceLoginFlagGoesToTheApplicationScope) {
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_set_maintenance_mode_login_flag(1));
  EXPECT_EQ(1, get_app_int(DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG));
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_set_maintenance_mode_login_flag(0));
  EXPECT_EQ(0, get_app_int(DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG));

  host::host_data_manager::instance().fail_next(host::dm_op::set);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_set_maintenance_mode_login_flag(1));
  EXPECT_EQ(0, get_app_int(DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG));
  EXPECT_TRUE(
      traced("dvc_pnl_pdm_data_manager::dvc_pnl_pdm_set_by_application_scope ret_code = 3"));
}

}  // namespace
}  // namespace orvanta::test
