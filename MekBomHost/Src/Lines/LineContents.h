// What a writer wants of every line beside its texts. All of it takes memory for as long as the report is kept, so that
// nothing is kept unless a writer asks:
//
//   LineContents wanted;
//   wanted.values = true;            // such as one of a format that has numbers, which are more than texts of digits
#pragma once

namespace mekbom
{
struct LineContents
{
    bool values = false; // what each cell held before it was shown: 9 bytes for each number, one for each other cell
    bool rows = false;   // the rows behind each line: 8 bytes for each row and each of its sections

    // Adds what another writer of the same report wants.
    void add(LineContents other)
    {
        values = values || other.values;
        rows = rows || other.rows;
    }
};
}
