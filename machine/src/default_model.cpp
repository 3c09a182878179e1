// The simulator's sample machine: a few settings with their defaults and two short lists. This is
// sample data for walking the panel on a PC, not the data of any real machine.
#include "machine_internal.h"

namespace orvanta::machine::detail {

const char* default_model_json() {
  // Users (0.938.959): 1365 user number, 1037 login name, 1561 authority (1 administrator,
  // 0 user). Address book (0.938.940): 1365 entry number, 1037 name, 1561 kind (0 contact,
  // 1 group). Two user names share a prefix so the text search has more than one match.
  return R"json({
  "replace": true,
  "nodes": {
    "0.555.2141.1890": 1,
    "0.230.231.2903.2904": 0,
    "0.230.231.2903.2905": 1,
    "0.230.3313.4154": "Panel simulator"
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
  }
})json";
}

}  // namespace orvanta::machine::detail
