// `mekbom describe`: what stands in the columns of parts lists, what is odd about them, and which lists suit.
//
//   mekbom describe parts.csv
//   mekbom describe beams.csv bolts.xlsx       each by itself
#pragma once

#include "InputOptions.h"
#include "NamedText.h"
#include "Verb.h"

#include <string>
#include <vector>

namespace mekbom
{
class DescribeVerb : public Verb
{
public:
    CLI::App& declareOn(CLI::App& parent) override;
    ExitStatus run(FindingList& findings) override;

private:
    std::string textOf(const std::string& name, const std::vector<NamedText>& lists, FindingList& findings) const;

    InputOptions m_input;
    std::vector<std::string> m_data; // files, or words as DataFile takes them
};
}
