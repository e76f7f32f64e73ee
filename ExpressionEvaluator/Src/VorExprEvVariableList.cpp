#include "VorExprEvVariableList.h"

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

int VorExprEvVariableList::announce(std::wstring_view name, double value)
{
    if (m_pAnnouncedEnd == std::end(m_announced))
        return 0;
    *m_pAnnouncedEnd++ = { name.data(), static_cast<int>(name.size()), value };
    return 1;
}

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
