// The words in which users say how lists are written, on the command line, in configuration files and in the
// options of a session.
//
//   *WordChoices::find(OutputWords::papers(), "letter")   ->  kLetterPaper
#pragma once

#include "OutputChoices.h"
#include "WordChoices.h"

namespace mekbom::OutputWords
{
const WordChoices::Choices<bool>& values(); // whether they are plain
const WordChoices::Choices<char>& delimiters();
const WordChoices::Choices<char>& decimalSigns();
const WordChoices::Choices<OutputEncoding>& encodings();
const WordChoices::Choices<ePaper>& papers();
}
