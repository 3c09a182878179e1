// Scenario files run end to end: every expectation against a scripted screen, input windows,
// malformed lines, includes, frames, and the report of `panelsim script`.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "orvanta/host/trace_sink.h"
#include "orvanta/platform/dvc_pnl_cmm_command_mediator.h"
#include "orvanta/platform/dvc_pnl_evh_panel_event.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/dvu_pnl_dec_controllers.h"
#include "orvanta/sim/scenario.h"
#include "scripted_screen.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

dvc_pnl_cmm_key key_of(std::initializer_list<unsigned long> nodes) {
  dvc_pnl_cmm_key k;
  for (unsigned long n : nodes)
    k.dvc_pnl_cmm_add_key(n);
  return k;
}

// Screen 100: its load fills a list, a text and a hidden icon; Enter invokes two commands and
// keeps what they answered, sounds, lights, locks the keys, throws a command and starts a timer.
void script_screen_100() {
  scripted_screen::hooks()[kScriptedFirst].load = [](scripted_screen& s) {
    dvu_pnl_gcp_components* gui = s.dvc_pnl_ceh_get_gui_components();
    auto* list = static_cast<dvu_pnl_gcp_list*>(
        host::add_part(gui, 64, std::make_unique<dvu_pnl_gcp_list>()));
    dvu_pnl_gcp_list_row row;
    row.dvu_pnl_gcp_add_text(0, 10, "first");
    list->dvu_pnl_gcp_add_row(row);
    row.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ROW_STAR, 1);
    list->dvu_pnl_gcp_add_row(row);
    auto text = std::make_unique<dvu_pnl_gcp_text>();
    text->dvu_pnl_gcp_set_str_val(0, "Hello");
    text->dvu_pnl_gcp_set_state(0x30);
    host::add_part(gui, 30, std::move(text));
    auto icon = std::make_unique<dvu_pnl_gcp_icon>();
    icon->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, 4);
    icon->dvu_pnl_gcp_set_visible(false);
    host::add_part(gui, 19, std::move(icon));
  };
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen& s, int key) {
    if (key != 40)
      return 0;
    dvc_pnl_cmm_command_mediator& m = dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance();
    dvc_pnl_cmm_valueset request;
    request.dvc_pnl_cmm_set_int(key_of({0, 938, 959, 1476}), 3L);
    dvc_pnl_cmm_valueset response;
    m.dvc_pnl_cmm_invoke(key_of({0, 938, 959}), request, response);
    dvc_pnl_cmm_valueset body, row;
    long number = -1;
    if (response.dvc_pnl_cmm_get_valueset(key_of({0, 938, 959, 1501}), body) == 0 &&
        body.dvc_pnl_cmm_get_valueset(key_of({0, 938, 959, 1501, 0}), row) == 0)
      row.dvc_pnl_cmm_get_int(key_of({0, 938, 959, 1501, 0, 1365}), number);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_ID,
                                                          static_cast<int>(number));
    dvc_pnl_cmm_valueset empty;
    const int ret = m.dvc_pnl_cmm_invoke(key_of({0, 1, 1}), empty, response);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_MODE, ret);

    s.dvc_pnl_ceh_buzzer(2);
    s.dvc_pnl_ceh_set_led(1, 8);
    dvc_pnl_evh_panel_event lock(1044);
    dvc_pnl_cmm_valueset word;
    word.dvc_pnl_cmm_set_int(key_of({0, 2883, 2884}), static_cast<long>(0x80001fffUL));
    dvc_pnl_cmm_valueset source;
    source.dvc_pnl_cmm_set_valueset(key_of({0, 2883}), word);
    lock.dvc_pnl_evh_set_event_source_valueset(source);
    dvc_pnl_evh_event_handler::dvc_pnl_evh_instance()->dvc_pnl_evm_notify_panel_event(lock);
    dvu_pnl_dec_key_controller::dvu_pnl_dec_get_instance()->dvu_pnl_dec_throw_key_event(62);
    host::trace_sink::instance().add(8706, 258, 2, "1:f.cpp[1]: <<on_key()>> scripted enter");
    s.set_timer(5, 200);
    // The selection moves to the second row, so the frame changes.
    dvu_pnl_gcp_get_gui_parts_by_id(s.dvc_pnl_ceh_get_gui_components(), 64)
        ->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, 1);
    s.draw();
    return 1;
  };
}

