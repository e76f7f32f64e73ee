#include "CellText.h"

#include "Utf8.h"
#include "XmlNames.h"

#include <charconv>
#include <cstddef>

namespace mekbom::CellText
{
namespace
{
const std::string_view kEscape = "_x"; // begins one: "_x000D_"
const std::size_t kEscapeSize = 7;

// The character that the escape at the start of `text` stands for; 0 when it is none.
int characterOf(std::string_view text)
{
    if (text.size() < kEscapeSize || text[kEscapeSize - 1] != '_')
        return 0;
    int value = 0;
    const char* const pEnd = text.data() + kEscapeSize - 1;
    const auto [pStop, error] = std::from_chars(text.data() + kEscape.size(), pEnd, value, 16);
    const bool isHalf = value >= 0xD800 && value <= 0xDFFF;
    return error == std::errc() && pStop == pEnd && value > 0 && !isHalf ? value : 0;
}

bool isText(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

void appendTexts(const pugi::xml_node& element, std::string& buffer)
{
    std::string joined;
    for (const pugi::xml_node& child : element.children())
        if (XmlNames::isNamed(child, "t"))
            appendUnescaped(charactersOf(child, joined), buffer);
}
}

std::string_view charactersOf(const pugi::xml_node& element, std::string& buffer)
{
    const pugi::xml_node first = element.first_child();
    if (!first.next_sibling())
        return isText(first) ? std::string_view(first.value()) : std::string_view();
    buffer.clear();
    for (const pugi::xml_node& child : element.children())
        if (isText(child))
            buffer += child.value();
    return buffer;
}

std::string_view textOf(const pugi::xml_node& item, std::string& buffer)
{
    buffer.clear();
    appendTexts(item, buffer);
    for (const pugi::xml_node& child : item.children())
        if (XmlNames::isNamed(child, "r"))
            appendTexts(child, buffer);
    return buffer;
}

std::string& appendUnescaped(std::string_view text, std::string& buffer)
{
    for (std::size_t at = text.find(kEscape); at != std::string_view::npos; at = text.find(kEscape, at))
    {
        const int character = characterOf(text.substr(at));
        if (character == 0)
        {
            at += kEscape.size();
            continue;
        }
        buffer += text.substr(0, at);
        Utf8::appendCodePoint(buffer, character);
        text.remove_prefix(at + kEscapeSize);
        at = 0;
    }
    return buffer += text;
}
}
