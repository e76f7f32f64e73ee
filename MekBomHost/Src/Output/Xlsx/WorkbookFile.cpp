// The library copies the rows of each sheet from one temporary file to another before it packs them, and does not look
// whether they all arrive: on a full disk it would pack half a sheet and report success. So it is asked behind its back:
// the rows' own file, whether it has failed, and, after the packing, the system, what went wrong last.
#include "WorkbookFile.h"

#include "Fault.h"
#include "FindingCodes.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <mutex>
#include <system_error>

namespace mekbom
{
namespace
{
const std::time_t kCreated = 315532800; // 1980-01-01 00:00 UTC, as of all files in the workbook: the clock is no input
const std::uint8_t kA4 = 9;             // as the format numbers sheets of paper
const std::uint8_t kLetter = 1;
const int kDiskErrors[] = { ENOSPC, EFBIG, EIO, EDQUOT };

[[noreturn]] void fail(const std::string& reason)
{
    Finding finding = Finding::saying(FindingCodes::kOutputNotWritten, "a workbook cannot be written: " + reason);
    throw Fault(kOutputNotWritten, finding);
}

// One thread at a time: the library takes the date of the document apart by std::gmtime(), whose answer all threads share.
lxw_error closeAlone(lxw_workbook* pWorkbook)
{
    static std::mutex s_mutex;
    const std::lock_guard<std::mutex> lock(s_mutex);
    return workbook_close(pWorkbook);
}

[[noreturn]] void failForLackOfRoom(int error)
{
    Finding finding = Finding::saying(FindingCodes::kOutputNotWritten,
                                      "the temporary files of a workbook in " + NamelessFile::folder() +
                                          " fail: " + std::generic_category().message(error));
    finding.remedy = "name a folder with more room in TMPDIR";
    throw Fault(kOutputNotWritten, finding);
}
}

// The workbook keeps the path of its temporary folder, and not a copy.
WorkbookFile::WorkbookFile(const std::string& title, ePaper paper)
    : m_paper(paper), m_path(m_file.path()), m_temporaryFolder(NamelessFile::folder())
{
    lxw_workbook_options options = {};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = m_temporaryFolder.data();
    m_pWorkbook.reset(workbook_new_opt(m_path.c_str(), &options));
    if (m_pWorkbook == nullptr)
        fail("no memory is left");
    std::string copy = title;
    lxw_doc_properties properties = {};
    properties.title = copy.data();
    properties.created = kCreated;
    require(workbook_set_properties(m_pWorkbook.get(), &properties));
}

lxw_worksheet& WorkbookFile::addSheet(const std::string& name)
{
    lxw_worksheet* const pSheet = workbook_add_worksheet(m_pWorkbook.get(), name.c_str());
    if (pSheet == nullptr)
        fail("no temporary file can be made for the rows of a sheet in " + m_temporaryFolder);
    worksheet_set_paper(pSheet, m_paper == kA4Paper ? kA4 : kLetter);
    m_sheets.push_back(pSheet);
    return *pSheet;
}

// Closing frees the workbook, also where it fails.
void WorkbookFile::writeTo(TextSink& sink)
{
    requireRows();
    errno = 0;
    const lxw_error error = closeAlone(m_pWorkbook.release());
    const int systemError = errno;
    if (std::find(std::begin(kDiskErrors), std::end(kDiskErrors), systemError) != std::end(kDiskErrors))
        failForLackOfRoom(systemError);
    require(error);
    m_file.copyTo(sink);
}

void WorkbookFile::requireRows() const
{
    for (const lxw_worksheet* const pSheet : m_sheets)
    {
        errno = 0;
        if (std::fflush(pSheet->optimize_tmpfile) != 0 || std::ferror(pSheet->optimize_tmpfile) != 0)
            failForLackOfRoom(errno == 0 ? ENOSPC : errno);
    }
}

void WorkbookFile::require(lxw_error error)
{
    if (error != LXW_NO_ERROR)
        fail(lxw_strerror(error));
}
}
