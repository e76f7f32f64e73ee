#include "IniFile.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "TextCheck.h"
#include "Utf8.h"

#include <string_view>

namespace mekbom
{
namespace
{
const std::string_view kByteOrderMark = "\xEF\xBB\xBF"; // no part of the text: columns do not count it

VorString textOf(const NamedText& file)
{
    std::string_view bytes = file.text;
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        bytes.remove_prefix(kByteOrderMark.size());
    requireText(bytes, file.name);
    return Utf8::toWide(bytes);
}
}

IniFile::IniFile(const NamedText& file) : m_name(file.name), m_reader(textOf(file)) {}

bool IniFile::next()
{
    if (m_reader.next() == 0)
    {
        if (m_reader.fault().isEmpty() == 0)
            fail(Finding::of(FindingCodes::kEntryMalformed, "\"" + Utf8::toBytes(m_reader.found()) + "\"",
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
