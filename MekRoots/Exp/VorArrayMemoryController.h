// The policy of an array that obtains and frees its storage and ends the lives of its elements.
//
//   VorString* pTexts = VorArrayMemoryController<VorString>::allocate(8);    // room for eight, none constructed
//   VorArrayMemoryController<VorString>::destroy(pTexts, 3);                 // ends the three that were
//   VorArrayMemoryController<VorString>::deallocate(pTexts, 8);
//
// All operations are for arrays and their policies.
#pragma once

#include "VorArrayMisuse.h"
#include "VorMemoryControllerController.h"

#include <cstddef>

template <class T>
class VorArrayMemoryController
{
public:
    static_assert(alignof(T) <= alignof(std::max_align_t), "the memory controller aligns no further");

    // Null for no elements. Throws std::bad_alloc.
    static T* allocate(int numElements)
    {
        return static_cast<T*>(
            VorMemoryControllerController::allocateArray(static_cast<std::size_t>(numElements), sizeof(T)));
    }

    static void deallocate(T* pElements, int numElements)
    {
        VorMemoryControllerController::deallocateArray(pElements, static_cast<std::size_t>(numElements), sizeof(T));
    }

    // Reports and does nothing without elements.
    static void destroy(T* pElements, int numElements)
    {
        if (numElements < 1 || pElements == nullptr)
        {
            VorArrayMisuse::report(L"numElements > 0 && pElements != NULL", VorArrayMisuse::kElementsToDestroyLine);
            return;
        }
        for (int i = 0; i < numElements; ++i)
            pElements[i].~T();
    }
};
