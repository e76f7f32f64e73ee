// The container has a folder of its own, with names in UTF-16. What is behind a password is always called the same.
#include "OldWorkbook.h"

#include "WorkbookFault.h"

namespace mekbom::OldWorkbook
{
namespace
{
const std::string_view kMark = "\xD0\xCF\x11\xE0";

// Each character of ASCII with a zero byte behind it.
std::string wide(std::string_view name)
{
    std::string bytes;
    for (const char c : name)
        bytes += { c, '\0' };
    return bytes;
}
}

bool isOne(std::string_view head)
{
    return head.substr(0, kMark.size()) == kMark;
}

void refuse(const std::string& name, std::string_view bytes)
{
    if (bytes.find(wide("EncryptedPackage")) != std::string_view::npos)
        WorkbookFault::ofOtherKind(name, "a workbook with a password", "save it without one");
    WorkbookFault::ofOtherKind(name, "a workbook of an old kind (.xls)", "save it as .xlsx");
}
}
