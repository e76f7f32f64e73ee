#include "TokensVerb.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "HeadingTable.h"
#include "InQuotes.h"
#include "NearestWord.h"
#include "StandardOutput.h"
#include "TokenTable.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
CLI::App& TokensVerb::declareOn(CLI::App& parent)
{
    CLI::App& tokens = *parent.add_subcommand("tokens", "List the data that parts can have");
    tokens.add_option("word", m_word, "Part of a name; case does not count [all tokens]");
    tokens.add_flag("--headings", m_listsHeadings, "List what columns of parts lists may be called instead");
    tokens.footer("Examples\n"
                  "  mekbom tokens\n"
                  "  mekbom tokens weight\n"
                  "  mekbom tokens --headings\n"
                  "  mekbom tokens --headings werkstoff");
    return tokens;
}

// Nothing found is wrong usage rather than an empty table: a script that asks for a token wants to know. "mekbom tokens
// weigth" is asked whether it meant %Weight.
ExitStatus TokensVerb::run(FindingList&)
{
    const std::string table = m_listsHeadings ? HeadingTable::textOf(m_word) : TokenTable::textOf(m_word);
    if (table.empty())
    {
        Finding finding =
            Finding::of(FindingCodes::kWrongArguments, inQuotes(m_word),
                        m_listsHeadings ? "a part of a heading or a token's name" : "a part of a token's name");
        finding.source = "tokens";
        finding.remedy = NearestWord::question(m_word, m_listsHeadings ? HeadingTable::certain() : TokenTable::names());
        throw Fault(kWrongUsage, finding);
    }
    StandardOutput::print(table);
    return kDone;
}
}
