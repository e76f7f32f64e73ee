// The entries of a file of units or settings, read one after the other, and findings about them.
//
//   for (IniFile ini({ "shop.ini", "; ours\nlength = mm\n" }); ini.next();)
//       take(ini.key(), ini.value(), ini.line());      "length", "mm", 2
//
// What lines may be is KTIniReader's to say. Whatever is wrong ends the reading with a Fault of status kInvalidInput
// that names the file and the line. All texts are UTF-8.
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
    // Keeps copies of name and text. Throws for bytes that are no text.
    explicit IniFile(const NamedText& file);

    // Goes to the next entry, from before the first one at the start; false at the end. Throws for a malformed line.
    bool next();

    // The entry that next() has gone to; to be asked for only while it answers true.
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
