// How texts come into a text table, as a user chose it: wrapped, or cut to one line, and in ASCII where only
// that is wanted.
//
//   OutputChoices choices;
//   choices.cutsTexts = true;
//   TableText(choices).fitted("Base plate, corner", 10)    ->  "Base plat…"
//   TableText(choices).wrapped("Base plate, corner", 10)   ->  "Base" | "plate," | "corner"
//
// Widths are columns of a terminal; 0 is no limit.
#pragma once

#include "OutputChoices.h"
#include "ShownText.h"
#include "WordWrap.h"

#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class TableText
{
public:
    explicit TableText(const OutputChoices& choices) : m_isAscii(choices.isAscii), m_cuts(choices.cutsTexts) {}

    // Headings, labels and whatever stands outside the table, of which nothing is to be lost.
    std::vector<std::string> wrapped(std::string_view text, int width) const;

    // Texts of the parts list: one line where they are to be cut.
    std::vector<std::string> fitted(std::string_view text, int width) const;

    // How wide a text is that fitted() would give back as it is, in one line, and that is written from left to right;
    // kNotAsIs for any other one. Of nearly all texts that takes no look at their characters.
    static constexpr int kNotAsIs = WordWrap::kNotOneLine;
    int widthAsIs(const ShownText& text, int limit) const
    {
        const int width = text.isPlain ? static_cast<int>(text.length) : widthBeyondAscii(text.view());
        return limit == 0 || width <= limit ? width : kNotAsIs;
    }

private:
    int widthBeyondAscii(std::string_view text) const;

    bool m_isAscii;
    bool m_cuts;
};
}
