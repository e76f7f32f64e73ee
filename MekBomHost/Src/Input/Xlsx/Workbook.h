// A workbook: its sheets, its texts, and the formats of its cells.
//
//   const Workbook workbook("parts.xlsx", bytes);
//   for (const Workbook::Sheet& sheet : workbook.sheets())
//       tell(sheet.name);
//   const std::unique_ptr<ByteSource> pSheet = workbook.open(workbook.sheets().front());
//
// Sheets of cells alone, in the order of their tabs: charts are none. The packed bytes are kept, and sheets unpacked
// while they are read. What is no workbook, damaged or made to do harm ends in a Fault of status kInvalidInput.
#pragma once

#include "CellStyles.h"
#include "PartRelations.h"
#include "WorkbookTexts.h"
#include "ZipArchive.h"

#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
class Workbook
{
public:
    struct Sheet
    {
        std::string name;
        std::string path; // in the archive
        bool isHidden;
    };

    // `name` is what messages call it.
    Workbook(const std::string& name, std::string bytes);

    const std::string& name() const { return m_archive.name(); }
    const std::vector<Sheet>& sheets() const { return m_sheets; } // at least one
    const WorkbookTexts& texts() const { return m_texts; }
    const CellStyles& styles() const { return m_styles; }

    // The bytes of a sheet, good for as long as the workbook.
    std::unique_ptr<ByteSource> open(const Sheet& sheet) const;

private:
    std::string findWorkbook() const;
    void readSheets(const std::string& path, const PartRelations& relations);
    void readTexts(const PartRelations& relations);
    void readStyles(const PartRelations& relations);

    ZipArchive m_archive;
    std::vector<Sheet> m_sheets;
    WorkbookTexts m_texts;
    CellStyles m_styles;
};
}
