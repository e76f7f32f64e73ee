// How lists are to be written, beside their format: what a user asks of all outputs of one run.
//
//   OutputChoices choices;
//   choices.give(OutputChoices::kValues);
//   choices.hasPlainValues = true;                                   // mekbom report --values plain
//   const auto pWriter = ReportFormats::createWriter("csv", choices);
//
// Not every format can do what is asked: ReportFormats says which takes which choice.
#pragma once

#include "TextEncoding.h"

#include <optional>

namespace mekbom
{
// How the characters of a file are written.
struct OutputEncoding
{
    TextEncoding::eEncoding encoding = TextEncoding::kUtf8;
    bool hasMark = false; // a byte order mark in front, by which programs know the encoding
};

// The sheets of paper that a list is printed on.
enum ePaper
{
    kA4Paper,    // 210 by 297 mm
    kLetterPaper // 8.5 by 11 in
};

struct OutputChoices
{
    // What can be chosen; bits of a set.
    enum eChoice : unsigned
    {
        kValues = 1U << 0U,
        kFoot = 1U << 1U,
        kDelimiter = 1U << 2U,
        kDecimalSign = 1U << 3U,
        kWidth = 1U << 4U,
        kCut = 1U << 5U,
        kAscii = 1U << 6U,
        kEncoding = 1U << 7U,
        kPaper = 1U << 8U
    };

    void give(eChoice choice) { given |= choice; }
    bool has(eChoice choice) const { return (given & choice) != 0; }

    unsigned given = 0; // the choices that somebody has made; what is not among them is as below

    bool hasPlainValues = false;   // numbers in full, in one unit, instead of the texts that a list on paper shows
    bool hasFoot = false;          // what the list is made of among its records
    std::optional<char> delimiter; // between fields; none for that of the format
    char decimalSign = '.';        // of numbers
    OutputEncoding encoding;       // of records

    static constexpr int kWidest = 100'000; // arbitrary: wider than anything that is printed

    int width = 0;          // that a table has to fit into, in columns of a terminal; 0 for as wide as need be
    bool cutsTexts = false; // those that are wider than their column, instead of going on in the next line
    bool isAscii = false;   // no other characters

    std::optional<ePaper> paper; // none for that of the format or of the printer
};
}
