// Which mistakes a list is allowed to have: those that its template excuses, with the reason, and those that whoever
// runs the report excuses.
//
//   const Excuses excuses(reportTemplate.allowed, { "MB105" });   // the template says "allow": { "MB209": "rounded" }
//   excuses.cover("MB105")   ->  true
//   excuses.cover("MB209")   ->  true
//   excuses.cover("MB101")   ->  false
//
// An excuse that excuses nothing is no mistake: what trips a rule may depend on the data, and one template serves many.
#pragma once

#include "Finding.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace mekbom
{
class Excuses
{
public:
    // Throws a Fault of status kWrongUsage when one of `codes` is no code of a mistake. The template's have been read
    // with that question asked.
    Excuses(const std::map<std::string, std::string>& reasons, const std::vector<std::string>& codes);

    bool cover(const std::string& code) const { return m_codes.count(code) > 0; }

    // `findings` without those that are excused.
    std::vector<Finding> without(const std::vector<Finding>& findings) const;

private:
    std::set<std::string> m_codes;
};

// What the built-in template does wrong, with the reason: it is kept as it always was, "%GroupBy:Material" and all.
// Frozen: a rule that finds more in it is to be looked at.
const std::map<std::string, std::string>& excusesOfBuiltInTemplate();
}
