// What the user and the template say of headings, beside what the built-in table knows.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace mekbom
{
// One heading and the token that its column carries: "Cost code" and "%UserAttr1".
struct HeadingMapping
{
    std::string heading;
    std::string token;
    bool mustBeThere = false; // a template serves many files, but what a user says of one should be about it
};

struct HeadingChoices
{
    std::vector<HeadingMapping> mappings; // of those for one heading the last one counts
    std::set<std::string> ownTokens;      // that the template asks for and the catalogue does not know: a column "Mark"
                                          // is %Mark then, whatever the table says
};
}
