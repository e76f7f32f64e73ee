// Columns come to be in the order in which somebody first names them, and a section takes each one at most once:
//
//   the template describes   %Weight                         columns  0 %Weight
//   details show             %Name                           none is called so: a new one, 1 %Name
//                            %Weight                         0
//                            %SumBy:%Weight, in %Weight      0 is taken by this section: a new one, 2 %SumBy:%Weight
//   the footer shows         %SumBy:%Weight, in %Weight      0, which this section has not taken yet
//
// What a column holds is known only then, since its unit has to be that of all tuples it shows.
#include "ReportLayout.h"

#include "ColumnUnit.h"
#include "FormulaResults.h"
#include "TotalTokens.h"
#include "Utf8.h"

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"
#include "VorBomTemplateItem.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
// "%Weight" -> "Weight", "%Formula:%Length/1000" -> "%Length/1000"
std::string labelOf(const VorString& token)
{
    VorString label = TotalTokens::datumOf(token);
    if (VorBomDataToken::removeFormulaPrefix(label) == 0 && label.find(VorBomDataToken::kTokenPrefix, 0) == 0)
        label = label.right(label.length() - 1);
    return Utf8::toBytes(label);
}

// " (max)" for a column of the greatest lengths alone: "Length" would be taken for one of sums.
std::string kindOfTotals(const ReportColumn& column)
{
    if (column.shownTokens.empty())
        return std::string();
    const ColumnTotal::eKind kind = TotalTokens::kindOf(column.shownTokens.front()); // of a header, where any shows it
    return kind == ColumnTotal::kSum ? std::string() : std::string(" (") + ColumnTotal::nameOf(kind) + ")";
}

bool isOfPage(const VorBomItemBase& section)
{
    const auto type = static_cast<const VorBomTemplateItem&>(section).type(); // children of sections are sections
    return type == VorBomTemplateItem::kPageHeader || type == VorBomTemplateItem::kPageFooter;
}

// A header "HEA200" and its total "4" read as one line; two numbers in one column, or two labels, would not fit.
bool canShareLine(const SectionLayout& header, const SectionLayout& footer)
{
    const std::set<int> inFooter(footer.columns.begin(), footer.columns.end());
    const auto isShownByFooter = [&inFooter](int column) { return inFooter.count(column) > 0; };
    return footer.label.empty() && header.label.empty() &&
           std::none_of(header.columns.begin(), header.columns.end(), isShownByFooter);
}

// A label stands where the line shows nothing else.
// Without such a column `labelColumn` stays -1, and a writer has to find another place.
void placeLabel(SectionLayout& section, std::size_t numColumns)
{
    const std::set<int> shown(section.columns.begin(), section.columns.end());
    int column = 0;
    while (shown.count(column) > 0)
        ++column;
    if (column < static_cast<int>(numColumns))
        section.labelColumn = column;
}

// The type is that of the first tuple, which comes from the outermost header: a column of names with a total below it
// is one of texts.
void describeContent(ReportColumn& column, const TokenQuantities& quantities, const ColumnStyle* pStyle,
                     const VorUnitsManager& units)
{
    column.isNumeric = !column.shownTokens.empty() && quantities.isNumeric(column.shownTokens.front());
    column.hasNumbers = std::any_of(column.shownTokens.begin(), column.shownTokens.end(),
                                    [&quantities](const VorString& token) { return quantities.isNumeric(token); });
    for (const VorString& token : column.shownTokens)
        if (TotalTokens::kindOf(token) != ColumnTotal::kSum)
            column.total = TotalTokens::kindOf(token);
    const Measure measure = quantities.commonMeasureOf(column.shownTokens);
    column.pUnitKind = measure.pKind;
    column.numbers = ColumnNumbers(pStyle, units, measure.pKind);
    column.hasMixedUnits = !measure.isNamed() && std::any_of(column.shownTokens.begin(), column.shownTokens.end(),
                                                             [&quantities](const VorString& token)
                                                             { return quantities.measureOf(token).isNamed(); });
    column.unitSymbol = measure.label;
    if (measure.pKind == nullptr)
        return;
    const MEKUnit unit = ColumnUnit::of(pStyle, *measure.pKind, units);
    column.unitSymbol = ColumnUnit::symbolOf(unit);
    column.hasDecimals = ColumnUnit::hasDecimals(unit);
}

