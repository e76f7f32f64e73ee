// A workbook that is being written, row by row and sheet by sheet, and its bytes when it is complete.
//
//   WorkbookFile file("Cutting list");
//   lxw_worksheet& sheet = file.addSheet("List");
//   WorkbookFile::require(worksheet_write_number(&sheet, 0, 0, 12.5, nullptr));
//   file.writeTo(sink);
//
// Rows go to a temporary file as soon as the next one begins, so that a row in memory is all that a list of any length
// takes; the same for the packed workbook. Both are nameless: nothing is left of a workbook that is never completed.
// The same rows give the same bytes, whatever the time.
#pragma once

#include "NamelessFile.h"
#include "OutputChoices.h"
#include "TextSink.h"

#include <xlsxwriter.h>

#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
class WorkbookFile
{
public:
    // `title` is that of the document, UTF-8; its sheets are printed on that paper. Throws a Fault of status kOutputNotWritten when there can be no temporary
    // file.
    explicit WorkbookFile(const std::string& title, ePaper paper = kA4Paper);

    lxw_workbook& workbook() { return *m_pWorkbook; }

    // A sheet behind the others, which the workbook owns. No other sheet may have its name.
    lxw_worksheet& addSheet(const std::string& name);

    // Completes the workbook and writes it into the sink, which it does not finish. To be called once, last. Throws as
    // the sink does, and a Fault of status kOutputNotWritten when anything could not be written on the way there.
    void writeTo(TextSink& sink);

    // Throws a Fault of status kOutputNotWritten for what the functions on sheets return, unless that is success.
    static void require(lxw_error error);

private:
    struct Deleter
    {
        void operator()(lxw_workbook* pWorkbook) const { lxw_workbook_free(pWorkbook); }
    };

    void requireRows() const;

    ePaper m_paper;
    NamelessFile m_file;
    std::string m_path; // of the file
    std::string m_temporaryFolder;
    std::unique_ptr<lxw_workbook, Deleter> m_pWorkbook;
    std::vector<lxw_worksheet*> m_sheets;
};
}
