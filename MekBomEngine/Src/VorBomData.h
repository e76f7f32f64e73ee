// The input of a report: the container at the root of the data rows.
//
//   VorBomData* pData = pTemplate->getBomData();
//   pData->addChild(pRow);                       // a VorBomDataRow from `new`, for every modelled object
//
// Its children are VorBomDataRow objects and nothing else. A template owns its data; data that stand alone are emptied
// (VorBomItemBase::empty) before they are destroyed.
#pragma once

#include "VorBomDataRow.h"
#include "VorBomItemBase.h"

#include "MekRoots/Exp/MekExport.h"

#include <memory>

class VorBomInputRows;

class MEK_BOM_API VorBomData : public VorBomItemBase
{
public:
    VorBomData() = default;
    VorBomData(const VorBomData& other) = default;
    VorBomData& operator=(const VorBomData& other) = default;
    ~VorBomData() override = default;

    // Sample rows for trying things out without a model: "1" to "12" are always the same, "13" to "112" differ from run
    // to run. Each has an int "PosNum", a double "Weight" and a text "Material"; on purpose without the "%" of the
    // token language, which is not what they exercise. Seeds the C library's rand() with the time. The caller empties
    // and deletes the result.
    static VorBomData* createDefaultData();

    // The number of row levels: 1 for rows without sub-rows. Only for data with at least one row.
    int depthLevel();

    // Appends, for every top-level row that has used data, the handles of its objects to `handles` and the used tokens
    // to `tokens`, at the same index: VorBomDataRow::appendUsedHandlesAndTokens. Sub-rows are not looked at; rows that
    // do not count in sums are, other than in VorBomTemplate::getUsedHandlesAndTokens. Returns 1.
    int getUsedHandlesAndTokens(VorStringArrayArray& handles, VorStringArrayArray& tokens);

    // For several lists of one set of rows. rememberRows() writes down what an evaluation changes in rows;
    // restoreRows() takes it back: order, used flags, getUseThisDataForSums(), and the tuples "%Formula:..." that were
    // appended since. Rows may be appended again then; remember them anew.
    //   data.rememberRows();
    //   evaluate(firstTemplate);
    //   data.restoreRows()   ->  1
    //   evaluate(secondTemplate);            as a report of fresh rows
    // restoreRows() answers 0 and changes nothing when nothing was remembered, or when rows were added or taken out
    // since. Rows that were remembered must not be destroyed before they are restored or others remembered. Copies of
    // data share the rows and what is remembered of them. Sub-rows are left alone: no evaluation reads them.
    void rememberRows();
    int restoreRows();

private:
    std::shared_ptr<const VorBomInputRows> m_pInputRows; // null while nothing is remembered
};
