// One section of a report template: a header, a details section, a footer, or the template root.
//
//   VorBomTemplateItem group(VorBomTemplateItem::kGroupHeader);
//   group.addData(VorBomDataTuple(L"%GroupBy:%PosNum", VorString()));
//   group.addData(VorBomDataTuple(L"%PosNum", 0));
//   group.findGroupingTokens();
//   group.groupingTokens()  ->  "%PosNum"
//
// The tuples are the section's columns and its instructions. Sections nest: the first child of a section opens the next
// level, and the sibling after that child closes it.
//   kBomTemplate
//     kReportHeader          opens the report
//       kGroupHeader         opens a group; another group header in its place under it groups again within the group
//         kDetails           a line for every row
//       kGroupFooter         closes the group
//     kReportFooter          closes the report
// Children of a section are sections and nothing else. Ownership and copying are those
// of VorBomItemBase.
//
// Whether a section opens or closes a level is told by where it stands, not by its type; siblings after the one that
// closes it are not evaluated. The type decides the rest: only lines of kDetails are merged with an equal line before,
// and only nested kGroupHeader sections are searched by the find operations. Page headers and
// footers are carried for hosts that lay out pages; the engine gives them no meaning.
//
// What the tuples ask for is cached, and the evaluation reads the caches as they stand: they are filled by the find
// operations, for a whole template by VorBomTemplate::findUsedTokens, which the host calls once the sections are built.
// findUsedTokens fills what groups and sorts. What filters (filterObjTypes) is filled by findFilterObjTypes alone, and
// the engine filters nothing by it: that is the host's to do, before it makes rows.
//
// A section is for one thread at a time, with one exception: the three caches of a finished report's sections may be
// asked for by several threads at once, and so may the same section be.
#pragma once

#include "VorBomDataRow.h"
#include "VorBomItemBase.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <atomic>
#include <memory>

class MEK_BOM_API VorBomTemplateItem : public VorBomItemBase
{
public:
    // The numbers are part of the contract: templates and the evaluation compare them.
    enum eTemplateItemType : int
    {
        kUnkTemplateItemType = 0,
        kBomTemplate = 1,
        kReportHeader = 2,
        kPageHeader = 3,
        kGroupHeader = 4,
        kDetails = 5,
        kGroupFooter = 6,
        kPageFooter = 7,
        kReportFooter = 8
    };

    // A section has no tuples, no children and empty caches until it is given some.
    VorBomTemplateItem() = default; // of type kUnkTemplateItemType
    explicit VorBomTemplateItem(eTemplateItemType type) : m_nType(type) {}

    // An evaluated section begins as a copy of its template's that hangs nowhere and whose tuples are still to come.
    enum eCopyPart
    {
        kWithoutLinksAndTuples
    };
    VorBomTemplateItem(const VorBomTemplateItem& other, eCopyPart);

    // Copies share the children and the first data row; caches and tuples are copied.
    // Assigning fills the target's own caches in place: references handed out by it show the new content. Only one of
    // two sections that share children may be emptied.
    VorBomTemplateItem(const VorBomTemplateItem& other);
    VorBomTemplateItem& operator=(const VorBomTemplateItem& other);
    ~VorBomTemplateItem() override = default;

    eTemplateItemType type() const { return m_nType; }

    // A section's type is meant to be set once: reports "kUnkTemplateItemType == m_nType" when it already has one, and
    // sets it all the same.
    void setType(eTemplateItemType type);

    // The first child, not grandchild, of that type; null when there is none.
    // Not owned by the caller; it lives as long as it hangs here. The time it takes grows with the number of children.
    //   report.getSubItemAt(VorBomTemplateItem::kGroupFooter)   ->  null, while only the groups in it have footers
    VorBomTemplateItem* getSubItemAt(eTemplateItemType type) const;

