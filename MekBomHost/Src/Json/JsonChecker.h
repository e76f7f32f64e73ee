// Takes a file's JSON nodes apart and collects what is wrong with them, each finding with its place and path:
//
//   JsonChecker json("list.json");
//   json.integerOf(column, "width", 1, 200, 0)   ->  0, and a finding, when the width is a text or is 500
//   json.throwIfAnyError();
//
// The finding says "list.json:12:34: /columns/0/width: found the number 500, expected one from 1 to 200". Reading goes
// on after a mistake, with a fallback in place of the value, so that one run shows all of them; whoever reads asks with
// throwIfAnyError() before using what was read. Nodes and items are looked at only while a question is answered.
#pragma once

#include "FindingList.h"
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
    // `name` is the file's, for findings.
    explicit JsonChecker(std::string name) : m_name(std::move(name)) {}

    // Whether `object` has such a member. Adds a finding when not.
    bool has(const JsonItem& object, const std::string& key);

    // Members of `object`: the fallback, or an empty text, when they are missing or, with a finding, of the wrong kind.
    // A required text must be there and say something.
    std::string textOf(const JsonItem& object, const std::string& key);
    std::string requiredTextOf(const JsonItem& object, const std::string& key);
    int integerOf(const JsonItem& object, const std::string& key, int least, int most, int fallback);
    bool booleanOf(const JsonItem& object, const std::string& key, bool fallback);

    // Which of `names` the member is, from 0; -1 when it is missing or, with a finding, none of them.
    //   { "align": "right" }, names "left" and "right"   gives 1
    int choiceOf(const JsonItem& object, const std::string& key, const std::vector<std::string>& names);

    // The same of a value at hand, such as each member of an object in turn; -1, with a finding, when it is none of them.
    int choiceOf(const JsonItem& item, const std::vector<std::string>& names);

    // The elements of an array, reached as "/columns/0", "/columns/1"; none when the member is missing or, with a
    // finding, no array.
    std::vector<JsonItem> elementsOf(const JsonItem& object, const std::string& key);

    // Whether the item is of that kind; whether it is an object, with no other keys than these. Adds a finding when
    // not, for unknown keys too, which make the object no less of one.
    bool isOfKind(const JsonItem& item, JsonNode::eKind kind);
    bool isObjectOf(const JsonItem& item, const std::vector<std::string>& keys);

    // Adds a finding about `item`, or about the part of it that stands at `span`. Fills in its place and path.
    void add(const JsonItem& item, const Finding& finding) { addAt(item.node.span, item.path, finding); }
    void addAt(const TextSpan& span, const std::string& path, const Finding& finding);

    // All findings so far, in the order in which they were added.
    const std::vector<Finding>& findings() const { return m_findings.all(); }

    // Throws a Fault of status kInvalidInput with all findings, if there is an error among them.
    void throwIfAnyError() const { m_findings.throwIfAnyError(); }

private:
    std::string m_name;
    FindingList m_findings;
};
}
