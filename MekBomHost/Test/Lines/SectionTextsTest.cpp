#include "SectionTexts.h"

#include "TemplateReader.h"
#include "Utf8.h"

#include "VorBomDataTuple.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
namespace
{
// Two levels: a header that shows nothing with a footer of one tuple; details of two tuples and one that steers.
const char* const kTotals = R"({ "sections": [
    { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [
        { "token": "%Name" }, { "token": "%SortAscBy:%Name" }, { "token": "%Weight" } ] } ] },
    { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

// A section as evaluations hand it over.
VorBomTemplateItem section(const std::vector<std::string>& texts)
{
    VorBomTemplateItem made(VorBomTemplateItem::kDetails);
    for (const std::string& text : texts)
        made.addData(VorBomDataTuple(L"%Any", Utf8::toWide(text)));
    return made;
}

// A line for each section: its place and its texts.
std::string describe(const SectionTexts& texts, const std::vector<std::size_t>& numTextsByPlace)
{
    std::string all;
    SectionTexts::Reader reader(texts);
    for (SectionPlace place; reader.nextSection(place);)
    {
        all += std::to_string(place.level) + (place.isFooter ? " footer:" : " header:");
        for (std::size_t i = 0; i < numTextsByPlace[static_cast<std::size_t>(place.level * 2 + place.isFooter)]; ++i)
        {
            SectionText text;
            reader.read(text);
            EXPECT_FALSE(text.isPlain && text.view().find_first_of("\t\x7fäö") != std::string_view::npos)
                << text.view();
            all += " " + std::string(text.view());
        }
        all += "\n";
    }
    return all;
}

const std::vector<std::size_t> kNumTextsOfTotals = { 0, 1, 2, 0 };
}

TEST(SectionTextsTest, NothingIsThereBeforeTheFirstSection)
{
    const SectionTexts texts(TemplateReader::read("list.json", kTotals));

    EXPECT_EQ("", describe(texts, kNumTextsOfTotals));
}

TEST(SectionTextsTest, SectionsComeAsTheyWereTakenWithTheTextsTheyShow)
{
    SectionTexts texts(TemplateReader::read("list.json", kTotals));
    texts.takeHeader({ section({}), 0 }); // shows nothing
    texts.takeHeader({ section({ "HEA200", "steers", "2.5" }), 1 });
    texts.takeHeader({ section({ "", "steers", "10" }), 1 });
    texts.takeFooter({ section({ "12.5" }), 0 });

    EXPECT_EQ("1 header: HEA200 2.5\n"
              "1 header:  10\n"
              "0 footer: 12.5\n",
              describe(texts, kNumTextsOfTotals));
}

TEST(SectionTextsTest, TextsAreTakenAsTheyAre)
{
    SectionTexts texts(TemplateReader::read("list.json", kTotals));
    texts.takeHeader({ section({ "Träger", "", "a\tb" }), 1 });
    texts.takeHeader({ section({ "\x7f", "", " ~" }), 1 });
    texts.takeHeader({ section({ std::string(254, 'x'), "", std::string(255, 'y') }), 1 });

    EXPECT_EQ("1 header: Träger a\tb\n"
              "1 header: \x7f  ~\n"
              "1 header: " +
                  std::string(254, 'x') + " " + std::string(255, 'y') + "\n",
              describe(texts, kNumTextsOfTotals));
}

TEST(SectionTextsTest, WhateverIsNoTextShowsNothing)
{
    SectionTexts texts(TemplateReader::read("list.json", kTotals));
    VorBomTemplateItem details = section({ "HEA200", "" });
    details.addData(VorBomDataTuple(L"%Weight", 2.5)); // an evaluation leaves no number a number
    texts.takeHeader({ details, 1 });

    EXPECT_EQ("1 header: HEA200 \n", describe(texts, kNumTextsOfTotals));
}

// Shared and given up, plain and not, of all lengths up to some hundreds, and some megabytes of them.
TEST(SectionTextsTest, MoreThanAPageIsReadInOrder)
{
    SectionTexts texts(TemplateReader::read("list.json", kTotals));
    const VorString shared[] = { L"S235", L"S355", L"ä" };
    std::string expected;
    for (int i = 0; i < 30'000; ++i)
    {
        const bool isShared = i % 1000 > i / 100; // ever more rarely
        const std::string first = std::to_string(i) + (i % 5 == 0 ? "ö" : "");
        const std::string second(static_cast<std::size_t>(i % 300), 'x');
        VorBomTemplateItem details = section({ first, "", second });
        if (isShared)
            details.getData()[0].value().set(shared[i % 3]);
        texts.takeHeader({ details, 1 });
        expected += "1 header: " + (isShared ? Utf8::toBytes(shared[i % 3]) : first) + " " + second + "\n";
    }

    EXPECT_TRUE(expected == describe(texts, kNumTextsOfTotals));
}

TEST(SectionTextsTest, ATextMayBeLargerThanAnyPage)
{
    SectionTexts texts(TemplateReader::read("list.json", kTotals));
    const std::string large(5'000'000, 'x');
    for (int i = 0; i < 1000; ++i) // until no text is shared any more
        texts.takeHeader({ section({ "", "", std::to_string(i) }), 1 });
    const std::size_t sizeBefore = describe(texts, kNumTextsOfTotals).size();
    texts.takeHeader({ section({ large, "", "1" }), 1 });
    texts.takeHeader({ section({ "", "", large }), 1 });

    EXPECT_TRUE("1 header: " + large + " 1\n1 header:  " + large + "\n" ==
                describe(texts, kNumTextsOfTotals).substr(sizeBefore));
}
}