class ScenarioRunner : public SimFixture {
 protected:
  void SetUp() override {
    SimFixture::SetUp();
    dir = fs::temp_directory_path() /
          ("orvanta_scn_" +
           std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(dir);
    fs::create_directories(dir);
    script_screen_100();
  }
  void TearDown() override {
    fs::remove_all(dir);
    SimFixture::TearDown();
  }

  std::string write(const std::string& name, const std::string& text) {
    const fs::path path = dir / name;
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
    return path.string();
  }

  sim::file_outcome run(const std::string& name, const std::string& text,
                        sim::script_options options = {}) {
    const std::string path = write(name, text);
    out.str("");
    return sim::run_scenario_file(*rt, path, options, out);
  }

  fs::path dir;
  std::ostringstream out;
};

const char* const kPreamble =
    "reply 0.938.959 1484=0 1592=1 1501.0.1365=7\n"
    "machine fail invoke 0.1.1 9\n"
    "function 1\n"
    "open 100\n"
    "key enter\n";

struct expectation_case {
  const char* line;
  const char* found;  // nullptr: the line holds
};

class Expectations : public ScenarioRunner,
                     public ::testing::WithParamInterface<expectation_case> {};

TEST_P(Expectations, HoldOrReportWhatWasFound) {
  const expectation_case& c = GetParam();
  const auto outcome = run("e.scn", std::string(kPreamble) + c.line + "\n");
  if (c.found == nullptr) {
    EXPECT_TRUE(outcome.passed) << outcome.report;
  } else {
    EXPECT_FALSE(outcome.passed);
    EXPECT_EQ(outcome.reason, c.found) << outcome.report;
  }
}

INSTANTIATE_TEST_SUITE_P(
    AgainstAScriptedScreen, Expectations,
    ::testing::Values(
        expectation_case{"expect invoked 0.938.959 1476=3", nullptr},
        expectation_case{"expect invoked 0.938.959 1476=4",
                         "0.938.959 was invoked, but its request has 0.938.959.1476 = 3"},
        expectation_case{"expect invoked 0.938.959 1477=1",
                         "0.938.959 was invoked, but its request has no 0.938.959.1477"},
        expectation_case{"expect invoked 0.938.940", "invoked 0.938.959 0.1.1"},
        expectation_case{"expect not-invoked 0.938.940", nullptr},
        expectation_case{"expect not-invoked 0.1.1", "0.1.1 was invoked"},
        expectation_case{"expect dm app DVC_PNL_PDM_AUTHENTICATION_ID = 7", nullptr},
        expectation_case{"expect dm app DVC_PNL_PDM_AUTHENTICATION_MODE = 9", nullptr},
        expectation_case{"expect dm app DVC_PNL_PDM_AUTHENTICATION_MODE = missing",
                         "DVC_PNL_PDM_AUTHENTICATION_MODE holds 9"},
        expectation_case{"expect dm app DVC_PNL_PDM_FAX = 1", "DVC_PNL_PDM_FAX is missing"},
        expectation_case{"expect buzzer 2", nullptr},
        expectation_case{"expect buzzer none", "played 2"},
        expectation_case{"expect led 8 1", nullptr}, expectation_case{"expect led 9 0", nullptr},
        expectation_case{"expect led 8 0", "LED 8 is 1"},
        expectation_case{"expect lockword 0x80001fff", nullptr},
        expectation_case{"expect lockword none", "sent 0x80001fff"},
        expectation_case{"expect thrown 62", nullptr},
        expectation_case{"expect thrown 75", "thrown 62"},
        expectation_case{"expect posted 1044", nullptr},
        expectation_case{"expect posted 997", "posted 1044"},
        expectation_case{"expect opened 100", "opened nothing"},
        expectation_case{"expect rows 2", nullptr},
        expectation_case{"expect rows 3", "the list has 2 rows"},
        expectation_case{"expect row 1 attr 7 = 1", nullptr},
        expectation_case{"expect row 0 attr 6 = 1", "row 0 has no attribute 6"},
        expectation_case{"expect row 2 attr 6 = 1", "the list has 2 rows"},
        expectation_case{"expect part 30 state 0x10", nullptr},
        expectation_case{"expect part 30 state 0x40", "part 30 state is 0x30"},
        expectation_case{"expect part 30 attr 0 = \"Hello\"", nullptr},
        expectation_case{"expect part 30 attr 0 = \"Hi\"",
                         "part 30 string attribute 0 is \"Hello\""},
        expectation_case{"expect part 19 hidden", nullptr},
        expectation_case{"expect part 19 visible", "part 19 is hidden"},
        expectation_case{"expect part 99 visible", "CID_02_36_01_N8 has no part 99"},
        expectation_case{"expect text \"Hell\"", nullptr},
        expectation_case{"expect text \"first\"", nullptr},
        expectation_case{"expect no-text \"Hell\"", "the texts are \"Hello\" \"first\" \"first\""},
        expectation_case{"expect timer 5 = 200", nullptr},
        expectation_case{"expect timer 5 = 100", "timer 5 runs every 200 ms"},
        expectation_case{"expect timer 6 none", nullptr},
        expectation_case{"expect timer 6 = 100", "timer 6 does not run"},
        expectation_case{"expect trace \"scripted enter\"", nullptr},
        expectation_case{"expect trace \"scripted enter\"\nexpect trace \"scripted enter\"",
                         "no trace message in the window contains it (0 messages)"},
        expectation_case{"expect lcd changed", nullptr},
        expectation_case{"expect lcd unchanged", "1 frames reached the LCD"},
        expectation_case{"expect page 100 group 0 state 2 order 1", nullptr},
        expectation_case{"expect page 100 group 0 state 2 order 2",
                         "placed with group 0 state 2 order 1"},
        expectation_case{"expect node 0.555.2141.1890 = 1", nullptr},
        expectation_case{"expect node 0.555.2141.1890 = 2", "node 0.555.2141.1890 holds 1"},
        expectation_case{"expect node 0.555.2141.1891 = 2", "node 0.555.2141.1891 does not exist"},
        expectation_case{"expect stack 100", nullptr},
        expectation_case{"expect stack", "the stack is CID_02_36_01_N8"},
        expectation_case{"expect top 101", "the top page is CID_02_36_01_N8 (100)"},
        expectation_case{"expect open 100", nullptr},
        expectation_case{"expect closed 100", "it is open"}));

TEST_F(ScenarioRunner, WindowsFollowInputsAndExpectationsOfTheirKind) {
  const auto outcome = run("w.scn",
                           "function 1\n"
                           "open 100\n"
                           "key enter\n"
                           "key enter\n"
                           "expect buzzer 2 2\n"
                           "expect lockword 0x80001fff 0x80001fff\n"
                           "key 45\n"
                           "expect buzzer none\n"
                           "expect lcd unchanged\n"
                           "expect invoked 0.938.959\n");
  EXPECT_EQ(outcome.report, "FAIL " + (dir / "w.scn").string() +
                                ":10: expect invoked 0.938.959 -- invoked nothing");
}

TEST_F(ScenarioRunner, MalformedLinesFailTheirFileWithAClearMessage) {
  struct row {
    const char* line;
    const char* message;
  };
  const row rows[] = {
      {"frobnicate", "unknown command frobnicate"},
      {"key", "usage: key <K> [remote]"},
      {"key nosuch", "unknown key nosuch"},
      {"key enter twice", "usage: key <K> [remote]"},
      {"open CID_NOPE", "unknown contents id CID_NOPE"},
      {"wait -5", "time cannot go back"},
      {"wait soon", "bad time soon"},
      {"wait 999999999999", "one wait lets at most a day (86400000 ms) pass"},
      {"key 99999999999", "unknown key 99999999999"},
      {"machine fail invoke 0.1 99999999999", "code out of range: 99999999999"},
      {"machine 0.1 =", "usage: machine <path> = <value>"},
      {"machine 0.230 = 1", "node 0.230 has children"},
      {"machine 1.2 = 1", "a path starts at 0: 1.2"},
      {"machine fail poke 0.1", "unknown verb poke (get, set or invoke)"},
      {"reply 0.938.959 1484", "expected <node>=<value>, found 1484"},
      {"dm app NO_SUCH_KEY = 1", "unknown data manager key NO_SUCH_KEY"},
      {"dm sideways DVC_PNL_PDM_FAX = 1",
       "usage: dm app|func <F>|page <F> <ID>|cross <ID> <KEY> (= <value> | set <path>=<value> ... "
       "| "
       "remove)"},
      {"dm app DVC_PNL_PDM_FAX set", "usage: dm app|func"},
      {"close CID_02_44_N1", "no page CID_02_44_N1 is open"},
      {"machine conflict 0.1.2.3.99 1 1.2.160 1",
       "\"0.1.2.3.99\" is not a current job setting of a function"},
      {"machine conflict 0.1.2.160.99 1 1.2.160", "usage: machine conflict"},
      {"event 123456", "the panel is not subscribed to event 123456"},
      {"event 886 0.1=\"open", "unterminated quote"},
      {"keyboard \"ab\"", "a quoted keyboard key is one character"},
      {"gui notify 3", "no page is open"},
      {"expect frobs", "unknown expectation frobs"},
      {"expect top CID_01_01_N1", "no page is open"},
      {"expect text unquoted", "expected a quoted string, found unquoted"},
      {"expect timer 5", "usage: expect timer <id> = <ms> | expect timer <id> none"},
      {"include missing.scn", "cannot open "},
  };
  for (const row& r : rows) {
    SCOPED_TRACE(r.line);
    const auto outcome = run("m.scn", std::string("# a line first\n") + r.line + "\n");
    EXPECT_FALSE(outcome.passed);
    EXPECT_EQ(outcome.reason.rfind(r.message, 0), 0u) << outcome.reason;
    EXPECT_EQ(outcome.report.rfind("FAIL " + (dir / "m.scn").string() + ":2: " + r.line, 0), 0u)
        << outcome.report;
  }
}

TEST_F(ScenarioRunner, TheRestOfAFailedFileIsSkipped) {
  const auto outcome = run("s.scn",
                           "function 1\n"
                           "expect top 100\n"
                           "open 100\n");
  EXPECT_FALSE(outcome.passed);
  EXPECT_FALSE(rt->top().has_value()) << "the open after the failure did not run";
}

TEST_F(ScenarioRunner, IncludesRunRelativeToTheirFileAndReportTheirOwnLines) {
  write("parts/open.scn", "function 1\nopen 100\n");
  write("parts/bad.scn", "# fails\nexpect top 101\n");
  EXPECT_TRUE(run("ok.scn", "include parts/open.scn\nexpect top 100\n").passed);
  const auto outcome = run("bad.scn", "include parts/open.scn\ninclude parts/bad.scn\n");
  EXPECT_EQ(outcome.report, "FAIL " + (dir / "parts/bad.scn").string() +
                                ":2: expect top 101 -- the top page is CID_02_36_01_N8 (100)");
  EXPECT_FALSE(run("self.scn", "include self.scn\n").passed) << "endless includes stop";
  const auto directory = run("dir.scn", "include parts\n");
  EXPECT_EQ(directory.reason, "cannot open " + (dir / "parts").string());
}

TEST_F(ScenarioRunner, EachFileStartsFresh) {
  EXPECT_TRUE(run("a.scn", "machine 0.9.9 = 4\nfunction 3\nopen 100\nwait 100\n").passed);
  EXPECT_TRUE(run("b.scn",
                  "expect stack\n"
                  "expect node 0.555.2141.1890 = 1\n"
                  "expect buzzer none\n")
                  .passed);
  EXPECT_EQ(rt->now_ms(), 0u);
  EXPECT_EQ(rt->active_function(), 1);
}

TEST_F(ScenarioRunner, FramesAreComparedAndUpdatedOnRequest) {
  const std::string text = "function 1\nopen 100\nexpect frame f/screen.pbm\n";
  auto outcome = run("f.scn", text);
  EXPECT_FALSE(outcome.passed);
  EXPECT_EQ(outcome.reason.rfind("cannot open ", 0), 0u) << outcome.reason;
  sim::script_options update;
  update.update_frames = true;
  EXPECT_TRUE(run("f.scn", text, update).passed);
  EXPECT_TRUE(fs::exists(dir / "f/screen.pbm"));
  EXPECT_TRUE(run("f.scn", text).passed);
  const auto differing = run("g.scn", "function 1\nexpect frame f/screen.pbm\n");
  EXPECT_FALSE(differing.passed);
  EXPECT_NE(differing.reason.find(" pixels differ"), std::string::npos) << differing.reason;
  EXPECT_NE(out.str().find("screen.pbm differs: '+' dark only on the LCD"), std::string::npos)
      << out.str();
}

TEST_F(ScenarioRunner, VerboseRunsPrintTheirLinesAndTrace) {
  sim::script_options verbose;
  verbose.verbose = true;
  const auto outcome = run("v.scn", "function 1\nopen 100\nkey enter\nshow\n", verbose);
  EXPECT_TRUE(outcome.passed);
  const std::string printed = out.str();
  EXPECT_NE(printed.find("v.scn:3: key enter\n"), std::string::npos);
  EXPECT_NE(printed.find("  trace[2] scripted enter\n"), std::string::npos);
  EXPECT_NE(printed.find("30 text \"Hello\"\n"), std::string::npos) << "show lists the texts";
}

TEST_F(ScenarioRunner, ScriptReportsEachFileThenTheCountsAndWritesJUnit) {
  const std::string good = write("good.scn", "function 1\n");
  const std::string bad = write("bad.scn", "expect top \"<&>\"\n");
  const std::string missing = (dir / "missing.scn").string();
  const std::string junit = (dir / "report.xml").string();
  std::ostringstream printed;
  EXPECT_EQ(sim::run_scripts({good, bad, missing}, {}, junit, printed), 1);
  EXPECT_EQ(printed.str(), "PASS " + good + "\nFAIL " + bad +
                               ":1: expect top \"<&>\" -- unknown contents id \"<&>\"\nFAIL " +
                               missing + ":0:  -- cannot open " + missing +
                               "\n1 passed, 2 failed\n");
  std::string xml;
  ASSERT_EQ(sim::read_file(junit, xml), "");
  EXPECT_NE(xml.find("<testsuite name=\"panelsim\" tests=\"3\" failures=\"2\""), std::string::npos);
  EXPECT_NE(xml.find("name=\"" + good + "\""), std::string::npos);
  EXPECT_NE(xml.find("unknown contents id &quot;&lt;&amp;&gt;&quot;"), std::string::npos);
  std::ostringstream all_good;
  EXPECT_EQ(sim::run_scripts({good}, {}, "", all_good), 0);
}

}  // namespace
}  // namespace orvanta::test
