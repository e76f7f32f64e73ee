#include "FileOption.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
// The parser would refuse a second file, too, but in its own words. So it takes all there are, and name() refuses.
void FileOption::declareOn(CLI::App& command, const std::string& help)
{
    m_pOption =
        command.add_option(m_names, help)->type_name(m_form)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

std::string FileOption::name() const
{
    const std::vector<std::string>& given = m_pOption->results();
    if (given.size() > 1)
    {
        Finding finding = Finding::of(FindingCodes::kWrongArguments,
                                      inQuotes(given[1]) + " beside " + inQuotes(given[0]), "one file");
        finding.source = option();
        throw Fault(kWrongUsage, finding);
    }
    return given.empty() ? std::string() : given.front();
}

std::vector<std::string> FileOption::names() const
{
    return m_pOption->results();
}

// Of "-o,--output" the long one, as messages and help have it.
std::string FileOption::option() const
{
    return m_names.substr(m_names.find("--"));
}
}
