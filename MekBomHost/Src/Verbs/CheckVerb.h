// `mekbom check`: finds what the author of a template did not mean, without printing a list.
//
//   mekbom check list.json                      what the template alone shows
//   mekbom check list.json --data parts.csv     what these data show as well
//   mekbom check --explain MB105                a rule, with an example that trips it
//
// Mistakes go to standard output, as text or as JSON: they are what was asked for. What keeps the template or the data
// from being read at all is a message on standard error as anywhere else, or, among the others, JSON.
#pragma once

#include "FileOption.h"
#include "ListOption.h"
#include "RowOptions.h"
#include "Verb.h"

#include <string>

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

    std::string m_templateName; // a file, a shipped list or "default"
    FileOption m_data{ "--data", "FILE" };
    std::string m_format = "text";
    std::string m_code; // what to explain, or "all"; empty for a check
    RowOptions m_rows;
    ListOption m_allowed{ "--allow", "CODE,..." };
};
}
