// A column of a list in JSON:
//
//   lengths   {"token": "%Length", "label": "Cut", "heading": "Cut [ft-in]", "kind": "length", "unit": "ft", ...}
//   names     {"token": "%Name", "label": "Profile", "heading": "Profile", "kind": "text", "unit": null, ...}
#pragma once

#include "ReportColumn.h"

#include <string>
#include <vector>

namespace mekbom::JsonColumn
{
std::string textOf(const ReportColumn& column);

// An array of all of them, each on a line of its own.
std::string textOf(const std::vector<ReportColumn>& columns);
}
