// A named value, one node of the variable list (VorExprEvVariableList).
//
// The name is a view: its characters are not copied and must outlive the evaluation. The value is the variable's own.
#pragma once

#include "VorExprEvTextView.h"
#include "VorExprEvValue.h"

#include <cstddef>

class MEK_EXPRESSION_API VorExprEvVariable
{
public:
    VorExprEvVariable(const VorExprEvTextView& name, const VorExprEvValue& value, VorExprEvVariable* pNext)
        : m_name(name), m_value(value), m_pNext(pNext)
    {
    }

    const VorExprEvTextView& name() const { return m_name; }

    // The same name, viewed in another place, for a list that keeps names of its own.
    void setName(const VorExprEvTextView& name) { m_name = name; }

    const VorExprEvValue& value() const { return m_value; }

    // The next older variable, or null.
    VorExprEvVariable* next() const { return m_pNext; }

    // Variables come from the pool that values come from.
    static void* operator new(std::size_t size);
    static void operator delete(void* pBlock, std::size_t size);

private:
    VorExprEvTextView m_name;
    VorExprEvValue m_value;
    VorExprEvVariable* m_pNext; // owned by the list
};
