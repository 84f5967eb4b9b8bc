#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QImage>
#include <QPaintEvent>
#include <QTimer>
#include <map>
#include <random>
#include <set>
#include <string>
#include <tuple>

#include "desktop/window_rig.h"
#include "mosaic/index_map.h"

namespace caleidoscopio::test {

namespace {

/// What the toolkit has painted: the cells that its events for the field touch, and the controls
/// that had an event, as often as they had it.
class Painted : public QObject {
 public:
  explicit Painted(const WindowRig& rig) : field_(*rig.window->findChild<FieldWidget*>()) {
    qApp->installEventFilter(this);
  }
  std::set<int> cells;
  std::multiset<std::string> controls;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    if (watched == &field_) {
      const QRegion& region = static_cast<QPaintEvent*>(event)->region();
      for (int i = 1; i <= cellCount; ++i)
        if (region.intersects(field_.boxOf(i))) cells.insert(i);
    } else if (qobject_cast<ControlWidget*>(watched)) {
      controls.insert(watched->objectName().toStdString());
    }
    return false;
  }

 private:
  const FieldWidget& field_;
};

/// Lets everything that waits be painted.
void settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

}  // namespace

/// A stopped instrument, on which a tick does what a test says.
class Painting : public testing::TestWithParam<int> {
 protected:
  Painting() {
    rig.click("cmdGoTimer");
    // A control that the instrument leaves alone.
    s.lblProva.tie(Event::Tick, 0, 0, [this](int) { work(); });
    settle();
  }
  void tick(const std::function<void()>& does) {
    work = does;
    rig.driver->raise(s.lblProva, Event::Tick, 0);
    settle();
  }
  WindowRig rig{1366, 768};
  Store& s = rig.s();
  std::function<void()> work;
};

TEST_P(Painting, ATickPaintsTheCellsThatItChangesAndNoOther) {
  std::set<int> changed;
  for (int k = 0; k < GetParam(); ++k) changed.insert(1 + k * cellCount / GetParam());
  ASSERT_EQ(static_cast<int>(changed.size()), GetParam());
  const Painted painted(rig);
  const long long before = rig.field().paintedCells();
  tick([&] {
    // All are written, as the engines write, and some of them anew.
    for (int i = 1; i <= cellCount; ++i) {
      const Colour colour = s.lblMiro[i].BackColor;
      s.lblMiro[i].BackColor = changed.contains(i) ? Colour{0x00FF00} : colour;
    }
  });
  EXPECT_EQ(painted.cells, changed);
  EXPECT_EQ(rig.field().paintedCells() - before, GetParam());
  EXPECT_TRUE(painted.controls.empty());
}

