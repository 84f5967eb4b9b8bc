#pragma once

#include "panel/control_list.h"
#include "panel/controls.h"
#include "panel/platform.h"
#include "panel/spots.h"
#include "panel/timers.h"

namespace caleidoscopio {

/// What every folder's controls stand on: the windows and frames, the timers, run control and the
/// speed rows, and the platform. Each folder derives its own controls from the folders that it
/// may see, virtually, so that all of them together are one panel.
struct PanelControls {
  PanelControls() = default;
  PanelControls(const PanelControls&) = delete;
  PanelControls& operator=(const PanelControls&) = delete;

  Platform* platform = nullptr;  ///< set by the instrument before anything runs
  Time time;
  ControlList controls;        ///< every control of the whole panel, by name
  std::vector<Spot> spots;     ///< those that a person sees, each after its parent
  std::vector<Spot> endSpots;  ///< the same for the end picture
  /// The program's own end: the click on the end picture sets it, and the face that brought the
  /// click in ends the program as soon as the handler has run.
  bool ended = false;

  Group windowGroup;
  Single<Window> form{windowGroup, "form", Caption{"Caleidoscopio"}, Back{colours::ground}};
  Single<Window> frmMiroVelTaZQ{windowGroup, "frmMiroVelTaZQ", Back{colours::ground}, Hidden{}};
  Single<TextBox> TxtNomeMemoria{windowGroup, "TxtNomeMemoria"};
  Single<Image> ImgZQ{windowGroup, "ImgZQ"};
  Single<Shape> ShpContour{windowGroup, "ShpContour", Width{2}};
  Single<Shape> ShpRettangolo{windowGroup, "ShpRettangolo", Hidden{}, Width{2}};
  Row<Frame, 0, 2> FraPannello{windowGroup, "FraPannello", Back{colours::ground}, HiddenAt{{2}}};
  Row<Frame, 1, 12> FraTransf{windowGroup, "FraTransf", Back{colours::occupied},
                              HiddenAt{{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}}};
  Single<Frame> FraMemoria{windowGroup, "FraMemoria", Back{colours::occupied}, Border{}, Hidden{}};
  Single<Frame> FraMiro2{windowGroup, "FraMiro2", Hidden{}};
  Single<Frame> FraRandom{windowGroup, "FraRandom", Hidden{}};
  Single<Frame> Frame2{windowGroup, "Frame2", Hidden{}};
  Single<Frame> Frame4{windowGroup, "Frame4", Hidden{}};
  Single<Frame> Frame6{windowGroup, "Frame6", Hidden{}};
  Single<Frame> FraZQ{windowGroup, "FraZQ", Back{colours::ground}};

