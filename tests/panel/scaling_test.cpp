#include "panel/scaling.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "mosaic/index_map.h"
#include "support/started_rig.h"

namespace caleidoscopio::test {
namespace {

struct Placed {
  double left, top, width, height, font;
};
Placed placedAt(const Spot& spot) {
  const Geometry& g = spot.element.control->geometry(spot.element.index);
  return {g.Left.value, g.Top.value, g.Width.value, g.Height.value, g.FontSize.value};
}
std::vector<Placed> placesOf(const Store& s) {
  std::vector<Placed> all;
  for (const Spot& spot : s.spots) all.push_back(placedAt(spot));
  return all;
}
std::string nameOf(const Spot& spot) {
  return spot.element.control->nameOf(spot.element.index);
}

/// Every placed control against the same one on a screen of the design's size.
void expectScaled(ScreenSize screen, double offset, double r, double h, double f) {
  const StartedRig design;
  const StartedRig scaled(screen);
  ASSERT_EQ(design.s.spots.size(), scaled.s.spots.size());
  for (std::size_t n = 0; n < design.s.spots.size(); ++n) {
    const Spot& spot = design.s.spots[n];
    const Placed was = placedAt(spot);
    const Placed is = placedAt(scaled.s.spots[n]);
    const std::string name = nameOf(spot);
    EXPECT_EQ(is.height, was.height * h) << name;
    EXPECT_EQ(is.top, was.top * h) << name;
    EXPECT_EQ(is.width, was.width * r) << name;
    EXPECT_EQ(is.font, was.font * f) << name;
    if (name == "FraPannello(2)") continue;  // Go has placed it; told below
    EXPECT_EQ(is.left, (was.left + (spot.withField ? offset : 0)) * r) << name;
  }
  EXPECT_EQ(scaled.s.form.geometry().Width, Twips{screen.width});
  EXPECT_EQ(scaled.s.form.geometry().Height, Twips{screen.height});
}

TEST(Scaling, OnAScreenOfTheDesignsSizeNothingMoves) {
  const ScreenFit fit = fitTo({15360, 11520});
  EXPECT_EQ(fit.offset, 0);
  EXPECT_EQ(fit.width, 1);
  EXPECT_EQ(fit.height, 1);
  EXPECT_EQ(fit.font, 1);
  Rig rig;
  const std::vector<Placed> before = placesOf(rig.s);
  scaleToScreen(rig.s.form, rig.s.spots, rig.platform.screen);
  const std::vector<Placed> after = placesOf(rig.s);
  for (std::size_t n = 0; n < before.size(); ++n) {
    EXPECT_EQ(before[n].left, after[n].left);
    EXPECT_EQ(before[n].width, after[n].width);
    EXPECT_EQ(before[n].top, after[n].top);
    EXPECT_EQ(before[n].height, after[n].height);
    EXPECT_EQ(before[n].font, after[n].font);
  }
}

TEST(Scaling, TheWideScreenKeepsTheSizeAndCentresTheField) {
  expectScaled({20490, 11520}, 2565, 1, 1, 1);
  const StartedRig wide({20490, 11520});
  const Store& s = wide.s;
  EXPECT_EQ(s.lblMiro.geometry(437).Left, Twips{2640 + 2565});
  EXPECT_EQ(s.lblMiro.geometry(365).Left, s.lblMiro.geometry(437).Left + Twips{480});
  EXPECT_EQ(s.FraPannello.geometry(1).Left, Twips{12915 + 2565});
  EXPECT_EQ(s.FraPannello.geometry(0).Width, Twips{2255});
}

TEST(Scaling, AScreenAQuarterLargerStretchesAllButTheLetters) {
  expectScaled({19200, 14400}, 0, 1.25, 1.25, 0.9);
}

TEST(Scaling, AWideScreenOfAnotherHeightIsNotTheWideScreen) {
  expectScaled({20490, 10800}, 0, 20490.0 / 15360, 0.9375, 0.675);
  EXPECT_NEAR(fitTo({20490, 10800}).width, 1.334, 0.0001);
}

TEST(Scaling, AScreenThatIsOnlyWiderKeepsItsHeightAndLetters) {
  expectScaled({23040, 11520}, 0, 1.5, 1, 1);
}

TEST(Scaling, PositionsAreExactProductsAndNotRounded) {
  const StartedRig scaled({20490, 10800});
  EXPECT_EQ(scaled.s.lblMiro.geometry(1).Left.value, (2640 + 480) * (20490.0 / 15360));
  EXPECT_EQ(scaled.s.lblMiro.geometry(1).Top.value, (720 + 480) * (10800.0 / 11520));
  EXPECT_EQ(scaled.s.lblMiro.geometry(1).FontSize.value, 18 * (10800.0 / 16000));
}

TEST(Scaling, TheOffsetIsTakenByPanelsFieldOutlinesAndHeadingsOfTheFormAlone) {
  const Rig rig;
  std::set<std::string> withField;
  for (const Spot& spot : rig.s.spots)
    if (spot.withField) withField.insert(nameOf(spot));
  std::set<std::string> expected{"FraPannello(0)",     "FraPannello(1)",    "FraPannello(2)",
                                 "ShpContour",         "ShpRettangolo",     "lblScritteVarie(7)",
                                 "lblScritteVarie(8)", "lblScritteVarie(9)"};
  for (int i = 0; i <= 441; ++i) expected.insert("lblMiro(" + std::to_string(i) + ")");
  EXPECT_EQ(withField, expected);
}

TEST(Scaling, TheRectangleToolsMarkStaysOnItsQuadrantOnEveryScreen) {
  for (const ScreenSize screen :
       {ScreenSize{15360, 11520}, {20490, 11520}, {19200, 14400}, {20490, 10800}}) {
    const StartedRig rig(screen);
    const Geometry& first = rig.s.lblMiro.geometry(leaderAt(1, 1));
    const Geometry& last = rig.s.lblMiro.geometry(leaderAt(9, 9));
    const Geometry& mark = rig.s.ShpRettangolo.geometry();
    EXPECT_EQ(mark.Left, first.Left);
    EXPECT_EQ(mark.Top, first.Top);
    EXPECT_NEAR((mark.Left + mark.Width).value, (last.Left + last.Width).value, 1e-6);
    EXPECT_NEAR((mark.Top + mark.Height).value, (last.Top + last.Height).value, 1e-6);
  }
}

TEST(Scaling, TheLabelsParkedOutOfSightAreNotTouched) {
  const StartedRig scaled({19200, 14400});
  EXPECT_EQ(scaled.s.lblSomma.geometry().Width.value > 0, true);
  EXPECT_EQ(scaled.s.lblIndex.geometry().Width, Twips{0});
  EXPECT_EQ(scaled.s.lblIndex.geometry().FontSize, Points{8});
}

TEST(Scaling, GoAndStopPlaceTheSequencersTableByTheSameRule) {
  const struct {
    ScreenSize screen;
    double inRun, stopped;
  } cases[] = {{{15360, 11520}, 210, 2730},
               {{20490, 11520}, 2565 + 210, 2565 + 2730},
               {{19200, 14400}, 210 * 1.25, 2730 * 1.25},
               {{20490, 10800}, 210 * (20490.0 / 15360), 2730 * (20490.0 / 15360)}};
  for (const auto& c : cases) {
    StartedRig rig(c.screen);
    EXPECT_EQ(rig.s.FraPannello.geometry(2).Left, Twips{c.inRun});
    rig.s.lblSeq[11].BackColor = colours::selected;
    click(rig.s.cmdGoTimer);
    EXPECT_EQ(rig.s.FraPannello.geometry(2).Left, Twips{c.stopped});
  }
}

}  // namespace
}  // namespace caleidoscopio::test
