// The tokens that mean more to the program than a datum to be shown, each written here alone.
//
//   hasColumn(TokenNames::kPieces);                // whether a parts list says how many pieces its rows stand for
//   row.getTupleAt(TokenNames::kWidePieces);       // how many this one stands for
//
// Files and messages have texts of bytes, the engine's rows wide ones, so there is a name of either kind.
#pragma once

namespace mekbom::TokenNames
{
// How many pieces a row stands for. A row that does not say it stands for one.
inline constexpr const char* kPieces = "%Quantity";
inline constexpr const wchar_t* kWidePieces = L"%Quantity";

// The identity of a row's object, which every object has: rows of a parts list without such a column are numbered.
inline constexpr const char* kHandle = "%Handle";

// The handle of the assembly that a part belongs to.
inline constexpr const char* kAssembly = "%Assembly";

// The handle of the row that a row is a part of.
inline constexpr const char* kParent = "%Parent";
inline constexpr const wchar_t* kWideParent = L"%Parent";

// What was multiplied to the pieces of a row that is a part of others: "2 × 4 × 3". No parts list has it.
inline constexpr const char* kFactors = "%QuantityFactors";
inline constexpr const wchar_t* kWideFactors = L"%QuantityFactors";
}
