// A number as a cell of a workbook holds it: more of it than the list prints, in a format that shows what the list
// prints, digit for digit.
//
//   SheetNumber::of("2.5", 2.5)          ->  2.5 as "0.0"
//   SheetNumber::of("2.50", 2.5)         ->  2.5 as "0.00"
//   SheetNumber::of("8.57", 8.5744)      ->  8.5744 as "0.00"
//   SheetNumber::of("1 234.5", 1234.5)   ->  1234.5 with blanks between thousands
//   SheetNumber::of("7' 6\"", 90)        ->  none: a text
//
// Each number has the format of its own text, since no format drops zeros as lists do: "0.##" shows 3 as "3.", and
// "General" shows as many digits as there is room for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mekbom
{
struct SheetNumber
{
    // Spreadsheets show no more digits than that and zeros in place of further ones.
    static constexpr int kMostDigits = 15;

    // What a cell holds that a list prints as `text`; `value` is the number before it was rounded, in the unit that it
    // is printed in. None where no number in no format shows just that: of texts with marks, units, fractions and
    // exponents, of "inf" and "nan", and of more digits than kMostDigits.
    static std::optional<SheetNumber> of(std::string_view text, double value);

    // The format in the language of workbooks: "0.00", "#\ ##0".
    std::string format() const;

    double number = 0; // `value`, or what is printed where value would be shown as another text
    int numDecimals = 0;
    int numGroups = 1; // of digits before the point, with blanks between them
};
}