TEST_P(Painting, ATickPaintsTheLabelsThatItChangesAndNoOther) {
  const Painted painted(rig);
  tick([&] {
    for (int i = 1; i <= GetParam(); ++i) s.lblMiro[i].BackColor = {0x00FF00};
    s.lblMiro[100].ForeColor = {0x123456};  // of no digit
    s.lblColore[5].ForeColor = {0x123456};  // of no letter
    s.lblVelo[1].Caption = "123";
    s.lblSposta[3].BackColor = colours::pressed;
    s.lblValore[2].BorderStyle = 1;
    s.lblSomma.Caption = std::string(s.lblSomma.Caption);  // as it was
    s.lblComb[3].Caption = "in a table that is not shown";
    s.lblMemC.Caption = "has no place on the panel";
  });
  EXPECT_EQ(painted.controls,
            (std::multiset<std::string>{"lblSposta(3)", "lblValore(2)", "lblVelo(1)"}));
  EXPECT_EQ(static_cast<int>(painted.cells.size()), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cells, Painting, testing::Values(0, 4, 36, 441));

/// What is seen of a cell.
std::tuple<Colour, std::string, Colour> lookOf(const Label& cell) {
  return {cell.BackColor, cell.Caption, cell.Caption.empty() ? Colour{} : cell.ForeColor};
}

/// The pictures of the controls that are seen.
std::map<std::string, QImage> pictures(const WindowRig& rig) {
  std::map<std::string, QImage> all;
  for (ControlWidget* control : rig.window->findChildren<ControlWidget*>())
    if (control->isVisible()) all[control->objectName().toStdString()] = control->grab().toImage();
  return all;
}

/// No timer fires by itself any more.
void holdTimers(Store& s) {
  for (Control* control : s.controls.all())
    if (control->kind() == Kind::Timer) static_cast<Timer*>(control->element(0))->setEnabled(false);
}

TEST(RealTicks, PaintTheCellsAndLabelsWhosePictureChanges) {
  WindowRig rig(1366, 768);
  Store& s = rig.s();
  rig.click("cmdGoTimer");
  std::minstd_rand random;
  for (int k = 0; k < 20000; ++k)
    rig.generator.queue.push_back(static_cast<float>(random() % 1000) / 1000.0F);
  const TimerControl* const timers[] = {&s.TmrGoA,       &s.TmrGoB, &s.TmrGoC,
                                        &s.TmrSequencer, &s.TmrGoD, &s.TmrBrk};
  int cellsPainted = 0;
  std::size_t labelsPainted = 0;
  for (int step = 0; step < 60; ++step) {
    if (step == 30) rig.click("lblComCol(1)");  // digits come or go
    holdTimers(s);
    settle();
    const auto before = pictures(rig);
    std::map<int, std::tuple<Colour, std::string, Colour>> cells;
    for (int i = 1; i <= cellCount; ++i) cells[i] = lookOf(s.lblMiro[i]);
    const TimerControl& timer = *timers[step % std::size(timers)];
    std::set<int> paintedCells;
    std::multiset<std::string> paintedControls;
    {
      const Painted painted(rig);
      rig.driver->raise(timer, Event::Tick, 0);
      holdTimers(s);
      settle();
      paintedCells = painted.cells;
      paintedControls = painted.controls;
    }
    std::set<int> changedCells;
    for (int i = 1; i <= cellCount; ++i)
      if (cells[i] != lookOf(s.lblMiro[i])) changedCells.insert(i);
    std::multiset<std::string> changedControls;
    for (const auto& [name, picture] : pictures(rig))
      if (!before.contains(name) || before.at(name) != picture) changedControls.insert(name);
    EXPECT_EQ(paintedCells, changedCells) << timer.name() << ", step " << step;
    EXPECT_EQ(paintedControls, changedControls) << timer.name() << ", step " << step;
    cellsPainted += static_cast<int>(paintedCells.size());
    labelsPainted += paintedControls.size();
  }
  EXPECT_TRUE(rig.faults.isEmpty()) << rig.faults.join(' ').toStdString();
  EXPECT_GT(cellsPainted, 1000);
  EXPECT_GT(labelsPainted, 10U);
}

/// How often the event loop goes to sleep in two seconds, the last time included.
int sleepsInTwoSeconds() {
  int sleeps = 0;
  QEventLoop loop;
  const auto counting =
      QObject::connect(QAbstractEventDispatcher::instance(),
                       &QAbstractEventDispatcher::aboutToBlock, [&sleeps] { ++sleeps; });
  QTimer::singleShot(2000, &loop, &QEventLoop::quit);
  loop.exec();
  QObject::disconnect(counting);
  return sleeps;
}

TEST(Rest, NothingWakesAStoppedInstrument) {
  WindowRig rig;
  rig.click("cmdGoTimer");
  rig.click("lblComandiVari(1)");
  rig.click("lblSave(3)");
  ASSERT_TRUE(rig.widget("FraMemoria").isVisible());
  EXPECT_GT(sleepsInTwoSeconds(), 3);  // the naming box's cursor blinks
  rig.click("lblSalvaComb(1)");
  settle();
  EXPECT_LE(sleepsInTwoSeconds(), 2);
}

}  // namespace caleidoscopio::test
