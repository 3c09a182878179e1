// Handler base navigation and helpers: the event helpers, the ways back, the remembered return,
// the hold on sleep and automatic reset, the login reset key and the function change, driven
// through the proxy with the host page stack.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "contents_probe.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"
#include "support/trace_expect.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta {
namespace {

using namespace test;

// Hears the events it is subscribed to and keeps them in order.
class listener : public dvu_pnl_evd_event_handler {
 public:
  struct heard {
    int id;
    int init_type;
    int priority;
  };
  int dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) override {
    events.push_back({event.dvc_pnl_evh_get_id(), event.dvc_pnl_evh_get_init_type(),
                      event.dvc_pnl_evh_get_priority()});
    return 1;
  }
  void subscribe(int id) {
    ASSERT_EQ(
        dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_add_handler(id, this),
        0);
  }
  std::vector<int> ids() const {
    std::vector<int> out;
    for (const heard& h : events)
      out.push_back(h.id);
    return out;
  }
  std::vector<heard> events;
};

std::vector<int> open_ids(int func = kFunc) {
  std::vector<int> out;
  for (const host::page_record& p : host::pages_of(func))
    out.push_back(p.contents_id);
  return out;
}

void set_func_int(const std::string& key, long value, int func = kFunc) {
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm(key, value, func), 0);
}

int get_func_int(const std::string& key, int func = kFunc) {
  int value = -1;
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_get_int_from_dm(key, value, func), 0);
  return value;
}

class NavigationTest : public ProbeFixture {
 protected:
  // Runs `action` on the top page `id` while it handles a key, so that closes wait for the end
  // of the dispatch as they do on the panel.
  int in_dispatch(int id, const std::function<int(probe&)>& action, int key = 40) {
    int answer = -100;
    hooks_by_id()[id].key = [&answer, action](probe& self, dvc_pnl_evh_panel_event&) {
      answer = action(self);
      return 1;
    };
    press(key);
    hooks_by_id()[id].key = nullptr;
    return answer;
  }

  void TearDown() override {
    // Pages release their holds as they go; the statics must not outlive the test.
    ProbeFixture::TearDown();
    dvc_pnl_ceh_contents_hdl_base::reset_statics();
  }

  listener heard_;
};

// ---------------------------------------------------------------- event helpers

TEST_F(NavigationTest, BareEventReachesSubscribedHandlerWhenPumped) {
  heard_.subscribe(1234);
  dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(1234, 2);
  EXPECT_TRUE(heard_.events.empty());
  EXPECT_EQ(host::pump(), 1u);
  ASSERT_EQ(heard_.events.size(), 1u);
  EXPECT_EQ(heard_.events[0].id, 1234);
  EXPECT_EQ(heard_.events[0].init_type, 2);
  EXPECT_EQ(heard_.events[0].priority, 0);
}

TEST_F(NavigationTest, KeyEventIsHandedToTheKeyController) {
  dvc_pnl_ceh_contents_hdl_throw_key_event(69);
  EXPECT_EQ(host::devices().panel_commands, std::vector<int>{69});
  EXPECT_TRUE(traced("throw key event = 69")) << trace_dump();
  EXPECT_TRUE(traced("throw key event = 69 success.")) << trace_dump();
}

TEST_F(NavigationTest, KeyEventRefusedByTheControllerIsNotRecorded) {
  host::devices().refuse_key = true;
  dvc_pnl_ceh_contents_hdl_throw_key_event(10);
  EXPECT_TRUE(host::devices().panel_commands.empty());
  // The controller's answer isn't looked at: the throw runs to its end.
  EXPECT_TRUE(traced("throw key event = 10")) << trace_dump();
  EXPECT_TRUE(traced("throw key event = 10 success.")) << trace_dump();
  host::devices().refuse_key = false;
  dvc_pnl_ceh_contents_hdl_throw_key_event(94);
  EXPECT_EQ(host::devices().panel_commands, std::vector<int>{94});
}

// ---------------------------------------------------------------- going back

