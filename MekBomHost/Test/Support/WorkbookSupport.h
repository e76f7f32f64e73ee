// Workbooks that a test writes down: XML texts, packed as a spreadsheet program packs them.
#pragma once

#include <zip.h>

#include <cstddef>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
// Names and contents of the files of an archive.
using PackedFiles = std::vector<std::pair<std::string, std::string>>;

inline std::string packed(const PackedFiles& files)
{
    zip_source_t* const pTarget = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_t* const pArchive = zip_open_from_source(pTarget, ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    zip_source_keep(pTarget);
    for (const auto& [name, content] : files)
        zip_file_add(pArchive, name.c_str(), zip_source_buffer(pArchive, content.data(), content.size(), 0), 0);
    if (zip_close(pArchive) != 0)
        std::abort();
    zip_source_open(pTarget);
    zip_source_seek(pTarget, 0, SEEK_END);
    std::string bytes(static_cast<std::size_t>(zip_source_tell(pTarget)), '\0');
    zip_source_seek(pTarget, 0, SEEK_SET);
    zip_source_read(pTarget, bytes.data(), bytes.size());
    zip_source_close(pTarget);
    zip_source_free(pTarget);
    return bytes;
}

// A workbook of sheets; what is not set is as small as it can be.
struct BuiltWorkbook
{
    struct Sheet
    {
        std::string name;
        std::string xml;        // all of its part
        std::string attributes; // of its entry in the workbook: "state=\"hidden\""
        std::string type = "worksheet";
    };

    // One sheet "Parts" with these rows: "<row><c><v>1</v></c></row>".
    static BuiltWorkbook ofRows(const std::string& rows)
    {
        BuiltWorkbook workbook;
        workbook.sheets.push_back({ "Parts", sheetOf(rows), "", "worksheet" });
        return workbook;
    }

    static std::string sheetOf(const std::string& rows, const std::string& behind = std::string())
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<worksheet><sheetData>" + rows + "</sheetData>" + behind +
               "</worksheet>";
    }

    PackedFiles files() const
    {
        PackedFiles files;
        std::string entries;
        std::string relations;
        for (std::size_t i = 0; i < sheets.size(); ++i)
        {
            const std::string number = std::to_string(i + 1);
            entries += "<sheet name=\"" + sheets[i].name + "\" sheetId=\"" + number + "\" r:id=\"rId" + number + "\" " +
                       sheets[i].attributes + "/>";
            relations += relation("rId" + number, sheets[i].type, "worksheets/sheet" + number + ".xml");
            files.emplace_back("xl/worksheets/sheet" + number + ".xml", sheets[i].xml);
        }
        if (!texts.empty())
        {
            relations += relation("rIdT", "sharedStrings", "sharedStrings.xml");
            files.emplace_back("xl/sharedStrings.xml", "<sst>" + texts + "</sst>");
        }
        if (!styles.empty())
        {
            relations += relation("rIdS", "styles", "/xl/styles.xml");
            files.emplace_back("xl/styles.xml", "<styleSheet>" + styles + "</styleSheet>");
        }
        files.emplace_back("_rels/.rels", "<Relationships>" + relation("rId1", "officeDocument", "xl/workbook.xml") +
                                              "</Relationships>");
        files.emplace_back("xl/workbook.xml", "<workbook><sheets>" + entries + "</sheets></workbook>");
        files.emplace_back("xl/_rels/workbook.xml.rels", "<Relationships>" + relations + "</Relationships>");
        return files;
    }

    std::string bytes() const { return packed(files()); }

    std::vector<Sheet> sheets;
    std::string texts;  // "<si><t>HEA200</t></si>"
    std::string styles; // "<cellXfs><xf numFmtId=\"14\"/></cellXfs>"

private:
    static std::string relation(const std::string& id, const std::string& type, const std::string& target)
    {
        return "<Relationship Id=\"" + id + "\" Type=\"http://schemas.test/relationships/" + type + "\" Target=\"" +
               target + "\"/>";
    }
};

// The cells of a row of texts, each its own: "<c t="inlineStr"><is><t>Mark</t></is></c>".
inline std::string textCells(const std::vector<std::string>& texts)
{
    std::string cells;
    for (const std::string& text : texts)
        cells += "<c t=\"inlineStr\"><is><t>" + text + "</t></is></c>";
    return cells;
}

inline std::string textRow(const std::vector<std::string>& texts)
{
    return "<row>" + textCells(texts) + "</row>";
}
}
