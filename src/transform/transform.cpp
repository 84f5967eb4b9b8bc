#include "transform/transform.h"

#include "panel/numbers.h"

namespace caleidoscopio {

void rememberTransformInterval(TransformControls& s) {
  s.lblInterv[number(s, s.lblTransf[0])].Caption = s.lblVelo[2].Caption;
}

}  // namespace caleidoscopio