TEST_F(NavigationTest, BackToContentsClosesAboveTheTargetAtTheEndOfTheDispatch) {
  open(kA);
  open(kB);
  open(kC);
  open(kD);
  const std::size_t log_before = host::page_stack_log().size();
  std::size_t log_in_dispatch = 0;
  const int answer = in_dispatch(kD, [&](probe& self) {
    const int ret = self.back_to_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kB));
    log_in_dispatch = host::page_stack_log().size();
    return ret;
  });
  EXPECT_EQ(answer, 0);
  EXPECT_EQ(log_in_dispatch, log_before);  // nothing closed while the key was handled
  EXPECT_EQ(log_since(log_before),
            (std::vector<std::string>{"close 0 1 2 102", "close 0 1 2 103"}));
  EXPECT_EQ(open_ids(), (std::vector<int>{kA, kB}));
}

TEST_F(NavigationTest, BackToContentsNotOpenFailsAndClosesNothing) {
  open(kA);
  probe* b = open(kB);
  const std::size_t log_before = host::page_stack_log().size();
  EXPECT_EQ(b->back_to_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kD)), 3);
  EXPECT_EQ(host::page_stack_log().size(), log_before);
  EXPECT_TRUE(traced("ret = -1.")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_ceh_back_to_contents ret_code = 3")) << trace_dump();
}

TEST_F(NavigationTest, BackToGrandfatherClosesParentAndSelf) {
  open(kA);
  open(kB);
  open(kC);
  EXPECT_EQ(in_dispatch(kC, [](probe& self) { return self.back_to_grandfather(); }), 0);
  EXPECT_EQ(open_ids(), std::vector<int>{kA});
}

TEST_F(NavigationTest, BackToGrandfatherWithoutOneDoesNothing) {
  probe* a = open(kA);
  probe* b = open(kB);
  const std::size_t log_before = host::page_stack_log().size();
  EXPECT_EQ(a->back_to_grandfather(), 3);
  EXPECT_TRUE(traced("parent is NULL")) << trace_dump();
  EXPECT_EQ(b->back_to_grandfather(), 3);
  EXPECT_TRUE(traced("grandfather is NULL")) << trace_dump();
  EXPECT_EQ(host::page_stack_log().size(), log_before);
}

TEST_F(NavigationTest, BackToTopGoesToTheBasePageOfTheFunction) {
  open(CID_01_01_N1);
  open(kA);
  open(kB);
  EXPECT_EQ(in_dispatch(kB, [](probe& self) { return self.back_to_top(); }), 0);
  EXPECT_EQ(open_ids(), std::vector<int>{CID_01_01_N1});
  EXPECT_FALSE(traced("DVC_PNL_CEH_ERR_NONE != ret_code"));
}

TEST_F(NavigationTest, BackToTopClearsTheFunctionWhenTheBasePageIsNotOpen) {
  open(kA);
  probe* b = open(kB);
  const std::size_t log_before = host::page_stack_log().size();
  EXPECT_EQ(b->back_to_top(), 0);  // b is gone after this
  const std::vector<std::string> log = log_since(log_before);
  ASSERT_FALSE(log.empty());
  EXPECT_EQ(log.front(), "clear 0 1 2");
  EXPECT_TRUE(open_ids().empty());
  EXPECT_TRUE(traced("DVC_PNL_CEH_ERR_NONE != ret_code")) << trace_dump();
}

TEST_F(NavigationTest, BackToTopFromAKeyClearsOnlyAtTheEndOfTheDispatch) {
  open(kA);
  open(kB);
  std::vector<int> open_in_handler;
  EXPECT_EQ(in_dispatch(kB,
                        [&open_in_handler](probe& self) {
                          const int ret = self.back_to_top();
                          // The handler still runs on a live page.
                          open_in_handler = open_ids();
                          self.buzzer(1);
                          return ret;
                        }),
            0);
  EXPECT_EQ(open_in_handler, (std::vector<int>{kA, kB}));
  EXPECT_TRUE(open_ids().empty());
  EXPECT_EQ(journal_with("destroy"), (std::vector<std::string>{"destroy 101", "destroy 100"}));
}

