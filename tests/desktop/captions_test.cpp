#include <gtest/gtest.h>

#include <map>
#include <set>

#include "desktop/window_rig.h"
#include "memories/memory_files.h"
#include "support/seeded.h"

namespace caleidoscopio::test {

namespace {

/// Captions by the name of the element that bore them.
using Captions = std::map<std::string, std::set<std::string>>;

/// A press, held so long that a stepper runs on.
void press(Store& s, Element e, std::uint64_t ms) {
  for (const Event event : {Event::MouseMove, Event::MouseDown}) e.control->raise(event, e.index);
  s.time.advance(ms);
  for (const Event event : {Event::MouseUp, Event::Click}) e.control->raise(event, e.index);
}

std::string captionOf(const Element& e) {
  return static_cast<const Label*>(e.control->element(e.index))->Caption;
}

/// True where a mouse could press: it is enabled, its frame is shown, and the naming box, which
/// lies over the memories, is open only for its own buttons.
bool canBePressed(const Store& s, const Spot& spot) {
  const Element e = spot.element;
  if (e.control->kind() != Kind::Label) return false;
  if (!static_cast<const Label*>(e.control->element(e.index))->Enabled) return false;
  if (!spot.parent.control->visible(spot.parent.index)) return false;
  return !s.FraMemoria.Visible || spot.parent.control == &s.FraMemoria;
}

/// What the labels say while the panels are pressed at random.
void useThePanels(unsigned seed, int presses, Captions& captions) {
  SeededRig rig(seed);
  Store& s = rig.s;
  for (const char* preset : {"A", "B", "C", "D", "E"}) {
    s.lblSelez.Caption = preset;
    SalvaMemoria(s);
  }
  SalvaDefault(s);
  SalvaNomi(s);
  rig.instrument.start();
  std::vector<Spot> labels;
  for (const Spot& spot : s.spots)
    if (spot.element.control->kind() == Kind::Label && spot.look != Look::Cell)
      labels.push_back(spot);
  for (int n = 0; n < presses; ++n) {
    if (!s.FraPannello[0].Visible) click(s.form);  // brings hidden panels back
    const Spot& spot =
        labels[static_cast<std::size_t>(rig.generator.among(static_cast<int>(labels.size())) - 1)];
    const Element& e = spot.element;
    const bool leaves = e.control == &s.lblComandiVari && e.index == 2;
    // A blank step of column B ends the run when its turn comes.
    const bool blanksB = e.control == &s.lblSeq && e.index == 6 && s.lblSeq[3].Caption == "B";
    if (leaves || blanksB || !canBePressed(s, spot)) continue;
    press(s, e, rig.generator.among(8) == 1 ? 5000 : 20);
    for (const Spot& each : labels)
      captions[each.element.control->nameOf(each.element.index)].insert(captionOf(each.element));
  }
}

}  // namespace

class AnyUse : public testing::TestWithParam<std::pair<int, int>> {
 protected:
  static const Captions& captions() {
    static const Captions all = [] {
      Captions found;
      for (unsigned seed = 1; seed <= 10; ++seed) useThePanels(seed, 2000, found);
      return found;
    }();
    return all;
  }
};

TEST_P(AnyUse, OfThePanelsShowsItsCaptionsWhole) {
  ASSERT_GE(captions().at("lblMode(1)").size(), 20U);
  ASSERT_GE(captions().at("lblBreakMode(20)").size(), 20U);
  WindowRig rig(GetParam().first, GetParam().second);
  // Each label's next caption at once, until the one with the most has shown all.
  bool more = true;
  for (std::size_t round = 0; more; ++round) {
    std::vector<const ControlWidget*> changed;
    for (const ControlWidget* widget : rig.window->findChildren<ControlWidget*>()) {
      const Element e = widget->element();
      const auto all = captions().find(e.control->nameOf(e.index));
      if (all == captions().end() || round >= all->second.size()) continue;
      static_cast<Label*>(e.control->element(e.index))->Caption =
          *std::next(all->second.begin(), static_cast<std::ptrdiff_t>(round));
      changed.push_back(widget);
    }
    rig.window->mirror();
    for (const ControlWidget* widget : changed)
      EXPECT_TRUE(widget->showsWholeCaption())
          << widget->objectName().toStdString() << ": " << captionOf(widget->element());
    more = !changed.empty();
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, AnyUse, screens);

}  // namespace caleidoscopio::test
