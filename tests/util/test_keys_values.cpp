// Tests of the key operations, the key-object value operations and the request/response nodes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/host/trace_sink.h"
#include "orvanta/host/value_faults.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"

namespace orvanta {
namespace {

using host::clear_value_faults;
using host::fail_value_op;
using host::trace_sink;
using host::value_op;
using test::dump;
using test::key_of;
using test::make_valueset;
using test::sets_equal;
using test::trace_dump;
using test::traced;

// Every fixture starts with an empty trace and no armed failure, and disarms what it armed.
class util_test : public ::testing::Test {
 protected:
  void SetUp() override {
    clear_value_faults();
    trace_sink::instance().clear();
  }
  void TearDown() override { clear_value_faults(); }
};

// ---------------------------------------------------------------- build_key, set_key & co.

class key_ops : public util_test {};

TEST_F(key_ops, build_key_appends_the_first_size_elements_to_what_the_key_holds) {
  dvc_pnl_cmm_key key = key_of("0.896");
  const unsigned long nodes[] = {901, 1320, 1484, 77};
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_build_key(key, nodes, 3), DVC_PNL_CEH_RET_OK);
  EXPECT_EQ(key, key_of("0.896.901.1320.1484"));
}

TEST_F(key_ops, build_key_with_size_zero_succeeds_and_leaves_the_key) {
  dvc_pnl_cmm_key key = key_of("0.938");
  const unsigned long nodes[] = {5};
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_build_key(key, nodes, 0), DVC_PNL_CEH_RET_OK);
  EXPECT_EQ(key, key_of("0.938"));
  EXPECT_TRUE(trace_sink::instance().messages().empty()) << trace_dump();
}

TEST_F(key_ops, build_key_refuses_null_whatever_the_size) {
  for (unsigned size : {0u, 1u, 5u}) {
    SCOPED_TRACE(size);
    trace_sink::instance().clear();
    dvc_pnl_cmm_key key = key_of("0.1");
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_build_key(key, nullptr, size), DVC_PNL_CEH_RET_BAD_ARGUMENT);
    EXPECT_EQ(key, key_of("0.1"));
    EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_build_key node_name is NULL")) << trace_dump();
  }
}

