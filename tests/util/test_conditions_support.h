// Test support for the condition queries: a fresh host and machine per test, the machine's calls,
// request words of a command, and a user information service.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "orvanta/host/panel_host.h"
#include "orvanta/machine/simulated_machine.h"
#include "support/machine_test.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"

namespace orvanta::test {

using Calls = std::vector<std::string>;
using machine::call_record;
using machine::service_call;
using machine::simulated_machine;
using machine::verb;

class Conditions : public MachineTest {
 protected:
  // "get 0.230.343.347", "invoke 0.874.844", ... in call order.
  static Calls calls() {
    Calls out;
    for (const call_record& c : machine().log()) {
      const char* v = c.kind == verb::get ? "get " : c.kind == verb::set ? "set " : "invoke ";
      out.push_back(v + c.key);
    }
    return out;
  }

  // Word `node` of the request of the `n`-th invoke of `command` (counted from 0).
  static long request_word(const std::string& command, unsigned long node, int n = 0) {
    for (const call_record& c : machine().log()) {
      if (c.kind != verb::invoke || c.key != command || n-- > 0)
        continue;
      long v = -12345;
      EXPECT_EQ(0, c.request.dvc_pnl_cmm_get_int(key_of(command + "." + std::to_string(node)), v))
          << command << "." << node;
      return v;
    }
    ADD_FAILURE() << "no invoke of " << command;
    return -12345;
  }

  // Answers the next invoke of `command` with RESULT `result` and the given fields below it.
  static void script(const std::string& command, long result,
                     const std::map<unsigned long, leaf>& fields = {}) {
    std::vector<entry> entries = {{command + ".1484", result}};
    for (const auto& [node, value] : fields)
      entries.push_back({command + "." + std::to_string(node), value});
    machine().script_next_response(command, make_valueset(entries));
  }

  // Serves the user information command from `users` (user id -> fields); an unknown user gets
  // RESULT 1.
  static void serve_users(std::map<long, std::map<unsigned long, leaf>> users) {
    machine().register_service("0.874.844", [users](simulated_machine&, service_call& call) {
      long id = -12345;
      call.request.dvc_pnl_cmm_get_int(key_of("0.874.844.1012"), id);
      const auto user = users.find(id);
      std::vector<entry> entries = {{"0.874.844.1484", user == users.end() ? 1L : 0L}};
      if (user != users.end()) {
        for (const auto& [node, value] : user->second)
          entries.push_back({"0.874.844." + std::to_string(node), value});
      }
      call.response = make_valueset(entries);
      return 0;
    });
  }

  // Login state in the data manager.
  static void login(int management, long id, int function_login = 0) {
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_MODE,
                                                          management);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_ID,
                                                          static_cast<int>(id));
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_FUNCTION_LOGIN_SETTING,
                                                          function_login);
  }
};

}  // namespace orvanta::test
