// Contents factory: makes the handler of a contents id, and tells the page stack cell of an id.
#pragma once

#include "orvanta/platform/dvc_pnl_ceh_contents_interface.h"

namespace orvanta {

// The highest id the factory accepts.
inline constexpr int DVC_PNL_CEH_CONTENTS_ID_MAX = 2249;

class dvc_pnl_ceh_contents_proc_factory {
 public:
  static dvc_pnl_ceh_contents_proc_factory* dvc_pnl_ceh_get_instance();

  // A new handler for `contents_id` on the heap, owned by the caller; nullptr for an id above
  // 2249 and for an id without a family.
  dvc_pnl_ceh_contents_interface* dvc_pnl_ceh_create_contents_proc_class(
      int contents_id, dvu_pnl_gcp_components* gui);
  // The page stack group and state of an id.
  int dvc_pnl_ceh_get_contents_class_group(int contents_id);
  int dvc_pnl_ceh_get_contents_class_state(int contents_id);

 private:
  dvc_pnl_ceh_contents_proc_factory() = default;
};

}  // namespace orvanta
