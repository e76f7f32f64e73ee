// Catches the debug output while it lives.
#pragma once

#include "MekRoots/Exp/VorDebugOutput.h"
#include "MekRoots/Test/Support/TestSupport.h"

class DebugLog
{
public:
    DebugLog() : m_previousSink(VorDebugOutput::setSink(&DebugLog::write)) {}
    ~DebugLog()
    {
        VorDebugOutput::setSink(m_previousSink);
        written() = VorString();
    }
    DebugLog(const DebugLog&) = delete;
    DebugLog& operator=(const DebugLog&) = delete;

    const VorString& text() const { return written(); }

private:
    static VorString& written()
    {
        static VorString s_written;
        return s_written;
    }
    static void write(const wchar_t* text) { written() += text; }

    VorDebugOutput::Sink m_previousSink;
};
