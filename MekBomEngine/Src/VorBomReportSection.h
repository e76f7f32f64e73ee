// One section of an evaluated report, as a VorBomSectionSink gets it.
//
//   details line of the row "P1", 12.5 kg, shown in pounds
//     section.getData()   [%Num:P1][%Weight:27.56]
//     level               2
//     pRow                the row "P1"
//     pValues[1]          kDoubleData, 12.5, kWeightUnit
//
// Owns nothing. All it refers to lives until the call that it was handed to returns, and may only be read.
#pragma once

#include "VorBomCountedRows.h"
#include "VorBomTemplateItem.h"
#include "VorBomTypedValue.h"

struct VorBomReportSection
{
    const VorBomTemplateItem& section; // its numbers shown as texts; hangs in no tree, so that its links say nothing
    int level;                         // from 0, the outermost

    // The row that opened a header's group, of a details line its own; null for a footer.
    const VorBomDataRow* pRow = nullptr;
    // The rows that a footer counts; none for a header.
    VorBomCountedRows countedRows = {};

    // For each tuple of the section what it held before it was shown; null unless the sink asked for kTypedValues.
    const VorBomTypedValue* pValues = nullptr;

    // Of a footer, for each of its tuples how many of the counted rows have a datum for it; null for a header.
    //   "%SumBy:%Weight" 4 over rows of 2.5 kg, of 1.5 kg and one without weight   ->   2
    const int* pNumRowsWithDatum = nullptr;

    // The section of the template that this one was made from; its tuples have the same places. Never null in what an
    // evaluation hands over.
    const VorBomTemplateItem* pTemplateSection = nullptr;
};
