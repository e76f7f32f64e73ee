// Parsing needs the text alone; whether "6 m" may be compared with %Length, and that it is 6000, needs to know what
// kind of quantity a length is and what the rows hold. So a filter is read with the template and settled with the rows:
//
//   parse    "%Length > 6 m"     condition  %Length  kGreater  operand "6 m"
//   settle   %Length is a length                                number 6000
//   apply    a row of 5700 mm    sign -1, not accepted: the row goes
#include "RowFilter.h"

#include "ConditionReader.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "InputUnits.h"
#include "NumberReader.h"
#include "RowRemoval.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomTokenCatalogue.h"

#include "MekRoots/Exp/VorCharacters.h"
#include "MekUnits/Src/VorQuantityReader.h"

#include <algorithm>

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

// Whether numbers of that kind mean the model's unit when they name none: nobody means mm2 or kg/mm.
bool meansModelUnit(Units::eTokenUnitType kind)
{
    const UnitKind* const pKind = UnitKinds::find(kind);
    return pKind == nullptr || *pKind->usualUnit == 0;
}

// kUnknownData for a token of the user's own, of which only the rows tell what it holds.
VorBomDataValue::eBomDataValueType typeInCatalogue(const VorString& token)
{
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(token);
    return pEntry == nullptr ? VorBomDataValue::kUnknownData : pEntry->type;
}

// A number without a unit, or with one of the kind that the token has. A plain number of a kind that must name its unit
// is not handed to the reader of quantities, which would take "6000" for 6000 mm2.
bool readNumber(const RowCondition& condition, Units::eTokenUnitType kind, double& number)
{
    const std::optional<MEKUnit> unit = InputUnits::ofModel(kind);
    double plain = 0;
    const bool isPlain = NumberReader::read(condition.operand, plain);
    if (isPlain && meansModelUnit(kind))
    {
        number = plain;
        return true;
    }
    return unit && !isPlain && VorQuantityReader(unit->unit()).read(Utf8::toWide(condition.operand), number) == 1;
}

// "a number with or without a unit of distance such as mm, m, in or ft for %Length"
std::string numberExpected(const RowCondition& condition, Units::eTokenUnitType kind)
{
    const std::string token = Utf8::toBytes(condition.token);
    if (!InputUnits::ofModel(kind))
        return "a number, which is what " + token + " is";
    return std::string(meansModelUnit(kind) ? "a number with or without " : "a number with ") +
           InputUnits::expectation(kind) + " for " + token;
}

// A number in quotes is refused, though it could be read: its author wants a text compared, and would get a number.
std::optional<Finding> settleNumber(RowCondition& condition, Units::eTokenUnitType kind)
{
    condition.isNumber = true;
    if (!condition.isQuoted && readNumber(condition, kind, condition.number))
        return std::nullopt;
    Finding finding =
        Finding::of(FindingCodes::kNoQueryFilter, inQuotes(condition.operand), numberExpected(condition, kind));
    if (condition.isQuoted)
        finding.remedy = "numbers stand without quotes";
    return finding;
}

// A column of the user's own in which one cell is no number holds texts, and "0.25" comes behind "10" among these.
std::optional<Finding> refuseNumberAmongTexts(const RowCondition& condition)
{
    const bool isOrdering =
        condition.comparison != RowCondition::kEqual && condition.comparison != RowCondition::kUnequal;
    double number = 0;
    if (!isOrdering || condition.isQuoted || typeInCatalogue(condition.token) != VorBomDataValue::kUnknownData ||
        !NumberReader::read(condition.operand, number))
        return std::nullopt;
    Finding finding =
        Finding::of(FindingCodes::kNoQueryFilter, "the number " + condition.operand,
                    "a text in quotes, since some cells of " + Utf8::toBytes(condition.token) + " are no numbers");
    finding.remedy = "mend these cells, or have the template say \"tokens\": { " +
                     inQuotes(Utf8::toBytes(condition.token)) + ": \"number\" } to be told of them";
    return finding;
}
}

// `filter` is set at the end, so that a text with a mistake leaves it as it was.
std::optional<Finding> RowFilter::parse(std::string_view text, RowFilter& filter)
{
    RowFilter parsed;
    parsed.m_text = VorCharacters::trimmed(text, " \t\r\n");
    if (!parsed.m_text.empty())
    {
        ConditionReader reader(parsed.m_text);
        if (std::optional<Finding> finding = reader.read())
            return finding;
        parsed.m_conditions = reader.conditions();
        parsed.m_steps = reader.steps();
    }
    filter = parsed;
    return std::nullopt;
}

std::vector<VorString> RowFilter::tokens() const
{
    std::vector<VorString> tokens;
    for (const RowCondition& condition : m_conditions)
        tokens.push_back(condition.token);
    return tokens;
}

bool RowFilter::names(const VorString& token) const
{
    return std::any_of(m_conditions.begin(), m_conditions.end(),
                       [&token](const RowCondition& condition) { return condition.token == token; });
}

// A token that the catalogue does not know is what its values are. One without values stays a comparison of texts,
// which no row meets but by kUnequal, since none has the datum.
std::optional<Finding> RowFilter::settle(const VorBomTemplateUnits& units, const TypeOf& typeOf)
{
    for (RowCondition& condition : m_conditions)
    {
        if (condition.comparison == RowCondition::kIsThere)
            continue;
        VorBomDataValue::eBomDataValueType type = typeInCatalogue(condition.token);
        if (type == VorBomDataValue::kUnknownData)
            type = typeOf(condition.token);
        condition.text = Utf8::toWide(condition.operand);
        if (type == VorBomDataValue::kStringData)
            if (auto finding = refuseNumberAmongTexts(condition))
                return finding;
        if (type == VorBomDataValue::kStringData || type == VorBomDataValue::kUnknownData)
            continue;
        const bool isWhole = type == VorBomDataValue::kIntData; // whole numbers take no units
        if (auto finding = settleNumber(condition, isWhole ? Units::kNoUnit : units.getUnitType(condition.token)))
            return finding;
    }
    return std::nullopt;
}

// Takes the rows off and puts those back that stay, so that no row has to know the one before it. A row goes with what
// is below it: empty() frees that, without recursion over siblings.
int RowFilter::apply(VorBomData& data) const
{
    if (m_conditions.empty())
        return 0;
    std::vector<bool> answers;
    return RowRemoval::keepOnly(data, [&](const VorBomDataRow& row) { return accepts(row, answers); });
}

// `answers` is a stack, which is the same one for all rows so that none of them takes memory.
bool RowFilter::accepts(const VorBomDataRow& row, std::vector<bool>& answers) const
{
    answers.clear();
    for (const FilterStep& step : m_steps)
    {
        if (step.action == FilterStep::kCondition)
        {
            answers.push_back(m_conditions[step.condition].isMetBy(row));
            continue;
        }
        const bool last = answers.back();
        if (step.action == FilterStep::kNot)
        {
            answers.back() = !last;
            continue;
        }
        answers.pop_back();
        answers.back() = step.action == FilterStep::kAnd ? answers.back() && last : answers.back() || last;
    }
    return answers.back();
}
}
