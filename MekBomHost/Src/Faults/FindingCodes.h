// The codes of all findings, each with how bad it is and what it says in general. Programs, templates and people name
// findings by them, so a code is never given to another finding, nor reused when its finding is gone.
//
//   FindingCodes::kCellIsNoNumber.name       ->  "MB710"
//   FindingCodes::find("MB710")->sentence    ->  "A cell of a column of numbers or quantities holds none."
//
// MB7xx are about parts lists, MB8xx about template files, MB9xx about options, settings, units, and files as
// such. MB1xx to MB6xx, the mistakes of those who write lists, are MistakeCodes.
#pragma once

#include "Finding.h"

#include <string_view>
#include <vector>

namespace mekbom
{
struct FindingCode
{
    const char* name; // "MB710"
    Finding::eSeverity severity;
    const char* sentence;
};

namespace FindingCodes
{
constexpr auto kError = Finding::kError;
constexpr auto kWarning = Finding::kWarning;
constexpr auto kNote = Finding::kNote;

// Parts lists.
inline constexpr FindingCode kNoHeaderRow = { "MB701", kError, "A parts list is empty: it lacks even a header row." };
inline constexpr FindingCode kColumnWithoutName = { "MB702", kError, "A field of the header row names no column." };
inline constexpr FindingCode kColumnTwice = { "MB703", kError, "Two fields of the header row name the same column." };
// MB704 is gone: what separates the fields is found in the file.
inline constexpr FindingCode kQuoteWithinField = { "MB705", kError, "A quote stands within a field without quotes." };
inline constexpr FindingCode kTextBehindQuote = { "MB706", kError, "Text follows the quote that closes a field." };
inline constexpr FindingCode kQuoteNotClosed = { "MB707", kError, "The file ends within a field in quotes." };
inline constexpr FindingCode kWrongNumberOfFields = { "MB708", kError,
                                                      "A record has more or fewer fields than the header row." };
inline constexpr FindingCode kCellIsNotWhole = { "MB709", kError,
                                                 "A cell of a column of whole numbers holds none of 32 bits." };
inline constexpr FindingCode kCellIsNoNumber = { "MB710", kError,
                                                 "A cell of a column of numbers or quantities holds none." };
inline constexpr FindingCode kCellIsTooLarge = { "MB711", kError,
                                                 "A number is too large in the unit that the model keeps it in." };
inline constexpr FindingCode kUnitOfNoQuantity = { "MB712", kError,
                                                   "A unit is given for a column of texts or of whole numbers." };
inline constexpr FindingCode kColumnUnitUnknown = { "MB713", kError,
                                                    "The unit of a column is none, or measures something else." };
inline constexpr FindingCode kUnitOfMissingColumn = { "MB714", kError,
                                                      "A unit is given for a column that the parts list has not." };
inline constexpr FindingCode kUnitGivenTwice = { "MB715", kError,
                                                 "A unit is given for a column whose heading names another one." };
inline constexpr FindingCode kColumnMissing = { "MB716", kNote,
                                                "The parts list has no column for data that the template asks for." };
inline constexpr FindingCode kNoSuitableTemplate = {
    "MB718", kNote, "The columns suit none of the lists there are to choose, and are printed as they are."
};
inline constexpr FindingCode kListChosen = { "MB719", kNote, "A list was chosen because it suits the columns." };
inline constexpr FindingCode kUnitLacking = { "MB720", kError,
                                              "A column of areas or the like has numbers, and nobody says in which "
                                              "unit." };
inline constexpr FindingCode kTotalOfNoPieces = { "MB721", kError,
                                                  "A row of no pieces has a value that is one of all its pieces." };
inline constexpr FindingCode kRowTotalOfMissingColumn = {
    "MB722", kError, "Row totals are announced for a column that the parts list has not."
};
inline constexpr FindingCode kRowTotalOfNoNumber = { "MB723", kError,
                                                     "Row totals are announced for a column of texts or of whole "
                                                     "numbers." };
inline constexpr FindingCode kOtherDelimiter = { "MB724", kNote,
                                                 "The fields of a file are separated by another sign than commas." };
inline constexpr FindingCode kDelimiterUnclear = { "MB725", kError,
                                                   "The fields of a file may be separated by one sign or another." };
inline constexpr FindingCode kOtherEncoding = { "MB726", kNote, "A parts list is in another encoding than UTF-8." };
inline constexpr FindingCode kTextNotOfEncoding = { "MB727", kError,
                                                    "A file holds bytes that are no text in its encoding." };
inline constexpr FindingCode kDecimalComma = { "MB728", kNote, "The numbers of a file have a decimal comma." };
inline constexpr FindingCode kUnitsOfFilesDiffer = {
    "MB729", kError, "Two parts lists of one report give a column in units that differ."
};
inline constexpr FindingCode kNoJsonParts = { "MB730", kError, "A parts list in JSON is no sequence of objects." };
inline constexpr FindingCode kPartsWithinParts = { "MB731", kError, "A part in JSON has an object or a list in it." };
inline constexpr FindingCode kAssemblyColumnMissing = {
    "MB732", kError, "A list lacks the column that tells which part belongs to which assembly."
};
inline constexpr FindingCode kAssemblyTwice = { "MB733", kError, "Two assemblies have the same handle." };
inline constexpr FindingCode kAssemblyUnknown = { "MB734", kError, "A part names an assembly that there is none of." };
inline constexpr FindingCode kGroupedDigits = { "MB735", kNote, "The digits of a number are grouped by threes." };
inline constexpr FindingCode kNumberUnclear = {
    "MB736", kError, "A number is another one with a decimal point than with a comma, and nothing tells which it has."
};
inline constexpr FindingCode kOtherDecimalSign = {
    "MB737", kError, "A number has a decimal comma where others have a point, or a point where they have a comma."
};
inline constexpr FindingCode kRecordTooLarge = { "MB738", kError,
                                                 "A record of a parts list is larger than any that is sound." };

// Workbooks, which are parts lists, too.
inline constexpr FindingCode kWorkbookDamaged = { "MB740", kError,
                                                  "A workbook is damaged: a part of it is not as it must be." };
inline constexpr FindingCode kWorkbookTooLarge = { "MB741", kError,
                                                   "A part of a workbook is larger than any that is sound." };
inline constexpr FindingCode kWorkbookOfOtherKind = { "MB742", kError,
                                                      "A file is a workbook of a kind that is not read." };
inline constexpr FindingCode kSheetUnknown = { "MB743", kError, "A workbook has no sheet of that name." };
inline constexpr FindingCode kSheetChosen = { "MB744", kNote,
                                              "One of several sheets was taken, and nobody said which." };
inline constexpr FindingCode kRowsAboveHeader = { "MB745", kNote,
                                                  "Rows above the header row of a sheet are not read." };
inline constexpr FindingCode kCellWithoutHeading = { "MB746", kError, "A cell stands in a column without a heading." };
inline constexpr FindingCode kCellShownOtherwise = {
    "MB747", kError, "A cell shows something else than the number that it holds, such as a date."
};
inline constexpr FindingCode kCellWithoutValue = { "MB748", kError,
                                                   "A cell holds an error, or a formula without its value." };
inline constexpr FindingCode kCellsMerged = { "MB749", kError,
                                              "Cells are merged over several rows, of which one has their value." };

// What headings of parts lists mean: MB760 and up.
inline constexpr FindingCode kHeadingAmbiguous = { "MB760", kError, "A heading may mean one token or another." };
inline constexpr FindingCode kHeadingsOfOneToken = { "MB761", kError, "Two headings mean the same token." };
inline constexpr FindingCode kTotalWithoutPieces = { "MB762", kError,
                                                     "A column has values of all pieces, and none has the pieces." };
inline constexpr FindingCode kHeadingMissing = { "MB763", kError, "A heading is mapped that the parts list has not." };
inline constexpr FindingCode kMappedToNoToken = { "MB764", kError, "A heading is mapped to what is no token." };
inline constexpr FindingCode kHeadingsRead = { "MB765", kNote, "Headings were read as tokens that they do not name." };

// Rows that are parts of other rows: MB770 and up.
inline constexpr FindingCode kRowsWithinRows = {
    "MB770", kError, "Rows are parts of other rows, and nobody says that their pieces are to be multiplied."
};
inline constexpr FindingCode kParentUnknown = { "MB771", kError, "A row names a parent that there is none of." };
inline constexpr FindingCode kParentTwice = { "MB772", kError, "A row names a parent that several rows are." };
inline constexpr FindingCode kParentsInCircle = { "MB773", kError, "A row is a part of itself." };
inline constexpr FindingCode kTooFewPieces = { "MB774", kError,
                                               "There are less than no pieces of a row that has parts." };
inline constexpr FindingCode kTooManyPieces = { "MB775", kError,
                                                "The pieces of a row are more than a whole number holds." };
inline constexpr FindingCode kParentWeighsElse = { "MB776", kWarning, "A row does not weigh what its parts weigh." };
inline constexpr FindingCode kFactorsOfSeveralRows = {
    "MB777", kError, "A line stands for several rows and shows how often one of them was multiplied."
};
inline constexpr FindingCode kParentColumnMissing = {
    "MB778", kError, "A list lacks the column that tells which row is a part of which."
};

// Template files.
inline constexpr FindingCode kNoJson = { "MB801", kError, "A template file is no JSON with comments." };
inline constexpr FindingCode kKeyTwice = { "MB802", kError, "An object has the same key twice." };
inline constexpr FindingCode kKeyUnknown = { "MB803", kError, "An object has a key that means nothing there." };
inline constexpr FindingCode kKeyMissing = { "MB804", kError, "An object lacks a key that it needs." };
inline constexpr FindingCode kWrongKindOfValue = { "MB805", kError,
                                                   "A value is a text where a number belongs, or the like." };
inline constexpr FindingCode kTextIsEmpty = { "MB806", kError, "A text that must say something is empty." };
inline constexpr FindingCode kNumberOutOfRange = { "MB807", kError, "A number is too small or too large." };
inline constexpr FindingCode kNameUnknown = { "MB808", kError, "A text is none of the names that may stand there." };
inline constexpr FindingCode kNoQueryFilter = { "MB809", kError, "A text is no query filter." };
inline constexpr FindingCode kNoSection = { "MB810", kError, "A template has no section." };
inline constexpr FindingCode kColumnDescribedTwice = { "MB811", kError, "Two columns of a template show the same." };
inline constexpr FindingCode kColumnNotShown = { "MB812", kError, "No printed section shows a column." };
// MB813 and MB814 are gone: MB102 and MB108 say the same.
inline constexpr FindingCode kNestedTooDeep = { "MB815", kError, "Values stand within each other too deep." };
inline constexpr FindingCode kColumnHasNoSuch = { "MB816", kError,
                                                  "A column says of its numbers what they do not have." };

inline constexpr FindingCode kMistakeUnknown = { "MB817", kError,
                                                 "What is to be excused is no code of an author's mistake." };

inline constexpr FindingCode kHeadingOfNoToken = { "MB818", kError, "A heading stands for what is no token of a row." };
inline constexpr FindingCode kTotalOfNoSums = {
    "MB819", kError, "A total is to be calculated from what is no total of its footer, or by what is no formula."
};
inline constexpr FindingCode kOrderOfNoTotal = { "MB820", kError,
                                                 "Groups are to be in the order of what their footer does not total." };

// Options, settings, units, and files as such.
inline constexpr FindingCode kFileUnreadable = { "MB901", kError, "A file cannot be read." };
inline constexpr FindingCode kTextIsNotUtf8 = { "MB902", kError, "A file holds bytes that are no UTF-8." };
inline constexpr FindingCode kTextHasZeroByte = { "MB903", kError, "A file holds a zero byte, which no text does." };
inline constexpr FindingCode kShippedFileMissing = { "MB904", kError, "A file of the installation is not there." };
inline constexpr FindingCode kOutputNotWritten = { "MB905", kError, "The output cannot be written." };
inline constexpr FindingCode kOutputIsInput = { "MB906", kError, "The output would take the place of an input." };
inline constexpr FindingCode kWrongArguments = { "MB907", kError, "The command line cannot be understood." };
inline constexpr FindingCode kOptionIsNoPair = { "MB908", kError, "An option lacks the equals sign or a side of it." };
inline constexpr FindingCode kOptionWithoutUse = { "MB909", kError, "An option does not go with another one." };
inline constexpr FindingCode kKindUnknown = { "MB910", kError, "A word names no kind of quantity." };
inline constexpr FindingCode kUnitUnknown = { "MB911", kError, "A word is no unit of the kind that is asked for." };
inline constexpr FindingCode kBaseUnknown = { "MB912", kError,
                                              "The units to start from are neither metric nor "
                                              "imperial." };
inline constexpr FindingCode kNoQuantity = { "MB913", kError, "A word is no quantity, or one of another kind." };
inline constexpr FindingCode kEntryMalformed = { "MB914", kError,
                                                 "A line of an INI file is no entry, or one that was there before." };
inline constexpr FindingCode kSettingUnknown = { "MB915", kError, "A word names no setting." };
inline constexpr FindingCode kSettingIsNoNumber = { "MB916", kError, "The value of a setting is no whole number." };
inline constexpr FindingCode kSettingUnused = { "MB917", kNote, "A settings file sets what lists do not use." };
inline constexpr FindingCode kListUnknown = { "MB918", kError, "A word is neither a list nor a template file." };
inline constexpr FindingCode kOutputOfOtherFormat = {
    "MB919", kError, "The name of the output promises a format that no list is written in."
};
inline constexpr FindingCode kNoSuchLine = { "MB920", kError, "A list has no line of that number." };
inline constexpr FindingCode kOutputTwice = { "MB921", kError, "Two outputs of one run would go to the same place." };
inline constexpr FindingCode kFormatContradicted = {
    "MB922", kError, "A format is asked for, and the names of all outputs ask for others."
};
inline constexpr FindingCode kFormatUnknown = { "MB923", kError, "A word names no format that lists are written in." };
inline constexpr FindingCode kChoiceWithoutUse = {
    "MB924", kError, "An option is about formats that no output of the run is written in."
};
inline constexpr FindingCode kFootOfList = {
    "MB925", kNote, "What a list is made of is told beside it, as its format has no place for that."
};
inline constexpr FindingCode kNothingToSummarise = {
    "MB926", kError, "A list has neither groups nor totals that a summary could show."
};
inline constexpr FindingCode kWidthTooSmall = { "MB927", kError, "A list is wider than the width that it is given." };
inline constexpr FindingCode kListsUnlike = { "MB928", kError,
                                              "Two lists show a column in two units and cannot be compared." };
inline constexpr FindingCode kConfiguredWordUnknown = {
    "MB929", kError, "A configuration file gives a key a value that is none of those it can have."
};
inline constexpr FindingCode kUnitsConfigured = { "MB930", kNote,
                                                  "The units of a list are those of a configuration file." };
inline constexpr FindingCode kStopped = { "MB931", kError, "A report was stopped by the program that asked for it." };
inline constexpr FindingCode kSessionIncomplete = { "MB932", kError,
                                                    "A program asks for a report without parts or without a list." };

// All of the above, in the order of their numbers.
const std::vector<FindingCode>& all();

// The code of that name, be it one of these or of MistakeCodes; null when there is none.
const FindingCode* find(std::string_view name);
}
}
