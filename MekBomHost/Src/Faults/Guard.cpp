#include "Guard.h"

#include "Fault.h"

#include <exception>
#include <new>
#include <string>
#include <utility>

namespace mekbom
{
namespace
{
// Nobody expected it, so it has neither code nor place; what it says of itself is all there is to tell.
ExitStatus failInternally(FindingList& findings, const std::string& reason)
{
    Finding finding;
    finding.statement = "internal fault" + reason;
    findings.add(std::move(finding));
    return kInternalFault;
}
}

// The one place where exceptions end. A Fault was thrown by a room that could not go on, and knows what to say.
// Whatever else arrives is a mistake of the program itself; it must not take with it a process that has other reports
// to make.
ExitStatus runGuarded(FindingList& findings, const std::function<ExitStatus()>& action)
{
    try
    {
        return action();
    }
    catch (const Fault& fault)
    {
        findings.addAll(fault.findings(), fault.numErrors());
        return fault.status();
    }
    catch (const std::bad_alloc&)
    {
        return failInternally(findings, ": no memory left");
    }
    catch (const std::exception& exception)
    {
        return failInternally(findings, std::string(": ") + exception.what());
    }
    catch (...)
    {
        return failInternally(findings, "");
    }
}
}
