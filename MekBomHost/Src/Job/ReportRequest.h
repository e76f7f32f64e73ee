// What a report is to be made of: the sources of all texts, and the options. No file is opened and nothing of the
// process is looked at on its account; whoever fills it in says where bytes come from.
//
//   ReportRequest request;
//   request.parts.push_back(std::make_unique<FileSource>("parts.csv"));
//   request.pTemplate = std::make_unique<FileSource>("list.json");
//   request.units = "imperial";
//   request.unitChoices = { { "weight", "kg/1" } };
//
// Sources are read when the job comes to them, in the order of the members, so that the first mistake a user hears of
// is the same wherever the texts come from. Their names are what findings call them.
//
// Owns its sources; whoever makes a job of it moves it there. All texts are UTF-8, and what is left alone is a report
// of the sample rows in the default template.
#pragma once

#include "ByteSource.h"
#include "InputChoices.h"
#include "LineContents.h"
#include "PieceChoices.h"
#include "RecordSource.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
class RowProgress;

struct ReportRequest
{
    using Pairs = std::vector<std::pair<std::string, std::string>>;

    std::vector<std::unique_ptr<ByteSource>> parts;     // parts lists, whose rows follow one another; without
                                                        // these and records the sample rows
    std::vector<std::unique_ptr<RecordSource>> records; // of rows that are in no file, behind those of the parts lists
    std::unique_ptr<ByteSource> pAssemblies;            // a list of the assemblies that parts name; may be null
    InputChoices input;                                 // how they are to be read
    Pairs inputUnits;                                   // of columns whose heading names none: "%Paint", "m2"

    std::unique_ptr<ByteSource> pTemplate; // null for the one of the candidates that suits the parts list best
    std::vector<std::unique_ptr<ByteSource>> candidates; // in order of preference; if none suits, the columns are
                                                         // printed as they are; without any, the default template

    Pairs configuredSettings;              // of the lowest rank: "C40_SuppressZeroFeet", "0"
    Pairs environment;                     // settings over them
    std::unique_ptr<ByteSource> pSettings; // an INI text, over both; may be null
    Pairs settings;                        // over all of them

    std::string units = "metric";       // to show numbers in, or "imperial"
    std::unique_ptr<ByteSource> pUnits; // an INI text of units in place of that word; may be null
    Pairs unitChoices;                  // of one kind each, over both: "length", "ft-in/16"

    std::string where;                  // which rows the list is about, beside what the template says; empty for all
    std::vector<std::string> rowTotals; // "%Weight": columns whose values are those of all pieces of their row
    std::vector<std::string> allowed;   // "MB105": mistakes that stop no report
    PieceChoices pieces;                // whether rows are parts of rows, and how many sets of them there are
    bool isSummary = false;             // print groups and totals without the lines below them
    bool checksTotals = false;          // add up every total a second time, from the rows, and compare

    unsigned numProcessors = 1; // with two, long parts lists are read on a thread of their own: PartsList

    LineContents contents; // what the writer wants of lines beside their texts

    RowProgress* pProgress = nullptr; // told how far the job is; not owned, must live while it runs; may be null
};
}
