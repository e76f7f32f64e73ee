// A line is appended to those of its group before it is known whether there is one that reads alike, so that both are
// compared in the same place; if there is, its numbers are added to that one, and it goes.
//
//   columns %Name, %Quantity        group so far  P1 2, P2 1
//   line    P1 1                    appended:     P1 2, P2 1, P1 1
//   m_index.insert(2)               says 0:       P1 3, P2 1
//
// A set that has held many lines is not cleared but replaced: clearing takes time for all the room that it once needed,
// and a group of a hundred thousand lines may be followed by as many of one.
#include "EqualLines.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "NumberInValue.h"
#include "NumberText.h"
#include "PieceTokens.h"
#include "TextOfNumber.h"
#include "TotalTokens.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include "MekUnits/Src/VorUnitDefinition.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <string_view>

namespace mekbom
{
namespace
{
// Whether a footer shows the sum of what stands under the token, be it printed or not. Where it shows the greatest one, or
// a mean, the value of a line stays that of one piece.
bool isSummed(const ReportTemplate& reportTemplate, const VorString& token)
{
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
        for (int i = 0; pHeader->next() != nullptr && i < pHeader->next()->getData().length(); ++i)
        {
            const VorString shown = reportTemplate.shownTokenOf(*pHeader->next(), i);
            if (TotalTokens::isSum(shown) && TotalTokens::datumOf(shown) == token)
                return true;
        }
    return false;
}

// Numbers of a model differ by less than that for no reason that an author would care about.
bool areClose(double number, double other)
{
    constexpr double kTolerance = 1e-3; // of the greater one; arbitrary
    return std::fabs(number - other) <= kTolerance * std::max(std::fabs(number), std::fabs(other));
}

// "9.5 mm"
std::string inModelUnit(const VorBomTypedValue& value)
{
    const UnitKind* const pKind = UnitKinds::find(value.unitType);
    const std::string text = numberText(value.number);
    return pKind == nullptr
               ? text
               : text + " " + Utf8::toBytes(VorUnitsTransformArray::findUnitOfModel(pKind->system)->symbol);
}

std::size_t hashOfText(const VorString& text)
{
    return std::hash<std::wstring_view>()({ text.getStringW(), static_cast<std::size_t>(text.length()) });
}
}

// The lines to be counted are the details, which is the section that no other is below of. They stay as they are, with
// m_level at -1, where they are no details, have a footer of their own, which would be that of one line, or print
// nothing. What becomes of each column follows from its token alone: rule 1 of the header, 2, or 3.
EqualLines::EqualLines(const ReportTemplate& reportTemplate, VorBomSectionSink& next)
    : SectionRelay(next, kTypedValues | kEqualLines),
      m_fileName(reportTemplate.fileName),
      m_units(*reportTemplate.pTemplate->getBomTemplateUnits()),
      m_index(noLines())
{
    int level = 0;
    const VorBomItemBase* pLine = reportTemplate.pTemplate->child();
    for (; pLine != nullptr && pLine->child() != nullptr; pLine = pLine->child())
        ++level;
    const auto* const pDetails = static_cast<const VorBomTemplateItem*>(pLine); // children of sections are sections
    if (pDetails == nullptr || pDetails->type() != VorBomTemplateItem::kDetails || pDetails->next() != nullptr ||
        !reportTemplate.hasLine(*pDetails))
        return;
    m_level = level;
    for (const VorBomDataTuple& tuple : pDetails->getData())
    {
        const VorString& token = tuple.token().token();
        const bool growsInStep = PieceTokens::growWithPieces(token);
        m_columns.push_back({ growsInStep || isSummed(reportTemplate, token), !growsInStep,
                              reportTemplate.pTemplate->numberFormat(*pDetails, static_cast<int>(m_columns.size())),
                              reportTemplate.placeOfTuple(*pDetails, static_cast<int>(m_columns.size())) });
    }
}

// Anything else than a line ends the group: the header of the next one, or a footer, before which its lines have to
// stand.
void EqualLines::takeHeader(const VorBomReportSection& header)
{
    if (header.level == m_level)
        return take(header);
    handOn();
    SectionRelay::takeHeader(header);
}

void EqualLines::takeFooter(const VorBomReportSection& footer)
{
    handOn();
    SectionRelay::takeFooter(footer);
}

void EqualLines::finish()
{
    handOn();
}

// The first line of all gives the section that lines are handed on in; its texts are overwritten for each of them.
void EqualLines::take(const VorBomReportSection& line)
{
    if (m_pShown == nullptr)
        m_pShown = std::make_unique<VorBomTemplateItem>(line.section);
    m_pTemplateSection = line.pTemplateSection;
    append(line);
    const auto [place, isNew] = m_index.insert(m_lines.size() - 1);
    if (!isNew)
        addLastTo(*place);
}

// Copies of a text share its characters. Values are copied as well, since those of the engine are good for one call
// only.
void EqualLines::append(const VorBomReportSection& line)
{
    m_lines.push_back({ line.pRow, {} });
    const VorBomDataTuple* pTuple = line.section.getData().begin();
    for (std::size_t i = 0; i < m_columns.size(); ++i, ++pTuple)
        m_texts.push_back(pTuple->value().asString());
    m_values.insert(m_values.end(), line.pValues, line.pValues + m_columns.size());
}

// Both read alike, so that of a column that is added up both have a number or neither has. Whole numbers stay whole
// until a double is added, and a double stays one. The text stays that of the first line until it is handed on: the
// next one has to read like that, and not like the sum.
void EqualLines::addLastTo(std::size_t line)
{
    const std::size_t numColumns = m_columns.size();
    VorBomTypedValue* pSum = m_values.data() + line * numColumns;
    const VorBomTypedValue* pAdded = m_values.data() + (m_lines.size() - 1) * numColumns;
    for (std::size_t i = 0; i < numColumns; ++i, ++pSum, ++pAdded)
    {
        if (!m_columns[i].isAdded && !m_columns[i].isFound && !areClose(pSum->number, pAdded->number))
            addRounding(line, i, *pAdded);
        if (!m_columns[i].isAdded || !holdsNumber(pSum->type))
            continue;
        pSum->number += pAdded->number;
        pSum->whole += pAdded->whole;
        if (pAdded->type == VorBomDataValue::kDoubleData)
            *pSum = { pAdded->type, pAdded->unitType, pSum->number };
    }
    m_lines[line].otherRows.push_back(m_lines.back().pRow);
    m_lines.pop_back();
    m_texts.resize(m_texts.size() - numColumns);
    m_values.resize(m_values.size() - numColumns);
    ++m_numRowsAdded;
}

void EqualLines::addRounding(std::size_t line, std::size_t column, const VorBomTypedValue& other)
{
    Column& rounded = m_columns[column];
    rounded.isFound = true;
    const std::size_t shown = line * m_columns.size() + column;
    Finding finding =
        Finding::stating(MistakeCodes::kRoundedAlike,
                         "lines with " + inModelUnit(m_values[shown]) + " and " + inModelUnit(other) +
                             " are counted as one: both are shown as " + inQuotes(Utf8::toBytes(m_texts[shown])))
            .in(m_fileName, rounded.place.span);
    finding.path = rounded.place.path;
    finding.remedy = "show the column more precisely, with \"decimals\" or a \"unit\" such as \"mm/2\" of its own";
    m_findings.push_back(finding);
}

void EqualLines::handOn()
{
    if (m_lines.empty())
        return;
    for (std::size_t line = 0; line < m_lines.size(); ++line)
        handOn(line);
    m_index = noLines();
    m_lines.clear();
    m_texts.clear();
    m_values.clear();
}

// A line of one row shows the engine's own texts, whatever made them; only sums are shown anew.
void EqualLines::handOn(std::size_t line)
{
    const std::size_t first = line * m_columns.size();
    const bool isSum = !m_lines[line].otherRows.empty();
    VorBomDataTuple* pTuple = m_pShown->getData().begin();
    for (std::size_t i = first; i < first + m_columns.size(); ++i, ++pTuple)
        if (isSum && m_columns[i - first].isAdded && holdsNumber(m_values[i].type))
            pTuple->value().set(textOfNumber(m_values[i], m_columns[i - first].pFormat, m_units));
        else
            pTuple->value().set(m_texts[i]);
    SectionRelay::takeHeader(
        { *m_pShown, m_level, m_lines[line].pRow, {}, m_values.data() + first, nullptr, m_pTemplateSection });
    for (const VorBomDataRow* const pRow : m_lines[line].otherRows)
        SectionRelay::takeMergedRow(*pRow);
}

// Of the same columns that readAlike() compares. That one column has a number and the other none is left to
// readAlike().
std::size_t EqualLines::hashOf(std::size_t line) const
{
    const std::size_t first = line * m_columns.size();
    std::size_t hash = 0;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (tellsApart(i, m_values[first + i]))
            hash = hash * 31 + hashOfText(m_texts[first + i]);
    return hash;
}

bool EqualLines::readAlike(std::size_t first, std::size_t second) const
{
    const std::size_t numColumns = m_columns.size();
    for (std::size_t i = 0; i < numColumns; ++i)
    {
        const VorBomTypedValue& value = m_values[first * numColumns + i];
        const VorBomTypedValue& other = m_values[second * numColumns + i];
        if (m_columns[i].isAdded && holdsNumber(value.type) != holdsNumber(other.type))
            return false;
        if (tellsApart(i, value) && m_texts[first * numColumns + i] != m_texts[second * numColumns + i])
            return false;
    }
    return true;
}

// Whether lines that differ in the value are different lines. Of what is merely added up a number does not tell them
// apart, but whatever stands where there is none does: "n/a" is no piece.
bool EqualLines::tellsApart(std::size_t column, const VorBomTypedValue& value) const
{
    return m_columns[column].mustReadAlike || !holdsNumber(value.type);
}
}
