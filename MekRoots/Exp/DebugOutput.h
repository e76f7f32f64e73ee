// The platform's debug output by the name that Windows gives it. There it is the system's own; elsewhere it stands for
// VorDebugOutput.
//
//   OutputDebugStringW(L"push 2\n");
//
// Elsewhere on purpose no library exports the name: a host that carries Windows code to other platforms has a function
// of that name, perhaps with characters of another width, and the two are never linked with each other. Such a host
// leaves this header out, which no other header includes.
#pragma once

#include "VorDebugOutput.h"

#if defined(_WIN32)
extern "C" __declspec(dllimport) void __stdcall OutputDebugStringW(const wchar_t* text);
#else
// Writes zero-terminated `text`; null writes nothing.
inline void OutputDebugStringW(const wchar_t* text)
{
    VorDebugOutput::write(text);
}
#endif
