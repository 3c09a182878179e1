// Tests of the path forms: nested reads and writes, the descent and the write-back walk.
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
using test::bytes;
using test::dump;
using test::entry;
using test::key_of;
using test::make_valueset;
using test::nodes_of;
using test::sets_equal;
using test::trace_dump;
using test::traced;

constexpr unsigned long END = DVC_PNL_CEH_KEY_END;

// The answer of the user list 0.938.959 with three elements: RESULT and the total at the top,
// the list body at 1501, elements 0 to 2 inside it, fields 1365 (name) and 1366 (number) inside
// each element.
std::vector<entry> user_list_entries() {
  return {
      {"0.938.959.1484", 0L},
      {"0.938.959.1592", 3},
      {"0.938.959.1501.0.1365", "alice"},
      {"0.938.959.1501.0.1366", 10},
      {"0.938.959.1501.1.1365", "bob"},
      {"0.938.959.1501.1.1366", 11},
      {"0.938.959.1501.2.1365", "carol"},
      {"0.938.959.1501.2.1366", 12},
      {"0.938.959.1501.2.1400", bytes{1, 2, 3}},
  };
}

// The same entries with one path's leaf replaced.
std::vector<entry> with(std::vector<entry> entries, const std::string& path, test::leaf value) {
  for (entry& e : entries) {
    if (e.path == path) {
      e.value = value;
      return entries;
    }
  }
  entries.push_back({path, value});
  return entries;
}

std::vector<entry> without(std::vector<entry> entries, const std::string& path) {
  std::erase_if(entries, [&](const entry& e) { return e.path == path; });
  return entries;
}

class path_test : public ::testing::Test {
 protected:
  void SetUp() override {
    clear_value_faults();
    response_ = make_valueset(user_list_entries());
    trace_sink::instance().clear();
  }
  void TearDown() override { clear_value_faults(); }

  bool response_unchanged() const { return response_.equals(make_valueset(user_list_entries())); }

  dvc_pnl_cmm_valueset response_;
};

dvc_pnl_cmm_value int_value(long v) {
  dvc_pnl_cmm_value value;
  EXPECT_EQ(value.dvc_pnl_cmm_set_int(v), DVC_PNL_CMM_OK);
  return value;
}

dvc_pnl_cmm_value string_value(const char* v) {
  dvc_pnl_cmm_value value;
  EXPECT_EQ(value.dvc_pnl_cmm_set_string(v), DVC_PNL_CMM_OK);
  return value;
}

dvc_pnl_cmm_value set_value(const dvc_pnl_cmm_valueset& v) {
  dvc_pnl_cmm_value value;
  EXPECT_EQ(value.dvc_pnl_cmm_set_valueset(v), DVC_PNL_CMM_OK);
  return value;
}

// ---------------------------------------------------------------- get_child_valueset

class child_descent : public path_test {};

TEST_F(child_descent, walks_from_pos_down_to_last) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1.1365");
  dvc_pnl_cmm_valueset child;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 3, 4, response_, child),
            DVC_PNL_CEH_RET_OK);
  EXPECT_EQ(child.dvc_pnl_cmm_size(), 3u) << dump(child);  // the list body
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 3, 5, response_, child),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(
      child, make_valueset({{"0.938.959.1501.1.1365", "bob"}, {"0.938.959.1501.1.1366", 11}})));
}

TEST_F(child_descent, pos_equal_to_last_copies_the_whole_set) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1.1365");
  for (int pos : {0, 3, 15}) {
    SCOPED_TRACE(pos);
    dvc_pnl_cmm_valueset child = make_valueset({{"0.1", 1}});
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), pos, pos, response_, child),
              DVC_PNL_CEH_RET_OK);
    EXPECT_TRUE(sets_equal(child, response_));
  }
  // pos beyond last copies as well.
  dvc_pnl_cmm_valueset child;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 5, 2, response_, child),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(child, response_));
}

