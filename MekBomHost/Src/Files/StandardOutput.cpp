#include "StandardOutput.h"

#include "Fault.h"
#include "FindingCodes.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace mekbom
{
namespace
{
[[noreturn]] void failToWrite()
{
    Finding finding = Finding::stating(FindingCodes::kOutputNotWritten,
                                       "cannot be written: " + std::generic_category().message(errno));
    finding.source = "standard output";
    throw Fault(kOutputNotWritten, finding);
}
}

// Into the buffer of the C library, which it shares with whatever else the process prints there, in the same order.
void StandardOutput::write(std::string_view text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        failToWrite();
}

// What was written may still lie in a buffer: that the disk is full shows only when this is emptied.
void StandardOutput::finish()
{
    if (std::fflush(stdout) != 0)
        failToWrite();
}

// What print() is for is short: the buffer is emptied at once, so that a full disk is told where it was met.
void StandardOutput::print(std::string_view text)
{
    StandardOutput output;
    output.write(text);
    output.finish();
}
}
