#include "SheetColumn.h"

#include "NumberInValue.h"
#include "SheetPen.h"

#include <cmath>

namespace mekbom
{
namespace
{
const int kDecimalsBeside = 4; // a ten-thousandth of a foot is finer than the finest fraction of an inch but one
}

SheetColumn::SheetColumn(const ReportColumn& column)
    : m_column(column),
      m_heading(column.heading()),
      m_textLimit(column.width > 0 ? column.width : SheetPen::kUsualLimit)
{
}

// Whatever the unit, SheetNumber holds the value against the text: one in another unit than is printed is not taken.
std::optional<SheetNumber> SheetColumn::numberIn(const ShownText& text, const VorBomTypedValue& value) const
{
    if (!holdsNumber(value.type) || hasNumbersBeside() || m_column.hasMixedUnits)
        return std::nullopt;
    return SheetNumber::of(text.view(), m_column.numbers.of(value));
}

std::string SheetColumn::besideHeading() const
{
    const std::string beside = m_column.headingOfNumbers();
    return beside == m_heading ? beside + " (decimal)" : beside;
}

std::optional<SheetNumber> SheetColumn::numberBeside(const VorBomTypedValue& value) const
{
    if (!holdsNumber(value.type))
        return std::nullopt;
    const double number = m_column.numbers.of(value);
    return std::isfinite(number) ? std::optional(SheetNumber{ number, kDecimalsBeside, 1 }) : std::nullopt;
}
}
