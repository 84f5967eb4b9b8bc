#pragma once

#include "break/break_controls.h"

namespace caleidoscopio {

// The life of a Break. The engines stand still while it sweeps and waits; what runs again after it
// is always decided by a complete Go, never by the Break itself.
//
//   stopped or running --Command7 or TmrBrk--> SWEEPING
//   SWEEPING --the tick that finds lblBreak at "1"--> its end:
//     repeat, no wait  -> SWEEPING again, at once
//     a wait in (16)   -> WAITING, until TmrAspetta fires
//     neither          -> Go if the instrument was running, else stopped
//   WAITING --TmrAspetta-->
//     repeat           -> SWEEPING
//     no repeat        -> Go if the instrument was running, else stopped
//
// TmrBrk is not stopped by a Break started by hand: it can fire in mid-sweep and start anew over
// the sweep under way. That is accepted; the earlier pattern's button is cleared at the end.

/// Starts a Break: kind, pattern and direction are chosen, the next picture or colour prepared,
/// the engines stopped and the buttons locked. Ends the run when a caption that it needs is no
/// number of 16 bits, or when lblBreakMode(0) counts no pattern.
void Command7_Click(BreakControls& s);

/// One step of the sweep, or its end with the hand-over to what follows.
void TmrBreak_Timer(BreakControls& s);

/// The pause between Breaks is over: starts one.
void TmrBrk_Timer(BreakControls& s);

/// The wait after a Break is over: starts the next one, or runs Go if the instrument was running.
void TmrAspetta_Timer(BreakControls& s);

/// Service button: stops the sweep where it is. Display half swept, buttons locked; meant so.
void Command8_Click(BreakControls& s);

}  // namespace caleidoscopio
