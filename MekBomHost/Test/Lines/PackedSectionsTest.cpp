#include "PackedSections.h"

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
std::string describe(const PackedSections& sections)
{
    std::string all;
    PackedSections::Reader reader(sections);
    for (SectionPlace place; reader.nextSection(place);)
    {
        all += std::to_string(place.level) + (place.isFooter ? " footer:" : " header:");
        for (std::size_t i = 0; i < reader.numTexts(); ++i)
        {
            ShownText text;
            reader.read(text);
            EXPECT_FALSE(text.isPlain && text.view().find_first_of("\t\x7fäö") != std::string_view::npos)
                << text.view();
            all += " " + std::string(text.view());
        }
        all += "\n";
    }
    return all;
}
}

TEST(PackedSectionsTest, NothingIsThereBeforeTheFirstSection)
{
    const PackedSections sections(TemplateReader::read("list.json", kTotals));

    EXPECT_EQ("", describe(sections));
}

TEST(PackedSectionsTest, SectionsComeAsTheyWereTakenWithTheTextsTheyShow)
{
    PackedSections sections(TemplateReader::read("list.json", kTotals));
    sections.takeHeader({ section({}), 0 }); // shows nothing
    sections.takeHeader({ section({ "HEA200", "steers", "2.5" }), 1 });
    sections.takeHeader({ section({ "", "steers", "10" }), 1 });
    sections.takeFooter({ section({ "12.5" }), 0 });

    EXPECT_EQ("1 header: HEA200 2.5\n"
              "1 header:  10\n"
              "0 footer: 12.5\n",
              describe(sections));
}

// A byte tells the places of 127 levels.
TEST(PackedSectionsTest, SectionsOfAnyLevelComeAsTheyWereTaken)
{
    std::string levels = R"({ "type": "kDetails", "tuples": [ { "token": "%Name" } ] })";
    for (int level = 199; level >= 0; --level)
        levels = R"({ "type": "kGroupHeader", "tuples": [ { "token": "%Name" } ], "children": [ )" + levels +
                 R"( ] }, { "type": "kGroupFooter", "tuples": [ { "token": "%Name" } ] })";
    PackedSections sections(TemplateReader::read("list.json", R"({ "sections": [ )" + levels + " ] }"));
    std::string expected;
    for (const int level : { 0, 126, 127, 128, 199, 1 })
    {
        sections.takeHeader({ section({ "HEA200" }), level });
        sections.takeFooter({ section({ "IPE360" }), level });
        expected += std::to_string(level) + " header: HEA200\n" + std::to_string(level) + " footer: IPE360\n";
    }

    EXPECT_EQ(expected, describe(sections));
}

TEST(PackedSectionsTest, TextsAreTakenAsTheyAre)
{
    PackedSections sections(TemplateReader::read("list.json", kTotals));
    sections.takeHeader({ section({ "Träger", "", "a\tb" }), 1 });
    sections.takeHeader({ section({ "\x7f", "", " ~" }), 1 });
    sections.takeHeader({ section({ std::string(254, 'x'), "", std::string(255, 'y') }), 1 });

    EXPECT_EQ("1 header: Träger a\tb\n"
              "1 header: \x7f  ~\n"
              "1 header: " +
                  std::string(254, 'x') + " " + std::string(255, 'y') + "\n",
              describe(sections));
}

TEST(PackedSectionsTest, WhateverIsNoTextShowsNothing)
{
    PackedSections sections(TemplateReader::read("list.json", kTotals));
    VorBomTemplateItem details = section({ "HEA200", "" });
    details.addData(VorBomDataTuple(L"%Weight", 2.5)); // an evaluation leaves no number a number
    sections.takeHeader({ details, 1 });

    EXPECT_EQ("1 header: HEA200 \n", describe(sections));
}

// Shared and given up, plain and not, of all lengths up to some hundreds, and some megabytes of them.
TEST(PackedSectionsTest, MoreThanAPageIsReadInOrder)
{
    PackedSections sections(TemplateReader::read("list.json", kTotals));
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
        sections.takeHeader({ details, 1 });
        expected += "1 header: " + (isShared ? Utf8::toBytes(shared[i % 3]) : first) + " " + second + "\n";
    }

    EXPECT_TRUE(expected == describe(sections));
}

TEST(PackedSectionsTest, ATextMayBeLargerThanAnyPage)
{
    PackedSections sections(TemplateReader::read("list.json", kTotals));
    const std::string large(5'000'000, 'x');
    for (int i = 0; i < 1000; ++i) // until no text is shared any more
        sections.takeHeader({ section({ "", "", std::to_string(i) }), 1 });
    const std::size_t sizeBefore = describe(sections).size();
    sections.takeHeader({ section({ large, "", "1" }), 1 });
    sections.takeHeader({ section({ "", "", large }), 1 });

    EXPECT_TRUE("1 header: " + large + " 1\n1 header:  " + large + "\n" == describe(sections).substr(sizeBefore));
}

