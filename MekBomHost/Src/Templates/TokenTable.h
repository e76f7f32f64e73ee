// The catalogue of tokens as a table for users: what each carries, how rows are sorted by it, and which kind of quantity
// its numbers are. The lines are those of the catalogue, so a token that is added there shows here.
//
//   Token      Value         Order    Kind
//   %PNum      text          natural
//   %Material  text          plain
//   %Quantity  whole number  number
//   %Weight    number        number   weight
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mekbom::TokenTable
{
// One line of the table.
struct Line
{
    std::string token;     // "%Weight"; for "%UserAttr", with which any number of tokens begin, that beginning
    bool isPrefix = false; // of such a beginning
    std::string value;     // "text", "whole number" or "number"
    std::string order;     // "natural", "plain" or "number"
    std::string kind;      // a name of UnitKinds; empty for what has no unit
};

// The lines of the tokens whose names hold `word`, its case not counting; all of them for an empty word.
std::vector<Line> lines(std::string_view word = "");

// The same lines, aligned for a terminal, with an explanation below. Empty when there is none.
std::string textOf(std::string_view word);

// The names of all tokens: "%Weight". For "%UserAttr", with which any number of tokens begin, that beginning.
std::vector<std::string> names();
}
