// Grouped by %Name, with a header that shows %Material and %Weight, rows as they stand in the file:
//
//   row 1   HEA200  S235  10 kg    the first of its group, kept
//   row 2   IPE360  S355  20 kg    the first of its group, kept
//   row 3   HEA200  S355  10 kg    is compared with row 1: %Material varies, "S235, S355"; %Weight does not
//
// Only the first two values are told. Once everything that is watched varies, no further row is looked at.
#include "VaryingRule.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "Utf8.h"

#include <cmath>
#include <cstring>

namespace mekbom
{
namespace
{
// The steps of the FNV-1a hash, over whole characters and numbers in place of bytes.
const std::uint64_t kStart = 14695981039346656037ull;
const std::uint64_t kFactor = 1099511628211ull;

const double kTolerance = 0.005; // half of the second decimal, in the model's unit

void mix(std::uint64_t& hash, std::uint64_t value)
{
    hash = (hash ^ value) * kFactor;
    hash ^= hash >> 29; // lets high bits count in low ones, too
}

// Numbers count by their bits, so that 0.1 and 0.1 + 1e-9, which the engine takes for one group, are two here: a datum
// that differs between just these two is not told.
void mixValue(std::uint64_t& hash, const VorBomDataValue& value)
{
    mix(hash, static_cast<std::uint64_t>(value.type()));
    if (value.type() == VorBomDataValue::kIntData)
        mix(hash, static_cast<std::uint64_t>(*static_cast<const int*>(value.data())));
    if (value.type() == VorBomDataValue::kDoubleData)
    {
        std::uint64_t bits = 0;
        std::memcpy(&bits, value.data(), sizeof bits);
        mix(hash, bits);
    }
    if (value.type() == VorBomDataValue::kStringData)
        for (const wchar_t* p = static_cast<const VorString*>(value.data())->getStringW(); *p != 0; ++p)
            mix(hash, static_cast<std::uint64_t>(*p));
}

bool areClose(const VorBomDataValue& first, const VorBomDataValue& second, double tolerance)
{
    return first.type() == VorBomDataValue::kDoubleData && second.type() == VorBomDataValue::kDoubleData &&
           std::abs(*static_cast<const double*>(first.data()) - *static_cast<const double*>(second.data())) < tolerance;
}

// What both rows lack is the same; what one of them lacks is not, as the other's value is shown for both.
bool isSame(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond, double tolerance)
{
    if (pFirst == nullptr || pSecond == nullptr)
        return pFirst == pSecond;
    const VorBomDataValue& first = pFirst->value();
    const VorBomDataValue& second = pSecond->value();
    return first.type() == second.type() && (first.type() == VorBomDataValue::kUnknownData ||
                                             first.compare(second) == 0 || areClose(first, second, tolerance));
}

std::string textOf(const VorBomDataTuple* pTuple)
{
    return pTuple == nullptr ? "nothing" : Utf8::toBytes(pTuple->value().asString());
}
}

VaryingRule::VaryingRule(const std::vector<std::string>& groupTokens, const std::vector<const CheckedTuple*>& tuples,
                         const KnownTokens& tokens)
{
    for (const std::string& token : groupTokens)
        m_groupTokens.push_back(Utf8::toWide(token));
    for (const CheckedTuple* const pTuple : tuples)
    {
        const double tolerance = tokens.hasUnit(pTuple->token) ? kTolerance : 0;
        m_watched.push_back({ pTuple, Utf8::toWide(pTuple->token), tolerance, std::string() });
    }
}

void VaryingRule::see(const VorBomDataRow& row)
{
    if (m_numVarying == m_watched.size())
        return;
    const auto [entry, isFirst] = m_firstRows.emplace(groupOf(row), &row);
    if (isFirst)
        return;
    for (Watched& watched : m_watched)
    {
        if (!watched.values.empty())
            continue;
        const VorBomDataTuple* const pFirst = entry->second->getTupleAt(watched.token);
        const VorBomDataTuple* const pOther = row.getTupleAt(watched.token);
        if (isSame(pFirst, pOther, watched.tolerance))
            continue;
        watched.values = textOf(pFirst) + ", " + textOf(pOther);
        ++m_numVarying;
    }
}

// A token that the row lacks counts, too: rows without %Phase are a group of their own.
std::uint64_t VaryingRule::groupOf(const VorBomDataRow& row) const
{
    std::uint64_t hash = kStart;
    for (const VorString& token : m_groupTokens)
    {
        const VorBomDataTuple* const pTuple = row.getTupleAt(token);
        mix(hash, pTuple == nullptr ? 0 : 1);
        if (pTuple != nullptr)
            mixValue(hash, pTuple->value());
    }
    return hash;
}

void VaryingRule::tell(MistakeList& mistakes) const
{
    for (const Watched& watched : m_watched)
        if (!watched.values.empty())
            mistakes.add(MistakeCodes::kTokenVariesInGroup, *watched.pTuple,
                         inQuotes(watched.pTuple->token) + " varies: " + watched.values + "; the " +
                             typeName(*watched.pTuple->pSection) + " shows that of the " +
                             (watched.pTuple->isFooter ? "last" : "first") + " row of a group",
                         "group by " + watched.pTuple->token + " as well, or show it in the details");
}
}
