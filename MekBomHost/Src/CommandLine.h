// The program's command line.
#pragma once

#include "ReportOptions.h"

#include <string>

namespace mekbom
{
class CommandLine
{
public:
    // What the arguments ask for.
    struct Outcome
    {
        bool isReport = false; // else there is nothing to be done but print `text`
        ReportOptions options;
        std::string text; // help or version; empty for a report
    };

    // Throws a Fault of status kWrongUsage for arguments that cannot be understood.
    static Outcome parse(int numArguments, const char* const* arguments);
};
}
