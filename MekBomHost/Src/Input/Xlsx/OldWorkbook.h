// Files that spreadsheet programs write in a container of another kind: workbooks of the time before .xlsx, and those
// with a password, whatever is within.
//
//   OldWorkbook::isOne("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1")   ->  true
//   OldWorkbook::refuse("parts.xls", bytes);
#pragma once

#include <string>
#include <string_view>

namespace mekbom::OldWorkbook
{
// Whether a file that begins with `head` is such a container.
bool isOne(std::string_view head);

// Throws a Fault of status kInvalidInput that says which of them `bytes` are.
[[noreturn]] void refuse(const std::string& name, std::string_view bytes);
}