TEST_F(child_descent, positions_outside_0_to_15_are_refused_and_child_kept) {
  const std::vector<unsigned long> path = nodes_of("0.1.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16");
  const int cases[][2] = {{16, 16}, {0, 16}, {16, 3}, {-1, 2}, {2, -1}, {15, 16}, {-5, -5}};
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::Message() << "pos " << c[0] << " last " << c[1]);
    dvc_pnl_cmm_valueset child = make_valueset({{"0.1", 1}});
    EXPECT_EQ(
        dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), c[0], c[1], response_, child),
        DVC_PNL_CEH_RET_BAD_ARGUMENT);
    EXPECT_TRUE(sets_equal(child, make_valueset({{"0.1", 1}})));
  }
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_get_child_valueset pos = 0 last = 16 is out of range"))
      << trace_dump();
}

TEST_F(child_descent, sixteen_levels_is_the_limit_even_when_the_set_goes_deeper) {
  // One leaf 17 elements deep, nested one level per element from the top key "0".
  const std::string deep = "0.1.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16";
  const std::vector<unsigned long> path = nodes_of(deep);
  const dvc_pnl_cmm_valueset set = make_valueset({{deep, 7}}, 1);

  dvc_pnl_cmm_valueset child;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 0, 15, set, child),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(child, make_valueset({{deep, 7}}, 16)));

  dvc_pnl_cmm_valueset untouched;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 0, 16, set, untouched),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_EQ(untouched.dvc_pnl_cmm_size(), 0u);
}

TEST_F(child_descent, null_node_array_gives_6) {
  dvc_pnl_cmm_valueset child = make_valueset({{"0.1", 1}});
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(nullptr, 0, 0, response_, child),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_TRUE(sets_equal(child, make_valueset({{"0.1", 1}})));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_child_valueset node is NULL")) << trace_dump();
}

TEST_F(child_descent, a_level_that_is_missing_or_not_a_set_gives_3_and_keeps_child) {
  const char* paths[] = {"0.938.959.1501.7.1365",  // no element 7
                         "0.938.959.1484.0.0"};    // RESULT is an integer
  for (const char* p : paths) {
    SCOPED_TRACE(p);
    trace_sink::instance().clear();
    const std::vector<unsigned long> path = nodes_of(p);
    dvc_pnl_cmm_valueset child = make_valueset({{"0.1", 1}});
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 3, 5, response_, child),
              DVC_PNL_CEH_RET_PLATFORM);
    EXPECT_TRUE(sets_equal(child, make_valueset({{"0.1", 1}})));
    EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset ret_code = 3"))
        << trace_dump();
  }
  EXPECT_TRUE(traced("ret = -2.")) << trace_dump();
}

TEST_F(child_descent, a_failed_key_build_is_passed_on) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1");
  dvc_pnl_cmm_valueset child;
  fail_value_op(value_op::key_add, 4);  // the second level's key
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 3, 5, response_, child),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(child.dvc_pnl_cmm_size(), 0u);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_build_key ret_code = 3")) << trace_dump();
}

TEST_F(child_descent, the_child_is_an_independent_copy) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1");
  dvc_pnl_cmm_valueset child;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 3, 5, response_, child),
            DVC_PNL_CEH_RET_OK);
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(child, key_of("0.938.959.1501.1.1366"), 99);
  EXPECT_TRUE(response_unchanged()) << dump(response_);
}

TEST_F(child_descent, child_may_be_the_set_itself) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.2");
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 3, 5, response_, response_),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(response_, make_valueset({{"0.938.959.1501.2.1365", "carol"},
                                                   {"0.938.959.1501.2.1366", 12},
                                                   {"0.938.959.1501.2.1400", bytes{1, 2, 3}}})));
}

// ---------------------------------------------------------------- path reads

class path_reads : public path_test {};

TEST_F(path_reads, start_positions_0_and_1_both_read_from_the_set_itself) {
  const std::vector<unsigned long> total = nodes_of("0.938.959.1592");
  const std::vector<unsigned long> field = nodes_of("0.938.959.1501.1.1365");
  for (int start : {0, 1}) {
    SCOPED_TRACE(start);
    long n = -1;
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(total.data(), start, 4, response_, n),
              DVC_PNL_CEH_RET_OK);
    EXPECT_EQ(n, 3);
    // A nested entry is not found this way: the set itself holds no 6-element key.
    const char* s = "untouched";
    EXPECT_EQ(
        dvc_pnl_ceh_contents_hdl_get_string_from_valueset(field.data(), start, 6, response_, s),
        DVC_PNL_CEH_RET_PLATFORM);
    EXPECT_EQ(s, nullptr);
  }
}

