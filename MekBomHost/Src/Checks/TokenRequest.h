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

    static constexpr const char* kFormulaPrefix = "%Formula:";

    // What stands where a grouping or sorting request should name a token.
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
        std::string token; // without its direction
        eElement kind = kToken;
        bool isDescending = false; // false in a grouping request, which has no order
        bool hasDirection = false; // whether "%SortDescBy:" or its like stands right in front of this very element
    };

    static TokenRequest of(const std::string& token);

    eKind kind = kShow;
    std::string subject;           // the text behind the prefix; for kShow, which has none, the whole token
    std::vector<Element> elements; // the subject taken apart, for kGroup and kSort; empty for all others
};

// The tokens that the engine looks up in a row on account of the request, each as often as it is named:
//
//   "%Weight"                                ->  "%Weight"
//   "%SumBy:%Formula:%Weight*%Quantity"      ->  "%Weight", "%Quantity"
//   "%SortDescBy:%Weight,Name"               ->  "%Weight"      what is no token is asked of no row
//   "%FilterBy:3"                            ->  none
std::vector<std::string> dataTokensOf(const TokenRequest& request);

// "%GroupBy:", "%SortAscBy:" and so on: all that can stand in front of a token, each once.
const std::vector<std::string>& requestPrefixes();

// Whether `text` begins with `prefix`.
bool startsWith(const std::string& text, const std::string& prefix);
}
