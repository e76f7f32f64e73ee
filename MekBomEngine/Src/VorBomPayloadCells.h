// Memory for the payloads of a section's or row's values, taken at once and so side by side; each value then owns its
// cell as if it had taken it by itself. Ten payloads lie in two or three lines of the cache then, rather than in ten.
//
//   VorBomPayloadCells cells(3);
//   VorBomDataValue first(weight, cells), second(name, cells);   // what is left goes back with `cells`
#pragma once

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorMemoryControllerController.h"

#include <cstddef>

class MEK_BOM_API VorBomPayloadCells
{
public:
    // Bytes of a cell, whatever the kind of its payload.
    static constexpr std::size_t kCellSize = sizeof(double);

    // Takes memory for `numCells`, 0 or more. Too few are no mistake: take() goes on without neighbours.
    explicit VorBomPayloadCells(int numCells)
        : m_pNext(static_cast<char*>(
              VorMemoryControllerController::allocateNeighbours(static_cast<std::size_t>(numCells), kCellSize))),
          m_pEnd(m_pNext == nullptr ? nullptr : m_pNext + static_cast<std::size_t>(numCells) * kCellSize)
    {
    }
    VorBomPayloadCells(const VorBomPayloadCells&) = delete;
    VorBomPayloadCells& operator=(const VorBomPayloadCells&) = delete;
    // Gives back the cells that nobody took, and those alone.
    ~VorBomPayloadCells()
    {
        for (; m_pEnd != m_pNext; m_pEnd -= kCellSize)
            release(m_pEnd - kCellSize);
    }

    // A cell, which the caller owns; one by itself when those taken at the start are used up.
    void* take()
    {
        if (m_pNext == m_pEnd)
            return takeOne();
        void* pCell = m_pNext;
        m_pNext += kCellSize;
        return pCell;
    }

    // Whether take() would take a cell by itself.
    bool isUsedUp() const { return m_pNext == m_pEnd; }

    // A cell without neighbours, and the end of any cell, wherever it was taken; its payload must have ended.
    static void* takeOne() { return VorMemoryControllerController::allocateArray(1, kCellSize); }
    static void release(void* pCell) { VorMemoryControllerController::deallocateArray(pCell, 1, kCellSize); }

private:
    char* m_pNext;
    char* m_pEnd;
};
