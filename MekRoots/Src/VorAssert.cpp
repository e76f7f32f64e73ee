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
