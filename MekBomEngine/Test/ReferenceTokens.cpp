#include "ReferenceTokens.h"

namespace
{
// On purpose not the product's: a mistake there would go unnoticed.
const std::wstring kFormulaDelimiters = L"*/+-=() \t\n\r";

bool isToken(const std::wstring& text)
{
    return startsWith(text, L"%") && text.find(L"%%") == std::wstring::npos;
}

// The list behind "%GroupBy:" and the like. On purpose: an empty element ends the splitting, so `,,b` stays whole.
std::vector<std::wstring> splitList(const std::wstring& list)
{
    std::wstring rest;
    for (const wchar_t c : list)
        if (c != L' ')
            rest += c;
    std::vector<std::wstring> elements;
    std::size_t comma = rest.find(L',');
    while (comma != std::wstring::npos && comma > 0)
    {
        elements.push_back(rest.substr(0, comma));
        rest = rest.substr(comma + 1);
        comma = rest.find(L',');
    }
    elements.push_back(rest);
    return elements;
}

std::vector<std::wstring> piecesOfFormula(const std::wstring& formula)
{
    std::vector<std::wstring> pieces(1);
    for (const wchar_t c : formula)
    {
        if (kFormulaDelimiters.find(c) == std::wstring::npos)
            pieces.back() += c;
        else if (!pieces.back().empty())
            pieces.emplace_back();
    }
    return pieces;
}
}

bool startsWith(const std::wstring& text, const std::wstring& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

std::wstring without(const std::wstring& prefix, const std::wstring& text)
{
    return startsWith(text, prefix) ? text.substr(prefix.size()) : text;
}

bool isSum(const std::wstring& token)
{
    return startsWith(token, L"%SumBy:");
}

bool isFormula(const std::wstring& token)
{
    return startsWith(token, L"%Formula:");
}

// Only these seven names hold numbers that count.
bool isOrderedNaturally(const std::wstring& token)
{
    for (const wchar_t* name : { L"%MNum", L"%MName", L"%PNum", L"%Num", L"%PreliminaryNum", L"%Name", L"%BoltName" })
        if (token == name)
            return true;
    return false;
}

std::vector<std::wstring> groupingRequest(const std::wstring& token)
{
    return startsWith(token, L"%GroupBy:") ? splitList(without(L"%GroupBy:", token)) : std::vector<std::wstring>();
}

std::vector<std::wstring> sortingRequest(const std::wstring& token)
{
    const bool isRequest = startsWith(token, L"%SortAscBy:") || startsWith(token, L"%SortDescBy:");
    return isRequest ? splitList(token) : std::vector<std::wstring>();
}

std::vector<std::wstring> tokensOfFormula(const std::wstring& formula)
{
    std::vector<std::wstring> tokens;
    for (const std::wstring& piece : piecesOfFormula(formula))
        if (isToken(piece))
            tokens.push_back(piece);
    return tokens;
}
