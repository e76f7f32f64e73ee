// Takes a file's JSON nodes apart and collects what is wrong with them, each with its place and path:
//
//   JsonChecker json("list.json");
//   json.integerOf(column, "width", 1, 200, 0)   ->  0, and a fault when the width is a text or is 500:
//   "list.json:12:34: /columns/0/width: found the number 500, expected one from 1 to 200"
#pragma once

#include "FaultList.h"
#include "JsonNode.h"

#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
// A node and how it is reached: "/sections/0". The node is not owned.
struct JsonItem
{
    const JsonNode& node;
    std::string path;
};

class JsonChecker
{
public:
    // `name` is the file's, for messages.
    explicit JsonChecker(std::string name) : m_name(std::move(name)) {}

    // Whether `object` has such a member. Adds a message when not.
    bool has(const JsonItem& object, const std::string& key);

    // Members of `object`: the fallback, or an empty text, when they are missing or, after a message, of the wrong
    // kind.
    std::string textOf(const JsonItem& object, const std::string& key);
    std::string requiredTextOf(const JsonItem& object, const std::string& key);
    int integerOf(const JsonItem& object, const std::string& key, int least, int most, int fallback);
    bool booleanOf(const JsonItem& object, const std::string& key, bool fallback);

    // Which of `names` the member is; -1 when it is missing or, after a message, none of them.
    int choiceOf(const JsonItem& object, const std::string& key, const std::vector<std::string>& names);

    // None when the member is missing or, after a message, no array.
    std::vector<JsonItem> elementsOf(const JsonItem& object, const std::string& key);

    // Whether it is of that kind; of an object with no other keys than these. Adds a message when not, for unknown keys
    // too, which make the object no less of one.
    bool isOfKind(const JsonItem& item, JsonNode::eKind kind);
    bool isObjectOf(const JsonItem& item, const std::vector<std::string>& keys);

    void add(const JsonPlace& place, const std::string& path, const std::string& text);

    // "list.json:12:34: /columns/0/width: <text>"
    std::string message(const JsonPlace& place, const std::string& path, const std::string& text) const;

    // Throws a Fault of status kInvalidInput with all messages, if there are any.
    void throwIfAny() const { m_faults.throwIfAny(); }

private:
    std::string m_name;
    FaultList m_faults;
};
}
