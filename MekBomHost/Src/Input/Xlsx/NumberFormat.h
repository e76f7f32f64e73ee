// What a number format makes of a number: whether the number that a sheet shows is the one that is stored.
//
//   NumberFormat::parse("#,##0.00").kind         ->  NumberFormat::kPlain
//   NumberFormat::parse("dd/mm/yyyy").kind       ->  NumberFormat::kDate
//   NumberFormat::parse("0.0%").kind             ->  NumberFormat::kPercent     0.19 is shown as 19.0%
//   NumberFormat::parse("0,").kind               ->  NumberFormat::kScaled      12000 is shown as 12
//   NumberFormat::parse("0.00\" kg\"").kind      ->  NumberFormat::kWithUnit
//   NumberFormat::parse("0.00\" kg\"").unit      ->  "kg"
//
// Rounding, colours, currencies and other words beside the number make no difference.
#pragma once

#include <string>
#include <string_view>

namespace mekbom
{
struct NumberFormat
{
    enum eKind
    {
        kPlain,
        kDate, // or a time
        kPercent,
        kScaled,  // shown in thousands or millions
        kWithUnit // one that the catalogue of units knows is shown behind the number
    };

    // Of a format as workbooks have it, in the notation that is the same in every language.
    static NumberFormat parse(std::string_view code);

    // Of one that has a number and no code, since every program knows it. Those that nobody knows are plain.
    static NumberFormat builtIn(int number);

    eKind kind = kPlain;
    std::string unit; // "kg"; empty for all other kinds
};
}
