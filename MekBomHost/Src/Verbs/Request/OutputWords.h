// The words in which users say how lists are written, on the command line and in configuration files.
//
//   *WordOption::find(OutputWords::papers(), "letter")   ->  kLetterPaper
#pragma once

#include "OutputChoices.h"
#include "WordOption.h"

namespace mekbom::OutputWords
{
const WordOption::Choices<char>& delimiters();
const WordOption::Choices<char>& decimalSigns();
const WordOption::Choices<OutputEncoding>& encodings();
const WordOption::Choices<ePaper>& papers();
}
