// One command of the program and one touch key stores: key, request, invoke and answer reads.
#pragma once

#include <vector>

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta {

// The shape every operation of the two store clients shares: the key, the request with
// 1320 = 1, one invoke, and reads of the answer below the key.
class dvc_pnl_ceh_contents_hdl_store_command {
 public:
  explicit dvc_pnl_ceh_contents_hdl_store_command(const std::vector<unsigned long>& nodes);

  void add_int(unsigned long node, long value);
  void add_string(unsigned long node, const char* value);
  // The mediator's result; a failure is traced and leaves the response unread.
  int invoke();
  // `value` keeps what it held when the answer lacks the node.
  void read_int(unsigned long node, long& value);
  // RESULT, -1 when the answer holds none, so that a missing answer never reads as success.
  long result();

 private:
  dvc_pnl_cmm_key key_;
  dvc_pnl_cmm_valueset request_;
  dvc_pnl_cmm_valueset response_;
};

}  // namespace orvanta