TEST_F(NavigationTest, BaseScreenOfSendFollowsThePageScopeValue) {
  ASSERT_EQ(
      dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(3), 0);
  probe* p = open(kA, 3);
  ASSERT_NE(p, nullptr);
  DVC_PNL_CEH_CONTENTS_ID base = CID_NONE;
  EXPECT_EQ(p->get_base_content_id(base), 0);
  EXPECT_EQ(base, CID_01_02_01_N6);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(DVC_PNL_PDM_DVC_CEH_INTEGER, 3,
                                                                 CID_02_45_N2, 117),
            0);
  EXPECT_EQ(p->get_base_content_id(base), 0);
  EXPECT_EQ(base, CID_02_45_N2);
}

TEST_F(NavigationTest, BaseScreenOfAFunctionWithoutOneIsABadArgument) {
  ASSERT_EQ(
      dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(2), 0);
  probe* p = open(kA, 2);
  ASSERT_NE(p, nullptr);
  DVC_PNL_CEH_CONTENTS_ID base = CID_TOP;
  EXPECT_EQ(p->get_base_content_id(base), 10);
  EXPECT_EQ(base, CID_NONE);
}

TEST_F(NavigationTest, BackToPanelDefaultScreenThrowsByOperationSource) {
  probe* a = open(kA);
  set_app_int(DVC_PNL_PDM_CEH_OPERATION_SOURCE, 1);
  EXPECT_EQ(a->back_to_panel_default_screen(), 0);
  set_app_int(DVC_PNL_PDM_CEH_OPERATION_SOURCE, 2);
  EXPECT_EQ(a->back_to_panel_default_screen(), 0);
  EXPECT_EQ(host::devices().panel_commands, (std::vector<int>{62, 146}));
}

// ---------------------------------------------------------------- remembered return

TEST_F(NavigationTest, StoredTopGoesBackToTheBasePage) {
  open(CID_01_01_N1);
  open(kA);
  open(kB);
  set_func_int(DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS, CID_TOP);
  EXPECT_EQ(in_dispatch(kB, [](probe& self) { return self.back_to_contents_from_dm(); }), 0);
  EXPECT_EQ(open_ids(), std::vector<int>{CID_01_01_N1});
}

TEST_F(NavigationTest, StoredParentClosesThisPage) {
  open(kA);
  open(kB);
  open(kC);
  set_func_int(DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS, CID_PARENT);
  EXPECT_EQ(in_dispatch(kC, [](probe& self) { return self.back_to_contents_from_dm(); }), 0);
  EXPECT_EQ(open_ids(), (std::vector<int>{kA, kB}));
}

TEST_F(NavigationTest, StoredIdGoesBackToThatPage) {
  open(kA);
  probe* b = open(kB);
  open(kC);
  open(kD);
  EXPECT_EQ(b->set_back_cid_to_dm(), 0);
  EXPECT_EQ(get_func_int(DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS), kB);
  EXPECT_EQ(in_dispatch(kD, [](probe& self) { return self.back_to_contents_from_dm(); }), 0);
  EXPECT_EQ(open_ids(), (std::vector<int>{kA, kB}));
}

TEST_F(NavigationTest, StoredNoneDoesNothing) {
  open(kA);
  open(kB);
  set_func_int(DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS, CID_NONE);
  const std::size_t log_before = host::page_stack_log().size();
  EXPECT_EQ(in_dispatch(kB, [](probe& self) { return self.back_to_contents_from_dm(); }), 0);
  EXPECT_EQ(host::page_stack_log().size(), log_before);
}

TEST_F(NavigationTest, SecondTripKeepsItsOwnRecord) {
  open(kA);
  open(CID_08_22_01_N1);
  probe* c = open(kC);
  ASSERT_NE(c, nullptr);
  set_func_int(DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS, kA);
  EXPECT_EQ(c->set_back_cid_to_dm(), 0);
  EXPECT_EQ(get_func_int(DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS_2), kC);
  EXPECT_EQ(get_func_int(DVC_PNL_PDM_CEH_MOVE_TO_CONTENTS), kA);
}

