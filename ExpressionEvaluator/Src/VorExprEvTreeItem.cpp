// Deleting "(a+b)*c" from its root:
//   '*' takes its children off itself and puts them on a list:   + c
//   '+' leaves the list, its children join it:                   a b c
//   '+', now childless, is deleted, then a, b and c in turn.
// The list is linked through the nodes' own `next`, so no depth of tree needs a deep stack or more memory.
#include "VorExprEvTreeItem.h"

#include "Tree/VorExprEvTreeItemStack.h"
#include "VorExprEvValue.h"

#include "MekRoots/Exp/VorDebugOutput.h"
#include "MekRoots/Exp/VorMemoryControllerController.h"

#include <algorithm>

VorExprEvTreeItem::~VorExprEvTreeItem()
{
    VorExprEvTreeItemStack condemned;
    condemned.push(m_pRight);
    condemned.push(m_pLeft);
    while (VorExprEvTreeItem* pItem = condemned.pop())
    {
        condemned.push(pItem->m_pRight);
        condemned.push(pItem->m_pLeft);
        pItem->m_pLeft = nullptr;
        pItem->m_pRight = nullptr;
        delete pItem;
    }
}

void VorExprEvTreeItem::setChildren(VorExprEvTreeItem* pLeft, VorExprEvTreeItem* pRight)
{
    m_pLeft = pLeft;
    m_pRight = pRight;
}

void* VorExprEvTreeItem::operator new(std::size_t size)
{
    return VorMemoryControllerController::allocateArray(1, size);
}

void VorExprEvTreeItem::operator delete(void* pBlock, std::size_t size)
{
    VorMemoryControllerController::deallocateArray(pBlock, 1, size);
}

// The debug output wants a terminated text, which a view is not: its characters are copied, as many as there is room
// for.
int VorExprEvTreeItem::printText() const
{
    wchar_t buffer[VorExprEvValue::kBufferLength] = L"0";
    if (m_text.hasText())
    {
        const std::wstring_view text = m_text.existingPart();
        const std::size_t nCopied = text.copy(buffer, std::size(buffer) - 1);
        buffer[nCopied] = L'\0';
    }
    VorDebugOutput::write(L"\n");
    VorDebugOutput::write(buffer);
    return 1;
}
