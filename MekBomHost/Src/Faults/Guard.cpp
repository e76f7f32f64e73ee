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
