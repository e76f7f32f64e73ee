#include "DebugOutput.h"

#if !defined(_WIN32)
#include <atomic>
#include <cstdio>
#include <string>

namespace
{
std::atomic<DebugOutputSink> s_sink{ nullptr };

void appendUtf8(std::string& bytes, unsigned long character)
{
    const auto addTrail = [&](int shift) { bytes += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80)
    {
        bytes += static_cast<char>(character);
    }
    else if (character < 0x800)
    {
        bytes += static_cast<char>(0xC0 | (character >> 6));
        addTrail(0);
    }
    else if (character < 0x10000)
    {
        bytes += static_cast<char>(0xE0 | (character >> 12));
        addTrail(6);
        addTrail(0);
    }
    else
    {
        bytes += static_cast<char>(0xF0 | ((character >> 18) & 0x07));
        addTrail(12);
        addTrail(6);
        addTrail(0);
    }
}

void writeToStandardError(const wchar_t* text)
{
    std::string bytes;
    for (; *text != L'\0'; ++text)
        appendUtf8(bytes, static_cast<unsigned long>(*text));
    std::fwrite(bytes.data(), 1, bytes.size(), stderr);
}
}

extern "C" void OutputDebugStringW(const wchar_t* text)
{
    if (text == nullptr)
        return;
    const DebugOutputSink sink = s_sink.load();
    if (sink != nullptr)
        sink(text);
    else
        writeToStandardError(text);
}

DebugOutputSink setDebugOutputSink(DebugOutputSink sink)
{
    return s_sink.exchange(sink);
}
#endif
