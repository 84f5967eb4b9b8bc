#pragma once

#include "frame/frame_controls.h"

namespace caleidoscopio {

/// One step of cross and frame, each by its own option, and the commit of the planes; the commit
/// also when both are "Off".
void TmrGoC_Timer(FrameControls& s);

/// Moves the cross by one place: out to the frame or in to the centre.
void MuoviCroce(FrameControls& s);
/// Moves the frame by one place: out to the corners or in to the middle of the sides. The corners
/// are no place of the line: they repeat the middle.
void MuoviCornice(FrameControls& s);
/// Moves the cross and drags the frame along with it.
void MuoviCroceSyn(FrameControls& s);

/// What enters a line that has moved: the cell that dropped off its end (lblMemC), or at random a
/// fresh colour. Draws only while lblRandomC is selected; ends the run when the rarity is below 1.
const Frame& ColoreEntrante(FrameControls& s);
/// Draws a fresh colour into lblScegliColTmr, from the first slots as many as lblColCornice says.
/// Ends the run when that is below 1, or when it draws an element that lblValore does not have.
void PescaColoreCornice(FrameControls& s);

/// Steps option n, 1 cross or 2 frame: "Off", "Out", "In". Felt at the next tick.
void lblCorniceOpzio_MouseDown(FrameControls& s, int n);
/// Whether fresh colours enter.
void lblRandomC_Click(FrameControls& s);
/// The arrows of the rarity, 1 down and 2 up, from 1 to 36 and round; they repeat while held.
void lblRndC_MouseDown(FrameControls& s, int a);
void lblRndC_MouseUp(FrameControls& s, int a);
void TmrFrqRnd_Timer(FrameControls& s);
/// From how many slots a fresh colour is drawn, 2 to 7 and round.
void lblColCornice_MouseDown(FrameControls& s);
void lblColCornice_MouseUp(FrameControls& s);

}  // namespace caleidoscopio
