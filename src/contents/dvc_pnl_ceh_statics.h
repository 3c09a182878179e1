// One reset of every static state the panel library keeps, for tests and the runtime.
#pragma once

namespace orvanta {

// Brings the proxy, the contents statics, the hard key lock counts, the exclusive lock manager and
// the view helper back to their state at start-up. Call it after the pages are gone (host reset),
// never while a dispatch runs.
void dvc_pnl_ceh_reset_library_statics();

}  // namespace orvanta
