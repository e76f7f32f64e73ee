// The entries of a file of units or settings, read one after the other, and findings about them.
//
//   for (IniFile ini({ "shop.ini", "; ours\nlength = mm\n" }); ini.next();)
//       take(ini.key(), ini.value(), ini.line());      "length", "mm", 2
//
// What lines may be is KTIniReader's to say. Throws a Fault of status kInvalidInput for bytes that are no text and for a
// malformed line. In UTF-8.
#pragma once

#include "Finding.h"
#include "NamedText.h"

#include "KTRepositoryProxy/Src/KTIniReader.h"

#include <string>

namespace mekbom
{
class IniFile
{
public:
    // The name is kept, of the text a copy.
    explicit IniFile(const NamedText& file);

    // Goes to the next entry; false at the end.
    bool next();

    // Of the entry.
    const std::string& key() const { return m_key; }
    const std::string& value() const { return m_value; }
    int line() const { return m_reader.line(); }

    // The finding with its place: the file and the line of the entry.
    Finding aboutEntry(Finding finding) const;

    // Throws the finding, with its place, as a Fault of status kInvalidInput.
    [[noreturn]] void fail(const Finding& finding) const;

private:
    std::string m_name;
    KTIniReader m_reader;
    std::string m_key;
    std::string m_value;
};
}
