// A token is looked up in a row as it is written. What no row has keeps the value that the template gave it, and nobody
// is told:
//
//   { "token": "%posNum", "value": 0 }   over rows with a %PosNum of 1, 2 and 3 prints 0 on each of three lines
//
// So every token has to be known, from the catalogue, from the template's own "tokens" and "tokenUnits", or from the
// data's columns.
#include "TokenRules.h"

#include "TokenNames.h"
#include "TotalTokens.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomDataToken.h"
#include "VorBomTemplate.h"

#include <algorithm>
#include <set>

namespace mekbom
{
namespace
{
// Arbitrary: more than anybody misspells. Each takes a look at all words there are, thousands in a wide file.
const int kMostSuggestions = 100;

// Whether the token describes all objects of a mark that the rows are grouped by: %MName those of an assembly's mark,
// and %Material those of a part's, since parts of one mark are equal. The data may say otherwise; VaryingRule tells
// then.
bool belongsToMark(const std::string& token, const std::vector<std::string>& groupTokens)
{
    static const std::vector<std::string> ofAssembly = { "%MName", "%MQuantity", "%AssemblyWeight",
                                                         "%AssemblyExactWeight" };
    static const std::vector<std::string> ofPart = {
        "%PNum",     "%Num",    "%PreliminaryNum", "%Name",      "%Material",    "%Role",          "%Class",
        "%Coating",  "%Length", "%SysLength",      "%SawLength", "%Weight",      "%ExactWeight",   "%WeightMeter",
        "%Paint",    "%Thick",  "%Width",          "%Area",      "%Diameter",    "%contourLength", "%ExactPaintArea",
        "%Standard", "%DStV",   "%BoltName",       "%Commodity", "%%PaintMeter", "%Density"
    };
    const bool isOnePart =
        contains(groupTokens, "%PNum") || contains(groupTokens, "%Num") || contains(groupTokens, "%PreliminaryNum");
    return (contains(groupTokens, "%MNum") && contains(ofAssembly, token)) || (isOnePart && contains(ofPart, token));
}
}

void TokenRules::run(bool hasData)
{
    for (const CheckedTuple& tuple : m_list.tuples())
    {
        findUnknownTokens(tuple, hasData);
        findUnknownColumn(tuple);
        findMalformedColumn(tuple);
        findNumberAsData(tuple);
        findPiecesOfFirstRow(tuple);
    }
    findUnknownUnits();
    findOtherKinds();
    findNumbersWithoutUnit();
    if (!hasData)
        findVaryingTokens();
}

void TokenRules::addUnknown(const CheckedTuple& tuple, const std::string& token, const std::string& effect)
{
    const std::string nearest = m_numUnknown++ < kMostSuggestions ? m_tokens.nearestTo(token) : std::string();
    m_mistakes.add(MistakeCodes::kTokenUnknown, tuple, effect,
                   nearest.empty()
                       ? "declare a token of your own: \"tokens\": { " + inQuotes(token) + ": \"text\" }, or \"number\""
                       : "did you mean " + inQuotes(nearest) + "?");
}

// MB501 trips on "%posNum" and on "%SumBy:Weight", and does not on "%Weight", nor on "%posNum" where a parts list has
// such a column. What is shown and is no token at all ("Weight") is told as MB502; what is summed has no column, and is
// told here. Without data nobody knows what rows have.
void TokenRules::findUnknownTokens(const CheckedTuple& tuple, bool hasData)
{
    for (const std::string& token : dataTokensOf(tuple.request))
        if (!m_tokens.knows(token) && VorBomDataToken::isToken(Utf8::toWide(token)) == 1)
            addUnknown(tuple, token,
                       "no token " + inQuotes(token) + " is known: " +
                           (hasData ? "no row has it" : "neither the catalogue nor the template has it") +
                           ", and the template's own value is taken everywhere");
        else if (!m_tokens.knows(token) && tuple.request.kind == TokenRequest::kSum)
            addUnknown(tuple, token,
                       inQuotes(tuple.token) + " sums " + inQuotes(token) + ", which " +
                           (hasData ? "no row has" : "is no token"));
}

// MB501 trips on { "token": "%Name", "column": "%Rloe" } and does not when "columns" describes "%Rloe", or when it is a
// token that is known or used in the list: then there is such a column.
void TokenRules::findUnknownColumn(const CheckedTuple& tuple)
{
    const SectionStyle& style = m_list.file().styleOf(tuple.pSection);
    const auto index = static_cast<std::size_t>(tuple.index);
    if (index >= style.columnTokens.size() || style.columnTokens[index].isEmpty() == 1)
        return;
    const std::string column = Utf8::toBytes(style.columnTokens[index]);
    if (m_list.file().columnStyleOf(style.columnTokens[index]) == nullptr && !m_tokens.knows(column) && !isUsed(column))
        addUnknown(tuple, column,
                   inQuotes(tuple.token) + " is to stand in the column " + inQuotes(column) +
                       ", which nothing describes");
}

// Whether any tuple shows, sums, computes or computes with it. A formula goes by its text without the prefix, as
// "tokenUnits" names it.
bool TokenRules::isUsed(const std::string& token) const
{
    const std::vector<CheckedTuple>& tuples = m_list.tuples();
    return std::any_of(tuples.begin(), tuples.end(),
                       [&token](const CheckedTuple& tuple)
                       {
                           return tuple.token == token || tuple.request.subject == token ||
                                  tuple.request.subject == TokenRequest::kFormulaPrefix + token ||
                                  contains(dataTokensOf(tuple.request), token);
                       });
}

// MB501 trips on "tokenUnits": { "%Wieght": "kWeightUnit" } in a list that shows %Weight, and does not when the list
// shows %Wieght: an entry makes a token known that is used, and one that nothing uses is most likely misspelled.
void TokenRules::findUnknownUnits()
{
    for (const auto& [key, place] : m_list.file().tokenUnitPlaces)
    {
        const VorString datum = TotalTokens::datumOf(Utf8::toWide(key));
        const std::string token = Utf8::toBytes(datum);
        if (VorString formula = datum; VorBomDataToken::removeFormulaPrefix(formula) == 1)
        {
            m_mistakes.add(MistakeCodes::kTokenUnknown, place,
                           inQuotes(key) + " is no name of a formula here: its unit is that of nothing",
                           "write " + inQuotes(Utf8::toBytes(formula)) + ", without a prefix");
            continue;
        }
        if (m_tokens.isInCatalogue(token) || m_tokens.isOfData(token) || m_list.file().ownTokens.count(token) > 0 ||
            isUsed(token))
            continue;
        const std::string nearest = m_tokens.nearestTo(token);
        m_mistakes.add(MistakeCodes::kTokenUnknown, place,
                       "no token " + inQuotes(token) + " is known, nor used in the list: its unit is that of nothing",
                       nearest.empty() ? "take it out" : "did you mean " + inQuotes(nearest) + "?");
    }
}

// MB507 trips on "%Weight": "kNoUnit" in "tokenUnits" and does not on "%Weight": "kWeightUnit". A weight in kilograms
// would be printed as one in pounds, or as a length: under the author's own label, whatever that says.
void TokenRules::findOtherKinds()
{
    VorBomTemplate ofCatalogue;
    ofCatalogue.setUnitsForTokens(nullptr);
    for (const auto& [key, place] : m_list.file().tokenUnitPlaces)
    {
        const VorString token = TotalTokens::datumOf(Utf8::toWide(key));
        const auto type = ofCatalogue.getBomTemplateUnits()->getUnitType(token);
        const UnitKind* const pKind = UnitKinds::find(type);
        if (pKind != nullptr && m_list.file().pTemplate->getBomTemplateUnits()->getUnitType(Utf8::toWide(key)) != type)
            m_mistakes.add(MistakeCodes::kOtherKindThanCatalogue, place,
                           inQuotes(Utf8::toBytes(token)) + " is " + pKind->name + ", which this entry denies",
                           "take it out: lists show " + Utf8::toBytes(token) + " in the reader's unit");
    }
}

// MB502 trips on the columns "Weight" and "%%Weight", which no heading of a parts list turns into, and does not on
// "%Weight". The catalogue's "%%PaintMeter" is found as it is, on purpose: the engine spells it so.
void TokenRules::findMalformedColumn(const CheckedTuple& tuple)
{
    const std::string& token = tuple.token;
    if (tuple.request.kind != TokenRequest::kShow || VorBomDataToken::isToken(Utf8::toWide(token)) == 1 ||
        m_tokens.isInCatalogue(token) || m_tokens.isOfData(token))
        return;
    const std::size_t name = std::min(token.find_first_not_of('%'), token.size());
    m_mistakes.add(MistakeCodes::kColumnTokenMalformed, tuple,
                   inQuotes(token) +
                       " is no token: the column stays blank, as every heading of a parts list gets one %",
                   "write " + inQuotes("%" + token.substr(name)));
}

std::vector<const CheckedTuple*> tuplesThatMayVary(const CheckedTemplate& list, const KnownTokens& tokens)
{
    std::vector<const CheckedTuple*> tuples;
    for (const CheckedTuple* const pTuple : list.tuplesOf(TokenRequest::kShow))
        if (!list.isDeepest(pTuple->level) && list.file().styleOf(pTuple->pSection).isPrinted &&
            tokens.knows(pTuple->token) && !(pTuple->isFooter && tokens.isNumeric(pTuple->token)) &&
            !contains(list.groupTokensDownTo(pTuple->level), pTuple->token) && pTuple->token != TokenNames::kPieces)
            tuples.push_back(pTuple);
    return tuples;
}

// MB503 trips on %Name in the header of groups by %Material, and does not in that of groups by %Material and %Name, nor
// on %Material in that of groups by %PNum. Without data it is told of whatever may vary.
void TokenRules::findVaryingTokens()
{
    for (const CheckedTuple* const pTuple : tuplesThatMayVary(m_list, m_tokens))
        if (!belongsToMark(pTuple->token, m_list.groupTokensDownTo(pTuple->level)))
            m_mistakes.add(MistakeCodes::kTokenVariesInGroup, *pTuple,
                           inQuotes(pTuple->token) + " is no token that the rows are grouped by: the " +
                               typeName(*pTuple->pSection) + " shows that of the " +
                               (pTuple->isFooter ? "last" : "first") + " row",
                           "group by " + pTuple->token + " as well, or show it in the details");
}

// MB504 is a note: it trips on "tokens": { "%Gap": "number" }, whose 25.4 stays 25.4 in a list in inches, and does not
// once "tokenUnits" says that it is a length. It stands at the first tuple that shows or sums the token.
void TokenRules::findNumbersWithoutUnit()
{
    std::set<std::string> seen; // a token is told of once, at the first tuple that asks for it
    for (const CheckedTuple& tuple : m_list.tuples())
    {
        const std::string& token = tuple.request.subject;
        const auto own = m_list.file().ownTokens.find(token);
        if (own != m_list.file().ownTokens.end() && own->second == kOwnNumber &&
            tuple.request.kind != TokenRequest::kFormula && seen.insert(token).second && !m_tokens.hasUnit(token))
            m_mistakes.add(MistakeCodes::kNumberWithoutUnit, tuple,
                           token + " is a number of your own without a unit: it is printed as it is, whatever units "
                                   "are asked for",
                           "give it a kind if it measures something: \"tokenUnits\": { " + inQuotes(token) +
                               ": \"kDistanceUnit\" }");
    }
}

// MB505 trips on "value": 1000.0 under %Width and on "value": 0 under %Name, and does not on "value": 0.0 under %Width:
// a 0 is taken for a width that is missing, but on a column of names it reads like data. What is neither in the
// catalogue nor in the data is a constant of the template, and meant to be the same in all rows.
void TokenRules::findNumberAsData(const CheckedTuple& tuple)
{
    const VorBomDataValue& start = tuple.value();
    const bool isWhole = start.type() == VorBomDataValue::kIntData;
    if (tuple.request.kind != TokenRequest::kShow || !(isWhole || start.type() == VorBomDataValue::kDoubleData))
        return;
    const bool isText = m_tokens.kindOf(tuple.token) == KnownTokens::kText;
    const bool isZero = start.compare(isWhole ? VorBomDataValue(0) : VorBomDataValue(0.0)) == 0;
    const bool isConstant = !m_tokens.isInCatalogue(tuple.token) && !m_tokens.isOfData(tuple.token);
    const std::string shown = Utf8::toBytes(start.asString());
    if (isText)
        m_mistakes.add(MistakeCodes::kNumberAsData, tuple,
                       inQuotes(tuple.token) + " is a text and starts with " + shown +
                           ", which is printed wherever a row lacks the text",
                       "take the \"value\" out, or write \"value\": \"\"");
    else if (!isZero && !isConstant)
        m_mistakes.add(MistakeCodes::kNumberAsData, tuple,
                       inQuotes(tuple.token) + " starts with " + shown +
                           ", which is printed like data wherever a row lacks the number",
                       "take the \"value\" out: the cell stays blank then");
}

// MB503 trips on %Quantity and on "%Formula:%Weight*%Quantity" in a header, and does not in the header of groups by
// %Quantity. Whether or not there are data: three rows of one piece each do not vary, and the header shows 1 for them.
void TokenRules::findPiecesOfFirstRow(const CheckedTuple& tuple)
{
    const bool isComputed = tuple.request.kind == TokenRequest::kFormula;
    if (tuple.isFooter || m_list.isDeepest(tuple.level) || !(isComputed || tuple.request.kind == TokenRequest::kShow) ||
        !contains(dataTokensOf(tuple.request), TokenNames::kPieces) ||
        !m_list.file().styleOf(tuple.pSection).isPrinted ||
        contains(m_list.groupTokensDownTo(tuple.level), TokenNames::kPieces))
        return;
    m_mistakes.add(MistakeCodes::kTokenVariesInGroup, tuple,
                   inQuotes(tuple.token) + " counts the pieces of one row: the " + typeName(*tuple.pSection) +
                       " shows those of the first row, and not of all rows below it",
                   "write " + inQuotes("%SumBy:" + tuple.token) + " in its footer" +
                       (isComputed ? ", and the formula in the details" : ""));
}
}
