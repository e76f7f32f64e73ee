// The summands of a total must be shown as the total is, which may not be how the list shows them elsewhere: in a
// column "unit": "t/3" a weight of 260.61 kg is 0.261, though the details show 260.61. So texts are made as the
// evaluation makes those of the very tuple that holds the total, and are read back in the unit of its column.
#include "ListNumbers.h"

#include "ColumnUnit.h"
#include "InputUnits.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomNumberFormat.h"

#include "MekUnits/Src/VorQuantityReader.h"

#include <charconv>
#include <string_view>

namespace mekbom
{
namespace
{
// "1 234.5"  ->  "1234.5"
std::string withoutBlanks(std::string_view text)
{
    std::string tight;
    for (const char c : text)
        if (c != ' ')
            tight += c;
    return tight;
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}
}

ListNumbers::ListNumbers(const ExplainedReport& report, const VorBomTemplateItem& section, int tuple,
                         const VorBomTypedValue& shown, const ReportColumn& column)
    : m_report(report), m_section(section), m_tuple(tuple), m_shown(shown)
{
    const UnitKind* const pKind =
        shown.type == VorBomDataValue::kDoubleData ? UnitKinds::find(shown.unitType) : nullptr;
    if (pKind == nullptr)
        return;
    m_unit = ColumnUnit::of(report.reportTemplate.columnStyleOf(column.token), *pKind, report.units);
    m_symbol = ColumnUnit::symbolOf(*m_unit);
}

// As the evaluation does it: a format of the template's own comes before the unit, and a whole number has no unit.
std::string ListNumbers::textOf(double number) const
{
    const bool isWhole = m_shown.type == VorBomDataValue::kIntData;
    VorBomTemplate& engineTemplate = *m_report.reportTemplate.pTemplate;
    if (const VorBomNumberFormat* const pFormat = engineTemplate.numberFormat(m_section, m_tuple))
        return Utf8::toBytes(isWhole ? pFormat->textOf(static_cast<int>(number)) : pFormat->textOf(number));
    if (isWhole)
        return std::to_string(static_cast<long long>(number));
    return Utf8::toBytes(engineTemplate.getBomTemplateUnits()->getDisplayString(m_shown.unitType, number));
}

std::string ListNumbers::withUnit(const std::string& text) const
{
    const bool needsUnit = m_unit && InputUnits::takesPlainNumbers(*m_unit) && !endsWith(text, m_symbol);
    return needsUnit ? text + " " + m_symbol : text;
}

// A blank is of either kind: that of "6 1/2" belongs there, that of "1 234" only groups digits. So a quantity is read
// as it stands first, and without its blanks only when that fails.
std::optional<double> ListNumbers::valueOf(const std::string& text) const
{
    double value = 0;
    const std::string tight = withoutBlanks(text);
    if (m_unit)
    {
        const VorQuantityReader reader(m_unit->unit());
        if (reader.read(Utf8::toWide(text), value) == 1 || reader.read(Utf8::toWide(tight), value) == 1)
            return value;
        return std::nullopt;
    }
    const auto read = std::from_chars(tight.data(), tight.data() + tight.size(), value);
    return read.ec == std::errc() ? std::optional<double>(value) : std::nullopt;
}
}
