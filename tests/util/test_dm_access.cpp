// Data manager access: order of the checks, the exact-size rule, page scope read quirks, traces.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>

#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/page_lifecycle.h"
#include "orvanta/host/trace_sink.h"
#include "support/trace_expect.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta {
namespace {

using test::traced;

constexpr auto kPage = static_cast<DVC_PNL_CEH_CONTENTS_ID>(12);

// A plain record as screens keep them: fixed-width fields, fixed size.
struct record {
  int32_t id;
  char name[12];
};
static_assert(sizeof(record) == 16);

class DmAccess : public ::testing::Test {
 protected:
  void SetUp() override {
    host::host_data_manager::instance().reset();
    host::trace_sink::instance().clear();
  }
  void TearDown() override { host::host_data_manager::instance().reset(); }
  std::size_t trace_count() { return host::trace_sink::instance().lines().size(); }
};

// Every operation, called with an empty key and a function id that would also be refused.
struct named_call {
  const char* name;
  std::function<int(const std::string&)> call;
};

std::vector<named_call> all_operations() {
  static int i = 0;
  static long l = 0;
  static std::string s;
  static record r{};
  static dvc_pnl_cmm_value v;
  static dvc_pnl_cmm_valueset vs;
  static constexpr int bad = 99;
  return {
      {"get_value_from_dm",
       [](const std::string& k) { return dvc_pnl_ceh_contents_hdl_get_value_from_dm(k, v, bad); }},
      {"set_value_to_dm",
       [](const std::string& k) { return dvc_pnl_ceh_contents_hdl_set_value_to_dm(k, v, bad); }},
      {"get_int_from_dm",
       [](const std::string& k) { return dvc_pnl_ceh_contents_hdl_get_int_from_dm(k, i, bad); }},
      {"set_int_to_dm",
       [](const std::string& k) { return dvc_pnl_ceh_contents_hdl_set_int_to_dm(k, 1, bad); }},
      {"get_string_from_dm",
       [](const std::string& k) { return dvc_pnl_ceh_contents_hdl_get_string_from_dm(k, s, bad); }},
      {"set_string_to_dm",
       [](const std::string& k) { return dvc_pnl_ceh_contents_hdl_set_string_to_dm(k, "x", bad); }},
      {"get_binary_from_dm",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_binary_from_dm(k, &r, sizeof r, bad);
       }},
      {"set_binary_to_dm",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_binary_to_dm(k, &r, sizeof r, bad);
       }},
      {"get_valueset_from_dm",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_valueset_from_dm(k, vs, bad);
       }},
      {"set_valueset_to_dm",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_valueset_to_dm(k, bad, vs);
       }},
      {"dm_remove",
       [](const std::string& k) { return dvc_pnl_ceh_contents_hdl_dm_remove(k, bad); }},
      {"get_int_from_dm_by_page_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(k, bad, kPage, l);
       }},
      {"set_int_to_dm_by_page_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(k, bad, kPage, 1);
       }},
      {"get_string_from_dm_by_page_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_page_scope(k, bad, kPage, s);
       }},
      {"set_string_to_dm_by_page_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_page_scope(k, bad, kPage, "x");
       }},
      {"get_binary_from_dm_by_page_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope(k, &r, sizeof r, bad,
                                                                          kPage);
       }},
      {"set_binary_to_dm_by_page_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope(k, &r, sizeof r, bad,
                                                                        kPage);
       }},
      {"get_valueset_from_dm_by_page_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_page_scope(k, bad, kPage, vs);
       }},
      {"set_valueset_to_dm_by_page_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_page_scope(k, bad, kPage, vs);
       }},
      {"get_int_from_dm_by_application",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(k, i);
       }},
      {"set_int_to_dm_by_application",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(k, 1);
       }},
      {"get_string_from_dm_by_application",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_application(k, s);
       }},
      {"set_string_to_dm_by_application",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_application(k, "x");
       }},
      {"get_binary_from_dm_by_application",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_application(k, &r, sizeof r);
       }},
      {"set_binary_to_dm_by_application",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application(k, &r, sizeof r);
       }},
      {"get_valueset_from_dm_by_application_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_application_scope(k, vs);
       }},
      {"dm_remove_by_application",
       [](const std::string& k) { return dvc_pnl_ceh_contents_hdl_dm_remove_by_application(k); }},
      {"get_valueset_from_dm_by_cross_function_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_cross_function_scope(k, kPage, vs);
       }},
      {"set_valueset_to_dm_by_cross_function_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_cross_function_scope(k, kPage, vs);
       }},
      {"set_int_to_dm_by_cross_function_scope",
       [](const std::string& k) {
         return dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_cross_function_scope(k, kPage, 1);
       }},
  };
}

