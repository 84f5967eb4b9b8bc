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
    const Geometry& at = s.FraZQ.geometry();
    return {at.Left, at.Top, at.Width, at.Height};
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
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.geometry().Width, Twips{15360});
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.geometry().Height, Twips{11520});
}

TEST_F(EndPicture, TheWideScreenMovesItsFrameSidewaysAndKeepsItsSize) {
  StartedRig rig({20490, 11520});
  click(rig.s.lblComandiVari, 2);
  Places expected = drawn();
  expected.left = expected.left + Twips{2565};
  EXPECT_EQ(of(rig.s), expected);
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.geometry().Width, Twips{20490});
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.geometry().Height, Twips{11520});
}

TEST_F(EndPicture, AnyOtherScreenStretchesItAndShrinksItsLetters) {
  const StartableRig model;
  StartedRig rig({19200, 14400});
  const double before = rig.s.lblAvvertimento2.geometry().FontSize.value;
  click(rig.s.lblComandiVari, 2);
  const Places d = drawn();
  EXPECT_EQ(of(rig.s), (Places{d.left * 1.25, d.top * 1.25, d.width * 1.25, d.height * 1.25}));
  EXPECT_EQ(rig.s.ImgZQ.geometry().Width, model.s.ImgZQ.geometry().Width * 1.25);
  EXPECT_EQ(rig.s.lblAvvertimento2.geometry().FontSize.value, before * 0.9);
  EXPECT_EQ(rig.s.frmMiroVelTaZQ.geometry().Width, Twips{19200});
}

TEST_F(EndPicture, StretchedTheButtonStillLiesOverThePictureAndTheWordsStandWhereTheyDid) {
  const StartableRig model;
  StartedRig rig({19200, 14400});
  click(rig.s.lblComandiVari, 2);
  const auto lies = [](const Control& control) {
    const Geometry& at = control.geometry();
    return Places{at.Left, at.Top, at.Width, at.Height};
  };
  const auto stretched = [&lies](const Control& drawn) {
    const Places d = lies(drawn);
    return Places{d.left * 1.25, d.top * 1.25, d.width * 1.25, d.height * 1.25};
  };
  EXPECT_EQ(lies(rig.s.ImgZQ), stretched(model.s.ImgZQ));
  EXPECT_EQ(lies(rig.s.lblZQ), lies(rig.s.ImgZQ));
  EXPECT_EQ(lies(rig.s.lblScritteVarieC), stretched(model.s.lblScritteVarieC));
  EXPECT_EQ(lies(rig.s.lblAvvertimento2), stretched(model.s.lblAvvertimento2));
  EXPECT_EQ(rig.s.lblScritteVarieC.geometry().FontSize.value,
            model.s.lblScritteVarieC.geometry().FontSize.value * 0.9);
}

TEST_F(EndPicture, EveryControlOfItHasItsPlaceOnTheDrawing) {
  const StartableRig rig;
  const Store& s = rig.s;
  for (const Control* control : std::initializer_list<const Control*>{
           &s.FraZQ, &s.lblAvvertimento2, &s.lblZQ, &s.lblScritteVarieC, &s.ImgZQ}) {
    EXPECT_GT(control->geometry().Width.value, 0) << control->name();
    EXPECT_GT(control->geometry().Height.value, 0) << control->name();
  }
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