struct descent_case {
  const char* name;
  const char* set_top;  // whose entries the read starts from: response, body or element
  int start;
  int expected_ret;
};

class path_read_descent : public path_test, public ::testing::WithParamInterface<descent_case> {
 protected:
  dvc_pnl_cmm_valueset start_set(const std::string& which) {
    dvc_pnl_cmm_valueset s;
    if (which == "response")
      return response_;
    const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1");
    const int last = which == "body" ? 4 : 5;
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_child_valueset(path.data(), 3, last, response_, s),
              DVC_PNL_CEH_RET_OK);
    return s;
  }
};

TEST_P(path_read_descent, reads_the_field_of_element_1) {
  const descent_case& c = GetParam();
  const dvc_pnl_cmm_valueset set = start_set(c.set_top);
  const std::vector<unsigned long> field = nodes_of("0.938.959.1501.1.1366");
  long n = -1;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(field.data(), c.start, 6, set, n),
            c.expected_ret);
  if (c.expected_ret == DVC_PNL_CEH_RET_OK) {
    EXPECT_EQ(n, 11);
  } else {
    EXPECT_EQ(n, c.start >= 2 ? -1 : 0);  // a failed descent comes before the clearing
  }
}

INSTANTIATE_TEST_SUITE_P(
    path_reads, path_read_descent,
    ::testing::Values(
        // The start position is the key length of the set's own entries.
        descent_case{"from_response", "response", 4, DVC_PNL_CEH_RET_OK},
        descent_case{"from_body", "body", 5, DVC_PNL_CEH_RET_OK},
        descent_case{"from_element_direct", "element", 0, DVC_PNL_CEH_RET_OK},
        descent_case{"from_element_start_6", "element", 6, DVC_PNL_CEH_RET_OK},
        descent_case{"response_taken_as_body", "response", 5, DVC_PNL_CEH_RET_PLATFORM},
        descent_case{"response_from_two", "response", 2, DVC_PNL_CEH_RET_PLATFORM},
        descent_case{"body_taken_as_response", "body", 4, DVC_PNL_CEH_RET_PLATFORM}),
    [](const ::testing::TestParamInfo<descent_case>& info) { return info.param.name; });

TEST_F(path_reads, start_above_nsize_or_negative_gives_6_and_touches_nothing) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1484");
  for (int start : {5, 100, -1, -2147483647 - 1}) {
    SCOPED_TRACE(start);
    long n = 55;
    const char* s = "keep";
    dvc_pnl_cmm_binary b;
    const unsigned char raw[] = {7};
    ASSERT_EQ(b.dvc_pnl_cmm_set_data(raw, 1), DVC_PNL_CMM_OK);
    dvc_pnl_cmm_valueset v = make_valueset({{"0.1", 1}});
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path.data(), start, 4, response_, n),
              DVC_PNL_CEH_RET_BAD_ARGUMENT);
    EXPECT_EQ(
        dvc_pnl_ceh_contents_hdl_get_string_from_valueset(path.data(), start, 4, response_, s),
        DVC_PNL_CEH_RET_BAD_ARGUMENT);
    EXPECT_EQ(
        dvc_pnl_ceh_contents_hdl_get_binary_from_valueset(path.data(), start, 4, response_, b),
        DVC_PNL_CEH_RET_BAD_ARGUMENT);
    EXPECT_EQ(
        dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(path.data(), start, 4, response_, v),
        DVC_PNL_CEH_RET_BAD_ARGUMENT);
    EXPECT_EQ(n, 55);
    EXPECT_STREQ(s, "keep");
    EXPECT_EQ(b.bytes(), (bytes{7}));
    EXPECT_TRUE(sets_equal(v, make_valueset({{"0.1", 1}})));
  }
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_get_int_from_valueset vs_start_pos = 5 nsize = 4 "
             "is out of range"))
      << trace_dump();
}

