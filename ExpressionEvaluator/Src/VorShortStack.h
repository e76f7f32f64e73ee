// A stack that asks for no memory as long as it stays short.
//
//   VorShortStack<double, 32> numbers;
//   numbers.push(2.0);  numbers.push(3.0);  numbers.pop()  ->  3.0
//
// For plain values. An empty stack has no top and nothing to pop.
#pragma once

#include <vector>

template <class T, int kUsualDepth>
class VorShortStack
{
public:
    bool isEmpty() const { return m_nSize == 0; }
    int size() const { return m_nSize; }

    // Counted from the bottom.
    const T& operator[](int index) const
    {
        return index < kUsualDepth ? m_usual[index] : m_rest[static_cast<std::size_t>(index - kUsualDepth)];
    }

    const T& top() const { return (*this)[m_nSize - 1]; }

    void push(const T& element)
    {
        if (m_nSize < kUsualDepth)
            m_usual[m_nSize] = element;
        else
            m_rest.push_back(element);
        ++m_nSize;
    }

    T pop()
    {
        const T element = top();
        if (m_nSize > kUsualDepth)
            m_rest.pop_back();
        --m_nSize;
        return element;
    }

private:
    T m_usual[kUsualDepth]; // those below m_nSize are in use
    std::vector<T> m_rest;
    int m_nSize = 0;
};
