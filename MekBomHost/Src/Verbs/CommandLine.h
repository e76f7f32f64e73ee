// The program's command line.
#pragma once

#include "ReportOptions.h"
#include "UnitsOptions.h"

#include <string>

namespace mekbom
{
class CommandLine
{
public:
    // What the arguments ask for: a report, something about units, or nothing but that `text` is printed.
    struct Outcome
    {
        bool isReport = false;
        ReportOptions options;
        bool isAboutUnits = false;
        UnitsOptions units;
        std::string text; // help or version
    };

    // Throws a Fault of status kWrongUsage for arguments that cannot be understood.
    static Outcome parse(int numArguments, const char* const* arguments);
};
}
