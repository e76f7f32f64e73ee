// A section is a row of tuples, the table a row of columns; which tuple stands in which column follows from their
// tokens. Of the details { "%Name", "%Weight" } and the footer { "%GroupBy:%Name", "%SumBy:%Weight" } the total stands
// below the weights, in column "%Weight", and "%GroupBy:%Name" only steers and stands nowhere.
#include "ReportTemplate.h"

#include "VorBomDataToken.h"

#include <algorithm>
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

const ColumnStyle* ReportTemplate::columnStyleOf(const VorString& columnToken) const
{
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&columnToken](const ColumnStyle& column) { return column.token == columnToken; });
    return found == columns.end() ? nullptr : &*found;
}

std::vector<int> ReportTemplate::shownTuplesOf(const VorBomItemBase& section) const
{
    std::vector<int> shown;
    if (!styleOf(&section).isPrinted)
        return shown;
    for (int i = 0; i < section.getData().length(); ++i)
        if (columnTokenOf(section, i).isEmpty() == 0)
            shown.push_back(i);
    return shown;
}

bool ReportTemplate::hasLine(const VorBomItemBase& section) const
{
    const SectionStyle& style = styleOf(&section);
    return style.isPrinted && (!style.label.empty() || !shownTuplesOf(section).empty());
}
}
