// Reads the generated parts list that all programs of the comparison load, row by row.
//
//   PartsFile file("parts.csv");
//   while (file.next())
//       use(file.text(PartsFile::kMark), file.number(PartsFile::kLength));
//
// Made for that file alone: fields are never quoted, every row has all columns, numbers are plain decimals. A file that
// cannot be read, or has other columns, ends the program with a message.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class PartsFile
{
public:
    enum eColumn
    {
        kHandle,
        kPosition,
        kMark,
        kMaterial,
        kProfile,
        kLength, // mm
        kWeight, // kg
        kPaint,  // m²
        kQuantity,
        kPhase,
        kClass,
        kCoating,
        kThickness, // mm
        kWidth,     // mm
        kNumColumns
    };

    explicit PartsFile(const std::string& path);

    // Goes to the next row; false at the end.
    bool next();

    // Fields of the current row, good until the file is destroyed.
    std::string_view text(eColumn column) const { return m_fields[column]; }
    double number(eColumn column) const;

private:
    std::string m_content;
    std::size_t m_nPosition = 0;
    std::string_view m_fields[kNumColumns];
};
