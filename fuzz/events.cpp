// The instrument after a start, driven by bytes: to which control, to which element, and what.
#include "fuzz/stage.h"

namespace {

using namespace caleidoscopio;
using namespace caleidoscopio::fuzz;

/// Takes numbers off the input; 0 at its end.
class Bytes {
 public:
  explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
  bool empty() const { return bytes_.empty(); }
  unsigned byte() {
    if (bytes_.empty()) return 0;
    const unsigned first = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return first;
  }
  unsigned word() {
    const unsigned high = byte();
    return high * 256 + byte();
  }

 private:
  std::span<const std::uint8_t> bytes_;
};

/// No file is damaged here, so little can end the run.
constexpr std::string_view ends[] = {
    "lblSelez.Caption is \"",              // the naming box's Ok after a preset was loaded under it
    ".Caption is \"- - -\"",               // a cleared step of column B
    "overflow: ",                          // an interval beyond 16 bits
    ".txt: cannot be read: no such file",  // a mark that moved as the bank changed under the box
};

constexpr int mostEvents = 400;
constexpr unsigned longestRun = 20'000;  // of virtual time, in milliseconds

/// The elements of a control that take an event. A byte drawn for any other would be lost, and most
/// elements take none.
struct Taker {
  const Control* control;
  std::vector<int> elements;
};
std::vector<Taker> takersOf(const Store& s) {
  std::vector<Taker> takers;
  for (const Control* control : s.controls.all()) {
    Taker taker{control, {}};
    for (int i = control->first(); i <= control->last(); ++i)
      for (std::size_t event = 0; event < eventCount; ++event)
        if (control->handles(static_cast<Event>(event), i)) {
          taker.elements.push_back(i);
          break;
        }
    if (!taker.elements.empty()) takers.push_back(std::move(taker));
  }
  return takers;
}

class Hand {
 public:
  Hand(Store& store, Bytes& input) : s(store), bytes(input), takers(takersOf(store)) {}

  void next() {
    const std::size_t drawn = bytes.byte();
    if (drawn >= 2 * takers.size()) return advance(bytes.byte() * 4);
    const auto& [taker, elements] = takers[drawn % takers.size()];
    const Control& control = *taker;
    const int index = elements[(elements.size() > 256 ? bytes.word()
                                : elements.size() > 1 ? bytes.byte()
                                                      : 0) %
                               elements.size()];
    // What would only end the run early is left out: a timer that is off, the naming box while it
    // is closed, and the end picture before it shows.
    if (control.kind() == Kind::Timer) return tick(control);
    if (control.kind() == Kind::Window) return key(control);
    if (control.kind() == Kind::TextBox) return type();
    if (&control == &s.lblSalvaComb && !s.FraMemoria.Visible) return;
    if (&control == &s.lblZQ && !s.frmMiroVelTaZQ.Visible) return;
    const unsigned how = bytes.byte();
    // What a person does most: press, hold or not, and let go on the spot.
    if (how >= eventCount) return press(control, index, how < 128 ? 0 : (how - 128) * 8);
    control.raise(static_cast<Event>(how), index);
  }

 private:
  void press(const Control& control, int index, unsigned held) {
    control.raise(Event::MouseMove, index);
    control.raise(Event::MouseDown, index);
    advance(held);
    control.raise(Event::MouseUp, index);
    control.raise(Event::Click, index);
  }
  void tick(const Control& timer) {
    if (static_cast<const Timer*>(timer.element(0))->Enabled()) timer.raise(Event::Tick);
  }
  void key(const Control& window) {
    const unsigned code = bytes.byte();
    if (code == 0) return window.raise(Event::Click);
    window.raise(Event::KeyDown, 0, static_cast<int>(code));
  }
  void type() {
    if (!s.FraMemoria.Visible) return;
    s.TxtNomeMemoria.Text = std::string(bytes.byte() % 40, static_cast<char>(bytes.byte()));
    s.TxtNomeMemoria.raise(Event::KeyPress, 0, 13);
  }
  void advance(unsigned ms) {
    run += ms;
    if (run <= longestRun) s.time.advance(ms);
  }

  Store& s;
  Bytes& bytes;
  std::vector<Taker> takers;
  unsigned run = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes bytes({data, size});
  SeededRig rig(bytes.byte());
  rig.files.files = shippedFiles();
  lawful(
      [&] {
        rig.instrument.start();
        Hand hand(rig.s, bytes);
        for (int n = 0; n < mostEvents && !bytes.empty() && !rig.s.ended; ++n) hand.next();
      },
      ends);
  return 0;
}
