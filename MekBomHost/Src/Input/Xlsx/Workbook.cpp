// A workbook is an archive whose parts refer to each other, beginning at one of a name that never changes:
//
//   _rels/.rels                    the workbook is xl/workbook.xml
//   xl/workbook.xml                has a sheet "Parts", which is rId3
//   xl/_rels/workbook.xml.rels     rId3 is worksheets/sheet1.xml; there are sharedStrings.xml and styles.xml, too
//
// The names of the others are up to who writes it. A workbook without texts, or without styles, has no such part.
#include "Workbook.h"

#include "WorkbookFault.h"
#include "XlsxLimits.h"
#include "XmlElements.h"
#include "XmlNames.h"

#include <string_view>
#include <utility>

namespace mekbom
{
namespace
{
bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}
}

Workbook::Workbook(const std::string& name, std::string bytes) : m_archive(name, std::move(bytes))
{
    const std::string path = findWorkbook();
    const PartRelations relations(m_archive, path);
    readSheets(path, relations);
    readTexts(relations);
    readStyles(relations);
}

std::unique_ptr<ByteSource> Workbook::open(const Sheet& sheet) const
{
    return m_archive.open(sheet.path, XlsxLimits::kMostSheetBytes);
}

std::string Workbook::findWorkbook() const
{
    if (!m_archive.has("_rels/.rels"))
        WorkbookFault::ofOtherKind(
            name(), m_archive.has("content.xml") ? "an OpenDocument file" : "a packed file that is no workbook",
            "save the sheet as .xlsx or .csv");
    const PartRelations relations(m_archive, "");
    const PartRelations::Relation* const pBook = relations.ofType("officeDocument");
    if (pBook == nullptr)
        WorkbookFault::inPart({ name(), "_rels/.rels" }, "no workbook", "one");
    if (endsWith(pBook->path, ".bin"))
        WorkbookFault::ofOtherKind(name(), "a binary workbook (.xlsb)", "save it as .xlsx");
    return pBook->path;
}

void Workbook::readSheets(const std::string& path, const PartRelations& relations)
{
    const auto pSource = m_archive.open(path, XlsxLimits::kMostIndexBytes);
    XmlElements elements(*pSource, name(), { "sheets/sheet" });
    while (const pugi::xml_node element = elements.next())
    {
        const std::string id(XmlNames::attribute(element, "id"));
        const PartRelations::Relation* const pSheet = relations.find(id);
        if (pSheet == nullptr)
            WorkbookFault::inPart({ name(), path }, "a sheet without a part", "one for each");
        const std::string_view state = XmlNames::attribute(element, "state");
        if (pSheet->type == "worksheet")
            m_sheets.push_back({ std::string(XmlNames::attribute(element, "name")), pSheet->path,
                                 state == "hidden" || state == "veryHidden" });
    }
    if (m_sheets.empty())
        WorkbookFault::inPart({ name(), path }, "no sheet of cells", "at least one");
}

void Workbook::readTexts(const PartRelations& relations)
{
    if (const PartRelations::Relation* const pTexts = relations.ofType("sharedStrings"))
        m_texts.read(*m_archive.open(pTexts->path, XlsxLimits::kMostSheetBytes), name());
}

void Workbook::readStyles(const PartRelations& relations)
{
    if (const PartRelations::Relation* const pStyles = relations.ofType("styles"))
        m_styles.read(*m_archive.open(pStyles->path, XlsxLimits::kMostIndexBytes), name());
}
}