// ---------------------------------------------------------------- sleep and reset

TEST_F(NavigationTest, TwoHoldersStopTheResetTimerOnceAndStartItOnce) {
  heard_.subscribe(997);
  heard_.subscribe(996);
  probe* a = open(kA);
  probe* b = open(kB);
  a->dvc_pnl_ceh_disable_sleep_and_reset(1);
  b->dvc_pnl_ceh_disable_sleep_and_reset(1);
  a->dvc_pnl_ceh_disable_sleep_and_reset(1);
  host::pump();
  EXPECT_EQ(heard_.ids(), std::vector<int>{997});
  EXPECT_TRUE(traced("before throw event AUTO_RESET_TIMER_STOP")) << trace_dump();
  a->dvc_pnl_ceh_disable_sleep_and_reset(0);
  a->dvc_pnl_ceh_disable_sleep_and_reset(0);
  host::pump();
  EXPECT_EQ(heard_.ids(), std::vector<int>{997});
  b->dvc_pnl_ceh_disable_sleep_and_reset(0);
  host::pump();
  EXPECT_EQ(heard_.ids(), (std::vector<int>{997, 996}));
  EXPECT_TRUE(traced("before throw event AUTO_RESET_TIMER_START")) << trace_dump();
  for (const listener::heard& h : heard_.events)
    EXPECT_EQ(h.init_type, 1);
}

TEST_F(NavigationTest, ClosingAHolderStartsTheResetTimer) {
  heard_.subscribe(997);
  heard_.subscribe(996);
  open(kA);
  open(kB);
  in_dispatch(kB, [](probe& self) {
    self.dvc_pnl_ceh_disable_sleep_and_reset(1);
    return self.back_to_parent();
  });
  host::pump();
  EXPECT_EQ(open_ids(), std::vector<int>{kA});
  EXPECT_EQ(heard_.ids(), (std::vector<int>{997, 996}));
}

// ---------------------------------------------------------------- login reset key

TEST_F(NavigationTest, LoginResetKeyClearsTheUserAndGoesToTheGrandfather) {
  open(kA);
  open(kB);
  open(kC);
  set_func_int(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 1);
  const std::vector<unsigned char> entered(898, 0xab);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application(
                DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO, entered.data(), 898),
            0);
  host::devices().buzzer.clear();
  int answer = -1;
  hooks_by_id()[kC].key = [&answer](probe& self, dvc_pnl_evh_panel_event& event) {
    answer = self.dvc_pnl_ceh_login_reset_key_process(event);
    return 1;
  };
  press(43);
  EXPECT_EQ(answer, 1);
  std::vector<unsigned char> stored(898, 0xff);
  ASSERT_EQ(dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_application(
                DVC_PNL_PDM_DVC_CEH_USER_AUTHENTIC_INFO, stored.data(), 898),
            0);
  EXPECT_EQ(stored, std::vector<unsigned char>(898, 0));
  EXPECT_EQ(open_ids(), std::vector<int>{kA});
  EXPECT_EQ(host::devices().buzzer, std::vector<int>{3});
}

TEST_F(NavigationTest, LoginResetKeyIgnoresOtherKeysAndClosedLoginWindow) {
  open(kA);
  open(kB);
  open(kC);
  set_func_int(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 1);
  int answer = -1;
  hooks_by_id()[kC].key = [&answer](probe& self, dvc_pnl_evh_panel_event& event) {
    answer = self.dvc_pnl_ceh_login_reset_key_process(event);
    return 1;
  };
  press(40);
  EXPECT_EQ(answer, 0);
  set_func_int(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, 0);
  answer = -1;
  press(43);
  EXPECT_EQ(answer, 0);
  EXPECT_EQ(open_ids(), (std::vector<int>{kA, kB, kC}));
}

// ---------------------------------------------------------------- functions

