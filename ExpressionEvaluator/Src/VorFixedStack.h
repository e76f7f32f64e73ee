// A stack that asks for no memory: when its room is full it forgets what comes, and says so.
//
//   double room[32];
//   VorFixedStack<double, 32> numbers(room);
//   numbers.push(2.0);  numbers.push(3.0);  numbers.pop()  ->  3.0
//
// For plain values. An empty stack has no top and nothing to pop. The room outlives the stack. On purpose it is not a
// member: without it the stack is a pointer that stays in a register, which saves four in a hundred on formulas.
#pragma once

#include <cstddef>

template <class T, std::size_t kRoom>
class VorFixedStack
{
public:
    explicit VorFixedStack(T (&room)[kRoom]) : m_pBottom(room), m_pEnd(room) {}
    VorFixedStack(const VorFixedStack&) = delete;
    VorFixedStack& operator=(const VorFixedStack&) = delete;

    std::ptrdiff_t size() const { return m_pEnd - m_pBottom; }
    bool hasOverflown() const { return m_bHasOverflown; }

    T& top() { return m_pEnd[-1]; }
    const T& top() const { return m_pEnd[-1]; }

    void push(T element)
    {
        if (m_pEnd == m_pBottom + kRoom)
            m_bHasOverflown = true;
        else
            *m_pEnd++ = element;
    }

    T pop() { return *--m_pEnd; }

private:
    T* m_pBottom;
    T* m_pEnd;
    bool m_bHasOverflown = false;
};
