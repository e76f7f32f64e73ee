#include "NumberNotation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
const NumberNotation kPlain;
const NumberNotation kPointShown(NumberNotation::kPoint, NumberNotation::kShown, "");
const NumberNotation kCommaShown(NumberNotation::kComma, NumberNotation::kShown, "");
const NumberNotation kPointOpen(NumberNotation::kPoint, NumberNotation::kOpen, "");
const NumberNotation kCommaOpen(NumberNotation::kComma, NumberNotation::kOpen, "");

// What the text becomes; "?" where that is unclear, "!" where only the other sign fits.
std::string read(const NumberNotation& notation, const std::string& text)
{
    std::string plain;
    switch (notation.toPlain(text, plain))
    {
        case NumberNotation::kUnclear: return "?";
        case NumberNotation::kOtherSign: return "!";
        default: return plain;
    }
}

struct ReadingCase
{
    const char* text;
    const char* withPoint; // where the sign is shown
    const char* withComma;
    const char* ifAssumed; // a point
    const char* ifOpen;    // a point, too
};

const ReadingCase kReadings[] = {
    { "", "", "", "", "" },
    { "12", "12", "12", "12", "12" },
    { "-0012", "-0012", "-0012", "-0012", "-0012" },
    { "12.5", "12.5", "!", "12.5", "12.5" },
    { "12,5", "!", "12.5", "!", "!" },
    { "0.240", "0.240", "!", "0.240", "0.240" }, // no group of thousands begins with a zero
    { "0,240", "!", "0.240", "!", "!" },
    { "1.234", "1.234", "1234", "1.234", "?" }, // the two that people confuse
    { "1,234", "1234", "1.234", "?", "?" },
    { "12.345", "12.345", "12345", "12.345", "?" },
    { "123,456", "123456", "123.456", "?", "?" },
    { "1234.567", "1234.567", "!", "1234.567", "1234.567" }, // a first group has three digits at most
    { "1234,567", "!", "1234.567", "!", "!" },
    { "1.23", "1.23", "!", "1.23", "1.23" }, // other groups have three
    { "1.2345", "1.2345", "!", "1.2345", "1.2345" },
    { "1,234.5", "1234.5", "!", "1234.5", "1234.5" },
    { "1.234,5", "!", "1234.5", "!", "!" },
    { "1.234.567", "!", "1234567", "!", "!" },
    { "1,234,567", "1234567", "!", "1234567", "1234567" },
    { "1,234,56", "1,234,56", "1,234,56", "1,234,56", "1,234,56" }, // no number, and left as it is
    { "1.234.56", "1.234.56", "1.234.56", "1.234.56", "1.234.56" },
    { "1,23,456", "1,23,456", "1,23,456", "1,23,456", "1,23,456" },
    { "1.234,567.8", "1.234,567.8", "1.234,567.8", "1.234,567.8", "1.234,567.8" },
    { "1 234", "1234", "1234", "1234", "1234" },
    { "1 234 567", "1234567", "1234567", "1234567", "1234567" },
    { "1 234,5", "!", "1234.5", "!", "!" },
    { "1'234.50", "1234.50", "!", "1234.50", "1234.50" },
    { "1\xE2\x80\x99"
      "234.50",
      "1234.50", "!", "1234.50", "1234.50" },
    { "1\xC2\xA0"
      "234,5",
      "!", "1234.5", "!", "!" },
    { "1\xE2\x80\xAF"
      "234,5",
      "!", "1234.5", "!", "!" },
    { "1 234'567", "1 234'567", "1 234'567", "1 234'567", "1 234'567" }, // separators of two kinds
    { "0 234", "0 234", "0 234", "0 234", "0 234" },
    { "1234 567", "1234 567", "1234 567", "1234 567", "1234 567" },
    { ",5", "!", ".5", "!", "!" },
    { ".5", ".5", "!", ".5", ".5" },
    { "12.", "12.", "!", "12.", "12." },
    { "+1,5", "!", "+1.5", "!", "!" },
    { " 1,5 ", "!", " 1.5 ", "!", "!" },
    { "1,5E+03", "!", "1.5E+03", "!", "!" },
    { "1.234e5", "1.234e5", "!", "1.234e5", "1.234e5" }, // nobody groups digits before an exponent
    { "1,234E-05", "!", "1.234E-05", "!", "!" },
    { "7,5 m", "!", "7.5 m", "!", "!" },
    { "1.234 kg", "1.234 kg", "1234 kg", "1.234 kg", "?" },
    { "1 234,5 kg/m2", "!", "1234.5 kg/m2", "!", "!" },
    { "7'-6 1/2\"", "7'-6 1/2\"", "7'-6 1/2\"", "7'-6 1/2\"", "7'-6 1/2\"" },
    { "7'-6,5\"", "!", "7'-6.5\"", "!", "!" },
    { "7'600\"", "7'600\"", "7'600\"", "7'600\"", "7'600\"" },                          // no group: inches follow
    { "5 100/128 in", "5 100/128 in", "5 100/128 in", "5 100/128 in", "5 100/128 in" }, // no group: a fraction
    { "12\xC2\xB0"
      "30'",
      "12\xC2\xB0"
      "30'",
      "12\xC2\xB0"
      "30'",
      "12\xC2\xB0"
      "30'",
      "12\xC2\xB0"
      "30'" },
    { "HEA200", "HEA200", "HEA200", "HEA200", "HEA200" },
    { "n/a", "n/a", "n/a", "n/a", "n/a" },
};
}

