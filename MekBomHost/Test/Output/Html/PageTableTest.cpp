#include "PageTable.h"

#include "Support/EvaluatedList.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace mekbom
{
namespace
{
struct WrittenTable
{
    std::string table;
    std::string style;
};

WrittenTable tableOfPage(const std::string& templateText, const std::string& partsText,
                         const VorUnitsManager& units = VorUnitsManager::metric())
{
    const EvaluatedList list(templateText, partsText, units);
    const ListSurvey survey(list.report());
    WrittenTable written;
    PageTable table(list.report(), survey, written.table);
    table.writeHead();
    ReportLines lines = list.report().lines();
    for (ReportLine line; lines.next(line);)
        table.write(line);
    table.writeFoot();
    written.style = table.style();
    return written;
}

// The table without its first and last lines, which all have: those up to the headings, and the end.
std::string rowsOf(const std::string& templateText, const std::string& partsText,
                   const VorUnitsManager& units = VorUnitsManager::metric())
{
    const std::string table = tableOfPage(templateText, partsText, units).table;
    const std::size_t begin = table.find('\n', table.find("<tr><th scope=\"col\"")) + 1;
    return table.substr(begin, table.rfind("</table>") - begin);
}

std::size_t countOf(const std::string& word, const std::string& text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
        ++count;
    return count;
}

const char* const kNameAndWeight = R"({ "token": "%Name" }, { "token": "%Weight" })";
}

TEST(PageTableTest, RowsSayWhatTheyOpenAndClose)
{
    EXPECT_EQ(
        "<table class=\"list\" data-deepest=\"2\">\n"
        "<thead>\n"
        "<tr><th scope=\"col\">Material<th scope=\"col\">Name<th scope=\"col\" data-numeric>Weight [kg]</tr>\n"
        "<tbody>\n"
        "<tr class=\"h1\"><th scope=\"rowgroup\">S235<td><td></tr>\n"
        "<tr><td><td>IPE360<td data-fill=\".0\">2</tr>\n"
        "<tr class=\"f1\"><td><td><td data-fill=\".0\">2</tr>\n"
        "<tbody>\n"
        "<tr class=\"h1\"><th scope=\"rowgroup\">S355<td><td></tr>\n"
        "<tr><td><td>HEA200<td>10.5</tr>\n"
        "<tr><td><td>IPE450<td data-fill=\".0\">100</tr>\n"
        "<tr class=\"f1\"><td><td><td>110.5</tr>\n"
        "<tr class=\"f0\"><th scope=\"row\">Total<td><td>112.5</tr>\n"
        "</table>\n",
        tableOfPage(weightsByMaterial(), "%Name,%Material,%Weight\nHEA200,S355,10.5\nIPE360,S235,2\nIPE450,S355,100\n")
            .table);
}

TEST(PageTableTest, ARowCanOpenAndClose)
{
    const char* const summary = R"({ "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%Material" } ],
          "children": [ { "type": "kDetails", "print": false, "tuples": [ { "token": "%Name" } ] } ] },
        { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] } ] })";

    EXPECT_EQ("<tbody>\n"
              "<tr class=\"s1\"><th scope=\"row\">S355<td>3</tr>\n",
              rowsOf(summary, "%Name,%Material,%Weight\nA,S355,1\nB,S355,2\n"));
}

TEST(PageTableTest, LinesOfAPageStandInHeadAndFoot)
{
    std::string pages = weightsByMaterial("Page");
    pages.replace(pages.find("\"type\": \"kPageHeader\""), 21,
                  R"("type": "kPageHeader", "tuples": [ { "token": "%Phase" } ])");

    EXPECT_EQ("<tr class=\"h0\"><th scope=\"rowgroup\">1<td><td><td></tr>\n"
              "<tbody>\n"
              "<tr class=\"h1\"><td><th scope=\"rowgroup\">S235<td><td></tr>\n"
              "<tr><td><td><td>A<td>2</tr>\n"
              "<tr class=\"f1\"><td><td><td><td>2</tr>\n"
              "<tfoot>\n"
              "<tr class=\"f0\"><th scope=\"row\">Total<td><td><td>2</tr>\n"
              "<tr class=\"on-paper\"><td colspan=\"4\">Of the whole list, not of this page</tr>\n",
              rowsOf(pages, "%Name,%Material,%Weight,%Phase\nA,S235,2,1\n"));
}

TEST(PageTableTest, ALabelWithoutFreeColumnStandsAboveTheFirstText)
{
    const char* const labelled = R"({ "sections": [
        { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Weight" } ] } ] },
        { "type": "kReportFooter", "label": "All <of> it", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })";

    EXPECT_EQ("<tbody>\n"
              "<tr><td>1</tr>\n"
              "<tr class=\"f0\"><td><b>All &lt;of&gt; it</b>1</tr>\n",
              rowsOf(labelled, "%Weight\n1\n"));
}

