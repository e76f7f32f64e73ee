// KTIniReader reads wide text and knows no files: this adds what is before and behind it. Of the bytes "length =
// mm\nabc\n" of "shop.ini":
//   IniFile()    they are text, and made wide
//   next()       "length", "mm", in bytes again
//   next()       throws: shop.ini:2: found "abc", expected a line such as key = value
#include "IniFile.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "TextCheck.h"
#include "Utf8.h"

#include <string_view>

namespace mekbom
{
namespace
{
// Columns do not count a byte order mark.
VorString textOf(const NamedText& file)
{
    const std::string_view bytes = Utf8::withoutByteOrderMark(file.text);
    requireText(bytes, file.name);
    return Utf8::toWide(bytes);
}
}

IniFile::IniFile(const NamedText& file) : m_name(file.name), m_reader(textOf(file)) {}

// The reader ends at the end of the text as at a line that it cannot read, and only its fault tells the two apart.
bool IniFile::next()
{
    if (m_reader.next() == 0)
    {
        if (m_reader.fault().isEmpty() == 0)
            fail(Finding::of(FindingCodes::kEntryMalformed, inQuotes(Utf8::toBytes(m_reader.found())),
                             Utf8::toBytes(m_reader.expected())));
        return false;
    }
    m_key = Utf8::toBytes(m_reader.key());
    m_value = Utf8::toBytes(m_reader.value());
    return true;
}

Finding IniFile::aboutEntry(Finding finding) const
{
    finding.source = m_name;
    finding.begin.line = m_reader.line();
    return finding;
}

void IniFile::fail(const Finding& finding) const
{
    throw Fault(kInvalidInput, aboutEntry(finding));
}
}
