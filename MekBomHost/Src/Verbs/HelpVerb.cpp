#include "HelpVerb.h"

#include "Commands.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "ManPage.h"
#include "StandardOutput.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
namespace
{
const char* const kVersionDate = MEK_VERSION_DATE;

[[noreturn]] void refuseWords()
{
    Finding finding = Finding::stating(FindingCodes::kOptionWithoutUse, "the manual page is about all commands");
    finding.source = "--man";
    finding.remedy = "leave out the option, or the words behind help";
    throw Fault(kWrongUsage, finding);
}
}

// The verb answers about the program that it is part of, so it keeps the app that it is declared on.
CLI::App& HelpVerb::declareOn(CLI::App& parent)
{
    m_pProgram = &parent;
    CLI::App& help = *parent.add_subcommand("help", "Tell how a command is called");
    help.add_option("command", m_words, "The words of the command");
    help.add_flag("--man", m_isManPage, "Print the manual page of the whole program, in the macros of man(7)");
    help.footer("Examples\n"
                "  mekbom help report\n"
                "  mekbom help units convert\n"
                "  mekbom help --man | man -l -");
    return help;
}

ExitStatus HelpVerb::run(FindingList&)
{
    if (m_isManPage && !m_words.empty())
        refuseWords();
    if (m_isManPage)
        StandardOutput::print(ManPage::textOf(*m_pProgram, kVersionDate));
    else
        StandardOutput::print(Commands::helpOf(Commands::find(*m_pProgram, m_words)));
    return kDone;
}
}
