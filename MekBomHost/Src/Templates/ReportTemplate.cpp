// A section is a row of tuples, the table a row of columns; which tuple stands in which column follows from their
// tokens. Of the details { "%Name", "%Weight" } and the footer { "%GroupBy:%Name", "%SumBy:%Weight" } the total stands
// below the weights, in column "%Weight", and "%GroupBy:%Name" only steers and stands nowhere.
#include "ReportTemplate.h"

#include "TotalTokens.h"
#include "Utf8.h"

#include "VorBomDataToken.h"

#include <cstddef>

namespace mekbom
{
// The default template comes without a file, and so without styles.
const SectionStyle& ReportTemplate::styleOf(const VorBomItemBase* pSection) const
{
    static const SectionStyle usual;
    const auto found = sectionStyles.find(pSection);
    return found == sectionStyles.end() ? usual : found->second;
}

// The column of a sum is its own if the file describes one, as in { "token": "%SumBy:%Weight", "label": "Total weight"
// }; else the total stands below the weights.
VorString ReportTemplate::columnTokenOf(const VorBomItemBase& section, int tupleIndex) const
{
    const VorBomDataToken& token = section.getData()[tupleIndex].token();
    const std::vector<VorString>& named = styleOf(&section).columnTokens;
    const auto index = static_cast<std::size_t>(tupleIndex);
    VorString summed;
    if (VorBomDataToken::isInvisibleToken(token.token()) == 1)
        return VorString();
    if (index < named.size() && named[index].isEmpty() == 0)
        return named[index];
    if (columnStyleOf(token.token()) != nullptr || token.getSummingRequest(summed) == 0)
        return token.token();
    return summed;
}

VorString ReportTemplate::shownTokenOf(const VorBomItemBase& section, int tupleIndex) const
{
    const VorString& token = section.getData()[tupleIndex].token().token();
    const ColumnStyle* const pStyle = styleOfTuple(section, tupleIndex);
    return pStyle != nullptr && TotalTokens::isSum(token) ? TotalTokens::of(pStyle->total, pStyle->token, token)
                                                          : token;
}

bool ReportTemplate::addColumn(const ColumnStyle& style)
{
    columns.push_back(style);
    return m_columnIndices.emplace(Utf8::toBytes(style.token), columns.size() - 1).second;
}

const ColumnStyle* ReportTemplate::columnStyleOf(const VorString& columnToken) const
{
    const auto found = m_columnIndices.find(Utf8::toBytes(columnToken));
    return found == m_columnIndices.end() ? nullptr : &columns[found->second];
}

const ColumnStyle* ReportTemplate::styleOfTuple(const VorBomItemBase& section, int tupleIndex) const
{
    const VorString column = columnTokenOf(section, tupleIndex);
    return column.isEmpty() == 1 ? nullptr : columnStyleOf(column);
}

TemplatePlace ReportTemplate::placeOfTuple(const VorBomItemBase& section, int tupleIndex) const
{
    const SectionStyle& style = styleOf(&section);
    const auto index = static_cast<std::size_t>(tupleIndex);
    return index < style.tuplePlaces.size() ? style.tuplePlaces[index] : style.place;
}

// Sections hang in the template as the engine wants them: each header has the next inner one for its child, and its
// footer for its neighbour. Whatever else hangs there is never evaluated.
std::vector<const VorBomItemBase*> ReportTemplate::evaluatedSections() const
{
    std::vector<const VorBomItemBase*> sections;
    for (const VorBomItemBase* pHeader = pTemplate->child(); pHeader != nullptr; pHeader = pHeader->child())
        sections.push_back(pHeader);
    for (std::size_t i = sections.size(); i-- > 0;)
        if (sections[i]->next() != nullptr)
            sections.push_back(sections[i]->next());
    return sections;
}

// The one answer to what a line shows: layout, packed texts, totals and formats all go by this order, and by the
// indices of the tuples in it.
std::vector<int> ReportTemplate::shownTuplesOf(const VorBomItemBase& section) const
{
    std::vector<int> shown;
    if (!styleOf(&section).isPrinted)
        return shown;
    for (int i = 0; i < section.getData().length(); ++i)
    {
        const ColumnStyle* const pStyle = styleOfTuple(section, i);
        const bool isHidden = pStyle != nullptr && pStyle->isHidden;
        if (!isHidden && columnTokenOf(section, i).isEmpty() == 0)
            shown.push_back(i);
    }
    return shown;
}

bool ReportTemplate::hasLine(const VorBomItemBase& section) const
{
    const SectionStyle& style = styleOf(&section);
    return style.isPrinted && (!style.label.empty() || !shownTuplesOf(section).empty());
}
}
