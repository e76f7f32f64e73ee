#include "Program.h"

#include "CommandLine.h"
#include "Fault.h"
#include "ReportCommand.h"
#include "StandardOutput.h"
#include "UnitsCommand.h"

#include <cstddef>
#include <cstdio>
#include <exception>
#include <new>
#include <string>

namespace mekbom::Program
{
namespace
{
const std::size_t kMostShown = 20; // errors; arbitrary: about a screen

void printMessage(const std::string& message)
{
    std::fputs(("mekbom: " + message + "\n").c_str(), stderr);
}

// On purpose: a command is never destroyed. Freeing the report of a large model, block by block, takes a sixth of the
// whole job, and the process is about to end. The pointer keeps all of it in sight of leak checkers.
void runReport(const ReportOptions& options)
{
    static ReportCommand* pCommand = nullptr;
    pCommand = new ReportCommand(options);
    pCommand->run();
    for (const std::string& note : pCommand->notes())
        printMessage("note: " + note);
}

void runArguments(int numArguments, const char* const* arguments)
{
    const CommandLine::Outcome outcome = CommandLine::parse(numArguments, arguments);
    if (outcome.isReport)
        return runReport(outcome.options);
    StandardOutput output;
    output.write(outcome.isAboutUnits ? UnitsCommand::textOf(outcome.units) : outcome.text);
    output.finish();
}
}

ExitStatus run(int numArguments, const char* const* arguments)
{
    return runGuarded([numArguments, arguments] { runArguments(numArguments, arguments); });
}

ExitStatus runGuarded(const std::function<void()>& command)
{
    try
    {
        command();
        return kDone;
    }
    catch (const Fault& fault)
    {
        for (const std::string& message : fault.messages(kMostShown))
            printMessage(message);
        return fault.status();
    }
    catch (const std::bad_alloc&)
    {
        printMessage("internal fault: no memory left");
    }
    catch (const std::exception& exception)
    {
        printMessage(std::string("internal fault: ") + exception.what());
    }
    catch (...)
    {
        printMessage("internal fault");
    }
    return kInternalFault;
}
}
