#include "ListSurvey.h"

#include "ShownNumber.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
std::size_t widthOf(const ShownText& text)
{
    return text.isPlain ? text.length : static_cast<std::size_t>(Utf8::displayWidth(text.view()));
}
}

bool isNumber(const VorBomTypedValue& value)
{
    return value.type == VorBomDataValue::kIntData || value.type == VorBomDataValue::kDoubleData;
}

ListSurvey::ListSurvey(const EvaluatedReport& report) : m_columns(report.columns().size())
{
    for (const LevelLayout& layout : report.layout().levels())
    {
        Level level;
        level.isHeaderOfPage = layout.header.isOfPage;
        level.isFooterOfPage = layout.footer.isOfPage;
        m_levels.push_back(level);
    }
    ReportLines lines = report.lines();
    for (ReportLine line; lines.next(line);)
        take(line);
    const auto isOfBody = [this](const ReportLine& line) { return !isOnEveryPage(line.place); };
    m_pageLines.erase(std::remove_if(m_pageLines.begin(), m_pageLines.end(), isOfBody), m_pageLines.end());
}

// The details line is a header, too, and never one of a page.
bool ListSurvey::isOnEveryPage(const LinePlace& place) const
{
    const auto index = static_cast<std::size_t>(place.level);
    const Level& level = m_levels[index];
    if (place.hasHeader == place.hasFooter || index + 1 == m_levels.size())
        return false;
    return place.hasHeader ? level.isHeaderOfPage && level.numHeaders == 1
                           : level.isFooterOfPage && level.numFooters == 1;
}

// The first line of a page is kept before anybody knows whether there is a second one.
void ListSurvey::take(const ReportLine& line)
{
    ++m_numLines;
    Level& level = m_levels[static_cast<std::size_t>(line.place.level)];
    level.numHeaders += line.place.hasHeader ? 1 : 0;
    level.numFooters += line.place.hasFooter ? 1 : 0;
    if (isOnEveryPage(line.place))
        m_pageLines.push_back(line);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        take(m_columns[i], line.texts[i], line.values[i]);
}

void ListSurvey::take(SurveyedColumn& column, const ShownText& text, const VorBomTypedValue& value)
{
    column.width = std::max(column.width, widthOf(text));
    if (!isNumber(value))
        return;
    column.decimals = std::max(column.decimals, ShownNumber::numDecimals(text.view()));
    column.areAllNumbersPlain = column.areAllNumbersPlain && ShownNumber::isPlain(text.view());
}
}
