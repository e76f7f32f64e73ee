// The formats that reports are written in, by name.
//
//   const std::unique_ptr<ReportWriter> pWriter = ReportFormats::createWriter(ReportFormats::kText);
//   pWriter->write(report, sink);
#pragma once

#include "OutputChoices.h"
#include "ReportWriter.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom::ReportFormats
{
// The format of whoever asks for none: a table for a terminal.
inline constexpr std::string_view kText = "text";

// A writer of that format, which the caller owns; null for a name that is none. It keeps a copy of the choices that the
// format takes.
std::unique_ptr<ReportWriter> createWriter(std::string_view format, const OutputChoices& choices = OutputChoices());

// The names of all formats.
std::vector<std::string> names();

// The format that the name of a file asks for; empty for a name that asks for none.
//   formatOf("lists.d/LIST.TXT")   ->  "text"
//   formatOf("list.lst")           ->  "": nobody knows what to expect
std::string_view formatOf(std::string_view fileName);

// Whether whoever opens a file of that name will expect a format that no list is written in.
//   promisesOtherFormat("list.pdf")   ->  true
bool promisesOtherFormat(std::string_view fileName);

// Whether writers of that format do what the choice says.
bool takes(std::string_view format, OutputChoices::eChoice choice);

// The names of the formats that do.
std::vector<std::string> namesTaking(OutputChoices::eChoice choice);
}
