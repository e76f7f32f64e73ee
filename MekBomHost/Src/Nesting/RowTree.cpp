// Only handles that are named as parents are looked up, so that a list of a million rows and a thousand assemblies
// takes a table of a thousand. Of rows that stand in any order a parent is counted before its parts: from each row the
// way leads upwards until a row that has been there, and is then gone back.
//
//   rows    P1 (parent A1), A1 (parent T1), T1, P2 (parent A1)
//   P1      up to A1 and T1          ->  ordered T1, A1, P1
//   P2      up to A1, ordered        ->  ordered P2
#include "RowTree.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "NumberText.h"
#include "RowRemoval.h"
#include "TokenNames.h"
#include "Utf8.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace mekbom
{
namespace
{
const double kMostDeviation = 0.05;

std::wstring_view viewOf(const VorString& text)
{
    return std::wstring_view(text.getStringW(), static_cast<std::size_t>(text.length()));
}

// Null for a row that names no parent.
const VorString* parentOf(const VorBomDataRow& row, const VorString& token)
{
    const VorBomDataTuple* const pTuple = row.getTupleAt(token);
    const bool isText = pTuple != nullptr && pTuple->value().type() == VorBomDataValue::kStringData;
    return isText ? static_cast<const VorString*>(pTuple->value().data()) : nullptr;
}

std::string weightText(double weight)
{
    return listedText(weight, { 2, false, false }) + " kg";
}

// "row 3", "row 3 and 2 others"
std::string rowsText(std::size_t firstRow, std::size_t number)
{
    const std::string text = "row " + std::to_string(firstRow + 1);
    return number == 1 ? text : text + " and " + std::to_string(number - 1) + (number == 2 ? " other" : " others");
}
}

RowTree::RowTree(VorBomData& data) : m_data(data), m_weightToken(L"%Weight")
{
    const VorString piecesToken = TokenNames::kWidePieces;
    for (VorBomItemBase* pItem = data.child(); pItem != nullptr; pItem = pItem->next())
    {
        Row row{ static_cast<VorBomDataRow*>(pItem) };
        if (const VorBomDataTuple* const pPieces = pItem->getTupleAt(piecesToken))
            row.piecesEach = *static_cast<const int*>(pPieces->value().data());
        m_rows.push_back(row);
    }
    findParents();
}

void RowTree::findParents()
{
    const VorString token = TokenNames::kWideParent;
    Parents parents;
    for (const Row& row : m_rows)
        if (const VorString* const pParent = parentOf(*row.pRow, token))
            parents.emplace(viewOf(*pParent), kNone);
    if (parents.empty())
        return;
    findRowsOf(parents);
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        if (const VorString* const pParent = parentOf(*m_rows[i].pRow, token))
        {
            m_rows[i].parent = parents.at(viewOf(*pParent));
            if (m_rows[i].parent == kNone)
                m_strays.push_back(i);
            else
                m_rows[m_rows[i].parent].isParent = true;
        }
}

void RowTree::findRowsOf(Parents& parents)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i)
    {
        const auto found = parents.find(viewOf(m_rows[i].pRow->objectHandle()));
        if (found == parents.end())
            continue;
        if (found->second == kNone)
            found->second = i;
        else if (m_firstTwin == kNone)
            m_firstTwin = i;
    }
}

std::optional<Finding> RowTree::nesting() const
{
    const auto isPart = [](const Row& row) { return row.parent != kNone; };
    const auto first = std::find_if(m_rows.begin(), m_rows.end(), isPart);
    if (first == m_rows.end())
        return std::nullopt;
    const auto number = static_cast<std::size_t>(std::count_if(first, m_rows.end(), isPart));
    const auto row = static_cast<std::size_t>(first - m_rows.begin());
    Finding finding = Finding::stating(FindingCodes::kRowsWithinRows,
                                       rowsText(row, number) + (number == 1 ? " is a part" : " are parts") +
                                           " of another row, such as " + nameOf(first->parent));
    finding.remedy = "give --flatten to multiply pieces along parents, or --map if the column means something else";
    return finding;
}

std::optional<Finding> RowTree::multiply(const PieceChoices& choices, bool showsFactors)
{
    if (auto mistake = checkParents())
        return mistake;
    if (auto mistake = order())
        return mistake;
    if (auto mistake = count(choices.numSets))
        return mistake;
    setPieces(choices.numSets, showsFactors);
    return std::nullopt;
}

// Of two rows of one handle nobody knows to which a part belongs.
std::optional<Finding> RowTree::checkParents() const
{
    if (!m_strays.empty())
    {
        const VorString& parent = *parentOf(*m_rows[m_strays.front()].pRow, TokenNames::kWideParent);
        return Finding::of(FindingCodes::kParentUnknown,
                           inQuotes(Utf8::toBytes(parent)) + " in " + rowsText(m_strays.front(), m_strays.size()),
                           "the handle of a row, or nothing");
    }
    if (m_firstTwin == kNone)
        return std::nullopt;
    Finding finding = Finding::stating(FindingCodes::kParentTwice,
                                       "rows name a parent that several rows are, one of them " + nameOf(m_firstTwin));
    finding.remedy = "give each row a handle of its own";
    return finding;
}

std::optional<Finding> RowTree::order()
{
    m_order.reserve(m_rows.size());
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        if (auto mistake = orderUpFrom(row))
            return mistake;
    return std::nullopt;
}

