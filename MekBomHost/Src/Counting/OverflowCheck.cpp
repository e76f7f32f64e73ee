#include "OverflowCheck.h"

#include "InQuotes.h"
#include "MistakeCodes.h"
#include "NumberInValue.h"
#include "Utf8.h"

namespace mekbom
{
namespace
{
// "inf", "-inf kg", "nan": other numbers begin with a digit or a point.
bool isNoNumber(const VorBomDataValue& shown)
{
    const wchar_t* pText = static_cast<const VorString*>(shown.data())->getStringW();
    if (*pText == L'-')
        ++pText;
    return *pText == L'i' || *pText == L'n';
}

void append(std::string& list, const VorBomDataValue& value)
{
    const std::string text = Utf8::toBytes(value.asString());
    if (!text.empty())
        list += (list.empty() ? "" : ", ") + text;
}
}

OverflowCheck::OverflowCheck(const ReportTemplate& reportTemplate, VorBomSectionSink& next)
    : SectionRelay(next, kTypedValues), m_template(reportTemplate)
{
    const auto shownBy = [&reportTemplate](const VorBomItemBase* pSection)
    {
        ShownTuples shown;
        if (pSection != nullptr)
            for (const int tuple : reportTemplate.shownTuplesOf(*pSection))
                shown.push_back({ tuple, pSection });
        return shown;
    };
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
    {
        m_headers.push_back(shownBy(pHeader));
        m_footers.push_back(shownBy(pHeader->next()));
    }
}

void OverflowCheck::takeHeader(const VorBomReportSection& header)
{
    check(m_headers[static_cast<std::size_t>(header.level)], header);
    SectionRelay::takeHeader(header);
}

void OverflowCheck::takeFooter(const VorBomReportSection& footer)
{
    check(m_footers[static_cast<std::size_t>(footer.level)], footer);
    SectionRelay::takeFooter(footer);
}

// Called for every line, so that what is found is spelt out elsewhere. Sections hold texts by now.
void OverflowCheck::check(ShownTuples& shownTuples, const VorBomReportSection& section)
{
    for (Shown& shown : shownTuples)
        if (!shown.isFound && holdsNumber(section.pValues[shown.tuple].type) &&
            isNoNumber(section.section.getData().begin()[shown.tuple].value()))
        {
            shown.isFound = true;
            add(shown, section);
        }
}

void OverflowCheck::add(const Shown& shown, const VorBomReportSection& section)
{
    const VorBomDataTuple& tuple = section.section.getData()[shown.tuple];
    const TemplatePlace place = m_template.placeOfTuple(*shown.pSection, shown.tuple);
    Finding finding = Finding::stating(MistakeCodes::kNoNumberLeft,
                                       inQuotes(Utf8::toBytes(tuple.token().token())) + whereIn(section) +
                                           " comes to " + Utf8::toBytes(tuple.value().asString()) +
                                           ", which is beyond all numbers that can be printed")
                          .in(m_template.fileName, place.span);
    finding.path = place.path;
    finding.remedy = "look in the data for numbers that are far too large";
    m_findings.push_back(finding);
}

// A line is known by what it shows, a group by what its rows have in common: " in the line "P1, 1e308"".
std::string OverflowCheck::whereIn(const VorBomReportSection& section) const
{
    if (section.pRow != nullptr)
    {
        std::string texts;
        for (const VorBomDataTuple& tuple : section.section.getData())
            append(texts, tuple.value());
        return " in the line " + inQuotes(texts);
    }
    const bool hasRow = section.countedRows.begin() != section.countedRows.end();
    const std::string group = hasRow ? groupOf(*section.countedRows.begin(), section.level) : std::string();
    return group.empty() ? " of the whole list" : " of the group " + inQuotes(group);
}

std::string OverflowCheck::groupOf(const VorBomDataRow& row, int level) const
{
    std::string values;
    const VorBomItemBase* pHeader = m_template.pTemplate->child();
    for (int i = 0; i <= level && pHeader->child() != nullptr; ++i, pHeader = pHeader->child())
        for (const VorBomDataTuple& tuple : pHeader->getData())
        {
            VorStringArray tokens;
            tuple.token().getGroupingRequest(tokens);
            for (const VorString& token : tokens)
                if (const VorBomDataTuple* const pDatum = row.getTupleAt(token))
                    append(values, pDatum->value());
        }
    return values;
}
}
