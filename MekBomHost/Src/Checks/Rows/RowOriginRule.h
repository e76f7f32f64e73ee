// MB602, MB603 and MB605: rows that no reader of this program makes, but that a program around the engine may hand
// over.
//
//   MB602   a row with %Weight twice: the first one counts
//   MB603   a row with a row below it: the engine looks at the outer one alone
//   MB605   a row that an earlier evaluation left out of sums, or wrote the value of a formula into
//
// They are about rows and not about a tuple, so that their findings have no place in the template.
#pragma once

#include "RowRule.h"

#include "MekRoots/Exp/VorString.h"

#include <string>
#include <vector>

namespace mekbom
{
class RowOriginRule : public RowRule
{
public:
    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    bool isAsBefore(const VorBomDataRow& row) const;

    std::vector<VorString> m_tokens; // those of the last row that was looked at, if they were right; else empty
    long long m_numRows = 0;
    long long m_numWithTokenTwice = 0;
    long long m_numWithSubRows = 0;
    long long m_numMarked = 0; // rows left out of sums, or with the value of a formula
    std::string m_twice;       // the first token that a row has twice
};
}