    // Fill this section's cache anew with what its tuples ask for, repeated requests repeatedly, then do the same for
    // the first child of type kGroupHeader, and so on down; other children are left alone. Return 1.
    // To be called after the tuples were added and again when they change: addData() and setData() leave the caches as
    // they are. What a request is, VorBomDataToken tells; tuples that ask for nothing are passed over. Nothing is
    // reported.
    //   VorBomTemplateItem details(VorBomTemplateItem::kDetails);
    //   details.addData(VorBomDataTuple(L"%SortDescBy:%Weight,%Name", VorString()));
    //   details.findSortingTokens();
    //   details.sortingTokens()   ->  "%SortDescBy:%Weight", "%Name": both descending
    int findGroupingTokens();
    int findSortingTokens();
    int findFilterObjTypes();

    // The caches as they stand. The references hold as long as the section and show what it has at the time.
    // A section that groups by nothing has one group, to which all rows of the group around it belong; on the deepest
    // level every row is one, whatever is asked for. An element to sort by that has no prefix sorts in the direction of
    // the one before it. All are in the order of the tuples.
    const VorStringArray& groupingTokens() const { return requests().groupingTokens; }
    const VorStringArray& sortingTokens() const { return requests().sortingTokens; } // each with its direction prefix
    const VorArray<int>& filterObjTypes() const { return requests().filterObjTypes; }

    // The first row placed in an evaluated section. Not owned, may be null.
    // The evaluation sets it to the row that opened the group, by whose data evaluated sections are sorted and from
    // which on used data are reported. So the rows must live as long as either is still to be asked; sections of a
    // template have none.
    VorBomDataRow* getFirstDataRow() const { return m_pFirstDataRow; }
    void setFirstDataRow(VorBomDataRow* pRow) { m_pFirstDataRow = pRow; }

    // As VorBomItemBase::list, every line led by its section's type:  "[ kGroupHeader ][%PosNum:12]"
    // A type that is none of the nine has no label.
    // A group by %Material with two lines, listed with children and siblings:
    //   [ kGroupHeader ][%GroupBy:%Material:][%Material:S235]
    //    [ kDetails     ][%PNum:P1]
    //    [ kDetails     ][%PNum:P2]
    int list(VorString& out, int level, int withChildren, int withNext) override;

private:
    friend class VorBomTemplate; // fills the caches section by section

    // What the tuples of a section ask for. A report has a copy of a section for every line and nobody asks those for
    // their requests, so copies share one object, which never changes. Who is asked gets one of its own before it hands
    // out a reference: that one is changed in place, and nobody else's.
    struct Requests
    {
        VorStringArray groupingTokens;
        VorStringArray sortingTokens;
        VorArray<int> filterObjTypes;
        std::shared_ptr<Requests> pForCopies; // the same, for sections that are made from this one; null when all empty
    };

    // Asking is what makes a section's requests its own; whoever only copies goes through requestsForCopies(), which
    // does not. The flag is read without a lock, as everybody asks who evaluates; the lock is taken the first time
    // alone.
    const Requests& requests() const { return ownRequests(); }
    Requests& ownRequests() const
    {
        if (!m_ownsRequests.load(std::memory_order_acquire))
            makeOwnRequests();
        return *m_pRequests;
    }
    void makeOwnRequests() const;
    std::shared_ptr<Requests> requestsForCopies() const;
    static void renewForCopies(Requests& own);

    // This section's cache alone, without those of the groups within it.
    void findOwnGroupingTokens();
    void findOwnSortingTokens();
    void findOwnFilterObjTypes();
    int findDownGroups(void (VorBomTemplateItem::*findOwn)());

    eTemplateItemType m_nType = kUnkTemplateItemType;
    mutable std::atomic<bool> m_ownsRequests{ false };
    mutable std::shared_ptr<Requests> m_pRequests; // until owned, shared with other sections, or null for no requests
    VorBomDataRow* m_pFirstDataRow = nullptr;
};
