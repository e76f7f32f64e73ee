// The growable array of this system. Include VorArray.h, which brings the policies as well.
//
//   VorStringArray tokens;                       // logical length 0, physical length 0, block of 8
//   tokens.append(VorString(L"%Weight"));        // logical length 1, physical length 8
//
// Lengths are signed 32-bit. The logical length counts elements; the physical length follows the block rule below and
// is what callers see; the capacity, the room there really is, grows by half once it is past a few elements, so that a
// million appends cost linear time whatever block was chosen. Only the elements below the logical length exist.
//
// Physical length: an append at index n beyond it makes it (n / block + 1) * block. setPhysicalLength keeps the storage
// when the new length is not above the current one and above 0.75 of it; 0 frees the storage; anything else gives
// exactly that many.
//
// Misuse is reported under the path "MekRoots/Exp/VorArray" and survived: an access that has no element goes to a
// default-constructed one of its own, which the caller may read and write without touching anything else (until the
// next such access to an array of the same element type on this thread); an invalid length or index changes nothing.
//
// Copies equal their source: elements are copy-constructed into fresh places, never assigned over old ones.
#pragma once

#include "VorArrayMisuse.h"
#include "VorArrayNoElement.h"
#include "VorString.h"

#include <cstddef>
#include <functional>
#include <limits>
#include <new>
#include <utility>

// `T` is the type of the elements, `R` the policy that takes them to new storage and `M` the one that obtains it; the
// defaults of both stand in VorString.h.
template <class T, class R, class M>
class VorArray
{
public:
    static constexpr int kDefaultGrowBy = 8;

    // Blocks up to this are taken whole at the first append; larger ones are grown into, since most of the arrays that
    // ask for blocks of thousands stay short.
    static constexpr int kLargestWholeBlock = 64;

    VorArray() = default;
    // A block below 1 counts as 1.
    explicit VorArray(int growBy) : m_nGrowBy(growBy < 1 ? 1 : growBy) {}
    VorArray(const VorArray& other) : VorArray(other.m_nGrowBy) { append(other); }
    VorArray(VorArray&& other) noexcept { exchange(other); }
    VorArray& operator=(const VorArray& other);
    VorArray& operator=(VorArray&& other) noexcept;
    ~VorArray() { release(); }

    int length() const { return m_nLength; }
    int physicalLength() const { return m_nPhysicalLength; }
    int growBy() const { return m_nGrowBy; }
    void setGrowBy(int growBy) { m_nGrowBy = growBy < 1 ? 1 : growBy; }
    int isEmpty() const { return m_nLength == 0 ? 1 : 0; }
    int isValid(int index) const { return index >= 0 && index < m_nLength ? 1 : 0; }

    // Appends a copy; `element` may be an element of this array.
    void append(const T& element);
    void append(T&& element);
    // Appends copies of all elements of `other`, which may be this array.
    void append(const VorArray& other);
    // Appends copies of `numElements` elements, which may stand in this array. Reports and appends nothing for a null
    // pointer or a count below 1.
    void append(const T* pElements, int numElements);

    // Appends an element constructed from `arguments`, which must not refer to elements of this array.
    template <class... Arguments>
    T& emplace(Arguments&&... arguments);

    // Appends `numElements` elements, the i-th of them what make(i) returns, made in its place. `make` must not refer
    // to this array. Appends nothing for a count below 1.
    template <class Make>
    void appendMade(int numElements, Make make);

    T& operator[](int index);
    const T& operator[](int index) const;
    T& first();
    const T& first() const;
    T& last();
    const T& last() const;

    // Shortens or extends; new elements are default-constructed. Reports and changes nothing for a negative length.
    void setLogicalLength(int length);
    // See the rule above; elements past the new length are destroyed. Reports and changes nothing when negative.
    void setPhysicalLength(int length);
    void swap(int first, int second);

    // Logical length 0; the storage is kept.
    void empty() { shortenTo(0); }

    // Half-open range over the elements.
    T* begin() { return m_pElements; }
    T* end() { return m_pElements + m_nLength; }
    const T* begin() const { return m_pElements; }
    const T* end() const { return m_pElements + m_nLength; }

private:
    bool standsHere(const T* pElement) const;
    int physicalLengthWith(int index) const;
    int capacityFor(int length, int physicalLength) const;
    int lengthWith(int numMore) const;
    bool hasRoomForOne() const { return m_nLength < m_nPhysicalLength && m_nLength < m_nCapacity; }
    void makeRoomFor(int length);
    void moveToCapacity(int capacity);
    void shortenTo(int length);
    void release();
    void exchange(VorArray& other) noexcept;

    int m_nLength = 0;
    int m_nPhysicalLength = 0;
    int m_nGrowBy = kDefaultGrowBy;
    int m_nCapacity = 0;
    T* m_pElements = nullptr;
};

