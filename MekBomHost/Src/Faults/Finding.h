// One thing that is wrong with what the user gave, or that the user should know: as data, so that a program can print
// it, an editor can mark its place, and a test can ask for its code.
//
//   Finding finding;
//   finding.code = "MB703";
//   finding.source = "parts.csv";
//   finding.begin.line = 3;
//   finding.field = "Weight";
//   finding.found = "\"n/a\"";
//   finding.expected = "a number";
//   messageOf(finding)   ->   parts.csv:3: column "Weight": found "n/a", expected a number
#pragma once

#include <string>

namespace mekbom
{
// A place in a text, both from 1; columns count characters. 0 where it is not known.
struct TextPlace
{
    int line = 0;
    int column = 0;
};

struct Finding
{
    enum eSeverity
    {
        kError,   // there is no report
        kWarning, // there is one, which may mislead
        kNote     // there is one, and this is worth knowing
    };

    eSeverity severity = kError;
    std::string code; // one of FindingCodes

    // Where. What is not known is empty.
    std::string source; // the file as the user named it, or the option: "parts.csv", "--unit length=foo"
    TextPlace begin;    // in the file
    TextPlace end;      // behind the last character that is meant
    std::string path;   // in a template: "/columns/2/width"
    std::string field;  // of a record: the heading of its column

    // What: `statement` alone, or what was found and what was expected. UTF-8, without a line end.
    std::string statement; // "cannot be read: No such file or directory"
    std::string found;     // "the number 500"
    std::string expected;  // "one from 1 to 200"
    std::string remedy;    // what to do about it, where that does not follow from what was expected
};

// The finding in one line, as the program prints it:
//   "list.json:12:34: /columns/0/width: found the number 500, expected one from 1 to 200"
std::string messageOf(const Finding& finding);
}
