// Which mistakes a list is allowed to have: those that its template excuses with a reason, and those that are excused
// on the command line.
//
//   const Excuses excuses(reportTemplate.allowed, { "MB105" });   // the template says "allow": { "MB209": "rounded" }
//   excuses.cover("MB105")   ->  true
//   excuses.cover("MB209")   ->  true
//   excuses.cover("MB101")   ->  false
//
// An excuse that excuses nothing is no mistake: what trips a rule may depend on the data, and one template serves many.
// Copies what it is given.
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
    // `reasons` are the template's, by code, and `codes` those of the command line. Throws a Fault of status
    // kWrongUsage when one of `codes` is no code of a mistake; TemplateReader has asked the same of the template's.
    Excuses(const std::map<std::string, std::string>& reasons, const std::vector<std::string>& codes);

    bool cover(const std::string& code) const { return m_codes.count(code) > 0; }

    // `findings` without those that are excused, in their order.
    std::vector<Finding> without(const std::vector<Finding>& findings) const;

private:
    std::set<std::string> m_codes;
};

// What the built-in template does wrong, by code, with the reason: it is kept as it always was, "%GroupBy:Material" and
// all. No code is to be added: a new rule that trips over this template is to be looked at first.
const std::map<std::string, std::string>& excusesOfBuiltInTemplate();
}
