// Memory for the payloads of a section's or row's values, taken at once and so side by side; each value then owns its
// cell as if it had taken it by itself. Ten payloads lie in two or three lines of the cache then, rather than in ten.
//
//   VorBomPayloadCells cells(3);
//   VorBomDataValue first(weight, cells), second(name, cells);   // what is left goes back with `cells`
//
// A cell fits any payload that a value may have: an int, a double, or a VorString, which is one pointer. That they are
// all of one size is what lets a value keep its cell when its kind changes.
//
// Who owns what: this object owns the cells that nobody has taken, and every cell taken belongs to its taker. The
// object may go before the values do, and they may go in any order and on any thread: a cell that was taken among
// neighbours is given back like any other. The object itself is for one thread at a time.
//
// Memory that the system refuses ends in std::bad_alloc; no cell is lost by it.
#pragma once

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorMemoryControllerController.h"

#include <cstddef>

class MEK_BOM_API VorBomPayloadCells
{
public:
    // Bytes of a cell, whatever the kind of its payload. Cells are aligned to as many bytes.
    static constexpr std::size_t kCellSize = sizeof(double);

    // Takes memory for `numCells`, 0 or more. Too few are no mistake: take() goes on without neighbours.
    // The pool serves no more than VorMemoryControllerController::kLargestNeighbourhood bytes side by side. Asked for
    // more it gives nothing, and this object begins used up: correct, only not faster than values that take cells by
    // themselves.
    //   VorBomPayloadCells tooMany(2000);
    //   tooMany.isUsedUp()   ->  true
    explicit VorBomPayloadCells(int numCells)
        : m_pNext(static_cast<char*>(
              VorMemoryControllerController::allocateNeighbours(static_cast<std::size_t>(numCells), kCellSize))),
          m_pEnd(m_pNext == nullptr ? nullptr : m_pNext + static_cast<std::size_t>(numCells) * kCellSize)
    {
    }
    // A copy would hand the same cells out twice.
    VorBomPayloadCells(const VorBomPayloadCells&) = delete;
    VorBomPayloadCells& operator=(const VorBomPayloadCells&) = delete;
    // Gives back the cells that nobody took, and those alone.
    ~VorBomPayloadCells()
    {
        for (; m_pEnd != m_pNext; m_pEnd -= kCellSize)
            release(m_pEnd - kCellSize);
    }

    // A cell, which the caller owns; one by itself when those taken at the start are used up.
    //   VorBomPayloadCells one(1);
    //   void* pFirst = one.take();    was taken at the start
    //   one.isUsedUp()   ->  true
    //   void* pSecond = one.take();   is taken now, by itself
    // Nothing is made in a cell: its memory is as the pool gives it, and the caller makes the payload there.
    void* take()
    {
        if (m_pNext == m_pEnd)
            return takeOne();
        void* pCell = m_pNext;
        m_pNext += kCellSize;
        return pCell;
    }

    // Whether take() would take a cell by itself.
    // For those who make results over a long time: they then begin with a new stretch instead of going on without
    // neighbours.
    bool isUsedUp() const { return m_pNext == m_pEnd; }

    // A cell without neighbours, and the end of any cell, wherever it was taken; its payload must have ended.
    // Neither touches an object of this class, so values call them without knowing how their cell was come by.
    // release() ends no payload's life: a text in the cell would never be given back.
    static void* takeOne() { return VorMemoryControllerController::allocateArray(1, kCellSize); }
    static void release(void* pCell) { VorMemoryControllerController::deallocateArray(pCell, 1, kCellSize); }

private:
    // Both null, or the half-open range of what is left: m_pNext is the cell that take() hands out next.
    char* m_pNext;
    char* m_pEnd;
};
