// What the program tells its caller. Scripts rely on the numbers; `mekbom --help` lists them. Each Fault carries
// one, so that whoever runs a report without the program learns the same.
#pragma once

namespace mekbom
{
enum ExitStatus : int
{
    kDone = 0,
    kMistakes = 1,         // the template, or data under it, would make a wrong list
    kDifferent = 1,        // mekbom diff: what it compared has changed
    kWrongUsage = 2,       // the command line
    kInvalidInput = 3,     // parts list or template unreadable or wrong
    kOutputNotWritten = 4, // the report could not be written; what stood there before still does
    kStopped = 5,          // no run of the program: who embeds it had a report stopped
    kInternalFault = 70    // the program's own mistake, or no memory left
};
}
