// A value of a JSON file and where in the file it stands, for messages about its meaning.
#pragma once

#include <string>
#include <vector>

namespace mekbom
{
// From 1; columns count characters.
struct JsonPlace
{
    int line = 0;
    int column = 0;
};

struct JsonNode
{
    enum eKind
    {
        kNull,
        kBoolean,
        kInteger, // written without point and exponent
        kNumber,
        kText,
        kArray,
        kObject
    };

    eKind kind = kNull;
    JsonPlace place;
    bool boolean = false;
    double number = 0;              // of kInteger and kNumber
    std::string text;               // UTF-8
    std::string key;                // of an object's member
    JsonPlace keyPlace;             // of an object's member
    std::vector<JsonNode> children; // elements or members, in the order of the file

    // The member named `memberKey`, or null.
    const JsonNode* find(const std::string& memberKey) const;

    // For messages: "a text", "an object", "the number 5", "\"kFoo\"".
    std::string description() const;
};
}
