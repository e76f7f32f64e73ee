// A node of a tree, with a list of tuples: the base of data rows and report sections.
//
//   VorBomItemBase item;
//   item.addData(VorBomDataTuple(L"%PosNum", 12));
//   item.addData(VorBomDataTuple(L"%Weight", 3.5));
//   VorString text;
//   item.list(text, 0, 0, 0);   // text is now "[%PosNum:12][%Weight:3.5]"
//
// Children are a chain: child() is the first, each one's next() the following, lastChild() where addChild goes on.
//
// Ownership: an item owns its tuples. Its children and siblings are not owned: destroying an item leaves them alone.
// Only empty() destroys them, and the root's owner calls it before it destroys the root. Copies share the children of
// their source, so only one of the two may be emptied. Everything that is hung in a tree to be emptied must come from
// `new`.
//
// Rows hang among rows and sections among sections: who walks a tree casts what it meets to the kind of its root,
// unasked.
//
// Errors: what misuse is reported is named below; everything else asks its caller to keep the rules and checks
// nothing. Null is a link like any other where it is not excluded. std::bad_alloc passes through where the system has
// no memory.
//
// Threads: one tree is for one thread at a time. Trees that share no items, nor children by copying, are independent.
//
// Trees of any depth and width are fine: nothing here recurses.
#pragma once

#include "VorBomDataTuple.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorMemoryControllerController.h"
#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <new>

class MEK_BOM_API VorBomItemBase
{
public:
    VorBomItemBase() = default;

    // Copies the three links as they stand, and the tuples with payloads of their own; tuples with empty values too.
    VorBomItemBase(const VorBomItemBase& other) = default;
    VorBomItemBase& operator=(const VorBomItemBase& other) = default;

    virtual ~VorBomItemBase() = default;

    // Items come from the pool that tuples and texts come from.
    // The size is needed to give a block back to the pool, and the language hands it to operator delete only where the
    // most derived class is known, which the virtual destructor sees to.
    static void* operator new(std::size_t size) { return VorMemoryControllerController::allocateArray(1, size); }
    static void operator delete(void* pItem, std::size_t size)
    {
        VorMemoryControllerController::deallocateArray(pItem, 1, size);
    }

    // The other forms of new, which those above would hide. A constructor that throws after new (std::nothrow) leaks
    // its block: the language does not say how large it is.
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    static void operator delete(void*, const std::nothrow_t&) noexcept {}
    static void* operator new(std::size_t, void* pPlace) noexcept { return pPlace; }
    static void operator delete(void*, void*) noexcept {}

    // Appends one line per item to `out`: for each tuple "[token:value]", as VorBomDataValue::asString shows the value.
    // With `withChildren` 1 the children follow on lines of their own, each led by one blank per level; with
    // `withNext` 1 the siblings do, after the children. The children's siblings are listed only when this item's are.
    //   root.list(out, 0, 1, 1);   // "[%A:1]\n [%B:2]\n  [%C:3]\n [%D:4]\n[%E:5]"
    // `level` is the item's own depth, which leads no blanks itself. Returns 1.
    virtual int list(VorString& out, int level, int withChildren, int withNext);

    // The links, each null at its end. Setting one neither destroys nor unhangs what it named before.
    // The item owns none of the three. lastChild() is what addChild() goes on from, and not always the last of the
    // chain: see there.
    VorBomItemBase* next() const { return m_pNext; }
    VorBomItemBase* child() const { return m_pChild; }
    VorBomItemBase* lastChild() const { return m_pLastChild; }
    void setNext(VorBomItemBase* pNext) { m_pNext = pNext; }

    // Makes `pItem` and all its siblings the children, null for none; the former children are not destroyed. Reports
    // "this != m_pLastChild" when this item is met among them, the last one excepted, and goes on.
    void setChild(VorBomItemBase* pItem);

    // Appends `pItem` to the children. Null ends the chain after the last child.
    // On purpose: unlike setChild, lastChild() becomes `pItem` itself even when it already has siblings, so that a
    // following addChild replaces those. Pinned by VorBomItemBaseTest.AddChildDoesNotFollowTheSiblings.
    void addChild(VorBomItemBase* pItem);

    // Destroys everything below this item, siblings in their order, each one's descendants before it.
    // On purpose: child() and lastChild() are left as they were and must not be used again; destroy the item, or give
    // it children with setChild. The tuples stay. Pinned by VorBomItemBaseTest.EmptyLeavesTheLinksAndTuples.
    void empty();

    // The tuples, in their order: append one, replace all, or work on the list itself. Two may have the same token; the
    // first is found then.
    void addData(const VorBomDataTuple& tuple) { m_data.append(tuple); }
    void addData(VorBomDataTuple&& tuple) { m_data.append(std::move(tuple)); }
    void setData(const VorBomDataTupleArray& data) { m_data = data; }
    const VorBomDataTupleArray& getData() const { return m_data; }
    VorBomDataTupleArray& getData() { return m_data; }

    // The first tuple with exactly this token, or null; it lives until tuples are added. "%Weight" does not find
    // "%GroupBy:%Weight". Cheapest when `token` is a copy of the tuples' own tokens rather than an equal text.
    const VorBomDataTuple* getTupleAt(const VorString& token) const;
    VorBomDataTuple* getTupleAt(const VorString& token);

private:
    friend class VorBomEvaluator2; // relinks rows
    friend class VorBomInputRows;  // likewise

    // Makes a chain whose last item is known the children, without a walk along it.
    void setChildren(VorBomItemBase* pFirst, VorBomItemBase* pLast)
    {
        m_pChild = pFirst;
        m_pLastChild = pLast;
    }

    VorBomItemBase* m_pNext = nullptr;
    VorBomItemBase* m_pChild = nullptr;
    VorBomItemBase* m_pLastChild = nullptr; // so that appending takes constant time
    VorBomDataTupleArray m_data;            // in the order of insertion
};
