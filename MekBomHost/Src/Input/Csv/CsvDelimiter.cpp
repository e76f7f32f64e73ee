// Only what stands in the header row can divide the columns, and in the rows below it divides as many:
//
//   Mark;Length, mm;Weight       ,: 2 fields   ;: 3 fields
//   B1;3185;134,4                   2             3
//   B2;6000;253                     1             3
//
// One of three lines does not suit the comma, all suit the semicolon. Quotes are passed over by counting them, whichever
// sign divides the fields: a doubled one opens what it has closed.
#include "CsvDelimiter.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "Utf8.h"

#include <algorithm>
#include <cstddef>

namespace mekbom::CsvDelimiter
{
namespace
{
const std::size_t kMostLines = 100; // arbitrary: more than enough to tell by

struct Name
{
    const char* word;
    const char* inSentence;
};

const Name kNames[] = { { ",", "a comma" }, { ";", "a semicolon" }, { "tab", "a tab" }, { "|", "a vertical bar" } };

std::size_t indexOf(char delimiter)
{
    const auto& delimiters = all();
    const auto found = std::find_if(delimiters.begin(), delimiters.end(),
                                    [delimiter](const auto& entry) { return entry.second == delimiter; });
    return static_cast<std::size_t>(found - delimiters.begin());
}

// How many of each delimiter stand in a record.
using Counts = std::vector<std::size_t>;

// The counts of the first records that are there whole; the last one may be cut short, and counts only if it is the
// first, too.
std::vector<Counts> countsOf(std::string_view head)
{
    std::vector<Counts> records;
    Counts counts(all().size());
    bool isQuoted = false;
    bool isEmpty = true;
    for (const char byte : head)
    {
        if (byte == '"')
            isQuoted = !isQuoted;
        if (isQuoted || (byte != '\n' && byte != '\r'))
        {
            isEmpty = false;
            const std::size_t index = isQuoted ? all().size() : indexOf(byte);
            if (index < all().size())
                ++counts[index];
            continue;
        }
        if (!isEmpty)
            records.push_back(counts);
        if (records.size() == kMostLines)
            return records;
        counts.assign(counts.size(), 0);
        isEmpty = true;
    }
    if (records.empty())
        records.push_back(counts);
    return records;
}

// How many records have as many of a delimiter as the header row; 0 when that has none.
std::size_t numSuited(const std::vector<Counts>& records, std::size_t index)
{
    const std::size_t inHeader = records.front()[index];
    if (inHeader == 0)
        return 0;
    return static_cast<std::size_t>(
        std::count_if(records.begin(), records.end(), [=](const Counts& counts) { return counts[index] == inHeader; }));
}

std::string quotedName(std::size_t index)
{
    return std::string("\"") + kNames[index].word + "\"";
}

[[noreturn]] void failBetween(std::size_t first, std::size_t second, const std::string& name)
{
    Finding finding = Finding::stating(FindingCodes::kDelimiterUnclear,
                                       std::string("the columns may be separated by ") + kNames[first].inSentence +
                                           " or by " + kNames[second].inSentence);
    finding.source = name;
    finding.remedy = "give --delimiter " + quotedName(first) + " or --delimiter " + quotedName(second);
    throw Fault(kInvalidInput, finding);
}
}

const std::vector<std::pair<const char*, char>>& all()
{
    static const std::vector<std::pair<const char*, char>> delimiters = {
        { kNames[0].word, ',' }, { kNames[1].word, ';' }, { kNames[2].word, '\t' }, { kNames[3].word, '|' }
    };
    return delimiters;
}

const char* nameOf(char delimiter)
{
    return kNames[indexOf(delimiter)].inSentence;
}

char recognise(std::string_view head, const std::string& name)
{
    const std::vector<Counts> records = countsOf(head);
    std::size_t best = 0;
    std::size_t rival = 0; // another one that suits as well
    for (std::size_t i = 1; i < all().size(); ++i)
    {
        const std::size_t suited = numSuited(records, i);
        const std::size_t most = numSuited(records, best);
        if (suited > most)
            best = rival = i;
        else if (suited == most && suited > 0)
            rival = i;
    }
    if (best != rival)
        failBetween(best, rival, name);
    return all()[best].second;
}

char announced(std::string_view head)
{
    const std::string_view prefix = "sep=";
    head = Utf8::withoutByteOrderMark(head);
    const bool isLine = head.substr(0, prefix.size()) == prefix && head.size() > prefix.size() + 1 &&
                        (head[prefix.size() + 1] == '\n' || head[prefix.size() + 1] == '\r');
    return isLine && indexOf(head[prefix.size()]) < all().size() ? head[prefix.size()] : '\0';
}
}
