// What `mekbom units` is asked to do.
#pragma once

#include <string>

namespace mekbom
{
struct UnitsOptions
{
    enum eTask
    {
        kList,
        kConvert, // value from unit to unit
        kRead     // value
    };

    eTask task = kList;
    std::string value;
    std::string from; // a symbol
    std::string to;   // a symbol and a precision

    // How the text is laid out, as the engine does when nobody sets anything.
    int suppressLastZeros = 1;
    int suppressZeroFeet = 1;
    int suppressZeroInch = 1;
    std::string separator = kBlank;

    static constexpr const char* kBlank = "blank";
    static constexpr const char* kMinus = "minus";
};
}
