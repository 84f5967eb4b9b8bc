// Random presses on random controls of a real window whose timers all run at their shortest.
#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScreen>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <deque>
#include <optional>
#include <random>
#include <set>
#include <string_view>
#include <vector>

#include "desktop/looks.h"
#include "endurance/real_window.h"

namespace caleidoscopio::endurance {
namespace {

/// A press that the storm leaves out, since it ends the run by right.
struct Exception {
  std::string_view control;
  int index;
  bool (*when)(const Store&);
  const char* why;
};

bool always(const Store&) {
  return true;
}
bool editsTransforms(const Store& s) {
  return s.lblSeq[3].Caption == "B";
}
bool longPause(const Store& s) {
  return s.lblBrk[0].Caption.size() >= 5;
}

constexpr Exception exceptions[] = {
    {"lblComandiVari", 2, always, "saves and leaves"},
    {"lblSeq", 6, editsTransforms, "clears a step of B, which is then no number to play"},
    {"lblBrk", 2, longPause, "lengthens a pause whose variations may pass 32767"},
    {"lblBrk", 3, longPause, "varies a pause that may pass 32767 by it"},
};

const Exception* exceptionFor(Element element, const Store& s) {
  for (const Exception& e : exceptions)
    if (element.control->name() == e.control && element.index == e.index && e.when(s)) return &e;
  return nullptr;
}

struct Options {
  unsigned seed = 1;
  int presses = 10'000;
  int withinMs = 0;  ///< 0: time is not looked at
};

/// Where a press lands, and what is there.
struct Target {
  QPoint at;
  QString name;
};

class Storm {
 public:
  explicit Storm(const Options& options)
      : options_(options), random_(options.seed), real_(options.seed, [](Store& s) {
          switchAllIn(s);
          stepToShortest(s);
          writeProgramme(s);
          s.lblHide.BackColor = colours::unselected;
        }) {
    for (ControlWidget* control : real_.window->findChildren<ControlWidget*>())
      if (control->isButton()) buttons_.push_back(control);
  }

  bool run() {
    if (!atShortest(real_.s())) return fails("the intervals are not the shortest");
    QElapsedTimer time;
    time.start();
    for (int n = 0; n < options_.presses; ++n) {
      if (n % bringBackEvery == 0) bringBack();
      press(n);
      if (!real_.faults.isEmpty()) return ended(n);
    }
    std::printf(
        "%d presses on %zu of %zu buttons and on the field, %lld handlers, %.1f s; "
        "%d found the field in motion\n",
        options_.presses, pressed_.size(), buttons_.size(), real_.changes,
        static_cast<double>(time.elapsed()) / 1e3, inMotion_);
    for (std::size_t e = 0; e < std::size(exceptions); ++e)
      std::printf("left out %d times: %s(%d), which %s\n", leftOut_[e],
                  std::string(exceptions[e].control).c_str(), exceptions[e].index,
                  exceptions[e].why);
    if (inMotion_ < options_.presses / 10) return fails("the field stood still most of the time");
    return answers() && paintsAll();
  }

 private:
  // Presses stop the run and stretch its intervals; this often it is put back.
  static constexpr int bringBackEvery = 20;
  static constexpr int answersAsked = 50;
  // A press waits for what is under way, and its painting for a round of the timers.
  static constexpr int handlersMeanwhile = 20;
  static constexpr int patienceMs = 60'000;

  int among(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  static bool fails(const std::string& why) {
    std::printf("%s\n", why.c_str());
    return false;
  }

  void bringBack() {
    endurance::bringBack(real_.s());
    // As after any handler: shown at once, and the timers that it started are waited for.
    real_.driver->raise(real_.s().form, Event::MouseUp, 0);
  }

  std::optional<Target> anyTarget() {
    if (among(10) == 0) {
      const int cell = 1 + among(cellCount);
      const QPoint at = real_.field().boxOf(cell).center();
      return Target{at, QStringLiteral("lblMiro(%1)").arg(cell)};
    }
    if (among(100) == 0) return Target{{real_.window->width() / 2, 5}, QStringLiteral("form")};
    ControlWidget* button =
        buttons_[static_cast<std::size_t>(among(static_cast<int>(buttons_.size())))];
    if (!button->isVisible() || !button->isEnabled()) return std::nullopt;
    const QPoint at = button->mapTo(&*real_.window, button->rect().center());
    if (real_.window->childAt(at) != button) return std::nullopt;
    if (const Exception* e = exceptionFor(button->element(), real_.s())) {
      ++leftOut_[e - exceptions];
      return std::nullopt;
    }
    pressed_.insert(button);
    return Target{at, button->objectName()};
  }

  /// A press of the left button, and its release at once or after some repeats.
  void press(int n) {
    std::optional<Target> target;
    while (!(target = anyTarget())) continue;
    if (real_.s().TmrGoA.Enabled()) ++inMotion_;
    last_.push_back(target->name);
    if (last_.size() > 20) last_.pop_front();
    QWindow* window = real_.window->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, target->at);
    if (n % 100 == 0) RealWindow::letRun(20 + among(200));
    QTest::mouseRelease(window, Qt::LeftButton, {}, target->at);
  }