TEST(PackedSectionsTest, ExtentsAreThoseOfAllTextsOfATuple)
{
    PackedSections sections(TemplateReader::read("list.json", kTotals));
    sections.takeHeader({ section({ "HEA200", "much longer, but not shown", "2.5" }), 1 });
    sections.takeHeader({ section({ "L50", "", "Träger" }), 1 });
    const SectionPlace details = { 1, false };

    EXPECT_EQ(6U, sections.extentOf(details, 0).longest);
    EXPECT_TRUE(sections.extentOf(details, 0).areAllPlain);
    EXPECT_FALSE(sections.extentOf(details, 1).areAllPlain);
    EXPECT_TRUE(sections.hasLineOf(details));
    EXPECT_FALSE(sections.hasLineOf({ 0, true }));
}

TEST(PackedSectionsTest, ValuesAreKeptOnRequest)
{
    PackedSections sections(TemplateReader::read("list.json", kTotals), { true, false });
    const VorBomTypedValue values[] = { { VorBomDataValue::kStringData },
                                        { VorBomDataValue::kIntData, VorBomTemplateUnits::kNoUnit, 7 }, // steers
                                        { VorBomDataValue::kDoubleData, VorBomTemplateUnits::kWeightUnit, 2.5 } };
    VorBomReportSection details = { section({ "HEA200", "7", "2.5 kg" }), 1 };
    details.pValues = values;
    sections.takeHeader(details);

    EXPECT_EQ(VorBomSectionSink::kTypedValues, sections.requests());
    PackedSections::Reader reader(sections);
    SectionPlace place;
    ASSERT_TRUE(reader.nextSection(place));
    ShownText text;
    reader.read(text);
    reader.read(text);
    VorBomTypedValue value;
    reader.read(value);
    EXPECT_EQ(VorBomDataValue::kStringData, value.type);
    reader.read(value);
    EXPECT_EQ(VorBomDataValue::kDoubleData, value.type);
    EXPECT_EQ(VorBomTemplateUnits::kWeightUnit, value.unitType);
    EXPECT_EQ(2.5, value.number);
    EXPECT_FALSE(reader.nextSection(place));
}

TEST(PackedSectionsTest, ValuesOfManyPagesAreReadInOrder)
{
    PackedSections sections(TemplateReader::read("list.json", kTotals), { true, false });
    VorBomTypedValue values[3];
    const VorBomTemplateItem details = section({ "HEA200", "", "2.5" });
    values[0].type = values[2].type = VorBomDataValue::kDoubleData;
    const int kNumSections = 100'000; // of 9 bytes for each of two values: two pages and more
    for (int i = 0; i < kNumSections; ++i)
    {
        values[0].number = i;
        values[2].number = -i;
        VorBomReportSection line = { details, 1 };
        line.pValues = values;
        sections.takeHeader(line);
    }

    PackedSections::Reader reader(sections);
    SectionPlace place;
    for (int i = 0; i < kNumSections; ++i)
    {
        ASSERT_TRUE(reader.nextSection(place));
        ShownText text;
        reader.read(text);
        reader.read(text);
        VorBomTypedValue value;
        reader.read(value);
        ASSERT_EQ(i, value.number);
        reader.read(value);
        ASSERT_EQ(-i, value.number);
    }
    EXPECT_FALSE(reader.nextSection(place));
}

TEST(PackedSectionsTest, RowsAreKeptOnRequestAndMergedOnesWithTheirLine)
{
    VorBomDataRow first;
    VorBomDataRow second;
    VorBomDataRow merged;
    PackedSections sections(TemplateReader::read("list.json", kTotals), { false, true });
    const VorBomTemplateItem details = section({ "HEA200", "", "2.5" });
    sections.takeHeader({ section({}), 0, &first });
    sections.takeHeader({ details, 1, &first });
    sections.takeMergedRow(merged);
    sections.takeHeader({ details, 1, &second });
    VorArray<VorBomDataRow*> counted;
    counted.append(&first);
    counted.append(&second);
    VorBomReportSection footer = { section({ "5" }), 0 };
    footer.countedRows = VorBomCountedRows(counted);
    sections.takeFooter(footer);

    std::vector<std::vector<const VorBomDataRow*>> rows;
    PackedSections::Reader reader(sections);
    for (SectionPlace place; reader.nextSection(place);)
    {
        rows.emplace_back(reader.rows().begin(), reader.rows().end());
        ShownText text;
        for (std::size_t i = 0; i < reader.numTexts(); ++i)
            reader.read(text);
    }
    const std::vector<std::vector<const VorBomDataRow*>> expected = { { &first, &merged },
                                                                      { &second },
                                                                      { &first, &second } };
    EXPECT_EQ(expected, rows);
}

TEST(PackedSectionsTest, ARowMergedIntoALineThatIsNotShownIsOnNoOtherLine)
{
    std::string hidden = kTotals;
    hidden.replace(hidden.find("\"type\": \"kDetails\""), 18, "\"type\": \"kDetails\", \"print\": false");
    VorBomDataRow row;
    PackedSections sections(TemplateReader::read("list.json", hidden), { false, true });
    sections.takeFooter({ section({ "1" }), 0 });
    sections.takeHeader({ section({ "HEA200", "", "2.5" }), 1, &row });
    sections.takeMergedRow(row);

    PackedSections::Reader reader(sections);
    SectionPlace place;
    ASSERT_TRUE(reader.nextSection(place));
    EXPECT_EQ(0U, reader.rows().size()) << "the row is none of the line packed last";
}
}
