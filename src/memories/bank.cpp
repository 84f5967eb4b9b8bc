#include "memories/bank.h"

#include "memories/memory_files.h"
#include "mosaic/tools.h"
#include "panel/numbers.h"
#include "panel/properties.h"

namespace caleidoscopio {

namespace {

constexpr int enterKey = 13;
constexpr int firstPreset = 11;
constexpr int presetTitles = 90;  ///< from a preset's button to its title

bool lit(const Frame& control) {
  return control.BackColor == colours::selected;
}

/// The number of the memory under button k of the bank shown.
std::int64_t memoryNumber(const MemoryControls& s, std::int64_t k) {
  return k + 10 * number(s, s.lblMemo[0]);
}

/// Whatever was current is merely occupied now.
void clearCurrentMarks(MemoryControls& s) {
  for (int i = 0; i <= 15; ++i)
    if (s.lblSave[i].BackColor == colours::pressed) s.lblSave[i].BackColor = colours::occupied;
  for (int n = 0; n <= 105; ++n)
    if (s.lblComb[n].BackColor == colours::pressed) s.lblComb[n].BackColor = colours::occupied;
}

void load(MemoryControls& s, std::int64_t button, std::int64_t title, const std::string& name) {
  s.lblSelez.Caption = name;
  s.lblNomefile.Caption = s.lblComb[title].Caption;
  clearCurrentMarks(s);
  s.lblSave[button].BackColor = colours::pressed;
  s.lblComb[title].BackColor = colours::pressed;
  CaricaMemoria(s);
  showContour(s);
}

/// The box always opens with the title that is stored.
void ApriNomeMemoria(MemoryControls& s) {
  const std::int64_t n = memoryNumber(s, number(s, s.lblSave[10]));
  s.lblSelez.Caption = text(n);
  s.FraMemoria.Visible = true;
  s.TxtNomeMemoria.Text = s.lblComb[n].Caption;
}

/// The frame's colour says what saving will do: overwrite another memory, the current one, or
/// make a new one.
void askForTitle(MemoryControls& s, Colour state) {
  s.FraMemoria.BackColor = state;
  ApriNomeMemoria(s);
}

void AggiornaBanco(MemoryControls& s) {
  for (int i = 0; i <= 9; ++i) s.lblSave[i].BackColor = s.lblComb[memoryNumber(s, i)].BackColor;
  showTitlesOfBank(s);
}

void stepBank(MemoryControls& s, bool up) {
  std::string& bank = s.lblMemo[0].Caption;
  if (up)
    bank = bank == "9" ? "0" : text(number(s, s.lblMemo[0]) + 1);
  else
    bank = bank == "0" ? "9" : text(number(s, s.lblMemo[0]) - 1);
  AggiornaBanco(s);
}

void clickNumbered(MemoryControls& s, int k) {
  s.lblSave[10].Caption = text(k);
  const std::int64_t n = memoryNumber(s, k);
  const Colour state = s.lblSave[k].BackColor;
  if (state == colours::occupied && lit(s.lblCanc)) {
    // The file stays on the disk; the button forgets it.
    s.lblSave[k].BackColor = s.lblComb[n].BackColor = colours::unselected;
    s.lblCanc.BackColor = colours::unselected;
    return;
  }
  if (state != colours::occupied && state != colours::pressed && state != colours::unselected)
    return;
  if (lit(s.lblComandiVari[1]))
    askForTitle(s, state);
  else if (state != colours::unselected)
    load(s, k, n, text(n));
}

}  // namespace

void showTitlesOfBank(MemoryControls& s) {
  // A caption that is no bank shows none; where a bank is needed, number() says what is wrong.
  const auto bank = wholeNumber(s.lblMemo[0].Caption);
  for (int n = 0; n <= 99; ++n) s.lblComb[n].Visible = bank == n / 10;
}

void lblSave_Click(MemoryControls& s, int k) {
  if (k <= 9) return clickNumbered(s, k);
  load(s, k, k + presetTitles, std::string(1, static_cast<char>('A' + k - firstPreset)));
}

void lblSalvaComb_Click(MemoryControls& s, int k) {
  if (k == 0) {
    s.lblNomefile.Caption = s.TxtNomeMemoria.Text;
    const std::int64_t n = number(s, s.lblSelez);
    s.lblComb[n].Caption = s.TxtNomeMemoria.Text;
    clearCurrentMarks(s);
    s.lblSave[number(s, s.lblSave[10])].BackColor = colours::pressed;
    s.lblComb[n].BackColor = colours::pressed;
    SalvaMemoria(s);
  }
  s.FraMemoria.Visible = false;
  s.lblComandiVari[1].BackColor = colours::unselected;
}

void TxtNomeMemoria_KeyPress(MemoryControls& s, int code) {
  if (code == enterKey) lblSalvaComb_Click(s, 0);
}

void lblCanc_Click(MemoryControls& s) {
  if (lit(s.lblCanc)) {
    s.lblCanc.BackColor = colours::unselected;
    return;
  }
  // To clear and to save exclude each other.
  s.lblCanc.BackColor = colours::selected;
  s.lblComandiVari[1].BackColor = colours::unselected;
  s.FraMemoria.Visible = false;
}

void lblComandiVari_Click(MemoryControls& s, int k) {
  if (k != 1) return;
  if (s.lblComandiVari[1].BackColor == colours::unselected) {
    s.lblComandiVari[1].BackColor = colours::selected;
    s.lblCanc.BackColor = colours::unselected;
  } else {
    s.lblComandiVari[1].BackColor = colours::unselected;
    s.FraMemoria.Visible = false;
  }
}

void lblMemo_MouseDown(MemoryControls& s, int k) {
  s.lblMemo[k].BackColor = colours::pressed;
  stepBank(s, k == 2);
  s.TmrScorriMemo.setEnabled(true);
}

void lblMemo_MouseUp(MemoryControls& s, int k) {
  s.lblMemo[k].BackColor = colours::idle;
  s.TmrScorriMemo.setEnabled(false);
}

void TmrScorriMemo_Timer(MemoryControls& s) {
  stepBank(s, s.lblMemo[2].BackColor == colours::pressed);
}

}  // namespace caleidoscopio
