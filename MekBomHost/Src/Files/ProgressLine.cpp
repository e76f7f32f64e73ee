#include "ProgressLine.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <utility>

#if !defined(_WIN32)
#include <unistd.h>
#endif

namespace mekbom
{
namespace
{
constexpr std::string_view kToStart = "\r";
constexpr std::string_view kEraseRest = "\033[K"; // of the line, as all terminals but those called dumb understand
constexpr char kEraseLine[] = "\r\033[K";

std::atomic<bool> isShown{ false };

#if !defined(_WIN32)
bool isTerminal()
{
    const char* const pType = std::getenv("TERM"); // NOLINT(concurrency-mt-unsafe): nobody changes it
    return pType != nullptr && *pType != '\0' && std::string_view(pType) != "dumb" && isatty(STDERR_FILENO) == 1;
}
#else
bool isTerminal()
{
    return false;
}
#endif
}

ProgressLine::Terminal ProgressLine::standardError()
{
    const auto write = [](std::string_view text)
    {
        std::fwrite(text.data(), 1, text.size(), stderr);
        std::fflush(stderr);
    };
    return { isTerminal(), &Clock::now, write };
}

ProgressLine::ProgressLine(Terminal terminal) : m_terminal(std::move(terminal))
{
    if (m_terminal.isThere)
        m_next = m_terminal.now() + kWait;
}

bool ProgressLine::isDue() const
{
    return m_terminal.isThere && m_terminal.now() >= m_next;
}

// The new text is written over the old one, so that nothing flickers, and then what is left of that is erased.
void ProgressLine::show(const std::string& text)
{
    if (!m_terminal.isThere)
        return;
    isShown = true;
    m_terminal.write(std::string(kToStart) + text + std::string(kEraseRest));
    m_next = m_terminal.now() + kBetween;
}

void ProgressLine::erase()
{
    if (m_terminal.isThere && isShown.exchange(false))
        m_terminal.write(kEraseLine);
}

void ProgressLine::eraseAtSignal()
{
#if !defined(_WIN32)
    if (isShown.exchange(false))
        if (write(STDERR_FILENO, kEraseLine, sizeof kEraseLine - 1) < 0)
            return; // there is nobody left to tell
#endif
}
}
