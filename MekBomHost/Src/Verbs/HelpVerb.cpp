#include "HelpVerb.h"

#include "Commands.h"
#include "StandardOutput.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
// The verb answers about the program that it is part of, so it keeps the app that it is declared on.
CLI::App& HelpVerb::declareOn(CLI::App& parent)
{
    m_pProgram = &parent;
    CLI::App& help = *parent.add_subcommand("help", "Tell how a command is called");
    help.add_option("command", m_words, "The words of the command");
    help.footer("Examples\n"
                "  mekbom help report\n"
                "  mekbom help units convert");
    return help;
}

ExitStatus HelpVerb::run(FindingList&)
{
    StandardOutput::print(Commands::helpOf(Commands::find(*m_pProgram, m_words)));
    return kDone;
}
}
