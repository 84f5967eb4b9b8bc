// A list of names from anywhere: through a start, the ten banks, a load, a save and leaving.
#include "fuzz/stage.h"
#include "support/hands.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace caleidoscopio;
  using namespace caleidoscopio::fuzz;
  const std::string text =
      fileFrom({reinterpret_cast<const char*>(data), size}, shippedFiles().at(namesFile));
  if (!readsAndComesBack(nameRuns(), text)) return 0;
  SeededRig rig(1);
  rig.files.files = shippedFiles();
  rig.files.files[namesFile] = text;
  Store& s = rig.s;
  lawful([&] {
    rig.instrument.start();
    click(s.cmdGoTimer);
    for (int bank = 0; bank < 11; ++bank) test::pressAndRelease(s.lblMemo, bank % 3 == 2 ? 1 : 2);
    for (const int button : {0, 3, 9, 11}) click(s.lblSave, button);
    click(s.lblComandiVari, 1);
    click(s.lblSave, 4);
    s.TxtNomeMemoria.raise(Event::KeyPress, 0, 13);
    click(s.lblCanc);
    click(s.lblSave, 4);
    click(s.lblComandiVari, 2);
  });
  return 0;
}
