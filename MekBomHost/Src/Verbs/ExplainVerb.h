// `mekbom explain`: says in words what a template does, and what a line of its list is made of.
//
//   mekbom explain list.json                               the template alone
//   mekbom explain list.json --data parts.csv              and the lines of the list, with their numbers
//   mekbom explain list.json --data parts.csv --line 3     the template's words give way to those about line 3
#pragma once

#include "FileOption.h"
#include "ListOptions.h"
#include "ReportRequest.h"
#include "Verb.h"

#include <optional>
#include <string>

namespace mekbom
{
class ExplainVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    ExitStatus explainTemplate() const;
    ExitStatus explainList(FindingList& findings) const;
    ReportRequest request(const Configuration& configuration) const;

    std::string m_templateName; // a file, a shipped list or "default"
    FileOption m_data{ "--data", "FILE" };
    std::optional<int> m_line; // from 1; nothing for all lines
    ListOptions m_list;
};
}