TEST_F(path_reads, null_node_array_gives_6_with_the_operation_named) {
  long n = 1;
  const char* s = "keep";
  dvc_pnl_cmm_binary b;
  dvc_pnl_cmm_valueset v;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(nullptr, 0, 4, response_, n),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_valueset(nullptr, 0, 4, response_, s),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_valueset(nullptr, 0, 4, response_, b),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(nullptr, 0, 4, response_, v),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_EQ(n, 1);
  EXPECT_STREQ(s, "keep");
  for (const char* op : {"get_int", "get_string", "get_binary", "get_valueset"}) {
    const std::string message =
        std::string("dvc_pnl_ceh_contents_hdl_") + op + "_from_valueset node_name is NULL";
    EXPECT_TRUE(traced(message)) << message << "\n" << trace_dump();
  }
}

TEST_F(path_reads, a_failed_read_clears_the_out_argument) {
  const std::vector<unsigned long> missing = nodes_of("0.938.959.1501.1.9999");
  const std::vector<unsigned long> name = nodes_of("0.938.959.1501.1.1365");
  long n = 55;
  const char* s = "keep";
  dvc_pnl_cmm_binary b;
  const unsigned char raw[] = {7};
  ASSERT_EQ(b.dvc_pnl_cmm_set_data(raw, 1), DVC_PNL_CMM_OK);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(missing.data(), 4, 6, response_, n),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_valueset(missing.data(), 4, 6, response_, s),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_valueset(missing.data(), 4, 6, response_, b),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(n, 0);
  EXPECT_EQ(s, nullptr);
  EXPECT_TRUE(b.bytes().empty());
  EXPECT_TRUE(traced("ret = -1.")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_int ret_code = 3")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_string ret_code = 3")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_binary ret_code = 3")) << trace_dump();

  // Reading a string as an integer is a failed read as well.
  n = 55;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(name.data(), 4, 6, response_, n),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(n, 0);
  EXPECT_TRUE(traced("ret = -2.")) << trace_dump();

  dvc_pnl_cmm_valueset v = make_valueset({{"0.1", 1}});
  const std::vector<unsigned long> total = nodes_of("0.938.959.1592");
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(total.data(), 0, 4, response_, v),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(v.dvc_pnl_cmm_size(), 0u) << dump(v);
}

TEST_F(path_reads, a_failed_descent_is_passed_on_before_the_out_argument_is_cleared) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.7.1366");  // no element 7
  long n = 55;
  const char* s = "keep";
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path.data(), 4, 6, response_, n),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_valueset(path.data(), 4, 6, response_, s),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(n, 55);
  EXPECT_STREQ(s, "keep");
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_child_valueset ret_code = 3")) << trace_dump();

  // A descent refused for its depth passes its 6 on.
  const std::vector<unsigned long> deep = nodes_of("0.1.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16");
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(deep.data(), 2, 17, response_, n),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_EQ(n, 55);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_child_valueset ret_code = 6")) << trace_dump();
}

TEST_F(path_reads, a_failed_key_build_clears_and_is_passed_on) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1592");
  long n = 55;
  fail_value_op(value_op::key_add, 1);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path.data(), 0, 4, response_, n),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(n, 0);
  EXPECT_TRUE(traced("dvc_pnl_cmm_key::dvc_pnl_cmm_add_key ret_code = 3")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_build_key ret_code = 3")) << trace_dump();
}

TEST_F(path_reads, an_empty_path_reads_nothing) {
  const unsigned long path[] = {0};
  long n = 55;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path, 0, 0, response_, n),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_EQ(n, 0);
}

TEST_F(path_reads, nested_strings_stay_readable_after_the_call) {
  const std::vector<unsigned long> first = nodes_of("0.938.959.1501.0.1365");
  const std::vector<unsigned long> second = nodes_of("0.938.959.1501.2.1365");
  const char* a = nullptr;
  const char* b = nullptr;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_valueset(first.data(), 4, 6, response_, a),
            DVC_PNL_CEH_RET_OK);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_valueset(second.data(), 4, 6, response_, b),
            DVC_PNL_CEH_RET_OK);
  // The set read from was a copy local to each call; both texts must still be there.
  EXPECT_STREQ(a, "alice");
  EXPECT_STREQ(b, "carol");
}

