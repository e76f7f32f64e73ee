#include "TableLayout.h"

#include "ColumnType.h"
#include "ColumnUnit.h"
#include "Utf8.h"

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
bool isNumeric(const VorBomData& data, const VorString& token)
{
    const VorBomDataValue::eBomDataValueType type = ColumnType::typeOf(data, token);
    return type == VorBomDataValue::kIntData || type == VorBomDataValue::kDoubleData;
}

// "%Weight" -> "Weight", "%Formula:%Length/1000" -> "%Length/1000"
std::string labelOf(const VorString& token)
{
    VorString label = ColumnType::datumOf(token);
    if (VorBomDataToken::removeFormulaPrefix(label) == 0 && label.find(VorBomDataToken::kTokenPrefix, 0) == 0)
        label = label.right(label.length() - 1);
    return Utf8::toBytes(label);
}

// Half a unit would be another unit: the column has room for it, as it has for its numbers.
int fixedWidthOf(const ColumnStyle& style, const std::string& symbol)
{
    const int symbolWidth = symbol.empty() ? 0 : Utf8::displayWidth("[" + symbol + "]");
    return style.width == 0 ? 0 : std::max(style.width, symbolWidth);
}

bool holds(const std::vector<int>& columns, int column)
{
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

bool canShareLine(const TableSection& header, const TableSection& footer)
{
    const auto isShownByFooter = [&footer](int column) { return holds(footer.columns, column); };
    return footer.label.empty() && header.label.empty() &&
           std::none_of(header.columns.begin(), header.columns.end(), isShownByFooter);
}

// A label stands where the line shows nothing else.
void placeLabel(TableSection& section, std::size_t numColumns)
{
    for (int column = 0; column < static_cast<int>(numColumns) && section.labelColumn < 0; ++column)
        if (!holds(section.columns, column))
            section.labelColumn = column;
}
}

TableLayout::TableLayout(const ReportTemplate& reportTemplate, const VorUnitsManager& units)
    : m_template(reportTemplate)
{
    for (const ColumnStyle& style : m_template.columns)
        addColumn(style.token);
    layOutLevels();
    for (TableLevel& level : m_levels)
    {
        placeLabel(level.header, m_columns.size());
        placeLabel(level.footer, m_columns.size());
        level.canShareLine = canShareLine(level.header, level.footer);
    }
    for (TableColumn& column : m_columns)
        completeColumn(column, units);
}

// In the order in which the lines of one group come: headers from the outside in, footers from the inside out.
void TableLayout::layOutLevels()
{
    std::vector<const VorBomItemBase*> footers;
    for (const VorBomItemBase* pHeader = m_template.pTemplate->child(); pHeader != nullptr; pHeader = pHeader->child())
    {
        m_levels.push_back({});
        m_levels.back().header = layOut(pHeader);
        footers.push_back(pHeader->next());
    }
    for (std::size_t i = footers.size(); i-- > 0;)
        m_levels[i].footer = layOut(footers[i]);
}

// A level may lack its footer.
TableSection TableLayout::layOut(const VorBomItemBase* pSection)
{
    TableSection section;
    if (pSection == nullptr || !m_template.styleOf(pSection).isPrinted)
        return section;
    section.label = m_template.styleOf(pSection).label;
    for (const int tupleIndex : m_template.shownTuplesOf(*pSection))
        section.columns.push_back(columnOfTuple(*pSection, tupleIndex, section.columns));
    return section;
}

int TableLayout::columnOfTuple(const VorBomItemBase& section, int tupleIndex, const std::vector<int>& taken)
{
    const VorString& tupleToken = section.getData()[tupleIndex].token().token();
    const int column = columnFor(m_template.columnTokenOf(section, tupleIndex), tupleToken, taken);
    m_columns[static_cast<std::size_t>(column)].shownTokens.push_back(tupleToken);
    return column;
}

// The column of `token`, or, when the section has taken that already, one of the tuple's own.
int TableLayout::columnFor(const VorString& token, const VorString& tupleToken, const std::vector<int>& taken)
{
    const int column = findColumn(token);
    if (column < 0)
        return addColumn(token);
    if (!holds(taken, column))
        return column;
    const int own = findColumn(tupleToken);
    return own < 0 || holds(taken, own) ? addColumn(tupleToken) : own;
}

// -1 when there is none.
int TableLayout::findColumn(const VorString& token) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&token](const TableColumn& column) { return column.token == token; });
    return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

int TableLayout::addColumn(const VorString& token)
{
    TableColumn column;
    column.token = token;
    m_columns.push_back(column);
    return static_cast<int>(m_columns.size()) - 1;
}

void TableLayout::completeColumn(TableColumn& column, const VorUnitsManager& units) const
{
    VorBomTemplate& reportTemplate = *m_template.pTemplate;
    const auto style =
        std::find_if(m_template.columns.begin(), m_template.columns.end(),
                     [&column](const ColumnStyle& candidate) { return candidate.token == column.token; });
    const std::string symbol = ColumnUnit(*reportTemplate.getBomData(), *reportTemplate.getBomTemplateUnits(), units)
                                   .symbolOf(column.shownTokens);
    const bool hasLabel = style != m_template.columns.end() && !style->label.empty();
    column.isNumeric =
        !column.shownTokens.empty() && isNumeric(*reportTemplate.getBomData(), column.shownTokens.front());
    column.isAlignedRight = column.isNumeric;
    column.label = ColumnUnit::headingOf(hasLabel ? style->label : labelOf(column.token), symbol);
    if (style == m_template.columns.end())
        return;
    column.fixedWidth = fixedWidthOf(*style, symbol);
    if (style->alignment != ColumnStyle::kByType)
        column.isAlignedRight = style->alignment == ColumnStyle::kRight;
}
}