TEST_F(DmAccess, AnEmptyKeyIsRefusedFirstAndSilently) {
  for (const auto& op : all_operations()) {
    host::trace_sink::instance().clear();
    EXPECT_EQ(op.call(""), 6) << op.name;
    EXPECT_EQ(trace_count(), 0u) << op.name << " traced before refusing the empty key";
  }
  EXPECT_EQ(host::host_data_manager::instance().application_entry_count(), 0u);
}

TEST_F(DmAccess, FunctionIdThirtySixPassesAndThirtySevenIsRefused) {
  const std::string& key = DVC_PNL_PDM_DVC_CEH_INTEGER;
  int got = 0;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(key, 5, 36), 0);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm(key, got, 36), 0);
  EXPECT_EQ(got, 5);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(key, 5, 37), 6);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm(key, got, 37), 6);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_dm_remove(key, 37), 6);
  // The refusal comes after the entry trace.
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_get_int_from_dm() key:DVC_PNL_PDM_DVC_CEH_INTEGER, "
             "func:37."));
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(key, 37, kPage, 1), 6);
  std::string s;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_page_scope(key, 37, kPage, s), 6);
}

TEST_F(DmAccess, OperationsWithoutTheirOwnFunctionTestLeaveTheRefusalToOthers) {
  const std::string& key = DVC_PNL_PDM_DVC_CEH_VALUESET;
  dvc_pnl_cmm_valueset vs;
  long l = 4;
  // The manager refuses function 37, so these fail, but not with the argument code of their own.
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_page_scope(key, 37, kPage, vs), 3);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_page_scope(key, 37, kPage, vs), 3);
  int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(key, 37, kPage, l);
  EXPECT_NE(ret, 0);
  EXPECT_NE(ret, 6);
  EXPECT_EQ(l, 4);
  // set_valueset_to_dm makes no test itself; the inner write refuses and its code is passed on.
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_valueset_to_dm(key, 37, vs), 6);
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_set_valueset_to_dm() key:DVC_PNL_PDM_DVC_CEH_VALUESET,"
             " func:37."));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_value_to_dm ret_code = 6"));
}

TEST_F(DmAccess, BinaryReadsAskForExactlyTheStoredSize) {
  const std::string& key = DVC_PNL_PDM_DVC_CEH_BINARY;
  record in{42, "abc"};
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_binary_to_dm(key, &in, sizeof in, 2), 0);

  std::array<unsigned char, sizeof(record) + 1> buf;
  buf.fill(0xEE);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm(key, buf.data(), sizeof(record) + 1, 2), 6);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm(key, buf.data(), sizeof(record) - 1, 2), 6);
  for (unsigned char c : buf)
    ASSERT_EQ(c, 0xEE) << "a refused read copied bytes";
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm(key, buf.data(), 0, 2), 6);

  record out{};
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm(key, &out, sizeof out, 2), 0);
  EXPECT_EQ(out.id, 42);
  EXPECT_STREQ(out.name, "abc");
}

TEST_F(DmAccess, NullBuffersAreRefusedWithTheirTrace) {
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_DVC_CEH_BINARY, nullptr, 4, 2),
            6);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_binary_to_dm p is NULL"));
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_DVC_CEH_BINARY, nullptr, 4, 2),
            6);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_binary_from_dm p is NULL"));
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application(
                DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO, nullptr, 4),
            6);
  EXPECT_EQ(host::host_data_manager::instance().function_entry_count(2), 0u);
}

TEST_F(DmAccess, MissingPageScopeEntriesFailWithoutTouchingTheOutArgument) {
  const std::string& key = DVC_PNL_PDM_DVC_CEH_INTEGER;
  long l = 77;
  int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(key, 1, kPage, l);
  EXPECT_NE(ret, 0);
  EXPECT_NE(ret, 3);  // the value layer's own code is passed on
  EXPECT_EQ(l, 77);

  std::string s = "keep";
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_page_scope(key, 1, kPage, s), 3);
  EXPECT_EQ(s, "keep");
  record r{9, "keep"};
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope(key, &r, sizeof r, 1, kPage),
            3);
  EXPECT_EQ(r.id, 9);
  dvc_pnl_cmm_valueset vs;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_page_scope(key, 1, kPage, vs), 3);
  EXPECT_TRUE(traced("dvc_pnl_pdm_get_instance()->dvc_pnl_pdm_get_by_page_scope ret_code = 3"));
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_cross_function_scope(key, kPage, vs),
            3);
}

TEST_F(DmAccess, PageScopeEntriesVanishWhenTheirPageCloses) {
  auto& pages = host::page_lifecycle::instance();
  pages.opened(1, kPage);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(DVC_PNL_PDM_CEH_MENU_SELECTION, 1,
                                                                 kPage, 3),
            0);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_page_scope(
                DVC_PNL_PDM_CEH_PULL_PRINT_DOC_NAME, 1, kPage, "doc"),
            0);
  long l = 0;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(DVC_PNL_PDM_CEH_MENU_SELECTION,
                                                                   1, kPage, l),
            0);
  EXPECT_EQ(l, 3);
  pages.closed(1, kPage);
  l = -1;
  EXPECT_NE(dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(DVC_PNL_PDM_CEH_MENU_SELECTION,
                                                                   1, kPage, l),
            0);
  EXPECT_EQ(l, -1);
  std::string s;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_page_scope(
                DVC_PNL_PDM_CEH_PULL_PRINT_DOC_NAME, 1, kPage, s),
            3);
}

