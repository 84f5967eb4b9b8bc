#include "sequencer/steps.h"

#include "panel/numbers.h"
#include "sequencer/columns.h"

namespace caleidoscopio {

namespace {

/// "1-In" to "12-Out": sets the direction and clicks the family, as a person would.
void setShift(SequencerControls& s, const std::string& code) {
  for (int family = 1; family <= 12; ++family)
    for (const char* direction : {"In", "Out"})
      if (code == text(family) + "-" + direction) {
        s.lblOraria.Caption = direction;
        click(s.lblSposta, family);
        return;
      }
}

const FrameLetter* frameLetter(char letter) {
  for (const FrameLetter& known : frameLetters)
    if (known.letter == letter) return &known;
  return nullptr;
}

/// "O - I": the cross, then the frame.
void setFrame(SequencerControls& s, const std::string& code) {
  if (code.size() != 5 || code.substr(1, 3) != " - ") return;
  const FrameLetter* const letters[] = {frameLetter(code[0]), frameLetter(code[4])};
  if (!letters[0] || !letters[1]) return;
  for (int i = 1; i <= 2; ++i) {
    s.lblCorniceOpzio[i].Caption = letters[i - 1]->caption;
    s.lblCorniceOpzio[i].BackColor = letters[i - 1]->back;
  }
}

/// What a column drives, by the column's place.
struct Driven {
  Timer& timer;
  int onOff;
  void (*set)(SequencerControls&, Label& cell);
};

Driven drivenBy(SequencerControls& s, Column column) {
  switch (column) {
    case Column::A:
      return {s.TmrGoA, 1, [](SequencerControls& c, Label& cell) { setShift(c, cell.Caption); }};
    case Column::B:
      // A cleared cell is no number and ends the run: it is not to be made safe.
      return {s.TmrGoB, 2,
              [](SequencerControls& c, Label& cell) { click(c.lblTransf, number(c, cell)); }};
    default:
      return {s.TmrGoC, 3, [](SequencerControls& c, Label& cell) { setFrame(c, cell.Caption); }};
  }
}

void runColumn(SequencerControls& s, Column column, const Number& row) {
  const Driven driven = drivenBy(s, column);
  Label& cell = cellOf(s, column, row);
  const bool excluded = s.lblDisattiva[static_cast<int>(column)].BackColor != colours::unselected;
  if (excluded || cell.Caption == offStep) {
    s.cmdOnOff[driven.onOff].BackColor = colours::pressed;
    driven.timer.setEnabled(false);
    return;
  }
  s.cmdOnOff[driven.onOff].BackColor = colours::running;
  driven.set(s, cell);
  driven.timer.setEnabled(true);
}

}  // namespace

const Column* editedColumn(const SequencerControls& s) {
  static constexpr const char* names[] = {"A", "B", "C"};
  for (const Column& column : columns3)
    if (s.lblSeq[3].Caption == names[static_cast<std::size_t>(column)]) return &column;
  return nullptr;
}

void TmrSequencer_Timer(SequencerControls& s) {
  const Number row = number(s, s.lblSeq[4]);
  const Number previous = row == 1 ? number(s, s.lblSeq[5]) : row - 1;
  for (const Column column : columns3) cellOf(s, column, previous).BackColor = colours::inRange;
  s.lblNOrdine[previous].BackColor = colours::unselected;
  for (const Column column : columns3) cellOf(s, column, row).BackColor = colours::selected;
  s.lblNOrdine[row].BackColor = colours::selected;
  for (const Column column : columns3) runColumn(s, column, row);
  // Between two steps the cursor is on the step to come, the marks on the step in force.
  s.lblSeq[4].Caption = row + 1 <= number(s, s.lblSeq[5]) ? text(row + 1) : "1";
}

}  // namespace caleidoscopio
