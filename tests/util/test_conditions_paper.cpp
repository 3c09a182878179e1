// Condition queries about paper: size and kind texts, the cassettes, weight ranges, colour
// documents and originals on the document processor.
#include <string>
#include <tuple>
#include <vector>

#include "orvanta/host/host_data_manager.h"
#include "test_conditions_support.h"

namespace orvanta::test {
namespace {

// ---- text resources ----

TEST(PaperTexts, SizeCodes) {
  struct size_case {
    long size, origin, flexible_key, cassette;
  };
  const size_case cases[] = {
      {1, 35, 81, 35},        {2, 30, 30, 30},        {5, 1264, 82, 1277},
      {9, 1269, 1324, 1282},  {13, 1267, 1014, 1280}, {19, 1038, 1039, 1038},
      {25, 1038, 1039, 1038}, {27, 1038, 1039, 1038}, {33, 1265, 1175, 1278},
      {42, 2812, 2831, 2812}, {53, 1036, 1037, 1036}, {0, -1, -1, -1},
      {10, -1, -1, -1},       {28, -1, -1, -1},       {54, -1, -1, -1},
  };
  for (const size_case& c : cases) {
    long origin = 0, flexible_key = 0, cassette = 0, portrait = 0;
    dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id(c.size, origin);
    dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id_for_flexiblekey(c.size, flexible_key);
    dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(c.size, cassette);
    dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(c.size, 0, portrait);
    EXPECT_EQ((std::vector<long>{c.origin, c.flexible_key, c.cassette, c.cassette}),
              (std::vector<long>{origin, flexible_key, cassette, portrait}))
        << c.size;
  }
  // The other orientation has one size only; other orientations have none.
  const std::vector<std::tuple<long, long, long>> oriented = {
      {13, 1, 3796}, {1, 1, -1}, {13, 2, -1}, {13, -1, -1}};
  for (const auto& [size, orientation, resource] : oriented) {
    long got = 0;
    dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(size, orientation, got);
    EXPECT_EQ(resource, got) << size << " " << orientation;
  }
}

TEST(PaperTexts, KindsWithAndWithoutDetail) {
  struct kind_case {
    long kind, with_detail, without_detail;
  };
  const kind_case cases[] = {
      {1, 619, 619},  {2, 1398, 1398}, {8, 668, 668},    {10, 311, 311}, {16, 974, 974},
      {9, 902, 1408}, {11, 936, 1407}, {17, 1660, 1734}, {21, 330, 330}, {24, 333, 333},
      {28, 337, 337}, {0, -1, -1},     {15, -1, -1},     {18, -1, -1},   {29, -1, -1},
  };
  for (const kind_case& c : cases) {
    long with = 0, without = 0;
    dvc_pnl_ceh_contents_hdl_get_cassette_paper_kind_resource_id(c.kind, with, 1);
    dvc_pnl_ceh_contents_hdl_get_cassette_paper_kind_resource_id(c.kind, without, 0);
    EXPECT_EQ(c.with_detail, with) << c.kind;
    EXPECT_EQ(c.without_detail, without) << c.kind;
  }
}

TEST(PaperTexts, OrientationOfAMessageLabel) {
  const std::vector<std::pair<long, long>> cases = {
      {3798, 1}, {329, 0},  {394, 0},  {399, 0},  {782, 0},  {783, 0},   {928, 0},   {1059, 0},
      {1301, 0}, {1313, 0}, {2832, 0}, {393, -1}, {400, -1}, {1314, -1}, {3797, -1}, {0, -1}};
  for (const auto& [label, orientation] : cases)
    EXPECT_EQ(orientation, dvc_pnl_ceh_contents_hdl_get_paper_orientation_from_msg_label(label))
        << label;
}

// ---- cassettes ----

using Cassettes = Conditions;

TEST_F(Cassettes, CassetteChosenByHand) {
  machine().set_int("0.1.2.160.46.49.50", 1);
  machine().set_int("0.1.2.160.46.49.51", 3);
  machine().clear_log();
  long cassette = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 1));
  EXPECT_EQ(3, cassette);
  EXPECT_EQ((Calls{"get 0.1.2.160.46.49", "get 0.1.2.160.46.49"}), calls());

