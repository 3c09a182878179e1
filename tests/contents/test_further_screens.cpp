// The further status and record screens: each family shows its title, draws, goes back on Back
// and to the top of the function on Stop; other keys pass.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_logger.h"
#include "contents_probe.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_01_01.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_01_02.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_02.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_03.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_06.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_07.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_09.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_15.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_16.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_05_01.h"
#include "screens/further/dvc_pnl_ceh_contents_hdl_further_screen.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"

namespace orvanta {
namespace {

using namespace test;

struct family {
  const char* name;
  std::function<bool(dvc_pnl_ceh_contents_interface*)> is_of;
};

template <typename T>
family family_of(const char* name) {
  return {name, [](dvc_pnl_ceh_contents_interface* c) { return dynamic_cast<T*>(c) != nullptr; }};
}

std::ostream& operator<<(std::ostream& os, const family& f) {
  return os << f.name;
}

// The first contents id that the factory routes to the family.
int first_id_of(const family& f) {
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  for (int id = 1; id < 2400; ++id) {
    dvc_pnl_ceh_contents_interface* made =
        factory->dvc_pnl_ceh_create_contents_proc_class(id, nullptr);
    if (made == nullptr)
      continue;
    made->dvc_pnl_ceh_unlock();
    const bool match = f.is_of(made);
    delete made;
    if (match)
      return id;
  }
  return -1;
}

class FurtherScreens : public ProbeFixture, public ::testing::WithParamInterface<family> {
 protected:
  void SetUp() override {
    ProbeFixture::SetUp();
    id_ = first_id_of(GetParam());
    ASSERT_GT(id_, 0);
    // The family's own screens come from the factory; the pages around them are probes.
    const int id = id_;
    host::set_contents_creator(
        [id](int cid, dvu_pnl_gcp_components* gui) -> dvc_pnl_ceh_contents_interface* {
          if (cid == id)
            return dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance()
                ->dvc_pnl_ceh_create_contents_proc_class(cid, gui);
          return new probe(cid, gui);
        });
  }

  dvc_pnl_ceh_contents_hdl_base* screen() {
    for (const host::page_record& p : host::pages_of(kFunc)) {
      if (p.contents_id == id_)
        return dynamic_cast<dvc_pnl_ceh_contents_hdl_base*>(p.contents);
    }
    return nullptr;
  }

  std::vector<int> open_ids() {
    std::vector<int> ids;
    for (const host::page_record& p : host::pages_of(kFunc))
      ids.push_back(p.contents_id);
    return ids;
  }

  int id_ = -1;
};

TEST_P(FurtherScreens, LoadShowsTheTitleAndDraws) {
  open(kA);
  open(id_);
  ASSERT_NE(screen(), nullptr);
  EXPECT_GE(host::gui_of(id_, kFunc)->draws, 1);
  // The family's layout has a title text; the load puts the name there as a literal.
  auto* title = dynamic_cast<dvu_pnl_gcp_text*>(
      dvu_pnl_gcp_get_gui_parts_by_id(screen()->dvc_pnl_ceh_get_gui_components(), GUI_ID_TITLE));
  ASSERT_NE(title, nullptr);
  std::string text;
  ASSERT_EQ(title->dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_LITERAL, text), 0);
  EXPECT_EQ(text, dvc_pnl_ceh_logger::get_cid(id_));
  EXPECT_TRUE(title->wraps());
  int resource = 0;
  ASSERT_EQ(title->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, resource), 0);
  EXPECT_EQ(resource, -1);
}

TEST_P(FurtherScreens, ATitlePartOfAnotherKindIsLeftAloneAndTheScreenStillDraws) {
  open(kA);
  open(id_);
  ASSERT_NE(screen(), nullptr);
  host::add_part(id_, kFunc, GUI_ID_TITLE, std::make_unique<dvu_pnl_gcp_icon>());
  host::trace_sink::instance().clear();
  const int draws = host::gui_of(id_, kFunc)->draws;
  screen()->dvc_pnl_ceh_on_load();
  EXPECT_GT(host::gui_of(id_, kFunc)->draws, draws);
  EXPECT_TRUE(host::trace_sink::instance().has_message("p_text is NULL"));
  EXPECT_TRUE(host::trace_sink::instance().has_message("update_view_text ret_code = 6"));
  std::string text;
  EXPECT_NE(
      dvu_pnl_gcp_get_gui_parts_by_id(screen()->dvc_pnl_ceh_get_gui_components(), GUI_ID_TITLE)
          ->dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_LITERAL, text),
      0);
}

TEST_P(FurtherScreens, BackReturnsToTheParent) {
  open(kA);
  open(id_);
  EXPECT_EQ(press(61), 0);  // consumed
  EXPECT_EQ(open_ids(), std::vector<int>{kA});
}

TEST_P(FurtherScreens, StopGoesToTheTopOfTheFunction) {
  open(CID_01_01_N1);
  open(kA);
  open(id_);
  EXPECT_EQ(press(42), 0);
  EXPECT_EQ(open_ids(), std::vector<int>{CID_01_01_N1});
}

TEST_P(FurtherScreens, OtherKeysPass) {
  open(kA);
  open(id_);
  for (int key : {40, 43, 45}) {
    EXPECT_EQ(press(key), 1) << key;
    EXPECT_EQ(open_ids(), (std::vector<int>{kA, id_})) << key;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Families, FurtherScreens,
    ::testing::Values(family_of<dvc_pnl_ceh_contents_hdl_d_04_01_01>("d_04_01_01"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_04_01_02>("d_04_01_02"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_04_03_02>("d_04_03_02"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_04_03_03>("d_04_03_03"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_04_03_06>("d_04_03_06"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_04_03_07>("d_04_03_07"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_04_03_09>("d_04_03_09"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_04_03_15>("d_04_03_15"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_04_03_16>("d_04_03_16"),
                      family_of<dvc_pnl_ceh_contents_hdl_d_05_01>("d_05_01")),
    [](const ::testing::TestParamInfo<family>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace orvanta
