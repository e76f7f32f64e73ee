// A rule, as Markdown; the examples come with their data where it is these that trip it:
//
//   # MB105: A details section shows nothing, ...      the sentence of its code
//   Told as an error.
//   - Written: an empty details section ...            three columns of MistakeTable
//   - What happens: ...
//   - Instead: ...
//   Trips it:                                          the bad template, as JSON
//   Does not:                                          the good one; "These data do not" where only the data differ
#include "MistakePage.h"

#include "Finding.h"
#include "MistakeTable.h"

namespace mekbom::MistakePage
{
namespace
{
const char* const kHead = R"(# Mistakes in lists, and how to write them right

`mekbom check` finds these mistakes in a template, `mekbom report` looks for the same ones first. An error stops a report
before anything is written, unless the template excuses it, `"allow": { "MB105": "reason" }`, or `--allow MB105` does.
Warnings stand on standard error beside the list; notes are told by `check` alone.

This page is printed by `mekbom check --explain all`; a single rule by `mekbom check --explain MB105`.

)";

const char* const kHundreds[] = {
    "Structure", "Grouping and sorting", "Sums", "Formulas", "Names and columns", "Data"
};

std::string block(const std::string& words, const std::string& language, const std::string& text)
{
    return words + ":\n\n```" + language + "\n" + text + "```\n\n";
}

// Where only the data differ, the template is shown once. Nothing is shown of rows that no parts list has: a template
// alone would trip nothing.
std::string examplesOf(const Mistake& mistake)
{
    if (mistake.needsForeignRows)
        return std::string();
    std::string text = block("Trips it", "json", mistake.bad);
    if (!mistake.badRows.empty())
        text += block("over these data", "csv", mistake.badRows);
    if (mistake.good != mistake.bad)
        text += block("Does not", "json", mistake.good);
    if (mistake.goodRows != mistake.badRows)
        text += block(mistake.good == mistake.bad ? "These data do not" : "over these data", "csv", mistake.goodRows);
    return text;
}

std::string ruleOf(const Mistake& mistake, const std::string& heading)
{
    const FindingCode& code = *mistake.pCode;
    return heading + " " + code.name + ": " + code.sentence + "\n\n" + "Told as " +
           (code.severity == Finding::kError ? "an " : "a ") + nameOf(code.severity) +
           ".\n\n- Written: " + mistake.writes + "\n- What happens: " + mistake.happens +
           "\n- Instead: " + mistake.fix + "\n\n" + examplesOf(mistake);
}

// "MB105" -> "Structure": the digit behind "MB" counts the hundreds from 1.
std::string hundredOf(const Mistake& mistake)
{
    return kHundreds[mistake.pCode->name[2] - '1'];
}
}

std::string of(std::string_view code)
{
    const Mistake* const pMistake = MistakeTable::find(code);
    return pMistake == nullptr ? std::string() : ruleOf(*pMistake, "#");
}

std::string ofAll()
{
    std::string text = kHead;
    std::string hundred;
    for (const Mistake& mistake : MistakeTable::all())
    {
        if (hundredOf(mistake) != hundred)
            text += "## " + hundredOf(mistake) + "\n\n";
        hundred = hundredOf(mistake);
        text += ruleOf(mistake, "###");
    }
    text.pop_back(); // one line end at the end
    return text;
}
}
