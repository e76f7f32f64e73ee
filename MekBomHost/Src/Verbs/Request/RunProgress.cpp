#include "RunProgress.h"

#include "InQuotes.h"

namespace mekbom
{
namespace
{
const char* const kProgram = "mekbom: ";
const std::size_t kMegabyte = 1'000'000;
}

void RunProgress::take(eStep step, std::size_t numRowsDone)
{
    if (m_line.isDue())
        m_line.show(kProgram + std::to_string(numRowsDone) +
                    (step == kReading ? " rows read" : " rows placed in the list"));
}

void RunProgress::takeWritten(const std::string& fileName, std::size_t numBytes)
{
    if (m_line.isDue())
        m_line.show(kProgram + std::to_string(numBytes / kMegabyte) + " MB of " + harmless(fileName) + " written");
}
}
