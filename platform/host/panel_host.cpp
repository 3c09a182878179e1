// host::reset(): brings every host stand-in back to the state of a fresh panel run.
#include "host_internal.h"
#include "orvanta/host/error_table.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/host/value_faults.h"

namespace orvanta::host {

void reset() {
  // Pages first: destroying their contents may stop timers, post events or unsubscribe, and all of
  // that is wiped by the steps after.
  reset_pages();
  reset_events();
  host_clock::instance().reset();
  reset_devices();
  reset_layouts();
  reset_language();
  reset_error_table();
  host_data_manager::instance().reset();
  trace_sink::instance().clear();
  clear_value_faults();
}

}  // namespace orvanta::host
