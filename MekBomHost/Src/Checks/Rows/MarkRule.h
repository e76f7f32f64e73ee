// MB212: texts in natural order that differ by leading zeros alone, such as "B2" and "B02". They stand side by side and
// are two groups all the same, which looks as if one of them came twice.
#pragma once

#include "DatumFinder.h"
#include "RowRule.h"

#include "MekRoots/Exp/VorString.h"

#include <string>
#include <unordered_map>

namespace mekbom
{
class MarkRule : public RowRule
{
public:
    // The sorting request that names `token`; it outlives the rule.
    MarkRule(const CheckedTuple& request, const std::string& token);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    const CheckedTuple& m_request;
    DatumFinder m_marked;
    VorString m_last;                                     // of the row before: most marks follow themselves
    std::unordered_map<std::string, std::string> m_marks; // by what they are without leading zeros
    std::string m_pair;                                   // "B02" and "B2", once there are such
};
}
