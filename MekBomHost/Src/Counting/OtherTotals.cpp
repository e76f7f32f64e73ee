// Told on rows A 2000 and B 6000 under levels 0 report, 1 group, 2 details, with "max" of the lengths in both footers:
//   header 0, header 1    both tallies are empty
//   lines of A and B      each adds its length to both
//   footer 1              6000 in place of 8000
//   header 1              the tally of level 1 is emptied, that of level 0 goes on
// A line is a row, whatever is made of it later: EqualLines stands behind this.
#include "OtherTotals.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "TextOfNumber.h"
#include "TotalTokens.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
bool OtherTotals::areIn(const ReportTemplate& reportTemplate)
{
    return std::any_of(reportTemplate.columns.begin(), reportTemplate.columns.end(),
                       [](const ColumnStyle& style) { return style.total.kind != ColumnTotal::kSum; });
}

OtherTotals::OtherTotals(const ReportTemplate& reportTemplate, VorBomSectionSink& next)
    : SectionRelay(next, kTypedValues), m_template(reportTemplate)
{
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
        addLevel(pHeader->next());
}

// A level may lack its footer.
void OtherTotals::addLevel(const VorBomItemBase* pFooter)
{
    m_levels.push_back({ pFooter, {} });
    for (int i = 0; pFooter != nullptr && i < pFooter->getData().length(); ++i)
    {
        const VorString& token = pFooter->getData()[i].token().token();
        const VorString shown = m_template.shownTokenOf(*pFooter, i);
        const ColumnTotal::eKind kind = TotalTokens::kindOf(shown);
        if (kind == ColumnTotal::kSum)
            continue;
        const VorBomTemplateUnits& units = *m_template.pTemplate->getBomTemplateUnits();
        const auto& footer = static_cast<const VorBomTemplateItem&>(*pFooter); // children of sections are sections
        Total total{ i,
                     m_template.styleOfTuple(*pFooter, i),
                     m_template.pTemplate->numberFormat(footer, i),
                     VorBomTemplateUnits::kNoUnit,
                     {},
                     {} };
        if (kind == ColumnTotal::kCalculated)
            total.calculated.emplace(total.pStyle->total, *pFooter);
        else
            total.values.emplace(TotalTokens::datumOf(token));
        if (kind != ColumnTotal::kCount)
            total.unitType = units.getUnitType(TotalTokens::datumOf(shown));
        m_levels.back().totals.push_back(std::move(total));
    }
}

void OtherTotals::takeHeader(const VorBomReportSection& header)
{
    for (Total& total : m_levels[static_cast<std::size_t>(header.level)].totals)
        if (total.values)
            total.values->clear();
    if (static_cast<std::size_t>(header.level) + 1 == m_levels.size())
        addRow(*header.pRow);
    SectionRelay::takeHeader(header);
}

void OtherTotals::addRow(const VorBomDataRow& row)
{
    for (Level& level : m_levels)
        for (Total& total : level.totals)
            if (total.values)
                total.values->add(row);
}

// A footer beside the details counts the row of their line even when that is merged; those around it do not.
void OtherTotals::takeMergedRow(const VorBomDataRow& row)
{
    for (Total& total : m_levels.back().totals)
        if (total.values)
        {
            total.values->clear();
            total.values->add(row);
        }
    SectionRelay::takeMergedRow(row);
}

void OtherTotals::takeFooter(const VorBomReportSection& footer)
{
    const Level& level = m_levels[static_cast<std::size_t>(footer.level)];
    if (level.totals.empty())
        return SectionRelay::takeFooter(footer);
    VorBomTemplateItem shown(footer.section);
    m_values.assign(footer.pValues, footer.pValues + footer.section.getData().length());
    for (const Total& total : level.totals)
    {
        const VorBomTypedValue value = valueOf(total, footer);
        m_values[static_cast<std::size_t>(total.tuple)] = value;
        const bool isKnown = value.type != VorBomDataValue::kUnknownData;
        const VorBomTemplateUnits& units = *m_template.pTemplate->getBomTemplateUnits();
        shown.getData()[total.tuple].value().set(isKnown ? textOfNumber(value, total.pFormat, units) : VorString());
    }
    SectionRelay::takeFooter({ shown, footer.level, footer.pRow, footer.countedRows, m_values.data(),
                               footer.pNumRowsWithDatum, footer.pTemplateSection });
}

VorBomTypedValue OtherTotals::valueOf(const Total& total, const VorBomReportSection& footer)
{
    std::string reason;
    VorBomTypedValue value =
        total.values ? total.values->totalOf(total.pStyle->total.kind) : total.calculated->valueIn(footer, reason);
    if (!reason.empty())
        addFinding(total, reason);
    if (value.type == VorBomDataValue::kDoubleData)
        value.unitType = total.unitType;
    return value;
}

// One place is enough to look at, and a list may have a hundred thousand groups.
void OtherTotals::addFinding(const Total& total, const std::string& reason)
{
    const std::string path = total.pStyle->place.path + "/total";
    if (std::any_of(m_findings.begin(), m_findings.end(), [&path](const Finding& other) { return other.path == path; }))
        return;
    Finding finding = Finding::stating(MistakeCodes::kTotalNotCalculated,
                                       inQuotes(Utf8::toBytes(total.pStyle->total.formula)) +
                                           " is left empty where it cannot be calculated: " + reason)
                          .in(m_template.fileName, total.pStyle->place.span);
    finding.path = path;
    finding.remedy = "fill the gaps in the data, or leave out the rows with gaps by \"queryFilter\" or --where";
    m_findings.push_back(finding);
}
}
