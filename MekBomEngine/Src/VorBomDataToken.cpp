// A request is a prefix and what follows it, mostly a list. Told on "%SortAscBy: %A,%SortDescBy:%B":
//   starts with "%SortAscBy:"           it is a sorting request
//   blanks removed, split at commas     "%SortAscBy:%A" and "%SortDescBy:%B": a direction stays with its element
//   removeSortingPrefix                 "%A" ascending, "%B" descending
#include "VorBomDataToken.h"

#include "VorBomTokenCatalogue.h"

#include "ExpressionEvaluator/Src/VorFormulaText.h"

#include "MekRoots/Exp/VorAssert.h"

const VorString VorBomDataToken::kTokenPrefix(L"%");
const VorString VorBomDataToken::kGroupPrefix(L"%GroupBy:");
const VorString VorBomDataToken::kSortAscPrefix(L"%SortAscBy:");
const VorString VorBomDataToken::kSortDescPrefix(L"%SortDescBy:");
const VorString VorBomDataToken::kSumPrefix(L"%SumBy:");
const VorString VorBomDataToken::kFilterPrefix(L"%FilterBy:");
const VorString VorBomDataToken::kFormulaPrefix(L"%Formula:");
const VorString VorBomDataToken::kFunctionPrefix(L"%%");

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomDataToken";
const VorString kComma(L",");
const VorString kFormulaDelimiters(VorFormulaText::kDelimiters.data());

// Answers as `text.find(prefix, 0) == 0` does, without a search through the whole text.
bool startsWith(const VorString& text, const VorString& prefix)
{
    return VorString::compare(text, prefix, prefix.length()) == 0;
}

VorString withoutPrefix(const VorString& text, const VorString& prefix)
{
    return text.right(text.length() - prefix.length());
}

// Removes `prefix` from the front of `text`; 0 with `text` untouched when it is not there.
int stripPrefix(VorString& text, const VorString& prefix)
{
    if (!startsWith(text, prefix))
        return 0;
    text = withoutPrefix(text, prefix);
    return 1;
}

// Sets `rest` to `text` without `prefix`; 0 with `rest` untouched when it is not there.
int getRest(const VorString& text, const VorString& prefix, VorString& rest)
{
    if (!startsWith(text, prefix))
        return 0;
    rest = withoutPrefix(text, prefix);
    return 1;
}

// list = element { "," element }     where an element of no characters and all that follows it are the last element
//
//   "%A,%B,,%C" has the elements "%A", "%B" and ",%C": the comma where the third should begin ends the split.
//
// Calls `append` for each element of `list` without its blanks.
template <class Append>
void splitAtCommas(VorString list, Append append)
{
    list.removeAll(L' ');
    const wchar_t* pText = list.getStringW();
    int start = 0;
    for (int comma = list.find(kComma, 0); comma > start; comma = list.find(kComma, start))
    {
        append(VorString(pText + start, comma - start));
        start = comma + 1;
    }
    append(list.right(list.length() - start));
}

void appendElements(const VorString& list, VorStringArray& elements)
{
    splitAtCommas(list, [&elements](VorString element) { elements.append(std::move(element)); });
}

VorBomDataValue::eBomDataValueType reportIfUnknown(VorBomDataValue::eBomDataValueType type)
{
    if (type == VorBomDataValue::kUnknownData)
        VorAssert::vorAssert(L"type != VorBomDataValue::kUnknownData", kSourcePath, __LINE__);
    return type;
}

// On purpose: only the token as given sorts naturally, the sum of one does not.
// Pinned by VorBomDataTokenTest.SumsOfNaturalTextsSortAsPlainText.
VorBomDataToken::eSortType sortTypeOfText(const VorString& token)
{
    const VorBomTokenCatalogue::Entry* pEntry = VorBomTokenCatalogue::find(token);
    return pEntry != nullptr ? pEntry->sort : VorBomDataToken::kSortString;
}
}