TEST_F(key_ops, build_key_stops_at_a_failed_append_with_3) {
  dvc_pnl_cmm_key key;
  const unsigned long nodes[] = {0, 938, 959, 1501};
  fail_value_op(value_op::key_add, 2);  // the third append fails
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_build_key(key, nodes, 4), DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(key, key_of("0.938"));
  EXPECT_TRUE(traced("ret = -9.")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_cmm_key::dvc_pnl_cmm_add_key ret_code = 3")) << trace_dump();
}

struct set_key_case {
  const char* name;
  std::vector<unsigned long> array;  // closed by the caller's terminator
  std::vector<unsigned long> expected;
};

class set_key_table : public util_test, public ::testing::WithParamInterface<set_key_case> {};

TEST_P(set_key_table, appends_up_to_the_terminator) {
  const set_key_case& c = GetParam();
  std::vector<unsigned long> array = c.array;
  dvc_pnl_cmm_key key = key_of("7");  // set_key appends: the old content stays in front
  dvc_pnl_ceh_contents_hdl_set_key(key, array.data());
  std::vector<unsigned long> expected = {7};
  expected.insert(expected.end(), c.expected.begin(), c.expected.end());
  EXPECT_EQ(key.nodes(), expected);
}

std::vector<set_key_case> set_key_cases() {
  std::vector<set_key_case> cases = {
      {"command", {0, 896, 901, DVC_PNL_CEH_KEY_END}, {0, 896, 901}},
      {"starts_with_end", {DVC_PNL_CEH_KEY_END, 0, 896}, {}},
      {"minus_two_is_a_node",
       {0, static_cast<unsigned long>(-2), 5, DVC_PNL_CEH_KEY_END},
       {0, static_cast<unsigned long>(-2), 5}},
      {"stops_at_first_end", {0, 1, DVC_PNL_CEH_KEY_END, 2, DVC_PNL_CEH_KEY_END}, {0, 1}},
      // A real terminator follows, so a 64-bit-only comparison fails cleanly.
      {"thirty_two_bit_end", {0, 938, 0xffffffffUL, 4, DVC_PNL_CEH_KEY_END}, {0, 938}},
  };
  // Where a node has more than 32 bits (not on the panel's 32-bit processor), a node whose low
  // half is zero is no terminator.
  if constexpr (sizeof(unsigned long) > 4) {
    const auto high = static_cast<unsigned long>(0xffffffff00000000ULL);
    cases.push_back({"high_bits_only_is_a_node", {0, high, DVC_PNL_CEH_KEY_END}, {0, high}});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(key_ops, set_key_table, ::testing::ValuesIn(set_key_cases()),
                         [](const ::testing::TestParamInfo<set_key_case>& info) {
                           return info.param.name;
                         });

TEST_F(key_ops, set_key_logs_and_ignores_null) {
  dvc_pnl_cmm_key key = key_of("0.1");
  dvc_pnl_ceh_contents_hdl_set_key(key, nullptr);
  EXPECT_EQ(key, key_of("0.1"));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_key node_name is NULL")) << trace_dump();
}

TEST_F(key_ops, set_key_ends_at_a_failed_append) {
  unsigned long nodes[] = {0, 896, 901, DVC_PNL_CEH_KEY_END};
  dvc_pnl_cmm_key key;
  fail_value_op(value_op::key_add, 1);
  dvc_pnl_ceh_contents_hdl_set_key(key, nodes);
  EXPECT_EQ(key, key_of("0"));  // the element after the failed one is not appended either
  EXPECT_TRUE(traced("dvc_pnl_cmm_key::dvc_pnl_cmm_add_key ret_code = 3")) << trace_dump();
}

TEST_F(key_ops, add_clear_and_copy) {
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_add_key(key, 0);
  dvc_pnl_ceh_contents_hdl_add_key(key, 938);
  EXPECT_EQ(key, key_of("0.938"));

  dvc_pnl_cmm_key target = key_of("0.1.2.3");
  dvc_pnl_ceh_contents_hdl_copy_key(key, target);
  EXPECT_EQ(target, key_of("0.938"));

  dvc_pnl_ceh_contents_hdl_clear_key(key);
  EXPECT_TRUE(key.empty());
  EXPECT_EQ(target, key_of("0.938"));  // the copy does not share the source
}

TEST_F(key_ops, failed_add_and_copy_leave_the_key_and_are_traced) {
  dvc_pnl_cmm_key key = key_of("0.5");
  fail_value_op(value_op::key_add);
  dvc_pnl_ceh_contents_hdl_add_key(key, 6);
  EXPECT_EQ(key, key_of("0.5"));
  EXPECT_TRUE(traced("dvc_pnl_cmm_key::dvc_pnl_cmm_add_key ret_code = 3")) << trace_dump();

  fail_value_op(value_op::key_copy);
  dvc_pnl_ceh_contents_hdl_copy_key(key_of("0.9"), key);
  EXPECT_EQ(key, key_of("0.5"));
  EXPECT_TRUE(traced("dvc_pnl_cmm_key::dvc_pnl_cmm_copy ret_code = 3")) << trace_dump();
}

struct key2str_case {
  const char* name;
  std::vector<unsigned long> nodes;
  unsigned size;
  std::string before;
  std::string expected;
};

class key2str_table : public util_test, public ::testing::WithParamInterface<key2str_case> {};

TEST_P(key2str_table, writes_the_bracketed_dotted_path) {
  const key2str_case& c = GetParam();
  std::string out = c.before;
  dvc_pnl_ceh_contents_hdl_key2str(c.nodes.data(), c.size, out);
  EXPECT_EQ(out, c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    key_ops, key2str_table,
    ::testing::Values(
        key2str_case{"five_elements", {0, 230, 231, 2903, 2904}, 5, "", "(0.230.231.2903.2904)"},
        key2str_case{"one_element", {0}, 1, "", "(0)"},
        key2str_case{"first_size_only", {0, 896, 901, 1320}, 3, "", "(0.896.901)"},
        key2str_case{"no_element", {0}, 0, "", "()"},
        key2str_case{"appends", {0, 896}, 2, "key ", "key (0.896)"},
        key2str_case{"large_numbers", {0, 4294967295UL}, 2, "", "(0.4294967295)"}),
    [](const ::testing::TestParamInfo<key2str_case>& info) { return info.param.name; });

TEST_F(key_ops, key2str_of_null_leaves_the_text) {
  std::string out = "x";
  dvc_pnl_ceh_contents_hdl_key2str(nullptr, 3, out);
  EXPECT_EQ(out, "x");
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_key2str node_name is NULL")) << trace_dump();
}

// ---------------------------------------------------------------- copies

class value_copies : public util_test {};

TEST_F(value_copies, copy_valueset_gives_an_independent_deep_copy) {
  const dvc_pnl_cmm_valueset source =
      make_valueset({{"0.938.959.1484", 0L}, {"0.938.959.1501.0.1365", "abc"}});
  dvc_pnl_cmm_valueset target = make_valueset({{"0.1", 1}});
  dvc_pnl_ceh_contents_hdl_copy_valueset(source, target);
  ASSERT_TRUE(sets_equal(target, source));

  // Change the copy at the deepest level, then at the top: the source keeps its content.
  const unsigned long leaf[] = {0, 938, 959, 1501, 0, 1365};
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_valueset(leaf, 4, 6, target, "changed"),
            DVC_PNL_CEH_RET_OK);
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(target, key_of("0.938.959.1484"), 5);
  EXPECT_TRUE(sets_equal(
      source, make_valueset({{"0.938.959.1484", 0L}, {"0.938.959.1501.0.1365", "abc"}})));
}

TEST_F(value_copies, copy_value_gives_an_independent_deep_copy) {
  dvc_pnl_cmm_value source;
  ASSERT_EQ(source.dvc_pnl_cmm_set_valueset(make_valueset({{"0.1.2", "x"}})), DVC_PNL_CMM_OK);
  dvc_pnl_cmm_value target;
  dvc_pnl_ceh_contents_hdl_copy_value(source, target);
  EXPECT_TRUE(target.equals(source)) << dump(target);

  dvc_pnl_cmm_valueset inner;
  dvc_pnl_ceh_contents_hdl_get_valueset_from_value(target, inner);
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(inner, key_of("0.1.3"), 4);
  dvc_pnl_ceh_contents_hdl_set_valueset_to_value(target, inner);
  EXPECT_FALSE(target.equals(source));
  dvc_pnl_cmm_valueset source_inner;
  ASSERT_EQ(source.dvc_pnl_cmm_get_valueset(source_inner), DVC_PNL_CMM_OK);
  EXPECT_TRUE(sets_equal(source_inner, make_valueset({{"0.1.2", "x"}})));
}

TEST_F(value_copies, failed_copies_leave_the_target_and_are_traced) {
  dvc_pnl_cmm_valueset target = make_valueset({{"0.1", 1}});
  const dvc_pnl_cmm_valueset source = make_valueset({{"0.2", 2}});
  fail_value_op(value_op::set_write);
  dvc_pnl_ceh_contents_hdl_copy_valueset(source, target);
  EXPECT_TRUE(sets_equal(target, make_valueset({{"0.1", 1}})));
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_copy ret_code = 3")) << trace_dump();

  dvc_pnl_cmm_value value;
  ASSERT_EQ(value.dvc_pnl_cmm_set_int(8), DVC_PNL_CMM_OK);
  dvc_pnl_cmm_value other;
  ASSERT_EQ(other.dvc_pnl_cmm_set_string("s"), DVC_PNL_CMM_OK);
  fail_value_op(value_op::value_write);
  dvc_pnl_ceh_contents_hdl_copy_value(other, value);
  long v = 0;
  EXPECT_EQ(value.dvc_pnl_cmm_get_int(v), DVC_PNL_CMM_OK);
  EXPECT_EQ(v, 8);
  EXPECT_TRUE(traced("dvc_pnl_cmm_value::dvc_pnl_cmm_copy ret_code = 3")) << trace_dump();
}

// ---------------------------------------------------------------- single values

class value_ops : public util_test {};

TEST_F(value_ops, round_trip_of_each_kind) {
  dvc_pnl_cmm_value value;
  long i = 0;
  dvc_pnl_ceh_contents_hdl_set_int_to_value(value, -42);
  dvc_pnl_ceh_contents_hdl_get_int_from_value(value, i);
  EXPECT_EQ(i, -42);

  const char* s = nullptr;
  dvc_pnl_ceh_contents_hdl_set_string_to_value(value, "text");
  dvc_pnl_ceh_contents_hdl_get_string_from_value(value, s);
  ASSERT_NE(s, nullptr);
  EXPECT_STREQ(s, "text");

  dvc_pnl_cmm_valueset set;
  const dvc_pnl_cmm_valueset stored = make_valueset({{"0.4.5", 6}});
  dvc_pnl_ceh_contents_hdl_set_valueset_to_value(value, stored);
  dvc_pnl_ceh_contents_hdl_get_valueset_from_value(value, set);
  EXPECT_TRUE(sets_equal(set, stored));
}

TEST_F(value_ops, reads_of_another_kind_keep_the_callers_default) {
  dvc_pnl_cmm_value value;
  dvc_pnl_ceh_contents_hdl_set_string_to_value(value, "not a number");
  long i = 77;
  dvc_pnl_ceh_contents_hdl_get_int_from_value(value, i);
  EXPECT_EQ(i, 77);
  EXPECT_TRUE(traced("dvc_pnl_cmm_value::dvc_pnl_cmm_get_int ret_code = 3")) << trace_dump();

  dvc_pnl_cmm_value empty;
  const char* s = "default";
  dvc_pnl_ceh_contents_hdl_get_string_from_value(empty, s);
  EXPECT_STREQ(s, "default");
  dvc_pnl_cmm_valueset set = make_valueset({{"0.1", 1}});
  dvc_pnl_ceh_contents_hdl_get_valueset_from_value(empty, set);
  EXPECT_TRUE(sets_equal(set, make_valueset({{"0.1", 1}})));
}

TEST_F(value_ops, null_string_is_refused_and_the_value_kept) {
  dvc_pnl_cmm_value value;
  dvc_pnl_ceh_contents_hdl_set_int_to_value(value, 3);
  dvc_pnl_ceh_contents_hdl_set_string_to_value(value, nullptr);
  long i = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_value(value, i);
  EXPECT_EQ(i, 3);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_string_to_value in is NULL")) << trace_dump();
}

TEST_F(value_ops, failed_write_is_traced_and_keeps_the_old_content) {
  dvc_pnl_cmm_value value;
  dvc_pnl_ceh_contents_hdl_set_int_to_value(value, 3);
  fail_value_op(value_op::value_write);
  dvc_pnl_ceh_contents_hdl_set_int_to_value(value, 4);
  long i = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_value(value, i);
  EXPECT_EQ(i, 3);
  EXPECT_TRUE(traced("ret = -9.")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_cmm_value::dvc_pnl_cmm_set_int ret_code = 3")) << trace_dump();
}

// ---------------------------------------------------------------- entries under a key object

class valueset_key_ops : public util_test {};

TEST_F(valueset_key_ops, writes_and_reads_each_kind_under_the_full_key) {
  dvc_pnl_cmm_valueset set;
  const dvc_pnl_cmm_valueset nested = make_valueset({{"0.896.901.7.1", 1}});
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(set, key_of("0.896.901.1320"), 1);
  dvc_pnl_ceh_contents_hdl_set_string_to_valueset(set, key_of("0.896.901.1345"), "name");
  dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(set, key_of("0.896.901.7"), nested);
  dvc_pnl_cmm_binary blob;
  const unsigned char raw[] = {1, 2, 0, 255};
  ASSERT_EQ(blob.dvc_pnl_cmm_set_data(raw, 4), DVC_PNL_CMM_OK);
  dvc_pnl_ceh_contents_hdl_set_binary_to_valueset(set, key_of("0.896.901.206"), blob);

  EXPECT_TRUE(sets_equal(set, make_valueset({{"0.896.901.1320", 1},
                                             {"0.896.901.1345", "name"},
                                             {"0.896.901.7", nested},
                                             {"0.896.901.206", test::bytes{1, 2, 0, 255}}})));

  long i = 0;
  const char* s = nullptr;
  dvc_pnl_cmm_valueset out;
  dvc_pnl_ceh_contents_hdl_get_int_from_valueset(set, key_of("0.896.901.1320"), i);
  dvc_pnl_ceh_contents_hdl_get_string_from_valueset(set, key_of("0.896.901.1345"), s);
  dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(set, key_of("0.896.901.7"), out);
  EXPECT_EQ(i, 1);
  ASSERT_NE(s, nullptr);
  EXPECT_STREQ(s, "name");
  EXPECT_TRUE(sets_equal(out, nested));
}

TEST_F(valueset_key_ops, missing_or_other_kind_keeps_the_callers_default) {
  dvc_pnl_cmm_valueset set = make_valueset({{"0.1.1", "text"}, {"0.1.2", 5}});
  long i = -1;
  dvc_pnl_ceh_contents_hdl_get_int_from_valueset(set, key_of("0.1.9"), i);
  EXPECT_EQ(i, -1);
  EXPECT_TRUE(traced("ret = -1.")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_int ret_code = 3")) << trace_dump();
  dvc_pnl_ceh_contents_hdl_get_int_from_valueset(set, key_of("0.1.1"), i);
  EXPECT_EQ(i, -1);

  const char* s = "default";
  dvc_pnl_ceh_contents_hdl_get_string_from_valueset(set, key_of("0.1.2"), s);
  EXPECT_STREQ(s, "default");
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_string ret_code = 3")) << trace_dump();

  dvc_pnl_cmm_valueset out = make_valueset({{"0.7", 7}});
  dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(set, key_of("0.1.2"), out);
  EXPECT_TRUE(sets_equal(out, make_valueset({{"0.7", 7}})));
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset ret_code = 3"))
      << trace_dump();
}

TEST_F(valueset_key_ops, refused_writes_leave_the_set) {
  dvc_pnl_cmm_valueset set = make_valueset({{"0.1.1", 1}});
  dvc_pnl_ceh_contents_hdl_set_string_to_valueset(set, key_of("0.1.2"), nullptr);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_string_to_valueset in is NULL")) << trace_dump();
  // An empty key is refused by the value layer.
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(set, dvc_pnl_cmm_key(), 2);
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_int ret_code = 3")) << trace_dump();
  EXPECT_TRUE(sets_equal(set, make_valueset({{"0.1.1", 1}})));
}

// ---------------------------------------------------------------- request and response nodes

class request_response_nodes : public util_test {
 protected:
  const dvc_pnl_cmm_key parent_ = key_of("0.896.901");
};

TEST_F(request_response_nodes, request_writes_land_under_parent_plus_node) {
  dvc_pnl_cmm_valueset request;
  dvc_pnl_cmm_key parent = parent_;
  const dvc_pnl_cmm_valueset nested = make_valueset({{"0.896.901.50.1", 9}});
  dvc_pnl_cmm_binary blob;
  const unsigned char raw[] = {9, 8};
  ASSERT_EQ(blob.dvc_pnl_cmm_set_data(raw, 2), DVC_PNL_CMM_OK);

  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, parent, 1320, 1);
  dvc_pnl_ceh_contents_hdl_set_string_to_request_node(request, parent, 1345, "abc");
  dvc_pnl_ceh_contents_hdl_set_binary_to_request_node(request, parent, 206, blob);
  dvc_pnl_ceh_contents_hdl_set_valueset_to_request_node(request, parent, 50, nested);

  EXPECT_TRUE(sets_equal(request, make_valueset({{"0.896.901.1320", 1},
                                                 {"0.896.901.1345", "abc"},
                                                 {"0.896.901.206", test::bytes{9, 8}},
                                                 {"0.896.901.50", nested}})));
  EXPECT_EQ(parent, key_of("0.896.901"));  // the parent is taken by value
}

TEST_F(request_response_nodes, response_reads_come_from_parent_plus_node) {
  const dvc_pnl_cmm_valueset body = make_valueset({{"0.896.901.1501.0", 3}});
  dvc_pnl_cmm_valueset response = make_valueset({{"0.896.901.1484", 0L},
                                                 {"0.896.901.1569", 12},
                                                 {"0.896.901.1345", "name"},
                                                 {"0.896.901.206", test::bytes{4, 5, 6}},
                                                 {"0.896.901.1501", body}});
  long result = -1;
  long size = 0;
  const char* name = nullptr;
  dvc_pnl_cmm_binary blob;
  dvc_pnl_cmm_valueset list;
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, parent_, 1484, result);
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, parent_, 1569, size);
  dvc_pnl_ceh_contents_hdl_get_string_from_response_node(response, parent_, 1345, name);
  dvc_pnl_ceh_contents_hdl_get_binary_from_response_node(response, parent_, 206, blob);
  dvc_pnl_ceh_contents_hdl_get_valueset_from_response_node(response, parent_, 1501, list);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(size, 12);
  ASSERT_NE(name, nullptr);
  EXPECT_STREQ(name, "name");
  EXPECT_EQ(blob.bytes(), (test::bytes{4, 5, 6}));
  EXPECT_TRUE(sets_equal(list, body));
}

TEST_F(request_response_nodes, missing_response_nodes_keep_the_defaults_and_are_traced) {
  dvc_pnl_cmm_valueset response = make_valueset({{"0.896.901.1484", "wrong kind"}});
  long result = 55;
  const char* name = "default";
  dvc_pnl_cmm_binary blob;
  const unsigned char raw[] = {1};
  ASSERT_EQ(blob.dvc_pnl_cmm_set_data(raw, 1), DVC_PNL_CMM_OK);
  dvc_pnl_cmm_valueset list = make_valueset({{"0.3", 3}});

  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, parent_, 1484, result);
  EXPECT_TRUE(traced("get int from res valueset error ret_code = -2")) << trace_dump();
  dvc_pnl_ceh_contents_hdl_get_string_from_response_node(response, parent_, 1, name);
  EXPECT_TRUE(traced("get string from res valueset error ret_code = -1")) << trace_dump();
  dvc_pnl_ceh_contents_hdl_get_binary_from_response_node(response, parent_, 1, blob);
  EXPECT_TRUE(traced("get binary from res valueset error ret_code = -1")) << trace_dump();
  dvc_pnl_ceh_contents_hdl_get_valueset_from_response_node(response, parent_, 1, list);
  EXPECT_TRUE(traced("get valueset from res valueset error ret_code = -1")) << trace_dump();

  EXPECT_EQ(result, 55);
  EXPECT_STREQ(name, "default");
  EXPECT_EQ(blob.bytes(), (test::bytes{1}));
  EXPECT_TRUE(sets_equal(list, make_valueset({{"0.3", 3}})));
}

// Each failing step of a request write: the request stays as it was, the step is traced.
struct request_failure_case {
  const char* name;
  value_op op;
  const char* message;
};

class request_failures : public request_response_nodes,
                         public ::testing::WithParamInterface<request_failure_case> {};

TEST_P(request_failures, leave_the_request_and_trace_the_step) {
  const request_failure_case& c = GetParam();
  dvc_pnl_cmm_valueset request = make_valueset({{"0.896.901.1320", 1}});
  fail_value_op(c.op);
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, parent_, 1035, 2);
  EXPECT_TRUE(sets_equal(request, make_valueset({{"0.896.901.1320", 1}})));
  EXPECT_TRUE(traced(c.message)) << trace_dump();
}

