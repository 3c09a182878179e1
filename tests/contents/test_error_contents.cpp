// Error screens as a screen opens and closes them while it handles a machine event: the page on
// the alert layer, the buzzer and LED 8 from the error table, and the scan of the other functions.
#include <string>
#include <vector>

#include "contents_probe.h"
#include "orvanta/host/error_table.h"
#include "orvanta/host/panel_host.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_errors.h"

namespace orvanta::test {
namespace {

// Events the proxy answers, used here as "an error occurred" and "the error ended".
constexpr int kErrorEvent = 120;
constexpr int kErrorEndEvent = 132;

class ErrorContents : public ProbeFixture {
 protected:
  void SetUp() override {
    ProbeFixture::SetUp();
    host::set_error_table({
        {1765, 7, 2, 0, 1001, 0},
        {1766, 2, 3, 4, 1002, 0},
        {1767, 1, 2, 0, 1002, 0},  // a second row for 1002: the first from the top wins
    });
    open(kA);
    // The page answers the machine's events the way the screens do: by opening or closing the
    // error screen of its function with the event's data.
    hooks_by_id()[kA].panel = [this](probe&, dvc_pnl_evh_panel_event& e) {
      const dvc_pnl_cmm_valueset& data = e.source();
      if (e.dvc_pnl_evh_get_id() == kErrorEvent)
        result_ = dvc_pnl_ceh_contents_hdl_open_error_contents(function_, data);
      else
        result_ = dvc_pnl_ceh_contents_hdl_close_error_contents(function_, data);
      return 1;
    };
  }

  // Delivers the error event with error id `code` (or none) and answers the page's result.
  int occur(long code, int function = kFunc) {
    dvc_pnl_evh_panel_event event(kErrorEvent);
    if (code >= 0)
      event.dvc_pnl_evh_set_event_source_valueset(make_valueset({{"0.1080.1081", code}}, 2));
    return deliver(event, function);
  }
  int end(int function = kFunc) {
    return deliver(dvc_pnl_evh_panel_event(kErrorEndEvent), function);
  }

  int deliver(const dvc_pnl_evh_panel_event& event, int function) {
    function_ = function;
    result_ = -99;
    from_ = host::page_stack_log().size();
    host::devices().buzzer.clear();
    host::devices().led_calls.clear();
    host::deliver(event);
    return result_;
  }

  static void error_state(int function, int value) {
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_ERROR_STATE, value, function));
  }
  static std::vector<std::pair<int, int>> leds() {
    std::vector<std::pair<int, int>> out;
    for (const DVU_PNL_DEC_LED_STATUS& s : host::devices().led_calls)
      out.emplace_back(s.id, s.status);
    return out;
  }
  std::vector<std::string> log() const { return log_since(from_); }

  int function_ = kFunc;
  int result_ = -99;
  std::size_t from_ = 0;
};

TEST_F(ErrorContents, OpensTheTablesScreenWithItsBuzzerLedAndOpenFlag) {
  struct open_case {
    long code;
    int cid;
    int buzzer;
    int led;
    int flag;
  };
  const open_case cases[] = {
      {1001, 1765, 7, 2, 0},
      {1002, 1766, 2, 3, 4},
      {4242, 1, 0, 1, 0},  // no row: contents 1, silent, LED status 1
      {-1, 1, 0, 1, 0},    // no error id at all
  };
  for (const open_case& c : cases) {
    EXPECT_EQ(0, occur(c.code)) << c.code;
    EXPECT_EQ((std::vector<std::string>{"clear 0 1 1", "open 0 1 1 " + std::to_string(c.cid) + " " +
                                                           std::to_string(c.flag)}),
              log())
        << c.code;
    EXPECT_EQ(std::vector<int>{c.buzzer}, host::devices().buzzer) << c.code;
    EXPECT_EQ((std::vector<std::pair<int, int>>{{8, c.led}}), leds()) << c.code;
    ASSERT_NE(nullptr, page(c.cid)) << c.code;
    EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_open_error_contents() func:1 ."));
  }
}