TEST(NumberNotationTest, NumbersAreReadWithTheirSignOrRefused)
{
    for (const ReadingCase& test : kReadings)
    {
        EXPECT_EQ(test.withPoint, read(kPointShown, test.text)) << test.text;
        EXPECT_EQ(test.withComma, read(kCommaShown, test.text)) << test.text;
        EXPECT_EQ(test.ifAssumed, read(kPlain, test.text)) << test.text;
        EXPECT_EQ(test.ifOpen, read(kPointOpen, test.text)) << test.text;
    }
}

TEST(NumberNotationTest, ASignThatIsNotSettledReadsOnlyWhatNoOtherDoes)
{
    EXPECT_EQ("12.50", read(kCommaOpen, "12,50"));
    EXPECT_EQ("!", read(kCommaOpen, "12.50"));
    EXPECT_EQ("?", read(kCommaOpen, "1,234"));
    EXPECT_EQ("?", read(kCommaOpen, "1.234"));
}

// All texts of up to six characters of these: whatever is read without the sign being settled is the same with either,
// or cannot be read with the other.
TEST(NumberNotationTest, NothingIsReadThatTheOtherSignReadsOtherwise)
{
    const std::string characters = "01., '";
    std::vector<std::string> texts = { "" };
    for (std::size_t i = 0; i < texts.size() && texts[i].size() < 6; ++i)
        for (const char character : characters)
            texts.push_back(texts[i] + character);
    for (const std::string& text : texts)
    {
        const std::string withPoint = NumberNotation::readWith(NumberNotation::kPoint, text);
        const std::string withComma = NumberNotation::readWith(NumberNotation::kComma, text);
        const bool differ = !withPoint.empty() && !withComma.empty() && withPoint != withComma;
        ASSERT_EQ(differ ? "?" : withPoint.empty() && !text.empty() ? "!" : withPoint, read(kPointOpen, text)) << text;
        ASSERT_EQ(differ ? "?" : withComma.empty() && !text.empty() ? "!" : withComma, read(kCommaOpen, text)) << text;
    }
}

TEST(NumberNotationTest, OnlyWhatIsANumberShowsASign)
{
    const std::pair<const char*, NumberNotation::eSign> shown[] = {
        { "12,5", NumberNotation::kComma },       { "12.5", NumberNotation::kPoint },
        { "-12,5", NumberNotation::kComma },      { " 12.5 ", NumberNotation::kPoint },
        { "1.234", NumberNotation::kNoSign },     { "1,234", NumberNotation::kNoSign },
        { "1.234,5", NumberNotation::kComma },    { "1,234,567", NumberNotation::kPoint },
        { "0.240", NumberNotation::kPoint },      { "1 234", NumberNotation::kNoSign },
        { "1 234,5", NumberNotation::kComma },    { "7,5 m", NumberNotation::kComma },
        { "1.5e-05", NumberNotation::kPoint },    { "1.234e5", NumberNotation::kPoint },
        { "12", NumberNotation::kNoSign },        { "", NumberNotation::kNoSign },
        { "PL12,5", NumberNotation::kNoSign },    { "12,5*200", NumberNotation::kNoSign },
        { "12,5/13,5", NumberNotation::kNoSign }, { "1,2,3", NumberNotation::kNoSign },
        { "M16x1,5", NumberNotation::kNoSign },   { "n/a", NumberNotation::kNoSign },
    };
    for (const auto& [text, sign] : shown)
        EXPECT_EQ(sign, NumberNotation::shownBy(text)) << text;
}

TEST(NumberNotationTest, TheReadingsOfATextAreNamed)
{
    EXPECT_EQ("1.234", NumberNotation::readWith(NumberNotation::kPoint, "1.234"));
    EXPECT_EQ("1234", NumberNotation::readWith(NumberNotation::kComma, "1.234"));
    EXPECT_EQ("", NumberNotation::readWith(NumberNotation::kPoint, "12,5"));
    EXPECT_EQ("decimal comma", NumberNotation::nameOf(NumberNotation::kComma));
    EXPECT_EQ("decimal point", NumberNotation::nameOf(NumberNotation::kPoint));
}

TEST(NumberNotationTest, OnlyAPointThatIsAtLeastAssumedIsPlain)
{
    EXPECT_TRUE(kPlain.isPlain());
    EXPECT_TRUE(kPointShown.isPlain());
    EXPECT_FALSE(kPointOpen.isPlain());
    EXPECT_FALSE(NumberNotation(NumberNotation::kPoint, NumberNotation::kMixed, "").isPlain());
    EXPECT_FALSE(kCommaShown.isPlain());
}
}