TEST_F(NavigationTest, ChangeFunctionPostsTheChangeEvenWhenRefused) {
  heard_.subscribe(886);
  probe* a = open(kA);
  const std::size_t log_before = host::page_stack_log().size();
  EXPECT_EQ(a->change_function(3), 0);
  host::pump();
  EXPECT_EQ(heard_.ids(), std::vector<int>{886});
  EXPECT_EQ(a->change_function(1000), 3);
  EXPECT_TRUE(traced("dvc_pnl_psm_change_function ret_code = 3")) << trace_dump();
  host::pump();
  EXPECT_EQ(heard_.ids(), (std::vector<int>{886, 886}));
  EXPECT_EQ(log_since(log_before), (std::vector<std::string>{"change 3", "change 1000"}));
}

// ---------------------------------------------------------------- queries and helpers

TEST_F(NavigationTest, ParentsByLevelAndBySearch) {
  probe* a = open(kA);
  open(kB);
  probe* c = open(kC);
  EXPECT_EQ(c->get_n_level_parent_contents_id(-1), -1);
  EXPECT_EQ(c->get_n_level_parent_contents_id(0), kC);
  EXPECT_EQ(c->get_n_level_parent_contents_id(2), kA);
  EXPECT_EQ(c->get_n_level_parent_contents_id(3), 0);
  EXPECT_EQ(c->dvc_pnl_ceh_search_parent_contents(kA), a);
  EXPECT_EQ(c->dvc_pnl_ceh_search_parent_contents(kD), nullptr);
  EXPECT_EQ(c->dvc_pnl_ceh_get_activate_on_close(), 1);
  EXPECT_EQ(a->dvc_pnl_ceh_get_activate_on_close(), 0);
}

TEST_F(NavigationTest, OpenerAndOpenAfterClose) {
  probe* a = open(kA);
  EXPECT_EQ(a->open_child_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kB)), 0);
  ASSERT_NE(page(kB), nullptr);
  EXPECT_EQ(page(kB)->dvc_pnl_ceh_get_opener(), kA);
  EXPECT_EQ(a->dvc_pnl_ceh_get_opener(), CID_NONE);
  EXPECT_EQ(a->open_rop_lock_screen(CID_NONE), 10);
  in_dispatch(kB, [](probe& self) {
    self.dvc_pnl_ceh_set_open_after_close(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kC));
    EXPECT_EQ(dvc_pnl_ceh_event_proxy::redraw_pausing_, 1);
    return self.back_to_parent();
  });
  EXPECT_EQ(dvc_pnl_ceh_event_proxy::redraw_pausing_, 0);
  EXPECT_EQ(open_ids(), (std::vector<int>{kA, kC}));
  EXPECT_EQ(page(kC)->dvc_pnl_ceh_get_opener(), kB);
}

TEST_F(NavigationTest, KeyHelpersStoreAndBeep) {
  probe* a = open(kA);
  dvc_pnl_evh_panel_event other(40);
  dvc_pnl_evh_panel_event fail(41);
  EXPECT_EQ(a->dvc_pnl_ceh_set_pdm_key_fail_buzzer_flag_value_to_on(other), 0);
  EXPECT_EQ(a->dvc_pnl_ceh_set_pdm_key_fail_buzzer_flag_value_to_on(fail), 1);
  EXPECT_EQ(get_app_int(DVC_PNL_PDM_KEY_FAIL_BUZZER_FLAG), 1);
  EXPECT_EQ(a->set_application_scope_pdm(DVC_PNL_PDM_KEY_FAIL_BUZZER_FLAG, 0), 1);
  EXPECT_EQ(get_app_int(DVC_PNL_PDM_KEY_FAIL_BUZZER_FLAG), 0);

  host::devices().buzzer.clear();
  a->dvc_pnl_ceh_buzzer_start_key_and_reset_key_in_maintenance_mode();
  EXPECT_TRUE(host::devices().buzzer.empty());
  ASSERT_EQ(
      dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(11),
      0);
  probe* m = open(kA, 11);
  ASSERT_NE(m, nullptr);
  m->dvc_pnl_ceh_buzzer_start_key_and_reset_key_in_maintenance_mode();
  EXPECT_EQ(host::devices().buzzer, std::vector<int>{2});
}

}  // namespace
}  // namespace orvanta
