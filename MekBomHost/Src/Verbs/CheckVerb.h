// `mekbom check`: finds what the author of a template did not mean, without printing a list.
//
//   mekbom check list.json                      what the template alone shows
//   mekbom check list.json --data parts.csv     what these data show as well
//   mekbom check --explain MB105                a rule, with an example that trips it
//
// Mistakes go to standard output, as text or as JSON: they are what was asked for. What keeps the template or the data
// from being read at all is a message on standard error as anywhere else, or, among the others, JSON.
#pragma once

#include "Verb.h"

#include <string>
#include <vector>

namespace mekbom
{
class CheckVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    ExitStatus explain() const;
    ExitStatus check(FindingList& findings) const;

    std::string m_templateName; // a file or "default"
    std::string m_data;         // a file; empty for none
    std::string m_format = "text";
    std::string m_code; // to explain; empty for none
    std::vector<std::string> m_allowed;
};
}
