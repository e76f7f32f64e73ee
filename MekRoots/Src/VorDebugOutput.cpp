// Told on the text "12 m²":
//   a sink is set     it is called with the wide text
//   no sink           the bytes 31 32 20 6D C2 B2, which are its UTF-8, go to standard error in one write
// A null text reaches neither.
#include "VorDebugOutput.h"

#include <atomic>
#include <cstdio>
#include <string>

#if defined(_WIN32)
extern "C" __declspec(dllimport) void __stdcall OutputDebugStringW(const wchar_t* text);
#endif

namespace
{
std::atomic<VorDebugOutput::Sink> s_sink{ nullptr };

#if defined(_WIN32)
void writeToPlatform(const wchar_t* text)
{
    OutputDebugStringW(text);
}
#else
// Surrogates and values beyond Unicode stand for no character; they become the replacement character. A wchar_t is a
// whole character here: the platform where it is half of one has a debug output of its own.
char32_t validCharacter(wchar_t character)
{
    const auto value = static_cast<char32_t>(character);
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    return value > 0x10FFFF || isSurrogate ? U'\xFFFD' : value;
}

// A byte of UTF-8 carries six bits of the character, the first one fewer and a mark of how many follow: U+00B2, which
// is 00010 110010, is C2 B2.
void appendUtf8(std::string& bytes, char32_t character)
{
    const auto add = [&bytes](char32_t byte) { bytes += static_cast<char>(static_cast<unsigned char>(byte)); };
    const auto addTrail = [&](int shift) { add(0x80 | ((character >> shift) & 0x3F)); };
    const int numTrails = character < 0x80 ? 0 : (character < 0x800 ? 1 : (character < 0x10000 ? 2 : 3));
    const char32_t leads[] = { 0, 0xC0, 0xE0, 0xF0 };

    add(leads[numTrails] | (character >> (6 * numTrails)));
    for (int i = numTrails - 1; i >= 0; --i)
        addTrail(6 * i);
}

// One write for the whole text, so that the texts of several threads stand one behind the other.
void writeToPlatform(const wchar_t* text)
{
    std::string bytes;
    for (; *text != L'\0'; ++text)
        appendUtf8(bytes, validCharacter(*text));
    std::fwrite(bytes.data(), 1, bytes.size(), stderr);
}
#endif
}

void VorDebugOutput::write(const wchar_t* text)
{
    if (text == nullptr)
        return;
    const Sink sink = s_sink.load();
    if (sink != nullptr)
        sink(text);
    else
        writeToPlatform(text);
}

VorDebugOutput::Sink VorDebugOutput::setSink(Sink sink)
{
    return s_sink.exchange(sink);
}