  // The box function has settings of its own.
  machine().set_int("0.1.207.160.46.49.50", 1);
  machine().set_int("0.1.207.160.46.49.51", 4);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 6));
  EXPECT_EQ(4, cassette);

  // A number beyond the cassettes becomes the manual tray.
  machine().set_int("0.1.2.160.46.49.51", 7);
  dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 1);
  EXPECT_EQ(0, cassette);
  EXPECT_TRUE(traced("the cassette name is not WSC_FEEDER_CASS1~4 or MP tray.")) << trace_dump();

  // The chosen cassette can't be read.
  machine().remove_node("0.1.2.160.46.49.51");
  cassette = -1;
  dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 1);
  EXPECT_EQ(0, cassette);
  EXPECT_TRUE(traced("can not get current cassette ret_code = 3")) << trace_dump();
  // Nor whether it was chosen by hand: the machine is asked to choose.
  machine().fail_next(verb::get, "0.1.2.160.46.49");
  machine().clear_log();
  dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 1);
  EXPECT_EQ((Calls{"get 0.1.2.160.46.49", "invoke 0.821.2855"}), calls());
}

TEST_F(Cassettes, CassetteChosenByTheMachine) {
  struct auto_case {
    int function;
    long kind;      // request word 1035
    long cassette;  // taken from the answer only for functions 1 and 6
  };
  for (const auto_case& c : {auto_case{1, 1, 2}, auto_case{6, 5, 2}, auto_case{3, 1, 0}}) {
    SCOPED_TRACE(c.function);
    script("0.821.2855", 0, {{129, 2L}});
    machine().clear_log();
    long cassette = -1;
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, c.function));
    EXPECT_EQ(c.cassette, cassette);
    EXPECT_EQ(c.kind, request_word("0.821.2855", 1035));
    EXPECT_EQ(1, request_word("0.821.2855", 1320));
    EXPECT_TRUE(traced("invoke result : OK.")) << trace_dump();
  }
  script("0.821.2855", 1, {{129, 2L}});
  long cassette = -1;
  dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 1);
  EXPECT_EQ(0, cassette);
  EXPECT_TRUE(traced("invoke result : NG.")) << trace_dump();
  machine().fail_next(verb::invoke, "0.821.2855");
  cassette = -1;
  dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 1);
  EXPECT_EQ(0, cassette);
  EXPECT_TRUE(traced("invoke failed : ret_code = 3")) << trace_dump();
}

TEST_F(Cassettes, PaperInACassette) {
  // The default model: cassette 2 is feeder node 375; cassette 3 is 376.
  machine().set_int("0.704.705.715.375.373", 5);
  machine().set_int("0.704.705.715.375.719", 7);
  machine().set_int("0.704.705.715.375.477", 300);
  machine().set_int("0.704.705.715.375.718", 1);
  long size = -1, kind = -1, quantity = -1, orientation = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm_papersourceudpate(
                   2, size, kind, quantity, orientation, 1, 0));
  EXPECT_EQ((std::vector<long>{5, 7, 300, 1}),
            (std::vector<long>{size, kind, quantity, orientation}));
  size = kind = quantity = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm(2, size, kind, quantity,
                                                                           1, 0));
  EXPECT_EQ((std::vector<long>{5, 7, 300}), (std::vector<long>{size, kind, quantity}));

  // Message 190 takes the kind from the automatic media type.
  machine().set_int("0.230.49.368.370", 12);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm(2, size, kind, quantity,
                                                                           1, 190));
  EXPECT_EQ(12, kind);

  // A failed read ends the reading; a cassette without a feeder is refused.
  machine().fail_next(verb::get, "0.704.705.715.375.373");
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm_papersourceudpate(
                   2, size, kind, quantity, orientation, 1, 0));
  EXPECT_TRUE(traced("can not get cst paper size ret_code = 3")) << trace_dump();
  machine().clear_log();
  EXPECT_EQ(6, dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm(9, size, kind, quantity,
                                                                           1, 0));
  EXPECT_TRUE(calls().empty());
  machine().fail_next(verb::get, "0.704.705.715.376.718");
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm_papersourceudpate(
                   3, size, kind, quantity, orientation, 1, 0));
  EXPECT_TRUE(traced("can not get cst orientation ret_code = 3")) << trace_dump();
}

