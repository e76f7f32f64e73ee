// A value of a JSON file and where in the file it stands, for findings about its meaning.
//
//   JsonNode root = JsonReader("list.json", "{ \"width\": 500 }").read();
//   root.find("width")->number                 ->  500
//   root.find("width")->description()          ->  the number 500
//   root.find("width")->span.begin.column      ->  12
//   root.find("widht")                         ->  null
//
// A value with all that is in it: copies are independent, and a child is good for as long as its parent is.
#pragma once

#include "TextPlace.h"

#include <string>
#include <vector>

namespace mekbom
{
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
    TextSpan span; // from the opening quote or bracket to behind the closing one
    bool boolean = false;
    double number = 0;              // of kInteger and kNumber
    std::string text;               // of kText, in UTF-8, without its quotes
    std::string key;                // of an object's member
    TextSpan keySpan;               // of an object's member: the key with its quotes
    std::vector<JsonNode> children; // elements or members, in the order of the file

    // The member named `memberKey`, which is a part of this node; null when there is none, and for what is no object.
    const JsonNode* find(const std::string& memberKey) const;

    // What a message says was found: "an object", "the number 5", "\"kFoo\"" in its quotes.
    std::string description() const;
};
}
