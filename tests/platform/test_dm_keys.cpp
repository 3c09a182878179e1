// Data manager key vocabulary: distinct contents, found by name, kinds and scopes recorded.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "orvanta/host/dm_key_registry.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"

namespace orvanta::host {
namespace {

TEST(DmKeys, EveryKeyIsDistinctAndFoundByItsName) {
  const auto& keys = dm_keys();
  ASSERT_GE(keys.size(), 180u);
  std::set<std::string> contents;
  for (const auto& k : keys) {
    ASSERT_NE(k.key, nullptr) << k.name;
    EXPECT_FALSE(k.key->empty()) << k.name;
    EXPECT_TRUE(contents.insert(*k.key).second) << "duplicate content for " << k.name;
    const dm_key_info* found = find_dm_key(k.name);
    ASSERT_NE(found, nullptr) << k.name;
    EXPECT_EQ(found->key, k.key);
  }
}

TEST(DmKeys, LookupAnswersTheKeyObjectItself) {
  const dm_key_info* k = find_dm_key("DVC_PNL_PDM_CEH_TRANSACTION_TIMES");
  ASSERT_NE(k, nullptr);
  EXPECT_EQ(k->key, &DVC_PNL_PDM_CEH_TRANSACTION_TIMES);
  EXPECT_EQ(k->scope, dm_scope::function);
  EXPECT_EQ(k->kind, dm_kind::integer);
  EXPECT_NE(find_dm_key("PAGE_SCOPE_DATA_LABEL"), nullptr);
  EXPECT_EQ(find_dm_key("DVC_PNL_PDM_NO_SUCH_KEY"), nullptr);
  EXPECT_EQ(find_dm_key(""), nullptr);
  EXPECT_EQ(find_dm_key("DVC_PNL_PDM_CEH_TRANSACTION_TIME"), nullptr);  // a prefix is no match
}

TEST(DmKeys, ScopesAndKindsFollowTheVocabulary) {
  struct row {
    const char* name;
    dm_scope scope;
    dm_scope also;
    dm_kind kind;
  } rows[] = {
      {"DVC_PNL_PDM_FAX", dm_scope::application, dm_scope::application, dm_kind::integer},
      {"DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO", dm_scope::application, dm_scope::application,
       dm_kind::binary},
      {"DVC_PNL_PDM_MODEL", dm_scope::application, dm_scope::application, dm_kind::any},
      {"DVC_PNL_PDM_DVC_CEH_INTEGER", dm_scope::function, dm_scope::page, dm_kind::integer},
      {"DVC_PNL_PDM_DVC_CEH_STRING", dm_scope::function, dm_scope::page, dm_kind::string},
      {"DVC_PNL_PDM_ERROR_OCCURRENCE", dm_scope::function, dm_scope::function, dm_kind::valueset},
      {"DVC_PNL_PDM_CEH_INPUT_METHOD", dm_scope::page, dm_scope::function, dm_kind::integer},
      {"DVC_PNL_PDM_CEH_APPLICATION_LIST", dm_scope::page, dm_scope::page, dm_kind::binary},
      {"DVC_PNL_PDM_START_PULLPRINT_LIST_STATUS", dm_scope::cross_function,
       dm_scope::cross_function, dm_kind::valueset},
      {"DVC_PNL_PDM_TEST_PRINT_END_DATA", dm_scope::cross_function, dm_scope::cross_function,
       dm_kind::any},
  };
  for (const auto& r : rows) {
    const dm_key_info* k = find_dm_key(r.name);
    ASSERT_NE(k, nullptr) << r.name;
    EXPECT_EQ(k->scope, r.scope) << r.name;
    EXPECT_EQ(k->also, r.also) << r.name;
    EXPECT_EQ(k->kind, r.kind) << r.name;
  }
}

}  // namespace
}  // namespace orvanta::host
