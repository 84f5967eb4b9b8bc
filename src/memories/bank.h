#pragma once

#include "memories/memory_controls.h"

namespace caleidoscopio {

/// A click on a memory's button. By its colour and by what is lit it loads, opens the naming box
/// to save, or clears; 0 to 9 are those of the bank shown, 11 to 15 the presets, which can only be
/// loaded. 10 is no button.
void lblSave_Click(MemoryControls& s, int k);

/// Of the titles in the list, shows those of the bank shown; the others are parked.
void showTitlesOfBank(MemoryControls& s);

/// The naming box: 0 "Ok" saves under the title typed, 1 "Annulla" does not.
void lblSalvaComb_Click(MemoryControls& s, int k);
/// Key code 13 is "Ok"; any other only types.
void TxtNomeMemoria_KeyPress(MemoryControls& s, int code);

/// "Canc": the next click on an occupied memory clears it.
void lblCanc_Click(MemoryControls& s);
/// "Save", element 1: the next click on a memory saves. "Load" does nothing.
void lblComandiVari_Click(MemoryControls& s, int k);

/// Bank down (1) and up (2), ten of them round and round.
void lblMemo_MouseDown(MemoryControls& s, int k);
void lblMemo_MouseUp(MemoryControls& s, int k);
void TmrScorriMemo_Timer(MemoryControls& s);

}  // namespace caleidoscopio
