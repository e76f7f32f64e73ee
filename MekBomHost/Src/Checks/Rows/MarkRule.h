// MB212, a note: texts in natural order that differ by leading zeros alone. They stand side by side and are two groups
// all the same, which looks as if one of them came twice.
//
//   rows with the marks "B2" and "B02", sorted by %PNum     ->   told, with both
//   rows with the marks "B2", "B20" and "C02"               ->   nothing to tell
//
// Rows whose marks have no leading zeros, as most have none, are looked at once and nothing of them is kept.
#pragma once

#include "DatumFinder.h"
#include "RowRule.h"

#include <string>

namespace mekbom
{
class MarkRule : public RowRule
{
public:
    // `request` is the sorting request that names `token`; it outlives the rule.
    MarkRule(const CheckedTuple& request, const std::string& token);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    std::string firstPair() const;

    const CheckedTuple& m_request;
    DatumFinder m_marked;
    const VorBomDataRow* m_pFirstRow = nullptr;
    bool m_hasLeadingZeros = false;
};
}
