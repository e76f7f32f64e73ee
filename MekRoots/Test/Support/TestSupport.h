// What every test of this tree uses: readable texts in failures, a log of assertion reports, a count of blocks.
#pragma once

#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorAssert.h"
#include "MekRoots/Exp/VorMemoryControllerController.h"
#include "MekRoots/Exp/VorString.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

// UTF-8 of a wide text, for failure messages.
inline std::string toUtf8(const VorString& text)
{
    std::string bytes;
    for (int i = 0; i < text.length(); ++i)
    {
        const auto c = static_cast<unsigned long>(text.getStringW()[i]);
        const auto add = [&bytes](unsigned long byte) { bytes += static_cast<char>(static_cast<unsigned char>(byte)); };
        if (c < 0x80)
            add(c);
        else if (c < 0x800)
            add(0xC0 | (c >> 6)), add(0x80 | (c & 0x3F));
        else if (c < 0x10000)
            add(0xE0 | (c >> 12)), add(0x80 | ((c >> 6) & 0x3F)), add(0x80 | (c & 0x3F));
        else
            add(0xF0 | (c >> 18)), add(0x80 | ((c >> 12) & 0x3F)), add(0x80 | ((c >> 6) & 0x3F)),
                add(0x80 | (c & 0x3F));
    }
    return bytes;
}

inline std::ostream& operator<<(std::ostream& out, const VorString& text)
{
    return out << '"' << toUtf8(text) << '"';
}

// Records the assertion reports raised while it lives; those from before are dropped.
class AssertLog
{
public:
    AssertLog() { VorAssert::clearReports(); }
    ~AssertLog() { VorAssert::clearReports(); }
    AssertLog(const AssertLog&) = delete;
    AssertLog& operator=(const AssertLog&) = delete;

    bool isEmpty() const { return VorAssert::reports().empty(); }

    // How often `expression` was reported from `sourcePath`, over all its lines.
    long long count(const VorString& expression, const VorString& sourcePath) const
    {
        long long numReports = 0;
        for (const VorAssertReport& report : VorAssert::reports())
            if (report.expression == expression && report.sourcePath == sourcePath)
                numReports += report.count;
        return numReports;
    }

    // The same for one line.
    long long count(const VorString& expression, const VorString& sourcePath, int line) const
    {
        long long numReports = 0;
        for (const VorAssertReport& report : VorAssert::reports())
            if (report.expression == expression && report.sourcePath == sourcePath && report.line == line)
                numReports += report.count;
        return numReports;
    }

    bool holds(const VorString& expression, const VorString& sourcePath) const
    {
        return count(expression, sourcePath) > 0;
    }

    // True when this is reported and nothing else.
    bool holdsOnly(const VorString& expression, const VorString& sourcePath) const
    {
        long long numReports = 0;
        for (const VorAssertReport& report : VorAssert::reports())
            numReports += report.count;
        return numReports > 0 && numReports == count(expression, sourcePath);
    }
};

// Fails the test when fewer or more blocks live at its end than at its start. Declare it first.
class LeakCheck
{
public:
    LeakCheck() : m_numBlocks(VorMemoryControllerController::liveBlocks()) {}
    ~LeakCheck() { EXPECT_EQ(m_numBlocks, VorMemoryControllerController::liveBlocks()) << "blocks leaked"; }
    LeakCheck(const LeakCheck&) = delete;
    LeakCheck& operator=(const LeakCheck&) = delete;

private:
    long long m_numBlocks;
};
