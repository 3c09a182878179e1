// Timed message: a message that closes itself after a time.
#pragma once

#include <string>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"

namespace orvanta {

class dvc_pnl_ceh_contents_hdl_d_03_01 : public dvc_pnl_ceh_contents_hdl_base {
 public:
  dvc_pnl_ceh_contents_hdl_d_03_01(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_hdl_d_03_01() override;

  // The text of an error of the remote device management service: the operation, its detail
  // code and the HTTP status pick a message of the error table, and the status, in decimal, fills
  // its one "%d". Needs no screen state, so it can be asked without an open screen.
  static void parse_vexl_error_message(long operation, long detail, long http_status,
                                       std::string& message);
};

}  // namespace orvanta
