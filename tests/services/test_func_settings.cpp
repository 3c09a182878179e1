// Function settings: every setting read and written at its node for each function tree, the
// settings read through groups and caches, the getters without an op, and the door's targeting.
#include <string>
#include <vector>

#include "services/dvc_pnl_ceh_contents_hdl_func.h"
#include "util/test_conditions_support.h"

namespace orvanta::test {
namespace {

using door = dvc_pnl_ceh_contents_hdl_func;
using int_get = int (door::*)(int&) const;
using int_set = int (door::*)(int) const;

// A function id and the node of its settings tree.
struct tree {
  int function;
  std::string node;
};
const std::vector<tree> kTrees = {{1, "2"},   {24, "2"},  {3, "161"},
                                  {4, "206"}, {6, "207"}, {7, "214"}};

// A setting read and written as one integer: its path below the scope, the start position of its
// reads and writes, the word of its failure trace, and the wrappers it has (null where none).
struct int_setting {
  const char* name;
  const char* path;
  int start;
  const char* word;
  int_get get_current;
  int_set set_current;
  int_get get_default;
  int_set set_default;
};

const std::vector<int_setting> kIntSettings = {
    {"collate", "148.149", 0, "collate", &door::get_current_collate_setting,
     &door::set_current_collate_setting, &door::get_default_collate_setting,
     &door::set_default_collate_setting},
    {"scan_duplex", "12.28", 0, "scan duplex", &door::get_current_scan_duplex_setting,
     &door::set_current_scan_duplex_setting, &door::get_default_scan_duplex_setting, nullptr},
    {"print_duplex", "46.63.64", 6, "print duplex", &door::get_current_print_duplex_setting,
     nullptr, &door::get_default_print_duplex_setting, nullptr},
    {"original_orientation", "12.22", 0, "original orientation",
     &door::get_current_original_orientation_setting,
     &door::set_current_original_orientation_setting,
     &door::get_default_original_orientation_setting, nullptr},
    {"original_image", "12.29.34", 0, "original image", &door::get_current_original_image_setting,
     &door::set_current_original_image_setting, &door::get_default_original_image_setting, nullptr},
    {"scn_quality", "12.29.3790", 0, "scn quality", &door::get_current_scn_quality_setting,
     &door::set_current_scn_quality_setting, nullptr, nullptr},
    {"density_adjustment_method", "12.29.30.31", 0, "density adjustment method",
     &door::get_current_density_adjustment_method_setting,
     &door::set_current_density_adjustment_method_setting,
     &door::get_default_density_adjustment_method_setting, nullptr},
    {"density", "12.29.30.32.33", 0, "density", &door::get_current_density_setting,
     &door::set_current_density_setting, &door::get_default_density_setting, nullptr},
    {"job_end_report", "1.6.6", 0, "job end report", &door::get_current_job_end_report_setting,
     nullptr, &door::get_default_job_end_report_setting, nullptr},
    {"print_override", "1.11", 0, "print override", &door::get_current_print_override_setting,
     &door::set_current_print_override_setting, &door::get_default_print_override_setting, nullptr},
    {"scancolor", "12.104.165", 0, "scancolor", &door::get_current_scancolor_setting,
     &door::set_current_scancolor_setting, &door::get_default_scancolor_setting, nullptr},
    {"fax_delayed_tx", "198.199", 0, "fax delayed tx", &door::get_current_fax_delayed_tx_setting,
     nullptr, &door::get_default_fax_delayed_tx_setting, nullptr},
    {"file_separation", "166.184", 0, "file separation", &door::get_current_file_separation_setting,
     nullptr, nullptr, nullptr},
    {"fax_direct_tx", "185.194", 0, "fax direct tx", &door::get_current_fax_direct_tx_setting,
     &door::set_current_fax_direct_tx_setting, &door::get_default_fax_direct_tx_setting, nullptr},
    {"fax_resolution", "185.186.187", 0, "fax resolution",
     &door::get_current_fax_resolution_setting, nullptr, &door::get_default_fax_resolution_setting,
     nullptr},
    {"fax_rx_polling", "203.204", 0, "fax rx polling", &door::get_current_fax_rx_polling_setting,
     nullptr, &door::get_default_fax_rx_polling_setting, nullptr},
    {"file_format", "166.166.167", 0, "file format", &door::get_current_file_format_setting,
     &door::set_current_file_format_setting, &door::get_default_file_format_setting, nullptr},
    {"ftp_secure_tx", "185.193", 0, "ftp secure tx", &door::get_current_ftp_secure_tx_setting,
     nullptr, &door::get_default_ftp_secure_tx_setting, nullptr},
    {"scan_resolution", "12.29.164", 0, "scan resolution",
     &door::get_current_scan_resolution_setting, &door::set_current_scan_resolution_setting,
     &door::get_default_scan_resolution_setting, nullptr},
    {"send_size", "185.188", 0, "send size", &door::get_current_send_size_setting, nullptr,
     &door::get_default_send_size_setting, nullptr},
    {"storing_size", "216.217", 0, "storing size", &door::get_current_storing_size_setting, nullptr,
     &door::get_default_storing_size_setting, nullptr},
    {"jpeg_print_mode", "46.2743", 0, "jpeg print mode", &door::get_current_jpeg_print_mode,
     nullptr, &door::get_default_jpeg_print_mode, nullptr},
    {"xps_fit_to_page", "46.2747", 0, "xps fit to page", &door::get_current_xps_fit_to_page,
     nullptr, &door::get_default_xps_fit_to_page, nullptr},
    {"auto_file_del", "1.208", 0, "auto file del", &door::get_current_auto_file_del, nullptr,
     &door::get_default_auto_file_del, nullptr},
    {"paper_source", "46.49.51", 6, "paper source", &door::get_current_paper_source_setting,
     &door::set_current_paper_source_setting, &door::get_default_paper_source_setting,
     &door::set_default_paper_source_setting},
};

// "0.1.<tree>.<scope>.<path>".
std::string setting_path(const std::string& tree_node, const char* scope, const std::string& path) {
  return "0.1." + tree_node + "." + scope + "." + path;
}

// The first `n` elements of a dotted path.
std::string head(const std::string& dotted, int n) {
  std::size_t at = 0;
  for (int i = 0; i < n && at != std::string::npos; ++i)
    at = dotted.find('.', at + 1);
  return dotted.substr(0, at);
}

class FuncSettings : public Conditions {
 protected:
  static door* for_function(int function) { return door::dvc_pnl_ceh_get_instance(function); }

