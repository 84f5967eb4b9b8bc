#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/hands.h"
#include "support/started_rig.h"

namespace caleidoscopio::test {

/// The path of a memory or of a list below the root.
inline std::string inSave(const std::string& name) {
  return "Miro-Vel-Ta/Save/" + name + ".txt";
}
inline const std::string defaultFile = "Miro-Vel-Ta/Dati/Default.txt";
inline const std::string namesFile = "Miro-Vel-Ta/Dati/Memorie.txt";

/// A person at the "Memorie" panel of an instrument, by presses and clicks alone.
struct BankHands {
  explicit BankHands(Store& store) : bank(store) {}

  void button(int k) { pressAndRelease(bank.lblSave, k); }
  void canc() { pressAndRelease(bank.lblCanc); }
  void save() { pressAndRelease(bank.lblComandiVari, 1); }
  void type(const std::string& title) { bank.TxtNomeMemoria.Text = title; }
  void ok() { pressAndRelease(bank.lblSalvaComb, 0); }
  void enter() { bank.TxtNomeMemoria.raise(Event::KeyPress, 0, 13); }
  void annulla() { pressAndRelease(bank.lblSalvaComb, 1); }
  void bankUp() { pressAndRelease(bank.lblMemo, 2); }
  void bankDown() { pressAndRelease(bank.lblMemo, 1); }
  void escape() { pressAndRelease(bank.lblComandiVari, 2); }
  void saveUnder(int k, const std::string& title) {
    save();
    button(k);
    type(title);
    ok();
  }

  Store& bank;
};

/// A stopped instrument with an empty bank.
struct BankRig : testing::Test, StartedRig, BankHands {
  BankRig() : BankHands(StartedRig::s) { click(s.cmdGoTimer); }
  using StartedRig::s;
};

}  // namespace caleidoscopio::test
