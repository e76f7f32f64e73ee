// Of the part with the styles two lists count. A cell's style 1 is the second of <cellXfs>, which names a format by its
// number, and those from 164 on have their codes in the part; the others every program knows:
//
//   <numFmts><numFmt numFmtId="164" formatCode="0.00&quot; kg&quot;"/></numFmts>
//   <cellXfs><xf numFmtId="0"/><xf numFmtId="164"/><xf numFmtId="14"/></cellXfs>      plain, with a unit, a date
#include "CellStyles.h"

#include "NumberReader.h"
#include "XmlElements.h"
#include "XmlNames.h"

namespace mekbom
{
namespace
{
int numberIn(const pugi::xml_node& element)
{
    int number = 0; // the plain format, also of what names none
    NumberReader::read(XmlNames::attribute(element, "numFmtId"), number);
    return number;
}
}

// The first code of a number counts; of a number that has no code, what is known of it.
void CellStyles::read(ByteSource& part, const std::string& workbook)
{
    XmlElements elements(part, workbook, { "numFmts/numFmt", "cellXfs/xf" });
    std::vector<int> numbers;
    while (const pugi::xml_node element = elements.next())
        if (XmlNames::isNamed(element, "xf"))
            numbers.push_back(numberIn(element));
        else
            m_formats.try_emplace(numberIn(element), NumberFormat::parse(XmlNames::attribute(element, "formatCode")));
    for (const int number : numbers)
        m_styles.push_back(&m_formats.try_emplace(number, NumberFormat::builtIn(number)).first->second);
}

const NumberFormat& CellStyles::formatOf(std::size_t style) const
{
    return style < m_styles.size() ? *m_styles[style] : m_plain;
}
}
