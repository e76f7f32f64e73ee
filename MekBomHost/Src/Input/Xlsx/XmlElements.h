// The elements of a kind in an XML text of any size, one at a time, each with all that stands in it.
//
//   XmlElements rows(part, "parts.xlsx", { "sheetData/row" });
//   while (const pugi::xml_node row = rows.next())
//       use(row);
//
// An element is wanted by its name and that of the element around it, both without prefixes: "<x:row>" within
// "<x:sheetData>". What stands around wanted ones is passed over, so that of a sheet of gigabytes a row is in memory.
//
// The text is UTF-8. Definitions of entities, which may grow without bounds, elements that are too deep or too large
// (XlsxLimits), and what is no XML end in a Fault of status kInvalidInput that names the part.
#pragma once

#include "ByteSource.h"
#include "WorkbookFault.h"

#include <pugixml.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class XmlElements
{
public:
    // `part` is not owned and outlives this object; its name is its path in `workbook`.
    XmlElements(ByteSource& part, const std::string& workbook, std::vector<std::string_view> wanted);

    // The next wanted element; null at the end. It and its texts are good until the next call.
    pugi::xml_node next();

private:
    enum eTag
    {
        kOpens,
        kCloses,
        kIsEmpty, // opens and closes
        kNoMore
    };

    struct Tag
    {
        eTag kind;
        std::size_t begin; // in m_text, until the next tag
        std::size_t end;
    };

    static constexpr std::size_t kNone = std::string::npos;

    Tag nextTag();
    std::string_view nameOf(const Tag& tag) const;
    bool findMarkup();
    std::size_t endOfMarkup() const;
    std::size_t endOfTag() const;
    std::size_t endBehind(std::string_view mark) const;
    bool readMore();
    void begin();
    void requireUtf8() const;
    bool isWanted(std::string_view name) const;
    void enter(std::string_view name);
    void leave(std::string_view name);
    void passElement();
    void requireDepth(std::size_t depth) const;
    void refuseZeroCharacters(std::string_view element) const;
    pugi::xml_node parse();

    ByteSource& m_source;
    WorkbookPart m_part;
    std::vector<std::string_view> m_wanted;

    std::string m_text;              // of what has been read, that which may still be needed
    std::size_t m_next = 0;          // what has not been looked at, in m_text
    std::size_t m_element = kNone;   // where the wanted element begins that is being passed; kNone outside of one
    std::vector<std::string> m_open; // the names of the elements around m_next, from the root
    bool m_hasRoot = false;
    pugi::xml_document m_document; // the wanted element
};
}
