#pragma once

#include <array>
#include <cstdint>

#include "sequencer/sequencer_controls.h"

namespace caleidoscopio {

/// The three columns of a programme: A shift, B transform, C frame.
enum class Column { A, B, C };
inline constexpr std::array columns3{Column::A, Column::B, Column::C};

inline Label& cellOf(SequencerControls& s, Column column, const Number& row) {
  switch (column) {
    case Column::A:
      return s.lblTmrA[row];
    case Column::B:
      return s.lblTmrB[row];
    default:
      return s.lblTmrC[row];
  }
}

/// The column that lblSeq(3) names, or null for any other text.
const Column* editedColumn(const SequencerControls& s);

/// What a letter of a frame step stands for.
struct FrameLetter {
  char letter;
  const char* caption;
  Colour back;
};
// "Off" is white where a person cycles to it and the button face where a step writes it: both are
// meant to stay.
inline constexpr FrameLetter frameLetters[] = {
    {'O', "Out", colours::selected}, {'I', "In", colours::selected}, {'X', "Off", colours::idle}};

inline constexpr const char* offStep = "OFF";
inline constexpr const char* clearedStep = "- - -";

}  // namespace caleidoscopio
