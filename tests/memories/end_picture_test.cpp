#include <gtest/gtest.h>

#include "support/started_rig.h"

namespace caleidoscopio::test {
namespace {

/// The end picture on a screen of another size.
struct EndPicture : testing::Test {
  struct Places {
    Twips left, top, width, height;
    bool operator==(const Places&) const = default;
  };
  static Places of(const Store& s) {
    return {s.FraZQ.Left, s.FraZQ.Top, s.FraZQ.Width, s.FraZQ.Height};
  }
  /// The same place on the drawing.
  static Places drawn() {
    const StartableRig rig;
    return of(rig.s);
  }
};

TEST_F(EndPicture, OnTheDesignsScreenNothingMoves) {
  StartedRig rig;
  click(rig.s.lblComandiVari, 2);
  EXPECT_EQ(of(rig.s), drawn());
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.Width, Twips{15360});
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.Height, Twips{11520});
}

TEST_F(EndPicture, TheWideScreenMovesItsFrameSidewaysAndKeepsItsSize) {
  StartedRig rig({20490, 11520});
  click(rig.s.lblComandiVari, 2);
  Places expected = drawn();
  expected.left = expected.left + Twips{2565};
  EXPECT_EQ(of(rig.s), expected);
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.Width, Twips{20490});
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.Height, Twips{11520});
}

TEST_F(EndPicture, AnyOtherScreenStretchesItAndShrinksItsLetters) {
  const StartableRig model;
  StartedRig rig({19200, 14400});
  const double before = rig.s.lblAvvertimento2.FontSize.value;
  click(rig.s.lblComandiVari, 2);
  const Places d = drawn();
  EXPECT_EQ(of(rig.s), (Places{d.left * 1.25, d.top * 1.25, d.width * 1.25, d.height * 1.25}));
  EXPECT_EQ(rig.s.ImgZQ.Width, model.s.ImgZQ.Width * 1.25);
  EXPECT_EQ(rig.s.lblAvvertimento2.FontSize.value, before * 0.9);
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.Width, Twips{19200});
}

TEST_F(EndPicture, EveryControlOfItHasItsPlaceOnTheDrawing) {
  const StartableRig rig;
  const Store& s = rig.s;
  for (const Frame* frame :
       {static_cast<const Frame*>(&s.FraZQ), static_cast<const Frame*>(&s.lblAvvertimento2),
        static_cast<const Frame*>(&s.lblZQ), static_cast<const Frame*>(&s.lblScritteVarieC)}) {
    EXPECT_GT(frame->Width.value, 0) << s.controls.nameOf(frame);
    EXPECT_GT(frame->Height.value, 0) << s.controls.nameOf(frame);
  }
  EXPECT_GT(s.ImgZQ.Width.value, 0);
}

TEST_F(EndPicture, ASecondEscDoesNotStretchItAgain) {
  StartedRig rig({19200, 14400});
  click(rig.s.lblComandiVari, 2);
  const Places once = of(rig.s);
  click(rig.s.lblComandiVari, 2);
  EXPECT_EQ(of(rig.s), once);
}

}  // namespace
}  // namespace caleidoscopio::test
