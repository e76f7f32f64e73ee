// What a run has found is printed when it is over, in one of two forms:
//
//   list.json:8:17: error MB301: the total ...            an author's mistake: all of them, as compilers print theirs
//   mekbom: parts.csv:3: column "Weight": found "n/a" ... anything else: twenty at most, and how many more there are
//
// A parts list with a million rows may have a million faults of one kind, whereas an author mends all mistakes at once.
#include "Program.h"

#include "AllVerbs.h"
#include "Commands.h"
#include "Fault.h"
#include "Guard.h"
#include "MistakeCodes.h"
#include "ReportVerb.h"
#include "StandardOutput.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <string>

namespace mekbom
{
namespace
{
const char* const kVersion = "mekbom " MEK_VERSION;

// Parses and gives the text to print instead of running a verb, if that is what was asked for: help or the version. Who
// asks for the help of a command that there is not is told so; otherwise help is given whatever else stands there.
std::string parse(CLI::App& app, int numArguments, const char* const* arguments)
{
    try
    {
        app.parse(numArguments, arguments);
    }
    catch (const CLI::CallForHelp&)
    {
        Commands::checkCommandsIn(app);
        return Commands::helpOf(Commands::calledIn(app));
    }
    catch (const CLI::CallForVersion& version)
    {
        return version.what() + std::string("\n");
    }
    catch (const CLI::ParseError& error)
    {
        throw Fault(kWrongUsage, Commands::explain(app, error));
    }
    return std::string();
}

void printMessage(const std::string& message)
{
    std::fputs(("mekbom: " + message + "\n").c_str(), stderr);
}

// Whether it is about the list itself. A cell that breaks the kind of its column has the code of a mistake, too
// (MB601), but is one of perhaps a million, and has a field.
bool isMistakeInList(const Finding& finding)
{
    return MistakeCodes::has(finding.code) && finding.field.empty();
}

// What an author did wrong in a list is to be mended in one go, so all of it is printed, and whatever its severity: a
// warning may tell why there is an error. Nothing stands in front of the place, which editors jump to.
void printMistakes(const FindingList& findings)
{
    for (const Finding& finding : findings.all())
        if (isMistakeInList(finding))
            std::fputs((messageOf(finding) + "\n").c_str(), stderr);
}

// A FindingList keeps only so many errors and counts all, so that what is left over comes from its count.
void printErrors(const FindingList& findings)
{
    std::size_t numShown = 0;
    std::size_t numMistakes = 0;
    for (const Finding& finding : findings.all())
        if (finding.severity == Finding::kError && isMistakeInList(finding))
            ++numMistakes;
        else if (finding.severity == Finding::kError && numShown < Program::kMostErrorsShown)
        {
            printMessage(messageOf(finding));
            ++numShown;
        }
    if (findings.numErrors() > numMistakes + numShown)
        printMessage("and " + std::to_string(findings.numErrors() - numMistakes - numShown) + " more faults");
}

// Other warnings and notes are about a report, and where there is an error there is none.
void printFindings(const FindingList& findings)
{
    printMistakes(findings);
    if (findings.numErrors() > 0)
        return printErrors(findings);
    for (const Finding& finding : findings.all())
        if (!isMistakeInList(finding))
            printMessage(nameOf(finding.severity) + std::string(": ") + messageOf(finding));
}
}

// A verb may throw what it likes: the guard turns it into a finding and a status.
ExitStatus Program::run(int numArguments, const char* const* arguments)
{
    FindingList findings;
    const ExitStatus status = runGuarded(findings, [&] { return runArguments(numArguments, arguments, findings); });
    printFindings(findings);
    return status;
}

ExitStatus Program::runArguments(int numArguments, const char* const* arguments, FindingList& findings)
{
    CLI::App app("Bills of materials from the parts lists of steel structures", "mekbom");
    app.set_version_flag("--version", kVersion);
    app.require_subcommand(1);
    app.footer(ReportVerb::kNotes);
    m_verbs = allVerbs();
    m_verbs.declareOn(app);

    const std::string text = parse(app, numArguments, arguments);
    if (text.empty())
        return m_verbs.called()->run(findings);
    StandardOutput::print(text);
    return kDone;
}
}
