// The value texts of the home screens' flexible keys that the machine's data decides: the file
// name against its default, the original size, and the settings that cannot be read.
#include <gtest/gtest.h>

#include "screens/home/dvc_pnl_ceh_home_flexible_keys.h"
#include "support/machine_test.h"

namespace orvanta::test {
namespace {

class HomeFlexibleKeys : public MachineTest {
 protected:
  static dvc_pnl_ceh_setting_text text_of(long item, int function) {
    dvc_pnl_ceh_contents_hdl_func func(function);
    return dvc_pnl_ceh_home_flexible_keys::load_setting_res(item, func);
  }
};

TEST_F(HomeFlexibleKeys, FileNameTellsWhetherItIsTheDefault) {
  // Send keeps its settings under 161: the name and its date word, current and default.
  for (const char* scope : {"3", "160"}) {
    machine().set_string(std::string("0.1.161.") + scope + ".1.4.4", "doc");
    machine().set_int(std::string("0.1.161.") + scope + ".1.4.5", 2);
  }
  EXPECT_EQ(91, text_of(DVC_PNL_CEH_ITEM_FILE_NAME, 3).resource);

  machine().set_int("0.1.161.160.1.4.5", 3);  // another date form
  EXPECT_EQ(1170, text_of(DVC_PNL_CEH_ITEM_FILE_NAME, 3).resource);

  machine().set_int("0.1.161.160.1.4.5", 2);
  machine().set_string("0.1.161.160.1.4.4", "scan");
  EXPECT_EQ(1170, text_of(DVC_PNL_CEH_ITEM_FILE_NAME, 3).resource);

  // Without the date word there is nothing to compare: no text.
  machine().remove_node("0.1.161.3.1.4.5");
  EXPECT_EQ(-1, text_of(DVC_PNL_CEH_ITEM_FILE_NAME, 3).resource);
}

TEST_F(HomeFlexibleKeys, OriginalSizeShowsTheKeysOwnText) {
  // Size codes 1 and 3 have texts of their own on the keys, 2 shares the general one.
  const struct {
    long size;
    int resource;
  } cases[] = {{1, 81}, {2, 30}, {3, 80}, {4, 79}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.size);
    machine().set_int("0.1.2.160.12.18.20", c.size);
    const dvc_pnl_ceh_setting_text text = text_of(DVC_PNL_CEH_ITEM_ORIGINAL_SIZE, 1);
    EXPECT_EQ(c.resource, text.resource);
    EXPECT_FALSE(text.composed);
  }
}

TEST_F(HomeFlexibleKeys, ZoomComposesItsRatioAndUnreadableSettingsShowNothing) {
  const dvc_pnl_ceh_setting_text zoom = text_of(DVC_PNL_CEH_ITEM_ZOOM, 1);
  EXPECT_TRUE(zoom.composed);
  EXPECT_EQ(100, zoom.number) << "the default machine copies at full size";

  machine().remove_node("0.1.2.160.148.149");
  EXPECT_EQ(-1, text_of(DVC_PNL_CEH_ITEM_COLLATE, 1).resource);
  EXPECT_EQ(-1, text_of(9999, 1).resource) << "an item without a setting";
  EXPECT_EQ(-1, dvc_pnl_ceh_home_flexible_keys::translate_item_enum_value_to_resource_id(9999));
}

}  // namespace
}  // namespace orvanta::test
