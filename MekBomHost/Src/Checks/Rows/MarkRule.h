// MB212, a note: texts in natural order that differ by leading zeros alone. They stand side by side and are two groups
// all the same, which looks as if one of them came twice.
//
//   rows with the marks "B2" and "B02", sorted by %PNum     ->   told, with both
//   rows with the marks "B2", "B20" and "C02"               ->   nothing to tell
//
// Keeps each mark once: its memory grows with the marks, not with the rows.
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
    // `request` is the sorting request that names `token`; it outlives the rule.
    MarkRule(const CheckedTuple& request, const std::string& token);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    const CheckedTuple& m_request;
    DatumFinder m_marked;
    VorString m_last;                                     // of the row before: most marks follow themselves
    std::unordered_map<std::string, std::string> m_marks; // "B2" -> "B02": by what they are without leading zeros
    std::string m_pair; // the first two that are alike, in quotes; empty as long as there are none
};
}