TEST_F(Cassettes, PaperInTheManualTray) {
  machine().set_int("0.704.705.715.723.373", 4);
  machine().set_int("0.704.705.715.723.719", 2);
  machine().set_int("0.704.705.715.723.477", 10);
  machine().set_int("0.704.705.715.723.718", 0);
  machine().set_int("0.1.2.160.46.49.53", 9);
  machine().set_int("0.1.2.160.46.49.55", 3);
  machine().set_int("0.1.2.160.46.49.2382", 1);
  struct tray_case {
    long setting;
    int function;
    long size, kind, orientation;
  };
  const tray_case cases[] = {
      {0, 1, 4, 3, 1},  // the tray's own size only with setting 1 or 2
      {1, 1, 9, 3, 1},
      {2, 3, 9, 2, 0},  // functions other than 1 and 6 read kind and orientation of the feeder
  };
  for (const tray_case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.setting << " " << c.function);
    machine().set_int("0.1.2.160.46.49.52", c.setting);
    long size = -1, kind = -1, quantity = -1, orientation = -1;
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm_papersourceudpate(
                     0, size, kind, quantity, orientation, c.function, 0));
    EXPECT_EQ((std::vector<long>{c.size, c.kind, 10, c.orientation}),
              (std::vector<long>{size, kind, quantity, orientation}));
  }
  // The short form takes the tray's size setting whatever the tray setting says.
  machine().set_int("0.1.2.160.46.49.52", 0);
  machine().clear_log();
  long size = -1, kind = -1, quantity = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm(0, size, kind, quantity,
                                                                           1, 0));
  EXPECT_EQ(9, size);
  EXPECT_EQ((Calls{"get 0.1.2.160.46.49", "get 0.1.2.160.46.49", "get 0.704.705.715.723.477"}),
            calls());
}

// ---- weights ----

TEST(PaperWeights, RangesByTypeAndSource) {
  const std::vector<std::tuple<int, int, int>> types = {
      {1, 1, 3},  {2, 9, 9},  {3, 1, 6},  {11, 1, 6}, {14, 1, 6}, {17, 1, 6}, {12, 4, 6},
      {13, 4, 6}, {16, 4, 6}, {21, 0, 9}, {28, 0, 9}, {15, 0, 9}, {0, 0, 9},  {29, 0, 9}};
  for (const auto& [type, lo, hi] : types) {
    ENV_PAPER_WEIGHT_VAL min = -1, max = -1;
    dvc_pnl_ceh_contents_hdl_get_paper_type_weight_range(type, min, max);
    EXPECT_EQ(lo, min) << type;
    EXPECT_EQ(hi, max) << type;
  }
  const std::vector<std::tuple<int, int, int, int>> sources = {
      {0, 1, 1, 9}, {1, 1, 1, 5},  {3, 5, 1, 5}, {4, 1, 0, 9},
      {5, 2, 0, 9}, {0, 21, 0, 9}, {2, 28, 0, 9}};
  for (const auto& [source, type, lo, hi] : sources) {
    ENV_PAPER_WEIGHT_VAL min = -1, max = -1;
    dvc_pnl_ceh_contents_hdl_get_paper_source_weight_range(source, type, min, max);
    EXPECT_EQ(lo, min) << source << " " << type;
    EXPECT_EQ(hi, max) << source << " " << type;
  }
}

