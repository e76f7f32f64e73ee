#include "ColumnHeading.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <cstddef>

namespace mekbom
{
namespace
{
std::string_view trimmed(std::string_view text)
{
    return VorCharacters::trimmed(text, " \t\r\n");
}
}

// field := name [ '[' unit ']' ]
// The last brackets count, and only at the end: "Size [nominal] [mm]" is %Size [nominal] in mm, "Bolt [M16] type" names
// no unit.
ColumnHeading ColumnHeading::parse(std::string_view field)
{
    field = trimmed(field);
    const std::size_t bracket = field.rfind('[');
    if (bracket == std::string_view::npos || field.back() != ']')
        return { tokenOf(field), std::string() };
    const std::string_view unit = trimmed(field.substr(bracket + 1, field.size() - bracket - 2));
    return { tokenOf(trimmed(field.substr(0, bracket))), std::string(unit) };
}

std::string ColumnHeading::tokenOf(std::string_view name)
{
    return !name.empty() && name.front() == '%' ? std::string(name) : "%" + std::string(name);
}
}