template <class T, class R, class M>
VorArray<T, R, M>& VorArray<T, R, M>::operator=(const VorArray& other)
{
    if (this == &other)
        return *this;
    shortenTo(0);
    m_nGrowBy = other.m_nGrowBy;
    append(other);
    return *this;
}

template <class T, class R, class M>
VorArray<T, R, M>& VorArray<T, R, M>::operator=(VorArray&& other) noexcept
{
    if (this == &other)
        return *this;
    release();
    exchange(other);
    return *this;
}

template <class T, class R, class M>
void VorArray<T, R, M>::append(const T& element)
{
    if (!hasRoomForOne())
    {
        if (standsHere(&element))
        {
            append(T(element)); // growing would move it away
            return;
        }
        makeRoomFor(lengthWith(1));
    }
    ::new (static_cast<void*>(m_pElements + m_nLength)) T(element);
    ++m_nLength;
}

template <class T, class R, class M>
void VorArray<T, R, M>::append(T&& element)
{
    if (!hasRoomForOne())
    {
        if (standsHere(&element))
        {
            append(T(std::move(element)));
            return;
        }
        makeRoomFor(lengthWith(1));
    }
    ::new (static_cast<void*>(m_pElements + m_nLength)) T(std::move(element));
    ++m_nLength;
}

template <class T, class R, class M>
void VorArray<T, R, M>::append(const VorArray& other)
{
    if (other.m_nLength > 0)
        append(other.m_pElements, other.m_nLength);
}

template <class T, class R, class M>
void VorArray<T, R, M>::append(const T* pElements, int numElements)
{
    if (pElements == nullptr || numElements < 1)
    {
        VorArrayMisuse::report(L"pElements != NULL && numElements > 0", VorArrayMisuse::kElementsToAppendLine);
        return;
    }
    // Own elements are found again by their index, since growing moves them.
    const bool isOwn = standsHere(pElements);
    const std::ptrdiff_t ownIndex = isOwn ? pElements - m_pElements : 0;
    makeRoomFor(lengthWith(numElements));
    const T* pSource = isOwn ? m_pElements + ownIndex : pElements;
    for (int i = 0; i < numElements; ++i, ++m_nLength)
        ::new (static_cast<void*>(m_pElements + m_nLength)) T(pSource[i]);
}

template <class T, class R, class M>
template <class... Arguments>
T& VorArray<T, R, M>::emplace(Arguments&&... arguments)
{
    if (!hasRoomForOne())
        makeRoomFor(lengthWith(1));
    T* pElement = ::new (static_cast<void*>(m_pElements + m_nLength)) T(std::forward<Arguments>(arguments)...);
    ++m_nLength;
    return *pElement;
}

template <class T, class R, class M>
template <class Make>
void VorArray<T, R, M>::appendMade(int numElements, Make make)
{
    if (numElements < 1)
        return;
    makeRoomFor(lengthWith(numElements));
    // Counted one by one, so that the array is whole when `make` throws.
    T* pElement = m_pElements + m_nLength;
    for (int i = 0; i < numElements; ++i, ++pElement)
    {
        ::new (static_cast<void*>(pElement)) T(make(i));
        ++m_nLength;
    }
}

template <class T, class R, class M>
T& VorArray<T, R, M>::operator[](int index)
{
    if (isValid(index))
        return m_pElements[index];
    VorArrayMisuse::report(L"isValid( index )", VorArrayMisuse::kModifiableElementLine);
    return VorArrayNoElement<T>::renew();
}

template <class T, class R, class M>
const T& VorArray<T, R, M>::operator[](int index) const
{
    if (isValid(index))
        return m_pElements[index];
    VorArrayMisuse::report(L"isValid( index )", VorArrayMisuse::kConstantElementLine);
    return VorArrayNoElement<T>::renew();
}

template <class T, class R, class M>
T& VorArray<T, R, M>::first()
{
    return const_cast<T&>(static_cast<const VorArray&>(*this).first());
}

template <class T, class R, class M>
const T& VorArray<T, R, M>::first() const
{
    if (!isEmpty())
        return m_pElements[0];
    VorArrayMisuse::report(L"!isEmpty()", VorArrayMisuse::kFirstElementLine);
    return VorArrayNoElement<T>::renew();
}

template <class T, class R, class M>
T& VorArray<T, R, M>::last()
{
    return const_cast<T&>(static_cast<const VorArray&>(*this).last());
}

template <class T, class R, class M>
const T& VorArray<T, R, M>::last() const
{
    if (!isEmpty())
        return m_pElements[m_nLength - 1];
    VorArrayMisuse::report(L"!isEmpty()", VorArrayMisuse::kLastElementLine);
    return VorArrayNoElement<T>::renew();
}

