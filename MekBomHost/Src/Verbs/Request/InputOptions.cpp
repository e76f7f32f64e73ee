#include "InputOptions.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
void InputOptions::declareOn(CLI::App&) {}
}
