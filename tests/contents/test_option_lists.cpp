// The option lists driven through the runtime: every id the factory routes to the class opens,
// takes a few keys and closes; each fully given settings list stars the value in force; the
// engine's helpers answer as the lists need.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"
#include "orvanta/sim/panel_runtime.h"
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01.h"
#include "screens/lists/dvc_pnl_ceh_option_list.h"

namespace orvanta::test {
namespace {

using D = dvc_pnl_ceh_contents_hdl_d_01_01_01;

// The ids the factory routes to the option list class.
std::vector<int> routed_ids() {
  std::vector<int> ids;
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  for (int id = 0; id <= DVC_PNL_CEH_CONTENTS_ID_MAX; ++id) {
    std::unique_ptr<dvc_pnl_ceh_contents_interface> made(
        factory->dvc_pnl_ceh_create_contents_proc_class(id, nullptr));
    if (dynamic_cast<D*>(made.get()) != nullptr)
      ids.push_back(id);
  }
  return ids;
}

class OptionLists : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ("", rt_.reset()); }
  static machine::simulated_machine& machine() { return machine::simulated_machine::instance(); }
  D* top_list() {
    const auto top = rt_.top();
    return top ? dynamic_cast<D*>(top->contents) : nullptr;
  }
  int attr(int part, int attribute) {
    auto* page = dynamic_cast<dvc_pnl_ceh_contents_base*>(rt_.top()->contents);
    dvu_pnl_gcp_parts* p =
        dvu_pnl_gcp_get_gui_parts_by_id(page->dvc_pnl_ceh_get_gui_components(), part);
    int value = -100;
    if (p != nullptr)
      p->dvu_pnl_gcp_get_int_val(attribute, value);
    return value;
  }
  sim::panel_runtime rt_;
};

TEST_F(OptionLists, EveryRoutedIdOpensTakesKeysAndCloses) {
  const std::vector<int> ids = routed_ids();
  EXPECT_EQ(194u, ids.size());
  int without_row = 0;
  for (int id : ids) {
    SCOPED_TRACE(id);
    ASSERT_EQ("", rt_.reset());
    // The lists of settings and menus open above the copy home screen, the status and box
    // menus above their functions' base pages, like the framework does it.
    const int function = id >= CID_05_01_N1 && id < CID_06_01_N2 ? 5 : 1;
    ASSERT_EQ(0, rt_.set_function(function));
    rt_.open(function == 5 ? CID_01_02_02_N1 : CID_01_01_N1);
    rt_.open(id);
    const auto top = rt_.top();
    ASSERT_TRUE(top.has_value());
    if (top->contents_id != id) {
      // Refused in order: no row, the page closed itself.
      ++without_row;
      continue;
    }
    for (int key : {58, 57, 40, 41, 58, 61})
      rt_.press(key);
    rt_.wait(3000);
    for (const auto& page : rt_.stack()) {
      if (page.contents_id != CID_01_01_N1 && page.contents_id != CID_01_02_02_N1)
        rt_.close(page.contents_id);
    }
  }
  EXPECT_EQ(8, without_row) << "the eight routed ids without a row";
}

// A settings list of given values: its key and its values in row order.
struct given_list {
  int id;
  int function;
  std::string key;
  std::vector<long> values;
};

TEST_F(OptionLists, GivenListsStarTheValueInForce) {
  const std::vector<given_list> lists = {
      {CID_02_05_N3, 1, "0.1.2.160.12.29.164", {0, 1, 2, 3, 4, 5}},
      {CID_02_06_N1, 1, "0.1.2.160.12.104.165", {6, 7, 1, 2, 3}},
      {CID_02_11_N1, 1, "0.1.2.160.148.149", {0, 1}},
      {CID_02_19_N1, 1, "0.1.2.160.1.11", {0, 128}},
      {CID_02_25_N1, 1, "0.1.2.160.46.48", {0, 1}},
      {CID_02_65_N1, 1, "0.1.2.160.12.782", {1, 2, 3, 4, 5, 6, 7, 8, 9}},
      {CID_02_11_N1, 3, "0.1.161.160.148.149", {0, 1}},
      {CID_02_22_N3, 3, "0.1.161.160.1.4.5", {0, 1, 2, 3, 4}},
      {CID_02_37_N1, 3, "0.1.161.160.12.28", {0, 1}},
      {CID_02_58_N1, 3, "0.1.161.160.411", {0, 2, 1}},
      {CID_02_05_N1, 4, "0.1.206.160.185.186.187", {0, 1, 2, 4}},
      {CID_02_39_N1, 4, "0.1.206.160.203.204", {0, 1}},
  };
  for (const given_list& l : lists) {
    for (std::size_t row = 0; row < l.values.size(); ++row) {
      SCOPED_TRACE(std::to_string(l.id) + " row " + std::to_string(row));
      ASSERT_EQ("", rt_.reset());
      ASSERT_EQ(0, rt_.set_function(l.function));
      machine().set_int(l.key, l.values[row]);
      ASSERT_TRUE(rt_.open(l.id));
      D* list = top_list();
      ASSERT_NE(nullptr, list);
      ASSERT_EQ(l.values.size(), list->current_contents()->list.size());
      // The first row of the value holds the star and the cursor.
      long first = 0;
      while (l.values[first] != l.values[row])
        ++first;
      EXPECT_EQ(first, attr(64, DVU_PNL_GCP_ATTR_LIST_SELECT_ROW));
    }
  }
}

