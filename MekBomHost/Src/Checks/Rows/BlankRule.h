// MB215: texts that a list is grouped by and that differ by blanks at their ends alone, such as "S355" and "S355 ". Texts
// stay as written, so they are two groups, which read as one that comes twice.
//
// Hardly any text has such blanks: those that have are kept, and the others are looked at again only where there are some.
#pragma once

#include "DatumFinder.h"
#include "RowRule.h"

#include "MekRoots/Exp/VorString.h"

#include <map>
#include <string>

namespace mekbom
{
class BlankRule : public RowRule
{
public:
    // The grouping request that names `token`; it outlives the rule.
    BlankRule(const CheckedTuple& request, const std::string& token);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    std::string pairWithPlainText() const;

    const CheckedTuple& m_request;
    DatumFinder m_grouped;
    const VorBomDataRow* m_pFirstRow = nullptr;  // of all that were seen
    std::map<std::string, std::string> m_padded; // texts with such blanks by what they are without; of several one
    std::string m_pair;                          // ""S355 " and " S355"", once there are two with blanks
};
}
