// Shop drawing conventions written out: every combination of the three suppressions with both separators, every usual
// fraction of an inch, and the units that the other tables have no rows for. The texts were computed with exact fractions
// by another program than this library, and read.
#include "FormatCase.h"

#include <cstddef>
#include <iterator>
#include <limits>

namespace
{
const int kFeetAndInches = 13;
const int kSixteenths = 1016;
const int kTwoDecimals = 2;

// In the order of the texts below: z, f, i suppress last zeros, zero feet, zero inches.
const wchar_t* const kFlags[] = { L"", L"z", L"f", L"i", L"zf", L"zi", L"fi", L"zfi" };

struct SuppressionCase
{
    double value; // mm
    int format;
    const wchar_t* expected[std::size(kFlags)];
};

// clang-format off
const SuppressionCase kWithMinus[] = {
    { 0.0, kSixteenths, { L"0'-0\"", L"0'-0\"", L"0\"", L"0'", L"0\"", L"0'", L"0\"", L"0\"" } },
    { 0.7, kSixteenths, { L"0'-0\"", L"0'-0\"", L"0\"", L"0'", L"0\"", L"0'", L"0\"", L"0\"" } },
    { 12.7, kSixteenths, { L"0'-0 1/2\"", L"0'-0 1/2\"", L"1/2\"", L"0'-0 1/2\"", L"1/2\"", L"0'-0 1/2\"", L"1/2\"", L"1/2\"" } },
    { 152.4, kSixteenths, { L"0'-6\"", L"0'-6\"", L"6\"", L"0'-6\"", L"6\"", L"0'-6\"", L"6\"", L"6\"" } },
    { 165.1, kSixteenths, { L"0'-6 1/2\"", L"0'-6 1/2\"", L"6 1/2\"", L"0'-6 1/2\"", L"6 1/2\"", L"0'-6 1/2\"", L"6 1/2\"", L"6 1/2\"" } },
    { 304.00625, kSixteenths, { L"1'-0\"", L"1'-0\"", L"1'-0\"", L"1'", L"1'-0\"", L"1'", L"1'", L"1'" } },
    { 304.7746, kSixteenths, { L"1'-0\"", L"1'-0\"", L"1'-0\"", L"1'", L"1'-0\"", L"1'", L"1'", L"1'" } },
    { 2133.6, kSixteenths, { L"7'-0\"", L"7'-0\"", L"7'-0\"", L"7'", L"7'-0\"", L"7'", L"7'", L"7'" } },
    { 2146.3, kSixteenths, { L"7'-0 1/2\"", L"7'-0 1/2\"", L"7'-0 1/2\"", L"7'-0 1/2\"", L"7'-0 1/2\"", L"7'-0 1/2\"", L"7'-0 1/2\"", L"7'-0 1/2\"" } },
    { 2286.0, kSixteenths, { L"7'-6\"", L"7'-6\"", L"7'-6\"", L"7'-6\"", L"7'-6\"", L"7'-6\"", L"7'-6\"", L"7'-6\"" } },
    { 2298.7, kSixteenths, { L"7'-6 1/2\"", L"7'-6 1/2\"", L"7'-6 1/2\"", L"7'-6 1/2\"", L"7'-6 1/2\"", L"7'-6 1/2\"", L"7'-6 1/2\"", L"7'-6 1/2\"" } },
    { -2286.0, kSixteenths, { L"-7'-6\"", L"-7'-6\"", L"-7'-6\"", L"-7'-6\"", L"-7'-6\"", L"-7'-6\"", L"-7'-6\"", L"-7'-6\"" } },
    { -152.4, kSixteenths, { L"-0'-6\"", L"-0'-6\"", L"-6\"", L"-0'-6\"", L"-6\"", L"-0'-6\"", L"-6\"", L"-6\"" } },
    { -2133.6, kSixteenths, { L"-7'-0\"", L"-7'-0\"", L"-7'-0\"", L"-7'", L"-7'-0\"", L"-7'", L"-7'", L"-7'" } },
    { -0.1, kSixteenths, { L"0'-0\"", L"0'-0\"", L"0\"", L"0'", L"0\"", L"0'", L"0\"", L"0\"" } },
    { 0.0, kTwoDecimals, { L"0'-0.00\"", L"0'-0\"", L"0.00\"", L"0'", L"0\"", L"0'", L"0.00\"", L"0\"" } },
    { 0.7, kTwoDecimals, { L"0'-0.03\"", L"0'-0.03\"", L"0.03\"", L"0'-0.03\"", L"0.03\"", L"0'-0.03\"", L"0.03\"", L"0.03\"" } },
    { 12.7, kTwoDecimals, { L"0'-0.50\"", L"0'-0.5\"", L"0.50\"", L"0'-0.50\"", L"0.5\"", L"0'-0.5\"", L"0.50\"", L"0.5\"" } },
    { 152.4, kTwoDecimals, { L"0'-6.00\"", L"0'-6\"", L"6.00\"", L"0'-6.00\"", L"6\"", L"0'-6\"", L"6.00\"", L"6\"" } },
    { 165.1, kTwoDecimals, { L"0'-6.50\"", L"0'-6.5\"", L"6.50\"", L"0'-6.50\"", L"6.5\"", L"0'-6.5\"", L"6.50\"", L"6.5\"" } },
    { 304.00625, kTwoDecimals, { L"0'-11.97\"", L"0'-11.97\"", L"11.97\"", L"0'-11.97\"", L"11.97\"", L"0'-11.97\"", L"11.97\"", L"11.97\"" } },
    { 304.7746, kTwoDecimals, { L"1'-0.00\"", L"1'-0\"", L"1'-0.00\"", L"1'", L"1'-0\"", L"1'", L"1'", L"1'" } },
    { 2133.6, kTwoDecimals, { L"7'-0.00\"", L"7'-0\"", L"7'-0.00\"", L"7'", L"7'-0\"", L"7'", L"7'", L"7'" } },
    { 2146.3, kTwoDecimals, { L"7'-0.50\"", L"7'-0.5\"", L"7'-0.50\"", L"7'-0.50\"", L"7'-0.5\"", L"7'-0.5\"", L"7'-0.50\"", L"7'-0.5\"" } },
    { 2286.0, kTwoDecimals, { L"7'-6.00\"", L"7'-6\"", L"7'-6.00\"", L"7'-6.00\"", L"7'-6\"", L"7'-6\"", L"7'-6.00\"", L"7'-6\"" } },
    { 2298.7, kTwoDecimals, { L"7'-6.50\"", L"7'-6.5\"", L"7'-6.50\"", L"7'-6.50\"", L"7'-6.5\"", L"7'-6.5\"", L"7'-6.50\"", L"7'-6.5\"" } },
    { -2286.0, kTwoDecimals, { L"-7'-6.00\"", L"-7'-6\"", L"-7'-6.00\"", L"-7'-6.00\"", L"-7'-6\"", L"-7'-6\"", L"-7'-6.00\"", L"-7'-6\"" } },
    { -152.4, kTwoDecimals, { L"-0'-6.00\"", L"-0'-6\"", L"-6.00\"", L"-0'-6.00\"", L"-6\"", L"-0'-6\"", L"-6.00\"", L"-6\"" } },
    { -2133.6, kTwoDecimals, { L"-7'-0.00\"", L"-7'-0\"", L"-7'-0.00\"", L"-7'", L"-7'-0\"", L"-7'", L"-7'", L"-7'" } },
    { -0.1, kTwoDecimals, { L"0'-0.00\"", L"0'-0\"", L"0.00\"", L"0'", L"0\"", L"0'", L"0.00\"", L"0\"" } },
};

const SuppressionCase kWithBlank[] = {
    { 0.0, kSixteenths, { L"0' 0\"", L"0' 0\"", L"0\"", L"0'", L"0\"", L"0'", L"0\"", L"0\"" } },
    { 0.7, kSixteenths, { L"0' 0\"", L"0' 0\"", L"0\"", L"0'", L"0\"", L"0'", L"0\"", L"0\"" } },
    { 12.7, kSixteenths, { L"0' 0 1/2\"", L"0' 0 1/2\"", L"1/2\"", L"0' 0 1/2\"", L"1/2\"", L"0' 0 1/2\"", L"1/2\"", L"1/2\"" } },
    { 152.4, kSixteenths, { L"0' 6\"", L"0' 6\"", L"6\"", L"0' 6\"", L"6\"", L"0' 6\"", L"6\"", L"6\"" } },
    { 165.1, kSixteenths, { L"0' 6 1/2\"", L"0' 6 1/2\"", L"6 1/2\"", L"0' 6 1/2\"", L"6 1/2\"", L"0' 6 1/2\"", L"6 1/2\"", L"6 1/2\"" } },
    { 304.00625, kSixteenths, { L"1' 0\"", L"1' 0\"", L"1' 0\"", L"1'", L"1' 0\"", L"1'", L"1'", L"1'" } },
    { 304.7746, kSixteenths, { L"1' 0\"", L"1' 0\"", L"1' 0\"", L"1'", L"1' 0\"", L"1'", L"1'", L"1'" } },
    { 2133.6, kSixteenths, { L"7' 0\"", L"7' 0\"", L"7' 0\"", L"7'", L"7' 0\"", L"7'", L"7'", L"7'" } },
    { 2146.3, kSixteenths, { L"7' 0 1/2\"", L"7' 0 1/2\"", L"7' 0 1/2\"", L"7' 0 1/2\"", L"7' 0 1/2\"", L"7' 0 1/2\"", L"7' 0 1/2\"", L"7' 0 1/2\"" } },
    { 2286.0, kSixteenths, { L"7' 6\"", L"7' 6\"", L"7' 6\"", L"7' 6\"", L"7' 6\"", L"7' 6\"", L"7' 6\"", L"7' 6\"" } },
    { 2298.7, kSixteenths, { L"7' 6 1/2\"", L"7' 6 1/2\"", L"7' 6 1/2\"", L"7' 6 1/2\"", L"7' 6 1/2\"", L"7' 6 1/2\"", L"7' 6 1/2\"", L"7' 6 1/2\"" } },
    { -2286.0, kSixteenths, { L"-7' 6\"", L"-7' 6\"", L"-7' 6\"", L"-7' 6\"", L"-7' 6\"", L"-7' 6\"", L"-7' 6\"", L"-7' 6\"" } },
    { -152.4, kSixteenths, { L"-0' 6\"", L"-0' 6\"", L"-6\"", L"-0' 6\"", L"-6\"", L"-0' 6\"", L"-6\"", L"-6\"" } },
    { -2133.6, kSixteenths, { L"-7' 0\"", L"-7' 0\"", L"-7' 0\"", L"-7'", L"-7' 0\"", L"-7'", L"-7'", L"-7'" } },
    { -0.1, kSixteenths, { L"0' 0\"", L"0' 0\"", L"0\"", L"0'", L"0\"", L"0'", L"0\"", L"0\"" } },
    { 0.0, kTwoDecimals, { L"0' 0.00\"", L"0' 0\"", L"0.00\"", L"0'", L"0\"", L"0'", L"0.00\"", L"0\"" } },
    { 0.7, kTwoDecimals, { L"0' 0.03\"", L"0' 0.03\"", L"0.03\"", L"0' 0.03\"", L"0.03\"", L"0' 0.03\"", L"0.03\"", L"0.03\"" } },
    { 12.7, kTwoDecimals, { L"0' 0.50\"", L"0' 0.5\"", L"0.50\"", L"0' 0.50\"", L"0.5\"", L"0' 0.5\"", L"0.50\"", L"0.5\"" } },
    { 152.4, kTwoDecimals, { L"0' 6.00\"", L"0' 6\"", L"6.00\"", L"0' 6.00\"", L"6\"", L"0' 6\"", L"6.00\"", L"6\"" } },
    { 165.1, kTwoDecimals, { L"0' 6.50\"", L"0' 6.5\"", L"6.50\"", L"0' 6.50\"", L"6.5\"", L"0' 6.5\"", L"6.50\"", L"6.5\"" } },
    { 304.00625, kTwoDecimals, { L"0' 11.97\"", L"0' 11.97\"", L"11.97\"", L"0' 11.97\"", L"11.97\"", L"0' 11.97\"", L"11.97\"", L"11.97\"" } },
    { 304.7746, kTwoDecimals, { L"1' 0.00\"", L"1' 0\"", L"1' 0.00\"", L"1'", L"1' 0\"", L"1'", L"1'", L"1'" } },
    { 2133.6, kTwoDecimals, { L"7' 0.00\"", L"7' 0\"", L"7' 0.00\"", L"7'", L"7' 0\"", L"7'", L"7'", L"7'" } },
    { 2146.3, kTwoDecimals, { L"7' 0.50\"", L"7' 0.5\"", L"7' 0.50\"", L"7' 0.50\"", L"7' 0.5\"", L"7' 0.5\"", L"7' 0.50\"", L"7' 0.5\"" } },
    { 2286.0, kTwoDecimals, { L"7' 6.00\"", L"7' 6\"", L"7' 6.00\"", L"7' 6.00\"", L"7' 6\"", L"7' 6\"", L"7' 6.00\"", L"7' 6\"" } },
    { 2298.7, kTwoDecimals, { L"7' 6.50\"", L"7' 6.5\"", L"7' 6.50\"", L"7' 6.50\"", L"7' 6.5\"", L"7' 6.5\"", L"7' 6.50\"", L"7' 6.5\"" } },
    { -2286.0, kTwoDecimals, { L"-7' 6.00\"", L"-7' 6\"", L"-7' 6.00\"", L"-7' 6.00\"", L"-7' 6\"", L"-7' 6\"", L"-7' 6.00\"", L"-7' 6\"" } },
    { -152.4, kTwoDecimals, { L"-0' 6.00\"", L"-0' 6\"", L"-6.00\"", L"-0' 6.00\"", L"-6\"", L"-0' 6\"", L"-6.00\"", L"-6\"" } },
    { -2133.6, kTwoDecimals, { L"-7' 0.00\"", L"-7' 0\"", L"-7' 0.00\"", L"-7'", L"-7' 0\"", L"-7'", L"-7'", L"-7'" } },
    { -0.1, kTwoDecimals, { L"0' 0.00\"", L"0' 0\"", L"0.00\"", L"0'", L"0\"", L"0'", L"0.00\"", L"0\"" } },
};

const FormatCase kFractions[] = {
    { 607.21875, kFeetAndInches, 1001, L"zfi", L'-', L"2'" },
    { 303.2125, kFeetAndInches, 1001, L"zfi", L'-', L"1'" },
    { -101.6, kFeetAndInches, 1001, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1001, L"zfi", L'-', L"6'-1\"" },
    { 607.21875, kFeetAndInches, 1002, L"zfi", L'-', L"2'" },
    { 303.2125, kFeetAndInches, 1002, L"zfi", L'-', L"1'" },
    { -101.6, kFeetAndInches, 1002, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1002, L"zfi", L'-', L"6'-1\"" },
    { 607.21875, kFeetAndInches, 1003, L"zfi", L'-', L"2'" },
    { 303.2125, kFeetAndInches, 1003, L"zfi", L'-', L"1'" },
    { -101.6, kFeetAndInches, 1003, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1003, L"zfi", L'-', L"6'-1\"" },
    { 607.21875, kFeetAndInches, 1004, L"zfi", L'-', L"2'" },
    { 303.2125, kFeetAndInches, 1004, L"zfi", L'-', L"1'" },
    { -101.6, kFeetAndInches, 1004, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1004, L"zfi", L'-', L"6'-0 3/4\"" },
    { 607.21875, kFeetAndInches, 1008, L"zfi", L'-', L"1'-11 7/8\"" },
    { 303.2125, kFeetAndInches, 1008, L"zfi", L'-', L"1'" },
    { -101.6, kFeetAndInches, 1008, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1008, L"zfi", L'-', L"6'-0 7/8\"" },
    { 607.21875, kFeetAndInches, 1010, L"zfi", L'-', L"1'-11 9/10\"" },
    { 303.2125, kFeetAndInches, 1010, L"zfi", L'-', L"11 9/10\"" },
    { -101.6, kFeetAndInches, 1010, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1010, L"zfi", L'-', L"6'-0 9/10\"" },
    { 607.21875, kFeetAndInches, 1012, L"zfi", L'-', L"1'-11 11/12\"" },
    { 303.2125, kFeetAndInches, 1012, L"zfi", L'-', L"11 11/12\"" },
    { -101.6, kFeetAndInches, 1012, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1012, L"zfi", L'-', L"6'-0 5/6\"" },
    { 607.21875, kFeetAndInches, 1016, L"zfi", L'-', L"1'-11 15/16\"" },
    { 303.2125, kFeetAndInches, 1016, L"zfi", L'-', L"11 15/16\"" },
    { -101.6, kFeetAndInches, 1016, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1016, L"zfi", L'-', L"6'-0 7/8\"" },
    { 607.21875, kFeetAndInches, 1032, L"zfi", L'-', L"1'-11 29/32\"" },
    { 303.2125, kFeetAndInches, 1032, L"zfi", L'-', L"11 15/16\"" },
    { -101.6, kFeetAndInches, 1032, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1032, L"zfi", L'-', L"6'-0 7/8\"" },
    { 607.21875, kFeetAndInches, 1064, L"zfi", L'-', L"1'-11 29/32\"" },
    { 303.2125, kFeetAndInches, 1064, L"zfi", L'-', L"11 15/16\"" },
    { -101.6, kFeetAndInches, 1064, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1064, L"zfi", L'-', L"6'-0 55/64\"" },
    { 607.21875, kFeetAndInches, 1128, L"zfi", L'-', L"1'-11 29/32\"" },
    { 303.2125, kFeetAndInches, 1128, L"zfi", L'-', L"11 15/16\"" },
    { -101.6, kFeetAndInches, 1128, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1128, L"zfi", L'-', L"6'-0 55/64\"" },
    { 607.21875, kFeetAndInches, 1256, L"zfi", L'-', L"1'-11 29/32\"" },
    { 303.2125, kFeetAndInches, 1256, L"zfi", L'-', L"11 15/16\"" },
    { -101.6, kFeetAndInches, 1256, L"zfi", L'-', L"-4\"" },
    { 1850.63, kFeetAndInches, 1256, L"zfi", L'-', L"6'-0 55/64\"" },
};

const FormatCase kOtherUnits[] = {
    { 2286.0, 4, 3, L"", L' ', L"228.600" },
    { 2286.0, 4, 2, L"zs", L' ', L"228.6 cm" },
    { 12.345, 4, 3, L"", L' ', L"1.235" },
    { 12.345, 4, 2, L"zs", L' ', L"1.23 cm" },
    { -0.04, 4, 3, L"", L' ', L"-0.004" },
    { -0.04, 4, 2, L"zs", L' ', L"0 cm" },
    { 2286.0, 5, 3, L"", L' ', L"22.860" },
    { 2286.0, 5, 2, L"zs", L' ', L"22.86 dm" },
    { 6000.0, 5, 3, L"", L' ', L"60.000" },
    { 6000.0, 5, 2, L"zs", L' ', L"60 dm" },
    { 2286.5, 6, 3, L"", L' ', L"2.287" },
    { 2286.5, 6, 2, L"zs", L' ', L"2.29 m" },
    { 12000.0, 6, 3, L"", L' ', L"12.000" },
    { 12000.0, 6, 2, L"zs", L' ', L"12 m" },
    { -499.9, 6, 3, L"", L' ', L"-0.500" },
    { -499.9, 6, 2, L"zs", L' ', L"-0.5 m" },
    { 42000.0, 7, 3, L"", L' ', L"0.042" },
    { 42000.0, 7, 2, L"zs", L' ', L"0.04 km" },
    { 1500000.0, 7, 3, L"", L' ', L"1.500" },
    { 1500000.0, 7, 2, L"zs", L' ', L"1.5 km" },
    { 914.4, 12, 3, L"", L' ', L"1.000" },
    { 914.4, 12, 2, L"zs", L' ', L"1 yd" },
    { 6858.0, 12, 3, L"", L' ', L"7.500" },
    { 6858.0, 12, 2, L"zs", L' ', L"7.5 yd" },
    { 0.0125, 1008, 3, L"", L' ', L"12.500" },
    { 0.0125, 1008, 2, L"zs", L' ', L"12.5 g" },
    { 1.5, 1008, 3, L"", L' ', L"1500.000" },
    { 1.5, 1008, 2, L"zs", L' ', L"1500 g" },
    { 26290.78, 1010, 3, L"", L' ', L"26.291" },
    { 26290.78, 1010, 2, L"zs", L' ', L"26.29 t" },
    { 7411.585137, 1010, 3, L"", L' ', L"7.412" },
    { 7411.585137, 1010, 2, L"zs", L' ', L"7.41 t" },
    { 1.0, 1020, 3, L"", L' ', L"35.274" },
    { 1.0, 1020, 2, L"zs", L' ', L"35.27 oz" },
    { 0.0283495231, 1020, 3, L"", L' ', L"1.000" },
    { 0.0283495231, 1020, 2, L"zs", L' ', L"1 oz" },
    { 26290.78, 1022, 3, L"", L' ', L"28.981" },
    { 26290.78, 1022, 2, L"zs", L' ', L"28.98 short ton" },
    { 453.59237, 1022, 3, L"", L' ', L"0.500" },
    { 453.59237, 1022, 2, L"zs", L' ', L"0.5 short ton" },
    { 26290.78, 1023, 3, L"", L' ', L"25.876" },
    { 26290.78, 1023, 2, L"zs", L' ', L"25.88 long ton" },
    { 1016.0469088, 1023, 3, L"", L' ', L"1.000" },
    { 1016.0469088, 1023, 2, L"zs", L' ', L"1 long ton" },
    { 12345.0, 3001, 3, L"", L' ', L"123.450" },
    { 12345.0, 3001, 2, L"zs", L' ', L"123.45 cm\u00B2" },
    { 250.0, 3001, 3, L"", L' ', L"2.500" },
    { 250.0, 3001, 2, L"zs", L' ', L"2.5 cm\u00B2" },
    { 645.16, 3010, 3, L"", L' ', L"1.000" },
    { 645.16, 3010, 2, L"zs", L' ', L"1 in\u00B2" },
    { 92903.04, 3010, 3, L"", L' ', L"144.000" },
    { 92903.04, 3010, 2, L"zs", L' ', L"144 in\u00B2" },
    { 836127.36, 3012, 3, L"", L' ', L"1.000" },
    { 836127.36, 3012, 2, L"zs", L' ', L"1 yd\u00B2" },
    { 1139300000.0, 3012, 3, L"", L' ', L"1362.591" },
    { 1139300000.0, 3012, 2, L"zs", L' ', L"1362.59 yd\u00B2" },
    { 0.0154, 4001, 3, L"", L' ', L"0.015" },
    { 0.0154, 4001, 2, L"zs", L' ', L"0.02 kg/mm" },
    { 1.0, 4001, 3, L"", L' ', L"1.000" },
    { 1.0, 4001, 2, L"zs", L' ', L"1 kg/mm" },
    { 0.0154, 4002, 3, L"", L' ', L"0.015" },
    { 0.0154, 4002, 2, L"zs", L' ', L"0.02 t/m" },
    { 1.25, 4002, 3, L"", L' ', L"1.250" },
    { 1.25, 4002, 2, L"zs", L' ', L"1.25 t/m" },
    { 0.0423, 4010, 3, L"", L' ', L"2.369" },
    { 0.0423, 4010, 2, L"zs", L' ', L"2.37 lb/in" },
    { 0.1, 4010, 3, L"", L' ', L"5.600" },
    { 0.1, 4010, 2, L"zs", L' ', L"5.6 lb/in" },
    { 1136.0, 4101, 3, L"", L' ', L"1136.000" },
    { 1136.0, 4101, 2, L"zs", L' ', L"1136 mm\u00B2/mm" },
    { 304.8, 4101, 3, L"", L' ', L"304.800" },
    { 304.8, 4101, 2, L"zs", L' ', L"304.8 mm\u00B2/mm" },
    { 304.8, 4110, 3, L"", L' ', L"144.000" },
    { 304.8, 4110, 2, L"zs", L' ', L"144 in\u00B2/ft" },
    { 1136.0, 4110, 3, L"", L' ', L"536.693" },
    { 1136.0, 4110, 2, L"zs", L' ', L"536.69 in\u00B2/ft" },
    { 0.00000785, 7000, 3, L"", L' ', L"0.000" },
    { 0.00000785, 7000, 2, L"zs", L' ', L"0 kg/mm\u00B3" },
    { 0.5, 7000, 3, L"", L' ', L"0.500" },
    { 0.5, 7000, 2, L"zs", L' ', L"0.5 kg/mm\u00B3" },
    { 0.00000785, 7002, 3, L"", L' ', L"7.850" },
    { 0.00000785, 7002, 2, L"zs", L' ', L"7.85 t/m\u00B3" },
    { 0.000002345, 7002, 3, L"", L' ', L"2.345" },
    { 0.000002345, 7002, 2, L"zs", L' ', L"2.35 t/m\u00B3" },
    { 0.00000785, 7003, 3, L"", L' ', L"7.850" },
    { 0.00000785, 7003, 2, L"zs", L' ', L"7.85 g/cm\u00B3" },
    { 0.0000012, 7003, 3, L"", L' ', L"1.200" },
    { 0.0000012, 7003, 2, L"zs", L' ', L"1.2 g/cm\u00B3" },
    { 0.00000785, 7010, 3, L"", L' ', L"0.284" },
    { 0.00000785, 7010, 2, L"zs", L' ', L"0.28 lb/in\u00B3" },
    { 0.0000270, 7010, 3, L"", L' ', L"0.975" },
    { 0.0000270, 7010, 2, L"zs", L' ', L"0.98 lb/in\u00B3" },
};
// clang-format on

template <int numCases>
void expectSuppressed(const SuppressionCase (&cases)[numCases], wchar_t separator)
{
    for (const SuppressionCase& c : cases)
        for (std::size_t i = 0; i < std::size(kFlags); ++i)
        {
            const FormatCase single = { c.value, kFeetAndInches, c.format, kFlags[i], separator, c.expected[i] };
            EXPECT_EQ(VorString(c.expected[i]), formatted(single))
                << c.value << ", format " << c.format << ", flags " << VorString(kFlags[i]);
        }
}

TEST(VorUnitTransformConventionsTest, EveryCombinationOfSuppressionsWithAMinus)
{
    expectSuppressed(kWithMinus, L'-');
}

TEST(VorUnitTransformConventionsTest, EveryCombinationOfSuppressionsWithABlank)
{
    expectSuppressed(kWithBlank, L' ');
}

TEST(VorUnitTransformConventionsTest, EveryUsualFractionOfAnInch)
{
    expectFormatted(kFractions);
}

TEST(VorUnitTransformConventionsTest, EveryOtherUnit)
{
    expectFormatted(kOtherUnits);
}

TEST(VorUnitTransformConventionsTest, TheLargestAndTheSmallestDoubles)
{
    const double largest = std::numeric_limits<double>::max();
    const double smallest = std::numeric_limits<double>::denorm_min();
    const double smallestNormal = std::numeric_limits<double>::min();
    const FormatCase kCases[] = {
        { largest, kFeetAndInches, kSixteenths, L"zfi", L'-', L"7.07753202701699e+306\"" },
        { -largest, kFeetAndInches, kTwoDecimals, L"", L' ', L"-7.07753202701699e+306\"" },
        { largest, 7, 3, L"zs", L' ', L"1.79769313486232e+302 km" },
        { largest, 1008, 0, L"", L' ', L"inf" }, // a number of grams that no double holds
        { smallest, kFeetAndInches, kSixteenths, L"", L'-', L"0'-0\"" },
        { -smallest, kFeetAndInches, kTwoDecimals, L"", L' ', L"0' 0.00\"" },
        { smallest, 1010, 9, L"", L' ', L"0.000000000" },
        { -smallestNormal, 7001, 9, L"z", L' ', L"0" },
    };
    expectFormatted(kCases);
}
}
