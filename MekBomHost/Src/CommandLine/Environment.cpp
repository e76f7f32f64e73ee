#include "Environment.h"

#include <cstdlib>

namespace mekbom::Environment
{
std::vector<std::pair<std::string, std::string>> variables(const std::vector<std::string>& names)
{
    std::vector<std::pair<std::string, std::string>> variables;
    for (const std::string& name : names)
        if (const char* const pValue = std::getenv(name.c_str())) // NOLINT(concurrency-mt-unsafe): nobody changes it
            variables.emplace_back(name, pValue);
    return variables;
}
}
