// The objects of a JSON text, one after the other: the elements of an array, or what stands there without one, a line
// each (JSON Lines).
//
//   JsonObjects objects("parts.json", "[ { \"Name\": \"HEA200\" }, { \"Name\": \"IPE360\" } ]");
//   objects.next()     ->  { "Name": "HEA200" }
//   objects.next()     ->  { "Name": "IPE360" }
//   objects.next()     ->  empty: there are no more
//
// Only braces and quotes are looked at: whether an object is valid is for its parser to say. Anything else than objects,
// and an object larger than InputLimits allow, ends it with a Fault of status kInvalidInput that names the place.
#pragma once

#include "Finding.h"
#include "TextPlace.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace mekbom
{
class JsonObjects
{
public:
    // Both texts must outlive the objects. `name` is what findings call the file; a byte order mark is passed over.
    JsonObjects(const std::string& name, std::string_view text);

    // The next object with its braces, a part of the text; empty behind the last.
    std::string_view next();

    // Begins with the first object again.
    void rewind();

    // Where the object stands that was given last. Asked for again and again, all answers cost one pass over the text.
    TextPlace place() { return m_places.placeOf(m_begin); }

private:
    void skipBlanks();
    bool isAt(char character) const { return m_offset < m_text.size() && m_text[m_offset] == character; }
    void beginNext();
    std::size_t endOfObject() const;
    std::size_t endOfText(std::size_t offset) const;
    [[noreturn]] void fail(const std::string& expected);
    [[noreturn]] void failUnclosed() const;
    [[noreturn]] void failTooLarge();

    const std::string& m_name;
    std::string_view m_text;
    bool m_isArray = false;
    bool m_isFirst = true;    // no object was given yet
    std::size_t m_offset = 0; // behind what was looked at
    std::size_t m_begin = 0;  // of the object given last
    PlaceCounter m_places;
};
}
