// Texts of a list as a page may hold them, wherever it does: none of them can end the element, the attribute or the
// style that it stands in.
//
//   std::string page;
//   HtmlText::append(page, "</script> & \"M12\"");   // &lt;/script&gt; &amp; &quot;M12&quot;
//   HtmlText::inStyle("Length [mm]")  ->  "\"Length \\5b mm\\5d \""
#pragma once

#include <string>
#include <string_view>

namespace mekbom::HtmlText
{
// Appends a text, which is valid UTF-8, for an element's content or an attribute in quotes. Control characters but line
// breaks and tabs become U+FFFD, as in other formats.
void append(std::string& page, std::string_view text);

// The text as a string of a style, quotes included. Whatever is neither a letter, a digit nor a blank is written by its
// number: no word of it means anything to a browser.
std::string inStyle(std::string_view text);
}
