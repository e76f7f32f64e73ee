// A message is made of the parts of a finding that are known, each place followed by a colon:
//
//   source       begin  path              found             expected
//   list.json  : 12:34: /columns/0/width: found the number 500, expected one from 1 to 200
//
//   source       begin  field             found        expected  remedy
//   parts.csv  : 3    : column "Weight" : found "n/a", expected a number
//
// A statement takes the place of found and expected, a sentence that of all but the remedy. A mistake of an author:
//
//   source       begin  severity code   statement                   remedy
//   list.json  : 8:17 : error    MB105: the details show nothing  ; help: write "summary": true
#include "Finding.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "MistakeCodes.h"

#include <utility>

namespace mekbom
{
namespace
{
Finding ofCode(const FindingCode& code)
{
    Finding finding;
    finding.severity = code.severity;
    finding.code = code.name;
    return finding;
}

// "list.json:12:34", or "parts.csv:3" where a field is named: that says it better than the column of the text, which
// only editors want to know then.
std::string placeOf(const Finding& finding)
{
    std::string place = finding.source;
    for (const int number : { finding.begin.line, finding.field.empty() ? finding.begin.column : 0 })
        if (number > 0)
            place += ":" + std::to_string(number);
    return place;
}

// "found \"n/a\", expected a number"
std::string contentOf(const Finding& finding)
{
    if (!finding.statement.empty())
        return finding.statement;
    return "found " + finding.found + (finding.expected.empty() ? "" : ", expected " + finding.expected);
}

// The built-in template has neither file nor line, and then nothing stands in front.
std::string mistakeMessageOf(const Finding& finding)
{
    std::string place = placeOf(finding);
    if (!place.empty() && finding.begin.line == 0 && !finding.path.empty()) // a cell of a workbook is on no line
        place += ": " + finding.path;
    return (place.empty() ? "" : place + ": ") + nameOf(finding.severity) + " " + finding.code + ": " +
           (finding.field.empty() ? "" : "column " + inQuotes(finding.field) + ": ") + contentOf(finding) +
           (finding.remedy.empty() ? "" : "; help: " + finding.remedy);
}
}

const char* nameOf(Finding::eSeverity severity)
{
    static const char* const names[] = { "error", "warning", "note" }; // by their numbers
    return names[severity];
}

Finding Finding::of(const FindingCode& code, std::string found, std::string expected)
{
    Finding finding = ofCode(code);
    finding.found = std::move(found);
    finding.expected = std::move(expected);
    return finding;
}

Finding Finding::stating(const FindingCode& code, std::string statement)
{
    Finding finding = ofCode(code);
    finding.statement = std::move(statement);
    return finding;
}

Finding Finding::saying(const FindingCode& code, std::string sentence)
{
    Finding finding = ofCode(code);
    finding.sentence = std::move(sentence);
    return finding;
}

Finding Finding::in(const std::string& file, const TextSpan& span) const
{
    Finding finding = *this;
    finding.source = file;
    finding.begin = span.begin;
    finding.end = span.end;
    return finding;
}

std::string messageOf(const Finding& finding)
{
    const std::string remedy = finding.remedy.empty() ? "" : ": " + finding.remedy;
    if (!finding.sentence.empty())
        return finding.sentence + remedy;
    if (MistakeCodes::has(finding.code))
        return mistakeMessageOf(finding);
    std::string message;
    for (const std::string& part :
         { placeOf(finding), finding.path, finding.field.empty() ? "" : "column " + inQuotes(finding.field) })
        if (!part.empty())
            message += part + ": ";
    return message + contentOf(finding) + remedy;
}
}
