// The variables that formulas see, newest first. A newer variable shadows every older one of the same name.
//
//   list.addVariable(VorExprEvTextView(L"a", 0, 1), two);     // two is released
//   list.addVariable(VorExprEvTextView(L"a", 0, 1), three);
//   list.find(VorExprEvTextView(L"a", 0, 1))  ->  the 3
//
// Each thread has one list (ofThread), emptied when an ExpressionsEvaluator is constructed on that thread and kept
// until the next one is, whatever happens in between. Names are views, so their characters must stay as long as the
// list holds them, unless keepNames has made them its own.
//
// evaluateFormula goes a shorter way: it announces its variables, numbers with copied names that cost no memory of
// their own, and the list makes variables of them only for who asks for one. Whoever computes a formula for many rows
// announces the same names in the same places each time: a name that is still there from the time before is not copied
// again.
//
// Invariant: the index is either empty or holds, for every name in the list, its newest variable.
#pragma once

#include "VorExprEvVariable.h"

#include <cstddef>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <vector>

class MEK_EXPRESSION_API VorExprEvVariableList
{
public:
    // Formulas of reports use fewer variables. Arbitrary.
    static constexpr int kMostAnnounced = 32;
    static constexpr std::size_t kMostAnnouncedCharacters = 1024;

    VorExprEvVariableList() = default;
    VorExprEvVariableList(const VorExprEvVariableList&) = delete;
    VorExprEvVariableList& operator=(const VorExprEvVariableList&) = delete;
    ~VorExprEvVariableList() { clear(); }

    static VorExprEvVariableList& ofThread();

    // The newest variable, or null.
    const VorExprEvVariable* head();
    int count() const { return m_nCount + static_cast<int>(m_pAnnouncedEnd - m_announced); }

    // A variable that is not made yet. The list owns its name, which ends in a zero character. All about the name is
    // found out when it is copied and costs nothing while the name stays.
    struct Announced
    {
        const wchar_t* pName;
        std::size_t length;
        double value;
        bool canBeOperand; // whether a formula can ask for it: not by "a+b", which is two operands

        std::wstring_view name() const { return { pName, length }; }
        const wchar_t* end() const { return pName + length + 1; } // behind the zero character
    };

    // Adds double variables to the empty list, null names passed over, the last one newest. Nothing is kept of the
    // arguments. 0 with the list empty when there are more than kMostAnnounced or their names are too long; the numbers
    // would fit a variable each, then.
    int announce(const wchar_t* const* names, const double* values, int count);

    // Adds one to those announced; 0 when there are too many.
    int announce(std::wstring_view name, double value);

    // Those not made yet, which are newer than all others, the oldest of them first. withdraw takes back all but the
    // oldest `numKept`.
    const Announced* announced() const { return m_announced; }
    const Announced* announcedEnd() const { return m_pAnnouncedEnd; }
    void withdraw(std::ptrdiff_t numKept) { m_pAnnouncedEnd = m_announced + numKept; }

    // Puts a new variable with a copy of `value` at the head, then releases `value`. An unknown value makes a variable
    // without one. Returns 1.
    int addVariable(const VorExprEvTextView& name, VorExprEvValue& value);

    // The same, but leaves `value` to the caller.
    void prepend(const VorExprEvTextView& name, const VorExprEvValue& value);

    // The same with a double.
    void prepend(std::wstring_view name, double value);

    // Copies the names of all variables: from here on nothing is read through the views they were given.
    void keepNames();

    // The newest variable whose name equals `name` over its whole length, case-sensitive; null when there is none.
    const VorExprEvVariable* find(const VorExprEvTextView& name);

    void clear()
    {
        m_pAnnouncedEnd = m_announced;
        if (m_nCount > 0)
            deleteVariables();
    }

private:
    struct NameHash
    {
        std::size_t operator()(const VorExprEvTextView& name) const;
    };
    struct NameEqual
    {
        bool operator()(const VorExprEvTextView& a, const VorExprEvTextView& b) const { return a.isEqual(b) != 0; }
    };
    using Index = std::unordered_map<VorExprEvTextView, const VorExprEvVariable*, NameHash, NameEqual>;

    bool isStillNamed(const Announced* pPlace, const wchar_t* pName) const;
    bool nameAnew(Announced* pPlace, std::wstring_view name);
    void makeAnnounced();
    void deleteVariables();
    const VorExprEvVariable* findInList(const VorExprEvTextView& name) const;
    const VorExprEvVariable* findInIndex(const VorExprEvTextView& name);
    void buildIndex();

    VorExprEvVariable* m_pHead = nullptr;
    int m_nCount = 0;
    Index m_index;
    Announced m_announced[kMostAnnounced];
    Announced* m_pAnnouncedEnd = m_announced;           // newer than all that are in the list
    Announced* m_pNamedEnd = m_announced;               // those before it have a name: their own, or of the time before
    wchar_t m_announcedNames[kMostAnnouncedCharacters]; // one after the other, in the order of m_announced
    std::vector<wchar_t> m_names;                       // those kept
};
