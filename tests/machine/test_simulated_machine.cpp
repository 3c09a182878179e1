// Simulated machine: node tree reads and writes, the paged list service, services, fixed answers,
// scripts and failures, the call log, posted events, reset and model files.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/host/panel_host.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"
#include "support/machine_test.h"
#include "support/valueset_builder.h"

namespace orvanta::machine {
namespace {

using test::key_of;
using test::make_valueset;
using test::sets_equal;

constexpr const char* kUsers = "0.938.959";

dvc_pnl_cmm_value int_value(long v) {
  dvc_pnl_cmm_value value;
  EXPECT_EQ(value.dvc_pnl_cmm_set_int(v), 0);
  return value;
}

dvc_pnl_cmm_value binary_value(const test::bytes& bytes) {
  dvc_pnl_cmm_binary blob;
  EXPECT_EQ(blob.dvc_pnl_cmm_set_data(bytes.data(), bytes.size()), 0);
  dvc_pnl_cmm_value value;
  EXPECT_EQ(value.dvc_pnl_cmm_set_binary(blob), 0);
  return value;
}

dvc_pnl_cmm_value set_value(const dvc_pnl_cmm_valueset& set) {
  dvc_pnl_cmm_value value;
  EXPECT_EQ(value.dvc_pnl_cmm_set_valueset(set), 0);
  return value;
}

// The field values of one field of every row in a list response's body, in body order.
std::vector<long> body_ints(const dvc_pnl_cmm_valueset& response, const std::string& command,
                            unsigned long field) {
  dvc_pnl_cmm_valueset body;
  EXPECT_EQ(response.dvc_pnl_cmm_get_valueset(key_of(command + ".1501"), body), 0);
  std::vector<long> out;
  for (unsigned long i = 0; i < body.dvc_pnl_cmm_size(); ++i) {
    const std::string row = command + ".1501." + std::to_string(i);
    dvc_pnl_cmm_valueset element;
    long v = -1;
    EXPECT_EQ(body.dvc_pnl_cmm_get_valueset(key_of(row), element), 0) << row;
    EXPECT_EQ(element.dvc_pnl_cmm_get_int(key_of(row + "." + std::to_string(field)), v), 0) << row;
    out.push_back(v);
  }
  return out;
}

// Fixed answer entries written like valueset entries, with paths below the command.
answer_entries answer(const std::vector<test::entry>& entries) {
  answer_entries out;
  for (const test::entry& e : entries)
    out.emplace_back(e.path, e.value.value());
  return out;
}

long response_int(const dvc_pnl_cmm_valueset& response, const std::string& key) {
  long v = -12345;
  EXPECT_EQ(response.dvc_pnl_cmm_get_int(key_of(key), v), 0) << key;
  return v;
}

class SimulatedMachine : public test::MachineTest {
 protected:
  // The machine as the panel reaches it.
  static dvc_pnl_cmm_command_mediator& mediator() {
    return dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance();
  }

  static int get(const std::string& path, dvc_pnl_cmm_value& out) {
    return mediator().dvc_pnl_cmm_get_value(key_of(path), out, 1);
  }
  static int set(const std::string& path, const dvc_pnl_cmm_value& v) {
    return mediator().dvc_pnl_cmm_set_value(key_of(path), v, 1);
  }
  static int invoke(const std::string& command, const dvc_pnl_cmm_valueset& request,
                    dvc_pnl_cmm_valueset& response) {
    return mediator().dvc_pnl_cmm_invoke(key_of(command), request, response);
  }

