// What no cell can hold is what XML cannot: control characters, and U+FFFE and U+FFFF. A text table has a replacement for
// the former, which a workbook takes over, so that both show the same. What programs would read as something else is
// written so that they do not:
//
//   in the list                  in the file
//   "_x0041_", a mark            "_x005F_x0041_": _x and four digits stand for a character, and _x005F_ for '_'
//   "AT&T", in a page's footer   "AT&&T": "&T" stands for the time
#include "SheetText.h"

#include "Utf8.h"
#include "WordWrap.h"
#include "WorkbookLimits.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>

namespace mekbom::SheetText
{
namespace
{
const char* const kNameless = "List";
const char* const kReserved = "History"; // of the programs
const std::string_view kNotInNames = "[]:*?/\\";
const std::string_view kEscape = "_x"; // begins one: "_x0041_"
const std::string_view kUnderscore = "_x005F";
const std::size_t kEscapeLength = 7;
const int kReplacement = 0xFFFD;

bool isHexDigit(char character)
{
    return VorCharacters::isDigit(character) || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

bool isEscape(std::string_view text)
{
    return text.size() >= kEscapeLength && text.substr(0, 2) == kEscape && text[kEscapeLength - 1] == '_' &&
           std::all_of(text.begin() + 2, text.begin() + kEscapeLength - 1, isHexDigit);
}

void escape(std::string& text)
{
    for (std::size_t at = text.find(kEscape); at != std::string::npos; at = text.find(kEscape, at + 1))
        if (isEscape(std::string_view(text).substr(at)))
        {
            text.insert(at, kUnderscore);
            at += kUnderscore.size();
        }
}

// U+FFFE and U+FFFF are characters of no text, and an XML file that has one is none.
bool isInXml(int codePoint)
{
    return codePoint != 0xFFFE && codePoint != 0xFFFF;
}

std::size_t numUnitsOf(int codePoint)
{
    return codePoint > 0xFFFF ? 2 : 1;
}

void append(std::string& text, std::string_view line)
{
    while (!line.empty())
    {
        const int codePoint = Utf8::takeCodePoint(line);
        Utf8::appendCodePoint(text, isInXml(codePoint) ? codePoint : kReplacement);
    }
}

// Sets `buffer` to the text without what no cell can hold.
void clean(std::string_view text, std::string& buffer)
{
    buffer.clear();
    if (isPlain(text))
    {
        buffer.assign(text);
        return;
    }
    for (const std::string& line : WordWrap::wrap(text, 0))
    {
        append(buffer, line);
        buffer += '\n';
    }
    buffer.pop_back();
}

// Characters that names cannot have become blanks; of several blanks one is left, and none at either end, where no
// apostrophe may stand either.
std::string cleanName(std::string_view title)
{
    std::string cleaned;
    clean(title, cleaned);
    std::string name;
    for (const char character : cleaned)
    {
        const bool isBlank =
            character == ' ' || character == '\n' || kNotInNames.find(character) != std::string_view::npos;
        const bool isAtFront = name.empty() || name.back() == ' ';
        if (!(isAtFront && (isBlank || (name.empty() && character == '\''))))
            name += isBlank ? ' ' : character;
    }
    return name;
}

void trimEnd(std::string& name)
{
    while (!name.empty() && (name.back() == ' ' || name.back() == '\''))
        name.pop_back();
}

std::string cutTo(std::string_view text, std::size_t most)
{
    std::string cut;
    for (std::size_t numUnits = 0; !text.empty();)
    {
        const int codePoint = Utf8::takeCodePoint(text);
        numUnits += numUnitsOf(codePoint);
        if (numUnits > most)
            break;
        Utf8::appendCodePoint(cut, codePoint);
    }
    return cut;
}

// Programs do not tell names apart by case.
bool isSameName(std::string_view one, std::string_view other)
{
    const auto isSame = [](char a, char b) { return VorCharacters::toLower(a) == VorCharacters::toLower(b); };
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), isSame);
}
}

const std::string& inCell(std::string_view text, std::string& buffer)
{
    clean(text, buffer);
    escape(buffer);
    return buffer;
}

bool isPlain(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

std::size_t length(std::string_view text)
{
    std::size_t numUnits = 0;
    while (!text.empty())
        numUnits += numUnitsOf(Utf8::takeCodePoint(text));
    return numUnits;
}

std::string sheetName(std::string_view title, int number)
{
    const std::string suffix = number > 1 ? " " + std::to_string(number) : "";
    std::string name = cutTo(cleanName(title), WorkbookLimits::kLongestName - suffix.size());
    trimEnd(name);
    if (name.empty() || isSameName(name, kAbout) || isSameName(name, kReserved))
        name = kNameless;
    return name + suffix;
}

std::string inOneLine(std::string_view text, std::size_t most)
{
    std::string cleaned;
    clean(text, cleaned);
    std::replace(cleaned.begin(), cleaned.end(), '\n', ' ');
    return cutTo(cleaned, most);
}

std::string inPrint(std::string_view text, std::size_t most)
{
    std::string printed;
    for (const char character : inOneLine(text, most))
        printed.append(character == '&' ? 2 : 1, character);
    return printed;
}
}
