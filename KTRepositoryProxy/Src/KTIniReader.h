// Reads the entries of an INI text, one after the other.
//
//   KTIniReader reader(L"; how lists are shown\n"
//                      L"[Display]\n"
//                      L"C40_SuppressZeroFeet = 1\n");
//   while (reader.next() == 1)
//       store(reader.key(), reader.value());   // "C40_SuppressZeroFeet", "1"
//   if (!reader.fault().isEmpty())
//       complain(reader.line(), reader.fault());
//
// A line is blank, a comment after ';' or '#', a section in brackets, or a key and its value with '=' between them.
// Blanks around keys, values and lines do not count; a value goes to the end of its line and may be empty. Sections are
// for the reader of the file alone: a key stands for the same setting in each, and at most once in the text. A byte
// order mark in front is passed over. One object is for one thread at a time.
#pragma once

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

#include <map>
#include <string>

class MEK_REPOSITORY_API KTIniReader
{
public:
    explicit KTIniReader(const VorString& text);

    // Goes to the next entry; 0 at the end, and at a line that is malformed, where it stays.
    int next();

    // The two texts of the entry that next() went to, without the blanks around them.
    const VorString& key() const { return m_key; }
    const VorString& value() const { return m_value; }

    // The number of the line in which that entry stands, or of the malformed line; lines count from 1.
    int line() const { return m_nLine; }

    // What is wrong with the line, for the end of a message; empty while nothing is.
    //   found "abc", expected a line such as key = value
    const VorString& fault() const { return m_fault; }

private:
    std::wstring takeLine();
    int readEntry(const std::wstring& line);
    int fail(const std::wstring& found, const wchar_t* expected);

    std::wstring m_text;
    std::size_t m_nNext = 0; // where the next line starts
    int m_nLine = 0;
    VorString m_key;
    VorString m_value;
    VorString m_fault;
    std::map<std::wstring, int> m_lineOfKey;
};
