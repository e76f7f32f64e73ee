// MB602, MB603 and MB605: rows that no reader of this program makes, but that a program around the engine may hand
// over: a token twice in one row, rows below rows, and what an earlier evaluation left in them.
#pragma once

#include "RowRule.h"

#include "MekRoots/Exp/VorString.h"

#include <string>
#include <vector>

#include <string>

namespace mekbom
{
class RowOriginRule : public RowRule
{
public:
    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    bool isAsBefore(const VorBomDataRow& row) const;

    std::vector<VorString> m_tokens; // of the last row whose tokens were looked at and found right
    long long m_numRows = 0;
    long long m_numWithTokenTwice = 0;
    long long m_numWithSubRows = 0;
    long long m_numMarked = 0; // left out of sums, or with the value of a formula
    std::string m_twice;       // the first token that a row has twice
};
}
