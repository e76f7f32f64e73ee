// The policy of an array that takes elements to new storage as objects: each is moved to its new place and destroyed in
// the old one. For every type that can be moved or copied.
//
//   VorArrayObjectCopyReallocator<VorString>::relocate(pNew, pOld, 3);    // three texts live at pNew, none at pOld
#pragma once

#include <new>
#include <utility>

template <class T>
class VorArrayObjectCopyReallocator
{
public:
    // The two ranges do not overlap; `pTarget` is raw storage, and `pSource` is afterwards.
    static void relocate(T* pTarget, T* pSource, int numElements)
    {
        for (int i = 0; i < numElements; ++i)
        {
            ::new (static_cast<void*>(pTarget + i)) T(std::move(pSource[i]));
            pSource[i].~T();
        }
    }
};