TEST(PaperWeights, LimitCheck) {
  host::trace_sink::instance().clear();
  const std::vector<std::tuple<int, int, int, int>> cases = {
      {1, 5, 3, 1},  {1, 5, 1, 1},  {1, 5, 5, 1},  {1, 5, 6, 0}, {1, 5, 0, 0},
      {0, 9, 10, 0}, {-1, 9, 0, 0}, {0, 10, 9, 0}, {6, 4, 5, 0}};
  for (const auto& [min, max, weight, ok] : cases)
    EXPECT_EQ(ok, dvc_pnl_ceh_contents_hdl_paper_weight_limit_check(min, max, weight))
        << min << " " << max << " " << weight;
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_paper_weight_limit_check min[0] max[9] w[10] sts[0]."))
      << trace_dump();
}

// ---- documents ----

TEST_F(Conditions, ColourOfABoxDocument) {
  const auto answer = [](long mode) {
    machine().script_next_response(
        "0.857.866.2885",
        make_valueset({{"0.857.866.2885.1484", 0L}, {"0.857.866.2885.1541.0.1518", mode}}, 5));
  };
  for (const auto& [mode, colour] :
       std::vector<std::pair<long, int>>{{1, 1}, {2, 0}, {3, 0}, {4, 1}}) {
    answer(mode);
    EXPECT_EQ(colour, dvc_pnl_ceh_contents_hdl_is_color_document(6, 12)) << mode;
  }
  // The request: the box, and the file in entry 0 of the file list.
  const call_record& sent = machine().log().back();
  EXPECT_TRUE(sets_equal(sent.request, make_valueset({{"0.857.866.2885.1320", 1L},
                                                      {"0.857.866.2885.1301", 6L},
                                                      {"0.857.866.2885.1342.0.1336", 12L}},
                                                     5)));

  machine().fail_next(verb::invoke, "0.857.866.2885");
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_color_document(6, 12));
  EXPECT_TRUE(traced("ROOT.BOX.FILE_OPERATION.COLOR_CONFIRMATION Error rc = 3")) << trace_dump();
  script("0.857.866.2885", 0);  // no colour mode in the answer
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_color_document(6, 12));
}

TEST_F(Conditions, OriginalsOnTheDocumentProcessor) {
  struct sensor_case {
    long first, second;
    int set;
  };
  for (const sensor_case& c : {sensor_case{1, 1, 1}, sensor_case{1, 0, 0}, sensor_case{0, 1, 0}}) {
    dvc_pnl_cmm_valueset status =
        make_valueset({{"0.1210.1211", c.first}, {"0.1210.1212", c.second}}, 2);
    // Without an event the last status update counts.
    dvc_pnl_cmm_value v;
    ASSERT_EQ(0, v.dvc_pnl_cmm_set_valueset(status));
    ASSERT_EQ(0, host::host_data_manager::instance().dvc_pnl_pdm_set_by_application_scope(
                     DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE, v));
    EXPECT_EQ(c.set, dvc_pnl_ceh_contents_hdl_is_paper_set_on_dp(nullptr));
    dvc_pnl_evh_panel_event event(290);
    event.dvc_pnl_evh_set_event_source_valueset(status);
    EXPECT_EQ(c.set, dvc_pnl_ceh_contents_hdl_is_paper_set_on_dp(&event));
  }
  EXPECT_TRUE(traced("is_set_dp = 1")) << trace_dump();

  // One sensor missing.
  dvc_pnl_evh_panel_event event(290);
  event.dvc_pnl_evh_set_event_source_valueset(make_valueset({{"0.1210.1211", 1L}}, 2));
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_paper_set_on_dp(&event));
  EXPECT_TRUE(traced("failed dvc_pnl_cmm_get_int. ret_code = 3")) << trace_dump();
  // Nothing stored.
  host::host_data_manager::instance().reset();
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_paper_set_on_dp(nullptr));
}

}  // namespace
}  // namespace orvanta::test
