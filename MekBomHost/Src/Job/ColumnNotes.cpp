// What may have been meant is asked of each column, not of each name that is missing: a column means one thing.
//
//   missing %Weight, column "Wieght"     nearest of all names is %Weight, which is missing: that was meant
//   missing %Weight, column "Lenght"     nearest is %Length, which nobody misses
//   missing %MName, column "Name"        both are names of the catalogue, and so two data, however near they are
//   missing %Wieght, column "Weight"     the template has the slip, not the file
#include "ColumnNotes.h"

#include "FindingCodes.h"
#include "HeadingTable.h"
#include "InQuotes.h"
#include "NearestWord.h"
#include "TokenNames.h"
#include "TokenTable.h"
#include "Utf8.h"

#include "VorBomTokenCatalogue.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace mekbom::ColumnNotes
{
namespace
{
const std::size_t kMostNamed = 5; // arbitrary: what fits in a note

// Arbitrary: more than a file lacks by slips. Every column is compared with each of them.
const std::size_t kMostLookedFor = 200;

bool isKnown(const VorString& token)
{
    return VorBomTokenCatalogue::find(token) != nullptr;
}

std::string joined(const std::vector<std::string>& texts, const std::string& separator)
{
    std::string text;
    for (const std::string& next : texts)
        text += (text.empty() ? "" : separator) + next;
    return text;
}

// "Profiile" is nearest to "Profile", a word for %Name. Empty when no heading is near.
std::string tokenOfNearestHeading(const std::string& label)
{
    const HeadingEntry* const pEntry = HeadingTable::find(NearestWord::of(label, HeadingTable::certain()));
    return pEntry == nullptr ? std::string() : pEntry->tokens;
}

// The columns that may have been meant to be one of the tokens, each with that token; the first few, since a note that
// asks of ten columns is not read. A column that the catalogue knows can only have been meant for a token of the
// author's own, which no catalogue has.
std::vector<std::pair<const InputColumn*, std::string>> meant(const PartsList& parts, std::vector<std::string> tokens)
{
    tokens.resize(std::min(tokens.size(), kMostLookedFor));
    std::vector<std::string> allNames = tokens;
    for (std::string& name : TokenTable::names())
        allNames.push_back(std::move(name));
    std::vector<std::string> ownTokens;
    std::copy_if(tokens.begin(), tokens.end(), std::back_inserter(ownTokens),
                 [](const std::string& token) { return !isKnown(Utf8::toWide(token)); });

    std::vector<std::pair<const InputColumn*, std::string>> columns;
    for (const InputColumn& column : parts.columns())
    {
        std::string token = NearestWord::of(column.token, isKnown(column.tupleToken) ? ownTokens : allNames);
        if (token.empty() && !isKnown(column.tupleToken))
            token = tokenOfNearestHeading(column.label);
        if (columns.size() < kMostNamed && std::find(tokens.begin(), tokens.end(), token) != tokens.end())
            columns.emplace_back(&column, token);
    }
    return columns;
}
}

// A list may do without some of its data; but a file whose pieces are called "Qty" must not be counted wrong without a
// word.
Finding missing(const PartsList& parts, const std::string& source, const std::vector<std::string>& tokens)
{
    std::string text = source + " has no column for " + joined(tokens, ", ") + ", which the template asks for";
    if (std::find(tokens.begin(), tokens.end(), TokenNames::kPieces) != tokens.end())
        text += "; each row counts as one piece";
    Finding finding = Finding::saying(FindingCodes::kColumnMissing, text);
    finding.source = source;
    std::vector<std::string> headings;
    for (const auto& [pColumn, token] : meant(parts, tokens))
        headings.push_back(inQuotes(pColumn->name));
    if (!headings.empty())
        finding.remedy = (headings.size() == 1 ? "did you mean its column " : "did you mean its columns ") +
                         joined(headings, ", ") + "?";
    return finding;
}

Finding inDoubt(const InputColumn& column, const std::string& source)
{
    Finding note = column.doubt->finding;
    note.severity = Finding::kNote;
    note.source = source;
    return note;
}

Finding chosen(const std::string& name, const std::string& title)
{
    return Finding::saying(FindingCodes::kListChosen, "list " + name + (title.empty() ? "" : " (" + title + ")") +
                                                          ", which suits these columns; --template NAME takes another");
}

Finding printedAsTheyAre(const PartsList& parts, const std::string& source)
{
    Finding finding = Finding::saying(FindingCodes::kNoSuitableTemplate,
                                      source + " suits no shipped list and is printed as it is; begin a list of your "
                                               "own with mekbom new-list DATA > list.json");
    finding.source = source;
    std::vector<std::string> names;
    for (const auto& [pColumn, token] : meant(parts, TokenTable::names()))
        names.push_back(inQuotes(token) + " by " + inQuotes(pColumn->name));
    if (!names.empty())
        finding.remedy = "did you mean " + joined(names, ", ") + "?";
    return finding;
}
}