TEST_F(path_reads, binary_and_nested_sets) {
  const std::vector<unsigned long> blob = nodes_of("0.938.959.1501.2.1400");
  dvc_pnl_cmm_binary b;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_valueset(blob.data(), 4, 6, response_, b),
            DVC_PNL_CEH_RET_OK);
  EXPECT_EQ(b.bytes(), (bytes{1, 2, 3}));

  // For sets, the descent down to all nsize elements reaches the target itself.
  const std::vector<unsigned long> element = nodes_of("0.938.959.1501.0");
  dvc_pnl_cmm_valueset v;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(element.data(), 4, 5, response_, v),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(
      v, make_valueset({{"0.938.959.1501.0.1365", "alice"}, {"0.938.959.1501.0.1366", 10}})));
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(element.data(), 4, 4, response_, v),
            DVC_PNL_CEH_RET_OK);
  EXPECT_EQ(v.dvc_pnl_cmm_size(), 3u) << dump(v);

  // A failed descent leaves the out-argument as it was.
  const std::vector<unsigned long> missing = nodes_of("0.938.959.1501.9");
  v = make_valueset({{"0.1", 1}});
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(missing.data(), 4, 5, response_, v),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_TRUE(sets_equal(v, make_valueset({{"0.1", 1}})));

  // The out-argument may be the set read from.
  const std::vector<unsigned long> body = nodes_of("0.938.959.1501");
  ASSERT_EQ(
      dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(body.data(), 0, 4, response_, response_),
      DVC_PNL_CEH_RET_OK);
  EXPECT_EQ(response_.dvc_pnl_cmm_size(), 3u) << dump(response_);
}

TEST_F(path_reads, reading_a_machine_list) {
  // The usual pattern: one path array, element 4 set to the index, element 5 to the field.
  unsigned long path[] = {0, 938, 959, 1501, END, END, END, END};
  dvc_pnl_cmm_valueset body;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(path, 0, 4, response_, body),
            DVC_PNL_CEH_RET_OK);
  std::vector<std::string> names;
  std::vector<long> numbers;
  for (unsigned long i = 0; i < body.dvc_pnl_cmm_size(); ++i) {
    path[4] = i;
    dvc_pnl_cmm_valueset element;
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(path, 0, 5, body, element),
              DVC_PNL_CEH_RET_OK);
    path[5] = 1365;
    const char* name = nullptr;
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_string_from_valueset(path, 0, 6, element, name),
              DVC_PNL_CEH_RET_OK);
    names.emplace_back(name);
    path[5] = 1366;
    long number = -1;
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path, 0, 6, element, number),
              DVC_PNL_CEH_RET_OK);
    numbers.push_back(number);

    // The same field straight from the response, through the descent.
    long direct = -1;
    ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path, 4, 6, response_, direct),
              DVC_PNL_CEH_RET_OK);
    EXPECT_EQ(direct, number);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"alice", "bob", "carol"}));
  EXPECT_EQ(numbers, (std::vector<long>{10, 11, 12}));
  EXPECT_TRUE(trace_sink::instance().messages().empty()) << trace_dump();
}

// ---------------------------------------------------------------- set_child_valueset

class child_write_back : public path_test {};

TEST_F(child_write_back, replaces_the_leaf_and_keeps_the_siblings_at_every_level) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1.1365");
  const NAME_SPACE_NODE_TYPE type = NODE_TYPE_STRING;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), 3, 6, response_,
                                                        string_value("robert"), type),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(
      response_, make_valueset(with(user_list_entries(), "0.938.959.1501.1.1365", "robert"))));
}

TEST_F(child_write_back, the_leaf_may_change_its_kind) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.0.1366");
  const NAME_SPACE_NODE_TYPE type = NODE_TYPE_STRING;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), 3, 6, response_,
                                                        string_value("ten"), type),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(response_,
                         make_valueset(with(user_list_entries(), "0.938.959.1501.0.1366", "ten"))));
}

