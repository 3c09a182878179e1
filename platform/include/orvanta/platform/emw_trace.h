// Trace service of the operating layer: one formatted line per call, filtered by module and level.
#pragma once

namespace orvanta {

// Levels used by the panel: 0 for errors, 2 for ordinary traces.
enum : unsigned long { EMW_TRC_LEVEL_ERROR = 0, EMW_TRC_LEVEL_TRACE = 2 };

int emwGENTrcPrintf(unsigned long module, unsigned long sub_module, unsigned long level,
                    const char* format, ...) __attribute__((format(printf, 4, 5)));

}  // namespace orvanta
