// A workbook as text, read by nothing of the program: what its sheets look like, row by row. Each row is led by its level
// of the outline; cells say what they hold and, unless it is a text in the format of texts, in which format, and then what
// they look like.
//
//   sheet "Weights"
//   portrait, paper 9, 2 rows stay in sight, on each page Weights!$2:$2, footer "&LWeights&RPage &P of &N"
//   widths 9.8 8.7
//   0  A2 "Material" bold banded  B2 "Weight [kg]" bold banded right
//   1  A3 "S235"  B3 2.5 as 0.0 right
#pragma once

#include "UnpackedWorkbook.h"

#include <pugixml.hpp>

#include <cstdlib>
#include <string>
#include <vector>

namespace mekbom
{
class WorkbookText
{
public:
    // `bytes` are those of a workbook file.
    static std::string of(const std::string& bytes)
    {
        WorkbookText workbook(bytes);
        workbook.appendSheets();
        return workbook.m_text;
    }

private:
    explicit WorkbookText(const std::string& bytes)
        : m_bytes(bytes), m_workbook(parsed("xl/workbook.xml")), m_styles(parsed("xl/styles.xml"))
    {
    }

    pugi::xml_document parsed(const std::string& part) const
    {
        pugi::xml_document document;
        if (!document.load_string(partOf(m_bytes, part).c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single))
            std::abort();
        return document;
    }

    void appendSheets()
    {
        int number = 0;
        for (const pugi::xml_node sheet : m_workbook.child("workbook").child("sheets").children("sheet"))
        {
            const std::string part = "xl/worksheets/sheet" + std::to_string(++number) + ".xml";
            const pugi::xml_document document = parsed(part);
            m_text += std::string("sheet \"") + sheet.attribute("name").value() + "\"\n";
            appendPage(document.child("worksheet"), number);
            appendWidths(document.child("worksheet"));
            for (const pugi::xml_node row : document.child("worksheet").child("sheetData").children("row"))
                appendRow(row);
        }
    }

    void appendPage(pugi::xml_node sheet, int number)
    {
        const pugi::xml_node page = sheet.child("pageSetup");
        m_text += page.attribute("orientation").value();
        m_text += std::string(", paper ") + page.attribute("paperSize").value();
        if (const pugi::xml_node pane = sheet.child("sheetViews").child("sheetView").child("pane"))
            m_text += std::string(", ") + pane.attribute("ySplit").value() + " rows stay in sight";
        for (const pugi::xml_node name : m_workbook.child("workbook").child("definedNames").children())
            if (name.attribute("localSheetId").as_int() == number - 1)
                m_text += std::string(", on each page ") + name.text().get();
        if (const pugi::xml_node footer = sheet.child("headerFooter").child("oddFooter"))
            m_text += std::string(", footer \"") + footer.text().get() + "\"";
        m_text += "\n";
    }

    void appendWidths(pugi::xml_node sheet)
    {
        m_text += "widths";
        for (const pugi::xml_node column : sheet.child("cols").children("col"))
            m_text += std::string(" ") + column.attribute("width").value();
        m_text += "\n";
    }

    void appendRow(pugi::xml_node row)
    {
        m_text += row.attribute("outlineLevel").as_string("0");
        for (const pugi::xml_node cell : row.children("c"))
            appendCell(cell);
        m_text += "\n";
    }

    void appendCell(pugi::xml_node cell)
    {
        const pugi::xml_node look = nth(child("cellXfs"), cell.attribute("s").as_int());
        const std::string format = formatOf(look.attribute("numFmtId").as_int());
        const bool isText = cell.attribute("t").as_string() == std::string("inlineStr");
        m_text += std::string("  ") + cell.attribute("r").value();
        if (isText)
            m_text += " \"" + inOneLine(cell.child("is").child("t").text().get()) + "\"";
        else
            m_text += std::string(" ") + (cell.child("v") ? cell.child("v").text().get() : "empty");
        if (format != "@")
            m_text += " as " + format;
        appendLook(look);
    }

    void appendLook(pugi::xml_node look)
    {
        const pugi::xml_node alignment = look.child("alignment");
        const pugi::xml_node border = nth(child("borders"), look.attribute("borderId").as_int());
        if (nth(child("fonts"), look.attribute("fontId").as_int()).child("b"))
            m_text += " bold";
        if (nth(child("fills"), look.attribute("fillId").as_int()).child("patternFill").child("fgColor"))
            m_text += " banded";
        if (border.child("top").attribute("style"))
            m_text += " ruled";
        if (alignment.attribute("horizontal").as_string() == std::string("right"))
            m_text += " right";
        if (alignment.attribute("indent"))
            m_text += " indented";
        if (alignment.attribute("wrapText"))
            m_text += " wraps";
    }

    // Numbers of formats below 164 are those that programs know without being told; these are the ones in use.
    std::string formatOf(int number) const
    {
        switch (number)
        {
            case 0: return "General";
            case 1: return "0";
            case 2: return "0.00";
            case 49: return "@";
            default:
                return child("numFmts")
                    .find_child_by_attribute("numFmtId", std::to_string(number).c_str())
                    .attribute("formatCode")
                    .as_string("?");
        }
    }

    pugi::xml_node child(const char* name) const { return m_styles.child("styleSheet").child(name); }

    static pugi::xml_node nth(pugi::xml_node parent, int index)
    {
        pugi::xml_node node = parent.first_child();
        while (index-- > 0)
            node = node.next_sibling();
        return node;
    }

    static std::string inOneLine(std::string text)
    {
        for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 2))
            text.replace(at, 1, "\\n");
        return text;
    }

    const std::string& m_bytes;
    const pugi::xml_document m_workbook;
    const pugi::xml_document m_styles;
    std::string m_text;
};
}
