#include "transform/angoli.h"

#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

std::int64_t drawSize(TransformControls& s) {
  Label& last = s.lblAngolo[21];
  std::int64_t size = 0;
  for (int i = 0; i < 100; ++i) {
    size = CasualeMinuti(s, 8);
    if (size == number(s, last)) continue;
    last.Caption = text(size);
    break;
  }
  return size;
}

void moveCorner(TransformControls& s) {
  Label& corner = s.lblAngolo[20];
  const std::string& way = s.lblAngoli.Caption;
  if (way == "Or") corner.Caption = text(number(s, corner) % 4 + 1);
  if (way == "Ao") corner.Caption = text((number(s, corner) + 2) % 4 + 1);
  if (way == "Rnd") corner.Caption = text(CasualeMinuti(s, 4));
}

}  // namespace

void ScegliColoreScelto(TransformControls& s) {
  s.lblColSCelto.Caption = text(CasualeMinuti(s, number(s, s.lblNSc)) - 1);
}

void NuovaFiguraAngolo(TransformControls& s) {
  const int size = static_cast<int>(drawSize(s));
  for (int i = 1; i <= 18; ++i) s.lblAngolo[i].Caption.clear();
  moveCorner(s);
  const std::int64_t corner = number(s, s.lblAngolo[20]);
  s.lblAngolo[18].Caption = text(2 * size + 1);
  if (corner < 1 || corner > 4) return;  // no such figure: the next step finds its place empty
  for (int n = 0; n <= 2 * size; ++n)
    s.lblAngolo[n + 1].Caption = text(angleLeader(static_cast<int>(corner), size, n));
}

void PassoAngolo(TransformControls& s) {
  Label& place = s.lblAngolo[0];
  place.Caption = text(number(s, place) + 1);
  if (number(s, place) > number(s, s.lblAngolo[18])) {
    NuovaFiguraAngolo(s);
    place.Caption = "1";
    ScegliColoreScelto(s);
  }
  const std::int64_t leader = number(s, s.lblAngolo[number(s, place)]);
  const std::int64_t slot = number(s, s.lblColSCelto);
  for (int i = 0; i <= 3; ++i) ScriviCella(s, leader + i, slot);
  ConsolidaPiano(s);
}

void lblAngoli_Click(TransformControls& s) {
  std::string& way = s.lblAngoli.Caption;
  if (way == "Or")
    way = "Ao";
  else if (way == "Ao")
    way = "Rnd";
  else if (way == "Rnd")
    way = "Or";
}

}  // namespace caleidoscopio
