// German umlauts are written in three ways, and all must give one key: "Länge" folds to "lange", "Laenge" would stay
// and so would "Lange". So the e behind a, o and u is dropped from every key; "value" is "valu" in the table and in the
// file alike. That no two headings of the table come to be one by this is tested.
#include "HeadingKey.h"

#include "FoldedText.h"
#include "Utf8.h"

namespace mekbom
{
namespace
{
// U+00A0 is a blank by its folding; the signs are those that people write "n°" and "l'unité" with, and dashes.
bool isDropped(int character)
{
    if (character < 0x80)
        return character <= ' ' ||
               std::string_view(".,:;-_/'()[]").find(static_cast<char>(character)) != std::string_view::npos;
    return character == 0xB0 || (character >= 0x2010 && character <= 0x2019);
}

bool isSpelledUmlaut(std::string_view key)
{
    return key.size() >= 2 && key.back() == 'e' &&
           std::string_view("aou").find(key[key.size() - 2]) != std::string_view::npos;
}
}

std::string headingKey(std::string_view heading)
{
    const std::string folded = foldedText(heading);
    std::string_view rest = folded;
    std::string key;
    while (!rest.empty())
    {
        const int character = Utf8::takeCodePoint(rest);
        if (isDropped(character))
            continue;
        Utf8::appendCodePoint(key, character);
        if (isSpelledUmlaut(key))
            key.pop_back();
    }
    return key;
}
}
