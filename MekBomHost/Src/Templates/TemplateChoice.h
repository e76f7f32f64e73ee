// Which template suits a parts list whose user names none: the one the greatest part of whose data the list has as
// columns; of equals the first. A template that finds less than half of its data suits nothing, and neither does one
// whose filter no row of these columns could pass.
//
//   columns %BoltName, %Standard, %Material, %Diameter, %Length, %Quantity   ->   bolt-list.json, all six of six
//
//   if (const NamedText* const pFile = TemplateChoice::choose(files, hasColumn))
//       list = TemplateReader::read(pFile->name, pFile->text);
//
// What each of them would find, and what it would lack, is TemplateCover.
#pragma once

#include "NamedText.h"
#include "TemplateCover.h"

#include <functional>
#include <string>
#include <vector>

namespace mekbom::TemplateChoice
{
// That one of `candidates`, which are template files in order of preference; good for as long as they are. Null when
// none suits. `hasColumn` answers for a token such as "%Name". Throws a Fault of status kInvalidInput, as TemplateReader
// does, when one is malformed.
const NamedText* choose(const std::vector<NamedText>& candidates,
                        const std::function<bool(const std::string&)>& hasColumn);

// What each of the candidates would find, those first that suit better, equals in their order. Where one suits, the
// first is the one that choose() answers. Throws as choose() does.
std::vector<TemplateCover> coversOf(const std::vector<NamedText>& candidates,
                                    const std::function<bool(const std::string&)>& hasColumn);
}
