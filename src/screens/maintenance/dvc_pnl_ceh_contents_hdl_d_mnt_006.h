// Maintenance mode, unique list screen that throws key events.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"

namespace orvanta {

class dvc_pnl_ceh_contents_hdl_d_mnt_006 : public dvc_pnl_ceh_contents_hdl_base {
 public:
  dvc_pnl_ceh_contents_hdl_d_mnt_006(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_hdl_d_mnt_006() override;
};

}  // namespace orvanta
