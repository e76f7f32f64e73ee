// One thing that is wrong with what the user gave, or that the user should know: as data, so that a program can print
// it, an editor can mark its place, and a test can ask for its code.
//
//   Finding finding = Finding::of(FindingCodes::kCellIsNoNumber, "\"n/a\"", "a number");
//   finding.source = "parts.csv";
//   finding.begin.line = 3;
//   finding.field = "Weight";
//   messageOf(finding)   ->   parts.csv:3: column "Weight": found "n/a", expected a number
//
// Values, to be copied and changed at will. All texts are UTF-8 without a line end; whatever comes from a file stands
// in them as inQuotes() writes it.
#pragma once

#include "TextPlace.h"

#include <string>

namespace mekbom
{
struct FindingCode;

struct Finding
{
    enum eSeverity
    {
        kError,   // there is no report
        kWarning, // there is one, which may mislead
        kNote     // there is one, and this is worth knowing
    };

    Finding() = default;

    // A finding of that code, whose severity is the code's. Its place is still to be filled in.
    //   Finding::of(FindingCodes::kNumberOutOfRange, "the number 500", "one from 1 to 200")
    //   Finding::stating(FindingCodes::kFileUnreadable, "cannot be read: No such file or directory")
    //   Finding::saying(FindingCodes::kColumnMissing, "parts.csv has no column for %Weight")
    static Finding of(const FindingCode& code, std::string found, std::string expected = "");
    static Finding stating(const FindingCode& code, std::string statement);
    static Finding saying(const FindingCode& code, std::string sentence);

    // The same finding with its place.
    Finding in(const std::string& file, const TextSpan& span) const;

    eSeverity severity = kError;
    std::string code; // "MB710", one of FindingCodes; empty for a fault of the program's own

    // Where. What is not known is empty or 0.
    std::string source; // the file as the user named it, or the option: "parts.csv", "--unit length=foo"
    TextPlace begin;    // in the file
    TextPlace end;      // behind the last character that is meant
    std::string path;   // in a template: "/columns/2/width"; in a workbook: "Parts!C7"
    std::string field;  // of a record: the heading of its column, as the file has it

    // What, in one of three forms: found and expected, which nearly all have; a statement about the place, where there
    // is no such pair; or a whole sentence, where the place does not stand in front.
    std::string found;     // "the number 500"
    std::string expected;  // "one from 1 to 200"; empty where it follows from what was found
    std::string statement; // "cannot be read: No such file or directory"
    std::string sentence;  // "parts.csv has no column for %Weight, which the template asks for"
    std::string remedy;    // why, or what to do, where neither follows from what was expected; of an author's mistake
                           // how to write it right
};

// "error", "warning" or "note".
const char* nameOf(Finding::eSeverity severity);

// The finding in one line, as the program prints it:
//   "list.json:12:34: /columns/0/width: found the number 500, expected one from 1 to 200"
// Without the column of the text where a field says it better, and without the end. The mistakes of authors have their
// code and severity in it, as compilers print theirs:
//   "list.json:8:17: error MB105: the details show nothing ...; help: write \"summary\": true ..."
std::string messageOf(const Finding& finding);
}