// A way upwards that is longer than there are rows still to be ordered has come to one of them twice.
std::optional<Finding> RowTree::orderUpFrom(std::size_t row)
{
    m_path.clear();
    const std::size_t numLeft = m_rows.size() - m_order.size();
    for (std::size_t next = row; next != kNone && !m_rows[next].isOrdered; next = m_rows[next].parent)
    {
        if (m_path.size() == numLeft)
            return Finding::of(FindingCodes::kParentsInCircle, nameOf(next) + " as a part of itself",
                               "parents that lead to a row without one");
        m_path.push_back(next);
    }
    for (; !m_path.empty(); m_path.pop_back())
    {
        m_rows[m_path.back()].isOrdered = true;
        m_order.push_back(m_path.back());
    }
    return std::nullopt;
}

// A product of two whole numbers of 32 bits has room in 64.
std::optional<Finding> RowTree::count(int numSets)
{
    for (const std::size_t i : m_order)
    {
        Row& row = m_rows[i];
        if (row.isParent && row.piecesEach < 0)
            return Finding::of(FindingCodes::kTooFewPieces,
                               std::to_string(row.piecesEach) + " pieces of " + nameOf(i) + ", which has parts",
                               "0 or more");
        row.pieces = row.piecesEach * (row.parent == kNone ? std::int64_t{ numSets } : m_rows[row.parent].pieces);
        if (row.pieces > std::numeric_limits<int>::max() || row.pieces < std::numeric_limits<int>::min())
            return Finding::of(FindingCodes::kTooManyPieces, std::to_string(row.pieces) + " pieces of " + nameOf(i),
                               "at most 2147483647");
        if (row.parent != kNone)
            row.multiplier = m_rows[row.parent].piecesEach != 1 ? row.parent : m_rows[row.parent].multiplier;
    }
    return std::nullopt;
}

void RowTree::setPieces(int numSets, bool showsFactors)
{
    const VorString piecesToken = TokenNames::kWidePieces;
    const VorString factorsToken = TokenNames::kWideFactors;
    for (const Row& row : m_rows)
    {
        if (row.isParent)
            continue;
        if (VorBomDataTuple* const pPieces = row.pRow->getTupleAt(piecesToken))
            pPieces->value().set(static_cast<int>(row.pieces));
        if (showsFactors)
            row.pRow->addData(VorBomDataTuple(factorsToken, factorsOf(row, numSets)));
    }
}

// Parents of one piece leave no trace, so that there are at most 31 factors however deep a row lies: more would be more
// pieces than count() lets pass. Only 0 can be multiplied for ever.
VorString RowTree::factorsOf(const Row& row, int numSets) const
{
    if (row.pieces == 0)
        return L"0";
    std::wstring text = std::to_wstring(row.piecesEach);
    for (std::size_t i = row.multiplier; i != kNone; i = m_rows[i].multiplier)
        text.insert(0, std::to_wstring(m_rows[i].piecesEach) + L" \u00D7 ");
    if (numSets != 1)
        text.insert(0, std::to_wstring(numSets) + L" \u00D7 ");
    return VorString(text.c_str());
}

// Parts come behind their parents in the order, so that from its end on each weight is whole before it is added.
std::optional<Finding> RowTree::weighingElse() const
{
    std::vector<double> ofParts(m_rows.size()); // in kg, as all weights of a model
    std::vector<std::size_t> wrongRows;
    for (auto i = m_order.rbegin(); i != m_order.rend(); ++i)
    {
        const Row& row = m_rows[*i];
        const std::optional<double> weight = weightOf(*row.pRow);
        if (!row.isParent)
            ofParts[*i] = weight.value_or(0);
        else if (weight && std::abs(ofParts[*i] - *weight) > kMostDeviation * std::abs(*weight))
            wrongRows.push_back(*i);
        if (row.parent != kNone)
            ofParts[row.parent] += row.piecesEach * ofParts[*i];
    }
    if (wrongRows.empty())
        return std::nullopt;
    const std::size_t row = *std::min_element(wrongRows.begin(), wrongRows.end());
    Finding finding = Finding::stating(
        FindingCodes::kParentWeighsElse,
        rowsText(row, wrongRows.size()) + (wrongRows.size() == 1 ? " does" : " do") +
            " not weigh what the parts weigh: " + inQuotes(Utf8::toBytes(m_rows[row].pRow->objectHandle())) + " " +
            weightText(*weightOf(*m_rows[row].pRow)) + ", its parts " + weightText(ofParts[row]));
    finding.remedy = "parts are listed in place of their parents; what a parent has beside them needs a row of its own";
    return finding;
}

std::optional<double> RowTree::weightOf(const VorBomDataRow& row) const
{
    const VorBomDataTuple* const pWeight = row.getTupleAt(m_weightToken);
    if (pWeight == nullptr || pWeight->value().type() != VorBomDataValue::kDoubleData)
        return std::nullopt;
    return *static_cast<const double*>(pWeight->value().data());
}

int RowTree::removeParents()
{
    std::size_t i = 0;
    return RowRemoval::keepOnly(m_data, [this, &i](const VorBomDataRow&) { return !m_rows[i++].isParent; });
}

// "row 3 \"A1\"", with the handle
std::string RowTree::nameOf(std::size_t row) const
{
    return "row " + std::to_string(row + 1) + " " + inQuotes(Utf8::toBytes(m_rows[row].pRow->objectHandle()));
}
}
