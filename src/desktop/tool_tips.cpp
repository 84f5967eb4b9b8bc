#include "desktop/tool_tips.h"

#include <string_view>

#include "break/patterns.h"

namespace caleidoscopio {

namespace {

/// The tip of the elements from `first` to `last`. The first row that fits is taken.
struct Tip {
  std::string_view control;
  int first, last;
  const char* text;
};

// clang-format off
constexpr Tip tips[] = {
    {"form", 0, 0, "Un tasto, o un clic qui fuori dal campo, mostra i pannelli"},

    // run
    {"cmdGoTimer", 0, 0, "Avvia o ferma tutti i timer accesi"},
    {"lblHide", 0, 0, "Nasconde i pannelli durante il movimento"},
    {"lblBack", 0, 0, "Torna al disegno e ai colori dell'ultimo avvio"},
    {"cmdOnOff", 0, 0, "Accende o spegne il Timer F, Colori"},
    {"cmdOnOff", 1, 1, "Accende o spegne il Timer A, Shift"},
    {"cmdOnOff", 2, 2, "Accende o spegne il Timer B, Transform"},
    {"cmdOnOff", 3, 3, "Accende o spegne il Timer C, Frame"},
    {"cmdOnOff", 4, 4, "Accende o spegne il Timer D, Break"},
    {"cmdOnOff", 5, 5, "Accende o spegne il Timer E, Sequencer"},
    {"lblVelo", 1, 3, "Intervallo in millisecondi"},
    {"lblPiùTmr", 1, 3, "Più lento: tieni premuto"},
    {"lblMenoTmr", 1, 3, "Più veloce: tieni premuto"},
    {"lblMode", 1, 1, "Spostamento scelto"},
    {"lblMode", 2, 2, "Trasformazione scelta"},
    {"lblSpiaBreak", 0, 0, "Accesa quando la ripetizione dei Break riprende al prossimo avvio"},

    // shift
    {"lblSposta", 1, 1, "Campo Orizzontale"},
    {"lblSposta", 2, 2, "Strisce Orizzontali"},
    {"lblSposta", 3, 3, "Strisce H a 3"},
    {"lblSposta", 4, 4, "Campo Verticale"},
    {"lblSposta", 5, 5, "Strisce Verticali"},
    {"lblSposta", 6, 6, "Strisce V a 3"},
    {"lblSposta", 7, 7, "Campo Diagonale A"},
    {"lblSposta", 8, 8, "Campo Diagonale B"},
    {"lblSposta", 9, 9, "Zig-Zag Orizzontale"},
    {"lblSposta", 10, 10, "Zig-Zag Verticale"},
    {"lblSposta", 11, 11, "Zig-Zag H a 3"},
    {"lblSposta", 12, 12, "Zig-Zag V a 3"},
    {"lblOraria", 0, 0, "Direzione: In verso il centro, Out verso la cornice"},
    {"lblSomma", 0, 0, "Codice dello spostamento"},
    {"lblSyncro", 0, 0, "Stessa velocità per tutti gli spostamenti"},

    // transform
    {"lblTransf", 1, 1, "Crea Disegno: un disegno nuovo a ogni passo"},
    {"lblTransf", 2, 2, "Angoli: figure ad angolo retto dai quattro angoli"},
    {"lblTransf", 3, 3, "Lineare: una linea che cammina e si inverte agli incroci"},
    {"lblTransf", 4, 4, "Traccia: un colore che si allarga ai vicini"},
    {"lblTransf", 5, 5, "Aggrega: coppie che prendono un colore dei vicini"},
    {"lblTransf", 6, 6, "Scambia: coppie di celle che si scambiano di posto"},
    {"lblCrea", 1, 1, "Rettangoli: numero minimo"},
    {"lblCrea", 2, 2, "Rettangoli: quanti in più, a caso"},
    {"lblCrea", 3, 3, "Punti sulla croce: numero minimo"},
    {"lblCrea", 4, 4, "Punti sulla croce: quanti in più, a caso"},
    {"lblCrea", 5, 5, "Punti sulla cornice: numero minimo"},
    {"lblCrea", 6, 6, "Punti sulla cornice: quanti in più, a caso"},
    {"lblCrea", 7, 7, "Colori del disegno dei Break: R a caso, o da 2 a 7"},
    {"lblCrea", 8, 8, "Colori nuovi per il disegno dei Break"},
    {"lblCrea", 9, 9, "Di riserva"},
    {"lblCrea", 10, 10, "Fondo nuovo per il disegno dei Break"},
    {"lblCrea", 11, 11, "Punti nel campo: al massimo, a caso"},
    {"lblAngoli", 0, 0, "Angolo della prossima figura: in senso orario, antiorario o a caso"},
    {"lblAngolo", 20, 20, "Angolo dell'ultima figura, da 1 a 4"},
    {"lblAngolo", 21, 21, "Dimensione dell'ultima figura, da 1 a 8"},
    {"lblLung", 1, 8, "Lunghezza ammessa per i tratti"},
    {"lblColNumber", 0, 0, "Quanti colori usa la linea"},
    {"lblMinMax", 1, 1, "Sempre il colore più raro"},
    {"lblMinMax", 2, 2, "Più spesso il colore più raro"},
    {"lblMinMax", 3, 3, "Raro o frequente in parti uguali"},
    {"lblMinMax", 4, 4, "Più spesso il colore più frequente"},
    {"lblMinMax", 5, 5, "Sempre il colore più frequente"},
    {"lblOpzAggrega", 0, 0, "Posto della coppia: a caso o in ordine"},
    {"lblOpzAggrega", 1, 1, "Orientamento della coppia: orizzontale, verticale o a caso"},
    {"lblAgg2", 0, 0, "Cella di partenza: un clic torna alla prima"},
    {"lblNScambi", 0, 0, "Scambi a ogni passo, da 1 a 12"},

    // frame
    {"lblCorniceOpzio", 1, 1, "Moto della croce: Off, Out o In"},
    {"lblCorniceOpzio", 2, 2, "Moto della cornice: Off, Out o In"},
    {"lblRandomC", 0, 0, "Colori nuovi nella croce e nella cornice"},
    {"lblRndC", 0, 0, "Ogni quanti passi, in media, entra un colore nuovo"},
    {"lblRndC", 1, 1, "Colori nuovi più spesso"},
    {"lblRndC", 2, 2, "Colori nuovi più di rado"},
    {"lblColCornice", 0, 0, "Tra quanti colori si sceglie quello nuovo"},

    // break
    {"Command7", 0, 0, "Avvia un Break"},
    {"lblBreakMode", 13, 13, "Sceglie tutti i modi di Break"},
    {"lblBreakMode", 14, 14, "Direzione dei Break: Out, In, a caso o alternata"},
    {"lblBreakMode", 20, 20, "Che cosa fa il pulsante sotto il puntatore"},
    {"lblBreakMode", 16, 16, "Tempo di Ripresa Timer"},
    {"lblBreakMode", 18, 18, "Colori di transizione"},
    {"lblBreakMode", 19, 19, "Crea Disegno"},
    {"lblBreakMode", 21, 21, "Ripeti"},
    {"lblBreakMode", 22, 22, "Ripresa più breve"},
    {"lblBreakMode", 23, 23, "Ripresa più lunga"},
    {"lblBreakMode", 24, 24, "Ordine dei Break: in sequenza o a caso"},
    {"lblBreakMode", 26, 26, "Modifica Colori"},
    {"lblTmrBreak", 0, 0, "Velocità di transizione"},
    {"lblTmrBreak", 1, 1, "Transizione più veloce: tieni premuto"},
    {"lblTmrBreak", 2, 2, "Transizione più lenta: tieni premuto"},
    {"lblBrk", 0, 0, "Intervallo tra i Break, in millisecondi"},
    {"lblBrk", 1, 1, "Break più frequenti: tieni premuto"},
    {"lblBrk", 2, 2, "Break più rari: tieni premuto"},
    {"lblBrk", 3, 3, "Variazioni dell'intervallo, di un secondo l'una"},

    // colours
    {"lblCambioCol", 0, 0, "colore Disegno attivo"},
    {"lblCambioCol", 1, 1, "Cambia Tutti i colori"},
    {"lblCambioCol", 2, 2, "Scambia una coppia di colori"},
    {"lblCambioCol", 3, 3, "Sposta tutti i colori"},
    {"lblCambioCol", 4, 4, "colore Fondo attivo"},
    {"lblCambioCol", 6, 6, "Includi primo Colore"},
    {"lblCambioCol", 9, 9, "Random All"},
    {"lblCambioCol", 10, 10, "Colore Random"},
    {"lblCambioCol", 11, 11, "Ripetizioni"},
    {"lblNSc", 0, 0, "Numero Colori"},
    {"lblTmrRndCol", 0, 0, "Intervallo tra i cambi di colore, in millisecondi"},
    {"lblTmrRndCol", 1, 1, "Cambi più frequenti: tieni premuto"},
    {"lblTmrRndCol", 2, 2, "Cambi più rari: tieni premuto"},
    {"lblTmrRndCol", 3, 3, "Aggiunta secondi random"},

    // sequencer
    {"lblScritteVarie", 12, 12, "Colonna del Timer A, Shift"},
    {"lblScritteVarie", 13, 13, "Colonna del Timer B, Transform"},
    {"lblScritteVarie", 19, 19, "Colonna del Timer C, Frame"},
    {"lblNOrdine", 1, 24, "Passo del programma"},
    {"lblTmrA", 1, 24, "Shift di questo passo"},
    {"lblTmrB", 1, 24, "Transform di questo passo"},
    {"lblTmrC", 1, 24, "Croce e cornice di questo passo"},
    {"lblSeq", 0, 0, "Durata di un passo, in millisecondi"},
    {"lblSeq", 1, 1, "Passi più brevi: tieni premuto"},
    {"lblSeq", 2, 2, "Passi più lunghi: tieni premuto"},
    {"lblSeq", 3, 3, "Colonna su cui si lavora: A, B o C"},
    {"lblSeq", 4, 4, "Passo corrente"},
    {"lblSeq", 5, 5, "Numero dei passi: tieni premuto"},
    {"lblSeq", 6, 6, "Cancella il passo nella colonna su cui si lavora"},
    {"lblSeq", 7, 7, "Memorizza nel passo quello che il pannello mostra"},
    {"lblSeq", 9, 9, "Riempie di OFF la colonna A"},
    {"lblSeq", 10, 10, "Riempie di OFF la colonna B"},
    {"lblSeq", 11, 11, "Mostra la tabella dei passi: mai, solo da fermo, sempre"},
    {"lblSeq", 13, 13, "Riempie di OFF la colonna C"},
    {"lblAvanza", 0, 0, "Passo precedente: tieni premuto"},
    {"lblAvanza", 1, 1, "Passo seguente: tieni premuto"},
    {"lblDisattiva", 0, 2, "Esclude la colonna dal programma"},
    {"lblNOrdine", 25, 25, "Riempie di OFF tutte e tre le colonne"},

    // slots and palette
    {"lblColore", 1, 104, "Dà questa tinta al colore attivo, al fondo, ai titoli o al contorno"},
    {"lblValore", 0, 6, "Colore con cui si dipinge"},
    {"lblSfondo", 0, 6, "Colore di fondo: un secondo clic riempie"},
    {"lblPiù", 0, 6, "Cifra del colore: tieni premuto"},
    {"lblValAttivo", 0, 0, "Colore attivo"},
    {"lblTotali", 0, 24, "Matrice di prova: un clic la colora con il colore attivo"},
    {"lblSelSfondo", 0, 0, "Il fondo vale per il campo"},
    {"lblSelSfondo", 1, 1, "Il fondo vale per la croce e la cornice"},
    {"lblSelSfondo", 2, 2, "Il fondo vale per tutto"},

    // tools
    {"lblComCol", 0, 0, "Linee tra le celle"},
    {"lblComCol", 1, 1, "Numeri sulle celle"},
    {"lblComCol", 2, 2, "Spessore del contorno, da 0 a 7"},
    {"lblComCol", 3, 3, "Che cosa colora un clic sulla gamma"},
    {"lblComCol", 4, 4, "Rettangoli: due angoli nel quarto in alto a sinistra"},
    {"lblComCol", 6, 6, "Crea un disegno nuovo"},
    {"lblComCol", 7, 7, "Cancella prima di creare"},
    {"lblComCol", 8, 8, "Modifica i colori dopo aver creato"},

    // memories
    {"lblNomefile", 0, 0, "Titolo della memoria corrente"},
    {"lblSelez", 0, 0, "Nome della memoria corrente"},
    {"lblSave", 0, 9, "Memoria: un clic la carica, o la salva con Save acceso"},
    {"lblSave", 11, 15, "Memoria fissa: un clic la carica"},
    {"lblComb", 0, 105, "Memoria senza titolo"},
    {"lblMemo", 0, 0, "Banco di dieci memorie"},
    {"lblMemo", 1, 1, "Banco precedente: tieni premuto"},
    {"lblMemo", 2, 2, "Banco seguente: tieni premuto"},
    {"lblCanc", 0, 0, "Il prossimo clic su una memoria occupata la cancella"},
    {"lblComandiVari", 1, 1, "Il prossimo clic su una memoria la salva"},
    {"lblComandiVari", 2, 2, "Salva lo stato attuale e i titoli, ed esce"},
    {"TxtNomeMemoria", 0, 0, "Titolo della memoria: Invio la salva"},
    {"lblSalvaComb", 0, 0, "Salva con questo nome"},
    {"lblSalvaComb", 1, 1, "Non salva"},
    {"lblZQ", 0, 0, "Un clic chiude il programma"},
};
// clang-format on

}  // namespace

const std::string* titleUnder(const Store& s, Element element) {
  if (element.control == &s.lblComb) return &s.lblComb[element.index].Caption;
  if (element.control != &s.lblSave || element.index == 10) return nullptr;
  if (element.index > 10) return &s.lblComb[element.index + 90].Caption;
  const auto bank = wholeNumber(s.lblMemo[0].Caption);
  const std::int64_t n = element.index + 10 * std::int64_t{bank.value_or(-1)};
  return 0 <= n && n <= 99 ? &s.lblComb[n].Caption : nullptr;
}

QString toolTipOf(const Store& s, Element element) {
  if (element.control == &s.lblBreakMode)
    if (const BreakPattern* pattern = findBreakPattern(element.index))
      return QString::fromUtf8(pattern->name.data(), static_cast<qsizetype>(pattern->name.size()));
  if (const std::string* title = titleUnder(s, element); title && !title->empty())
    return QString::fromStdString(*title);
  for (const Tip& tip : tips)
    if (tip.control == element.control->name() && tip.first <= element.index &&
        element.index <= tip.last)
      return QString::fromUtf8(tip.text);
  return {};
}

}  // namespace caleidoscopio
