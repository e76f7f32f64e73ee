// A token that is asked for at many places has a column at each of them, which all find the same tuple.
#include "VorBomDataCheck.h"

#include "VorBomColumns.h"

#include <memory>

namespace
{
std::vector<VorString> tokensOf(const VorBomAskedTokens& asked)
{
    std::vector<VorString> tokens;
    for (const VorBomAskedTokens::Asked& each : asked.all())
        tokens.push_back(each.token);
    return tokens;
}

VorBomFinding findingOf(VorBomFinding::eKind kind, const VorBomAskedTokens::Asked& asked)
{
    VorBomFinding finding;
    finding.kind = kind;
    finding.pSection = asked.pSection;
    finding.tuple = asked.tuple;
    finding.token = asked.token;
    finding.position = asked.position;
    return finding;
}
}

VorBomDataCheck::VorBomDataCheck(VorBomTemplate& reportTemplate) : m_asked(reportTemplate), m_data(m_asked.all().size())
{
    VorBomColumns columns(std::make_shared<VorBomTuplePositions>(), tokensOf(m_asked));
    VorBomItemBase* pRow = reportTemplate.getBomData() == nullptr ? nullptr : reportTemplate.getBomData()->child();
    for (; pRow != nullptr; pRow = pRow->next())
    {
        const auto& row = static_cast<const VorBomDataRow&>(*pRow);
        m_hasRows = true;
        if (m_pWithParts == nullptr && row.child() != nullptr)
            m_pWithParts = &row;
        const VorBomColumns::Found found = columns.find(*pRow);
        for (int i = 0; i < columns.count(); ++i)
            if (found[i] != nullptr)
                look(row, found[i]->value(), m_data[static_cast<std::size_t>(i)]);
    }
}

// An empty value is no datum: it is passed over, as in a report.
void VorBomDataCheck::look(const VorBomDataRow& row, const VorBomDataValue& value, Datum& datum)
{
    if (value.type() == VorBomDataValue::kUnknownData)
        return;
    if (datum.pFirst == nullptr)
    {
        datum.pFirst = &row;
        datum.type = value.type();
    }
    else if (datum.pUnlike == nullptr && value.type() != datum.type)
        datum.pUnlike = &row;
    if (datum.pText == nullptr && value.type() == VorBomDataValue::kStringData)
        datum.pText = &row;
}

void VorBomDataCheck::tell(VorBomDiagnostics& diagnostics) const
{
    tellOfRows(diagnostics);
    for (std::size_t i = 0; m_hasRows && i < m_data.size(); ++i)
        tellOf(m_asked.all()[i], m_data[i], diagnostics);
}

void VorBomDataCheck::tellOfRows(VorBomDiagnostics& diagnostics) const
{
    VorBomFinding finding;
    finding.kind = m_hasRows ? VorBomFinding::kPartsNotRead : VorBomFinding::kNoRows;
    finding.pRow = m_pWithParts;
    if (!m_hasRows || m_pWithParts != nullptr)
        diagnostics.takeFinding(finding);
}

void VorBomDataCheck::tellOf(const VorBomAskedTokens::Asked& asked, const Datum& datum, VorBomDiagnostics& diagnostics)
{
    if (datum.pFirst == nullptr)
        diagnostics.takeFinding(findingOf(VorBomFinding::kTokenInNoRow, asked));
    if (datum.pUnlike != nullptr)
    {
        VorBomFinding finding = findingOf(VorBomFinding::kTokenOfTwoKinds, asked);
        finding.pRow = datum.pFirst;
        finding.pOtherRow = datum.pUnlike;
        diagnostics.takeFinding(finding);
    }
    if (asked.isSummed && datum.pText != nullptr)
    {
        VorBomFinding finding = findingOf(VorBomFinding::kTextInTotal, asked);
        finding.pRow = datum.pText;
        diagnostics.takeFinding(finding);
    }
}
