// The program without its main(): arguments in, exit status out.
#pragma once

#include "ExitStatus.h"

#include <functional>

namespace mekbom::Program
{
// Does what the arguments ask for. Reports go to standard output or a file, messages to standard error. To be called
// once: what a report was made of is given back by the end of the process alone.
ExitStatus run(int numArguments, const char* const* arguments);

// Runs `command` and turns whatever it throws into messages on standard error and an exit status.
ExitStatus runGuarded(const std::function<void()>& command);
}
