#include "console/session.h"

#include <utility>

namespace caleidoscopio::console {

Session::Session(DiskFiles diskFiles, std::ostream& output)
    : files(std::move(diskFiles)), out(output) {}

}  // namespace caleidoscopio::console
