// What the token of one tuple asks the engine for, taken apart as the engine takes it apart.
//
//   TokenRequest::of("%Weight")                ->  kShow, subject "%Weight"
//   TokenRequest::of("%SumBy:%Weight")         ->  kSum, subject "%Weight"
//   TokenRequest::of("%SortDescBy:%A, %B")     ->  kSort, elements "%A" and "%B", both descending
//   TokenRequest::of("%GroupBy:%A,,%B")        ->  kGroup, elements "%A" and ",%B", which is no token
//
// Texts are UTF-8. The engine's own functions split, so that a rule never sees another list than the engine does.
#pragma once

#include <string>
#include <vector>

namespace mekbom
{
struct TokenRequest
{
    enum eKind
    {
        kShow,
        kGroup,
        kSort,
        kSum,
        kFilter,
        kFormula
    };

    // What an element of a list is.
    enum eElement
    {
        kToken,
        kMalformed,      // empty, or with a comma, a semicolon or white space in it
        kWithoutPercent, // "Material"
        kRequest,        // "%SortAscBy:%Material" in a grouping request
        kComputed        // "%Formula:%Length*2"
    };

    struct Element
    {
        std::string token;         // without its direction
        eElement sort = kToken;    // what the text is
        bool isDescending = false; // of sorting requests alone, as the next
        bool hasDirection = false; // in front of itself, and not that of the element before it
    };

    static TokenRequest of(const std::string& token);

    eKind kind = kShow;
    std::string subject;           // what is shown, summed or computed; of a list all behind the prefix
    std::vector<Element> elements; // of kGroup and kSort
};

// The tokens that a row is asked for: those of a formula, be it summed or not, or the one that is shown, summed, or that
// groups and sorts.
std::vector<std::string> dataTokensOf(const TokenRequest& request);

// "%GroupBy:", "%SortAscBy:" and so on: what can stand in front of a token.
const std::vector<std::string>& requestPrefixes();

// Whether `text` begins with `prefix`.
bool startsWith(const std::string& text, const std::string& prefix);
}
