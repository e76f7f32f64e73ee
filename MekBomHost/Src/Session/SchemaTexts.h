// The JSON schemas of templates and of lists in JSON, as the files of the folder Schema have them. The build turns these
// into texts.
//
//   Catalogue::textOf("schema")   ->  SchemaTexts::kTemplate
#pragma once

#include <string_view>

namespace mekbom::SchemaTexts
{
extern const std::string_view kTemplate;
extern const std::string_view kList;
}
