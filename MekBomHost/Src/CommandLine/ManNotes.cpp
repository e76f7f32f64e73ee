// What a line is shows in the line alone, and for a heading in the one below it:
//
//   Settings                                        a heading: it begins a paragraph, and the next line is indented
//     C40_SuppressZeroFeet   0 shows 0' 6"          an entry
//     Environment variables of these names          text behind an entry, which begins a paragraph of its own
//     count too.                                    text
#include "ManNotes.h"

#include "Roff.h"

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace mekbom::ManNotes
{
namespace
{
const char* const kBlanks = " ";
const char* const kExamples = "Examples";

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty())
    {
        const std::size_t end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

bool isIndented(std::string_view line)
{
    return !line.empty() && line.front() == ' ';
}

std::string_view withoutIndent(std::string_view line)
{
    const std::size_t begin = line.find_first_not_of(kBlanks);
    return begin == std::string_view::npos ? std::string_view() : line.substr(begin);
}

// Formatters complain of a paragraph right below the heading of a section, which begins one anyway.
class Writer
{
public:
    explicit Writer(bool hasSections) : m_hasSections(hasSections) {}

    void writeHeading(std::string_view heading)
    {
        if (m_hasSections)
            m_page += ".SH " + Roff::escaped(Roff::capitals(heading)) + "\n";
        else
            m_page += ".PP\n\\fB" + Roff::escaped(heading) + "\\fR\n";
        m_place = m_hasSections ? kBelowSection : kBelowHeading;
        if (heading != kExamples)
            return;
        beginText();
        m_page += ".nf\n";
        m_place = kInExamples;
    }

    void endParagraph()
    {
        if (m_place == kInExamples)
            m_page += ".fi\n";
        m_place = kBehindParagraph;
    }

    void writeLine(std::string_view line)
    {
        const std::string_view text = withoutIndent(line);
        const std::size_t gap = m_place == kInExamples ? std::string_view::npos : text.find("  ");
        if (gap != std::string_view::npos)
            return writeEntry(text.substr(0, gap), withoutIndent(text.substr(gap)));
        beginText();
        m_page += Roff::escaped(text) + "\n";
    }

    std::string takePage() { return std::move(m_page); }

private:
    enum ePlace
    {
        kBehindParagraph, // of which entries are ones
        kBelowSection,
        kBelowHeading, // which stands in the first line of a paragraph
        kBehindText,   // which the next line goes on with
        kInExamples
    };

    void beginText()
    {
        if (m_place == kBehindParagraph)
            m_page += ".PP\n";
        if (m_place == kBelowHeading)
            m_page += ".br\n";
        if (m_place != kInExamples)
            m_place = kBehindText;
    }

    void writeEntry(std::string_view word, std::string_view meaning)
    {
        m_page += ".TP\n\\fB" + Roff::escaped(word) + "\\fR\n" + Roff::escaped(meaning) + "\n";
        m_place = kBehindParagraph;
    }

    bool m_hasSections;
    ePlace m_place = kBehindParagraph;
    std::string m_page;
};

std::string textOf(const std::string& notes, bool hasSections)
{
    Writer writer(hasSections);
    const std::vector<std::string_view> lines = linesOf(notes);
    bool isFirst = true; // of its paragraph
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        if (lines[i].empty())
            writer.endParagraph();
        else if (isFirst && !isIndented(lines[i]) && i + 1 < lines.size() && isIndented(lines[i + 1]))
            writer.writeHeading(lines[i]);
        else
            writer.writeLine(lines[i]);
        isFirst = lines[i].empty();
    }
    writer.endParagraph();
    return writer.takePage();
}
}

std::string sectionsOf(const std::string& notes)
{
    return textOf(notes, true);
}

std::string paragraphsOf(const std::string& notes)
{
    return textOf(notes, false);
}
}