template <class T, class R, class M>
void VorArray<T, R, M>::setLogicalLength(int length)
{
    if (length < 0)
    {
        VorArrayMisuse::report(L"len>=0", VorArrayMisuse::kLogicalLengthLine);
        return;
    }
    if (length < m_nLength)
        shortenTo(length);
    else if (length > m_nLength)
        makeRoomFor(length);
    for (; m_nLength < length; ++m_nLength)
        ::new (static_cast<void*>(m_pElements + m_nLength)) T();
}

template <class T, class R, class M>
void VorArray<T, R, M>::setPhysicalLength(int length)
{
    if (length < 0)
    {
        VorArrayMisuse::report(L"newPhysicalLen >= 0", VorArrayMisuse::kPhysicalLengthLine);
        return;
    }
    if (length < m_nLength)
        shortenTo(length);
    const bool keepsStorage = length <= m_nPhysicalLength && length > 0.75 * m_nPhysicalLength;
    if (keepsStorage)
        return;
    moveToCapacity(length);
    m_nPhysicalLength = length;
}

template <class T, class R, class M>
void VorArray<T, R, M>::swap(int first, int second)
{
    if (!isValid(first) || !isValid(second))
    {
        VorArrayMisuse::report(L"isValid( i1 ) && isValid( i2 )", VorArrayMisuse::kSwapLine);
        return;
    }
    if (first == second)
        return;
    // Not by assignment: an element type may keep part of its old content when an empty one is assigned to it.
    T held(std::move(m_pElements[first]));
    m_pElements[first].~T();
    ::new (static_cast<void*>(m_pElements + first)) T(std::move(m_pElements[second]));
    m_pElements[second].~T();
    ::new (static_cast<void*>(m_pElements + second)) T(std::move(held));
}

template <class T, class R, class M>
bool VorArray<T, R, M>::standsHere(const T* pElement) const
{
    // It orders any two pointers; '<' says nothing about pointers into different arrays.
    const std::less<const T*> isBefore;
    return m_pElements != nullptr && !isBefore(pElement, m_pElements) && isBefore(pElement, m_pElements + m_nLength);
}

// The physical length after an append at `index`, by the block rule.
template <class T, class R, class M>
int VorArray<T, R, M>::physicalLengthWith(int index) const
{
    if (index < m_nPhysicalLength)
        return m_nPhysicalLength;
    const long long length = (static_cast<long long>(index) / m_nGrowBy + 1) * m_nGrowBy;
    const long long longest = std::numeric_limits<int>::max();
    return static_cast<int>(length < longest ? length : longest);
}

// The capacity to move to when there is no room for `length` elements.
template <class T, class R, class M>
int VorArray<T, R, M>::capacityFor(int length, int physicalLength) const
{
    if (physicalLength <= kLargestWholeBlock)
        return physicalLength;
    const long long grown = m_nCapacity + m_nCapacity / 2LL + kDefaultGrowBy;
    const long long wanted = grown > length ? grown : length;
    const long long longest = std::numeric_limits<int>::max();
    return static_cast<int>(wanted < longest ? wanted : longest);
}

// The logical length after `numMore` appends; lengths that 32 bits cannot hold are out of memory.
template <class T, class R, class M>
int VorArray<T, R, M>::lengthWith(int numMore) const
{
    if (numMore > std::numeric_limits<int>::max() - m_nLength)
        throw std::bad_alloc();
    return m_nLength + numMore;
}

template <class T, class R, class M>
void VorArray<T, R, M>::makeRoomFor(int length)
{
    const int physicalLength = physicalLengthWith(length - 1);
    if (length > m_nCapacity)
        moveToCapacity(capacityFor(length, physicalLength));
    m_nPhysicalLength = physicalLength;
}

template <class T, class R, class M>
void VorArray<T, R, M>::moveToCapacity(int capacity)
{
    // First, so that nothing has changed when there is no memory.
    T* pElements = M::allocate(capacity);
    R::relocate(pElements, m_pElements, m_nLength);
    M::deallocate(m_pElements, m_nCapacity);
    m_pElements = pElements;
    m_nCapacity = capacity;
}

template <class T, class R, class M>
void VorArray<T, R, M>::shortenTo(int length)
{
    if (length < m_nLength)
        M::destroy(m_pElements + length, m_nLength - length);
    m_nLength = length;
}

template <class T, class R, class M>
void VorArray<T, R, M>::release()
{
    shortenTo(0);
    M::deallocate(m_pElements, m_nCapacity);
    m_pElements = nullptr;
    m_nCapacity = 0;
    m_nPhysicalLength = 0;
}

template <class T, class R, class M>
void VorArray<T, R, M>::exchange(VorArray& other) noexcept
{
    std::swap(m_nLength, other.m_nLength);
    std::swap(m_nPhysicalLength, other.m_nPhysicalLength);
    std::swap(m_nGrowBy, other.m_nGrowBy);
    std::swap(m_nCapacity, other.m_nCapacity);
    std::swap(m_pElements, other.m_pElements);
}
