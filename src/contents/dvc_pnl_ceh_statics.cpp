// One reset of every static state the panel library keeps.
#include "contents/dvc_pnl_ceh_statics.h"

#include "contents/dvc_pnl_ceh_contents_base.h"
#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "services/dvc_pnl_ceh_contents_hdl_func.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"
#include "services/dvc_pnl_ceh_exclusive_lock_manager.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"

namespace orvanta {

void dvc_pnl_ceh_reset_library_statics() {
  dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance()->reset_for_tests();
  dvc_pnl_ceh_contents_base::reset_statics();
  dvc_pnl_ceh_contents_hdl_base::reset_statics();
  dvc_pnl_ceh_contents_hdl_reset_hardkey_locks();
  dvc_pnl_ceh_exclusive_lock_manager::reset_for_tests();
  dvc_pnl_ceh_contents_hdl_gui::reset_for_tests();
  dvc_pnl_ceh_contents_hdl_func::reset_for_tests();
}

}  // namespace orvanta
