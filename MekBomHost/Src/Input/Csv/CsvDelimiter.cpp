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
#include <array>
#include <cstddef>

namespace mekbom::CsvDelimiter
{
namespace
{
const std::size_t kMostLines = 100; // arbitrary: more than enough to tell by

const std::string_view kDelimiters = ",;\t|";

// In the same order.
struct Name
{
    const char* word;
    const char* inSentence;
};
const Name kNames[] = { { ",", "a comma" }, { ";", "a semicolon" }, { "tab", "a tab" }, { "|", "a vertical bar" } };

// How many of each delimiter stand in a record.
using Counts = std::array<std::size_t, std::size(kNames)>;

// Takes the record that `head` begins with; false where its end is not there.
bool takeRecord(std::string_view& head, Counts& counts)
{
    counts.fill(0);
    bool isQuoted = false;
    for (std::size_t i = 0; i < head.size(); ++i)
    {
        const std::size_t index = kDelimiters.find(head[i]);
        if (head[i] == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (head[i] == '\n' || head[i] == '\r'))
        {
            head.remove_prefix(i);
            return true;
        }
        else if (!isQuoted && index != std::string_view::npos)
            ++counts[index];
    }
    head = std::string_view();
    return false;
}

// Those of the first records, never none. One that is cut short counts only if there is no other.
std::vector<Counts> countsOf(std::string_view head)
{
    std::vector<Counts> records;
    Counts counts;
    do
    {
        head.remove_prefix(std::min(head.find_first_not_of("\r\n"), head.size()));
        if (takeRecord(head, counts) || records.empty())
            records.push_back(counts);
    } while (!head.empty() && records.size() < kMostLines);
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
    static const std::vector<std::pair<const char*, char>> delimiters = { { kNames[0].word, kDelimiters[0] },
                                                                          { kNames[1].word, kDelimiters[1] },
                                                                          { kNames[2].word, kDelimiters[2] },
                                                                          { kNames[3].word, kDelimiters[3] } };
    return delimiters;
}

const char* nameOf(char delimiter)
{
    return kNames[kDelimiters.find(delimiter)].inSentence;
}

char recognise(std::string_view head, const std::string& name)
{
    const std::vector<Counts> records = countsOf(head);
    std::size_t best = 0;
    std::size_t rival = 0; // another one that suits as well
    for (std::size_t i = 1; i < kDelimiters.size(); ++i)
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
    return kDelimiters[best];
}

char announced(std::string_view head)
{
    const std::string_view prefix = "sep=";
    head = Utf8::withoutByteOrderMark(head);
    const bool isLine = head.substr(0, prefix.size()) == prefix && head.size() > prefix.size() + 1 &&
                        (head[prefix.size() + 1] == '\n' || head[prefix.size() + 1] == '\r');
    return isLine && kDelimiters.find(head[prefix.size()]) != std::string_view::npos ? head[prefix.size()] : '\0';
}
}