  // A paged list request: method, count, start (or number) and optionally a search text.
  static dvc_pnl_cmm_valueset list_request(const std::string& command, long method, long count,
                                           long start, const char* text = nullptr) {
    std::vector<test::entry> e = {{command + ".1320", 1L},
                                  {command + ".1475", 0L},
                                  {command + ".1476", count},
                                  {command + ".1477", method},
                                  {command + ".1478", start}};
    if (text != nullptr)
      e.push_back({command + ".1479", text});
    return make_valueset(e);
  }
};

TEST_F(SimulatedMachine, IsTheCommandMediatorOfThePanel) {
  EXPECT_EQ(&mediator(), static_cast<dvc_pnl_cmm_command_mediator*>(&machine()));
}

// ---- the node tree ----

TEST_F(SimulatedMachine, AGroupReadNestsEveryEntryUnderItsFullPath) {
  // A subtree of its own, so that the default model's nodes don't take part; a binary leaf among
  // them.
  machine().set_int("0.9100.231.2903.2904", 0);
  machine().set_int("0.9100.231.2903.2905", 1);
  machine().set_node("0.9100.3313.4154", binary_value({0x00, 0xff}));
  dvc_pnl_cmm_value got;
  ASSERT_EQ(get("0.9100", got), 0);
  dvc_pnl_cmm_valueset set;
  ASSERT_EQ(got.dvc_pnl_cmm_get_valueset(set), 0);
  EXPECT_TRUE(sets_equal(set, make_valueset({{"0.9100.231.2903.2904", 0L},
                                             {"0.9100.231.2903.2905", 1L},
                                             {"0.9100.3313.4154", test::bytes{0x00, 0xff}}},
                                            3)));

  // One level further down the keys start one element longer.
  ASSERT_EQ(get("0.9100.231.2903", got), 0);
  ASSERT_EQ(got.dvc_pnl_cmm_get_valueset(set), 0);
  EXPECT_TRUE(
      sets_equal(set, make_valueset({{"0.9100.231.2903.2904", 0L}, {"0.9100.231.2903.2905", 1L}})));
}

TEST_F(SimulatedMachine, ALeafReadGivesItsOwnKind) {
  dvc_pnl_cmm_value got;
  long number = 0;
  ASSERT_EQ(get("0.555.2141.1890", got), 0);
  ASSERT_EQ(got.dvc_pnl_cmm_get_int(number), 0);
  EXPECT_EQ(number, 1);

  const char* text = nullptr;
  ASSERT_EQ(get("0.230.3313.4154", got), 0);
  ASSERT_EQ(got.dvc_pnl_cmm_get_string(text), 0);
  EXPECT_STREQ(text, "Panel simulator");
}

TEST_F(SimulatedMachine, MissingNodesFailAndLeaveTheValueAlone) {
  for (const char* path : {"0.230.9999", "0.555.2141.1890.1", "7.1", "0.938.959"}) {
    SCOPED_TRACE(path);
    dvc_pnl_cmm_value got = int_value(77);
    EXPECT_EQ(get(path, got), kNoSuchNode);
    long v = 0;
    ASSERT_EQ(got.dvc_pnl_cmm_get_int(v), 0);
    EXPECT_EQ(v, 77);
  }
  dvc_pnl_cmm_value got;
  EXPECT_EQ(mediator().dvc_pnl_cmm_get_value(dvc_pnl_cmm_key{}, got, 1), kNoSuchNode);
}

TEST_F(SimulatedMachine, ALeafWriteReplacesOrCreatesTheNode) {
  EXPECT_EQ(set("0.555.2141.1890", int_value(0)), 0);
  EXPECT_EQ(machine().int_at("0.555.2141.1890"), 0L);

  EXPECT_EQ(set("0.1.2", int_value(5)), 0);
  EXPECT_EQ(machine().int_at("0.1.2"), 5L);

  // A leaf written onto a group replaces everything below it.
  EXPECT_EQ(set("0.230.231", int_value(9)), 0);
  EXPECT_EQ(machine().int_at("0.230.231"), 9L);
  EXPECT_FALSE(machine().node("0.230.231.2903.2904").has_value());
}

TEST_F(SimulatedMachine, AGroupWriteReplacesTheGroupsContent) {
  const dvc_pnl_cmm_valueset group =
      make_valueset({{"0.230.231.2903.2906", 7L}, {"0.230.231.4000", "new"}}, 4);
  ASSERT_EQ(set("0.230.231", set_value(group)), 0);

  dvc_pnl_cmm_value got;
  ASSERT_EQ(get("0.230.231", got), 0);
  dvc_pnl_cmm_valueset read;
  ASSERT_EQ(got.dvc_pnl_cmm_get_valueset(read), 0);
  EXPECT_TRUE(sets_equal(read, group));
  EXPECT_FALSE(machine().node("0.230.231.2903.2904").has_value());
  // Outside the group nothing changed.
  EXPECT_EQ(machine().node("0.230.3313.4154").has_value(), true);
}

TEST_F(SimulatedMachine, RefusedWritesChangeNothing) {
  const dvc_pnl_cmm_value before = *machine().node("0");
  // An entry that is not below the node written.
  EXPECT_EQ(set("0.230.231", set_value(make_valueset({{"0.230.232.1", 1L}}))), kBadValue);
  // A nested set whose entries are not below their own key.
  dvc_pnl_cmm_valueset inner = make_valueset({{"0.9.9.9", 1L}});
  dvc_pnl_cmm_valueset outer;
  ASSERT_EQ(outer.dvc_pnl_cmm_set_valueset(key_of("0.230.231.2903"), inner), 0);
  EXPECT_EQ(set("0.230.231", set_value(outer)), kBadValue);
  // An empty value, an empty key and a key outside ROOT.
  EXPECT_EQ(set("0.555.2141.1890", dvc_pnl_cmm_value{}), kBadValue);
  EXPECT_EQ(mediator().dvc_pnl_cmm_set_value(dvc_pnl_cmm_key{}, int_value(1), 1), kBadValue);
  EXPECT_EQ(set("3.1", int_value(1)), kBadValue);
  EXPECT_TRUE(machine().node("0")->equals(before));
}

// ---- the paged list service ----

TEST_F(SimulatedMachine, AListPageAnswersHeadAndRowsUnderFullPaths) {
  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 2, 1), response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.938.959.1484", 0L},
                                                  {"0.938.959.1592", 5L},
                                                  {"0.938.959.1337", 0L},
                                                  {"0.938.959.1524", 0L},
                                                  {"0.938.959.1501.0.1365", 2L},
                                                  {"0.938.959.1501.0.1037", "Anna"},
                                                  {"0.938.959.1501.0.1561", 0L},
                                                  {"0.938.959.1501.1.1365", 3L},
                                                  {"0.938.959.1501.1.1037", "Ben"},
                                                  {"0.938.959.1501.1.1561", 0L}})));
}

