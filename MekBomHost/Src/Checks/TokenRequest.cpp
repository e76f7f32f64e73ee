#include "TokenRequest.h"

#include "Utf8.h"

#include "VorBomDataToken.h"

#include "MekRoots/Exp/VorArray.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const char* const kFormulaPrefix = "%Formula:";

bool beginsWithRequest(const std::string& text)
{
    const std::vector<std::string>& prefixes = requestPrefixes();
    return std::any_of(prefixes.begin(), prefixes.end(),
                       [&text](const std::string& prefix) { return startsWith(text, prefix); });
}

TokenRequest::eElement sortOf(const std::string& text)
{
    if (startsWith(text, kFormulaPrefix))
        return TokenRequest::kComputed;
    if (beginsWithRequest(text))
        return TokenRequest::kRequest;
    if (text.empty() || text.find_first_of(",; \t\r\n") != std::string::npos)
        return TokenRequest::kMalformed;
    return text.front() == '%' ? TokenRequest::kToken : TokenRequest::kWithoutPercent;
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
        element.sort = sortOf(element.token);
        elements.push_back(element);
    }
    return elements;
}

// An element without a direction goes in that of the element before it.
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
        element.sort = sortOf(element.token);
        elements.push_back(element);
    }
    return elements;
}
}

TokenRequest TokenRequest::of(const std::string& token)
{
    static const struct
    {
        const char* prefix;
        eKind kind;
    } kinds[] = { { "%GroupBy:", kGroup }, { "%SortAscBy:", kSort },  { "%SortDescBy:", kSort },
                  { "%SumBy:", kSum },     { "%FilterBy:", kFilter }, { kFormulaPrefix, kFormula } };

    TokenRequest request;
    request.subject = token;
    for (const auto& [prefix, kind] : kinds)
        if (startsWith(token, prefix))
        {
            request.kind = kind;
            request.subject = token.substr(std::string(prefix).size());
        }
    if (request.kind == kGroup)
        request.elements = groupingElements(VorBomDataToken(Utf8::toWide(token)));
    if (request.kind == kSort)
        request.elements = sortingElements(VorBomDataToken(Utf8::toWide(token)));
    return request;
}

const std::vector<std::string>& requestPrefixes()
{
    static const std::vector<std::string> prefixes = { "%GroupBy:", "%SortAscBy:", "%SortDescBy:",
                                                       "%SumBy:",   "%FilterBy:",  kFormulaPrefix };
    return prefixes;
}

bool startsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

std::vector<std::string> dataTokensOf(const TokenRequest& request)
{
    std::vector<std::string> tokens;
    switch (request.kind)
    {
        case TokenRequest::kShow: tokens.push_back(request.subject); break;
        case TokenRequest::kGroup:
        case TokenRequest::kSort:
            for (const TokenRequest::Element& element : request.elements)
                if (element.sort == TokenRequest::kToken)
                    tokens.push_back(element.token);
            break;
        case TokenRequest::kSum:
        {
            const TokenRequest summed = TokenRequest::of(request.subject);
            if (summed.kind == TokenRequest::kFormula)
                return dataTokensOf(summed);
            if (summed.kind == TokenRequest::kShow && request.subject.find_first_of(" ,") == std::string::npos)
                tokens.push_back(request.subject);
            break;
        }
        case TokenRequest::kFormula:
            for (const VorString& token : VorBomDataToken::getTokensFromFormula(Utf8::toWide(request.subject)))
                if (token.find(L";", 0) < 0 && token.find(L":", 0) < 0) // both are mistakes of the formula
                    tokens.push_back(Utf8::toBytes(token));
            break;
        default: break;
    }
    return tokens;
}
}
