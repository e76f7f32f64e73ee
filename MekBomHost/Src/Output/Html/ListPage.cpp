#include "ListPage.h"

#include "HtmlText.h"
#include "PageParts.h"

namespace mekbom
{
namespace
{
const std::size_t kBlockSize = 1 << 16; // arbitrary: large against a call of the system
const char* const kUntitled = "List";   // a page must have a title

// The rule for the content keeps the promise that a page loads nothing, whatever its texts.
const char* const kHead =
    "<!DOCTYPE html>\n"
    "<html lang=\"en\">\n"
    "<meta charset=\"utf-8\">\n"
    "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; "
    "script-src 'unsafe-inline'; base-uri 'none'; form-action 'none'\">\n";
}

ListPage::ListPage(const EvaluatedReport& report, TextSink& sink, std::optional<ePaper> paper)
    : m_report(report),
      m_sink(sink),
      m_survey(report),
      m_weights(report, m_survey),
      m_bars(m_weights),
      m_table(report, m_survey, m_page),
      m_paper(paper)
{
}

void ListPage::write()
{
    writeHead();
    writeTitle();
    if (!m_report.columns().empty())
        writeList();
    m_bars.append(m_page);
    writeFoot();
    m_page.append("<script>\n").append(PageParts::kScript).append("</script>\n");
    passOn(0);
    m_sink.finish();
}

// The title stands on top of every sheet but the first, which has it as a heading.
void ListPage::writeHead()
{
    const std::string title = m_report.title().empty() ? kUntitled : m_report.title();
    m_page.append(kHead).append("<title>");
    HtmlText::append(m_page, title);
    m_page.append("</title>\n<style>\n").append(PageParts::kStyle).append(m_table.style());
    m_page.append(sizeOfSheets())
        .append("@page{@top-left{content:")
        .append(HtmlText::inStyle(title))
        .append("}}\n</style>\n");
}

// Of a wide list sheets are held across. Without a paper they have the size that the printer has.
std::string ListPage::sizeOfSheets() const
{
    std::string size;
    if (m_paper)
        size = *m_paper == kA4Paper ? "A4" : "letter";
    if (m_table.isAcross())
        size += size.empty() ? "landscape" : " landscape";
    return size.empty() ? size : "@page{size:" + size + "}\n";
}

// A list that leaves rows out says so where a reader begins.
void ListPage::writeTitle()
{
    m_page += "<header>\n";
    if (!m_report.title().empty())
    {
        m_page += "<h1>";
        HtmlText::append(m_page, m_report.title());
        m_page += "</h1>\n";
    }
    for (const FilteredRows& filtered : m_report.filteredRows())
    {
        m_page += "<p>Rows where ";
        HtmlText::append(m_page, filtered.condition);
        m_page += "</p>\n";
    }
    m_page += "</header>\n";
}

// Hidden until the script that they need runs.
void ListPage::writeTools()
{
    m_page += "<div class=\"tools\" role=\"search\" hidden>\n"
              "<input type=\"search\" placeholder=\"Search\" aria-label=\"Search the lines\">\n"
              "<select aria-label=\"Column to search in\">\n<option value=\"-1\">in all columns\n";
    for (std::size_t i = 0; i < m_report.columns().size(); ++i)
    {
        m_page += "<option value=\"" + std::to_string(i) + "\">in ";
        HtmlText::append(m_page, m_report.columns()[i].heading());
        m_page += '\n';
    }
    m_page += "</select>\n<button type=\"button\" hidden>Close groups</button>\n";
    if (!m_bars.isEmpty())
        m_page += "<a href=\"#weights\">Weights by group</a>\n";
    m_page += "</div>\n<p class=\"status\" role=\"status\"></p>\n";
}

void ListPage::writeList()
{
    writeTools();
    m_table.writeHead();
    ReportLines lines = m_report.lines();
    for (ReportLine line; lines.next(line);)
    {
        m_table.write(line);
        passOn(kBlockSize);
    }
    m_table.writeFoot();
}

void ListPage::writeFoot()
{
    m_page += "<footer>\n";
    for (const std::string& line : m_report.foot().lines())
    {
        m_page += "<p>";
        HtmlText::append(m_page, line);
        m_page += "</p>\n";
    }
    m_page += "</footer>\n";
}

// `m_page` keeps its memory from block to block.
void ListPage::passOn(std::size_t least)
{
    if (m_page.size() < least)
        return;
    m_sink.write(m_page);
    m_page.clear();
}
}
