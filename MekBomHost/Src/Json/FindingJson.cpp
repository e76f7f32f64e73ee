#include "FindingJson.h"

#include <nlohmann/json.hpp>

namespace mekbom::FindingJson
{
namespace
{
const int kIndent = 2;

// Members stand in the order of this list, which is that of reading: what, where, and then the words. Programs rely on
// the names.
nlohmann::ordered_json objectOf(const Finding& finding)
{
    return { { "severity", nameOf(finding.severity) },
             { "code", finding.code },
             { "source", finding.source },
             { "line", finding.begin.line },
             { "column", finding.begin.column },
             { "endLine", finding.end.line },
             { "endColumn", finding.end.column },
             { "path", finding.path },
             { "field", finding.field },
             { "found", finding.found },
             { "expected", finding.expected },
             { "statement", finding.statement },
             { "sentence", finding.sentence },
             { "remedy", finding.remedy },
             { "message", messageOf(finding) } };
}
}

// A file name need not be UTF-8; what is not becomes U+FFFD.
std::string textOf(const std::vector<Finding>& findings)
{
    nlohmann::ordered_json array = nlohmann::ordered_json::array();
    for (const Finding& finding : findings)
        array.push_back(objectOf(finding));
    return array.dump(kIndent, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}
}
