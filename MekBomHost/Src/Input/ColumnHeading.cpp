#include "ColumnName.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
std::string_view trimmed(std::string_view text)
{
    const std::string_view blanks = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}
}

// field := name [ '[' unit ']' ]
ColumnName ColumnName::parse(std::string_view field)
{
    field = trimmed(field);
    const std::size_t bracket = field.rfind('[');
    if (bracket == std::string_view::npos || field.back() != ']')
        return { tokenOf(field), std::string() };
    const std::string_view unit = trimmed(field.substr(bracket + 1, field.size() - bracket - 2));
    return { tokenOf(trimmed(field.substr(0, bracket))), std::string(unit) };
}

std::string ColumnName::tokenOf(std::string_view name)
{
    return !name.empty() && name.front() == '%' ? std::string(name) : "%" + std::string(name);
}
}
