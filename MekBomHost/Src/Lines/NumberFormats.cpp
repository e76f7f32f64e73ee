// Told on a footer that shows "%SumBy:%Price" and "%SumBy:%Length", the latter in a column with "unit": "m/2":
//   %Price    has no unit; the rows have 12.5, 0.25 and 3, so two decimals, and the sum 15.75 no noise behind them
//   %Length   is a quantity, and its column has a unit of its own: metres to two decimals
//   %Weight   beside them would have no format: the engine shows kilograms as the list does
#include "NumberFormats.h"

#include "ColumnUnit.h"
#include "NumberText.h"
#include "PlainNumber.h"
#include "QuantityNumber.h"
#include "TotalTokens.h"

#include "VorBomDataToken.h"

#include "MekRoots/Exp/VorArray.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace mekbom
{
namespace
{
const int kDecimalsOfFormulas = 6; // the engine's formulas have no more

// What is shown, and where.
struct ShownTuple
{
    VorString token;
    const ColumnStyle* pStyle; // of its column; null for one that the template does not describe
    bool hasHeading;           // it is in the table, and the heading of its column names the unit
};

// Whether it has more decimals than what it is made of.
bool isComputed(const VorString& token)
{
    const ColumnTotal::eKind total = TotalTokens::kindOf(token);
    return total == ColumnTotal::kMean || total == ColumnTotal::kCalculated ||
           VorBomDataToken::isFormula(TotalTokens::datumOf(token)) == 1;
}

// Goes over all rows: once for each token whose plain numbers are totalled, not for each line.
// Decimals are those of the shortest text that identifies the double, 12.35 and not 12.3499999999999996, so that a
// total of prices has as many as the prices have in the file.
int mostDecimals(const VorBomData& data, const VorString& datum)
{
    int most = 0;
    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
    {
        const VorBomDataTuple* const pTuple = pRow->getTupleAt(datum);
        if (pTuple != nullptr && pTuple->value().type() == VorBomDataValue::kDoubleData)
            most = std::max(most, numDecimals(*static_cast<const double*>(pTuple->value().data())));
    }
    return most;
}

// Which format each tuple of one template needs.
class FormatChoice
{
public:
    FormatChoice(const VorBomData& data, const TokenQuantities& quantities, const VorUnitsManager& units,
                 const DisplaySettings& settings)
        : m_data(data), m_quantities(quantities), m_units(units), m_settings(settings)
    {
    }

    // Null where the engine's own way is right.
    // What measures something and is no double, a whole number of a token that has a kind, is the engine's: it shows
    // such numbers as they are.
    std::unique_ptr<const VorBomNumberFormat> of(const ShownTuple& tuple)
    {
        if (VorBomDataToken::isInvisibleToken(tuple.token) == 1)
            return nullptr;
        const Measure measure = m_quantities.measureOf(tuple.token);
        if (measure.pKind != nullptr)
            return ofQuantity(tuple, *measure.pKind);
        const bool isPlain = m_quantities.unitTypeOf(tuple.token) == VorBomTemplateUnits::kNoUnit;
        return isPlain ? ofPlain(tuple, measure.label) : nullptr;
    }

private:
    // A quantity needs a format for one of three reasons: its column has a unit or a precision of its own, it wants
    // blanks between thousands, or its heading names no unit, so that each number must.
    std::unique_ptr<const VorBomNumberFormat> ofQuantity(const ShownTuple& tuple, const UnitKind& kind) const
    {
        const ColumnStyle* const pStyle = tuple.pStyle;
        const bool hasThousands = pStyle != nullptr && pStyle->hasThousands;
        const bool isOwn = pStyle != nullptr && (!pStyle->unit.empty() || pStyle->decimals >= 0);
        if (!isOwn && !hasThousands && tuple.hasHeading)
            return nullptr;
        return std::make_unique<QuantityNumber>(ColumnUnit::of(pStyle, kind, m_units), m_settings, hasThousands,
                                                !tuple.hasHeading);
    }

    // Whole numbers are written by the engine as they are; their totals become doubles beyond 32 bits.
    std::unique_ptr<const VorBomNumberFormat> ofPlain(const ShownTuple& tuple, const std::string& label)
    {
        const VorBomDataValue::eBomDataValueType type = m_quantities.typeOf(tuple.token);
        const bool isStyled = tuple.pStyle != nullptr && (tuple.pStyle->decimals >= 0 || tuple.pStyle->hasThousands);
        const bool isWhole = type == VorBomDataValue::kIntData && !TotalTokens::isSum(tuple.token);
        if (type == VorBomDataValue::kStringData || (isWhole && !isStyled))
            return nullptr;
        return std::make_unique<PlainNumber>(styleOf(tuple), tuple.hasHeading ? std::string() : label);
    }

    // Numbers of the data are shown as they are: rounding is for what was computed.
    NumberStyle styleOf(const ShownTuple& tuple)
    {
        NumberStyle style;
        style.hasThousands = tuple.pStyle != nullptr && tuple.pStyle->hasThousands;
        if (tuple.pStyle != nullptr && tuple.pStyle->decimals >= 0)
        {
            style.decimals = tuple.pStyle->decimals;
            style.keepsZeros = true;
        }
        else if (isComputed(tuple.token))
            style.decimals = kDecimalsOfFormulas;
        else if (TotalTokens::isSum(tuple.token))
            style.decimals = decimalsOf(TotalTokens::datumOf(tuple.token));
        return style;
    }

    int decimalsOf(const VorString& datum)
    {
        if (m_quantities.typeOf(datum) == VorBomDataValue::kIntData)
            return 0;
        bool isNew = false;
        auto* const pNode = m_decimals.findOrInsert(datum, 0, isNew);
        if (isNew)
            pNode->value = mostDecimals(m_data, datum);
        return pNode->value;
    }

    const VorBomData& m_data;
    const TokenQuantities& m_quantities;
    const VorUnitsManager& m_units;
    const DisplaySettings& m_settings;
    VorStringHashMap<int> m_decimals; // of the data under tokens that were asked for
};

// The columns of a section's tuples, by their index; null for those in no column of the table.
std::vector<const ReportColumn*> columnsOf(const ReportTemplate& reportTemplate, const VorBomItemBase& section,
                                           const ReportLayout& layout, SectionPlace place)
{
    std::vector<const ReportColumn*> columns(static_cast<std::size_t>(section.getData().length()));
    const std::vector<int> shown = reportTemplate.shownTuplesOf(section);
    for (std::size_t i = 0; i < shown.size(); ++i)
        columns[static_cast<std::size_t>(shown[i])] =
            &layout.columns()[static_cast<std::size_t>(layout.section(place).columns[i])];
    return columns;
}

// Tuples that are in no table tell lines apart, and so must not be rounded to six digits either.
// A level may lack its footer.
std::vector<ShownTuple> tuplesOf(const ReportTemplate& reportTemplate, const VorBomItemBase* pSection,
                                 const ReportLayout& layout, SectionPlace place)
{
    std::vector<ShownTuple> tuples;
    if (pSection == nullptr)
        return tuples;
    const VorBomItemBase& section = *pSection;
    const std::vector<const ReportColumn*> columns = columnsOf(reportTemplate, section, layout, place);
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        const auto index = static_cast<int>(i);
        const ReportColumn* const pColumn = columns[i];
        tuples.push_back({ reportTemplate.shownTokenOf(section, index),
                           pColumn == nullptr ? reportTemplate.styleOfTuple(section, index)
                                              : reportTemplate.columnStyleOf(pColumn->token),
                           pColumn == nullptr || !pColumn->unitSymbol.empty() });
    }
    return tuples;
}
}

NumberFormats::NumberFormats(const ReportTemplate& reportTemplate, const ReportLayout& layout,
                             const TokenQuantities& quantities, const VorUnitsManager& units,
                             const DisplaySettings& settings)
{
    FormatChoice choice(*reportTemplate.pTemplate->getBomData(), quantities, units, settings);
    const auto addFormatsOf = [&](const VorBomItemBase* pSection, SectionPlace place)
    {
        int index = 0;
        for (const ShownTuple& tuple : tuplesOf(reportTemplate, pSection, layout, place))
        {
            if (auto pFormat = choice.of(tuple))
                m_formats.push_back({ static_cast<const VorBomTemplateItem*>(pSection), index, std::move(pFormat) });
            ++index;
        }
    };
    int level = 0;
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child(), ++level)
    {
        addFormatsOf(pHeader, { level, false });
        addFormatsOf(pHeader->next(), { level, true });
    }
}

void NumberFormats::setFor(VorBomTemplate& engineTemplate) const
{
    for (const TupleFormat& format : m_formats)
        engineTemplate.setNumberFormat(*format.pSection, format.tuple, format.pFormat.get());
}
}
