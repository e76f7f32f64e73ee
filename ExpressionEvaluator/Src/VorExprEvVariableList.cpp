// A formula over %Weight and %Paint, computed for one row after the other:
//   row 1    announce copies "%Weight" and "%Paint" into m_announcedNames and sets a value beside each
//   row 2    announce meets the same names in the same places (isStillNamed) and sets the values alone
// As long as nobody asks for a variable, none is made. Whoever calls find, head or prepend asks: makeAnnounced puts
// variables for all that is announced at the head of the list, the oldest first, so that the newest comes to stand
// before all others.
#include "VorExprEvVariableList.h"

#include "Reading/VorFormulaCharacters.h"

#include <cwchar>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>

namespace
{
// Lists up to this length are walked. Measured with BM_LookUpAmongVariables: building the index pays from about here.
constexpr int kLongestWalk = 24;
}

VorExprEvVariableList& VorExprEvVariableList::ofThread()
{
    static thread_local VorExprEvVariableList t_list;
    return t_list;
}

const VorExprEvVariable* VorExprEvVariableList::head()
{
    makeAnnounced();
    return m_pHead;
}

// The end is set last: arguments that do not all find room leave nothing announced.
int VorExprEvVariableList::announce(const wchar_t* const* names, const double* values, int count)
{
    Announced* pNext = m_announced;
    for (int i = 0; i < count; ++i)
    {
        if (names[i] == nullptr)
            continue;
        if (!isStillNamed(pNext, names[i]) && !nameAnew(pNext, names[i]))
            return 0;
        (pNext++)->value = values[i];
    }
    m_pAnnouncedEnd = pNext;
    return 1;
}

int VorExprEvVariableList::announce(std::wstring_view name, double value)
{
    if (!nameAnew(m_pAnnouncedEnd, name))
        return 0;
    (m_pAnnouncedEnd++)->value = value;
    return 1;
}

// Whether the place holds that name from the time before.
bool VorExprEvVariableList::isStillNamed(const Announced* pPlace, const wchar_t* pName) const
{
    return pPlace < m_pNamedEnd && std::wcscmp(pPlace->pName, pName) == 0;
}

// Copies the name behind that of the place before, over those of later places, which have none from now on.
bool VorExprEvVariableList::nameAnew(Announced* pPlace, std::wstring_view name)
{
    wchar_t* const pCopy = m_announcedNames + (pPlace == m_announced ? 0 : pPlace[-1].end() - m_announcedNames);
    if (pPlace == std::end(m_announced) ||
        std::end(m_announcedNames) - pCopy <= static_cast<std::ptrdiff_t>(name.size()))
        return false;
    name.copy(pCopy, name.size());
    pCopy[name.size()] = L'\0';
    pPlace->pName = pCopy;
    pPlace->length = name.size();
    pPlace->canBeOperand = VorFormulaCharacters::canBeOperand(name);
    m_pNamedEnd = pPlace + 1;
    return true;
}

// Nothing is announced any more before the first variable is made: prepend comes back here.
void VorExprEvVariableList::makeAnnounced()
{
    const Announced* pEnd = std::exchange(m_pAnnouncedEnd, m_announced);
    for (const Announced* pHere = m_announced; pHere != pEnd; ++pHere)
        prepend(pHere->name(), pHere->value);
}

int VorExprEvVariableList::addVariable(const VorExprEvTextView& name, VorExprEvValue& value)
{
    prepend(name, value);
    value.release();
    return 1;
}

// A list that is short enough to be walked has no index, and none is begun here; findInIndex builds it when it is
// needed.
void VorExprEvVariableList::prepend(const VorExprEvTextView& name, const VorExprEvValue& value)
{
    makeAnnounced();
    auto pVariable = std::make_unique<VorExprEvVariable>(name, value, m_pHead);
    if (!m_index.empty())
        m_index.insert_or_assign(name, pVariable.get());
    m_pHead = pVariable.release();
    ++m_nCount;
}

void VorExprEvVariableList::prepend(std::wstring_view name, double value)
{
    VorExprEvValue number;
    number.setDouble(value);
    prepend(VorExprEvTextView(name.data(), 0, static_cast<int>(name.size())), number);
}

void VorExprEvVariableList::keepNames()
{
    makeAnnounced();
    std::size_t nLength = 0;
    for (const VorExprEvVariable* pVariable = m_pHead; pVariable != nullptr; pVariable = pVariable->next())
        nLength += pVariable->name().existingPart().size();
    std::vector<wchar_t> names; // a std::wstring would move short ones, and the views with them
    names.reserve(nLength);     // so that the views stay good
    for (VorExprEvVariable* pVariable = m_pHead; pVariable != nullptr; pVariable = pVariable->next())
    {
        const std::wstring_view name = pVariable->name().existingPart();
        const wchar_t* pKept = names.data() + names.size();
        names.insert(names.end(), name.begin(), name.end());
        pVariable->setName(VorExprEvTextView(pKept, 0, pVariable->name().length(), static_cast<int>(name.size())));
    }
    m_names = std::move(names);
    m_index = Index(); // by the names before
}

const VorExprEvVariable* VorExprEvVariableList::find(const VorExprEvTextView& name)
{
    makeAnnounced();
    return m_nCount <= kLongestWalk ? findInList(name) : findInIndex(name);
}

void VorExprEvVariableList::deleteVariables()
{
    if (!m_index.empty())
        m_index = Index(); // its buckets would be wiped for every formula to come
    while (m_pHead != nullptr)
    {
        VorExprEvVariable* pOlder = m_pHead->next();
        delete m_pHead;
        m_pHead = pOlder;
    }
    m_nCount = 0;
    m_names.clear();
}

// Names that are equal hash alike: zero characters at the end are left out, whether they exist or not.
std::size_t VorExprEvVariableList::NameHash::operator()(const VorExprEvTextView& name) const
{
    const std::wstring_view text = name.existingPart();
    const std::size_t nLast = text.find_last_not_of(L'\0');
    return std::hash<std::wstring_view>()(text.substr(0, nLast + 1)); // npos + 1 is 0
}

const VorExprEvVariable* VorExprEvVariableList::findInList(const VorExprEvTextView& name) const
{
    const VorExprEvVariable* pVariable = m_pHead;
    while (pVariable != nullptr && !pVariable->name().isEqual(name))
        pVariable = pVariable->next();
    return pVariable;
}

const VorExprEvVariable* VorExprEvVariableList::findInIndex(const VorExprEvTextView& name)
{
    if (m_index.empty())
        buildIndex();
    const auto found = m_index.find(name);
    return found == m_index.end() ? nullptr : found->second;
}

// From the newest on, so that the first of equal names stays.
void VorExprEvVariableList::buildIndex()
{
    Index index(static_cast<std::size_t>(m_nCount));
    for (const VorExprEvVariable* pVariable = m_pHead; pVariable != nullptr; pVariable = pVariable->next())
        index.emplace(pVariable->name(), pVariable);
    m_index = std::move(index);
}
