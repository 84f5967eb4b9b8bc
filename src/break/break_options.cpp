#include "break/break_options.h"

#include <string>
#include <string_view>

#include "break/patterns.h"
#include "panel/numbers.h"

namespace caleidoscopio {

namespace {

/// An option that a click steps through its captions.
struct Choice {
  std::string_view caption, next;
};
constexpr Choice directions[] = {{"Out", "In"}, {"In", "O/I"}, {"O/I", "Alt"}, {"Alt", "Out"}};
constexpr Choice kinds[] = {{"U", "C"}, {"C", "N"}, {"N", "R"}, {"R", "U"}};

/// What a direction mode says of itself, and what it adds to a pattern's name.
struct DirectionText {
  std::string_view mode, itself, ofPattern;
};
constexpr DirectionText directionTexts[] = {
    {"Out", "Solo Break Out", ""},  // each pattern has its own wording
    {"In", "Solo Break In", " (In)"},
    {"O/I", "Random Break O/I", " (Out or In)"},
    {"Alt", "Alterna Break O/I", " (Out or In)"},
};

/// The wait in milliseconds by rungs. Down from 4250 leads up to 4500, so that a wait above 4000
/// never steps down to 4000 or less. The one rung out of line is meant to stay.
struct WaitRung {
  std::string_view wait, down, up;
};
constexpr WaitRung waits[] = {
    {"0", "0", "250"},        {"250", "0", "500"},      {"500", "250", "750"},
    {"750", "500", "1000"},   {"1000", "750", "1250"},  {"1250", "1000", "1500"},
    {"1500", "1250", "1750"}, {"1750", "1500", "2000"}, {"2000", "1750", "2250"},
    {"2250", "2000", "2500"}, {"2500", "2250", "2750"}, {"2750", "2500", "3000"},
    {"3000", "2750", "3250"}, {"3250", "3000", "3500"}, {"3500", "3250", "3750"},
    {"3750", "3500", "4000"}, {"4000", "3750", "4250"}, {"4250", "4500", "4500"},
    {"4500", "4250", "4750"}, {"4750", "4500", "5000"}, {"5000", "4750", "5000"},
};

template <std::size_t N>
void stepChoice(Label& option, const Choice (&choices)[N]) {
  for (const Choice& choice : choices)
    if (option.Caption == choice.caption) {
      option.Caption = choice.next;
      return;
    }
}

void stepWait(Label& wait, bool up) {
  for (const WaitRung& rung : waits)
    if (wait.Caption == rung.wait) {
      wait.Caption = up ? rung.up : rung.down;
      return;
    }
}

/// Only a button in one of its two colours answers: one that a sweep marks does nothing.
void togglePattern(BreakControls& s, Label& button) {
  Label& count = s.lblBreakMode[0];
  if (button.BackColor == colours::unselected) {
    button.BackColor = colours::selected;
    count.Caption = text(number16(s, count) + 1);
  } else if (button.BackColor == colours::selected && count.Caption != "1") {
    button.BackColor = colours::unselected;
    count.Caption = text(number16(s, count) - 1);
  } else {
    return;
  }
  // "All" only goes out here: twelve selected one by one do not light it.
  if (count.Caption != "12") s.lblBreakMode[13].BackColor = colours::unselected;
}

void toggleAll(BreakControls& s) {
  const Colour was = s.lblBreakMode[13].BackColor;
  if (was == colours::unselected) {
    for (int i = 1; i <= 13; ++i) s.lblBreakMode[i].BackColor = colours::selected;
    s.lblBreakMode[0].Caption = "12";
  } else if (was == colours::selected) {
    for (int i = 1; i <= 13; ++i) s.lblBreakMode[i].BackColor = colours::unselected;
    s.lblBreakMode[immediato].BackColor = colours::selected;
    s.lblBreakMode[0].Caption = "1";
  }
}

void toggle(Label& option) {
  const bool on = option.BackColor == colours::selected;
  option.BackColor = on ? colours::unselected : colours::selected;
}

std::string description(const BreakControls& s, int i) {
  if (i == 13)
    return s.lblBreakMode[13].BackColor == colours::selected ? "- Tutti i Break selezionati -"
                                                             : "- Seleziona tutti i Break -";
  if (i == immediato) return "Immediato";
  const BreakPattern* pattern = findBreakPattern(i);
  for (const DirectionText& direction : directionTexts) {
    if (s.lblBreakMode[14].Caption != direction.mode) continue;
    if (i == 14) return std::string(direction.itself);
    if (!pattern) return "";
    if (direction.ofPattern.empty()) return std::string(pattern->hoverOut);
    return std::string(pattern->name) + std::string(direction.ofPattern);
  }
  return "";
}

}  // namespace

void lblBreakMode_Click(BreakControls& s, int i) {
  Label& option = s.lblBreakMode[i];
  if (1 <= i && i <= 12) togglePattern(s, option);
  if (i == 13) toggleAll(s);
  if (i == 14) stepChoice(option, directions);
  if (i == 18) stepChoice(option, kinds);
  if (i == 19) toggle(option);
  if (i == 21) {
    toggle(option);
    s.lblSpiaBreak.BackColor = option.BackColor;
  }
}

void lblBreakMode_MouseDown(BreakControls& s, int i) {
  Label& option = s.lblBreakMode[i];
  option.BackColor = colours::pressed;
  if (i == 22 || i == 23) stepWait(s.lblBreakMode[16], i == 23);
  if (i == 24) option.Caption = option.Caption == "Rnd" ? "Seq" : "Rnd";
}

void lblBreakMode_MouseUp(BreakControls& s, int i) {
  s.lblBreakMode[i].BackColor = i == 22 || i == 23 ? colours::idle : colours::unselected;
}

void lblBreakMode_MouseMove(BreakControls& s, int i) {
  s.lblBreakMode[20].Caption = description(s, i);
}

}  // namespace caleidoscopio
