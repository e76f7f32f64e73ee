// The notes below the options of a command, as parts of a manual page. Help prints such notes as they are:
//
//   Exit status              a heading, with its text indented below it
//      0  done               an entry: a word, two blanks or more, what it means
//      2  wrong usage
//
//   Examples                 below this heading lines stay as they are
//     mekbom demo
//
// Blank lines divide paragraphs; lines of other paragraphs are filled anew.
#pragma once

#include <string>

namespace mekbom::ManNotes
{
// In the macros of man(7), with headings as sections of the page: .SH "EXIT STATUS".
std::string sectionsOf(const std::string& notes);

// The same within a part of a section, where headings are words in bold above their text.
std::string paragraphsOf(const std::string& notes);
}
