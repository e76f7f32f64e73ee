#include "PairOption.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"

#include <CLI/CLI.hpp>

#include <cstddef>

namespace mekbom
{
// An option with a list of values would take all words up to the next option; this one takes one word each time, so
// that "--unit length=m list.json" leaves the template to the verb.
void PairOption::declareOn(CLI::App& command, const std::string& help)
{
    command.add_option(m_name, m_arguments, help + "; may be repeated")->type_name(m_form)->allow_extra_args(false);
}

std::vector<std::pair<std::string, std::string>> PairOption::pairs() const
{
    std::vector<std::pair<std::string, std::string>> pairs;
    for (const std::string& argument : m_arguments)
        pairs.push_back(pairOf(argument));
    return pairs;
}

// The first equals sign divides the two; the second word may hold others: "--input-unit %A=b=c" asks for a unit "b=c",
// which is refused as such.
std::pair<std::string, std::string> PairOption::pairOf(const std::string& argument) const
{
    const std::size_t equals = argument.find('=');
    if (equals == std::string::npos || equals == 0 || equals + 1 == argument.size())
    {
        Finding finding =
            Finding::of(FindingCodes::kOptionIsNoPair, inQuotes(argument), m_form + " such as " + m_example);
        finding.source = m_name;
        throw Fault(kWrongUsage, finding);
    }
    return { argument.substr(0, equals), argument.substr(equals + 1) };
}
}
