// Reports of misuse and broken invariants. A report is recorded and execution goes on: the operation that raised it
// continues along the fallback its header promises.
//
//   VorAssert::vorAssert(L"isValid( index )", L"MekRoots/Exp/VorArray", 516);
//   VorAssert::reports()  ->  one entry { "isValid( index )", "MekRoots/Exp/VorArray", 516, count 1 }
//
// Reports are aggregated by site (expression, path and line), so a million of them need no memory. Everything here is
// shared by the whole process and safe to use from several threads at once.
#pragma once

#include "MekExport.h"
#include "VorString.h"

#include <vector>

// One site that has reported, and how often it has.
struct VorAssertReport
{
    VorString expression;
    VorString sourcePath;
    int line = 0;
    long long count = 0;
};

class MEK_ROOTS_API VorAssert
{
public:
    // Called on the reporting thread, after the report is recorded. It must not throw. It may report itself, and must
    // see to it that this ends.
    using Handler = void (*)(const wchar_t* expression, const wchar_t* sourcePath, int line);

    // Records one report. Null texts count as empty ones.
    static void vorAssert(const wchar_t* expression, const wchar_t* sourcePath, int line);

    // A copy of what has been recorded since the start or the last clearReports(), in order of first occurrence.
    static std::vector<VorAssertReport> reports();
    static void clearReports();

    // Replaces the handler, null for none, and returns the one before it.
    static Handler setHandler(Handler handler);
};