TEST_F(SimulatedMachine, ListPagesByPosition) {
  struct page_case {
    long start;
    long count;
    std::vector<long> numbers;
  };
  const page_case cases[] = {
      {0, 2, {1, 2}}, {2, 2, {3, 4}}, {4, 2, {5}}, {0, 9999, {1, 2, 3, 4, 5}},
      {5, 2, {}},     {9, 10, {}},    {3, 0, {}},
  };
  for (const page_case& c : cases) {
    SCOPED_TRACE("start " + std::to_string(c.start) + " count " + std::to_string(c.count));
    dvc_pnl_cmm_valueset response;
    ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, c.count, c.start), response), 0);
    EXPECT_EQ(response_int(response, "0.938.959.1484"), 0);
    EXPECT_EQ(response_int(response, "0.938.959.1592"), 5);
    EXPECT_EQ(body_ints(response, kUsers, 1365), c.numbers);
  }
}

TEST_F(SimulatedMachine, ListSearchesByNumberAndByLeadingText) {
  struct search_case {
    long method;
    long count;
    long start;
    const char* text;
    std::vector<long> numbers;
    long total;
  };
  const search_case cases[] = {
      {3, 10, 4, nullptr, {4}, 1},  // by number: 1478 holds the number looked for
      {3, 10, 42, nullptr, {}, 0},  // a number nobody has
      {4, 10, 0, "An", {2, 5}, 2},  // by text: the names that start with it
      {4, 1, 1, "An", {5}, 2},      // paged within the matches
      {4, 10, 0, "an", {}, 0},      // case-sensitive
      {4, 10, 0, "", {1, 2, 3, 4, 5}, 5},
      {4, 10, 0, "Carla", {4}, 1},
  };
  for (const search_case& c : cases) {
    SCOPED_TRACE("method " + std::to_string(c.method) + " start " + std::to_string(c.start) +
                 " text " + (c.text ? c.text : "-"));
    dvc_pnl_cmm_valueset response;
    ASSERT_EQ(invoke(kUsers, list_request(kUsers, c.method, c.count, c.start, c.text), response),
              0);
    EXPECT_EQ(response_int(response, "0.938.959.1484"), 0);
    EXPECT_EQ(response_int(response, "0.938.959.1592"), c.total);
    EXPECT_EQ(body_ints(response, kUsers, 1365), c.numbers);
  }
}

TEST_F(SimulatedMachine, RequestsTheListCannotServeAnswerARefusingResult) {
  for (const auto& [method, count, start] :
       std::vector<std::tuple<long, long, long>>{{2, 10, 0}, {1, -1, 0}, {1, 10, -3}}) {
    SCOPED_TRACE(std::to_string(method) + " " + std::to_string(count) + " " +
                 std::to_string(start));
    dvc_pnl_cmm_valueset response;
    ASSERT_EQ(invoke(kUsers, list_request(kUsers, method, count, start), response), 0);
    EXPECT_EQ(response_int(response, "0.938.959.1484"), kListBadRequest);
    EXPECT_TRUE(body_ints(response, kUsers, 1365).empty());
  }
}

