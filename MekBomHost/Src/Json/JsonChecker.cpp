// Each question about a member is answered in the same order: a missing member is no mistake unless it is required, one
// of the wrong kind is a finding and as good as missing, and only then its value is looked at. So "width": "wide" gives
// one finding, not two, and reading goes on with the fallback.
//
// Questions come from the root down, and each item that is handed out knows how it was reached, so a path costs no
// search when something is wrong:
//
//   { "columns": [ { "token": "%Name", "width": "8" } ] }
//     elementsOf(root, "columns")          gives the item "/columns/0"
//     integerOf(that, "width", ...)        adds a finding about "/columns/0/width"
#include "JsonChecker.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "NearestWord.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
namespace
{
// What a message says was expected.
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

// That a word is none of `names`; `what` it is stands before it in the message.
Finding noneOf(const std::vector<std::string>& names, const FindingCode& code, const std::string& what,
               const std::string& word)
{
    Finding finding = Finding::of(code, what + inQuotes(word), alternatives(names));
    finding.remedy = NearestWord::question(word, names);
    return finding;
}

// The member, reached as the object is and by its key.
JsonItem memberOf(const JsonItem& object, const std::string& key, const JsonNode& node)
{
    return { node, object.path + "/" + key };
}
}

bool JsonChecker::has(const JsonItem& object, const std::string& key)
{
    if (object.node.find(key) != nullptr)
        return true;
    add(object, Finding::of(FindingCodes::kKeyMissing, "no key " + inQuotes(key), "one"));
    return false;
}

std::string JsonChecker::textOf(const JsonItem& object, const std::string& key)
{
    const JsonNode* const pNode = object.node.find(key);
    const bool isText = pNode != nullptr && isOfKind(memberOf(object, key, *pNode), JsonNode::kText);
    return isText ? pNode->text : std::string();
}

// A text of the wrong kind is told by textOf(), once.
std::string JsonChecker::requiredTextOf(const JsonItem& object, const std::string& key)
{
    if (!has(object, key))
        return std::string();
    const JsonNode& node = *object.node.find(key);
    if (node.kind == JsonNode::kText && node.text.empty())
        add(memberOf(object, key, node), Finding::of(FindingCodes::kTextIsEmpty, "an empty text", "another"));
    return textOf(object, key);
}

int JsonChecker::integerOf(const JsonItem& object, const std::string& key, int least, int most, int fallback)
{
    const JsonNode* const pNode = object.node.find(key);
    if (pNode == nullptr || !isOfKind(memberOf(object, key, *pNode), JsonNode::kInteger))
        return fallback;
    if (pNode->number >= least && pNode->number <= most)
        return static_cast<int>(pNode->number);
    add(memberOf(object, key, *pNode),
        Finding::of(FindingCodes::kNumberOutOfRange, pNode->description(),
                    "one from " + std::to_string(least) + " to " + std::to_string(most)));
    return fallback;
}

bool JsonChecker::booleanOf(const JsonItem& object, const std::string& key, bool fallback)
{
    const JsonNode* const pNode = object.node.find(key);
    const bool isBoolean = pNode != nullptr && isOfKind(memberOf(object, key, *pNode), JsonNode::kBoolean);
    return isBoolean ? pNode->boolean : fallback;
}

int JsonChecker::choiceOf(const JsonItem& object, const std::string& key, const std::vector<std::string>& names)
{
    const JsonNode* const pNode = object.node.find(key);
    return pNode == nullptr ? -1 : choiceOf(memberOf(object, key, *pNode), names);
}

int JsonChecker::choiceOf(const JsonItem& item, const std::vector<std::string>& names)
{
    if (!isOfKind(item, JsonNode::kText))
        return -1;
    const auto found = std::find(names.begin(), names.end(), item.node.text);
    if (found != names.end())
        return static_cast<int>(found - names.begin());
    add(item, noneOf(names, FindingCodes::kNameUnknown, "", item.node.text));
    return -1;
}

// All elements, of whatever kind: each is asked for it on its own, so that one wrong element does not hide the others.
std::vector<JsonItem> JsonChecker::elementsOf(const JsonItem& object, const std::string& key)
{
    std::vector<JsonItem> elements;
    const JsonNode* const pNode = object.node.find(key);
    if (pNode == nullptr || !isOfKind(memberOf(object, key, *pNode), JsonNode::kArray))
        return elements;
    const JsonItem array = memberOf(object, key, *pNode);
    for (std::size_t i = 0; i < pNode->children.size(); ++i)
        elements.push_back(memberOf(array, std::to_string(i), pNode->children[i]));
    return elements;
}

bool JsonChecker::isOfKind(const JsonItem& item, JsonNode::eKind kind)
{
    if (item.node.kind == kind)
        return true;
    add(item, Finding::of(FindingCodes::kWrongKindOfValue, item.node.description(), kindName(kind)));
    return false;
}

// The finding about an unknown key is placed at the key, and its path names the object, since the member is none that
// there could be.
bool JsonChecker::isObjectOf(const JsonItem& item, const std::vector<std::string>& keys)
{
    if (!isOfKind(item, JsonNode::kObject))
        return false;
    for (const JsonNode& member : item.node.children)
        if (std::find(keys.begin(), keys.end(), member.key) == keys.end())
            addAt(member.keySpan, item.path, noneOf(keys, FindingCodes::kKeyUnknown, "unknown key ", member.key));
    return true;
}

void JsonChecker::addAt(const TextSpan& span, const std::string& path, const Finding& finding)
{
    Finding placed = finding.in(m_name, span);
    placed.path = path;
    m_findings.add(std::move(placed));
}
}
