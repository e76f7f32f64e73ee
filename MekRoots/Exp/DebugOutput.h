// The platform's debug output. On Windows this is the system's own OutputDebugStringW; elsewhere the library supplies
// it: the text goes, as UTF-8, to standard error, or to a sink that the host has set.
#pragma once

#include "MekExport.h"

#if defined(_WIN32)
extern "C" __declspec(dllimport) void __stdcall OutputDebugStringW(const wchar_t* text);
#else
// Writes zero-terminated `text`; null writes nothing.
extern "C" MEK_ROOTS_API void OutputDebugStringW(const wchar_t* text);

using DebugOutputSink = void (*)(const wchar_t* text);

// Sends debug output to `sink` from now on, null for standard error, and returns the sink before it. Process-wide and
// safe from several threads; the sink is called on the writing thread. A sink that has been replaced may still be
// called by a thread that was writing at that moment.
MEK_ROOTS_API DebugOutputSink setDebugOutputSink(DebugOutputSink sink);
#endif