int VorBomDataToken::getGroupingRequest(VorStringArray& tokens) const
{
    if (!startsWith(m_token, kGroupPrefix))
        return 0;
    appendElements(withoutPrefix(m_token, kGroupPrefix), tokens);
    return 1;
}

int VorBomDataToken::getSortingRequest(VorStringArray& tokens) const
{
    if (!startsWith(m_token, kSortAscPrefix) && !startsWith(m_token, kSortDescPrefix))
        return 0;
    appendElements(m_token, tokens);
    return 1;
}

int VorBomDataToken::getSummingRequest(VorString& token) const
{
    return getRest(m_token, kSumPrefix, token);
}

int VorBomDataToken::getFilteringRequest(VorArray<int>& values) const
{
    if (m_token.find(kFilterPrefix, 0) < 0)
        return 0;
    splitAtCommas(withoutPrefix(m_token, kFilterPrefix),
                  [&values](const VorString& element) { values.append(element.toInteger()); });
    return 1;
}

int VorBomDataToken::getFormulaRequest(VorString& formula) const
{
    return getRest(m_token, kFormulaPrefix, formula);
}

// "%Weight" is one, "%" alone as well; "Weight" and "%%PaintMeter" are none.
int VorBomDataToken::isToken(const VorString& text)
{
    return startsWith(text, kTokenPrefix) && text.find(kFunctionPrefix, 0) < 0 ? 1 : 0;
}

int VorBomDataToken::isInvisibleToken(const VorString& text)
{
    const bool isInvisible = startsWith(text, kGroupPrefix) || startsWith(text, kSortAscPrefix) ||
                             startsWith(text, kSortDescPrefix) || startsWith(text, kFilterPrefix);
    return isInvisible ? 1 : 0;
}

int VorBomDataToken::isFormula(const VorString& text)
{
    return startsWith(text, kFormulaPrefix) ? 1 : 0;
}

int VorBomDataToken::removeSortingPrefix(VorString& text, int& ascending)
{
    if (stripPrefix(text, kSortAscPrefix))
    {
        ascending = 1;
        return 1;
    }
    if (stripPrefix(text, kSortDescPrefix))
    {
        ascending = 0;
        return 1;
    }
    return 0;
}

int VorBomDataToken::removeFormulaPrefix(VorString& text)
{
    return stripPrefix(text, kFormulaPrefix);
}

// "(%Weight+%Paint)*2" falls into "%Weight", "%Paint" and "2", of which the last is a number and no token.
VorStringArray VorBomDataToken::getTokensFromFormula(const VorString& formula)
{
    VorStringArray pieces;
    VorString::getTokens(formula, pieces, kFormulaDelimiters);
    VorStringArray tokens;
    for (VorString& piece : pieces)
        if (isToken(piece))
            tokens.append(std::move(piece));
    return tokens;
}

VorBomDataValue::eBomDataValueType VorBomDataToken::getTokenType(const VorString& token)
{
    // The sum of a formula is a formula still, and so a double: the sum's prefix goes first.
    VorString name = token;
    stripPrefix(name, kSumPrefix);
    if (startsWith(name, kFormulaPrefix))
        return VorBomDataValue::kDoubleData;
    const VorBomTokenCatalogue::Entry* pEntry = VorBomTokenCatalogue::find(name);
    return reportIfUnknown(pEntry != nullptr ? pEntry->type : VorBomDataValue::kUnknownData);
}

// A token that nobody knows is reported twice: in getTokenType() for its kind, and here for its order.
VorBomDataToken::eSortType VorBomDataToken::getSortType(const VorString& token)
{
    switch (getTokenType(token))
    {
        case VorBomDataValue::kIntData:
        case VorBomDataValue::kDoubleData: return kSortNumeric;
        case VorBomDataValue::kStringData: return sortTypeOfText(token);
        default: break;
    }
    VorAssert::vorAssert(L"0", kSourcePath, __LINE__);
    return kSortString;
}
