#include "VorExprEvVariableList.h"

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

void VorExprEvVariableList::announce(const wchar_t* const* names, const double* values, int count)
{
    Announced* pNext = m_announced + m_nAnnounced;
    for (int i = 0; i < count; ++i)
    {
        if (names[i] == nullptr)
            continue;
        if (pNext == std::end(m_announced))
        {
            m_nAnnounced = kMostAnnounced;
            makeAnnounced();
            pNext = m_announced;
        }
        *pNext++ = { names[i], kNotMeasured, values[i] };
    }
    m_nAnnounced = static_cast<int>(pNext - m_announced);
}

void VorExprEvVariableList::announce(std::wstring_view name, double value)
{
    if (m_nAnnounced == kMostAnnounced)
        makeAnnounced();
    m_announced[m_nAnnounced++] = { name.data(), static_cast<int>(name.size()), value };
}

void VorExprEvVariableList::makeAnnounced()
{
    const int nAnnounced = std::exchange(m_nAnnounced, 0);
    for (int i = 0; i < nAnnounced; ++i)
    {
        const Announced& here = m_announced[i];
        const int nLength = here.nLength == kNotMeasured ? static_cast<int>(std::wcslen(here.pName)) : here.nLength;
        VorExprEvValue value;
        value.setDouble(here.value);
        prepend(VorExprEvTextView(here.pName, 0, nLength), value);
    }
}

int VorExprEvVariableList::addVariable(const VorExprEvTextView& name, VorExprEvValue& value)
{
    prepend(name, value);
    value.release();
    return 1;
}

void VorExprEvVariableList::prepend(const VorExprEvTextView& name, const VorExprEvValue& value)
{
    makeAnnounced();
    auto pVariable = std::make_unique<VorExprEvVariable>(name, value, m_pHead);
    if (!m_index.empty())
        m_index.insert_or_assign(name, pVariable.get());
    m_pHead = pVariable.release();
    ++m_nCount;
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
