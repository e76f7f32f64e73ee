#include "Finding.h"

namespace mekbom
{
namespace
{
// "parts.csv:3:17"
std::string placeOf(const Finding& finding)
{
    std::string place = finding.source;
    for (const int number : { finding.begin.line, finding.begin.column })
        if (number > 0)
            place += ":" + std::to_string(number);
    return place;
}

std::string contentOf(const Finding& finding)
{
    if (!finding.statement.empty())
        return finding.statement;
    return "found " + finding.found + (finding.expected.empty() ? "" : ", expected " + finding.expected);
}
}

std::string messageOf(const Finding& finding)
{
    std::string message;
    for (const std::string& part :
         { placeOf(finding), finding.path, finding.field.empty() ? "" : "column \"" + finding.field + "\"" })
        if (!part.empty())
            message += part + ": ";
    return message + contentOf(finding) + (finding.remedy.empty() ? "" : ": " + finding.remedy);
}
}
