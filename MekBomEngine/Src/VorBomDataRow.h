// What is known of one modelled object, and which objects of the model it stands for: a row of the input.
//
//   VorBomDataRow* pRow = new VorBomDataRow;
//   pRow->setObjectHandle(L"1A7");
//   pRow->addData(VorBomDataTuple(L"%Name", VorString(L"HEA200")));
//   pRow->addData(VorBomDataTuple(L"%Weight", 126.9));
//   data.addChild(pRow);
//
// Children are sub-rows, the parts of an assembly, to any depth; the evaluation reads top-level rows only. Ownership
// and copying are those of VorBomItemBase.
//
// One evaluation changes its rows: it reorders and relinks them, marks the tuples it used, appends a tuple for each
// formula it computed, and clears getUseThisDataForSums() of rows whose line was merged into an equal one. For a fresh
// start build fresh rows, or have them restored (VorBomData).
#pragma once

#include "VorBomItemBase.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <atomic>
#include <cstdint>

// Lists of texts side by side, one list per row.
using VorStringArrayArray = VorArray<VorStringArray>;

class MEK_BOM_API VorBomDataRow : public VorBomItemBase
{
public:
    // A new row has no handles, the key 0, and counts in sums. Copies take all of it and links as they stand: sub-rows
    // are shared.
    VorBomDataRow() = default;
    VorBomDataRow(const VorBomDataRow& other);
    VorBomDataRow& operator=(const VorBomDataRow& other);
    ~VorBomDataRow() override;

    // The handle, in the model, of the object described.
    // Any text; empty until it is set. The engine reports it and looks for nothing by it.
    const VorString& objectHandle() const { return m_objectHandle; }
    void setObjectHandle(const VorString& handle) { m_objectHandle = handle; }

    // The host's own number for the object described: a pointer, an index, a key of its database. 0 until it is set.
    // Kept and copied with the row's handle, and looked at by nothing here.
    //   VorBomDataRow beam;
    //   beam.setHostKey(0x1A7);
    //   VorBomDataRow copy(beam);
    //   copy.hostKey()   ->  0x1A7
    std::uint64_t hostKey() const { return m_nHostKey; }
    void setHostKey(std::uint64_t key) { m_nHostKey = key; }

    // The handles of the other objects that equal this one and have no row of their own. The reference holds as long as
    // the row and shows what it has at the time.
    const VorStringArray& EqualPartObjectHandles() const { return ownHandles(); }
    void setEqualPartObjectHandles(const VorStringArray& handles);

    // 1 at first; 0 takes the row out of sums and of the template's report of used data.
    // Any number but 0 counts. Not only hosts set it: a row whose line was merged into an equal one has 0 after the
    // report.
    int getUseThisDataForSums() const { return m_nUseThisDataForSums; }
    void setUseThisDataForSums(int use) { m_nUseThisDataForSums = use; }

    // Copies everything but the links; null changes nothing.
    void setFrom(VorBomDataRow* pRow);

    // Orders this row against `pOther`, not null, by the values of `tokens`, the first difference counting: what
    // VorBomDataValue::compare says of two values; 1 when only this row has one, -1 when only the other has; a token
    // that both lack is passed over. 0 when nothing differs. Natural order is not looked for here.
    int compare(VorBomDataRow* pOther, const VorStringArray& tokens) const;

    // Appends one list each to `handles` and `tokens`, at the same index: this row's handle followed by its equal
    // parts', and the tokens of the tuples whose used flag is exactly 1. Appends nothing when there is no such tuple.
    void appendUsedHandlesAndTokens(VorStringArrayArray& handles, VorStringArrayArray& tokens) const;

private:
    friend class VorBomInputRows;

    VorStringArray& ownHandles() const;
    void takeHandlesOf(const VorBomDataRow& other);

    VorString m_objectHandle;
    // Owned. Null in nearly all rows, until handles are set or asked for; from then on the same array.
    mutable std::atomic<VorStringArray*> m_pEqualPartObjectHandles{ nullptr };
    std::uint64_t m_nHostKey = 0;
    int m_nUseThisDataForSums = 1;
    int m_nInputPlace = 0; // among the rows that VorBomData::rememberRows() met last; in bytes that were padding
};
