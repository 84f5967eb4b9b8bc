#include "console/session.h"

namespace caleidoscopio::console {

Session::Session(TextFiles& textFiles, std::ostream& output)
    : platform{clock, generator, textFiles, {}}, out(output) {}

}  // namespace caleidoscopio::console
