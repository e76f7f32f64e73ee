#include "LimitRow.h"

#include "../Comparison/PartsFile.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace
{
const double kSquareMillimetres = 1e6; // in a square metre

LimitText textOf(const PartsFile& file, PartsFile::eColumn column)
{
    const std::string_view text = file.text(column);
    if (text.size() > LimitText::kMostCharacters)
    {
        std::fprintf(stderr, "limit: '%.*s' is longer than a packed row holds\n", static_cast<int>(text.size()),
                     text.data());
        std::exit(1);
    }
    return LimitText(text);
}

void checkMark(std::string_view mark)
{
    const bool isPlain = mark.size() >= 2 && mark[0] == 'B' && mark[1] >= '1' && mark[1] <= '9' &&
                         mark.find_first_not_of("0123456789", 1) == std::string_view::npos;
    if (isPlain)
        return;
    std::fprintf(stderr, "limit: mark '%.*s' is not a 'B' and a number\n", static_cast<int>(mark.size()), mark.data());
    std::exit(1);
}
}

std::vector<LimitRow> readLimitRows(const std::string& path)
{
    PartsFile file(path);
    std::vector<LimitRow> rows;
    while (file.next())
    {
        checkMark(file.text(PartsFile::kMark));
        LimitRow row;
        row.handle = textOf(file, PartsFile::kHandle);
        row.position = textOf(file, PartsFile::kPosition);
        row.mark = textOf(file, PartsFile::kMark);
        row.material = textOf(file, PartsFile::kMaterial);
        row.profile = textOf(file, PartsFile::kProfile);
        row.phase = textOf(file, PartsFile::kPhase);
        row.type = textOf(file, PartsFile::kClass);
        row.coating = textOf(file, PartsFile::kCoating);
        row.length = file.number(PartsFile::kLength);
        row.weight = file.number(PartsFile::kWeight);
        row.paint = std::round(file.number(PartsFile::kPaint) * kSquareMillimetres);
        row.thickness = file.number(PartsFile::kThickness);
        row.width = file.number(PartsFile::kWidth);
        row.quantity = static_cast<int>(file.number(PartsFile::kQuantity));
        rows.push_back(row);
    }
    return rows;
}
