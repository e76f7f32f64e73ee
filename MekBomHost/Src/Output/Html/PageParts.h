// What all pages have in common: the style and the script, as list.css and list.js beside this file have them. The
// build turns these into texts, so that the program needs no files to write a page.
//
//   page.append("<style>\n").append(PageParts::kStyle).append("</style>\n");
#pragma once

#include <string_view>

namespace mekbom::PageParts
{
extern const std::string_view kStyle;
extern const std::string_view kScript;
}
