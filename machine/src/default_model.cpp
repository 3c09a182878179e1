// The simulator's sample machine: the settings the panel reads, with their defaults, two short
// lists, fixed answers of the commands the condition queries run, and the records the record
// services start with. This is sample data for
// walking the panel on a PC, not the data of any real machine.
#include "machine_internal.h"

namespace orvanta::machine::detail {

const char* default_model_json() {
  // SAMPLE DATA. A colour machine for Europe with a fax unit, a document processor, a manual tray
  // and four cassettes, on the network, with user login and job accounting off.
  //
  // The job settings of each function (0.1.F) are not in this file: job_settings.cpp writes them
  // over it on every reset, among them the paper source of copy and box print.
  // Feeders (0.704.705.715: 723 manual tray, 372, 375, 376, 377 cassettes 1 to 4) have size 373,
  // kind 719, quantity 477 and orientation 718.
  // The clock 0.4167.1499: 313 year, 314 month, 315 day, 201 hour, 202 minute, 317 second.
  // Job permissions 0.1902.<n>: 1 allowed, 2 barred. External address books 0.230.2520.3588 and
  // fax server books 0.230.3986.3588: four rows, 3589 in use, 9 name.
  //
  // Users (0.938.959): 1365 user number, 1037 login name, 1561 authority (1 administrator,
  // 0 user). Address book (0.938.940): 1365 entry number, 1037 name, 1561 kind (0 contact,
  // 1 group). Two user names share a prefix so the text search has more than one match.
  //
  // Copy limit 0.230.303.304: 999. The flexible keys of the copy (0.228.2) and box print
  // (0.228.207) home screens, two rows each by position: item 229 and its kind 2039 (2, a job
  // setting with a label): copy shows zoom (3) and paper (14), box print collate (35) and duplex
  // (17).
  //
  // The domain name of network login 0.534.535.509: none. Proxy settings 0.633.2561.2568: the same
  // proxy for both protocols (2569 = 1), no server, ports or exceptions (2570 to 2574 empty).
  //
  // The user records and job accounting accounts are not fixed answers: the record services hold
  // them (default_records() below).
  //
  // Fixed answers, the same for every request (RESULT 1484 = 0 in each):
  // - user information 0.874.844: whoever is asked about, the guest (user number 102): a local
  //   user (536 = 0) of no domain, no administrator (1561 = 0), using the machine's language 1
  //   (730 = 1, 3170/3891 = 1) and its send screen (3171 = 1, 348 = 0, 3172 = 0), allowed every
  //   function (3060 to 3068 = 0);
  // - mail address confirmation setting 0.874.4241: RESULT only;
  // - send destination size 0.896.901: nothing chosen yet, every count 0;
  // - address book group 0.887.921.584: member counts 2540 = 2, 2541 = 1, 2542 = 0, 2544 = 1,
  //   and 2875 = 2;
  // - unknown user number 0.503.3952: 1259 = 1;
  // - the machine's choice of cassette 0.821.2855: 129 = 1, cassette 1;
  // - colour confirmation of a box file 0.857.866.2885: colour mode 1 (1541.0.1518), not one of
  //   the modes 2 and 3 that the panel takes for a document without colour.
  return R"json({
  "replace": true,
  "nodes": {
    "0.555.2141.1890": 1,
    "0.230.231.2903.2904": 0,
    "0.230.231.2903.2905": 1,
    "0.230.3313.4154": "Panel simulator",
    "0.230.303.304": 999,
    "0.228.2.0.229": 3,
    "0.228.2.0.2039": 2,
    "0.228.2.1.229": 14,
    "0.228.2.1.2039": 2,
    "0.228.207.0.229": 35,
    "0.228.207.0.2039": 2,
    "0.228.207.1.229": 17,
    "0.228.207.1.2039": 2,

    "0.704.705.715.723.373": 4,
    "0.704.705.715.723.719": 1,
    "0.704.705.715.723.477": 0,
    "0.704.705.715.723.718": 0,
    "0.704.705.715.372.373": 4,
    "0.704.705.715.372.719": 1,
    "0.704.705.715.372.477": 500,
    "0.704.705.715.372.718": 0,
    "0.704.705.715.375.373": 4,
    "0.704.705.715.375.719": 1,
    "0.704.705.715.375.477": 500,
    "0.704.705.715.375.718": 0,
    "0.704.705.715.376.373": 3,
    "0.704.705.715.376.719": 1,
    "0.704.705.715.376.477": 250,
    "0.704.705.715.376.718": 0,
    "0.704.705.715.377.373": 2,
    "0.704.705.715.377.719": 1,
    "0.704.705.715.377.477": 250,
    "0.704.705.715.377.718": 0,
    "0.704.3624.3653.3655": 1,
    "0.230.49.368.370": 1,

    "0.728.346": 0,
    "0.728.713.745": 2,
    "0.728.729": 1,
    "0.728.2854": 0,
    "0.728.3937.3515": 0,
    "0.728.3943.3944": 0,
    "0.728.3943.3945": 0,
    "0.684.685.3784": 1,
    "0.678.2032": 0,
    "0.503.3297": 1,
    "0.2064.4223": 0,
    "0.2758.2758": 0,

    "0.1902.3558": 1,
    "0.1902.48": 1,
    "0.1902.486": 1,
    "0.1902.2138": 1,
    "0.1902.2139": 1,
    "0.1902.2159": 1,
    "0.1902.2176": 1,
    "0.1902.2177": 1,
    "0.1902.2749": 1,
    "0.1902.3528": 1,
    "0.1902.3529": 1,

    "0.230.185.1009": 0,
    "0.230.185.2340": 0,
    "0.230.185.3132": 1,
    "0.230.185.3488": 0,
    "0.230.185.3489": 0,
    "0.230.311.320": 33,
    "0.230.311.599.2361": 0,
    "0.230.311.599.601": 1700,
    "0.230.311.599.602": 800,
    "0.230.331.332": 0,
    "0.230.343.347": 1,
    "0.230.343.348": 0,
    "0.230.343.3890": 1,
    "0.230.356.3996": 1,
    "0.230.408.411.412": 0,
    "0.230.3313.3319": 0,
    "0.230.3885.887": 1,
    "0.230.2520.3189": 0,
    "0.230.2520.3588.0.3589": 0,
    "0.230.2520.3588.0.9": "External book 1",
    "0.230.2520.3588.1.3589": 0,
    "0.230.2520.3588.1.9": "External book 2",
    "0.230.2520.3588.2.3589": 0,
    "0.230.2520.3588.2.9": "External book 3",
    "0.230.2520.3588.3.3589": 0,
    "0.230.2520.3588.3.9": "External book 4",
    "0.230.3986.3189": 0,
    "0.230.3986.3588.0.3589": 0,
    "0.230.3986.3588.0.9": "Fax server book 1",
    "0.230.3986.3588.1.3589": 0,
    "0.230.3986.3588.1.9": "Fax server book 2",
    "0.230.3986.3588.2.3589": 0,
    "0.230.3986.3588.2.9": "Fax server book 3",
    "0.230.3986.3588.3.3589": 0,
    "0.230.3986.3588.3.9": "Fax server book 4",

    "0.534.535.1987": 0,
    "0.534.535.2257.501": 0,
    "0.534.535.2257.536": 0,
    "0.534.535.537.539": 0,
    "0.534.535.3839": 0,
    "0.534.535.509": "",
    "0.541.542.543": 0,

    "0.633.634.635": 1,
    "0.633.1979.1980": 1,
    "0.633.2318.649": 0,
    "0.633.4161.649": 0,
    "0.633.4163.649": 0,
    "0.633.4164.649": 0,
    "0.633.2561.2568.2569": 1,
    "0.633.2561.2568.2570": "",
    "0.633.2561.2568.2571": "",
    "0.633.2561.2568.2572": "",
    "0.633.2561.2568.2573": "",
    "0.633.2561.2568.2574": "",

    "0.4167.1499.313": 2024,
    "0.4167.1499.314": 5,
    "0.4167.1499.315": 14,
    "0.4167.1499.201": 10,
    "0.4167.1499.202": 30,
    "0.4167.1499.317": 0
  },
  "lists": {
    "0.938.959": {
      "header": [0, 0],
      "rows": [
        {"1365": 1, "1037": "Admin", "1561": 1},
        {"1365": 2, "1037": "Anna", "1561": 0},
        {"1365": 3, "1037": "Ben", "1561": 0},
        {"1365": 4, "1037": "Carla", "1561": 0},
        {"1365": 5, "1037": "Anton", "1561": 1}
      ]
    },
    "0.938.940": {
      "header": [0, 0],
      "rows": [
        {"1365": 1, "1037": "Accounting", "1561": 1},
        {"1365": 2, "1037": "Berger", "1561": 0},
        {"1365": 3, "1037": "Kowalski", "1561": 0},
        {"1365": 4, "1037": "Sales", "1561": 1}
      ]
    }
  },
  "answers": {
    "0.874.844": {
      "1484": 0, "1365": 102, "504": "Guest", "658": "", "536": 0, "730": 1, "1561": 0,
      "3170": 1, "3891": 1, "3171": 1, "348": 0, "3172": 0,
      "3060": 0, "3061": 0, "3062": 0, "3063": 0, "3064": 0, "3065": 0, "3066": 0, "3067": 0,
      "3068": 0
    },
    "0.874.4241": {"1484": 0},
    "0.896.901": {"1484": 0, "206": 0, "884": 0, "1345": 0, "1569": 0},
    "0.887.921.584": {"1484": 0, "2540": 2, "2541": 1, "2542": 0, "2544": 1, "2875": 2},
    "0.503.3952": {"1484": 0, "1259": 1},
    "0.821.2855": {"1484": 0, "129": 1},
    "0.857.866.2885": {"1484": 0, "1541.0.1518": 1}
  }
})json";
}

