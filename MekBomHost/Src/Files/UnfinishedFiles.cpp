// A handler may do next to nothing: it takes no lock and no memory, as the thread that it interrupts may be about to. So
// the paths stand in slots that it reads as they are:
//
//   create()      signals held back; the file is made; its path goes to a free slot; signals let through
//   the handler   unlinks the path of each slot, takes a line of progress away, then lets the signal do what it would have done
//
// Without a free slot a file is not removed by signals, and that is all.
#include "UnfinishedFiles.h"

#include "ProgressLine.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <filesystem>
#include <system_error>

#if !defined(_WIN32)
#include <csignal>
#include <unistd.h>
#endif

namespace mekbom
{
namespace
{
std::array<std::atomic<const char*>, 64> slots{}; // arbitrary: more outputs than a run has

int takeSlot(const char* pPath)
{
    for (std::size_t i = 0; i < slots.size(); ++i)
    {
        const char* pFree = nullptr;
        if (slots[i].compare_exchange_strong(pFree, pPath))
            return static_cast<int>(i);
    }
    return -1;
}

#if !defined(_WIN32)
const std::array<int, 4> kEndings = { SIGINT, SIGTERM, SIGHUP, SIGPIPE };

extern "C" void removeAndEnd(int signal)
{
    for (const std::atomic<const char*>& slot : slots)
        if (const char* const pPath = slot.load())
            unlink(pPath);
    ProgressLine::eraseAtSignal();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// Holds signals back while it lives.
class SignalPause
{
public:
    SignalPause()
    {
        sigset_t endings;
        sigemptyset(&endings);
        for (const int signal : kEndings)
            sigaddset(&endings, signal);
        pthread_sigmask(SIG_BLOCK, &endings, &m_before);
    }
    SignalPause(const SignalPause&) = delete;
    SignalPause& operator=(const SignalPause&) = delete;
    ~SignalPause() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

private:
    sigset_t m_before{};
};
#else
class SignalPause
{
public:
    SignalPause() {}
};
#endif
}

// A signal that whoever started the program has switched off stays off, as under nohup.
void UnfinishedFiles::removeAtSignals()
{
#if !defined(_WIN32)
    for (const int signal : kEndings)
        if (std::signal(signal, removeAndEnd) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

std::FILE* UnfinishedFile::create(const std::string& path)
{
    const SignalPause pause;
    std::FILE* const pFile = std::fopen(path.c_str(), "wbx");
    if (pFile != nullptr)
    {
        m_path = path;
        m_slot = takeSlot(m_path.c_str());
    }
    return pFile;
}

void UnfinishedFile::keep()
{
    if (m_slot >= 0)
        slots[static_cast<std::size_t>(m_slot)] = nullptr;
    m_slot = -1;
    m_path.clear();
}

void UnfinishedFile::remove()
{
    std::error_code error;
    if (!m_path.empty())
        std::filesystem::remove(m_path, error);
    keep();
}
}
