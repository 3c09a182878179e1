// Host value types: kinds, deep copies, value set entries, the iterator, injected failures.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/host/value_faults.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta {
namespace {

dvc_pnl_cmm_key key_of(std::initializer_list<unsigned long> nodes) {
  dvc_pnl_cmm_key k;
  for (unsigned long n : nodes)
    k.dvc_pnl_cmm_add_key(n);
  return k;
}

class ValueTypes : public ::testing::Test {
 protected:
  void TearDown() override { host::clear_value_faults(); }
};

TEST_F(ValueTypes, DefaultValueHoldsNothingAndEveryReadFails) {
  dvc_pnl_cmm_value v;
  long i = 5;
  const char* s = "keep";
  dvc_pnl_cmm_binary b;
  dvc_pnl_cmm_valueset vs;
  NAME_SPACE_NODE_TYPE t = NODE_TYPE_STRING;
  EXPECT_NE(v.dvc_pnl_cmm_get_int(i), 0);
  EXPECT_NE(v.dvc_pnl_cmm_get_string(s), 0);
  EXPECT_NE(v.dvc_pnl_cmm_get_binary(b), 0);
  EXPECT_NE(v.dvc_pnl_cmm_get_valueset(vs), 0);
  EXPECT_NE(v.dvc_pnl_cmm_get_type(t), 0);
  EXPECT_EQ(i, 5);
  EXPECT_STREQ(s, "keep");
}

TEST_F(ValueTypes, ReadingAnotherKindFailsAndClearEmpties) {
  dvc_pnl_cmm_value v;
  ASSERT_EQ(v.dvc_pnl_cmm_set_string("abc"), 0);
  long i = 9;
  EXPECT_NE(v.dvc_pnl_cmm_get_int(i), 0);
  EXPECT_EQ(i, 9);
  NAME_SPACE_NODE_TYPE t{};
  ASSERT_EQ(v.dvc_pnl_cmm_get_type(t), 0);
  EXPECT_EQ(t, NODE_TYPE_STRING);
  ASSERT_EQ(v.dvc_pnl_cec_clear(), 0);
  EXPECT_TRUE(v.empty());
  EXPECT_NE(v.dvc_pnl_cmm_set_string(nullptr), 0);
  EXPECT_TRUE(v.empty());
}

TEST_F(ValueTypes, LongKeepsThirtyTwoBitWordsUnsigned) {
  dvc_pnl_cmm_value v;
  // A lock word travels as its 32-bit pattern: unsigned in a 64-bit long, the same bits (a
  // negative number) in a 32-bit one.
  const long word = static_cast<long>(0x8001ffffUL);
  ASSERT_EQ(v.dvc_pnl_cmm_set_int(word), 0);
  long out = 0;
  ASSERT_EQ(v.dvc_pnl_cmm_get_int(out), 0);
  EXPECT_EQ(static_cast<unsigned long>(out), 0x8001ffffUL);
}

TEST_F(ValueTypes, BinaryOwnsACopyOfTheBytes) {
  unsigned char buf[4] = {1, 2, 3, 4};
  dvc_pnl_cmm_binary b;
  ASSERT_EQ(b.dvc_pnl_cmm_set_data(buf, 4), 0);
  buf[0] = 99;
  unsigned char* p = nullptr;
  unsigned long n = 0;
  ASSERT_EQ(b.dvc_pnl_cmm_get_data(p, n), 0);
  ASSERT_EQ(n, 4u);
  EXPECT_EQ(p[0], 1);
  EXPECT_NE(b.dvc_pnl_cmm_set_data(nullptr, 3), 0);
  ASSERT_EQ(b.dvc_pnl_cmm_set_data(nullptr, 0), 0);
  ASSERT_EQ(b.dvc_pnl_cmm_get_data(p, n), 0);
  EXPECT_EQ(n, 0u);
}

TEST_F(ValueTypes, NestedValueSetCopiesAreIndependent) {
  dvc_pnl_cmm_valueset inner;
  inner.dvc_pnl_cmm_set_int(key_of({0, 1, 2}), 7);
  dvc_pnl_cmm_valueset outer;
  outer.dvc_pnl_cmm_set_valueset(key_of({0, 1}), inner);
  inner.dvc_pnl_cmm_set_int(key_of({0, 1, 2}), 8);  // the stored copy must not follow

  dvc_pnl_cmm_valueset copy = outer;
  dvc_pnl_cmm_valueset got;
  ASSERT_EQ(copy.dvc_pnl_cmm_get_valueset(key_of({0, 1}), got), 0);
  long i = 0;
  ASSERT_EQ(got.dvc_pnl_cmm_get_int(key_of({0, 1, 2}), i), 0);
  EXPECT_EQ(i, 7);

  got.dvc_pnl_cmm_set_int(key_of({0, 1, 2}), 9);
  copy.dvc_pnl_cmm_set_valueset(key_of({0, 1}), got);
  EXPECT_FALSE(copy.equals(outer));
  dvc_pnl_cmm_valueset original;
  outer.dvc_pnl_cmm_get_valueset(key_of({0, 1}), original);
  original.dvc_pnl_cmm_get_int(key_of({0, 1, 2}), i);
  EXPECT_EQ(i, 7);
}

TEST_F(ValueTypes, ReadingANestedSetIntoItsOwnParentIsSafe) {
  dvc_pnl_cmm_valueset inner;
  inner.dvc_pnl_cmm_set_string(key_of({0, 5, 6}), "leaf");
  dvc_pnl_cmm_valueset set;
  set.dvc_pnl_cmm_set_valueset(key_of({0, 5}), inner);
  ASSERT_EQ(set.dvc_pnl_cmm_get_valueset(key_of({0, 5}), set), 0);
  const char* s = nullptr;
  ASSERT_EQ(set.dvc_pnl_cmm_get_string(key_of({0, 5, 6}), s), 0);
  EXPECT_STREQ(s, "leaf");

  dvc_pnl_cmm_value v;
  v.dvc_pnl_cmm_set_valueset(set);
  dvc_pnl_cmm_value again;
  again.dvc_pnl_cmm_set_int(1);
  again = v;
  v = again;  // self-contained assignment back and forth
  EXPECT_TRUE(v.equals(again));
}

TEST_F(ValueTypes, SetEntriesRemoveAndContain) {
  dvc_pnl_cmm_valueset set;
  const auto k = key_of({0, 938, 1484});
  EXPECT_EQ(set.dvc_pnl_cmm_is_contain(k), 0);
  EXPECT_NE(set.dvc_pnl_cmm_remove_value(k), 0);  // nothing to remove
  ASSERT_EQ(set.dvc_pnl_cmm_set_int(k, 0), 0);
  EXPECT_NE(set.dvc_pnl_cmm_is_contain(k), 0);
  EXPECT_EQ(set.dvc_pnl_cmm_size(), 1u);
  ASSERT_EQ(set.dvc_pnl_cmm_set_string(k, "replaced"), 0);
  EXPECT_EQ(set.dvc_pnl_cmm_size(), 1u);
  long i = 3;
  EXPECT_NE(set.dvc_pnl_cmm_get_int(k, i), 0);
  EXPECT_EQ(set.dvc_pnl_cmm_remove_value(k), 0);
  EXPECT_EQ(set.dvc_pnl_cmm_size(), 0u);
  // Storing nothing, or under an empty key, is refused.
  EXPECT_NE(set.dvc_pnl_cmm_set_value(k, dvc_pnl_cmm_value()), 0);
  EXPECT_NE(set.dvc_pnl_cmm_set_int(dvc_pnl_cmm_key(), 1), 0);
  EXPECT_EQ(set.dvc_pnl_cmm_size(), 0u);
}

TEST_F(ValueTypes, IteratorWalksDirectEntriesInKeyOrder) {
  dvc_pnl_cmm_valueset set;
  set.dvc_pnl_cmm_set_int(key_of({0, 3}), 3);
  set.dvc_pnl_cmm_set_int(key_of({0, 1}), 1);
  dvc_pnl_cmm_valueset nested;
  nested.dvc_pnl_cmm_set_int(key_of({0, 2, 9}), 99);
  set.dvc_pnl_cmm_set_valueset(key_of({0, 2}), nested);

  dvc_pnl_cmm_valueset_iterator it;
  EXPECT_EQ(it.dvc_pnl_cmm_next_one(), 0);  // not attached to a set
  ASSERT_EQ(set.dvc_pnl_cmm_iterator(it), 0);
  dvc_pnl_cmm_value v;
  EXPECT_NE(it.dvc_pnl_cmm_get_value(v), 0);  // before the first entry
  std::vector<std::string> keys;
  while (it.dvc_pnl_cmm_next_one() != 0) {
    dvc_pnl_cmm_key k;
    ASSERT_EQ(it.dvc_pnl_cmm_get_key(k), 0);
    ASSERT_EQ(it.dvc_pnl_cmm_get_value(v), 0);
    keys.push_back(k.to_dotted());
  }
  EXPECT_EQ(keys, (std::vector<std::string>{"0.1", "0.2", "0.3"}));
  EXPECT_EQ(it.dvc_pnl_cmm_next_one(), 0);  // stays at the end
}

TEST_F(ValueTypes, InjectedFailureHitsTheNamedCallOnce) {
  dvc_pnl_cmm_key k;
  host::fail_value_op(host::value_op::key_add, 1);
  EXPECT_EQ(k.dvc_pnl_cmm_add_key(0), 0);
  EXPECT_NE(k.dvc_pnl_cmm_add_key(1), 0);
  EXPECT_EQ(k.dvc_pnl_cmm_add_key(2), 0);
  EXPECT_EQ(k.to_dotted(), "0.2");

  dvc_pnl_cmm_valueset set;
  set.dvc_pnl_cmm_set_int(k, 1);
  host::fail_value_op(host::value_op::set_remove);
  EXPECT_NE(set.dvc_pnl_cmm_remove_value(k), 0);
  EXPECT_EQ(set.dvc_pnl_cmm_remove_value(k), 0);
}

TEST_F(ValueTypes, PausedFaultsNeitherFailNorCount) {
  dvc_pnl_cmm_key k;
  host::fail_value_op(host::value_op::key_add, 1);
  {
    const host::value_fault_pause pause;
    EXPECT_EQ(k.dvc_pnl_cmm_add_key(0), 0);
    EXPECT_EQ(k.dvc_pnl_cmm_add_key(1), 0);
    EXPECT_EQ(k.dvc_pnl_cmm_add_key(2), 0);
  }
  EXPECT_EQ(k.dvc_pnl_cmm_add_key(3), 0);  // the one call still to pass
  EXPECT_NE(k.dvc_pnl_cmm_add_key(4), 0);
  EXPECT_EQ(k.to_dotted(), "0.1.2.3");
}

}  // namespace
}  // namespace orvanta
