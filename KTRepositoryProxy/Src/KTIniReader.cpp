// Told on the four lines of a text, of which the last is malformed:
//   [Display]                   a section, passed over
//   C40_SuppressZeroFeet = 1    an entry: next() answers 1, and key() and value() are its two texts
//   ; how inches are shown      a comment, passed over
//   C40_SuppressZeroFeet = 0    the key again: next() answers 0 from here on, and line() stays 4
// What is wrong reads: found "C40_SuppressZeroFeet", expected it once, as in line 2.
#include "KTIniReader.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>

namespace
{
const wchar_t kByteOrderMark = L'\uFEFF';

std::wstring trimmed(const std::wstring& text)
{
    return std::wstring(VorCharacters::trimmed(text, L" \t\r"));
}

// Blank lines say as little as comments do. A comment has its line for itself: of "a = 1 ; one" the value is "1 ; one".
bool isComment(const std::wstring& line)
{
    return line.empty() || line[0] == L';' || line[0] == L'#';
}

// Brackets with nothing between them name no section, and are refused as an entry without '='.
bool isSection(const std::wstring& line)
{
    return line.size() > 2 && line.front() == L'[' && line.back() == L']';
}

VorString textOf(const std::wstring& text)
{
    return VorString(text.data(), static_cast<int>(text.size()));
}
}

// Editors of some platforms put a byte order mark in front of a text, where it would be part of the first key.
KTIniReader::KTIniReader(const VorString& text) : m_text(text.getStringW(), static_cast<std::size_t>(text.length()))
{
    if (!m_text.empty() && m_text[0] == kByteOrderMark)
        m_nNext = 1;
}

// After a fault nothing more is read, so that line() stays the number of the line that has it.
int KTIniReader::next()
{
    while (m_fault.isEmpty() && m_nNext < m_text.size())
    {
        const std::wstring line = trimmed(takeLine());
        if (!isComment(line) && !isSection(line))
            return readEntry(line);
    }
    return 0;
}

// Without its line feed; a carriage return before it is a blank at the line's end.
std::wstring KTIniReader::takeLine()
{
    const std::size_t begin = m_nNext;
    const std::size_t end = std::min(m_text.find(L'\n', begin), m_text.size());
    m_nNext = end + 1;
    ++m_nLine;
    return m_text.substr(begin, end - begin);
}

// entry := key '=' value
// A line is refused for a zero character before anything else: whoever reads its texts up to their terminating zero
// would see less of them than stands there.
int KTIniReader::readEntry(const std::wstring& line)
{
    const std::size_t zero = line.find(L'\0');
    if (zero != std::wstring::npos)
        return fail(line.substr(0, zero), L"a line without zero characters");
    const std::size_t equals = line.find(L'=');
    const std::wstring key = trimmed(line.substr(0, equals));
    if (equals == std::wstring::npos || key.empty())
        return fail(line, L"a line such as key = value");
    if (!m_lineOfKey.emplace(key, m_nLine).second)
        return fail(key, (L"it once, as in line " + std::to_wstring(m_lineOfKey[key])).c_str());
    m_key = textOf(key);
    m_value = textOf(trimmed(line.substr(equals + 1)));
    return 1;
}

int KTIniReader::fail(const std::wstring& found, const wchar_t* expected)
{
    m_fault = textOf(L"found \"" + found + L"\", expected " + expected);
    m_found = textOf(found);
    m_expected = expected;
    return 0;
}
