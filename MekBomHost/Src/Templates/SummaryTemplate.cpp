#include "SummaryTemplate.h"

#include "TemplateLevels.h"
#include "Utf8.h"

#include <algorithm>
#include <string>
#include <unordered_set>

namespace mekbom::SummaryTemplate
{
namespace
{
// The columns that a section shows anything in, by token, in UTF-8.
std::unordered_set<std::string> columnsOf(const ReportTemplate& reportTemplate, const VorBomItemBase& section)
{
    std::unordered_set<std::string> columns;
    for (const int tuple : reportTemplate.shownTuplesOf(section))
        columns.insert(Utf8::toBytes(reportTemplate.columnTokenOf(section, tuple)));
    return columns;
}

std::unordered_set<std::string> shownColumns(const ReportTemplate& reportTemplate)
{
    std::unordered_set<std::string> shown;
    for (const VorBomItemBase* const pSection : reportTemplate.evaluatedSections())
        shown.merge(columnsOf(reportTemplate, *pSection));
    return shown;
}

// A group that has lost its lines can be one line itself: "HEA200  S355J2  4  1042.4" instead of its header and, below
// it, "Total  4  1042.4". That takes the label of the footer away, unless both want one column.
void joinGroups(ReportTemplate& reportTemplate, const TemplateLevels& levels)
{
    const int level = levels.count() - 2;
    if (level < 0 || levels.section({ level, true }) == nullptr)
        return;
    const VorBomTemplateItem& header = *levels.section({ level, false });
    const VorBomTemplateItem& footer = *levels.section({ level, true });
    const std::unordered_set<std::string> inHeader = columnsOf(reportTemplate, header);
    const std::unordered_set<std::string> inFooter = columnsOf(reportTemplate, footer);
    const bool areApart = std::none_of(inHeader.begin(), inHeader.end(),
                                       [&inFooter](const std::string& column) { return inFooter.count(column) > 0; });
    if (areApart && !inHeader.empty() && !inFooter.empty() && reportTemplate.styleOf(&header).label.empty())
        reportTemplate.sectionStyles[&footer].label.clear();
}
}

// A template of one level has nothing but details.
bool reduce(ReportTemplate& reportTemplate)
{
    const TemplateLevels levels(*reportTemplate.pTemplate);
    reportTemplate.sectionStyles[&levels.details()].isPrinted = false;
    const std::unordered_set<std::string> shown = shownColumns(reportTemplate);
    for (ColumnStyle& column : reportTemplate.columns)
        column.isHidden = column.isHidden || shown.count(Utf8::toBytes(column.token)) == 0;
    joinGroups(reportTemplate, levels);
    const std::vector<const VorBomItemBase*> sections = reportTemplate.evaluatedSections();
    return std::any_of(sections.begin(), sections.end(),
                       [&](const VorBomItemBase* pSection) { return reportTemplate.hasLine(*pSection); });
}
}
