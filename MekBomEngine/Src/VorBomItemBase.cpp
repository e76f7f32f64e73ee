#include "VorBomItemBase.h"

#include "VorBomItemWalk.h"

#include "MekRoots/Exp/VorAssert.h"

namespace
{
const wchar_t kSourcePath[] = L"MekBomEngine/Src/VorBomItemBase";

void appendTuple(VorString& out, const VorBomDataTuple& tuple)
{
    out += L'[';
    out += tuple.token().token();
    out += L':';
    out += tuple.value().asString();
    out += L']';
}

void beginLine(VorString& out, int level)
{
    out += L'\n';
    if (level > 0)
        out.append(L' ', level);
}
}

// The pool knows no way but std::bad_alloc to say that there is no memory; callers of this form want null.
void* VorBomItemBase::operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try
    {
        return VorBomItemBase::operator new(size);
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

// Every item writes its own line through its own `list`, asked for that line alone; the walk from line to line happens
// in the call that asked for more.
int VorBomItemBase::list(VorString& out, int level, int withChildren, int withNext)
{
    for (const VorBomDataTuple& tuple : m_data)
        appendTuple(out, tuple);
    if (withChildren != 1 && withNext != 1)
        return 1;

    VorBomItemWalk walk(this, level);
    for (walk.advance(withChildren == 1, withNext == 1); walk.item() != nullptr;
         walk.advance(withChildren == 1, withNext == 1))
    {
        beginLine(out, walk.level());
        walk.item()->list(out, walk.level(), 0, 0);
    }
    return 1;
}

// setChild() and addChild() part where the new child has siblings. Told on A with the sibling B, and then addChild(C):
//   setChild(A)    lastChild() is B, at the end of the chain; C comes behind it: A B C
//   addChild(A)    lastChild() is A, though B is a child, too; C takes B's place: A C, and B hangs nowhere
void VorBomItemBase::setChild(VorBomItemBase* pItem)
{
    m_pChild = pItem;
    m_pLastChild = pItem;
    while (m_pLastChild != nullptr && m_pLastChild->m_pNext != nullptr)
    {
        if (this == m_pLastChild)
            VorAssert::vorAssert(L"this != m_pLastChild", kSourcePath, __LINE__);
        m_pLastChild = m_pLastChild->m_pNext;
    }
}

// Goes along no chain, so that a million rows take a million steps.
void VorBomItemBase::addChild(VorBomItemBase* pItem)
{
    if (m_pChild == nullptr)
    {
        m_pChild = pItem;
        m_pLastChild = pItem;
        return;
    }
    m_pLastChild->m_pNext = pItem;
    if (pItem != nullptr)
        m_pLastChild = pItem;
}

// Neither recursion nor memory: an item whose descendants are being destroyed no longer needs its link to its first
// child, so that link remembers the item above it meanwhile.
//
//   here = A    A.child = B        ->  here = B    A.child = null (above A is the item being emptied)
//   here = B    B.child = C        ->  here = C    B.child = A
//   C destroyed, the last sibling  ->  here = B    above B is A, B.child = null: B can go
void VorBomItemBase::empty()
{
    VorBomItemBase* pAbove = nullptr;
    VorBomItemBase* pHere = m_pChild;
    while (pHere != nullptr)
    {
        if (pHere->m_pChild != nullptr)
        {
            VorBomItemBase* pFirst = pHere->m_pChild;
            pHere->m_pChild = pAbove;
            pAbove = pHere;
            pHere = pFirst;
            continue;
        }
        VorBomItemBase* pNext = pHere->m_pNext;
        delete pHere;
        pHere = pNext;
        if (pHere == nullptr && pAbove != nullptr)
        {
            pHere = pAbove;
            pAbove = pHere->m_pChild;
            pHere->m_pChild = nullptr;
        }
    }
}

// The hottest loop of an evaluation: tokens are copies of one text mostly, and those of another length are passed over
// without a call.
const VorBomDataTuple* VorBomItemBase::getTupleAt(const VorString& token) const
{
    const int length = token.length();
    for (const VorBomDataTuple& tuple : m_data)
    {
        const VorString& candidate = tuple.token().token();
        if (candidate.sharesTextWith(token) || (candidate.length() == length && candidate == token))
            return &tuple;
    }
    return nullptr;
}

VorBomDataTuple* VorBomItemBase::getTupleAt(const VorString& token)
{
    return const_cast<VorBomDataTuple*>(static_cast<const VorBomItemBase&>(*this).getTupleAt(token));
}
