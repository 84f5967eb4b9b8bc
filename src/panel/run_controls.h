#pragma once

#include "break/break_controls.h"
#include "memories/memory_controls.h"
#include "sequencer/sequencer_controls.h"

namespace caleidoscopio {

/// Everything that Go, Stop and start-up switch on, and the end picture.
struct RunControls : virtual SequencerControls, virtual BreakControls, virtual MemoryControls {
  Group endGroup;
  OneLabel lblAvvertimento2{endGroup, "lblAvvertimento2"};
  OneLabel lblZQ{endGroup, "lblZQ"};
  OneLabel lblScritteVarieC{endGroup, "lblScritteVarieC", Caption{"Caleidoscopio"}};
};

}  // namespace caleidoscopio
