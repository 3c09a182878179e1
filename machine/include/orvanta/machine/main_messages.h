// The simulated machine's main messages: the list each function reports on its acquire command
// 0.800.<801|802|803|805|806>, and the refresh event that tells the panel of a new list.
#pragma once

#include <string>
#include <vector>

#include "orvanta/machine/simulated_machine.h"

namespace orvanta::machine {

// Fields of one message (list_row field node -> value).
inline constexpr unsigned long kMessageId = 1061;
inline constexpr unsigned long kMessageParameter = 1062;
inline constexpr unsigned long kMessageFeeder = 3301;

// The functions with a message list: 1 copy, 3 send, 4 fax, 6 box print, 7 box.
// The acquire command of `function`'s messages, "0.800.801" for copy; empty for any other.
std::string main_message_command(int function);

// Replaces the messages `function` reports, in order; each is a row of fields (1061 the id,
// 1062 its parameter, 3301 the feeder of a paper message, ...). Does nothing for a function
// without a list.
void set_main_messages(simulated_machine& machine, int function, std::vector<list_row> messages);
// A message holding only its id.
list_row main_message(long id);

// Posts the refresh event of `function` (113 copy, 114 send, 115 fax, 117 box print, 118 box)
// with the list its acquire command answers now: 0.<group>.1059 the count, 0.<group>.1060.<i>
// the messages. false for a function without a list or when it has none registered.
bool post_main_messages_refresh(simulated_machine& machine, int function);

}  // namespace orvanta::machine
