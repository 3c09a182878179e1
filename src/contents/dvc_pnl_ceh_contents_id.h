// Contents ids: the integer that names each panel screen, and the pseudo ids used as targets.
#pragma once

namespace orvanta {

// Plain integer enumeration so ids convert to and from int freely, as they are stored in the data
// manager and in tables. The named screen ids join this enumeration with the contents factory.
enum DVC_PNL_CEH_CONTENTS_ID : int {
  // Pseudo ids: never created as screens.
  CID_TOP = 900001,     // stored back target: the function's base screen
  CID_PARENT = 900002,  // stored back target: the parent
  CID_NONE = 900003,    // no contents; the empty value of every field that holds an id
};

}  // namespace orvanta