TEST_F(child_write_back, a_set_leaf_is_replaced_not_merged) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1");
  const dvc_pnl_cmm_valueset replacement = make_valueset({{"0.938.959.1501.1.2000", 5}});
  const NAME_SPACE_NODE_TYPE type = NODE_TYPE_VALUESET;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), 3, 5, response_,
                                                        set_value(replacement), type),
            DVC_PNL_CEH_RET_OK);
  auto expected =
      without(without(user_list_entries(), "0.938.959.1501.1.1365"), "0.938.959.1501.1.1366");
  expected.push_back({"0.938.959.1501.1.2000", 5});
  EXPECT_TRUE(sets_equal(response_, make_valueset(expected)));
}

TEST_F(child_write_back, binary_and_integer_leaves) {
  const std::vector<unsigned long> blob = nodes_of("0.938.959.1501.2.1400");
  dvc_pnl_cmm_binary b;
  const unsigned char raw[] = {9};
  ASSERT_EQ(b.dvc_pnl_cmm_set_data(raw, 1), DVC_PNL_CMM_OK);
  dvc_pnl_cmm_value value;
  ASSERT_EQ(value.dvc_pnl_cmm_set_binary(b), DVC_PNL_CMM_OK);
  const NAME_SPACE_NODE_TYPE binary = NODE_TYPE_BINARY;
  ASSERT_EQ(
      dvc_pnl_ceh_contents_hdl_set_child_valueset(blob.data(), 3, 6, response_, value, binary),
      DVC_PNL_CEH_RET_OK);
  const std::vector<unsigned long> result = nodes_of("0.938.959.1484");
  const NAME_SPACE_NODE_TYPE integer = NODE_TYPE_INTEGER;
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(result.data(), 3, 4, response_,
                                                        int_value(2), integer),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(
      response_, make_valueset(with(with(user_list_entries(), "0.938.959.1501.2.1400", bytes{9}),
                                    "0.938.959.1484", 2))));
}

TEST_F(child_write_back, pos_not_below_last_changes_nothing) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1484");
  const NAME_SPACE_NODE_TYPE type = NODE_TYPE_INTEGER;
  const int cases[][2] = {{3, 3}, {0, 0}, {4, 3}, {20, 20}};
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::Message() << "pos " << c[0] << " last " << c[1]);
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), c[0], c[1], response_,
                                                          dvc_pnl_cmm_value(), type),
              DVC_PNL_CEH_RET_OK);
    EXPECT_TRUE(response_unchanged()) << dump(response_);
  }
}

TEST_F(child_write_back, an_unknown_type_gives_2_after_the_old_entry_was_removed) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1592");
  for (int t : {4, 99, -1}) {
    SCOPED_TRACE(t);
    response_ = make_valueset(user_list_entries());
    trace_sink::instance().clear();
    const NAME_SPACE_NODE_TYPE type = static_cast<NAME_SPACE_NODE_TYPE>(t);
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), 3, 4, response_,
                                                          int_value(1), type),
              DVC_PNL_CEH_RET_UNKNOWN_TYPE);
    EXPECT_TRUE(
        sets_equal(response_, make_valueset(without(user_list_entries(), "0.938.959.1592"))));
    EXPECT_TRUE(traced("Unknow type")) << trace_dump();
  }
}

TEST_F(child_write_back, an_unknown_type_below_the_top_leaves_the_set_unchanged) {
  // The removal happens in the copy of the nested level, which is not written back.
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1.1365");
  const NAME_SPACE_NODE_TYPE type = static_cast<NAME_SPACE_NODE_TYPE>(4);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), 3, 6, response_,
                                                        string_value("x"), type),
            DVC_PNL_CEH_RET_UNKNOWN_TYPE);
  EXPECT_TRUE(response_unchanged()) << dump(response_);
}

TEST_F(child_write_back, a_failed_removal_at_any_level_gives_3_and_keeps_the_set) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.1.1365");
  const NAME_SPACE_NODE_TYPE type = NODE_TYPE_STRING;
  // Removals run leaf first: 0 the leaf, 1 the element in the body, 2 the body in the response.
  for (int skip : {0, 1, 2}) {
    SCOPED_TRACE(skip);
    trace_sink::instance().clear();
    fail_value_op(value_op::set_remove, skip);
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), 3, 6, response_,
                                                          string_value("x"), type),
              DVC_PNL_CEH_RET_PLATFORM);
    clear_value_faults();
    EXPECT_TRUE(response_unchanged()) << dump(response_);
    EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_remove_value ret_code = 3"))
        << trace_dump();
  }
}

