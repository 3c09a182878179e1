// Tests of the test support: the nested value set builder, key_of and the printers.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "orvanta/host/value_faults.h"
#include "support/valueset_builder.h"

namespace orvanta {
namespace {

using test::bytes;
using test::dump;
using test::key_of;
using test::make_valueset;
using test::nodes_of;
using test::sets_equal;

class valueset_builder : public ::testing::Test {
 protected:
  void SetUp() override { host::clear_value_faults(); }

  // The nested set stored under `dotted` in `set`, read through the value layer.
  static dvc_pnl_cmm_valueset nested(const dvc_pnl_cmm_valueset& set, const char* dotted) {
    dvc_pnl_cmm_valueset out;
    EXPECT_EQ(set.dvc_pnl_cmm_get_valueset(key_of(dotted), out), DVC_PNL_CMM_OK)
        << dotted << " in\n"
        << dump(set);
    return out;
  }
};

TEST_F(valueset_builder, key_of_parses_dotted_paths) {
  EXPECT_EQ(key_of("0.896.901").nodes(), (std::vector<unsigned long>{0, 896, 901}));
  EXPECT_EQ(key_of("7").nodes(), (std::vector<unsigned long>{7}));
  if constexpr (sizeof(unsigned long) > 4) {
    EXPECT_EQ(nodes_of("0.4294967295.18446744073709551615"),
              (std::vector<unsigned long>{0, 4294967295UL,
                                          static_cast<unsigned long>(18446744073709551615ULL)}));
  }
}

TEST_F(valueset_builder, key_of_refuses_what_is_not_a_dotted_path) {
  for (const char* bad :
       {"", ".", "0.", ".0", "0..1", "a", "0.x", "-1", "0.+1", "0 .1", "0.18446744073709551616"}) {
    SCOPED_TRACE(bad);
    EXPECT_THROW(key_of(bad), std::invalid_argument);
  }
}

TEST_F(valueset_builder, nests_a_response_with_full_keys_at_every_level) {
  const dvc_pnl_cmm_valueset response = make_valueset({{"0.938.959.1484", 0L},
                                                       {"0.938.959.1501.0.1365", "abc"},
                                                       {"0.938.959.1501.0.1366", 4},
                                                       {"0.938.959.1501.1.1365", "def"}});
  // The shortest path has four elements, so the top level holds four-element keys.
  ASSERT_EQ(response.dvc_pnl_cmm_size(), 2u) << dump(response);
  long result = -1;
  ASSERT_EQ(response.dvc_pnl_cmm_get_int(key_of("0.938.959.1484"), result), DVC_PNL_CMM_OK);
  EXPECT_EQ(result, 0);

  const dvc_pnl_cmm_valueset body = nested(response, "0.938.959.1501");
  EXPECT_EQ(body.dvc_pnl_cmm_size(), 2u) << dump(body);
  const dvc_pnl_cmm_valueset element = nested(body, "0.938.959.1501.0");
  EXPECT_EQ(element.dvc_pnl_cmm_size(), 2u) << dump(element);
  const char* s = nullptr;
  ASSERT_EQ(element.dvc_pnl_cmm_get_string(key_of("0.938.959.1501.0.1365"), s), DVC_PNL_CMM_OK);
  EXPECT_STREQ(s, "abc");
  long n = 0;
  ASSERT_EQ(element.dvc_pnl_cmm_get_int(key_of("0.938.959.1501.0.1366"), n), DVC_PNL_CMM_OK);
  EXPECT_EQ(n, 4);
  // Never under the relative last step.
  EXPECT_EQ(element.dvc_pnl_cmm_is_contain(key_of("1365")), 0);
}

TEST_F(valueset_builder, explicit_top_length_nests_from_there) {
  const dvc_pnl_cmm_valueset set = make_valueset({{"0.1.2", 5}}, 1);
  ASSERT_EQ(set.dvc_pnl_cmm_size(), 1u) << dump(set);
  const dvc_pnl_cmm_valueset level2 = nested(nested(set, "0"), "0.1");
  long v = 0;
  ASSERT_EQ(level2.dvc_pnl_cmm_get_int(key_of("0.1.2"), v), DVC_PNL_CMM_OK);
  EXPECT_EQ(v, 5);
}

TEST_F(valueset_builder, single_leaf_and_other_kinds_stay_at_the_top) {
  const dvc_pnl_cmm_valueset empty_body;
  const dvc_pnl_cmm_valueset set =
      make_valueset({{"0.1.2", bytes{1, 255}}, {"0.1.3", empty_body}, {"0.1.4", std::string("s")}});
  ASSERT_EQ(set.dvc_pnl_cmm_size(), 3u) << dump(set);
  dvc_pnl_cmm_binary b;
  ASSERT_EQ(set.dvc_pnl_cmm_get_binary(key_of("0.1.2"), b), DVC_PNL_CMM_OK);
  EXPECT_EQ(b.bytes(), (bytes{1, 255}));
  EXPECT_EQ(nested(set, "0.1.3").dvc_pnl_cmm_size(), 0u);
  EXPECT_EQ(make_valueset({}).dvc_pnl_cmm_size(), 0u);
}

TEST_F(valueset_builder, refuses_inconsistent_paths) {
  EXPECT_THROW(make_valueset({{"0.1", 1}, {"0.1", 2}}), std::invalid_argument);
  EXPECT_THROW(make_valueset({{"0.1", 1}, {"0.1.2", 2}}, 1), std::invalid_argument);
  EXPECT_THROW(make_valueset({{"0.1", 1}}, 3), std::invalid_argument);
  EXPECT_THROW(make_valueset({{"0..1", 1}}), std::invalid_argument);
}

TEST_F(valueset_builder, dump_prints_one_entry_per_line_indented_by_level) {
  const dvc_pnl_cmm_valueset set = make_valueset({{"0.938.959.1484", 0L},
                                                  {"0.938.959.1501.0.1365", "a\"b"},
                                                  {"0.938.959.1501.0.1400", bytes{1, 171}},
                                                  {"0.938.959.1501.1", dvc_pnl_cmm_valueset()}});
  EXPECT_EQ(dump(set),
            "0.938.959.1484 = 0\n"
            "0.938.959.1501 = {\n"
            "  0.938.959.1501.0 = {\n"
            "    0.938.959.1501.0.1365 = \"a\\\"b\"\n"
            "    0.938.959.1501.0.1400 = bytes[2] 01 ab\n"
            "  }\n"
            "  0.938.959.1501.1 = {}\n"
            "}\n");
  EXPECT_EQ(dump(dvc_pnl_cmm_valueset()), "{}\n");
  EXPECT_EQ(::testing::PrintToString(set), dump(set));
  EXPECT_EQ(::testing::PrintToString(key_of("0.896.901")), "(0.896.901)");
  EXPECT_EQ(::testing::PrintToString(dvc_pnl_cmm_value()), "<nothing>");
}

TEST_F(valueset_builder, sets_equal_reports_both_sets_on_a_mismatch) {
  const dvc_pnl_cmm_valueset a = make_valueset({{"0.1.1", 1}});
  const dvc_pnl_cmm_valueset b = make_valueset({{"0.1.1", 2}});
  EXPECT_TRUE(sets_equal(a, make_valueset({{"0.1.1", 1}})));
  const ::testing::AssertionResult r = sets_equal(a, b);
  EXPECT_FALSE(r);
  EXPECT_NE(std::string(r.message()).find("0.1.1 = 1"), std::string::npos) << r.message();
  EXPECT_NE(std::string(r.message()).find("0.1.1 = 2"), std::string::npos) << r.message();
}

}  // namespace
}  // namespace orvanta