TEST_F(ErrorContents, ANewErrorReplacesTheOneOnTheAlertLayer) {
  occur(1001);
  occur(1002);
  EXPECT_EQ(nullptr, page(1765)) << "the clear of the alert layer removed the first error";
  EXPECT_NE(nullptr, page(1766));
  EXPECT_NE(nullptr, page(kA)) << "pages of other layers stay";
}

TEST_F(ErrorContents, ErrorsOfAnotherFunctionOpenOnItsAlertLayer) {
  EXPECT_EQ(0, occur(1001, 3));
  EXPECT_EQ((std::vector<std::string>{"clear 0 3 1", "open 0 3 1 1765 0"}), log());
  EXPECT_NE(nullptr, page(1765, 3));
}

TEST_F(ErrorContents, ClosingLeavesLed8OnWhileAnyFunctionStillShowsAnError) {
  occur(1001);
  occur(1001, 3);
  // The error of function 1 ended; function 3 still shows its own.
  error_state(1, 0);
  error_state(3, 1);
  EXPECT_EQ(0, end(kFunc));
  EXPECT_EQ(std::vector<std::string>{"clear 0 1 1"}, log());
  EXPECT_EQ(std::vector<int>{0}, host::devices().buzzer);
  EXPECT_TRUE(leds().empty()) << "LED 8 stays on";
  EXPECT_EQ(nullptr, page(1765, 1));
  EXPECT_NE(nullptr, page(1765, 3));

  error_state(3, 0);
  EXPECT_EQ(0, end(3));
  EXPECT_EQ((std::vector<std::pair<int, int>>{{8, 0}}), leds());
  EXPECT_EQ(nullptr, page(1765, 3));
}

TEST_F(ErrorContents, TheScanCoversFunctionsOneTo35) {
  struct scan_case {
    int function;
    int state;
    bool led_off;
  };
  const scan_case cases[] = {
      {1, 1, false}, {35, 1, false}, {36, 1, true}, {0, 1, true}, {20, 2, true},
  };
  for (const scan_case& c : cases) {
    error_state(c.function, c.state);
    end();
    EXPECT_EQ(c.led_off, !leds().empty()) << c.function << " " << c.state;
    error_state(c.function, 0);
  }
}

TEST_F(ErrorContents, PageStackRefusalsGive3AndLeaveBuzzerAndLedAlone) {
  EXPECT_EQ(3, occur(1001, 99));
  EXPECT_TRUE(traced("dvc_pnl_psm_clear ret_code = 3"));
  EXPECT_TRUE(host::devices().buzzer.empty());
  EXPECT_EQ(3, end(99));
  EXPECT_TRUE(host::devices().buzzer.empty());
  EXPECT_TRUE(leds().empty());

  // The creator refuses the error screen: the open fails after the clear.
  host::set_contents_creator(
      [](int id, dvu_pnl_gcp_components* gui) -> dvc_pnl_ceh_contents_interface* {
        return id == 1765 ? nullptr : new probe(id, gui);
      });
  EXPECT_EQ(3, occur(1001));
  EXPECT_EQ((std::vector<std::string>{"clear 0 1 1", "open 0 1 1 1765 0"}), log());
  EXPECT_TRUE(traced("dvc_pnl_psm_open ret_code = 3"));
  EXPECT_TRUE(host::devices().buzzer.empty());
  EXPECT_TRUE(leds().empty());
}

TEST_F(ErrorContents, RefusingDevicesAreTracedAndTheScreenStillOpens) {
  host::devices().refuse_buzzer = true;
  host::devices().refuse_led = true;
  EXPECT_EQ(0, occur(1001));
  EXPECT_NE(nullptr, page(1765));
  EXPECT_TRUE(traced("dvu_pnl_dec_set_buzzer_control failed."));
  EXPECT_TRUE(traced("dvu_pnl_dec_set_led_status failed."));
}

TEST_F(ErrorContents, TheHostStartsWithSampleRowsAndAResetBringsThemBack) {
  host::set_error_table({});
  EXPECT_EQ(0, DVC_PNL_CMN_ERROR_TABLE_SIZE);
  host::reset();
  ASSERT_GT(DVC_PNL_CMN_ERROR_TABLE_SIZE, 0);
  EXPECT_EQ(host::error_table_rows().data(), dvc_pnl_cmn_error_table);
}

}  // namespace
}  // namespace orvanta::test
