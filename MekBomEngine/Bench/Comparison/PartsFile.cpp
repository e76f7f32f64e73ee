#include "PartsFile.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace
{
const std::string_view kHeader = "Handle,Num,MNum,Material,Name,Length [mm],Weight [kg],Paint [m2],"
                                 "Quantity,Phase,Class,Coating,Thick [mm],Width [mm]\n";

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "parts list: %s\n", what);
    std::exit(1);
}
}

PartsFile::PartsFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        fail("cannot be opened");
    m_content.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    if (m_content.compare(0, kHeader.size(), kHeader) != 0)
        fail("has other columns than expected");
    m_nPosition = kHeader.size();
}

bool PartsFile::next()
{
    if (m_nPosition >= m_content.size())
        return false;
    const std::string_view content = m_content;
    for (int column = 0; column < kNumColumns; ++column)
    {
        const std::size_t end = content.find(column == kNumColumns - 1 ? '\n' : ',', m_nPosition);
        if (end == std::string_view::npos)
            fail("ends within a row");
        m_fields[column] = content.substr(m_nPosition, end - m_nPosition);
        m_nPosition = end + 1;
    }
    return true;
}

double PartsFile::number(eColumn column) const
{
    double value = 0;
    const std::string_view field = m_fields[column];
    if (std::from_chars(field.data(), field.data() + field.size(), value).ptr != field.data() + field.size())
        fail("holds a text where a number is expected");
    return value;
}
