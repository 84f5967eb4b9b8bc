#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "mosaic/index_map.h"
#include "support/started_rig.h"

namespace caleidoscopio::test {
namespace {

struct Rectangle {
  double left, top, right, bottom;
};
Rectangle rectangleOf(Element element) {
  const Geometry& g = element.control->geometry(element.index);
  return {g.Left.value, g.Top.value, g.Left.value + g.Width.value, g.Top.value + g.Height.value};
}
bool overlap(const Rectangle& a, const Rectangle& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}
std::string nameOf(Element element) {
  return element.control->nameOf(element.index);
}
bool takesPresses(const Spot& spot) {
  for (const Event event : {Event::Click, Event::MouseDown, Event::MouseUp})
    if (spot.element.control->handles(event, spot.element.index)) return true;
  return false;
}
bool sameElement(Element a, Element b) {
  return a.control == b.control && a.index == b.index;
}
/// Frames that hold scratch labels are no place on the screen.
bool isHiddenStore(Element frame) {
  const std::string name = nameOf(frame);
  return name == "Frame2" || name == "Frame4" || name == "Frame6" || name == "FraMiro2";
}

/// At the design size after start-up, when the left panel is cut and the frames are in place.
struct Placement : testing::Test, StartedRig {};

TEST_F(Placement, NoElementIsPlacedTwice) {
  std::set<std::string> names;
  for (const Spot& spot : s.spots)
    EXPECT_TRUE(names.insert(nameOf(spot.element)).second) << nameOf(spot.element);
}

TEST_F(Placement, EveryParentIsAWindowOrAFramePlacedBeforeItsChildren) {
  std::set<std::string> placed;
  for (const Spot& spot : s.spots) {
    const Kind kind = spot.parent.control->kind();
    EXPECT_TRUE(kind == Kind::Window || kind == Kind::Frame) << nameOf(spot.parent);
    if (kind == Kind::Frame && !isHiddenStore(spot.parent)) {
      EXPECT_TRUE(placed.count(nameOf(spot.parent))) << nameOf(spot.element);
    }
    placed.insert(nameOf(spot.element));
  }
}

TEST_F(Placement, EverySpotLiesInsideItsParent) {
  for (const Spot& spot : s.spots) {
    if (isHiddenStore(spot.parent)) continue;
    const Rectangle box = rectangleOf(spot.element);
    const Geometry& parent = spot.parent.control->geometry(spot.parent.index);
    EXPECT_LT(box.left, box.right) << nameOf(spot.element);
    EXPECT_LT(box.top, box.bottom) << nameOf(spot.element);
    EXPECT_GE(box.left, 0) << nameOf(spot.element);
    EXPECT_GE(box.top, 0) << nameOf(spot.element);
    EXPECT_LE(box.right, parent.Width.value) << nameOf(spot.element);
    EXPECT_LE(box.bottom, parent.Height.value) << nameOf(spot.element);
  }
}

TEST_F(Placement, NoTwoSiblingsThatTakePressesOverlap) {
  std::vector<const Spot*> pressed;
  for (const Spot& spot : s.spots)
    // Neighbouring cells share their line, one pixel wide: meant so.
    if (takesPresses(spot) && spot.look != Look::Cell) pressed.push_back(&spot);
  ASSERT_GT(pressed.size(), 100U);
  for (std::size_t a = 0; a < pressed.size(); ++a)
    for (std::size_t b = a + 1; b < pressed.size(); ++b)
      if (sameElement(pressed[a]->parent, pressed[b]->parent)) {
        EXPECT_FALSE(overlap(rectangleOf(pressed[a]->element), rectangleOf(pressed[b]->element)))
            << nameOf(pressed[a]->element) << " and " << nameOf(pressed[b]->element);
      }
}

TEST_F(Placement, NoLabelThatShowsSomethingIsCoveredByOneThatTakesPresses) {
  for (const Spot& shown : s.spots) {
    if (shown.look != Look::Display && shown.look != Look::Heading) continue;
    for (const Spot& other : s.spots)
      if (!sameElement(shown.element, other.element) && sameElement(shown.parent, other.parent) &&
          takesPresses(other)) {
        EXPECT_FALSE(overlap(rectangleOf(shown.element), rectangleOf(other.element)))
            << nameOf(shown.element) << " and " << nameOf(other.element);
      }
  }
}

TEST_F(Placement, ADisplayAndAHeadingTakeNoPress) {
  for (const Spot& spot : s.spots) {
    const bool bare = spot.look == Look::Display || spot.look == Look::Heading;
    EXPECT_FALSE(bare && takesPresses(spot)) << nameOf(spot.element);
  }
}

TEST_F(Placement, TheCellsStandInTheirRowsAndColumnsAndShareTheirLines) {
  for (int i = 1; i <= 441; ++i) {
    const Place at = caleidoscopio::placeOf(i);
    EXPECT_EQ(s.lblMiro.geometry(i).Left, Twips{2640.0 + 480 * at.column}) << i;
    EXPECT_EQ(s.lblMiro.geometry(i).Top, Twips{720.0 + 480 * at.row}) << i;
    EXPECT_EQ(s.lblMiro.geometry(i).Width, Twips{495}) << i;
    EXPECT_EQ(s.lblMiro.geometry(i).Height, Twips{495}) << i;
  }
  EXPECT_EQ(rectangleOf({&s.lblMiro, 439}).right, 12735);
  EXPECT_EQ(rectangleOf({&s.lblMiro, 439}).bottom, 10815);
}

TEST_F(Placement, ThePanelsAndOutlinesStandAtTheirDesignPlaces) {
  const auto at = [](const Geometry& g, double left, double top, double width, double height) {
    return g.Left == Twips{left} && g.Top == Twips{top} && g.Width == Twips{width} &&
           g.Height == Twips{height};
  };
  EXPECT_TRUE(at(s.FraPannello.geometry(0), 210, 240, 2255, 11055));
  EXPECT_TRUE(at(s.FraPannello.geometry(1), 12915, 315, 2255, 11055));
  EXPECT_TRUE(at(s.ShpContour.geometry(), 2625, 725, 10110, 10095));
  EXPECT_TRUE(at(s.ShpRettangolo.geometry(), 3120, 1200, 4335, 4335));
  EXPECT_EQ(s.FraPannello.geometry(2).Top, Twips{840});
  EXPECT_EQ(s.FraPannello.geometry(2).Width, Twips{2255});
  EXPECT_EQ(s.FraPannello.geometry(2).Height, Twips{9855});
}

TEST_F(Placement, TheSwatchesStandInTwelveRowsFromRightToLeftAndARowOfGreys) {
  for (int i = 1; i <= 96; ++i) {
    EXPECT_EQ(s.lblColore.geometry(i).Left, Twips{1845.0 - 240 * ((i - 1) % 8)}) << i;
    EXPECT_EQ(s.lblColore.geometry(i).Top, Twips{480.0 + 240 * ((i - 1) / 8)}) << i;
  }
  double left = 0;
  for (const int i : {101, 100, 99, 103, 102, 104, 98, 97}) {
    EXPECT_GT(s.lblColore.geometry(i).Left.value, left) << i;
    EXPECT_EQ(s.lblColore.geometry(i).Top, Twips{3360}) << i;
    left = s.lblColore.geometry(i).Left.value;
  }
  for (int i = 1; i <= 104; ++i) {
    EXPECT_EQ(s.lblColore.geometry(i).Width, Twips{195}) << i;
    EXPECT_EQ(s.lblColore.geometry(i).Height, Twips{195}) << i;
  }
}

TEST_F(Placement, TheHeadingsStandWhereThePanelsSectionsBegin) {
  const std::pair<const char*, double> headings[] = {{"A -Timer Shift", 120},
                                                     {"B - Timer Transform", 2055},
                                                     {"C - Timer Frame", 4725},
                                                     {"D - Timer Break", 6300},
                                                     {"E - Timer Sequencer", 9270},
                                                     {"Gamma Colori", 120},
                                                     {"Strumenti disegno", 3720},
                                                     {"Palette", 4900},
                                                     {"Random Colori", 6485},
                                                     {"F - Timer Colori", 7695},
                                                     {"Memorie", 8600}};
  for (const auto& [caption, top] : headings) {
    const Geometry* found = nullptr;
    for (int i = 0; i <= 19; ++i)
      if (s.lblScritteVarie[i].Caption == caption) found = &s.lblScritteVarie.geometry(i);
    ASSERT_TRUE(found) << caption;
    EXPECT_NEAR(found->Top.value, top, 30) << caption;
    EXPECT_GT(found->Width.value, 0) << caption;
  }
}

}  // namespace
}  // namespace caleidoscopio::test
