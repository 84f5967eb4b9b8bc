#include "endurance/set_ups.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "sequencer/columns.h"
#include "support/hands.h"

namespace caleidoscopio::endurance {

namespace {

constexpr int steps = 24;
constexpr int shifts = 12;
constexpr int transforms = 6;

void hold(Store& s, const Control& control, int index) {
  test::press(control, index);
  s.time.advance(600'000);
  test::release(control, index);
}

void pressUntil(const Control& control, int index, const Label& value, const char* wanted) {
  while (value.Caption != wanted) test::pressAndRelease(control, index);
}

/// An interval, a spread of intervals or a wait, and the least that the panel can set.
struct Shortest {
  Label& value;
  const char* ms;
};
std::vector<Shortest> shortestOf(Store& s) {
  std::vector<Shortest> all = {{s.lblVelo[1], "10"},      {s.lblVelo[2], "10"},
                               {s.lblVelo[3], "10"},      {s.lblSeq[0], "10"},
                               {s.lblBrk[0], "100"},      {s.lblBrk[3], "0"},
                               {s.lblTmrRndCol[0], "50"}, {s.lblTmrRndCol[3], "0"},
                               {s.lblTmrBreak[0], "10"},  {s.lblBreakMode[16], "0"}};
  for (int mode = 1; mode <= shifts; ++mode) all.push_back({s.lblIntervalA[mode], "10"});
  for (int mode = 1; mode <= transforms; ++mode) all.push_back({s.lblInterv[mode], "10"});
  return all;
}

/// Writes steps where there is none; what else stands in the table stays.
void fillOffSteps(Store& s) {
  const auto fill = [](Label& cell, const std::string& step) {
    if (cell.Caption == offStep) cell.Caption = step;
  };
  for (int row = 1; row <= steps; ++row) {
    fill(s.lblTmrA[row], std::to_string((row - 1) % shifts + 1) + (row <= shifts ? "-Out" : "-In"));
    fill(s.lblTmrB[row], std::to_string((row - 1) % transforms + 1));
    fill(s.lblTmrC[row],
         {frameLetters[row % 3].letter, ' ', '-', ' ', frameLetters[row / 3 % 3].letter});
  }
}

}  // namespace

test::FilesInMemory shippedFiles() {
  namespace fs = std::filesystem;
  const fs::path share = SHARE_FOLDER;
  test::FilesInMemory memory;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(share / "Miro-Vel-Ta")) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    memory.files[fs::relative(entry.path(), share).string()] = {
        std::istreambuf_iterator<char>(file), {}};
  }
  return memory;
}

void switchAllIn(Store& s) {
  for (int k = 0; k <= 5; ++k)
    if (s.cmdOnOff[k].BackColor != colours::running) click(s.cmdOnOff, k);
  if (s.lblCambioCol[9].BackColor != colours::selected) click(s.lblCambioCol, 9);
}

void writeProgramme(Store& s) {
  s.lblSeq[5].Caption = std::to_string(steps);
  click(s.lblNOrdine, 25);  // every step is OFF
  fillOffSteps(s);
}

void stepToShortest(Store& s) {
  // A and B remember an interval for each of their modes.
  for (int mode = 1; mode <= shifts; ++mode) {
    click(s.lblSposta, mode);
    hold(s, s.lblMenoTmr, 1);
  }
  for (int mode = 1; mode <= transforms; ++mode) {
    click(s.lblTransf, mode);
    hold(s, s.lblMenoTmr, 2);
  }
  hold(s, s.lblMenoTmr, 3);
  hold(s, s.lblSeq, 1);
  hold(s, s.lblBrk, 1);
  pressUntil(s.lblBrk, 3, s.lblBrk[3], "0");
  hold(s, s.lblTmrRndCol, 1);
  pressUntil(s.lblTmrRndCol, 3, s.lblTmrRndCol[3], "0");
  hold(s, s.lblTmrBreak, 1);
  pressUntil(s.lblBreakMode, 22, s.lblBreakMode[16], "0");
}

bool atShortest(Store& s) {
  for (const Shortest& shortest : shortestOf(s))
    if (shortest.value.Caption != shortest.ms) return false;
  return true;
}

void bringBack(Store& s) {
  for (const Shortest& shortest : shortestOf(s)) shortest.value.Caption = shortest.ms;
  for (Timer* timer : {&s.TmrGoA, &s.TmrGoB, &s.TmrGoC, &s.TmrSequencer, &s.TmrBreak})
    timer->setInterval(10);
  s.TmrBrk.setInterval(100);
  s.TmrGoD.setInterval(50);
  // A step that is OFF switches its timer out; any other, a cleared one too, is played.
  fillOffSteps(s);
  for (int k = 0; k <= 2; ++k)
    if (s.lblDisattiva[k].BackColor == colours::selected) click(s.lblDisattiva, k);
  // A Break that repeats lets nothing else run.
  if (s.lblBreakMode[21].BackColor == colours::selected) click(s.lblBreakMode, 21);
  // Hidden panels take no presses.
  s.lblHide.BackColor = colours::unselected;
  s.FraPannello[0].Visible = s.FraPannello[1].Visible = true;
  switchAllIn(s);
  if (s.cmdGoTimer.BackColor != colours::running) click(s.cmdGoTimer);
}

}  // namespace caleidoscopio::endurance
