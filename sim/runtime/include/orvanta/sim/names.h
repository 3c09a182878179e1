// Names the simulator reads and prints: contents ids, key names, screen classes and functions.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta::sim {

// A number as scenarios and the command line write it: decimal with an optional leading `-`, or
// `0x` hex. Nothing for anything else, or for a number out of the range of long.
std::optional<long> parse_number(std::string_view text);

// A contents id given as a decimal number or a name: a `CID_` enumerator (`CID_TOP`,
// `CID_PARENT`, `CID_NONE` and the `CID_UNNAMED_<n>` constants included). Nothing for anything
// else. A number is taken as it stands, whether or not it names a screen.
std::optional<int> parse_contents_id(std::string_view text);
// The name the panel's logger gives the id ("CID_EMPTY_OR_NOT_FOUND" for an id without one).
std::string contents_name(int id);

// Key names of the scenario language and their key event ids: enter 40, start 41, stop 42,
// reset 43, back 61, clear 38, 0 to 9 (45 to 54), up 57, down 58, left 59, right 60, menu 81,
// release 87, fleft and fright (the flexible keys of the GUI stand-in). A number that is not
// one of the digit names is taken as a key id. Nothing for anything else.
std::optional<int> parse_key(std::string_view text);
// The scenario name of a key id ("back"), or its number.
std::string key_name(int key);

// The screen class the factory makes for the id, without the `dvc_pnl_ceh_contents_hdl_`
// prefix ("d_mnt_006"), or "none" when the factory makes nothing. Builds and drops one contents:
// call it on a runtime with no page open.
std::string class_of(int id);

// The function a screen belongs to by its area (the first field of its name): copy 1 for 01
// to 03, 06 and 08 to 11, status 9 for 04, box 5 for 05, system menu 10 for 07, maintenance 11
// for MNT; copy 1 for an id without a name.
int area_function(int id);
// The screen the framework shows first when a function is chosen (what its function key
// opens); CID_01_01_N1 for a function without a screen of its own.
int first_screen_of(int function);

}  // namespace orvanta::sim
