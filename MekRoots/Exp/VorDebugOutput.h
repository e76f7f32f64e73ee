// Debug output, such as the trace of a formula: it goes to a sink that the host has set, or else to the platform's own,
// which is OutputDebugStringW on Windows and elsewhere standard error, in UTF-8.
//
//   VorDebugOutput::Sink before = VorDebugOutput::setSink(&writeToOurLog);
//   VorDebugOutput::write(L"push 2\n");   // writeToOurLog(L"push 2\n")
//   VorDebugOutput::setSink(before);
#pragma once

#include "MekExport.h"

class MEK_ROOTS_API VorDebugOutput
{
public:
    using Sink = void (*)(const wchar_t* text);

    // Writes zero-terminated `text`; null writes nothing.
    static void write(const wchar_t* text);

    // Sends debug output to `sink` from now on, null for the platform's own, and returns the sink before it.
    // Process-wide and safe from several threads; the sink is called on the writing thread. A sink that has been
    // replaced may still be called by a thread that was writing at that moment.
    static Sink setSink(Sink sink);
};
