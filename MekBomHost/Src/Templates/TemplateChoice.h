// Which template suits a parts list whose user names none: the one the greatest part of whose data the list has as
// columns; of equals the first. A template that finds less than half of its data suits nothing.
//
//   columns %BoltName, %Standard, %Material, %Diameter, %Length, %Quantity   ->   bolt-list.json, all six of six
//
//   const NamedText& file = TemplateChoice::choose("parts.csv", files, hasColumn);
//   ReportTemplate list = TemplateReader::read(file.name, file.text);
#pragma once

#include "NamedText.h"

#include <functional>
#include <string>
#include <vector>

namespace mekbom::TemplateChoice
{
// That one of `candidates`, which are template files in order of preference; good for as long as they are. `hasColumn`
// answers for a token such as "%Name". Throws a Fault of status kInvalidInput: in the name of `dataName` when none suits,
// as TemplateReader does when one is malformed.
const NamedText& choose(const std::string& dataName, const std::vector<NamedText>& candidates,
                        const std::function<bool(const std::string&)>& hasColumn);
}
