#include "XmlNames.h"

namespace mekbom::XmlNames
{
// npos + 1 is 0: a name without a prefix stays as it is.
std::string_view withoutPrefix(std::string_view name)
{
    return name.substr(name.find(':') + 1);
}

bool isNamed(const pugi::xml_node& element, std::string_view name)
{
    return withoutPrefix(element.name()) == name;
}

std::string_view attribute(const pugi::xml_node& element, std::string_view name)
{
    for (const pugi::xml_attribute& candidate : element.attributes())
        if (withoutPrefix(candidate.name()) == name)
            return candidate.value();
    return std::string_view();
}
}
