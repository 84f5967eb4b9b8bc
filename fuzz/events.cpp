// The instrument after a start, driven by bytes: what happens, to which control, to which element.
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
    "lblSelez.Caption is \"",       // the naming box's Ok where no number was clicked before
    "lblValClick.Caption is \"\"",  // the digits' timer before any of their buttons was pressed
    ".Caption is \"- - -\"",        // a cleared step of column B
    "overflow: ",                   // an interval beyond 16 bits
};

constexpr int mostEvents = 300;
constexpr unsigned longestRun = 20'000;  // of virtual time, in milliseconds

class Hand {
 public:
  Hand(Store& store, Bytes& input) : s(store), bytes(input) {}

  void next() {
    const unsigned kind = bytes.byte() % 8;
    switch (kind) {
      case 0:
        return advance(bytes.byte() * 4);
      case 1:
        // What a person does most: press, hold and let go on the spot.
        return press();
      case 2:
        return s.form.raise(Event::KeyDown, 0, static_cast<int>(bytes.word()));
      case 3:
        s.TxtNomeMemoria.Text = std::string(bytes.byte() % 40, static_cast<char>(bytes.byte()));
        return s.TxtNomeMemoria.raise(Event::KeyPress, 0, 13);
      default:
        return raise(static_cast<Event>(bytes.byte() % eventCount));
    }
  }

 private:
  struct Target {
    const Control& control;
    int index;
  };
  Target target() {
    const auto& all = s.controls.all();
    const Control& control = *all[bytes.byte() % all.size()];
    const auto count = static_cast<unsigned>(control.last() - control.first() + 1);
    const unsigned drawn = count > 256 ? bytes.word() : bytes.byte();
    return {control, control.first() + static_cast<int>(drawn % count)};
  }
  void raise(Event event) {
    const Target at = target();
    at.control.raise(event, at.index);
  }
  void press() {
    const Target at = target();
    at.control.raise(Event::MouseDown, at.index);
    advance(bytes.byte());
    at.control.raise(Event::MouseUp, at.index);
    at.control.raise(Event::Click, at.index);
  }
  void advance(unsigned ms) {
    run += ms;
    if (run <= longestRun) s.time.advance(ms);
  }

  Store& s;
  Bytes& bytes;
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