TEST_F(OptionLists, HelpersOfTheEngine) {
  ASSERT_EQ(0, rt_.set_function(1));
  ASSERT_TRUE(rt_.open(CID_02_03_01_N1));
  D* zoom = top_list();
  ASSERT_NE(nullptr, zoom);
  // Row 0 carries no value: it reads as 0; out of range is -1.
  EXPECT_EQ(0, zoom->index_to_value(0));
  EXPECT_EQ(1, zoom->index_to_value(2));
  EXPECT_EQ(-1, zoom->index_to_value(4));
  EXPECT_EQ(-1, zoom->index_to_value(-1));
  // The first row of a value; 0 when none holds it.
  EXPECT_EQ(2, zoom->value_to_index(1));
  EXPECT_EQ(0, zoom->value_to_index(42));
  EXPECT_EQ(CID_02_03_01_N4, zoom->index_to_childwindow(3));
  EXPECT_EQ(CID_NONE, zoom->index_to_childwindow(9));

  // Only job settings keys take the view function's branch.
  ASSERT_EQ(0, rt_.set_function(3));
  ASSERT_TRUE(rt_.open(CID_02_11_N1));
  EXPECT_EQ(161u, top_list()->current_contents()->key[2]);
  // The media type list keeps its machine setting key (0.230.49...) after its load.
  ASSERT_TRUE(rt_.open(CID_09_01_02_N6));
  ASSERT_NE(nullptr, D::s_map_.find(CID_09_01_02_N6));
  EXPECT_EQ(49u, D::s_map_.find(CID_09_01_02_N6)->key[2]);

  // Start positions of keys by their length.
  using K = std::vector<unsigned long>;
  EXPECT_EQ(6, dvc_pnl_ceh_option_list_get_position(K{0, 1, 2, 160, 12, 13, 15, 16}));
  EXPECT_EQ(0, dvc_pnl_ceh_option_list_get_position(K{0, 1, 161, 160, 12, 13, 15, 16}));
  EXPECT_EQ(7, dvc_pnl_ceh_option_list_get_position(K{0, 1, 2, 160, 46, 58, 59, 60}));
  EXPECT_EQ(6, dvc_pnl_ceh_option_list_get_position(K{0, 1, 161, 160, 12, 3686, 3687}));
  EXPECT_EQ(6, dvc_pnl_ceh_option_list_get_position(K{0, 1, 2, 160, 12, 35, 35}));
  EXPECT_EQ(0, dvc_pnl_ceh_option_list_get_position(K{0, 1, 161, 160, 12, 35, 35}));
  EXPECT_EQ(6, dvc_pnl_ceh_option_list_get_position(K{0, 1, 161, 160, 46, 49, 55}));
  EXPECT_EQ(0, dvc_pnl_ceh_option_list_get_position(K{0, 1, 161, 160, 12, 29, 34}));
  EXPECT_EQ(3, dvc_pnl_ceh_option_list_get_position(K{0, 1, 669, 5}));
  EXPECT_EQ(0, dvc_pnl_ceh_option_list_get_position(K{0, 1, 2, 5}));
  EXPECT_EQ(0, dvc_pnl_ceh_option_list_get_position(K{0, 1, 2, 160, 5}));
}

TEST_F(OptionLists, DeferredWritesWaitForTheirCommit) {
  T_TRANSACTION_STRUCT_INNER_ entry{};
  const unsigned long key[] = {0, 1, 2, 160, 148, 149};
  std::copy(std::begin(key), std::end(key), entry.key);
  entry.count = 6;
  entry.value = 0;
  machine().set_int("0.1.2.160.148.149", 1);
  ASSERT_EQ(0, dvc_pnl_ceh_store_pdm_transaction_data(entry, 1));
  entry.value = 1;  // the same key again replaces the first
  ASSERT_EQ(0, dvc_pnl_ceh_store_pdm_transaction_data(entry, 1));
  T_TRANSACTION_STRUCT_INNER_ text{};
  const unsigned long name[] = {0, 1, 2, 160, 1, 4, 4};
  std::copy(std::begin(name), std::end(name), text.key);
  text.count = 7;
  text.kind = 1;
  std::snprintf(text.text, sizeof text.text, "%s", "scan");
  ASSERT_EQ(0, dvc_pnl_ceh_store_pdm_transaction_data(text, 1));
  machine().set_int("0.1.2.160.148.149", 0);
  EXPECT_EQ(0, *machine().int_at("0.1.2.160.148.149")) << "nothing written before the commit";

  EXPECT_EQ(0, dvc_pnl_ceh_commit_pdm_transaction_data(1));
  EXPECT_EQ(1, *machine().int_at("0.1.2.160.148.149"));
  dvc_pnl_cmm_value name_value = *machine().node("0.1.2.160.1.4.4");
  const char* written = nullptr;
  ASSERT_EQ(0, name_value.dvc_pnl_cmm_get_string(written));
  EXPECT_STREQ("scan", written);
  // The record is gone: a second commit writes nothing.
  machine().set_int("0.1.2.160.148.149", 0);
  EXPECT_EQ(0, dvc_pnl_ceh_commit_pdm_transaction_data(1));
  EXPECT_EQ(0, *machine().int_at("0.1.2.160.148.149"));

  // Ten entries fill the record; an eleventh key is refused.
  for (unsigned long leaf = 0; leaf < 10; ++leaf) {
    T_TRANSACTION_STRUCT_INNER_ e{};
    const unsigned long k[] = {0, 1, 2, 160, 900, leaf};
    std::copy(std::begin(k), std::end(k), e.key);
    e.count = 6;
    ASSERT_EQ(0, dvc_pnl_ceh_store_pdm_transaction_data(e, 1));
  }
  EXPECT_NE(0, dvc_pnl_ceh_store_pdm_transaction_data(entry, 1));
}

}  // namespace
}  // namespace orvanta::test
