// A workbook as it is packed in bytes: the parts of it, as XML, and the cells of a sheet as text.
#pragma once

#include <zip.h>

#include <cstddef>
#include <cstdlib>
#include <regex>
#include <string>

namespace mekbom
{
// Empty for a part that there is none of.
inline std::string partOf(const std::string& bytes, const std::string& name)
{
    zip_source_t* const pSource = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
    zip_t* const pArchive = zip_open_from_source(pSource, ZIP_RDONLY, nullptr);
    if (pArchive == nullptr)
        std::abort();
    std::string content;
    zip_stat_t stat;
    if (zip_stat(pArchive, name.c_str(), 0, &stat) == 0)
    {
        content.resize(stat.size);
        zip_file_t* const pFile = zip_fopen(pArchive, name.c_str(), 0);
        if (zip_fread(pFile, content.data(), content.size()) != static_cast<zip_int64_t>(content.size()))
            std::abort();
        zip_fclose(pFile);
    }
    zip_close(pArchive);
    return content;
}

// All parts, each below its name. The same for workbooks that were packed by another version of a library.
inline std::string unpacked(const std::string& bytes)
{
    zip_source_t* const pSource = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
    zip_t* const pArchive = zip_open_from_source(pSource, ZIP_RDONLY, nullptr);
    if (pArchive == nullptr)
        return std::string();
    std::string text;
    for (zip_int64_t i = 0; i < zip_get_num_entries(pArchive, 0); ++i)
    {
        const std::string name = zip_get_name(pArchive, static_cast<zip_uint64_t>(i), 0);
        text += name + "\n" + partOf(bytes, name) + "\n";
    }
    zip_close(pArchive);
    return text;
}

inline std::string sheetOf(const std::string& bytes, int number)
{
    return partOf(bytes, "xl/worksheets/sheet" + std::to_string(number) + ".xml");
}

// The rows of a sheet, each a line led by its level of the outline, with its cells, texts in quotes:
//   0 A3="HEA200" C3=24644.25
inline std::string rowsOf(const std::string& sheet)
{
    static const std::regex kRow("<row r=\"\\d+\"([^>]*)>(.*?)</row>");
    static const std::regex kLevel("outlineLevel=\"(\\d)\"");
    static const std::regex kCell("<c r=\"([A-Z]+\\d+)\"[^>]*>(?:<is><t[^>]*>([^<]*)</t></is>|<v>([^<]*)</v>)</c>");
    std::string text;
    for (std::sregex_iterator row(sheet.begin(), sheet.end(), kRow), end; row != end; ++row)
    {
        const std::string attributes = (*row)[1];
        const std::string cells = (*row)[2];
        std::smatch level;
        text += std::regex_search(attributes, level, kLevel) ? std::string(level[1]) : "0";
        for (std::sregex_iterator cell(cells.begin(), cells.end(), kCell); cell != end; ++cell)
        {
            const std::string value = (*cell)[3];
            text +=
                " " + std::string((*cell)[1]) + "=" + (value.empty() ? "\"" + std::string((*cell)[2]) + "\"" : value);
        }
        text += "\n";
    }
    return text;
}
}
