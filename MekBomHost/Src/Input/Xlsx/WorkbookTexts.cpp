#include "WorkbookTexts.h"

#include "CellText.h"
#include "Utf8.h"
#include "WorkbookFault.h"
#include "XlsxLimits.h"
#include "XmlElements.h"

namespace mekbom
{
void WorkbookTexts::read(ByteSource& part, const std::string& workbook)
{
    XmlElements items(part, workbook, { "sst/si" });
    std::string buffer;
    while (const pugi::xml_node item = items.next())
    {
        const std::string_view text = CellText::textOf(item, buffer);
        if (Utf8::findInvalid(text) != text.size())
            WorkbookFault::inPart({ workbook, part.name() }, "bytes that are no UTF-8", "text in UTF-8");
        add(text);
        if (numBytes() > XlsxLimits::kMostTextBytes)
            WorkbookFault::tooLarge({ workbook, part.name() }, "texts", XlsxLimits::kMostTextBytes);
    }
}

void WorkbookTexts::add(std::string_view text)
{
    m_bytes += text;
    m_ends.push_back(m_bytes.size());
}

std::optional<std::string_view> WorkbookTexts::find(std::size_t number) const
{
    if (number >= m_ends.size())
        return std::nullopt;
    const std::size_t begin = number == 0 ? 0 : m_ends[number - 1];
    return std::string_view(m_bytes).substr(begin, m_ends[number] - begin);
}
}
