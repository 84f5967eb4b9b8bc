#pragma once

#include "break/controller.h"
#include "support/field.h"
#include "support/rig.h"

namespace caleidoscopio::test {

/// A rig whose Breaks need no luck: designs that draw nothing, one pattern and one direction at a
/// time. What is left to draw in a start is the slot (kinds 1 and 2) and the pattern.
struct BreakRig : Rig {
  BreakRig() {
    for (int k : {1, 2, 3, 4, 5, 6, 11}) s.lblCrea[k].Caption = "0";
    s.lblCrea[7].Caption = "2";
    s.lblCrea[8].BackColor = colours::unselected;
    s.lblCrea[10].BackColor = colours::unselected;
    s.lblComCol[7].BackColor = colours::unselected;
    kind("N");
    only(1);
    s.lblBreakMode[14].Caption = "Out";
    for (int k = 0; k <= 5; ++k) s.cmdOnOff[k].BackColor = colours::pressed;
  }
  void kind(const char* caption) { s.lblBreakMode[18].Caption = caption; }
  void only(int pattern) {
    for (int i = 1; i <= 12; ++i) select(i, i == pattern);
    s.lblBreakMode[0].Caption = "1";
  }
  void select(int pattern, bool on = true) {
    s.lblBreakMode[pattern].BackColor = on ? colours::selected : colours::unselected;
  }
  /// Draws whatever comes; the middle of every range unless told.
  void anyDraws(float r = 0.5F) { generator.otherwise = r; }
  /// Starts a Break by hand, with the draws of a start: kind 3 wants the pattern's alone.
  void start() {
    anyDraws();
    click(s.Command7);
  }
  void tick() { s.TmrBreak.raise(Event::Tick); }
  /// Ticks until the one that finds lblBreak at "1" is the next.
  void sweepToLast() {
    while (s.lblBreak.Caption != "1") tick();
  }
  void runOut() {
    sweepToLast();
    tick();
  }
  bool locked() const { return !s.Command7.Enabled; }
};

inline constexpr Colour runningPattern{0x0000FF};

}  // namespace caleidoscopio::test
