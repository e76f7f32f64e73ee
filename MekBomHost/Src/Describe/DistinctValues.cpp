#include "DistinctValues.h"

#include <cstring>

namespace mekbom
{
bool DistinctValues::add(std::string_view text)
{
    if (m_isMore)
        return true;
    m_value.assign(text);
    if (!m_values.insert(m_value).second)
        return false;
    m_numBytes += text.size();
    if (m_values.size() > kMostValues || m_numBytes > kMostBytes)
        giveUp();
    return true;
}

bool DistinctValues::add(double number)
{
    const double value = number == 0 ? 0 : number;
    char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    return add(std::string_view(bytes, sizeof bytes));
}

std::string DistinctValues::countText() const
{
    return m_isMore ? "more than " + std::to_string(m_numAtLeast) : std::to_string(m_values.size());
}

// The value added last is the one beyond the bound.
void DistinctValues::giveUp()
{
    m_isMore = true;
    m_numAtLeast = m_values.size() - 1;
    m_values = std::unordered_set<std::string>();
    m_value = std::string();
}
}
