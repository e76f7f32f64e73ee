// What is reported once is mostly reported for every row. Told on a[7] of an array of three, a million times:
//   first time       no such site is known: expression, path and line are copied and its count is 1
//   from then on     the site is found by these three, and its count goes up; nothing is copied
//   each time        a handler, if there is one, is called once the lock is released
#include "VorAssert.h"

#include <mutex>

namespace
{
// Never destroyed, so that objects that outlive main may still report.
struct Reports
{
    std::mutex mutex;
    std::vector<VorAssertReport> sites;
    VorAssert::Handler handler = nullptr;
};

Reports& theReports()
{
    static Reports* pReports = new Reports;
    return *pReports;
}

// By its characters: the same literal may stand at several addresses, one in each library that has it from a header. No
// VorString is made of it, since that would be an allocation for every report.
bool equalsText(const VorString& text, const wchar_t* other)
{
    return std::wcscmp(text.getStringW(), other) == 0;
}

// The program has few reporting sites, so a walk over those met so far is enough: the millionth report of a site
// allocates nothing.
VorAssertReport& findOrAddSite(std::vector<VorAssertReport>& sites, const wchar_t* expression,
                               const wchar_t* sourcePath, int line)
{
    for (VorAssertReport& site : sites)
        if (site.line == line && equalsText(site.expression, expression) && equalsText(site.sourcePath, sourcePath))
            return site;
    VorAssertReport site;
    site.expression = expression;
    site.sourcePath = sourcePath;
    site.line = line;
    sites.push_back(site);
    return sites.back();
}
}

// A handler that another thread replaces meanwhile may be called once more.
void VorAssert::vorAssert(const wchar_t* expression, const wchar_t* sourcePath, int line)
{
    const wchar_t* expressionText = expression == nullptr ? L"" : expression;
    const wchar_t* pathText = sourcePath == nullptr ? L"" : sourcePath;
    Handler handler = nullptr; // called without the lock, so that it may report itself
    {
        Reports& all = theReports();
        const std::lock_guard<std::mutex> lock(all.mutex);
        ++findOrAddSite(all.sites, expressionText, pathText, line).count;
        handler = all.handler;
    }
    if (handler != nullptr)
        handler(expressionText, pathText, line);
}

// A copy, as other threads go on reporting. Its texts are shared with the sites, so it costs little.
std::vector<VorAssertReport> VorAssert::reports()
{
    Reports& all = theReports();
    const std::lock_guard<std::mutex> lock(all.mutex);
    return all.sites;
}

void VorAssert::clearReports()
{
    Reports& all = theReports();
    const std::lock_guard<std::mutex> lock(all.mutex);
    all.sites.clear();
}

VorAssert::Handler VorAssert::setHandler(Handler handler)
{
    Reports& all = theReports();
    const std::lock_guard<std::mutex> lock(all.mutex);
    const Handler before = all.handler;
    all.handler = handler;
    return before;
}
