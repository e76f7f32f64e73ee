#include "ValueTally.h"

#include "NumberInValue.h"
#include "PieceTokens.h"
#include "TokenNames.h"

#include <algorithm>
#include <optional>

namespace mekbom
{
namespace
{
bool isEmpty(const VorBomDataValue& value)
{
    return value.type() == VorBomDataValue::kUnknownData ||
           (value.type() == VorBomDataValue::kStringData &&
            static_cast<const VorString*>(value.data())->isEmpty() == 1);
}
}

ValueTally::ValueTally(const VorString& datum)
    : m_datum(datum), m_pieces(TokenNames::kWidePieces), m_isOfPieces(isMeanOfPieces(datum))
{
}

bool ValueTally::isMeanOfPieces(const VorString& datum)
{
    return !PieceTokens::growWithPieces(datum);
}

// A row that does not say how many pieces it stands for stands for one.
void ValueTally::add(const VorBomDataRow& row)
{
    const VorBomDataTuple* const pDatum = m_datum.findIn(row);
    if (pDatum == nullptr || isEmpty(pDatum->value()))
        return;
    ++m_values.count;
    const std::optional<double> number = numberIn(pDatum->value());
    if (!number)
        return;
    const VorBomDataTuple* const pPieces = m_isOfPieces ? m_pieces.findIn(row) : nullptr;
    const double pieces = pPieces == nullptr ? 1 : numberIn(pPieces->value()).value_or(1);
    Values& values = m_values;
    values.least = values.numNumbers == 0 ? *number : std::min(values.least, *number);
    values.greatest = values.numNumbers == 0 ? *number : std::max(values.greatest, *number);
    values.areWhole = values.areWhole && pDatum->value().type() == VorBomDataValue::kIntData;
    values.sum.add(*number * pieces);
    values.divisor.add(pieces);
    ++values.numNumbers;
}

VorBomTypedValue ValueTally::totalOf(ColumnTotal::eKind kind) const
{
    const auto typed = [](VorBomDataValue::eBomDataValueType type, double number) {
        return VorBomTypedValue{ type, VorBomTemplateUnits::kNoUnit, number };
    };
    const VorBomDataValue::eBomDataValueType type =
        m_values.areWhole ? VorBomDataValue::kIntData : VorBomDataValue::kDoubleData;
    if (kind == ColumnTotal::kCount)
        return typed(VorBomDataValue::kIntData, m_values.count);
    if (m_values.numNumbers == 0)
        return {};
    if (kind == ColumnTotal::kLeast)
        return typed(type, m_values.least);
    if (kind == ColumnTotal::kGreatest)
        return typed(type, m_values.greatest);
    if (m_values.divisor.value() == 0)
        return {};
    return typed(VorBomDataValue::kDoubleData, static_cast<double>(m_values.sum.value() / m_values.divisor.value()));
}
}
