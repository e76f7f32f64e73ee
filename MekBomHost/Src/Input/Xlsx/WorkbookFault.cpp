#include "WorkbookFault.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"

namespace mekbom::WorkbookFault
{
namespace
{
[[noreturn]] void fail(const WorkbookPart& part, Finding finding)
{
    finding.source = part.workbook;
    finding.path = harmless(part.path);
    throw Fault(kInvalidInput, finding);
}
}

void inPart(const WorkbookPart& part, const std::string& found, const std::string& expected)
{
    Finding finding = Finding::of(FindingCodes::kWorkbookDamaged, found, expected);
    finding.remedy = "open it in a spreadsheet program and save it anew";
    fail(part, finding);
}

void tooLarge(const WorkbookPart& part, const std::string& what, std::size_t mostBytes)
{
    Finding finding = Finding::of(FindingCodes::kWorkbookTooLarge,
                                  what + " of more than " + std::to_string(mostBytes >> 20) + " MB", "less");
    finding.remedy = "a file of parts this large is damaged, or made to do harm";
    fail(part, finding);
}

void ofOtherKind(const std::string& workbook, const std::string& found, const std::string& remedy)
{
    Finding finding = Finding::of(FindingCodes::kWorkbookOfOtherKind, found, "a workbook (.xlsx) or CSV");
    finding.remedy = remedy;
    fail({ workbook, "" }, finding);
}
}
