// Memory for the payloads of a section's or row's values, taken at once and so side by side; each value then owns its
// cell as if it had taken it by itself.
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

    explicit VorBomPayloadCells(int numCells)
        : m_pNext(static_cast<char*>(
              VorMemoryControllerController::allocateNeighbours(static_cast<std::size_t>(numCells), kCellSize))),
          m_pEnd(m_pNext == nullptr ? nullptr : m_pNext + static_cast<std::size_t>(numCells) * kCellSize)
    {
    }
    VorBomPayloadCells(const VorBomPayloadCells&) = delete;
    VorBomPayloadCells& operator=(const VorBomPayloadCells&) = delete;
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

    bool isUsedUp() const { return m_pNext == m_pEnd; }

    static void* takeOne() { return VorMemoryControllerController::allocateArray(1, kCellSize); }
    static void release(void* pCell) { VorMemoryControllerController::deallocateArray(pCell, 1, kCellSize); }

private:
    char* m_pNext;
    char* m_pEnd;
};