  // The key of the last call of `kind` in the machine's log; empty when there was none.
  static std::string last_key(verb kind) {
    std::string key;
    for (const call_record& c : machine().log()) {
      if (c.kind == kind)
        key = c.key;
    }
    return key;
  }
};

TEST_F(FuncSettings, EveryIntegerSettingReadsAndWritesItsNodeInEveryTree) {
  for (const tree& t : kTrees) {
    for (const int_setting& s : kIntSettings) {
      SCOPED_TRACE(std::string(s.name) + " of function " + std::to_string(t.function));
      const std::string current = setting_path(t.node, "160", s.path);
      const std::string fallback = setting_path(t.node, "3", s.path);
      machine().set_int(current, 41);
      machine().set_int(fallback, 42);
      door* d = for_function(t.function);
      // A read through a group asks the machine for the first six elements.
      const int asked = s.start == 6 ? 6 : 0;

      int value = -1;
      machine().clear_log();
      EXPECT_EQ(0, (d->*s.get_current)(value));
      EXPECT_EQ(41, value);
      EXPECT_EQ(asked == 6 ? head(current, 6) : current, last_key(verb::get));
      if (s.get_default != nullptr) {
        EXPECT_EQ(0, (d->*s.get_default)(value));
        EXPECT_EQ(42, value);
      }
      if (s.set_current != nullptr) {
        machine().clear_log();
        EXPECT_EQ(0, (d->*s.set_current)(7));
        EXPECT_EQ(7, machine().int_at(current));
        EXPECT_EQ(asked == 6 ? head(current, 6) : current, last_key(verb::set));
        EXPECT_EQ(42, machine().int_at(fallback));
      }
      if (s.set_default != nullptr) {
        EXPECT_EQ(0, (d->*s.set_default)(8));
        EXPECT_EQ(8, machine().int_at(fallback));
      }
    }
  }
}

TEST_F(FuncSettings, AFailedReadGivesZeroAndTracesTheWordOfTheSetting) {
  for (const int_setting& s : kIntSettings) {
    SCOPED_TRACE(s.name);
    machine().remove_node("0.1.2");
    int value = 99;
    const int ret = (for_function(1)->*s.get_current)(value);
    EXPECT_NE(0, ret);
    EXPECT_EQ(0, value);
    EXPECT_TRUE(traced(std::string("Can not op ") + s.word + " ret_code = " + std::to_string(ret)))
        << trace_dump();
  }
}

TEST_F(FuncSettings, AFunctionWithoutATreeFailsAtTheMachineAndReportsZero) {
  machine().set_int("0.1.2.160.148.149", 5);
  int value = 99;
  door* d = for_function(2);
  EXPECT_EQ(DVC_PNL_CEH_FUNC_NODE_NONE, d->get_function_node());
  EXPECT_NE(0, d->get_current_collate_setting(value));
  EXPECT_EQ(0, value);
  // Nothing of copy is touched by a write either.
  d->set_current_collate_setting(1);
  EXPECT_EQ(5, machine().int_at("0.1.2.160.148.149"));
}

TEST_F(FuncSettings, OneDoorServesEveryFunction) {
  machine().set_int("0.1.2.160.148.149", 1);
  machine().set_int("0.1.161.160.148.149", 2);
  door* copy = for_function(1);
  door* send = for_function(3);
  EXPECT_EQ(copy, send);
  int value = 0;
  copy->get_current_collate_setting(value);
  EXPECT_EQ(2, value) << "a pointer kept from copy reads the tree last named";
  EXPECT_EQ(3, copy->get_function_id());
  EXPECT_EQ(161u, copy->get_function_node());

  // A door of a screen's own keeps its function.
  door own(1);
  own.get_current_collate_setting(value);
  EXPECT_EQ(1, value);
}

TEST_F(FuncSettings, TextSettingsReadAndWriteTheirNode) {
  struct text_setting {
    const char* path;
    int (door::*op)(std::string&, int, int) const;
    int (door::*get_current)(std::string&) const;
    int (door::*get_default)(std::string&) const;
    const char* word;
  };
  const std::vector<text_setting> settings = {
      {"1.4.4", &door::op_file_name_entry_setting, &door::get_current_file_name_entry_setting,
       &door::get_default_file_name_entry_setting, "file name entry"},
      {"185.189.190", &door::op_subject_entry_setting, &door::get_current_subject_entry_setting,
       &door::get_default_subject_entry_setting, "subject entry"},
      {"46.176", &door::op_encryption_pdf_setting, &door::get_current_encrypted_pdf_setting,
       &door::get_default_encrypted_pdf_setting, "encryption pdf"},
  };
  for (const text_setting& s : settings) {
    SCOPED_TRACE(s.path);
    machine().set_string(setting_path("161", "160", s.path), "now");
    machine().set_string(setting_path("161", "3", s.path), "before");
    door* d = for_function(3);
    std::string value = "old";
    EXPECT_EQ(0, (d->*s.get_current)(value));
    EXPECT_EQ("now", value);
    EXPECT_EQ(0, (d->*s.get_default)(value));
    EXPECT_EQ("before", value);
    std::string written = "scan_0001";
    EXPECT_EQ(0, (d->*s.op)(written, 0, 1));
    EXPECT_EQ(0, (d->*s.get_current)(value));
    EXPECT_EQ("scan_0001", value);

    machine().remove_node("0.1.161");
    value = "old";
    const int ret = (d->*s.get_current)(value);
    EXPECT_NE(0, ret);
    EXPECT_EQ("", value);
    EXPECT_TRUE(traced(std::string("Can not op ") + s.word + " ret_code = " + std::to_string(ret)));
  }
}

TEST_F(FuncSettings, EcoprintLiesOneLevelHigherInTheCopyTree) {
  machine().set_int("0.1.2.160.46.48", 1);
  machine().set_int("0.1.207.160.46.48.48", 2);
  int value = 0;
  EXPECT_EQ(0, for_function(24)->get_current_ecoprint_setting(value));
  EXPECT_EQ(1, value);
  EXPECT_EQ(0, for_function(6)->get_current_ecoprint_setting(value));
  EXPECT_EQ(2, value);
  EXPECT_EQ(0, for_function(6)->set_current_ecoprint_setting(0));
  EXPECT_EQ(0, machine().int_at("0.1.207.160.46.48.48"));
}

TEST_F(FuncSettings, OriginalSizeReadsSizeAndKindThroughTheirGroup) {
  machine().set_int("0.1.214.160.12.18.20", 4);
  machine().set_int("0.1.214.160.12.18.19", 1);
  machine().set_int("0.1.214.3.12.18.20", 6);
  machine().set_int("0.1.214.3.12.18.19", 0);
  int size = 0;
  int original = 0;
  machine().clear_log();
  EXPECT_EQ(0, for_function(7)->get_current_original_size_setting(size, original));
  EXPECT_EQ(4, size);
  EXPECT_EQ(1, original);
  EXPECT_EQ("0.1.214.160.12.18", last_key(verb::get));
  EXPECT_EQ(0, for_function(7)->get_default_original_size_setting(size, original));
  EXPECT_EQ(6, size);
  EXPECT_EQ(0, original);
  // The box store tree's current size, whatever the function.
  EXPECT_EQ(0, for_function(1)->get_scan_original_size(size));
  EXPECT_EQ(4, size);
}

TEST_F(FuncSettings, ZoomReadsModeAndRatioAndWritesTheModeAlone) {
  machine().set_int("0.1.2.160.12.13.14", 3);
  machine().set_int("0.1.2.160.12.13.15.16", 1410);
  machine().set_int("0.1.2.3.12.13.14", 1);
  machine().set_int("0.1.2.3.12.13.15.16", 1000);
  door* d = for_function(1);
  int mode = 0;
  int ratio = 0;
  machine().clear_log();
  EXPECT_EQ(0, d->get_current_zoom_setting(mode, ratio));
  EXPECT_EQ(3, mode);
  EXPECT_EQ(1410, ratio);
  EXPECT_EQ("0.1.2.160.12.13", last_key(verb::get));
  EXPECT_EQ(0, d->get_default_zoom_setting(mode, ratio));
  EXPECT_EQ(1, mode);
  EXPECT_EQ(1000, ratio);

  machine().clear_log();
  EXPECT_EQ(0, d->set_current_zoom_setting(2, 250));
  EXPECT_EQ("0.1.2.160.12.13.14", last_key(verb::set));
  EXPECT_EQ(2, machine().int_at("0.1.2.160.12.13.14"));
  EXPECT_EQ(1410, machine().int_at("0.1.2.160.12.13.15.16"));

  // Without a tree the presets stand: full size.
  mode = 0;
  ratio = 0;
  const int ret = for_function(9)->get_current_zoom_setting(mode, ratio);
  EXPECT_NE(0, ret);
  EXPECT_EQ(DVC_PNL_CEH_ZOOM_MODE_PRESET, mode);
  EXPECT_EQ(DVC_PNL_CEH_ZOOM_RATIO_PRESET, ratio);
  EXPECT_TRUE(traced("Can not op zoom ret_code = " + std::to_string(ret)));
}

TEST_F(FuncSettings, DuplexSettingsComeOnlyFromTheCachedPrintSet) {
  struct cached {
    const char* path;
    int_get get_current;
    int_get get_default;
    int_set set_current;
    const char* written_key;  // what a write sends
  };
  const std::vector<cached> settings = {
      {"46.58.59.61", &door::get_current_duplex_layout_setting,
       &door::get_default_duplex_layout_setting, &door::set_current_duplex_layout_setting,
       "0.1.2.160.46.58.59.61"},
      {"46.58.59.62", &door::get_current_duplex_border_line_setting,
       &door::get_default_duplex_border_line_setting, &door::set_current_duplex_border_line_setting,
       "0.1.2.160.46.58.59.62"},
      {"46.63.66", &door::get_current_duplex_copy_bind_setting,
       &door::get_default_duplex_copy_bind_setting, &door::set_current_duplex_copy_bind_setting,
       "0.1.2.160.46.63"},
  };
  for (const cached& s : settings) {
    SCOPED_TRACE(s.path);
    door::reset_for_tests();
    machine().set_int(setting_path("2", "160", s.path), 2);
    machine().set_int(setting_path("2", "3", s.path), 1);
    door* d = for_function(1);

    int value = 0;
    machine().clear_log();
    EXPECT_EQ(0, (d->*s.get_current)(value)) << "an empty cache is no failure";
    EXPECT_EQ(0, value);
    EXPECT_EQ("", last_key(verb::get)) << "the read never asks the machine";

    EXPECT_EQ(0, d->get_current_print_valueset());
    EXPECT_EQ(0, d->get_default_print_valueset());
    EXPECT_EQ(0, (d->*s.get_current)(value));
    EXPECT_EQ(2, value);
    EXPECT_EQ(0, (d->*s.get_default)(value));
    EXPECT_EQ(1, value);

    // A change on the machine shows only once the cache is read again.
    machine().clear_log();
    EXPECT_EQ(0, (d->*s.set_current)(3));
    EXPECT_EQ(s.written_key, last_key(verb::set));
    EXPECT_EQ(3, machine().int_at(setting_path("2", "160", s.path)));
    EXPECT_EQ(0, (d->*s.get_current)(value));
    EXPECT_EQ(2, value);
    EXPECT_EQ(0, d->get_current_print_valueset());
    EXPECT_EQ(0, (d->*s.get_current)(value));
    EXPECT_EQ(3, value);
  }
}

TEST_F(FuncSettings, ContinuousScanIsAPlainNodeForSendFaxAndBoxStore) {
  const std::vector<std::pair<int, std::string>> plain = {{3, "161"}, {4, "206"}, {7, "214"}};
  for (const auto& [function, node] : plain) {
    SCOPED_TRACE(function);
    machine().set_int("0.1." + node + ".160.12.35", 2);
    int value = 0;
    machine().clear_log();
    EXPECT_EQ(0, for_function(function)->get_current_continuous_scan_setting(value));
    EXPECT_EQ(2, value);
    EXPECT_EQ("0.1." + node + ".160.12.35", last_key(verb::get));
  }
  machine().set_int("0.1.207.160.12.35.35", 1);
  int value = 0;
  EXPECT_EQ(0, for_function(6)->get_current_continuous_scan_setting(value));
  EXPECT_EQ(1, value);
  machine().clear_log();
  EXPECT_EQ(0, for_function(6)->set_current_continuous_scan_setting(0));
  EXPECT_EQ("0.1.207.160.12.35", last_key(verb::set));
  EXPECT_EQ(0, machine().int_at("0.1.207.160.12.35.35"));

  machine().remove_node("0.1.2");
  const int ret = for_function(1)->get_current_continuous_scan_setting(value);
  EXPECT_NE(0, ret);
  EXPECT_TRUE(traced("Can not op scan mode ret_code = " + std::to_string(ret)));
}

TEST_F(FuncSettings, CombineReadsThroughItsGroupAndNeverFails) {
  machine().set_int("0.1.207.160.46.58.59.60", 2);
  int value = 0;
  machine().clear_log();
  EXPECT_EQ(0, for_function(6)->get_current_combine_setting(value));
  EXPECT_EQ(2, value);
  EXPECT_EQ("0.1.207.160.46.58.59", last_key(verb::get));
  value = 7;
  EXPECT_EQ(0, for_function(6)->get_default_combine_setting(value));
  EXPECT_EQ(0, value);
}

// The getters without an op, each with the key it reads for a function and the preset it gives
// when that read fails.
struct plain_getter {
  const char* name;
  int function;
  int_get get;
  const char* key;
  int start;
  int preset;
};

const std::vector<plain_getter> kPlainGetters = {
    {"sharpness copy", 1, &door::get_current_sharpness, "0.1.2.160.99.147", 0, 3},
    {"sharpness copy variant", 24, &door::get_current_sharpness, "0.1.2.160.99.147", 0, 3},
    {"sharpness send", 3, &door::get_current_sharpness, "0.1.161.160.12.104.147", 0, 3},
    {"background mode copy", 1, &door::get_current_background_dens_mode, "0.1.2.160.99.145.145", 0,
     0},
    {"background mode copy variant", 24, &door::get_current_background_dens_mode,
     "0.1.2.160.12.104.145.145", 0, 0},
    {"background mode box print", 6, &door::get_current_background_dens_mode,
     "0.1.207.160.12.104.145.145", 0, 0},
    {"background copy", 1, &door::get_current_background_dens, "0.1.2.160.99.145.146", 0, 0},
    {"background send", 3, &door::get_current_background_dens, "0.1.161.160.12.104.145.146", 0, 0},
    {"bleed through send", 3, &door::get_current_prevent_bleed_through_setting,
     "0.1.161.160.12.2997", 0, 0},
    {"bleed through fax", 4, &door::get_current_prevent_bleed_through_setting, "0.1.2.160.12.2997",
     0, 0},
    {"bleed through box print", 6, &door::get_current_prevent_bleed_through_setting,
     "0.1.2.160.12.2997", 0, 0},
    {"bleed through box store", 7, &door::get_current_prevent_bleed_through_setting,
     "0.1.214.160.12.2997", 0, 0},
    {"bleed through box", 5, &door::get_current_prevent_bleed_through_setting, "0.1.2.160.12.2997",
     0, 0},
    {"fax tx report", 4, &door::get_current_fax_tx_report_setting, "0.1.206.160.411", 0, 0},
    {"quiet mode box", 5, &door::get_current_quiet_mode_setting, "0.1.2.160.3796.3797", 0, 0},
    {"quiet mode fax", 4, &door::get_current_quiet_mode_setting, "0.1.206.160.3796.3797", 0, 0},
    {"quiet mode box print", 6, &door::get_current_quiet_mode_setting, "0.1.207.160.3796.3797", 0,
     0},
    {"blank skip send", 3, &door::get_current_blank_skip_setting, "0.1.161.160.12.3686.3687", 6, 0},
    {"mixed sizes box store", 7, &door::get_current_mixed_sized_originals, "0.1.214.160.12.23.24",
     6, 0},
    {"mixed sizes status", 9, &door::get_current_mixed_sized_originals, "0.1.2.160.12.23.24", 6, 0},
    {"contrast fax", 4, &door::get_current_contrast, "0.1.206.160.12.782", 0, 0},
    {"contrast box print", 6, &door::get_current_contrast, "0.1.2.160.12.782", 0, 0},
};

TEST_F(FuncSettings, GettersWithoutAnOpReadTheirKeyWithItsFallback) {
  for (const plain_getter& g : kPlainGetters) {
    SCOPED_TRACE(g.name);
    machine().set_int(g.key, 5);
    int value = 0;
    machine().clear_log();
    EXPECT_EQ(0, (for_function(g.function)->*g.get)(value));
    EXPECT_EQ(5, value);
    EXPECT_EQ(g.start == 6 ? head(g.key, 6) : g.key, last_key(verb::get));

    machine().remove_node(g.key);
    value = 99;
    EXPECT_NE(0, (for_function(g.function)->*g.get)(value));
    EXPECT_EQ(g.preset, value);
  }
}

TEST_F(FuncSettings, SystemDefaultDuplexLayoutLiesOutsideTheFunctionTrees) {
  door* d = for_function(9);
  EXPECT_EQ(0, d->set_system_default_duplex_layout_setting(4));
  EXPECT_EQ(4, machine().int_at("0.230.231.233.59.61"));
  int value = 0;
  EXPECT_EQ(0, d->get_system_default_duplex_layout_setting(value));
  EXPECT_EQ(4, value);
}

TEST_F(FuncSettings, ValueSetCachesReadTheirGroup) {
  struct cache {
    int (door::*fill)();
    const char* key;
  };
  const std::vector<cache> caches = {
      {&door::get_default_scan_valueset, "0.1.161.3.12"},
      {&door::get_current_scan_valueset, "0.1.161.160.12"},
      {&door::get_default_send_valueset, "0.1.161.3.185"},
      {&door::get_current_send_valueset, "0.1.161.160.185"},
      {&door::get_default_print_valueset, "0.1.161.3.46"},
      {&door::get_current_print_valueset, "0.1.161.160.46"},
  };
  for (const cache& c : caches) {
    SCOPED_TRACE(c.key);
    machine().set_int(std::string(c.key) + ".1", 1);
    machine().clear_log();
    EXPECT_EQ(0, (for_function(3)->*c.fill)());
    EXPECT_EQ(c.key, last_key(verb::get));
    machine().remove_node(c.key);
    EXPECT_NE(0, (for_function(3)->*c.fill)());
  }
}

}  // namespace
}  // namespace orvanta::test