void describeLook(ReportColumn& column, const ColumnStyle* pStyle)
{
    column.label = labelOf(column.token) + kindOfTotals(column);
    column.isAlignedRight = column.isNumeric;
    if (pStyle == nullptr)
        return;
    if (!pStyle->label.empty())
        column.label = pStyle->label;
    column.width = pStyle->width;
    if (pStyle->alignment != ColumnStyle::kByType)
        column.isAlignedRight = pStyle->alignment == ColumnStyle::kRight;
}
}

ReportLayout::ReportLayout(const ReportTemplate& reportTemplate, const VorUnitsManager& units)
{
    for (const ColumnStyle& style : reportTemplate.columns)
        if (!style.isHidden)
            addColumn(style.token);
    layOutLevels(reportTemplate);
    completeLevels();
    describeColumns(reportTemplate, units);
}

const SectionLayout& ReportLayout::section(SectionPlace place) const
{
    const LevelLayout& level = m_levels[static_cast<std::size_t>(place.level)];
    return place.isFooter ? level.footer : level.header;
}

// In the order in which the lines of one group come: headers from the outside in, footers from the inside out.
void ReportLayout::layOutLevels(const ReportTemplate& reportTemplate)
{
    std::vector<const VorBomItemBase*> footers;
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
    {
        m_levels.push_back({});
        m_levels.back().header = layOut(reportTemplate, pHeader);
        footers.push_back(pHeader->next());
    }
    for (std::size_t i = footers.size(); i-- > 0;)
        m_levels[i].footer = layOut(reportTemplate, footers[i]);
}

// A level may lack its footer.
// The columns come in the order of shownTuplesOf(), in which PackedSections packs the texts: ReportLines relies on both
// being the same.
SectionLayout ReportLayout::layOut(const ReportTemplate& reportTemplate, const VorBomItemBase* pSection)
{
    SectionLayout section;
    if (pSection == nullptr || !reportTemplate.styleOf(pSection).isPrinted)
        return section;
    section.label = reportTemplate.styleOf(pSection).label;
    section.isOfPage = isOfPage(*pSection);
    std::set<int> taken;
    for (const int tupleIndex : reportTemplate.shownTuplesOf(*pSection))
    {
        const VorString token = reportTemplate.shownTokenOf(*pSection, tupleIndex);
        const int column = columnFor(reportTemplate.columnTokenOf(*pSection, tupleIndex), token, taken);
        taken.insert(column);
        m_columns[static_cast<std::size_t>(column)].shownTokens.push_back(token);
        section.columns.push_back(column);
        section.tokens.push_back(token);
    }
    return section;
}

// Where labels stand is known when all columns are.
void ReportLayout::completeLevels()
{
    for (LevelLayout& level : m_levels)
    {
        placeLabel(level.header, m_columns.size());
        placeLabel(level.footer, m_columns.size());
        level.canShareLine = canShareLine(level.header, level.footer);
    }
}

void ReportLayout::describeColumns(const ReportTemplate& reportTemplate, const VorUnitsManager& units)
{
    VorBomTemplate& engineTemplate = *reportTemplate.pTemplate;
    const FormulaResults formulas(reportTemplate);
    const TokenQuantities quantities(*engineTemplate.getBomData(), *engineTemplate.getBomTemplateUnits(), formulas);
    for (ReportColumn& column : m_columns)
    {
        const ColumnStyle* const pStyle = reportTemplate.columnStyleOf(column.token);
        describeContent(column, quantities, pStyle, units);
        describeLook(column, pStyle);
    }
}

// The column of `token`, or, when the section has taken that already, one of the tuple's own.
int ReportLayout::columnFor(const VorString& token, const VorString& tupleToken, const std::set<int>& taken)
{
    const int column = findColumn(token);
    if (column < 0)
        return addColumn(token);
    if (taken.count(column) == 0)
        return column;
    const int own = findColumn(tupleToken);
    return own < 0 || taken.count(own) > 0 ? addColumn(tupleToken) : own;
}

// The index of the column with that token; -1 when there is none.
int ReportLayout::findColumn(const VorString& token) const
{
    const auto found = m_indices.find(Utf8::toBytes(token));
    return found == m_indices.end() ? -1 : found->second;
}

int ReportLayout::addColumn(const VorString& token)
{
    ReportColumn column;
    column.token = token;
    const auto index = static_cast<int>(m_columns.size());
    m_indices.emplace(Utf8::toBytes(token), index);
    m_columns.push_back(column);
    return index;
}
}
