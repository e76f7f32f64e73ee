// What single characters are, for wide texts and bytes alike, and what to cut off the ends of a text.
//
//   VorCharacters::isDigit(L'7')                        ->  true
//   VorCharacters::isSpace('\v')                        ->  true
//   VorCharacters::isBlank('\n')                        ->  false, a blank stands within a line
//   VorCharacters::trimmed(L" a = b \r", L" \t\r")      ->  "a = b"
//
// These are the characters of ASCII in every locale; all others are neither digit nor letter nor space. Which
// characters may surround a text differs from format to format, so whoever trims says which: there is no usual set.
#pragma once

#include <algorithm>
#include <string_view>

namespace VorCharacters
{
template <class Character>
constexpr bool isDigit(Character c)
{
    return c >= Character('0') && c <= Character('9');
}

// What the C library passes over before a number in the C locale: blank, tab, line feed, vertical tab, form feed and
// carriage return.
template <class Character>
constexpr bool isSpace(Character c)
{
    return c == Character(' ') || (c >= Character('\t') && c <= Character('\r'));
}

// What stands between the words of a line: blank or tab.
template <class Character>
constexpr bool isBlank(Character c)
{
    return c == Character(' ') || c == Character('\t');
}

// A-Z as a-z, any other character as it is.
template <class Character>
constexpr Character toLower(Character c)
{
    return c >= Character('A') && c <= Character('Z') ? static_cast<Character>(c - Character('A') + Character('a')) : c;
}

template <class Character>
constexpr bool isLetter(Character c)
{
    return toLower(c) >= Character('a') && toLower(c) <= Character('z');
}

// `text` without the characters of `surrounding` at its front and at its end; a view of the same characters.
template <class Character>
constexpr std::basic_string_view<Character> trimmedOf(std::basic_string_view<Character> text,
                                                      std::basic_string_view<Character> surrounding)
{
    text.remove_prefix(std::min(text.find_first_not_of(surrounding), text.size()));
    return text.substr(0, text.find_last_not_of(surrounding) + 1);
}

constexpr std::string_view trimmed(std::string_view text, std::string_view surrounding)
{
    return trimmedOf(text, surrounding);
}

constexpr std::wstring_view trimmed(std::wstring_view text, std::wstring_view surrounding)
{
    return trimmedOf(text, surrounding);
}
}
