#include "HelpVerb.h"

#include "Commands.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "ManPage.h"
#include "StandardOutput.h"
#include "WordOption.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
namespace
{
const char* const kVersionDate = MEK_VERSION_DATE;

const WordChoices::Choices<Completion::eShell>& shells()
{
    static const WordChoices::Choices<Completion::eShell> shells = { { "bash", Completion::kBash },
                                                                     { "zsh", Completion::kZsh },
                                                                     { "fish", Completion::kFish } };
    return shells;
}

[[noreturn]] void refuseWords(const std::string& option, const std::string& reason)
{
    Finding finding = Finding::stating(FindingCodes::kOptionWithoutUse, reason);
    finding.source = option;
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
    WordOption::declare(help, "--completion", "SHELL",
                        "Print what makes a shell complete commands and options: bash, zsh or fish", shells(),
                        [this](Completion::eShell shell) { m_shell = shell; });
    help.footer("Examples\n"
                "  mekbom help report\n"
                "  mekbom help units convert\n"
                "  mekbom help --man | man -l -\n"
                "  source <(mekbom help --completion bash)");
    return help;
}

ExitStatus HelpVerb::run(FindingList&)
{
    if (m_isManPage && !m_words.empty())
        refuseWords("--man", "the manual page is about all commands");
    if (m_shell && !m_words.empty())
        refuseWords("--completion", "it completes all commands");
    StandardOutput::print(text());
    return kDone;
}

std::string HelpVerb::text() const
{
    if (m_isManPage)
        return ManPage::textOf(*m_pProgram, kVersionDate);
    if (m_shell)
        return Completion::textOf(*m_pProgram, *m_shell);
    return Commands::helpOf(Commands::find(*m_pProgram, m_words));
}
}
