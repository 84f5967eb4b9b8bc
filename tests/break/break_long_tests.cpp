// Long runs: a hundred thousand random events, and a day of Breaks by the timer.
#include <gtest/gtest.h>

#include <random>

#include "break_rig.h"
#include "memories/memory_files.h"

namespace caleidoscopio::test {
namespace {

/// Draws without end, the same at every run of the test.
struct Endless : Generator {
  std::mt19937 bits{20260101};
  void seed(const WallTime&) override {}
  float draw() override { return static_cast<float>(bits() >> 8) / 16777216.0F; }
};

struct LongRun {
  StandingClock clock;
  Endless generator;
  FilesInMemory files;
  Platform platform{clock, generator, files, {}};
  Instrument instrument{platform};
  Store& s = instrument.s;
};

struct Touch {
  const Control* control;
  Event event;
};

bool enabled(const Control& control, int index) {
  if (control.kind() == Kind::Label) return static_cast<Label*>(control.element(index))->Enabled;
  if (control.kind() == Kind::Frame) return static_cast<Frame*>(control.element(index))->Enabled;
  return true;
}

TEST(BreakLong, NoWalkLeavesTheButtonsLockedWithoutABreakOnItsWay) {
  LongRun run;
  Store& s = run.s;
  for (const char* name : {"A", "B", "C", "D", "E"}) {
    s.lblSelez.Caption = name;
    SalvaMemoria(s);
  }
  SalvaDefault(s);
  SalvaNomi(s);
  click(s.cmdGoTimer);  // start-up ends in a Go
  std::mt19937 dice{4711};
  const auto below = [&dice](std::size_t n) { return static_cast<std::size_t>(dice()) % n; };

  std::vector<Touch> touches;
  for (const Control* control : s.controls.all())
    for (const Event event : {Event::Click, Event::MouseDown, Event::MouseUp, Event::MouseMove,
                              Event::KeyDown, Event::KeyPress})
      for (int i = control->first(); i <= control->last(); ++i)
        if (control->handles(event, i) && control != &s.Command8) {
          touches.push_back({control, event});
          break;
        }
  // Half of all events go to the Break's own controls.
  std::vector<Touch> ofBreak;
  for (const Touch& touch : touches)
    for (const Control* own :
         {static_cast<const Control*>(&s.lblBreakMode), static_cast<const Control*>(&s.lblBrk),
          static_cast<const Control*>(&s.lblTmrBreak), static_cast<const Control*>(&s.Command7),
          static_cast<const Control*>(&s.cmdGoTimer), static_cast<const Control*>(&s.cmdOnOff)})
      if (touch.control == own) ofBreak.push_back(touch);
  ASSERT_EQ(ofBreak.size(), 11U);

  int breaks = 0;
  for (int n = 0; n < 100000; ++n) {
    const Touch& touch =
        below(2) == 0 ? ofBreak[below(ofBreak.size())] : touches[below(touches.size())];
    const Control& control = *touch.control;
    const int span = control.last() - control.first() + 1;
    const int index = control.first() + static_cast<int>(below(static_cast<std::size_t>(span)));
    if (!enabled(control, index)) continue;
    if (&control == &s.lblComandiVari && index == 2) continue;
    // The box for a title: out of reach while hidden, and of no use once a preset was loaded.
    const bool ofBox = &control == &s.lblSalvaComb || &control == &s.TxtNomeMemoria;
    const bool preset = "A" <= s.lblSelez.Caption;
    if (ofBox && (preset || !s.FraMemoria.Visible)) continue;
    // "Canc" makes a step of Timer B that ends the run when the sequencer reaches it.
    if (&control == &s.lblSeq && index == 6) continue;
    const bool wasLocked = !s.Command7.Enabled;
    ASSERT_NO_THROW({
      control.raise(touch.event, index);
      s.time.advance(below(60));
    }) << "event "
       << n << " on " << control.nameOf(index);
    if (std::stoi(s.lblBrk[0].Caption) > 20000) s.lblBrk[0].Caption = "3000";

    bool locked = !s.Command7.Enabled;
    if (locked && !wasLocked) ++breaks;
    for (int i = 1; i <= 24; ++i) locked = locked || !s.lblBreakMode[i].Enabled;
    if (!locked) continue;
    ASSERT_TRUE(s.TmrBreak.Enabled()) << "event " << n << " on " << control.nameOf(index);
    ASSERT_GT(s.TmrBreak.Interval(), 0) << "event " << n;
    ASSERT_GE(std::stoi(s.lblBreak.Caption), 1) << "event " << n;
    ASSERT_LE(std::stoi(s.lblBreak.Caption), 22) << "event " << n;
  }
  EXPECT_GT(breaks, 100);
  RecordProperty("breaks", breaks);

  // And the Break that may be on its way at the end does come to its end: 22 ticks of at most
  // 3 seconds, the interval that a memory holds which was saved before any Break.
  if (s.cmdGoTimer.BackColor == colours::running) click(s.cmdGoTimer);
  s.lblBreakMode[21].BackColor = colours::unselected;
  s.time.advance(70000);
  EXPECT_TRUE(s.Command7.Enabled);
  EXPECT_FALSE(s.TmrBreak.Enabled());
}

TEST(BreakLong, ADayOfBreaksByTheTimerHasOneGoMoreThanBreaks) {
  LongRun run;
  Store& s = run.s;
  for (int k = 0; k <= 5; ++k) s.cmdOnOff[k].BackColor = colours::pressed;
  s.cmdOnOff[4].BackColor = colours::running;
  click(s.cmdGoTimer);
  // A Go lights lblBack as its last sign; a Break names itself on the line. Both are put out here.
  int goes = 0;
  int breaks = 0;
  const std::uint64_t day = 24ULL * 60 * 60 * 1000;
  while (true) {
    if (s.lblBack.BackColor == colours::pressed) ++goes;
    s.lblBack.BackColor = colours::unselected;
    if (!s.lblBreakMode[20].Caption.empty() && s.TmrBreak.Enabled()) ++breaks;
    s.lblBreakMode[20].Caption.clear();
    const std::uint64_t due = s.time.nextDue();
    ASSERT_NE(due, Time::never) << "the Breaks came to a stand at " << s.time.now();
    if (due > day && !s.TmrBreak.Enabled()) break;
    s.time.advance(due - s.time.now());
    ASSERT_NE(s.TmrBreak.Enabled(), s.Command7.Enabled);
  }
  // A pause is 3 to 5 seconds, a sweep at most 2.2.
  EXPECT_GT(breaks, 12000);
  EXPECT_EQ(goes, breaks + 1);
}

}  // namespace
}  // namespace caleidoscopio::test
