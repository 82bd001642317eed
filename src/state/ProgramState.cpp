#include "state/ProgramState.h"

namespace lumen {

ProgramState::ProgramState()
    : CommandWord(kCommandWords + 1)
{}

} // namespace lumen
