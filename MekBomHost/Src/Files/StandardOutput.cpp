#include "StandardOutput.h"

#include "Fault.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace mekbom
{
namespace
{
[[noreturn]] void failToWrite()
{
    throw Fault(kOutputNotWritten, "standard output: cannot be written: " + std::generic_category().message(errno));
}
}

void StandardOutput::write(std::string_view text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        failToWrite();
}

void StandardOutput::finish()
{
    if (std::fflush(stdout) != 0)
        failToWrite();
}

void StandardOutput::print(std::string_view text)
{
    StandardOutput output;
    output.write(text);
    output.finish();
}
}