  Group panelGroup;
  OneLabel cmdGoTimer{panelGroup, "cmdGoTimer", Caption{"Go"}, Back{colours::idle}};
  Labels<0, 5> cmdOnOff{panelGroup, "cmdOnOff", Captions{0, {"F", "A", "B", "C", "D", "E"}},
                        Back{colours::pressed}};
  OneLabel lblHide{panelGroup, "lblHide", Caption{"Hide"}, Back{colours::selected}};
  OneLabel lblSpiaBreak{panelGroup, "lblSpiaBreak"};
  Labels<1, 2> lblMode{panelGroup, "lblMode",
                       Captions{1, {"Campo Orizzontale Out", "Crea Disegno"}}};
  Labels<1, 3> lblVelo{panelGroup, "lblVelo", Captions{1, {"500", "1000", "80"}}};
  Labels<1, 3> lblPiùTmr{panelGroup, "lblPiùTmr", Caption{"+"}, Back{colours::idle}};
  Labels<1, 3> lblMenoTmr{panelGroup, "lblMenoTmr", Caption{"-"}, Back{colours::idle}};
  OneLabel lblIndexTmr{panelGroup, "lblIndexTmr", Caption{"2"}};
  /// Fixed words. 7 to 9 stand above and below the field, 12, 13 and 19 head the columns of the
  /// sequencer's table; all others head a section of the panels or name a value.
  Labels<0, 49> lblScritteVarie{
      panelGroup, "lblScritteVarie",
      Captions{0,
               {"A -Timer Shift",
                "B - Timer Transform",
                "C - Timer Frame",
                "D - Timer Break",
                "E - Timer Sequencer",
                "Gamma Colori",
                "Strumenti disegno",
                "Caleidoscopio",
                "Un tasto, o un clic fuori dal campo, mostra i pannelli",
                "",
                "Palette",
                "Random Colori",
                "A",
                "B",
                "F - Timer Colori",
                "Memorie",
                "Matrice RW",
                "m:",
                "+R:",
                "C"}},
      Captions{20, {"Rett.",           "Croce",
                    "Corn.",           "Campo",
                    "Colori",          "Creazione:",
                    "Angolo",          "Misura",
                    "Lunghezze",       "Colori",
                    "Nessuna opzione", "Raro",
                    "Frequente",       "Cella",
                    "Numero Scambi:",  "Croce",
                    "Corn.",           "Ripresa",
                    "Passo",           "+ s",
                    "Colori",          "Digita il nome della memoria che salvi e poi premi Ok"}}};
  OneLabel lblDir{panelGroup, "lblDir"};

  // Timers due at the same moment fire in the order in which they stand here.
  Group timerGroup;
  TimerControl TmrGoA{timerGroup, time, "TmrGoA", 500};
  TimerControl TmrGoB{timerGroup, time, "TmrGoB", 100};
  TimerControl TmrGoC{timerGroup, time, "TmrGoC", 1000};
  TimerControl TmrBrk{timerGroup, time, "TmrBrk", 3000};
  TimerControl TmrSequencer{timerGroup, time, "TmrSequencer", 2000};
  TimerControl TmrGoD{timerGroup, time, "TmrGoD", 0};
  TimerControl TmrBreak{timerGroup, time, "TmrBreak", 3000};
  TimerControl TmrAspetta{timerGroup, time, "TmrAspetta", 0};
  TimerControl TmrCrea{timerGroup, time, "TmrCrea", 100};
  TimerControl TmrRandomColori{timerGroup, time, "TmrRandomColori", 1000};
  TimerControl TmrRndColor{timerGroup, time, "TmrRndColor", 120};
  TimerControl TmrColori{timerGroup, time, "TmrColori", 200};
  TimerControl TmrVeloPiù{timerGroup, time, "TmrVeloPiù", 70};
  TimerControl TmrVeloMeno{timerGroup, time, "TmrVeloMeno", 70};
  TimerControl TmrScorriPiù{timerGroup, time, "TmrScorriPiù", 70};
  TimerControl TmrScorriMeno{timerGroup, time, "TmrScorriMeno", 70};
  TimerControl TmrScorriMemo{timerGroup, time, "TmrScorriMemo", 150};
  TimerControl TmrScorriBrk{timerGroup, time, "TmrScorriBrk", 75};
  TimerControl TmrVeloBreak{timerGroup, time, "TmrVeloBreak", 75};
  TimerControl TmrScorriRndCol{timerGroup, time, "TmrScorriRndCol", 75};
  TimerControl TmrScorriSeq{timerGroup, time, "TmrScorriSeq", 100};
  TimerControl TmrAvanza{timerGroup, time, "TmrAvanza", 100};
  TimerControl TmrStepParziali{timerGroup, time, "TmrStepParziali", 150};
  TimerControl TmrStepTotali{timerGroup, time, "TmrStepTotali", 150};
  TimerControl TmrFrqRnd{timerGroup, time, "TmrFrqRnd", 100};
  TimerControl TmrRndFreq{timerGroup, time, "TmrRndFreq", 100};
  TimerControl TmrAlterna{timerGroup, time, "TmrAlterna", 750};
};

}  // namespace caleidoscopio
