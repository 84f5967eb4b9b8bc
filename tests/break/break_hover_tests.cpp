// The line under the mouse, letter for letter.
#include <gtest/gtest.h>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct BreakHover : testing::Test {
  Rig rig;
  Store& s = rig.s;
  std::string over(int i) {
    s.lblBreakMode.raise(Event::MouseMove, i);
    return s.lblBreakMode[20].Caption;
  }
};

TEST_F(BreakHover, EveryPatternInEveryDirectionMode) {
  const char* const texts[12][3] = {
      {"Orizzontale (Out)", "Orizzontale (In)", "Orizzontale (Out or In)"},
      {"Verticale (Out)", "Verticale (In)", "Verticale (Out or In)"},
      {"Diagonale A (Out)", "Diagonale A (In)", "Diagonale A (Out or In)"},
      {"Diagonale B (Out)", "Diagonale B (In)", "Diagonale B (Out or In)"},
      {"Cornici(Out)", "Cornici (In)", "Cornici (Out or In)"},
      {"Rombi(Out)", "Rombi (In)", "Rombi (Out or In)"},
      {"Croci(Out)", "Croci (In)", "Croci (Out or In)"},
      {"Sant'Andrea(Out)", "Sant'Andrea (In)", "Sant'Andrea (Out or In)"},
      {"Zig-Zag Orizz.(Out)", "Zig-Zag Orizz. (In)", "Zig-Zag Orizz. (Out or In)"},
      {"Zig-Zag Vert.(Out)", "Zig-Zag Vert. (In)", "Zig-Zag Vert. (Out or In)"},
      {"Spirale(Out)", "Spirale (In)", "Spirale (Out or In)"},
      {"Immediato", "Immediato", "Immediato"}};
  for (int i = 1; i <= 12; ++i) {
    s.lblBreakMode[14].Caption = "Out";
    EXPECT_EQ(over(i), texts[i - 1][0]);
    s.lblBreakMode[14].Caption = "In";
    EXPECT_EQ(over(i), texts[i - 1][1]);
    for (const char* either : {"O/I", "Alt"}) {
      s.lblBreakMode[14].Caption = either;
      EXPECT_EQ(over(i), texts[i - 1][2]);
    }
  }
}

TEST_F(BreakHover, AllSaysWhatItDid) {
  EXPECT_EQ(over(13), "- Seleziona tutti i Break -");
  click(s.lblBreakMode, 13);
  EXPECT_EQ(over(13), "- Tutti i Break selezionati -");
}

TEST_F(BreakHover, TheDirectionSaysItsMode) {
  const char* const modes[][2] = {{"Out", "Solo Break Out"},
                                  {"In", "Solo Break In"},
                                  {"O/I", "Random Break O/I"},
                                  {"Alt", "Alterna Break O/I"}};
  for (const auto& [mode, says] : modes) {
    s.lblBreakMode[14].Caption = mode;
    EXPECT_EQ(over(14), says);
  }
}

TEST_F(BreakHover, AnyOtherElementClearsTheLine) {
  for (int i : {0, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26}) {
    s.lblBreakMode[20].Caption = "text";
    EXPECT_EQ(over(i), "") << i;
  }
}

}  // namespace
}  // namespace caleidoscopio::test
