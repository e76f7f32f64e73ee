// MB503 with data: a header or footer shows what is not the same in all rows of its groups.
//
//   rows HEA200 S235, HEA200 S355, grouped by %Name, whose header shows %Material   ->   "varies: S235, S355"
//
// Lengths of 500 mm and 499.999 mm print alike and do not vary: what has a unit is compared to half of its second
// decimal. A plain number is printed in full, and so compared.
//
// Rows of a group need not follow each other yet, so each row is compared with the first that has the same values under
// the tokens of the group. Groups are told apart by a hash of 64 bits: that two of a million share one and are taken
// for one group has a chance of one in thirty million, and costs a needless warning.
#pragma once

#include "KnownTokens.h"
#include "RowRule.h"

#include "MekRoots/Exp/VorString.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace mekbom
{
class VaryingRule : public RowRule
{
public:
    // `groupTokens` tell the groups of a level from each other, and `tuples` are what its header and footer show that
    // may vary in them. The tuples outlive the rule, `tokens` is asked only here.
    VaryingRule(const std::vector<std::string>& groupTokens, const std::vector<const CheckedTuple*>& tuples,
                const KnownTokens& tokens);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    struct Watched
    {
        const CheckedTuple* pTuple;
        VorString token;
        double tolerance;   // numbers closer than that, in the model's unit, are the same
        std::string values; // "S235, S355" of the first group that has two; empty as long as none has
    };

    std::uint64_t groupOf(const VorBomDataRow& row) const;

    std::vector<VorString> m_groupTokens;
    std::vector<Watched> m_watched;
    std::size_t m_numVarying = 0;                                        // how many of m_watched have values
    std::unordered_map<std::uint64_t, const VorBomDataRow*> m_firstRows; // the first row of each group, by its hash
};
}