TEST_F(child_write_back, missing_leaf_or_level_gives_3) {
  const NAME_SPACE_NODE_TYPE type = NODE_TYPE_INTEGER;
  const char* paths[] = {"0.938.959.1501.1.7777", "0.938.959.1501.5.1365", "0.938.959.1484.1.1"};
  for (const char* p : paths) {
    SCOPED_TRACE(p);
    const std::vector<unsigned long> path = nodes_of(p);
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), 3, 6, response_,
                                                          int_value(1), type),
              DVC_PNL_CEH_RET_PLATFORM);
    EXPECT_TRUE(response_unchanged()) << dump(response_);
  }
}

TEST_F(child_write_back, a_value_of_another_kind_than_type_fails_after_the_removal) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1592");
  const NAME_SPACE_NODE_TYPE type = NODE_TYPE_INTEGER;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), 3, 4, response_,
                                                        string_value("3"), type),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_TRUE(traced("dvc_pnl_cmm_value::dvc_pnl_cmm_get_int ret_code = 3")) << trace_dump();
  EXPECT_TRUE(sets_equal(response_, make_valueset(without(user_list_entries(), "0.938.959.1592"))));
}

TEST_F(child_write_back, bad_arguments_give_6) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1592");
  const NAME_SPACE_NODE_TYPE type = NODE_TYPE_INTEGER;
  EXPECT_EQ(
      dvc_pnl_ceh_contents_hdl_set_child_valueset(nullptr, 3, 4, response_, int_value(1), type),
      DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_child_valueset node is NULL")) << trace_dump();
  const int cases[][2] = {{-1, 4}, {3, -1}, {-2147483647 - 1, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::Message() << "pos " << c[0] << " last " << c[1]);
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_child_valueset(path.data(), c[0], c[1], response_,
                                                          int_value(1), type),
              DVC_PNL_CEH_RET_BAD_ARGUMENT);
  }
  EXPECT_TRUE(response_unchanged()) << dump(response_);
}

// ---------------------------------------------------------------- path writes

class path_writes : public path_test {};

TEST_F(path_writes, start_0_stores_directly_under_the_full_key) {
  const std::vector<unsigned long> total = nodes_of("0.938.959.1592");
  const std::vector<unsigned long> fresh = nodes_of("0.938.959.1600");
  const std::vector<unsigned long> deep = nodes_of("0.938.959.1501.0.1365");
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(total.data(), 0, 4, response_, 8),
            DVC_PNL_CEH_RET_OK);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_valueset(fresh.data(), 0, 4, response_, "new"),
            DVC_PNL_CEH_RET_OK);
  // A long key at start 0 is a flat entry of the set; the nested field is not touched.
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_valueset(deep.data(), 0, 6, response_, "flat"),
            DVC_PNL_CEH_RET_OK);
  dvc_pnl_cmm_valueset expected =
      make_valueset(with(with(user_list_entries(), "0.938.959.1592", 8), "0.938.959.1600", "new"));
  ASSERT_EQ(expected.dvc_pnl_cmm_set_string(key_of("0.938.959.1501.0.1365"), "flat"),
            DVC_PNL_CMM_OK);
  EXPECT_TRUE(sets_equal(response_, expected));
}

TEST_F(path_writes, other_starts_write_back_through_every_level) {
  const std::vector<unsigned long> number = nodes_of("0.938.959.1501.2.1366");
  const std::vector<unsigned long> name = nodes_of("0.938.959.1501.0.1365");
  const std::vector<unsigned long> element = nodes_of("0.938.959.1501.1");
  const dvc_pnl_cmm_valueset replacement = make_valueset({{"0.938.959.1501.1.1365", "bea"}});
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(number.data(), 4, 6, response_, 99),
            DVC_PNL_CEH_RET_OK);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_valueset(name.data(), 4, 6, response_, "ann"),
            DVC_PNL_CEH_RET_OK);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(element.data(), 4, 5, response_,
                                                              replacement),
            DVC_PNL_CEH_RET_OK);
  auto expected =
      with(with(user_list_entries(), "0.938.959.1501.2.1366", 99), "0.938.959.1501.0.1365", "ann");
  expected = without(without(expected, "0.938.959.1501.1.1366"), "0.938.959.1501.1.1365");
  expected.push_back({"0.938.959.1501.1.1365", "bea"});
  EXPECT_TRUE(sets_equal(response_, make_valueset(expected)));
}

