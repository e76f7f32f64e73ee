#include "JsonChecker.h"

#include "MessageText.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
const char* kindName(JsonNode::eKind kind)
{
    switch (kind)
    {
        case JsonNode::kBoolean: return "true or false";
        case JsonNode::kInteger: return "a whole number";
        case JsonNode::kNumber: return "a number";
        case JsonNode::kText: return "a text";
        case JsonNode::kArray: return "an array";
        case JsonNode::kObject: return "an object";
        default: return "null";
    }
}
// "a", "b" or "c"
std::string alternatives(const std::vector<std::string>& names)
{
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        text += i == 0 ? "" : i + 1 == names.size() ? " or " : ", ";
        text += inQuotes(names[i]);
    }
    return text;
}
}

bool JsonChecker::has(const JsonItem& object, const std::string& key)
{
    if (object.node.find(key) != nullptr)
        return true;
    add(object.node.place, object.path, "found no key " + inQuotes(key) + ", expected one");
    return false;
}

std::string JsonChecker::textOf(const JsonItem& object, const std::string& key)
{
    const JsonNode* const pNode = object.node.find(key);
    return pNode != nullptr && isOfKind({ *pNode, object.path + "/" + key }, JsonNode::kText) ? pNode->text
                                                                                              : std::string();
}

std::string JsonChecker::requiredTextOf(const JsonItem& object, const std::string& key)
{
    if (!has(object, key))
        return std::string();
    const JsonNode* const pNode = object.node.find(key);
    if (pNode->kind == JsonNode::kText && pNode->text.empty())
        add(pNode->place, object.path + "/" + key, "found an empty text, expected another");
    return textOf(object, key);
}

int JsonChecker::integerOf(const JsonItem& object, const std::string& key, int least, int most, int fallback)
{
    const JsonNode* const pNode = object.node.find(key);
    if (pNode == nullptr || !isOfKind({ *pNode, object.path + "/" + key }, JsonNode::kInteger))
        return fallback;
    if (pNode->number >= least && pNode->number <= most)
        return static_cast<int>(pNode->number);
    add(pNode->place, object.path + "/" + key,
        "found " + pNode->description() + ", expected one from " + std::to_string(least) + " to " +
            std::to_string(most));
    return fallback;
}

bool JsonChecker::booleanOf(const JsonItem& object, const std::string& key, bool fallback)
{
    const JsonNode* const pNode = object.node.find(key);
    return pNode != nullptr && isOfKind({ *pNode, object.path + "/" + key }, JsonNode::kBoolean) ? pNode->boolean
                                                                                                 : fallback;
}

int JsonChecker::choiceOf(const JsonItem& object, const std::string& key, const std::vector<std::string>& names)
{
    const JsonNode* const pNode = object.node.find(key);
    if (pNode == nullptr || !isOfKind({ *pNode, object.path + "/" + key }, JsonNode::kText))
        return -1;
    const auto found = std::find(names.begin(), names.end(), pNode->text);
    if (found != names.end())
        return static_cast<int>(found - names.begin());
    add(pNode->place, object.path + "/" + key, "found " + inQuotes(pNode->text) + ", expected " + alternatives(names));
    return -1;
}

std::vector<JsonItem> JsonChecker::elementsOf(const JsonItem& object, const std::string& key)
{
    std::vector<JsonItem> elements;
    const JsonNode* const pNode = object.node.find(key);
    const std::string path = object.path + "/" + key;
    if (pNode == nullptr || !isOfKind({ *pNode, path }, JsonNode::kArray))
        return elements;
    for (std::size_t i = 0; i < pNode->children.size(); ++i)
        elements.push_back({ pNode->children[i], path + "/" + std::to_string(i) });
    return elements;
}

bool JsonChecker::isOfKind(const JsonItem& item, JsonNode::eKind kind)
{
    if (item.node.kind == kind)
        return true;
    add(item.node.place, item.path, "found " + item.node.description() + ", expected " + kindName(kind));
    return false;
}

bool JsonChecker::isObjectOf(const JsonItem& item, const std::vector<std::string>& keys)
{
    if (!isOfKind(item, JsonNode::kObject))
        return false;
    for (const JsonNode& member : item.node.children)
        if (std::find(keys.begin(), keys.end(), member.key) == keys.end())
            add(member.keyPlace, item.path,
                "found unknown key " + inQuotes(member.key) + ", expected " + alternatives(keys));
    return true;
}

void JsonChecker::add(const JsonPlace& place, const std::string& path, const std::string& text)
{
    m_faults.add(message(place, path, text));
}

std::string JsonChecker::message(const JsonPlace& place, const std::string& path, const std::string& text) const
{
    return m_name + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ": " +
           (path.empty() ? "" : path + ": ") + text;
}
}