INSTANTIATE_TEST_SUITE_P(
    request_response_nodes, request_failures,
    ::testing::Values(request_failure_case{"copy", value_op::key_copy,
                                           "copy key error ret_code = -9"},
                      request_failure_case{"add", value_op::key_add, "add key error ret_code = -9"},
                      request_failure_case{"store", value_op::set_write,
                                           "set int to req valueset error ret_code = -9"}),
    [](const ::testing::TestParamInfo<request_failure_case>& info) { return info.param.name; });

TEST_F(request_response_nodes, failed_stores_of_each_kind_are_traced_with_their_wording) {
  dvc_pnl_cmm_valueset request;
  fail_value_op(value_op::set_write);
  dvc_pnl_ceh_contents_hdl_set_string_to_request_node(request, parent_, 1, "x");
  EXPECT_TRUE(traced("set string to req valueset error ret_code = -9")) << trace_dump();
  fail_value_op(value_op::set_write);
  dvc_pnl_ceh_contents_hdl_set_binary_to_request_node(request, parent_, 1, dvc_pnl_cmm_binary());
  EXPECT_TRUE(traced("set binary to req valueset error ret_code = -9")) << trace_dump();
  fail_value_op(value_op::set_write);
  dvc_pnl_ceh_contents_hdl_set_valueset_to_request_node(request, parent_, 1,
                                                        dvc_pnl_cmm_valueset());
  EXPECT_TRUE(traced("set valueset to req valueset error ret_code = -9")) << trace_dump();
  dvc_pnl_ceh_contents_hdl_set_string_to_request_node(request, parent_, 1, nullptr);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_string_to_request_node value is NULL"))
      << trace_dump();
  EXPECT_EQ(request.dvc_pnl_cmm_size(), 0u) << dump(request);
}

TEST_F(request_response_nodes, failed_key_steps_of_a_response_read_keep_the_default) {
  dvc_pnl_cmm_valueset response = make_valueset({{"0.896.901.1484", 0L}});
  long result = 99;
  fail_value_op(value_op::key_copy);
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, parent_, 1484, result);
  EXPECT_EQ(result, 99);
  EXPECT_TRUE(traced("copy key error ret_code = -9")) << trace_dump();
  fail_value_op(value_op::key_add);
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, parent_, 1484, result);
  EXPECT_EQ(result, 99);
  EXPECT_TRUE(traced("add key error ret_code = -9")) << trace_dump();
}

TEST_F(request_response_nodes, building_a_request_the_usual_way) {
  unsigned long command[] = {0, 896, 901, DVC_PNL_CEH_KEY_END};
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_set_key(key, command);
  dvc_pnl_cmm_valueset request;
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, 1320, 1);
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, 1035, 4);
  EXPECT_TRUE(sets_equal(request, make_valueset({{"0.896.901.1320", 1}, {"0.896.901.1035", 4}})));
  EXPECT_TRUE(trace_sink::instance().messages().empty()) << trace_dump();
}

}  // namespace
}  // namespace orvanta
