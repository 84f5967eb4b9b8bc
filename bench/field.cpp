#include "field.h"

#include "mosaic/index_map.h"

namespace caleidoscopio::bench {

namespace {

template <class Row, std::size_t Count>
void copy(const Row& row, Cells<Count>& cells, int first) {
  for (int i = first; row.contains(i); ++i) {
    const auto at = static_cast<std::size_t>(i);
    cells.Caption[at] = row[i].Caption;
    cells.BackColor[at] = row[i].BackColor;
    cells.ForeColor[at] = row[i].ForeColor;
  }
}

template <class Row, std::size_t Count>
bool same(const Row& row, const Cells<Count>& cells) {
  for (int i = 1; i <= cellCount; ++i) {
    const auto at = static_cast<std::size_t>(i);
    if (cells.Caption[at] != row[i].Caption || cells.BackColor[at] != row[i].BackColor ||
        cells.ForeColor[at] != row[i].ForeColor)
      return false;
  }
  return true;
}

}  // namespace

void paint(Store& s, BareField& bare, bool digits) {
  s.lblVoceOpzioni[2].Caption = digits ? "Y" : "N";
  std::uint32_t random = 1;
  for (int base = 1; base <= centre; base += 4) {
    random = random * 1664525 + 1013904223;
    const Label& slot = s.lblValore[(random >> 16) % 7];
    for (int i = base; i < base + 4 && i <= centre; ++i)
      for (Label* cell : {&s.lblMiro[i], &s.lblMiro2[i]}) {
        cell->BackColor = slot.BackColor;
        cell->ForeColor = slot.ForeColor;
        cell->Caption = slot.Caption;
      }
  }
  copy(s.lblMiro, bare.miro, 0);
  copy(s.lblMiro2, bare.miro2, 0);
  copy(s.lblValore, bare.valore, 0);
}

bool sameField(const Store& s, const BareField& bare) {
  return same(s.lblMiro, bare.miro) && same(s.lblMiro2, bare.miro2);
}

void commit(BareField& field) {
  for (std::size_t i = 1; i <= cellCount; ++i) {
    field.miro2.BackColor[i] = field.miro.BackColor[i];
    field.miro2.ForeColor[i] = field.miro.ForeColor[i];
    for (std::size_t k = 0; k <= 6; ++k)
      if (field.miro.BackColor[i] == field.valore.BackColor[k]) {
        field.miro2.Caption[i] = field.valore.Caption[k];
        break;
      }
  }
}

}  // namespace caleidoscopio::bench
