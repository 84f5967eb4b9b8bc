// A memory from anywhere: as the default memory of a start, then played, then with all timers in.
#include "fuzz/stage.h"
#include "support/hands.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace caleidoscopio;
  using namespace caleidoscopio::fuzz;
  const std::string text =
      fileFrom({reinterpret_cast<const char*>(data), size}, shippedFiles().at(defaultFile));
  if (!readsAndComesBack(memoryRuns(), text)) return 0;
  SeededRig rig(1);
  rig.files.files = shippedFiles();
  rig.files.files[defaultFile] = text;
  lawful([&] {
    rig.instrument.start();
    rig.s.time.advance(500);
    for (int t = 0; t <= 5; ++t)
      if (rig.s.cmdOnOff[t].BackColor != colours::running) click(rig.s.cmdOnOff, t);
    rig.s.time.advance(1000);
  });
  return 0;
}
