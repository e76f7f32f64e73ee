// A variable of the environment that has another value while this lives. Empty stands for one that is not set.
#pragma once

#include <cstdlib>
#include <string>
#include <utility>

namespace mekbom
{
class EnvironmentVariable
{
public:
    EnvironmentVariable(std::string name, const std::string& value) : m_name(std::move(name))
    {
        if (const char* const pBefore = std::getenv(m_name.c_str()))
            m_before = pBefore;
        set(value);
    }
    ~EnvironmentVariable() { set(m_before); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    void set(const std::string& value) const
    {
        value.empty() ? unsetenv(m_name.c_str()) : setenv(m_name.c_str(), value.c_str(), 1);
    }

    std::string m_name;
    std::string m_before;
};
}
