#include "ListOption.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
// One word of the command line each time, which the commas divide: otherwise the option would take all words up to the
// next option, and of "check --allow MB105 list.json" the template, too.
void ListOption::declareOn(CLI::App& command, const std::string& help)
{
    command.add_option(m_name, m_words, help)->type_name(m_form)->delimiter(',')->allow_extra_args(false);
}
}
