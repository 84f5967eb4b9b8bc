#include "transform/lineare.h"

#include <string_view>

#include "mosaic/cells.h"
#include "mosaic/random_pick.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

/// A step on the torus: `wrap` is added besides at the edge, the row or the column named.
struct Step {
  std::string_view direction;
  int leader, wrap;
  int edgeRow, edgeColumn;
};
constexpr int no = -1;
constexpr Step steps[] = {
    {"-36", -36, 324, 0, no}, {"4", 4, -36, no, 8}, {"36", 36, -324, 8, no}, {"-4", -4, 36, no, 0}};

std::int64_t nextLeader(std::int64_t leader, std::string_view direction) {
  const std::int64_t row = (leader - 1) / 36;
  const std::int64_t column = (leader - 1) % 36 / 4;
  for (const Step& step : steps) {
    if (step.direction != direction) continue;
    const bool atEdge = row == step.edgeRow || column == step.edgeColumn;
    return leader + step.leader + (atEdge ? step.wrap : 0);
  }
  return leader;
}

/// The four turns that a draw chooses among, after a run in one of the directions named.
struct Turns {
  std::string_view after, orAfter;
  std::string_view drawn[4];
};
// A run never goes straight on nor back.
constexpr Turns turns[] = {{"", "", {"-36", "4", "36", "-4"}},
                           {"-36", "36", {"4", "4", "-4", "-4"}},
                           {"4", "-4", {"36", "36", "-36", "-36"}}};

void ScegliLunghezza(TransformControls& s) {
  s.lblLungh.Caption = s.lblLunghez[CasualeMinuti(s, number(s, s.lblLunghez[0]))].Caption;
}

void ScegliDirezione(TransformControls& s) {
  const std::int64_t d = CasualeMinuti(s, 4);
  std::string& direction = s.lblDirezione.Caption;
  for (const Turns& turn : turns) {
    if (direction != turn.after && direction != turn.orAfter) continue;
    direction = turn.drawn[d - 1];
    return;
  }
}

const Label& drawSlot(TransformControls& s) {
  return s.lblValore[CasualeMinuti(s, number(s, s.lblColNumber)) - 1];
}

/// Draws the second colour until it differs from the first; after 30 draws the two may be equal,
/// and the line has one colour.
void ScegliCarat2(TransformControls& s) {
  for (int i = 0; i < 30; ++i) {
    copyCell(s.lblCarat2, drawSlot(s));
    if (s.lblCarat2.BackColor != s.lblCarat.BackColor) return;
  }
}

/// One run in five may change the first colour.
void CambiaCarat(TransformControls& s) {
  if (CasualeMinuti(s, 5) != 5) return;
  copyCell(s.lblProvaCambioCol, drawSlot(s));
  copyCell(s.lblCarat, s.lblProvaCambioCol);
}

void shorten(TransformControls& s) {
  s.lblLungh.Caption = text(number(s, s.lblLungh) - 1);
}

void listLengths(TransformControls& s) {
  for (int i = 0; i <= 8; ++i) s.lblLunghez[i].Caption = "0";
  int count = 0;
  for (int i = 1; i <= 8; ++i)
    if (s.lblLung[i].BackColor == colours::selected) s.lblLunghez[++count].Caption = text(i);
  s.lblLunghez[0].Caption = text(count);
}

}  // namespace

void PreparaLineare(TransformControls& s) {
  s.lblCasel.Caption = text((CasualeMinuti(s, 81) - 1) * 4 + 1);
  copyCell(s.lblCarat, s.lblMiro2[number(s, s.lblCasel)]);
  ScegliCarat2(s);
  ScegliLunghezza(s);
  shorten(s);
  ScegliDirezione(s);
}

void PassoLineare(TransformControls& s) {
  if (number(s, s.lblLungh) <= 0) {
    ScegliLunghezza(s);
    ScegliDirezione(s);
    CambiaCarat(s);
    ScegliCarat2(s);
  }
  const std::int64_t leader = nextLeader(number(s, s.lblCasel), s.lblDirezione.Caption);
  s.lblCasel.Caption = text(leader);
  auto& display = s.lblMiro;
  auto& design = s.lblMiro2;
  const bool inverts = display[leader].BackColor == s.lblCarat.BackColor;
  const Label& paint = inverts ? s.lblCarat2 : s.lblCarat;
  for (int i = 0; i <= 3; ++i) {
    copyShown(s, display[leader + i], paint);
    copyCell(design[leader + i], paint);
  }
  shorten(s);
}

void lblLung_Click(TransformControls& s, int k) {
  Label& length = s.lblLung[k];
  if (length.BackColor == colours::unselected) {
    length.BackColor = colours::selected;
    listLengths(s);
  } else if (s.lblLunghez[0].Caption != "1") {
    length.BackColor = colours::unselected;
    listLengths(s);
  } else {
    // The last one stays. The list holds what was clicked, not what a memory lit since: then this
    // can put out length 1, and the branch above the only one lit. Both are meant to stay so.
    s.lblLung[1].BackColor = colours::unselected;
    length.BackColor = colours::selected;
  }
}

void lblColNumber_MouseDown(TransformControls& s) {
  Label& count = s.lblColNumber;
  count.BackColor = colours::pressed;
  count.Caption = count.Caption == "7" ? "1" : text(number(s, count) + 1);
}

void lblColNumber_MouseUp(TransformControls& s) {
  s.lblColNumber.BackColor = colours::unselected;
}

}  // namespace caleidoscopio
