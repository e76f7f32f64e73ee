// Findings as JSON, for editors and other programs.
//
//   FindingJson::textOf(findings)
//       ->  [ { "severity": "error", "code": "MB105", "source": "list.json", "line": 8, "column": 17, ... } ]
#pragma once

#include "Finding.h"

#include <string>
#include <vector>

namespace mekbom::FindingJson
{
// An array with an object for each finding, which has all members of Finding: texts as they are, "" where there is none,
// lines and columns as numbers, 0 where they are not known, and "message", what a terminal shows. Ends with a line end.
std::string textOf(const std::vector<Finding>& findings);
}
