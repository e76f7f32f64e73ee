// The formats that reports are written in, by name.
//
//   const std::unique_ptr<ReportWriter> pWriter = ReportFormats::createWriter(ReportFormats::kText);
//   pWriter->write(report, sink);
#pragma once

#include "ReportWriter.h"

#include <memory>
#include <string_view>

namespace mekbom::ReportFormats
{
// The format of whoever asks for none: a table for a terminal.
inline constexpr std::string_view kText = "text";

// A writer of that format, which the caller owns; null for a name that is none.
std::unique_ptr<ReportWriter> createWriter(std::string_view format);

// Whether whoever opens a file of that name will expect a format that no list is written in.
//   promisesOtherFormat("list.xlsx")   ->  true
//   promisesOtherFormat("list.lst")    ->  false: nobody knows what to expect
bool promisesOtherFormat(std::string_view fileName);
}
