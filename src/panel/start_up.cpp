#include "panel/start_up.h"

#include <array>
#include <cstdio>
#include <string>

#include "memories/bank.h"
#include "memories/memory_files.h"
#include "mosaic/index_map.h"
#include "mosaic/tools.h"
#include "panel/go_stop.h"
#include "panel/scaling.h"

namespace caleidoscopio {

namespace {

std::string creditLine(int year) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "%04d", year);
  return std::string("Caleidoscopio elettronico programmabile - ") + digits.data();
}

}  // namespace

void Form_Load(RunControls& s) {
  const WallTime time = s.platform->clock.now();
  s.platform->generator.seed(time);
  s.FraMemoria.geometry().Left = {105};
  s.FraMemoria.geometry().Top = {8505};
  // With no root found the folder stays as it was.
  if (std::string root = s.platform->files.root(); !root.empty()) s.lblDir.Caption = root;
  s.lblScritteVarie[9].Caption = creditLine(time.year);
  CaricaDefault(s);
  CaricaNomi(s);
  showTitlesOfBank(s);
  s.lblNomefile.Caption = "Default";
  s.lblSelez.Caption = "Def";
  for (int i = 1; i <= cellCount; ++i) s.lblMiro2[i].BackColor = s.lblMiro[i].BackColor;
  for (int i = 1; i <= 12; ++i) {
    s.FraTransf.geometry(i).Left = {105};
    s.FraTransf.geometry(i).Top = {3150};
  }
  // The panel is built wider than it shows; what lies beyond is cut off.
  s.FraPannello.geometry(0).Width = {2255};
  scaleToScreen(s.form, s.spots, s.platform->screen);
  showContour(s);
  cmdGoTimer_Click(s);
}

}  // namespace caleidoscopio