TEST_F(path_writes, start_1_descends_from_one_element_keys) {
  // Unlike the reads, start 1 is not direct: the set's entries have one-element keys.
  dvc_pnl_cmm_valueset set = make_valueset({{"0.5", 1}, {"0.6", 2}}, 1);
  const std::vector<unsigned long> path = nodes_of("0.5");
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(path.data(), 1, 2, set, 7),
            DVC_PNL_CEH_RET_OK);
  EXPECT_TRUE(sets_equal(set, make_valueset({{"0.5", 7}, {"0.6", 2}}, 1)));
}

TEST_F(path_writes, every_level_must_exist) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1501.3.1365");
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_valueset(path.data(), 4, 6, response_, "dan"),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_TRUE(response_unchanged()) << dump(response_);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_child_valueset ret_code = 3")) << trace_dump();
}

TEST_F(path_writes, bad_arguments_give_6_and_leave_the_set) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1592");
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(nullptr, 0, 4, response_, 1),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_valueset(nullptr, 0, 4, response_, "x"),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(nullptr, 0, 4, response_,
                                                              dvc_pnl_cmm_valueset()),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  for (const char* op : {"set_int", "set_string", "set_valueset"}) {
    const std::string message =
        std::string("dvc_pnl_ceh_contents_hdl_") + op + "_to_valueset node_name is NULL";
    EXPECT_TRUE(traced(message)) << message << "\n" << trace_dump();
  }
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_string_to_valueset(path.data(), 0, 4, response_, nullptr),
            DVC_PNL_CEH_RET_BAD_ARGUMENT);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_string_to_valueset value is NULL"))
      << trace_dump();
  for (int start : {-1, -2147483647 - 1}) {
    EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(path.data(), start, 4, response_, 1),
              DVC_PNL_CEH_RET_BAD_ARGUMENT);
  }
  EXPECT_TRUE(response_unchanged()) << dump(response_);
}

TEST_F(path_writes, failed_platform_calls_give_3) {
  const std::vector<unsigned long> total = nodes_of("0.938.959.1592");
  fail_value_op(value_op::set_write);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(total.data(), 0, 4, response_, 1),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_TRUE(traced("dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_int ret_code = 3")) << trace_dump();

  fail_value_op(value_op::value_write);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(total.data(), 4, 4, response_, 1),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_TRUE(traced("dvc_pnl_cmm_value::dvc_pnl_cmm_set_int ret_code = 3")) << trace_dump();

  fail_value_op(value_op::key_add, 2);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(total.data(), 0, 4, response_, 1),
            DVC_PNL_CEH_RET_PLATFORM);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_build_key ret_code = 3")) << trace_dump();
  clear_value_faults();
  EXPECT_TRUE(response_unchanged()) << dump(response_);

  // An empty key is refused by the value layer.
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_valueset(total.data(), 0, 0, response_, 1),
            DVC_PNL_CEH_RET_PLATFORM);
}

TEST_F(path_writes, a_set_may_be_stored_into_itself) {
  const std::vector<unsigned long> path = nodes_of("0.938.959.1600");
  const dvc_pnl_cmm_valueset before = response_;
  ASSERT_EQ(
      dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(path.data(), 0, 4, response_, response_),
      DVC_PNL_CEH_RET_OK);
  dvc_pnl_cmm_valueset copy;
  ASSERT_EQ(response_.dvc_pnl_cmm_get_valueset(key_of("0.938.959.1600"), copy), DVC_PNL_CMM_OK);
  EXPECT_TRUE(sets_equal(copy, before));
}

}  // namespace
}  // namespace orvanta
