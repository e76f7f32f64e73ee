// What there is to choose from, in JSON, for hosts that offer it to their users.
//
//   Catalogue::textOf("tokens")    ->  [{"token": "%Weight", "value": "number", "order": "number", "kind": "weight", ...}]
//   Catalogue::textOf("kinds")     ->  [{"kind": "length", "meaning": "a unit of length such as mm or ft"}]
//   Catalogue::textOf("units")     ->  [{"kind": "length", "unit": "in", "notation": "in/3", "oneIs": "25.4 mm", ...}]
//   Catalogue::textOf("formats")   ->  ["text", "csv", ...]
//   Catalogue::textOf("schema")    ->  the JSON schema of templates
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mekbom::Catalogue
{
// What textOf() knows.
std::vector<std::string> names();

// Empty for a name that is none of these.
std::string textOf(std::string_view name);
}
