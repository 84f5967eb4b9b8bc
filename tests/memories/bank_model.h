#pragma once

#include <array>
#include <map>
#include <string>

namespace caleidoscopio::test {

/// The bank as a person would keep it on paper: titles, what is occupied, what is current, what is
/// lit, and what each file holds. It knows nothing of the instrument.
class BankModel {
 public:
  enum class State { Empty, Occupied, Current };

  BankModel() {
    titles[0] = "Ciccio";
    titles[5] = "Pippo";
    titles[100] = "Default";
    for (int i = 0; i < 5; ++i) {
      titles[at(101 + i)] = "Preset ";
      titles[at(101 + i)] += static_cast<char>('A' + i);
    }
  }

  /// A click on a numbered button. Returns the name of the memory that it loads, or "".
  std::string button(int k) {
    clicked = k;
    const int n = 10 * bank + k;
    State& state = buttons[at(k)];
    if (state == State::Occupied && clearing) {
      state = states[at(n)] = State::Empty;
      clearing = false;
      return "";
    }
    if (saving) {
      chosen = std::to_string(n);
      boxOpen = true;
      typed = titles[at(n)];
      return "";
    }
    if (state == State::Empty) return "";
    load(k, n, std::to_string(n));
    return chosen;
  }
  std::string preset(int i) {
    load(11 + i, 101 + i, std::string(1, static_cast<char>('A' + i)));
    return chosen;
  }
  /// "Ok" with what is typed; returns the name of the memory saved.
  std::string ok() {
    const int n = std::stoi(chosen);
    shownTitle = titles[at(n)] = typed;
    nothingIsCurrent();
    buttons[at(clicked)] = states[at(n)] = State::Current;
    annulla();
    return chosen;
  }
  void annulla() { boxOpen = saving = false; }
  void save() {
    saving = !saving;
    if (saving) clearing = false;
    if (!saving) boxOpen = false;
  }
  void canc() {
    clearing = !clearing;
    if (clearing) boxOpen = saving = false;
  }
  void stepBank(bool up) {
    bank = (bank + (up ? 1 : 9)) % 10;
    for (int k = 0; k <= 9; ++k) buttons[at(k)] = states[at(10 * bank + k)];
  }
  /// The program ended by "Esc" and started again.
  void restart() {
    shownTitle = "Default";
    chosen = "Def";
    boxOpen = saving = clearing = false;
  }

  /// The list of names as it must stand in its file.
  std::string names() const {
    std::string text = quoted(shownTitle) + quoted(chosen) + quoted(std::to_string(bank));
    for (int n = 0; n <= 105; ++n) text += quoted(titles[at(n)]) + colour(states[at(n)]);
    for (int k = 0; k <= 15; ++k) text += colour(buttons[at(k)]);
    return text;
  }

  std::array<std::string, 106> titles;
  std::array<State, 106> states{};
  std::array<State, 16> buttons{};
  std::string shownTitle = "Default", chosen = "Def", typed;
  int bank = 0, clicked = -1;
  bool saving = false, clearing = false, boxOpen = false;
  std::map<std::string, std::string> files;  ///< by path, what each must hold

 private:
  static std::size_t at(int i) { return static_cast<std::size_t>(i); }
  static std::string quoted(const std::string& text) { return '"' + text + "\"\r\n"; }
  static std::string colour(State state) {
    switch (state) {
      case State::Empty:
        return "16777215\r\n";
      case State::Occupied:
        return "12640511\r\n";
      default:
        return "12648384\r\n";
    }
  }
  void nothingIsCurrent() {
    for (State& state : states)
      if (state == State::Current) state = State::Occupied;
    for (State& state : buttons)
      if (state == State::Current) state = State::Occupied;
  }
  void load(int k, int n, const std::string& name) {
    chosen = name;
    shownTitle = titles[at(n)];
    nothingIsCurrent();
    buttons[at(k)] = states[at(n)] = State::Current;
  }
};

}  // namespace caleidoscopio::test
