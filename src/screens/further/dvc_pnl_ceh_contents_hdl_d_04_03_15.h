// Record pages.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"

namespace orvanta {

class dvc_pnl_ceh_contents_hdl_d_04_03_15 : public dvc_pnl_ceh_contents_hdl_base {
 public:
  dvc_pnl_ceh_contents_hdl_d_04_03_15(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_hdl_d_04_03_15() override;

  void dvc_pnl_ceh_on_load() override;
  int dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) override;
};

}  // namespace orvanta
