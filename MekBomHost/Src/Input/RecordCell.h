// One cell of a record: nothing, a text, a number that its source holds as a number rather than as digits, or one whose
// value is refused, such as a date, which is a mistake only where somebody asks for it.
//
//   RecordCell().isNothing()                          ->  true
//   RecordCell(std::string_view("7.5 ft")).text()     ->  "7.5 ft"
//   RecordCell(7.5).number()                          ->  7.5
//
// An empty text is nothing. A cell is two words, to be copied freely; the characters of a text stay with its source, as
// does the finding that says why a value is refused.
#pragma once

#include "Finding.h"
#include "NumberText.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace mekbom
{
class RecordCell
{
public:
    RecordCell() : RecordCell(std::string_view()) {}
    explicit RecordCell(std::string_view text) : m_pText(text.data()), m_size(text.size()) {}

    // `number` is finite.
    explicit RecordCell(double number) : m_number(number), m_size(kIsNumber) {}

    // `refusal` has everything but its place.
    explicit RecordCell(const Finding& refusal) : m_pRefusal(&refusal), m_size(kIsRefused) {}

    bool isNothing() const { return m_size == 0; }
    bool isNumber() const { return m_size == kIsNumber; }
    bool isRefused() const { return m_size == kIsRefused; }
    bool isText() const { return m_size < kIsRefused; } // nothing is one, too

    // The cell must be a number.
    double number() const { return m_number; }

    // The value must be refused.
    const Finding& refusal() const { return *m_pRefusal; }

    // The cell must be a text; it is UTF-8 without zero bytes, and empty when the cell is nothing.
    std::string_view text() const { return std::string_view(m_pText, m_size); }

    // Every cell has this text: that of a number is the shortest one that identifies it, that of a refused value what
    // was found in its place.
    std::string asText() const
    {
        if (isRefused())
            return m_pRefusal->found;
        return isNumber() ? numberText(m_number) : std::string(text());
    }

private:
    static constexpr std::size_t kIsNumber = static_cast<std::size_t>(-1); // no text is as long
    static constexpr std::size_t kIsRefused = kIsNumber - 1;               // nor as this

    union
    {
        const char* m_pText;
        double m_number;
        const Finding* m_pRefusal;
    };
    std::size_t m_size; // of the text, in bytes; kIsNumber or kIsRefused without one
};
}
