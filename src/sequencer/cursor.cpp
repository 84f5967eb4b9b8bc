#include "sequencer/cursor.h"

#include "panel/numbers.h"

namespace caleidoscopio {

void markTableForRun(SequencerControls& s) {
  // Row 1 is left out of both loops, and stays so.
  for (int row = 2; row <= 24; ++row)
    for (Frame* cell : {&s.lblNOrdine[row], &s.lblTmrA[row], &s.lblTmrB[row], &s.lblTmrC[row]})
      cell->BackColor = colours::unselected;
  const Number last = number(s, s.lblSeq[5]);
  for (Number row = last.becoming(2); row <= last; row = row + 1)
    for (Frame* cell : {&s.lblTmrA[row], &s.lblTmrB[row], &s.lblTmrC[row]})
      cell->BackColor = colours::inRange;
  const Number cursor = number(s, s.lblSeq[4]);
  for (Frame* cell :
       {&s.lblNOrdine[cursor], &s.lblTmrA[cursor], &s.lblTmrB[cursor], &s.lblTmrC[cursor]})
    cell->BackColor = colours::selected;
}

void rewindCursor(SequencerControls& s) {
  const Number cursor = number(s, s.lblSeq[4]);
  // Read only where a cell is marked: the caption itself is carried over as it stands.
  const auto row = [&] { return cursor == 1 ? number(s, s.lblSeq[5]) : cursor - 1; };
  const std::string& edited = s.lblSeq[3].Caption;
  if (edited == "B" || edited == "C") s.lblTmrA[row()].BackColor = colours::inRange;
  if (edited == "A" || edited == "C") s.lblTmrB[row()].BackColor = colours::inRange;
  if (edited == "A" || edited == "B") s.lblTmrC[row()].BackColor = colours::inRange;
  s.lblSeq[4].Caption = cursor == 1 ? s.lblSeq[5].Caption : text(cursor - 1);
}

}  // namespace caleidoscopio
