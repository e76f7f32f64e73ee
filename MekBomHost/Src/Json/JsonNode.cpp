#include "JsonNode.h"

#include "InQuotes.h"

#include <algorithm>
#include <charconv>

namespace mekbom
{
namespace
{
const int kLongestNumber = 400; // the digits of any double, written out

// As the file has it, as far as the double tells: a whole number in full, "1000000", others as short as they can be,
// "0.1".
std::string textOf(double number, bool isWhole)
{
    char text[kLongestNumber];
    const std::to_chars_result result =
        isWhole ? std::to_chars(text, text + kLongestNumber, number, std::chars_format::fixed)
                : std::to_chars(text, text + kLongestNumber, number);
    return std::string(text, result.ptr);
}
}

// Objects are asked for a few keys that the program knows, so one search after the other is good enough. Whether a key
// comes twice is asked of all keys, and JsonReader keeps a set for that.
const JsonNode* JsonNode::find(const std::string& memberKey) const
{
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&memberKey](const JsonNode& child) { return child.key == memberKey; });
    return found == children.end() ? nullptr : &*found;
}

// Texts are quoted and cut, numbers shown; of an array or object that it is one is enough.
std::string JsonNode::description() const
{
    switch (kind)
    {
        case kNull: return "null";
        case kBoolean: return boolean ? "true" : "false";
        case kInteger:
        case kNumber: return "the number " + textOf(number, kind == kInteger);
        case kText: return inQuotes(text);
        case kArray: return "an array";
        case kObject: break;
    }
    return "an object";
}
}
