// Shared steps of the event senders: posting a panel event, and the nested source set it carries.
#pragma once

#include <initializer_list>
#include <utility>

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta::events {

// Posts event `id` with init type `kind`, priority 0 and, when given, `source` as its source
// value set. Each failed step is traced and ends the sending.
void post(unsigned long id, int kind, const dvc_pnl_cmm_valueset* source);

// A source set holding one set under (0, `group`) with the integers (0, `group`, node) = value.
// Words are stored as their 32-bit pattern.
dvc_pnl_cmm_valueset group_of(unsigned long group,
                              std::initializer_list<std::pair<unsigned long, long>> words);

}  // namespace orvanta::events
