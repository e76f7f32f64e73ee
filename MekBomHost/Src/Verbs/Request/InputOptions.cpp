#include "InputOptions.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
void InputOptions::declareOn(CLI::App& command)
{
    command.add_option("--sheet", m_choices.sheet, "Sheet of a workbook [the first]")->type_name("NAME");
}
}