TEST_F(DmAccess, WordsRoundTripThroughTheIntReads) {
  const long word = 0x8001ffffL;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, word, 1), 0);
  int got = 0;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, got, 1), 0);
  EXPECT_EQ(static_cast<uint32_t>(got), 0x8001ffffu);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, -5, 1), 0);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, got, 1), 0);
  EXPECT_EQ(got, -5);
}

TEST_F(DmAccess, AFailedManagerCallTracesItsOwnCodeAndGivesThree) {
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, 5, 1), 0);
  host::host_data_manager::instance().fail_next(host::dm_op::get);
  int got = 11;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, got, 1), 3);
  EXPECT_EQ(got, 11);
  EXPECT_TRUE(traced("ret = " + std::to_string(DVC_PNL_CMM_FAULT) + "."));
  EXPECT_TRUE(traced(
      "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_instance()->dvc_pnl_pdm_get_by_function_scope "
      "ret_code = 3"));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_value_from_dm ret_code = 3"));

  host::host_data_manager::instance().fail_next(host::dm_op::get);
  std::string s = "keep";
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_application(DVC_PNL_PDM_MODEL, s), 3);
  EXPECT_TRUE(
      traced("dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_by_application_scope: ret_code = 3"));
  EXPECT_EQ(s, "keep");

  // Removing what is not there is a refused manager call; callers ignore it.
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_DVC_CEH_STRING, 1), 3);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_dm_remove_by_application(DVC_PNL_PDM_MODEL), 3);
}

TEST_F(DmAccess, ReadingTheWrongKindFailsWithThree) {
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_dm(DVC_PNL_PDM_DVC_CEH_STRING, "abc", 1), 0);
  int got = 8;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_STRING, got, 1), 3);
  EXPECT_EQ(got, 8);
  EXPECT_TRUE(traced("dvc_pnl_cmm_value::dvc_pnl_cmm_get_int ret_code = 3"));
}

TEST_F(DmAccess, EveryScopeRoundTripsEveryKind) {
  std::string s;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_dm(DVC_PNL_PDM_DVC_CEH_STRING, "fn", 4), 0);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_dm(DVC_PNL_PDM_DVC_CEH_STRING, s, 4), 0);
  EXPECT_EQ(s, "fn");

  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_application(DVC_PNL_PDM_DVC_CEH_ACCOUNT_ID,
                                                                     "acct"),
            0);
  ASSERT_EQ(
      dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_application(DVC_PNL_PDM_DVC_CEH_ACCOUNT_ID, s),
      0);
  EXPECT_EQ(s, "acct");

  int i = 0;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_FAX, 1), 0);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_FAX, i), 0);
  EXPECT_EQ(i, 1);

  record in{7, "user"};
  record out{};
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application(
                DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO, &in, sizeof in),
            0);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_application(
                DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO, &out, sizeof out),
            0);
  EXPECT_EQ(std::memcmp(&in, &out, sizeof in), 0);

  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope(
                DVC_PNL_PDM_CEH_APPLICATION_LIST, &in, sizeof in, 3, kPage),
            0);
  out = {};
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope(
                DVC_PNL_PDM_CEH_APPLICATION_LIST, &out, sizeof out, 3, kPage),
            0);
  EXPECT_EQ(out.id, 7);

  dvc_pnl_cmm_key k;
  k.dvc_pnl_cmm_add_key(0);
  k.dvc_pnl_cmm_add_key(1);
  dvc_pnl_cmm_valueset vs;
  vs.dvc_pnl_cmm_set_int(k, 5);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_cross_function_scope(
                DVC_PNL_PDM_START_PULLPRINT_LIST_STATUS, kPage, vs),
            0);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_cross_function_scope(
                DVC_PNL_PDM_TEST_PRINT_END_CMD_ID, kPage, 9),
            0);
  dvc_pnl_cmm_valueset got;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_cross_function_scope(
                DVC_PNL_PDM_START_PULLPRINT_LIST_STATUS, kPage, got),
            0);
  EXPECT_TRUE(got.equals(vs));

  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_valueset_to_dm(DVC_PNL_PDM_DVC_CEH_VALUESET, 5, vs), 0);
  vs.dvc_pnl_cmm_set_int(k, 6);  // the stored copy does not follow the caller's set
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_dm(DVC_PNL_PDM_DVC_CEH_VALUESET, got, 5), 0);
  long l = 0;
  got.dvc_pnl_cmm_get_int(k, l);
  EXPECT_EQ(l, 5);
}

}  // namespace
}  // namespace orvanta