namespace {

dvc_pnl_cmm_value number(long v) {
  dvc_pnl_cmm_value value;
  value.dvc_pnl_cmm_set_int(v);
  return value;
}

dvc_pnl_cmm_value text(const char* v) {
  dvc_pnl_cmm_value value;
  value.dvc_pnl_cmm_set_string(v);
  return value;
}

// A user with every field the user record read gives: login name and name `name`, no password,
// mail or text 1361, account `account` named `account_name`, every permission 0.
record_fields sample_user(long user_number, const char* name, long account,
                          const char* account_name) {
  record_fields user = {{1365, number(user_number)}, {504, text(name)}, {1360, text("")},
                        {1037, text(name)},          {1361, text("")},  {1362, number(account)},
                        {1367, text(account_name)},  {10, text("")},    {1363, number(0)}};
  for (unsigned long permission = 3060; permission <= 3068; ++permission)
    user[permission] = number(0);
  return user;
}

}  // namespace

record_book default_records() {
  // SAMPLE DATA. The guest (user number 102) and the five users of the user list, by the same
  // numbers and names; the guest is on account 1, the others on none (0). Account 1 "Guest",
  // code "0001", without restrictions (1369, 1372, 1374, 1375, 1385 = 0, no limits). No boxes.
  record_book records;
  records.users[102] = sample_user(102, "Guest", 1, "Guest");
  const char* const names[] = {"Admin", "Anna", "Ben", "Carla", "Anton"};
  for (long n = 1; n <= 5; ++n)
    records.users[n] = sample_user(n, names[n - 1], 0, "");
  records.accounts[1] = {{1362, number(1)},     {1367, text("Guest")}, {1366, text("0001")},
                         {1368, text("Guest")}, {1369, number(0)},     {1372, number(0)},
                         {1374, number(0)},     {1375, number(0)},     {1385, number(0)}};
  return records;
}

}  // namespace orvanta::machine::detail
