// Command mediator: the one door to the machine's node tree (get, set, invoke).
#pragma once

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta {

// Every operation answers 0 when the call got through. A non-zero answer means the call could not
// be delivered; what the machine thinks of a command is the RESULT (node 1484) in its response.
class dvc_pnl_cmm_command_mediator {
 public:
  static dvc_pnl_cmm_command_mediator& dvc_pnl_cmm_instance();
  virtual ~dvc_pnl_cmm_command_mediator() = default;

  // The value at the node, of the node's kind; a group node gives a value set of everything
  // below it. The panel always passes mode 1.
  virtual int dvc_pnl_cmm_get_value(const dvc_pnl_cmm_key& key, dvc_pnl_cmm_value& value,
                                    int mode) = 0;
  virtual int dvc_pnl_cmm_set_value(const dvc_pnl_cmm_key& key, const dvc_pnl_cmm_value& value,
                                    int mode) = 0;
  // Runs the command at `command`; on return `response` is filled.
  virtual int dvc_pnl_cmm_invoke(const dvc_pnl_cmm_key& command,
                                 const dvc_pnl_cmm_valueset& request,
                                 dvc_pnl_cmm_valueset& response) = 0;
};

}  // namespace orvanta