TEST_F(SimulatedMachine, RegisteredListsAnswerTheirHeaderValues) {
  std::vector<list_row> rows(3);
  for (long i = 0; i < 3; ++i)
    rows[static_cast<std::size_t>(i)].fields[1365] = int_value(10 + i);
  machine().register_list("0.938.945", rows, 7, -9);

  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke("0.938.945", list_request("0.938.945", 1, 2, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.938.945.1337"), 7);
  EXPECT_EQ(response_int(response, "0.938.945.1524"), -9);
  EXPECT_EQ(response_int(response, "0.938.945.1592"), 3);
  EXPECT_EQ(body_ints(response, "0.938.945", 1365), (std::vector<long>{10, 11}));

  // Rows changed through list_rows are what the next request sees.
  machine().list_rows("0.938.945")->pop_back();
  ASSERT_EQ(invoke("0.938.945", list_request("0.938.945", 1, 9, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.938.945.1592"), 2);
  EXPECT_EQ(machine().list_rows("0.938.1"), nullptr);
}

// ---- services, scripts and failures ----

TEST_F(SimulatedMachine, ServicesSeeTheRequestAndFillTheResponse) {
  machine().register_service("0.874.681", [](simulated_machine& m, service_call& call) {
    long user = 0;
    if (call.request.dvc_pnl_cmm_get_int(key_of("0.874.681.1365"), user) != 0)
      return 5;
    m.set_int("0.874.999", user);
    return call.response.dvc_pnl_cmm_set_int(key_of("0.874.681.1484"), user * 2);
  });
  dvc_pnl_cmm_valueset response = make_valueset({{"0.1", 1L}});  // stale content goes
  ASSERT_EQ(invoke("0.874.681", make_valueset({{"0.874.681.1365", 21L}}), response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.874.681.1484", 42L}})));
  EXPECT_EQ(machine().int_at("0.874.999"), 21L);
  // The service's own answer reaches the caller.
  EXPECT_EQ(invoke("0.874.681", dvc_pnl_cmm_valueset{}, response), 5);
}

TEST_F(SimulatedMachine, UnservedCommandsAreNotDeliverable) {
  dvc_pnl_cmm_valueset response = make_valueset({{"0.1", 1L}});
  EXPECT_EQ(invoke("0.999.1", dvc_pnl_cmm_valueset{}, response), kNotDeliverable);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.1", 1L}})));
}

TEST_F(SimulatedMachine, AScriptedResponseAnswersTheNextCallOnly) {
  const dvc_pnl_cmm_valueset scripted =
      make_valueset({{"0.938.959.1484", 1L}, {"0.938.959.1592", 0L}});
  machine().script_next_response(kUsers, scripted);
  // Armed behind the script: the script wins, the failure answers the call after.
  machine().fail_next(verb::invoke, kUsers, 8);

  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_TRUE(sets_equal(response, scripted));
  EXPECT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 8);
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.938.959.1592"), 5);
}

TEST_F(SimulatedMachine, AnArmedFailureAnswersItsCodeOnceForItsVerbAndKeyOnly) {
  struct fail_case {
    verb kind;
    std::string key;
  };
  const fail_case cases[] = {
      {verb::get, "0.555.2141.1890"}, {verb::set, "0.555.2141.1890"}, {verb::invoke, kUsers}};
  for (const fail_case& c : cases) {
    SCOPED_TRACE(c.key + " verb " + std::to_string(static_cast<int>(c.kind)));
    machine().reset();
    machine().fail_next(c.kind, c.key, 42);
    const auto call = [&] {
      dvc_pnl_cmm_value value = int_value(3);
      dvc_pnl_cmm_valueset response = make_valueset({{"0.1", 1L}});
      int ret = 0;
      switch (c.kind) {
        case verb::get:
          ret = get(c.key, value);
          break;
        case verb::set:
          ret = set(c.key, value);
          break;
        case verb::invoke:
          ret = invoke(c.key, list_request(c.key, 1, 10, 0), response);
          break;
      }
      if (ret != 0) {
        // A failed call leaves what the caller holds as it was, and the tree too.
        long v = 0;
        EXPECT_EQ(value.dvc_pnl_cmm_get_int(v), 0);
        EXPECT_EQ(v, 3);
        EXPECT_TRUE(sets_equal(response, make_valueset({{"0.1", 1L}})));
        EXPECT_EQ(machine().int_at("0.555.2141.1890"), 1L);
      }
      return ret;
    };
    // Another verb on the same key and the same verb on another key are not hit.
    dvc_pnl_cmm_value other;
    dvc_pnl_cmm_valueset response;
    if (c.kind != verb::get) {
      EXPECT_EQ(get("0.555.2141.1890", other), 0);
    }
    if (c.kind != verb::invoke) {
      EXPECT_EQ(invoke(kUsers, list_request(kUsers, 1, 1, 0), response), 0);
    }
    EXPECT_EQ(get("0.230.3313.4154", other), 0);
    EXPECT_EQ(call(), 42);
    EXPECT_EQ(call(), 0);
  }
}

TEST_F(SimulatedMachine, AFailureWithoutACodeAnswersTheDefaultCode) {
  machine().fail_next(verb::get, "0.555.2141.1890");
  dvc_pnl_cmm_value value;
  EXPECT_EQ(get("0.555.2141.1890", value), kDefaultFailCode);
}

TEST_F(SimulatedMachine, AnArmedResultIsAnsweredUnderTheCommandOnce) {
  machine().fail_next_result(kUsers, 17);
  dvc_pnl_cmm_valueset response = make_valueset({{"0.1", 1L}});
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.938.959.1484", 17L}})));
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.938.959.1484"), 0);
  EXPECT_EQ(response_int(response, "0.938.959.1592"), 5);
}

TEST_F(SimulatedMachine, ACountedFailureHitsOnlyTheCallOfItsNumberWhateverItsVerbAndKey) {
  dvc_pnl_cmm_value value;
  dvc_pnl_cmm_valueset response;
  // Call 2 from now: a get and an invoke pass, the set that comes third fails.
  machine().fail_call(2, 42);
  EXPECT_EQ(get("0.555.2141.1890", value), 0);
  EXPECT_EQ(invoke(kUsers, list_request(kUsers, 1, 1, 0), response), 0);
  EXPECT_EQ(set("0.555.2141.1890", int_value(7)), 42);
  EXPECT_EQ(machine().int_at("0.555.2141.1890"), 1L);
  EXPECT_EQ(set("0.555.2141.1890", int_value(7)), 0);
  EXPECT_EQ(machine().int_at("0.555.2141.1890"), 7L);

  // It goes before a failure armed by key, which then answers the call after.
  machine().fail_next(verb::get, "0.555.2141.1890", 8);
  machine().fail_call(0);
  EXPECT_EQ(get("0.555.2141.1890", value), kDefaultFailCode);
  EXPECT_EQ(get("0.555.2141.1890", value), 8);
  EXPECT_EQ(get("0.555.2141.1890", value), 0);

  // Arming again replaces the armed call; a reset drops it.
  machine().fail_call(0, 5);
  machine().fail_call(1, 6);
  EXPECT_EQ(get("0.555.2141.1890", value), 0);
  EXPECT_EQ(get("0.555.2141.1890", value), 6);
  machine().fail_call(0, 5);
  machine().reset();
  EXPECT_EQ(get("0.555.2141.1890", value), 0);
}

TEST_F(SimulatedMachine, ACountedResultAnswersAnInvokeAloneAndPassesOverOtherVerbs) {
  // A get at that number is not an invoke: it answers normally and uses the failure up.
  machine().fail_call_result(0, 17);
  dvc_pnl_cmm_value value;
  EXPECT_EQ(get("0.555.2141.1890", value), 0);
  dvc_pnl_cmm_valueset response = make_valueset({{"0.1", 1L}});
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.938.959.1484"), 0);

  // Before a scripted response for the same command, which answers the call after.
  const dvc_pnl_cmm_valueset scripted = make_valueset({{"0.938.959.1484", 9L}});
  machine().script_next_response(kUsers, scripted);
  machine().fail_call_result(0, 17);
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.938.959.1484", 17L}})));
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_TRUE(sets_equal(response, scripted));
}

// ---- fixed answers ----

TEST_F(SimulatedMachine, AFixedAnswerAnswersItsEntriesUnderTheCommandEveryTime) {
  machine().register_answer("0.9200.1", answer({{"1484", 0L},
                                                {"536", 1L},
                                                {"504", "Admin"},
                                                {"20", test::bytes{0x01, 0x02}},
                                                {"1501.0.1365", 7L},
                                                {"1501.1.1365", 8L}}));
  const dvc_pnl_cmm_valueset expected = make_valueset({{"0.9200.1.1484", 0L},
                                                       {"0.9200.1.536", 1L},
                                                       {"0.9200.1.504", "Admin"},
                                                       {"0.9200.1.20", test::bytes{0x01, 0x02}},
                                                       {"0.9200.1.1501.0.1365", 7L},
                                                       {"0.9200.1.1501.1.1365", 8L}});
  // Whatever is asked, the same answer; what the response held before goes.
  for (const dvc_pnl_cmm_valueset& request :
       {dvc_pnl_cmm_valueset{}, make_valueset({{"0.9200.1.1012", 17L}})}) {
    dvc_pnl_cmm_valueset response = make_valueset({{"0.1", 1L}});
    ASSERT_EQ(invoke("0.9200.1", request, response), 0);
    EXPECT_TRUE(sets_equal(response, expected));
  }
  ASSERT_EQ(machine().log().size(), 2u);
  EXPECT_TRUE(sets_equal(machine().log()[1].response, expected));
  EXPECT_EQ(machine().log()[1].result, 0);
}

TEST_F(SimulatedMachine, AFixedAnswerWithoutResultAnswersOnlyItsEntries) {
  machine().register_answer("0.9200.2", answer({{"129", 4L}}));
  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke("0.9200.2", dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.9200.2.129", 4L}})));
  // An answer of no entries is an empty response, still delivered.
  machine().register_answer("0.9200.2", {});
  ASSERT_EQ(invoke("0.9200.2", dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_EQ(response.dvc_pnl_cmm_size(), 0u);
}

TEST_F(SimulatedMachine, ScriptsFailuresAndArmedResultsComeBeforeAFixedAnswer) {
  const std::string command = "0.9200.3";
  machine().register_answer(command, answer({{"1484", 0L}, {"129", 2L}}));
  const dvc_pnl_cmm_valueset scripted = make_valueset({{"0.9200.3.1484", 5L}});
  machine().script_next_response(command, scripted);
  machine().fail_next(verb::invoke, command, 9);
  machine().fail_next_result(command, 4);

  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke(command, dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_TRUE(sets_equal(response, scripted));
  response = make_valueset({{"0.1", 1L}});
  EXPECT_EQ(invoke(command, dvc_pnl_cmm_valueset{}, response), 9);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.1", 1L}})));
  ASSERT_EQ(invoke(command, dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.9200.3.1484", 4L}})));
  // Used up: the fixed answer again.
  ASSERT_EQ(invoke(command, dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.9200.3.1484", 0L}, {"0.9200.3.129", 2L}})));
}

TEST_F(SimulatedMachine, AFixedAnswerServicesAndListsReplaceEachOther) {
  const std::string command = "0.9200.4";
  const auto answered = [&]() {
    dvc_pnl_cmm_valueset response;
    EXPECT_EQ(invoke(command, list_request(command, 1, 10, 0), response), 0);
    long v = -1;
    response.dvc_pnl_cmm_get_int(key_of(command + ".1592"), v);  // the list's row count
    if (v >= 0)
      return "list";
    response.dvc_pnl_cmm_get_int(key_of(command + ".129"), v);
    return v == 1 ? "answer" : v == 2 ? "service" : "nothing";
  };
  machine().register_answer(command, answer({{"129", 1L}}));
  EXPECT_STREQ(answered(), "answer");
  machine().register_service(command, [command](simulated_machine&, service_call& call) {
    return call.response.dvc_pnl_cmm_set_int(key_of(command + ".129"), 2);
  });
  EXPECT_STREQ(answered(), "service");
  machine().register_answer(command, answer({{"129", 1L}}));
  EXPECT_STREQ(answered(), "answer");
  machine().register_list(command, {});
  EXPECT_STREQ(answered(), "list");
  machine().register_answer(command, answer({{"129", 1L}}));
  EXPECT_STREQ(answered(), "answer");
  EXPECT_EQ(machine().list_rows(command), nullptr);
}

TEST_F(SimulatedMachine, ARefusedFixedAnswerThrowsAndKeepsWhatServedTheCommand) {
  machine().register_answer("0.9200.5", answer({{"1484", 0L}}));
  const dvc_pnl_cmm_valueset nested = make_valueset({{"0.9200.5.7.1", 1L}});
  const answer_entries refused[] = {
      answer({{"", 1L}}),                           // no path
      answer({{"1.x", 1L}}),                        // not a number
      answer({{"1501", 1L}, {"1501.0.1365", 2L}}),  // below another entry's value
      answer({{"1501.0.1365", 2L}, {"1501", 1L}}),  // the same, given the other way round
      answer({{"12", 1L}, {"012", 2L}}),            // one place twice
      answer({{"7", nested}}),                      // a set: nesting comes from the paths
      answer_entries{{"8", dvc_pnl_cmm_value{}}},   // no value
  };
  for (const answer_entries& entries : refused) {
    SCOPED_TRACE(entries.empty() ? "-" : entries.front().first);
    EXPECT_THROW(machine().register_answer("0.9200.5", entries), std::invalid_argument);
    dvc_pnl_cmm_valueset response;
    ASSERT_EQ(invoke("0.9200.5", dvc_pnl_cmm_valueset{}, response), 0);
    EXPECT_TRUE(sets_equal(response, make_valueset({{"0.9200.5.1484", 0L}})));
  }
  EXPECT_THROW(machine().register_answer("0..1", {}), std::invalid_argument);
}

// ---- the log ----

TEST_F(SimulatedMachine, TheLogHoldsEveryCallInOrder) {
  machine().fail_next(verb::get, "0.9101.1", 6);
  dvc_pnl_cmm_value value;
  ASSERT_EQ(get("0.555.2141.1890", value), 0);
  ASSERT_EQ(set("0.555.2141.1890", int_value(0)), 0);
  EXPECT_EQ(get("0.9101.1", value), 6);
  EXPECT_EQ(get("0.9101.2", value), kNoSuchNode);
  const dvc_pnl_cmm_valueset request = list_request(kUsers, 1, 1, 4);
  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke(kUsers, request, response), 0);
  EXPECT_EQ(invoke("0.999", request, response), kNotDeliverable);

  const std::vector<call_record>& log = machine().log();
  ASSERT_EQ(log.size(), 6u);
  const dvc_pnl_cmm_valueset empty;
  struct expected_record {
    verb kind;
    const char* key;
    dvc_pnl_cmm_valueset request;
    dvc_pnl_cmm_valueset response;
    int result;
  };
  const expected_record expected[] = {
      {verb::get, "0.555.2141.1890", empty, make_valueset({{"0.555.2141.1890", 1L}}), 0},
      {verb::set, "0.555.2141.1890", make_valueset({{"0.555.2141.1890", 0L}}), empty, 0},
      {verb::get, "0.9101.1", empty, empty, 6},
      {verb::get, "0.9101.2", empty, empty, kNoSuchNode},
      {verb::invoke, kUsers, request, response, 0},
      {verb::invoke, "0.999", request, empty, kNotDeliverable},
  };
  for (std::size_t i = 0; i < log.size(); ++i) {
    SCOPED_TRACE("record " + std::to_string(i));
    EXPECT_EQ(log[i].kind, expected[i].kind);
    EXPECT_EQ(log[i].key, expected[i].key);
    EXPECT_TRUE(sets_equal(log[i].request, expected[i].request));
    EXPECT_TRUE(sets_equal(log[i].response, expected[i].response));
    EXPECT_EQ(log[i].result, expected[i].result);
  }
  // The invoke's response is the whole page the service answered.
  EXPECT_EQ(body_ints(log[4].response, kUsers, 1365), (std::vector<long>{5}));

  machine().clear_log();
  EXPECT_TRUE(machine().log().empty());
}

// ---- posted events ----

class recording_handler : public dvu_pnl_evd_event_handler {
 public:
  int dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) override {
    long v = 0;
    event.source().dvc_pnl_cmm_get_int(key_of("0.938.1997.1484"), v);
    heard.push_back({event.dvc_pnl_evh_get_id(), v});
    return 0;
  }
  std::vector<std::pair<int, long>> heard;
};

TEST_F(SimulatedMachine, PostedEventsArriveWithTheNextPump) {
  recording_handler handler;
  ASSERT_EQ(dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_add_handler(
                890, &handler),
            0);
  // A service that answers at once and sends its data later, as late lists do.
  machine().register_service("0.938.1997", [](simulated_machine& m, service_call& call) {
    dvc_pnl_evh_panel_event event(890);
    event.dvc_pnl_evh_set_event_source_valueset(make_valueset({{"0.938.1997.1484", 0L}}));
    m.post_event(event);
    return call.response.dvc_pnl_cmm_set_int(key_of("0.938.1997.1484"), 1);
  });
  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke("0.938.1997", dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_EQ(response_int(response, "0.938.1997.1484"), 1);
  EXPECT_TRUE(handler.heard.empty());

  EXPECT_EQ(host::pump(), 1u);
  EXPECT_EQ(handler.heard, (std::vector<std::pair<int, long>>{{890, 0}}));
  dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_remove_handler(890,
                                                                                       &handler);
}

// ---- reset and model files ----

TEST_F(SimulatedMachine, ResetRestoresTheDefaultModel) {
  const dvc_pnl_cmm_value defaults = *machine().node("0");
  machine().set_int("0.555.2141.1890", 0);
  machine().set_int("0.7.7", 1);
  machine().remove_node("0.230.231");
  machine().register_service("0.874.681", [](simulated_machine&, service_call&) { return 0; });
  machine().register_list(kUsers, {});
  machine().register_answer("0.874.844", answer({{"1484", 6L}}));
  machine().register_answer("0.9200.6", answer({{"1484", 0L}}));
  machine().script_next_response("0.938.940", dvc_pnl_cmm_valueset{});
  machine().fail_next(verb::get, "0.555.2141.1890");
  machine().fail_next_result("0.938.940", 3);
  dvc_pnl_cmm_value value;
  ASSERT_EQ(get("0.7.7", value), 0);

  machine().reset();
  EXPECT_TRUE(machine().log().empty());
  EXPECT_TRUE(machine().node("0")->equals(defaults));
  ASSERT_EQ(get("0.555.2141.1890", value), 0);  // the failure is disarmed
  dvc_pnl_cmm_valueset response;
  EXPECT_EQ(invoke("0.874.681", dvc_pnl_cmm_valueset{}, response), kNotDeliverable);
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.938.959.1592"), 5);
  ASSERT_EQ(invoke("0.938.940", list_request("0.938.940", 1, 10, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.938.940.1484"), 0);
  EXPECT_EQ(body_ints(response, "0.938.940", 1365), (std::vector<long>{1, 2, 3, 4}));
  // The default model's fixed answers are back, answers registered since are gone.
  ASSERT_EQ(invoke("0.874.844", dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_EQ(response_int(response, "0.874.844.1484"), 0);
  EXPECT_EQ(response_int(response, "0.874.844.1365"), 102);
  EXPECT_EQ(invoke("0.9200.6", dvc_pnl_cmm_valueset{}, response), kNotDeliverable);
}

TEST_F(SimulatedMachine, AModelFileAddsFixedAnswersAndReplacesWhatServedTheirCommands) {
  machine().register_service("0.9200.7", [](simulated_machine&, service_call&) { return 4; });
  ASSERT_EQ(machine().load_model_json(R"({
    "answers": {
      "0.9200.7": {"1484": 0, "504": "Anna", "1541.0.1518": 2, "9": {"binary": "0a0B"}},
      "0.938.959": {"1484": 3}
    }
  })"),
            "");
  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke("0.9200.7", dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.9200.7.1484", 0L},
                                                  {"0.9200.7.504", "Anna"},
                                                  {"0.9200.7.1541.0.1518", 2L},
                                                  {"0.9200.7.9", test::bytes{0x0a, 0x0b}}})));
  // The users list gave way to the answer; the default answers stay.
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.938.959.1484", 3L}})));
  EXPECT_EQ(machine().list_rows(kUsers), nullptr);
  ASSERT_EQ(invoke("0.874.844", dvc_pnl_cmm_valueset{}, response), 0);
  EXPECT_EQ(response_int(response, "0.874.844.1365"), 102);

  // A list in a later file takes the command back.
  ASSERT_EQ(machine().load_model_json(R"({"lists": {"0.9200.7": {"rows": [{"1365": 1}]}}})"), "");
  ASSERT_EQ(invoke("0.9200.7", list_request("0.9200.7", 1, 10, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.9200.7.1592"), 1);
}

TEST_F(SimulatedMachine, AModelFileAddsNodesAndLists) {
  const std::string error = machine().load_model_json(R"({
    "nodes": {"0.555.2141.1890": 2, "0.9102.2": {"binary": "00ff10"}, "0.9102.3": "text"},
    "lists": {"0.938.946": {"header": [4, 5], "rows": [{"1365": 8, "1037": "Job"}]}},
    "replace": false
  })");
  ASSERT_EQ(error, "");
  EXPECT_EQ(machine().int_at("0.555.2141.1890"), 2L);
  EXPECT_EQ(machine().int_at("0.230.231.2903.2904"), 0L);  // untouched by an addition
  dvc_pnl_cmm_value value;
  ASSERT_EQ(get("0.9102", value), 0);
  dvc_pnl_cmm_valueset set;
  ASSERT_EQ(value.dvc_pnl_cmm_get_valueset(set), 0);
  EXPECT_TRUE(sets_equal(
      set, make_valueset({{"0.9102.2", test::bytes{0x00, 0xff, 0x10}}, {"0.9102.3", "text"}})));

  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(invoke("0.938.946", list_request("0.938.946", 1, 10, 0), response), 0);
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.938.946.1484", 0L},
                                                  {"0.938.946.1592", 1L},
                                                  {"0.938.946.1337", 4L},
                                                  {"0.938.946.1524", 5L},
                                                  {"0.938.946.1501.0.1365", 8L},
                                                  {"0.938.946.1501.0.1037", "Job"}})));
  // The default lists are still served.
  ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
  EXPECT_EQ(response_int(response, "0.938.959.1592"), 5);
}

TEST_F(SimulatedMachine, AReplacingModelFileDropsTheOldModel) {
  for (const bool by_argument : {false, true}) {
    SCOPED_TRACE(by_argument ? "replace by argument" : "replace in the file");
    machine().reset();
    const std::string text =
        by_argument ? R"({"nodes": {"0.5.5": 1}})" : R"({"nodes": {"0.5.5": 1}, "replace": true})";
    ASSERT_EQ(machine().load_model_json(text, by_argument), "");
    EXPECT_TRUE(machine().node("0")->equals(set_value(make_valueset({{"0.5.5", 1L}}, 2))));
    dvc_pnl_cmm_valueset response;
    EXPECT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), kNotDeliverable);
    EXPECT_EQ(invoke("0.874.844", dvc_pnl_cmm_valueset{}, response), kNotDeliverable);
  }
}

TEST_F(SimulatedMachine, AFaultyModelFileIsRefusedWithAReasonAndChangesNothing) {
  const char* faulty[] = {
      R"({"nodes": {"0.555.2141.1890": 5)",                        // not JSON
      R"([1, 2])",                                                 // not an object
      R"({"nodes": {"0.555.2141.1890": 5, "0.x.1": 1}})",          // bad path, after a good one
      R"({"nodes": {"1.2": 1}})",                                  // not below ROOT
      R"({"nodes": {"0.1": 1.5}})",                                // not an integer
      R"({"nodes": {"0.1": {"binary": "0f1"}}})",                  // odd hex
      R"({"nodes": {"0.1": {"binary": "zz"}}})",                   // not hex
      R"({"nodes": {"0.1": [1]}})",                                // no such kind
      R"({"node": {}})",                                           // misspelt member
      R"({"replace": "yes"})",                                     // not a boolean
      R"({"lists": {"0.938.959": {"rows": [{"a": 1}]}}})",         // bad field
      R"({"lists": {"0.938.959": {"header": [1], "rows": []}}})",  // short header
      R"({"lists": {"0.938.959": {"rows": {}}}})",                 // rows not an array
      R"({"answers": {"0.874.844": {"1484": 1}, "0.9.x": {}}})",   // bad command, after a good one
  };
  const dvc_pnl_cmm_value before = *machine().node("0");
  for (const char* text : faulty) {
    SCOPED_TRACE(text);
    EXPECT_NE(machine().load_model_json(text, true), "");
    EXPECT_TRUE(machine().node("0")->equals(before));
    dvc_pnl_cmm_valueset response;
    ASSERT_EQ(invoke(kUsers, list_request(kUsers, 1, 10, 0), response), 0);
    EXPECT_EQ(response_int(response, "0.938.959.1592"), 5);
  }
}

TEST_F(SimulatedMachine, AFaultyAnswersSectionIsRefusedNamingTheOffendingKey) {
  struct faulty_case {
    const char* text;
    std::vector<std::string> named;  // what the error text must hold
  };
  const faulty_case cases[] = {
      {R"({"answers": [1]})", {"\"answers\""}},
      {R"({"answers": {"0.874.4241": {"1484": 0}, "7.1": {}}})", {"answer 7.1"}},
      {R"({"answers": {"0.874.4241": [0]}})", {"answer 0.874.4241"}},
      {R"({"answers": {"0.874.4241": {"1484": 0, "1.-2": 1}}})", {"answer 0.874.4241", "1.-2"}},
      {R"({"answers": {"0.874.4241": {"1484": 0.5}}})", {"answer 0.874.4241 entry 1484"}},
      {R"({"answers": {"0.874.4241": {"1484": [0]}}})", {"answer 0.874.4241 entry 1484"}},
      {R"({"answers": {"0.874.4241": {"1501": 0, "1501.0.1365": 1}}})",
       {"answer 0.874.4241", "1501.0.1365", "1501"}},
      {R"({"answers": {"0.874.4241": {"3": 0, "03": 1}}})", {"answer 0.874.4241", "\"3\""}},
      {R"({"answers": {"0.9200.8": {"1484": 0}}, "lists": {"0.9200.8": {"rows": []}}})",
       {"answer 0.9200.8"}},
  };
  for (const faulty_case& c : cases) {
    SCOPED_TRACE(c.text);
    const std::string error = machine().load_model_json(c.text);
    for (const std::string& part : c.named)
      EXPECT_NE(error.find(part), std::string::npos) << error;
    // Nothing of the file was applied: the command keeps its default answer, no other appeared.
    dvc_pnl_cmm_valueset response;
    ASSERT_EQ(invoke("0.874.4241", dvc_pnl_cmm_valueset{}, response), 0);
    EXPECT_TRUE(sets_equal(response, make_valueset({{"0.874.4241.1484", 0L}})));
    EXPECT_EQ(invoke("0.9200.8", dvc_pnl_cmm_valueset{}, response), kNotDeliverable);
  }
}

TEST_F(SimulatedMachine, DottedPathsMustBePlainNumbers) {
  EXPECT_EQ(key_from_dotted("0.938.959").to_dotted(), "0.938.959");
  for (const char* bad : {"", "0..1", "0.1.", "-1.2", "0.a", " 0.1", "0.99999999999999999999999"}) {
    SCOPED_TRACE(bad);
    EXPECT_THROW(key_from_dotted(bad), std::invalid_argument);
    EXPECT_THROW(machine().set_int(bad, 1), std::invalid_argument);
  }
}

}  // namespace
}  // namespace orvanta::machine
