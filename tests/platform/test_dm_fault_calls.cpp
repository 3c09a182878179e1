// Host data manager: failing one numbered call, as the fault sweep does, and the call counts and
// read keys it works from.
#include <gtest/gtest.h>

#include "orvanta/host/host_data_manager.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"

namespace orvanta::host {
namespace {

class DmFaultCalls : public ::testing::Test {
 protected:
  void SetUp() override {
    dm.reset();
    dvc_pnl_cmm_value one;
    one.dvc_pnl_cmm_set_int(1);
    ASSERT_EQ(dm.dvc_pnl_pdm_set_by_application_scope(DVC_PNL_PDM_DVC_CEH_INTEGER, one), 0);
    ASSERT_EQ(dm.dvc_pnl_pdm_set_by_function_scope(DVC_PNL_PDM_START_BOX_KIND, 1, one), 0);
  }
  void TearDown() override { dm.reset(); }

  // The answers of reads over all scopes that hold an entry, in turn.
  std::vector<int> read_four() {
    std::vector<int> answers;
    dvc_pnl_cmm_value v;
    answers.push_back(dm.dvc_pnl_pdm_get_by_application_scope(DVC_PNL_PDM_DVC_CEH_INTEGER, v));
    answers.push_back(dm.dvc_pnl_pdm_get_by_function_scope(DVC_PNL_PDM_START_BOX_KIND, 1, v));
    answers.push_back(dm.dvc_pnl_pdm_get_by_application_scope(DVC_PNL_PDM_DVC_CEH_INTEGER, v));
    answers.push_back(dm.dvc_pnl_pdm_get_by_function_scope(DVC_PNL_PDM_START_BOX_KIND, 1, v));
    return answers;
  }

  host_data_manager& dm = host_data_manager::instance();
};

TEST_F(DmFaultCalls, OnlyTheNumberedReadFailsCountingFromTheReset) {
  for (std::size_t index = 0; index < 4; ++index) {
    SCOPED_TRACE(index);
    dm.reset();
    SetUp();  // the two sets count as sets, not as reads
    dm.fail_call(dm_op::get, index);
    const std::vector<int> answers = read_four();
    for (std::size_t i = 0; i < answers.size(); ++i)
      EXPECT_EQ(answers[i] != 0, i == index) << "read " << i;
    EXPECT_EQ(read_four(), (std::vector<int>{0, 0, 0, 0})) << "it fails once";
  }
}

TEST_F(DmFaultCalls, CountsCallsPerOperationAndKeepsTheKeysOfReadsWhenAsked) {
  read_four();
  EXPECT_TRUE(dm.read_keys().empty()) << "reads are not logged unless asked";
  dm.reset();
  dm.log_reads(true);
  SetUp();
  EXPECT_EQ(dm.call_count(dm_op::set), 2u);
  EXPECT_EQ(dm.call_count(dm_op::get), 0u);
  read_four();
  dm.dvc_pnl_pdm_remove_by_application_scope(DVC_PNL_PDM_DVC_CEH_INTEGER);
  EXPECT_EQ(dm.call_count(dm_op::get), 4u);
  EXPECT_EQ(dm.call_count(dm_op::remove), 1u);
  EXPECT_EQ(dm.read_keys(),
            (std::vector<std::string>{DVC_PNL_PDM_DVC_CEH_INTEGER, DVC_PNL_PDM_START_BOX_KIND,
                                      DVC_PNL_PDM_DVC_CEH_INTEGER, DVC_PNL_PDM_START_BOX_KIND}));
  dm.log_reads(false);
}

TEST_F(DmFaultCalls, AResetDisarmsAndStartsCountingAgain) {
  dm.log_reads(true);
  read_four();
  dm.fail_call(dm_op::get, 0);
  dm.reset();
  SetUp();
  EXPECT_EQ(dm.call_count(dm_op::get), 0u);
  EXPECT_TRUE(dm.read_keys().empty());
  EXPECT_EQ(read_four(), (std::vector<int>{0, 0, 0, 0}));
  dm.log_reads(false);
}

TEST_F(DmFaultCalls, AFailedSetOrRemoveChangesNothing) {
  dvc_pnl_cmm_value two;
  two.dvc_pnl_cmm_set_int(2);
  dm.fail_call(dm_op::set, 2);
  EXPECT_NE(dm.dvc_pnl_pdm_set_by_application_scope(DVC_PNL_PDM_DVC_CEH_INTEGER, two), 0);
  dm.fail_call(dm_op::remove, 0);
  EXPECT_NE(dm.dvc_pnl_pdm_remove_by_application_scope(DVC_PNL_PDM_DVC_CEH_INTEGER), 0);
  dvc_pnl_cmm_value v;
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_application_scope(DVC_PNL_PDM_DVC_CEH_INTEGER, v), 0);
  long i = 0;
  v.dvc_pnl_cmm_get_int(i);
  EXPECT_EQ(i, 1);
}

}  // namespace
}  // namespace orvanta::host