  bool ended(int n) {
    std::printf("press %d ended the run: %s\nthe last presses:", n,
                qPrintable(real_.faults.join('\n')));
    for (const QString& name : last_) std::printf(" %s", qPrintable(name));
    std::puts("");
    return false;
  }

  /// True when the screen shows `colour` beside the middle of the button.
  bool shows(const QWidget& button, Colour colour) {
    const QPoint at = button.mapTo(&*real_.window, QPoint(button.width() / 6, button.height() / 4));
    const QImage pixel =
        real_.window->screen()->grabWindow(real_.window->winId(), at.x(), at.y(), 1, 1).toImage();
    return pixel.pixelColor(0, 0) == toScreen(colour);
  }

  /// Presses a button until the screen shows it pressed, over and over: there must be no crowd of
  /// events before it, and no more time than a person notices.
  bool answers() {
    bringBack();
    RealWindow::letRun(500);
    QWidget& button = *real_.window->findChild<QWidget*>("lblNSc");
    long long worstHandlers = 0, worstMs = 0;
    for (int n = 0; n < answersAsked; ++n) {
      RealWindow::letRun(among(30));
      if (!awaitColour(button, colours::unselected)) return fails("a release was not answered");
      const long long before = real_.changes;
      QElapsedTimer time;
      time.start();
      post(button, QEvent::MouseButtonPress);
      if (!awaitColour(button, colours::pressed)) return fails("a press was not answered");
      worstMs = std::max<long long>(worstMs, time.elapsed());
      worstHandlers = std::max(worstHandlers, real_.changes - before);
      post(button, QEvent::MouseButtonRelease);
    }
    std::printf("the last of %d presses were shown within %lld ms and %lld handlers\n",
                answersAsked, worstMs, worstHandlers);
    if (worstHandlers > handlersMeanwhile) return fails("too many handlers came before");
    return options_.withinMs == 0 || worstMs <= options_.withinMs || fails("that is too long");
  }

  /// Puts an event behind all that wait.
  static void post(QWidget& button, QEvent::Type type) {
    const QPointF at = button.rect().center();
    const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QCoreApplication::postEvent(
        &button, new QMouseEvent(type, at, button.mapToGlobal(at), Qt::LeftButton, buttons, {}));
  }

  bool awaitColour(const QWidget& button, Colour colour) {
    QElapsedTimer patience;
    patience.start();
    while (!shows(button, colour)) {
      if (patience.elapsed() > patienceMs) return false;
      QCoreApplication::processEvents();
    }
    return true;
  }

  /// Stops the run; what the screen shows then is what a new window would paint.
  bool paintsAll() {
    real_.driver->raise(real_.s().cmdGoTimer, Event::Click, 0);
    if (!real_.rest()) return fails("the run does not stop");
    const int wrong = real_.wrongPixels();
    return wrong == 0 ||
           fails(std::to_string(wrong) + " pixels are not as painted anew from the store");
  }

  Options options_;
  std::mt19937 random_;
  RealWindow real_;
  std::vector<ControlWidget*> buttons_;
  std::set<ControlWidget*> pressed_;
  std::deque<QString> last_;
  int inMotion_ = 0;  ///< presses that found the field shifting, and no Break
  int leftOut_[std::size(exceptions)] = {};
};

bool take(const QByteArray& argument, Options& options) {
  bool good = false;
  const QByteArray value = argument.mid(argument.indexOf('=') + 1);
  if (argument.startsWith("--seed=")) options.seed = value.toUInt(&good);
  if (argument.startsWith("--presses=")) options.presses = value.toInt(&good);
  if (argument.startsWith("--within-ms=")) options.withinMs = value.toInt(&good);
  return good;
}

}  // namespace
}  // namespace caleidoscopio::endurance

// storm [--seed=N] [--presses=N] [--within-ms=N]
int main(int argc, char** argv) {
  using namespace caleidoscopio;
  QApplication app(argc, argv);
  installAccessibility();
  endurance::Options options;
  for (int i = 1; i < argc; ++i)
    if (!endurance::take(argv[i], options)) {
      std::fputs("usage: storm [--seed=N] [--presses=N] [--within-ms=N]\n", stderr);
      return 2;
    }
  std::printf("storm on %s, seed %u\n", qPrintable(QGuiApplication::platformName()), options.seed);
  std::fflush(stdout);
  return endurance::Storm(options).run() ? 0 : 1;
}
