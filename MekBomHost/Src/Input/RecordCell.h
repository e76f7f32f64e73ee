// One cell of a record: nothing, a text, or a number that its source holds as a number rather than as digits.
//
//   RecordCell().isNothing()                          ->  true
//   RecordCell(std::string_view("7.5 ft")).text()     ->  "7.5 ft"
//   RecordCell(7.5).number()                          ->  7.5
//
// An empty text is nothing. A cell is two words, to be copied freely; the characters of a text stay with its source.
#pragma once

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

    bool isNothing() const { return m_size == 0; }
    bool isNumber() const { return m_size == kIsNumber; }

    // The cell must be a number.
    double number() const { return m_number; }

    // The cell must not be a number; the text is UTF-8 without zero bytes, and empty when the cell is nothing.
    std::string_view text() const { return std::string_view(m_pText, m_size); }

    // Every cell has this text: that of a number is the shortest one that identifies it.
    std::string asText() const { return isNumber() ? numberText(m_number) : std::string(text()); }

private:
    static constexpr std::size_t kIsNumber = static_cast<std::size_t>(-1); // no text is as long

    union
    {
        const char* m_pText;
        double m_number;
    };
    std::size_t m_size; // of the text, in bytes; kIsNumber without one
};
}
