#include "sequencer/editing.h"

#include <optional>
#include <span>
#include <string>

#include "panel/numbers.h"
#include "panel/scaling.h"
#include "sequencer/columns.h"

namespace caleidoscopio {

namespace {

constexpr int rowCount = 24;

/// Values from `from` to `to` that are multiples of `every` move by `step`.
struct Rung {
  std::int64_t from, to, every, step;
};
// The ladder is uneven on purpose: one odd step between 10 and 25, and a whole thousand for
// whatever is on no rung.
constexpr Rung longer[] = {
    {60000, 60000, 1, 0}, {1000, 29500, 1, 500}, {25, 975, 25, 25}, {10, 10, 1, 15}};
constexpr Rung shorter[] = {{1500, 30000, 1, -500},
                            {1000, 1000, 1, -25},
                            {50, 975, 25, -25},
                            {25, 25, 1, -15},
                            {10, 10, 1, 0}};
constexpr std::int64_t offTheLadder = 1000;

void stepInterval(SequencerControls& s, bool up) {
  std::int64_t value = number(s, s.lblSeq[0]);
  std::int64_t step = up ? offTheLadder : -offTheLadder;
  for (const Rung& rung : up ? std::span<const Rung>(longer) : std::span<const Rung>(shorter))
    if (rung.from <= value && value <= rung.to && value % rung.every == 0) {
      step = rung.step;
      break;
    }
  value += step;
  s.lblSeq[0].Caption = text(value);
  s.TmrSequencer.setInterval(value);
}

void markCursor(SequencerControls& s, const Number& row) {
  s.lblNOrdine[row].BackColor = colours::selected;
  if (const Column* column = editedColumn(s)) cellOf(s, *column, row).BackColor = colours::selected;
}

void unmarkCursor(SequencerControls& s, const Number& row) {
  s.lblNOrdine[row].BackColor = colours::unselected;
  if (const Column* column = editedColumn(s)) cellOf(s, *column, row).BackColor = colours::inRange;
}

void moveCursor(SequencerControls& s, const Number& from, const Number& to) {
  unmarkCursor(s, from);
  s.lblSeq[4].Caption = text(to);
  markCursor(s, to);
}

void advanceCursor(SequencerControls& s) {
  const Number row = number(s, s.lblSeq[4]);
  moveCursor(s, row, row == number(s, s.lblSeq[5]) ? Number(1) : row + 1);
}

void nextColumn(SequencerControls& s) {
  const Column* left = editedColumn(s);
  if (!left) return;
  const Column entered = columns3[(static_cast<std::size_t>(*left) + 1) % columns3.size()];
  static constexpr const char* names[] = {"A", "B", "C"};
  static constexpr int headings[] = {12, 13, 19};
  s.lblSeq[3].Caption = names[static_cast<std::size_t>(entered)];
  for (const int heading : headings) s.lblScritteVarie[heading].BackColor = colours::unselected;
  s.lblScritteVarie[headings[static_cast<std::size_t>(entered)]].BackColor = colours::selected;
  const Number last = number(s, s.lblSeq[5]);
  for (std::int64_t row = 1; row <= last; ++row) cellOf(s, *left, row).BackColor = colours::inRange;
  cellOf(s, entered, number(s, s.lblSeq[4])).BackColor = colours::selected;
}

/// The code of the panel's present state, or nothing where a frame option is unknown.
std::optional<std::string> presentCode(const SequencerControls& s, Column column) {
  const int onOff = static_cast<int>(column) + 1;
  if (s.cmdOnOff[onOff].BackColor != colours::running) return offStep;
  if (column == Column::A)
    return s.lblShift.Caption + (s.lblOraria.Caption == "Out" ? "-Out" : "-In");
  if (column == Column::B) return s.lblTransf[0].Caption;
  std::string code = "? - ?";
  for (int i = 1; i <= 2; ++i)
    for (const FrameLetter& known : frameLetters)
      if (s.lblCorniceOpzio[i].Caption == known.caption) code[i == 1 ? 0 : 4] = known.letter;
  if (code.find('?') != std::string::npos) return std::nullopt;
  return code;
}

/// Writes into the cell under the cursor, and goes on to the next.
void writeCell(SequencerControls& s, bool clear) {
  if (const Column* column = editedColumn(s)) {
    const auto code = clear ? std::optional<std::string>(clearedStep) : presentCode(s, *column);
    if (code) cellOf(s, *column, number(s, s.lblSeq[4])).Caption = *code;
  }
  advanceCursor(s);
}

void fill(SequencerControls& s, Column column) {
  for (int row = 1; row <= rowCount; ++row) cellOf(s, column, row).Caption = offStep;
}

/// One row more; beyond 24 the length falls back to the cursor, and to 2 at the least. True when
/// it fell back.
bool growLength(SequencerControls& s) {
  const std::int64_t length = number(s, s.lblSeq[5]);
  if (length < rowCount) s.lblSeq[5].Caption = text(length + 1);
  if (length != rowCount) return false;
  s.lblSeq[5].Caption = s.lblSeq[4].Caption == "1" ? "2" : s.lblSeq[4].Caption;
  return true;
}

void repaintColumn(SequencerControls& s, Column column, bool rowsAbove) {
  const Number last = number(s, s.lblSeq[5]);
  for (Number row = last.becoming(1); row <= last; row = row + 1)
    cellOf(s, column, row).BackColor = colours::inRange;
  for (std::int64_t row = last + 1; rowsAbove && row <= rowCount; ++row)
    cellOf(s, column, row).BackColor = colours::unselected;
}

void markEditedCell(SequencerControls& s) {
  if (const Column* column = editedColumn(s))
    cellOf(s, *column, number(s, s.lblSeq[4])).BackColor = colours::selected;
}

/// Hidden, shown while stopped, shown always.
void stepDisplay(SequencerControls& s) {
  Label& state = s.lblSeq[11];
  Frame& table = s.FraPannello[2];
  if (state.BackColor == colours::unselected) {
    state.BackColor = colours::selected;
  } else if (state.BackColor == colours::selected) {
    state.BackColor = colours::pressed;
  } else if (state.BackColor == colours::pressed) {
    state.BackColor = colours::unselected;
    table.Visible = false;
    return;
  } else {
    return;
  }
  table.Visible = true;
  if (s.lblHide.BackColor == colours::selected)
    s.FraPannello.geometry(2).Left = placedLeft(fitTo(s.platform->screen), sequencerTableLeft);
}

std::optional<Column> filledBy(int k) {
  if (k == 9) return Column::A;
  if (k == 10) return Column::B;
  if (k == 13) return Column::C;
  return std::nullopt;
}

}  // namespace

void lblSeq_MouseDown(SequencerControls& s, int k) {
  if (k == 1 || k == 2) {
    s.lblSeq[k].BackColor = colours::pressed;
    stepInterval(s, k == 2);
    s.TmrScorriSeq.setEnabled(true);
    return;
  }
  if (s.TmrSequencer.Enabled()) return;
  if (k == 11) return stepDisplay(s);
  if (k != 3 && k != 5 && k != 6 && k != 7 && !filledBy(k)) return;
  s.lblSeq[k].BackColor = colours::pressed;
  if (k == 3) nextColumn(s);
  if (k == 5) s.TmrStepTotali.setEnabled(true);
  if (k == 6 || k == 7) writeCell(s, k == 6);
}

void lblSeq_MouseUp(SequencerControls& s, int k) {
  if (k == 1 || k == 2) {
    s.lblSeq[k].BackColor = colours::idle;
    s.TmrScorriSeq.setEnabled(false);
    return;
  }
  if (k != 3 && k != 5 && k != 6 && k != 7 && !filledBy(k)) return;
  s.lblSeq[k].BackColor = colours::unselected;
  if (k != 5) return;
  s.TmrStepTotali.setEnabled(false);
  if (s.TmrSequencer.Enabled()) return;
  growLength(s);
  for (const Column column : columns3) repaintColumn(s, column, true);
  markEditedCell(s);
}

void lblSeq_Click(SequencerControls& s, int k) {
  if (const auto column = filledBy(k)) fill(s, *column);
}

void TmrScorriSeq_Timer(SequencerControls& s) {
  const bool up = s.lblSeq[1].BackColor != colours::pressed;
  if (up) s.lblSeq[2].BackColor = colours::pressed;
  stepInterval(s, up);
}

void TmrStepTotali_Timer(SequencerControls& s) {
  const std::string before = s.lblSeq[5].Caption;
  if (growLength(s)) {
    // Falling back to 2 leaves the rows above in column C as they were: meant to stay.
    const bool toTwo = s.lblSeq[4].Caption == "1";
    for (const Column column : columns3) repaintColumn(s, column, !(toTwo && column == Column::C));
    markEditedCell(s);
  } else if (s.lblSeq[5].Caption != before) {
    for (const Column column : columns3)
      cellOf(s, column, number(s, s.lblSeq[5])).BackColor = colours::inRange;
  }
}

void lblAvanza_MouseDown(SequencerControls& s, int k) {
  s.lblAvanza[k].BackColor = colours::pressed;
  s.TmrAvanza.setEnabled(true);
}

void lblAvanza_MouseUp(SequencerControls& s, int k) {
  s.lblAvanza[k].BackColor = colours::idle;
  s.TmrAvanza.setEnabled(false);
}

void TmrAvanza_Timer(SequencerControls& s) {
  if (s.lblAvanza[1].BackColor == colours::pressed) return advanceCursor(s);
  const Number row = number(s, s.lblSeq[4]);
  // The first row is known by its text, the last one by its number: both are meant to stay.
  moveCursor(s, row, s.lblSeq[4].Caption == "1" ? number(s, s.lblSeq[5]) : row - 1);
}

void lblNOrdine_MouseDown(SequencerControls& s, int k) {
  s.lblNOrdine[k].BackColor = colours::pressed;
}

void lblNOrdine_MouseUp(SequencerControls& s, int k) {
  s.lblNOrdine[k].BackColor = colours::unselected;
}

void lblNOrdine_Click(SequencerControls& s, int) {
  for (const Column column : columns3) fill(s, column);
}

void lblDisattiva_Click(SequencerControls& s, int k) {
  const bool out = s.lblDisattiva[k].BackColor != colours::selected;
  s.lblDisattiva[k].BackColor = out ? colours::selected : colours::unselected;
  for (int row = 1; row <= rowCount; ++row) cellOf(s, static_cast<Column>(k), row).Enabled = !out;
}

}  // namespace caleidoscopio