TEST(PageTableTest, ALineOfNothingIsALineAllTheSame)
{
    EXPECT_EQ("<tbody>\n<tr><td>A<td>1</tr>\n<tr><td></tr>\n<tr><td><td>2</tr>\n",
              rowsOf(details(kNameAndWeight), "%Name,%Weight,%Phase\nA,1,1\n,,1\n,2,1\n"));
}

TEST(PageTableTest, NumbersThatProgramsCannotReadHaveTheirValues)
{
    EXPECT_EQ("<tbody>\n"
              "<tr><td data-value=\"1828.8\">6&#39;</tr>\n"
              "<tr><td data-value=\"152.4\">6&quot;</tr>\n",
              rowsOf(details(R"({ "token": "%Length" })"), "%Length\n1828.8\n152.4\n", VorUnitsManager::imperial()));
}

// A column in pounds with blanks between thousands: 850 lb beside 1 693.5 lb, which is 768 kg.
TEST(PageTableTest, AColumnIsNotSortedByTextsAndValuesTogether)
{
    const char* const columns = R"("columns": [ { "token": "%Weight", "thousands": true } ])";
    const std::string rows = rowsOf(details(R"({ "token": "%Weight" })", columns), "%Weight\n385.5535\n768.158\n",
                                    VorUnitsManager::imperial());

    EXPECT_EQ("<tbody>\n"
              "<tr><td data-value=\"385.5535\" data-fill=\".0\">850</tr>\n"
              "<tr><td data-value=\"768.158\">1 693.5</tr>\n",
              rows);
}

TEST(PageTableTest, ANumberAmongTextsHasItsValue)
{
    const std::string mixed = R"({ "columns": [ { "token": "%Name" } ], "sections": [
        { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "column": "%Name" } ] } ] })";

    EXPECT_EQ("<tbody>\n<tr><td>1.10</tr>\n<tr class=\"f0\"><td data-value=\"2\">2 kg</tr>\n",
              rowsOf(mixed, "%Name,%Weight\n1.10,2\n"));
}

TEST(PageTableTest, TextsOfTheListMeanNothingToABrowser)
{
    const std::string list =
        details(R"({ "token": "%Name" })", R"("columns": [ { "token": "%Name", "label": "<i>\"}</style>" } ])");
    const WrittenTable written = tableOfPage(list, "%Name\n<script>alert(1)</script>\n");

    EXPECT_NE(std::string::npos, written.table.find("<th scope=\"col\">&lt;i&gt;&quot;}&lt;/style&gt;</tr>\n"));
    EXPECT_NE(std::string::npos, written.table.find("<tr><td>&lt;script&gt;alert(1)&lt;/script&gt;</tr>\n"));
    EXPECT_NE(std::string::npos, written.style.find("content:\"\\3c i\\3e \\22 \\7d \\3c \\2f style\\3e \"}"));
}

TEST(PageTableTest, ALongListIsLaidOutInPieces)
{
    std::string rows = "%Name,%Weight\n";
    for (std::size_t i = 0; i <= PageTable::kMostLinesAtOnce; ++i)
        rows += "A" + std::to_string(i) + ",1\n";
    const WrittenTable longOne = tableOfPage(details(kNameAndWeight), rows);
    const WrittenTable shortOne = tableOfPage(details(kNameAndWeight), rows.substr(0, rows.rfind('A')));

    EXPECT_EQ(1U, countOf("<table class=\"list long\"", longOne.table));
    EXPECT_EQ(10U, countOf("<tbody style=\"--lines:200\">", longOne.table));
    EXPECT_EQ(1U, countOf("<tbody style=\"--lines:1\">", longOne.table));
    EXPECT_EQ(1U, countOf(".long{--columns: calc(6ch + 1.7rem) calc(8ch + 1.7rem)}", longOne.style));
    EXPECT_EQ(10U, countOf("<tbody>", shortOne.table));
    EXPECT_EQ(0U, countOf(".long", shortOne.style));
}

TEST(PageTableTest, SmallGroupsOfALongListShareABody)
{
    std::string rows = "%Name,%Material,%Weight\n";
    for (int i = 1000; i < 1800; ++i)
        rows += "A,S" + std::to_string(i) + ",1\n";
    const std::string table = tableOfPage(weightsByMaterial(), rows).table;

    EXPECT_EQ(24U, countOf("<tbody", table)); // 2401 lines, and a group has three
    EXPECT_EQ(23U, countOf("<tbody style=\"--lines:102\">\n<tr class=\"h1\">", table));
}
}
