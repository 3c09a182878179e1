// Host data manager: scope addressing, lifetimes tied to pages, deep copies, refused addresses.
#include <gtest/gtest.h>

#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/page_lifecycle.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"

namespace orvanta::host {
namespace {

dvc_pnl_cmm_value int_value(long i) {
  dvc_pnl_cmm_value v;
  v.dvc_pnl_cmm_set_int(i);
  return v;
}

long int_of(const dvc_pnl_cmm_value& v) {
  long i = -12345;
  v.dvc_pnl_cmm_get_int(i);
  return i;
}

class HostDataManager : public ::testing::Test {
 protected:
  void SetUp() override { dm.reset(); }
  void TearDown() override { dm.reset(); }
  host_data_manager& dm = host_data_manager::instance();
  const std::string& key = DVC_PNL_PDM_DVC_CEH_INTEGER;
};

TEST_F(HostDataManager, TheFourScopesAreSeparateAddresses) {
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_page_scope(key, 1, 10, int_value(1)), 0);
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_function_scope(key, 1, int_value(2)), 0);
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_application_scope(key, int_value(3)), 0);
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_cross_function_scope(key, 10, int_value(4)), 0);
  dvc_pnl_cmm_value v;
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_page_scope(key, 1, 10, v), 0);
  EXPECT_EQ(int_of(v), 1);
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_function_scope(key, 1, v), 0);
  EXPECT_EQ(int_of(v), 2);
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_application_scope(key, v), 0);
  EXPECT_EQ(int_of(v), 3);
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_cross_function_scope(key, 10, v), 0);
  EXPECT_EQ(int_of(v), 4);
  // Other coordinates are other entries.
  EXPECT_NE(dm.dvc_pnl_pdm_get_by_page_scope(key, 2, 10, v), 0);
  EXPECT_NE(dm.dvc_pnl_pdm_get_by_page_scope(key, 1, 11, v), 0);
  EXPECT_NE(dm.dvc_pnl_pdm_get_by_function_scope(key, 2, v), 0);
  EXPECT_NE(dm.dvc_pnl_pdm_get_by_cross_function_scope(key, 11, v), 0);
}

TEST_F(HostDataManager, FunctionIdsZeroToThirtySixAreAccepted) {
  for (int f : {0, 36}) {
    EXPECT_EQ(dm.dvc_pnl_pdm_set_by_function_scope(key, f, int_value(f)), 0) << f;
    EXPECT_EQ(dm.dvc_pnl_pdm_set_by_page_scope(key, f, 0, int_value(f)), 0) << f;
  }
  for (int f : {-1, 37}) {
    EXPECT_NE(dm.dvc_pnl_pdm_set_by_function_scope(key, f, int_value(f)), 0) << f;
    EXPECT_NE(dm.dvc_pnl_pdm_set_by_page_scope(key, f, 0, int_value(f)), 0) << f;
  }
  EXPECT_NE(dm.dvc_pnl_pdm_set_by_application_scope("", int_value(1)), 0);
}

TEST_F(HostDataManager, ValuesGoInAndComeOutAsIndependentCopies) {
  dvc_pnl_cmm_key k;
  k.dvc_pnl_cmm_add_key(0);
  k.dvc_pnl_cmm_add_key(5);
  dvc_pnl_cmm_valueset set;
  set.dvc_pnl_cmm_set_int(k, 1);
  dvc_pnl_cmm_value v;
  v.dvc_pnl_cmm_set_valueset(set);
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_function_scope(DVC_PNL_PDM_DVC_CEH_VALUESET, 3, v), 0);
  set.dvc_pnl_cmm_set_int(k, 2);
  v.dvc_pnl_cmm_set_valueset(set);  // changing the caller's value leaves the entry alone

  dvc_pnl_cmm_value out;
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_function_scope(DVC_PNL_PDM_DVC_CEH_VALUESET, 3, out), 0);
  dvc_pnl_cmm_valueset got;
  ASSERT_EQ(out.dvc_pnl_cmm_get_valueset(got), 0);
  long i = 0;
  got.dvc_pnl_cmm_get_int(k, i);
  EXPECT_EQ(i, 1);
  got.dvc_pnl_cmm_set_int(k, 3);  // changing what was read leaves the entry alone too
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_function_scope(DVC_PNL_PDM_DVC_CEH_VALUESET, 3, out), 0);
  out.dvc_pnl_cmm_get_valueset(got);
  got.dvc_pnl_cmm_get_int(k, i);
  EXPECT_EQ(i, 1);
}

TEST_F(HostDataManager, PageEntriesGoWithTheirPageAndNotBefore) {
  auto& pages = page_lifecycle::instance();
  pages.opened(1, 10);
  pages.opened(1, 11);
  dvc_pnl_cmm_value v;
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_page_scope(PAGE_SCOPE_DATA_LABEL, 1, 10, v), 0);
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_page_scope(key, 1, 10, int_value(5)), 0);
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_page_scope(DVC_PNL_PDM_DVC_CEH_STRING, 1, 10, int_value(6)), 0);
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_page_scope(key, 1, 11, int_value(7)), 0);
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_page_scope(key, 2, 10, int_value(8)), 0);  // other function
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_function_scope(key, 1, int_value(9)), 0);
  EXPECT_EQ(dm.page_entry_count(1, 10), 3u);

  pages.closed(1, 11);
  EXPECT_EQ(dm.page_entry_count(1, 10), 3u);  // closing another page leaves this one alone
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_page_scope(key, 1, 10, v), 0);
  EXPECT_EQ(int_of(v), 5);

  pages.closed(1, 10);
  EXPECT_EQ(dm.page_entry_count(1, 10), 0u);
  EXPECT_NE(dm.dvc_pnl_pdm_get_by_page_scope(PAGE_SCOPE_DATA_LABEL, 1, 10, v), 0);
  EXPECT_NE(dm.dvc_pnl_pdm_get_by_page_scope(key, 1, 10, v), 0);
  // Same contents id under another function, and function scope, survive.
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_page_scope(key, 2, 10, v), 0);
  EXPECT_EQ(int_of(v), 8);
  ASSERT_EQ(dm.dvc_pnl_pdm_get_by_function_scope(key, 1, v), 0);
  EXPECT_EQ(int_of(v), 9);
}

TEST_F(HostDataManager, RemovalAndInjectedFailures) {
  EXPECT_NE(dm.dvc_pnl_pdm_remove_by_function_scope(key, 1), 0);  // nothing there
  ASSERT_EQ(dm.dvc_pnl_pdm_set_by_function_scope(key, 1, int_value(1)), 0);
  dm.fail_next(dm_op::remove);
  EXPECT_NE(dm.dvc_pnl_pdm_remove_by_function_scope(key, 1), 0);
  EXPECT_EQ(dm.dvc_pnl_pdm_remove_by_function_scope(key, 1), 0);
  dm.fail_next(dm_op::set);
  EXPECT_NE(dm.dvc_pnl_pdm_set_by_application_scope(key, int_value(1)), 0);
  EXPECT_EQ(dm.application_entry_count(), 0u);
  EXPECT_NE(dm.dvc_pnl_pdm_set_by_application_scope(key, dvc_pnl_cmm_value()), 0);
}

}  // namespace
}  // namespace orvanta::host
