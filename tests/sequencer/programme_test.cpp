#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "panel/numbers.h"
#include "support/hands.h"
#include "support/started_rig.h"

namespace caleidoscopio::test {
namespace {

constexpr int memory = 42;
constexpr const char* title = "Programma \"lento\", 7 passi";

/// A step as the panel shows it: what of timers A, B and C is in force.
struct StepShown {
  std::string shift, transform, frame;
  bool operator==(const StepShown&) const = default;
};
void PrintTo(const StepShown& step, std::ostream* out) {
  *out << step.shift << " | " << step.transform << " | " << step.frame;
}

// The programme as a person would say it; "" leaves the timer off.
const std::vector<StepShown> programme = {
    {"9-In", "3", "Out Out"}, {"12-Out", "", "In Off"}, {"", "6", "Off In"},
    {"1-In", "1", ""},        {"7-Out", "2", "In In"},  {"", "", ""},
    {"4-In", "5", "Off Off"},
};

/// One person at one instrument, who only presses and clicks.
class Person {
 public:
  explicit Person(Store& store) : s(store) {}

  void stop() { pressAndRelease(s.cmdGoTimer); }
  void go() { pressAndRelease(s.cmdGoTimer); }
  void pushSequencer(int k) { pressAndRelease(s.lblSeq, k); }

  void cursorTo(const std::string& row) {
    press(s.lblAvanza, 1);
    while (s.lblSeq[4].Caption != row) s.time.advance(100);
    release(s.lblAvanza, 1);
    click(s.lblAvanza, 1);
  }
  void switchTo(int k, bool in) {
    if ((s.cmdOnOff[k].BackColor == colours::running) != in) pressAndRelease(s.cmdOnOff, k);
  }

  void setShift(const std::string& shift) {
    switchTo(1, !shift.empty());
    if (shift.empty()) return;
    const std::size_t hyphen = shift.find('-');
    if (s.lblOraria.Caption != shift.substr(hyphen + 1)) pressAndRelease(s.lblOraria);
    pressAndRelease(s.lblSposta, std::stoi(shift.substr(0, hyphen)));
  }
  void setTransform(const std::string& mode) {
    switchTo(2, !mode.empty());
    if (!mode.empty()) pressAndRelease(s.lblTransf, std::stoi(mode));
  }
  void setFrame(const std::string& options) {
    switchTo(3, !options.empty());
    if (options.empty()) return;
    const std::size_t blank = options.find(' ');
    const std::string wanted[] = {options.substr(0, blank), options.substr(blank + 1)};
    for (int i = 1; i <= 2; ++i)
      for (int turn = 0; turn < 3 && s.lblCorniceOpzio[i].Caption != wanted[i - 1]; ++turn)
        pressAndRelease(s.lblCorniceOpzio, i);
  }

  /// Panel set, Mem, panel set, Mem ..., a column after the other.
  void write(const std::vector<StepShown>& steps) {
    while (static_cast<std::size_t>(number(s, s.lblSeq[5])) < steps.size()) pushSequencer(5);
    for (const char* column : {"A", "B", "C"}) {
      while (s.lblSeq[3].Caption != column) pushSequencer(3);
      cursorTo("1");
      for (const StepShown& step : steps) {
        if (*column == 'A') setShift(step.shift);
        if (*column == 'B') setTransform(step.transform);
        if (*column == 'C') setFrame(step.frame);
        pushSequencer(7);
      }
    }
    cursorTo("1");
  }

  void bankTo(int bank) {
    while (s.lblMemo[0].Caption != text(bank)) pressAndRelease(s.lblMemo, 2);
  }
  void save(int n, const char* name) {
    bankTo(n / 10);
    pressAndRelease(s.lblComandiVari, 1);
    pressAndRelease(s.lblSave, n % 10);
    s.TxtNomeMemoria.Text = name;
    s.TxtNomeMemoria.raise(Event::KeyPress, 0, 13);
  }
  void load(int n) {
    bankTo(n / 10);
    pressAndRelease(s.lblSave, n % 10);
  }
  void leave() {
    pressAndRelease(s.lblComandiVari, 2);
    pressAndRelease(s.lblZQ);
  }

  /// What each of the next steps of a run turns out to be.
  std::vector<StepShown> watch(std::size_t steps) {
    std::vector<StepShown> seen;
    for (std::size_t i = 0; i < steps; ++i) {
      s.time.advance(static_cast<std::uint64_t>(s.TmrSequencer.Interval()));
      seen.push_back({s.TmrGoA.Enabled() ? s.lblShift.Caption + "-" + s.lblOraria.Caption : "",
                      s.TmrGoB.Enabled() ? s.lblTransf[0].Caption : "",
                      s.TmrGoC.Enabled()
                          ? s.lblCorniceOpzio[1].Caption + " " + s.lblCorniceOpzio[2].Caption
                          : ""});
    }
    return seen;
  }

  Store& s;
};

std::vector<StepShown> twice(std::vector<StepShown> steps) {
  const std::vector<StepShown> once = steps;
  steps.insert(steps.end(), once.begin(), once.end());
  return steps;
}

TEST(Programme, WrittenByClicksSavedAndLoadedInTheNextStartItRunsTheSameStepsInTheSameOrder) {
  StartedRig first;
  Person writer(first.s);
  writer.stop();
  writer.write(programme);
  writer.switchTo(5, true);
  pressAndRelease(first.s.lblSeq, 1);  // a step every second and a half
  writer.save(memory, title);
  ASSERT_TRUE(first.files.files.contains("Miro-Vel-Ta/Save/42.txt"));

  writer.go();
  EXPECT_EQ(writer.watch(14), twice(programme));
  writer.stop();
  // What stands on the panel when the person leaves is another programme.
  pressAndRelease(first.s.lblNOrdine, 25);
  writer.switchTo(5, false);
  writer.leave();
  EXPECT_TRUE(first.s.ended);

  StartableRig second;
  second.files.files = first.files.files;
  second.instrument.start();
  Person reader(second.s);
  reader.stop();
  EXPECT_EQ(second.s.lblTmrA[1].Caption, "OFF");
  reader.load(memory);
  EXPECT_EQ(second.s.lblNomefile.Caption, title);
  EXPECT_EQ(second.s.TmrSequencer.Interval(), 1500);
  reader.go();
  EXPECT_EQ(reader.watch(14), twice(programme));
}

}  // namespace
}  // namespace caleidoscopio::test
