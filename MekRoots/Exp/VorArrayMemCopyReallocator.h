// The policy of an array that takes elements to new storage byte by byte. For plain values such as int and pointers.
//
//   VorArrayMemCopyReallocator<int>::relocate(pNew, pOld, 3);    // the same three numbers at pNew
#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>

template <class T>
class VorArrayMemCopyReallocator
{
    static_assert(std::is_trivially_copyable<T>::value, "only plain values can be copied byte by byte");

public:
    // The two ranges do not overlap. Nothing is touched for no elements, for which both may be null.
    static void relocate(T* pTarget, const T* pSource, int numElements)
    {
        if (numElements > 0)
            std::memcpy(pTarget, pSource, static_cast<std::size_t>(numElements) * sizeof(T));
    }
};
