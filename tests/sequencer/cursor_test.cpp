#include "sequencer/cursor.h"

#include <gtest/gtest.h>

#include <string>

#include "support/rig.h"
#include "support/run_end.h"

namespace caleidoscopio::test {
namespace {

/// A table whose every cell is selected, so that each mark that goes shows.
struct Rewind : testing::Test, Rig {
  Rewind() {
    for (int row = 1; row <= 24; ++row)
      for (Frame* cell : {&s.lblNOrdine[row], &s.lblTmrA[row], &s.lblTmrB[row], &s.lblTmrC[row]})
        cell->BackColor = colours::selected;
    s.lblSeq[5].Caption = "6";
  }
  void rewind(const char* edited, const char* cursor) {
    s.lblSeq[3].Caption = edited;
    s.lblSeq[4].Caption = cursor;
    rewindCursor(s);
  }
  /// The columns of a row that lost their mark to the range colour.
  std::string unmarked(int row) {
    std::string columns;
    if (s.lblTmrA[row].BackColor == colours::inRange) columns += 'A';
    if (s.lblTmrB[row].BackColor == colours::inRange) columns += 'B';
    if (s.lblTmrC[row].BackColor == colours::inRange) columns += 'C';
    return columns;
  }
};

TEST_F(Rewind, TheRowThatTheCursorGoesToLosesTheMarksOfTheColumnsNotEdited) {
  rewind("A", "5");
  EXPECT_EQ(s.lblSeq[4].Caption, "4");
  EXPECT_EQ(unmarked(4), "BC");
  EXPECT_EQ(unmarked(5), "");
  rewind("B", "4");
  EXPECT_EQ(unmarked(3), "AC");
  rewind("C", "3");
  EXPECT_EQ(unmarked(2), "AB");
}

TEST_F(Rewind, FromRowOneTheCursorGoesToTheLastRowOfTheRange) {
  rewind("C", "1");
  EXPECT_EQ(s.lblSeq[4].Caption, "6");
  EXPECT_EQ(unmarked(6), "AB");
  EXPECT_EQ(unmarked(1), "");
}

TEST_F(Rewind, FromRowOneTheRangeIsCarriedOverAsItStands) {
  s.lblSeq[5].Caption = "06";
  rewind("C", "1");
  EXPECT_EQ(s.lblSeq[4].Caption, "06");
  EXPECT_EQ(unmarked(6), "AB");
}

TEST_F(Rewind, ARangeThatNoMarkAsksForIsNotReadAsANumber) {
  s.lblSeq[5].Caption = "x";
  rewind("D", "1");
  EXPECT_EQ(s.lblSeq[4].Caption, "x");
}

TEST_F(Rewind, TheRowLabelsKeepTheirMarks) {
  rewind("A", "5");
  EXPECT_EQ(s.lblNOrdine[4].BackColor, colours::selected);
  EXPECT_EQ(s.lblNOrdine[5].BackColor, colours::selected);
}

TEST_F(Rewind, WithNoColumnEditedTheCursorGoesBackAndNoMarkGoes) {
  for (const char* edited : {"", "D", "a", "AB"}) {
    rewind(edited, "5");
    EXPECT_EQ(s.lblSeq[4].Caption, "4") << edited;
    rewind(edited, "1");
    EXPECT_EQ(s.lblSeq[4].Caption, "6") << edited;
    for (int row = 1; row <= 24; ++row) EXPECT_EQ(unmarked(row), "") << edited << row;
  }
}

TEST_F(Rewind, ARangeBeyondTheTableEndsTheRunAndNamesTheRow) {
  s.lblSeq[5].Caption = "30";
  EXPECT_TRUE(endsTheRun([&] { rewind("A", "1"); }, {"(30)", "0 to 24"}));
}

TEST_F(Rewind, ACursorThatIsNoNumberEndsTheRunAndNamesIt) {
  EXPECT_TRUE(endsTheRun([&] { rewind("A", "x"); }, {"lblSeq(4).Caption", "\"x\""}));
}

}  // namespace
}  // namespace caleidoscopio::test
