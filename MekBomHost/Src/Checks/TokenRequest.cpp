// A rule must see the list that the engine sees, and that is not always the one its author sees:
//
//   "%GroupBy:%A, %B"             the author reads %A and %B     the engine too: it drops blanks
//   "%GroupBy:%A,,%B"             the author reads %A and %B     the engine reads "%A" and ",%B"
//   "%SortDescBy:%A,%B"           the author reads %B upwards    the engine sorts both downwards
//   "%GroupBy:%SortAscBy:%A"      the author reads two requests  the engine looks for "%SortAscBy:%A" in rows
//
// So the engine's own functions split the text here; what is decided here is only what each piece is.
#include "TokenRequest.h"

#include "Utf8.h"

#include "VorBomDataToken.h"

#include "MekRoots/Exp/VorArray.h"

#include <algorithm>

namespace mekbom
{
namespace
{
struct Prefix
{
    const char* text;
    TokenRequest::eKind kind;
};

const Prefix kPrefixes[] = {
    { "%GroupBy:", TokenRequest::kGroup },   { "%SortAscBy:", TokenRequest::kSort },
    { "%SortDescBy:", TokenRequest::kSort }, { "%SumBy:", TokenRequest::kSum },
    { "%FilterBy:", TokenRequest::kFilter }, { TokenRequest::kFormulaPrefix, TokenRequest::kFormula }
};

// None of the prefixes begins with another one, so that at most one of them fits. Null for a plain token.
const Prefix* prefixOf(const std::string& text)
{
    const auto fits = [&text](const Prefix& prefix) { return startsWith(text, prefix.text); };
    const Prefix* const pFound = std::find_if(std::begin(kPrefixes), std::end(kPrefixes), fits);
    return pFound == std::end(kPrefixes) ? nullptr : pFound;
}

// A request within a list is told before its commas are: "%SortAscBy:%A,%B" never arrives here in one piece, but what
// the engine did not split may hold any character.
TokenRequest::eElement kindOf(const std::string& element)
{
    if (const Prefix* const pPrefix = prefixOf(element))
        return pPrefix->kind == TokenRequest::kFormula ? TokenRequest::kComputed : TokenRequest::kRequest;
    if (element.empty() || element.find_first_of(",; \t\r\n") != std::string::npos)
        return TokenRequest::kMalformed;
    return element.front() == '%' ? TokenRequest::kToken : TokenRequest::kWithoutPercent;
}

std::vector<TokenRequest::Element> groupingElements(const VorBomDataToken& token)
{
    VorStringArray texts;
    token.getGroupingRequest(texts);
    std::vector<TokenRequest::Element> elements;
    for (const VorString& text : texts)
    {
        TokenRequest::Element element;
        element.token = Utf8::toBytes(text);
        element.kind = kindOf(element.token);
        elements.push_back(element);
    }
    return elements;
}

// An element without a direction of its own goes in that of the element before it: removeSortingPrefix leaves
// `isAscending` as it was, and "%SortDescBy:%A,%B" has two descending elements, of which only %A says so.
std::vector<TokenRequest::Element> sortingElements(const VorBomDataToken& token)
{
    VorStringArray texts;
    token.getSortingRequest(texts);
    std::vector<TokenRequest::Element> elements;
    int isAscending = 1;
    for (VorString& text : texts)
    {
        TokenRequest::Element element;
        element.hasDirection = VorBomDataToken::removeSortingPrefix(text, isAscending) == 1;
        element.isDescending = isAscending == 0;
        element.token = Utf8::toBytes(text);
        element.kind = kindOf(element.token);
        elements.push_back(element);
    }
    return elements;
}

// The engine sums a formula's result, which is a datum of the row by then; the data behind it are the formula's own.
// A text with a blank or a comma is in no row, and is told of as MB303.
std::vector<std::string> dataTokensOfSum(const std::string& summed)
{
    const TokenRequest request = TokenRequest::of(summed);
    if (request.kind == TokenRequest::kFormula)
        return dataTokensOf(request);
    if (request.kind == TokenRequest::kShow && summed.find_first_of(" ,") == std::string::npos)
        return { summed };
    return {};
}

// A semicolon that sticks to a token ("%Length;a") and a colon within one are mistakes of the formula, of which
// FormulaRules tells; as tokens they would only be unknown.
std::vector<std::string> dataTokensOfFormula(const std::string& formula)
{
    std::vector<std::string> tokens;
    for (const VorString& token : VorBomDataToken::getTokensFromFormula(Utf8::toWide(formula)))
        if (token.find(L";", 0) < 0 && token.find(L":", 0) < 0)
            tokens.push_back(Utf8::toBytes(token));
    return tokens;
}

std::vector<std::string> tokensIn(const std::vector<TokenRequest::Element>& elements)
{
    std::vector<std::string> tokens;
    for (const TokenRequest::Element& element : elements)
        if (element.kind == TokenRequest::kToken)
            tokens.push_back(element.token);
    return tokens;
}
}

TokenRequest TokenRequest::of(const std::string& token)
{
    TokenRequest request;
    request.subject = token;
    if (const Prefix* const pPrefix = prefixOf(token))
    {
        request.kind = pPrefix->kind;
        request.subject = token.substr(std::string(pPrefix->text).size());
    }
    if (request.kind == kGroup)
        request.elements = groupingElements(VorBomDataToken(Utf8::toWide(token)));
    if (request.kind == kSort)
        request.elements = sortingElements(VorBomDataToken(Utf8::toWide(token)));
    return request;
}

std::vector<std::string> dataTokensOf(const TokenRequest& request)
{
    switch (request.kind)
    {
        case TokenRequest::kShow: return { request.subject };
        case TokenRequest::kGroup:
        case TokenRequest::kSort: return tokensIn(request.elements);
        case TokenRequest::kSum: return dataTokensOfSum(request.subject);
        case TokenRequest::kFormula: return dataTokensOfFormula(request.subject);
        default: return {};
    }
}

const std::vector<std::string>& requestPrefixes()
{
    static const std::vector<std::string> prefixes = []
    {
        std::vector<std::string> texts;
        for (const Prefix& prefix : kPrefixes)
            texts.emplace_back(prefix.text);
        return texts;
    }();
    return prefixes;
}

bool startsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}
}
