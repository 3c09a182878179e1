// The simulated program store (0.865) and one touch key store (0.503.990, called through
// 0.896.351.2033): the answers the panel's clients see.
#pragma once

namespace orvanta::machine {

// Program slots 1 to kProgramSlots and one touch keys 1 to kOneTouchKeys are held.
inline constexpr long kProgramSlots = 4;
inline constexpr long kOneTouchKeys = 22;

// RESULT of a program query (acquire, confirm) that was answered.
inline constexpr long kProgramQueryDone = 0;
// RESULT of a program call, a register or delete of either store, reading a used one touch key
// and calling a one touch key.
inline constexpr long kStoreDone = 1;
// RESULT of reading a free one touch key.
inline constexpr long kOneTouchKeyFree = 5;
// RESULT of every refusal: a number outside the store, a request that lacks a field, a call or
// confirmation of a free slot, a new key over a used one or an overwrite of a free one.
inline constexpr long kStoreRefused = 2;

// Slot states of the acquire answer (node 2039), and the status of the confirmation (node 2092)
// that allows the call of a used slot.
inline constexpr long kProgramFree = 1;
inline constexpr long kProgramInUse = 2;
inline constexpr long kProgramCallAllowed = 1;

}  // namespace orvanta::machine
