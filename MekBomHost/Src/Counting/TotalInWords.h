// What a footer shows in place of a sum, in words: for the foot of the list, and for those who want a line explained.
//
//   totalInWords({ ColumnTotal::kGreatest }, L"%Length")       ->  "the largest %Length"
//   totalInWords({ ColumnTotal::kMean }, L"%Length")           ->  "the mean %Length of all pieces"
#pragma once

#include "ColumnTotal.h"

#include "MekRoots/Exp/VorString.h"

#include <string>

namespace mekbom
{
// UTF-8. `datum` is what the total is about; it says nothing of one that is calculated.
std::string totalInWords(const ColumnTotal& total, const VorString& datum);
}
