// Option list: a table-driven list of the choices of one setting.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"

namespace orvanta {

class dvc_pnl_ceh_contents_hdl_d_01_01_01 : public dvc_pnl_ceh_contents_hdl_base {
 public:
  dvc_pnl_ceh_contents_hdl_d_01_01_01(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_hdl_d_01_01_01() override;
};

}  // namespace orvanta
