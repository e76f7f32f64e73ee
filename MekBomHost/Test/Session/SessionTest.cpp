#include "Session.h"

#include "Support/FakeSource.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace mekbom
{
namespace
{
using Json = nlohmann::json;

const char* const kParts = "Handle,Name,Length\n2A0,HEA200,6000\n2A1,IPE360,1524\n";
const char* const kList = R"({ "title": "Beams", "equalLines": "count", "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kDetails",
        "tuples": [ { "token": "%SortAscBy:%Name" }, { "token": "%Name" }, { "token": "%Length" } ] } ] },
    { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Length" } ] } ] })";

std::string messagesOf(const Session& session)
{
    std::string messages;
    for (const Finding& finding : session.findings())
        messages += messageOf(finding) + "\n";
    return messages;
}

void addRow(Session& session, const std::string& name, double length)
{
    const ExitStatus status = session.addRows("model", { "Name", "Length" }, 1,
                                              [&](std::size_t, Record& record)
                                              {
                                                  record[0] = RecordCell(std::string_view(name));
                                                  record[1] = RecordCell(length);
                                              });
    EXPECT_EQ(kDone, status);
}

// The lengths that the lines of a list show.
std::vector<std::string> lengthsOf(Session& session)
{
    std::vector<std::string> lengths;
    for (const Json& line : Json::parse(session.lines(0, session.numLines())))
        lengths.push_back(line["shown"][1]);
    return lengths;
}

class SessionTest : public testing::Test
{
protected:
    Session m_session;

    void SetUp() override
    {
        m_session.addParts("parts.csv", kParts);
        m_session.setTemplate("list.json", kList);
    }
};
}

TEST_F(SessionTest, AReportIsWrittenInAnyFormat)
{
    ASSERT_EQ(kDone, m_session.evaluate()) << messagesOf(m_session);

    EXPECT_EQ("Name,Length [mm]\r\nHEA200,6000\r\nIPE360,1524\r\n", m_session.written("csv"));
    for (const char* const pFormat : { "text", "tsv", "xlsx", "html", "json" })
        EXPECT_LT(20u, m_session.written(pFormat)->size()) << pFormat;
    EXPECT_EQ("Name", Json::parse(m_session.columns())[0]["heading"]);
}

TEST_F(SessionTest, LinesHaveTheirHandles)
{
    ASSERT_EQ(kDone, m_session.evaluate());

    ASSERT_EQ(3u, m_session.numLines());
    const Json lines = Json::parse(m_session.lines(0, 3));
    EXPECT_EQ(Json::parse(R"([ "2A0" ])"), lines[0]["handles"]);
    EXPECT_EQ(7524, lines[2]["values"][1]);
    EXPECT_EQ("Total", lines[2]["label"]);
    EXPECT_EQ("{\"handles\": [\"2A0\", \"2A1\"]}\n", m_session.handles(2));
}

TEST_F(SessionTest, ANewEvaluationIsOfWhatIsThereNow)
{
    ASSERT_EQ(kDone, m_session.evaluate());
    ASSERT_EQ(kDone, m_session.setOptions(R"({ "unit": { "length": "m/2" }, "where": "%Length > 5 m" })"));
    EXPECT_EQ((std::vector<std::string>{ "6000", "1524", "7524" }), lengthsOf(m_session)) << "the report of before";
    ASSERT_EQ(kDone, m_session.evaluate());
    EXPECT_EQ((std::vector<std::string>{ "6", "6" }), lengthsOf(m_session));
    ASSERT_EQ(kDone, m_session.setOptions("{}"));
    m_session.addParts("more.csv", "Name,Length\nRHS,1000\n");
    ASSERT_EQ(kDone, m_session.evaluate());
    EXPECT_EQ((std::vector<std::string>{ "6000", "1524", "1000", "8524" }), lengthsOf(m_session));
    m_session.removeParts();
    addRow(m_session, "A", 5);
    ASSERT_EQ(kDone, m_session.evaluate());
    EXPECT_EQ((std::vector<std::string>{ "5", "5" }), lengthsOf(m_session));
}

TEST_F(SessionTest, RowsFollowPartsAndEachOther)
{
    addRow(m_session, "A", 0.1 + 0.2);
    addRow(m_session, "B", 2);

    ASSERT_EQ(kDone, m_session.evaluate()) << messagesOf(m_session);

    const Json lines = Json::parse(m_session.lines(0, 10));
    ASSERT_EQ(5u, lines.size());
    EXPECT_EQ("A", lines[0]["values"][0]);
    EXPECT_EQ(0.1 + 0.2, lines[0]["values"][1]) << "all digits";
}

TEST_F(SessionTest, OptionsThatAreWrongChangeNothing)
{
    ASSERT_EQ(kDone, m_session.setOptions(R"({ "unit": { "length": "m/2" } })"));
    EXPECT_EQ(kInvalidInput, m_session.setOptions(R"({ "unit": 5 })"));
    EXPECT_NE("", messagesOf(m_session));
    ASSERT_EQ(kDone, m_session.evaluate());
    EXPECT_EQ("", messagesOf(m_session));
    EXPECT_EQ("6", lengthsOf(m_session).front());
}

TEST_F(SessionTest, AFaultLeavesNoReportAndItsFindings)
{
    ASSERT_EQ(kDone, m_session.evaluate());
    m_session.setTemplate("list.json", "{ \"sections\": [] }");

    EXPECT_EQ(kInvalidInput, m_session.evaluate());

    EXPECT_FALSE(m_session.hasReport());
    const Json findings = Json::parse(m_session.findingsText());
    ASSERT_EQ(1u, findings.size()) << findings;
    EXPECT_EQ("error", findings[0]["severity"]);
    EXPECT_EQ("list.json", findings[0]["source"]);
    EXPECT_EQ(messageOf(m_session.findings().front()), findings[0]["message"]);
}

// A job of nothing is one of the sample rows in the built-in template, which no host means.
TEST(SessionOfNothingTest, WhatIsMissingIsTold)
{
    Session session;
    EXPECT_EQ(kWrongUsage, session.evaluate());
    EXPECT_EQ("there are no parts to make a list of\n", messagesOf(session));
    session.addParts("parts.csv", kParts);
    EXPECT_EQ(kWrongUsage, session.evaluate());
    EXPECT_EQ("there is no template of a list\n", messagesOf(session));
    EXPECT_FALSE(session.hasReport());
}

TEST(SessionOfOffersTest, TheOfferThatSuitsIsTaken)
{
    Session session;
    session.addParts("parts.csv", kParts);
    session.offerTemplate("bolts", R"({ "title": "Bolts", "sections": [
        { "type": "kDetails", "tuples": [ { "token": "%BoltDiameter" }, { "token": "%BoltLength" } ] } ] })");
    session.offerTemplate("beams", kList);
    ASSERT_EQ(kDone, session.evaluate()) << messagesOf(session);
    EXPECT_EQ("Beams", Json::parse(*session.written("json"))["title"]);

    session.removeParts();
    session.addParts("others.csv", "Colour\nred\n");
    ASSERT_EQ(kDone, session.evaluate()) << messagesOf(session);
    EXPECT_EQ("Colour\r\nred\r\n", session.written("csv")) << "as the columns are";
}

TEST_F(SessionTest, AnUnknownFormatIsTold)
{
    ASSERT_EQ(kDone, m_session.evaluate());
    EXPECT_EQ(std::nullopt, m_session.written("xls"));
    EXPECT_NE(std::string::npos, messagesOf(m_session).find("found \"xls\"")) << messagesOf(m_session);
}

TEST_F(SessionTest, MistakesAreFoundWithoutAReport)
{
    m_session.setTemplate("list.json", R"({ "sections": [
        { "type": "kDetails", "tuples": [ { "token": "%Nmae" } ] } ] })");
    EXPECT_EQ(kMistakes, m_session.check());
    EXPECT_NE(std::string::npos, messagesOf(m_session).find("%Nmae")) << messagesOf(m_session);
    EXPECT_FALSE(m_session.hasReport());
    m_session.setTemplate("list.json", kList);
    EXPECT_EQ(kDone, m_session.check()) << messagesOf(m_session);
}

TEST_F(SessionTest, ProgressIsToldAndStops)
{
    std::vector<RowProgress::eStep> steps;
    m_session.setProgress(
        [&steps](RowProgress::eStep step, std::size_t)
        {
            steps.push_back(step);
            return true;
        });
    ASSERT_EQ(kDone, m_session.evaluate());
    EXPECT_NE(steps.end(), std::find(steps.begin(), steps.end(), RowProgress::kReading));
    EXPECT_EQ(RowProgress::kEvaluating, steps.back());

    for (const RowProgress::eStep last : { RowProgress::kReading, RowProgress::kEvaluating })
    {
        m_session.setProgress([last](RowProgress::eStep step, std::size_t) { return step != last; });
        EXPECT_EQ(kStopped, m_session.evaluate());
        EXPECT_EQ("the report was stopped\n", messagesOf(m_session));
        EXPECT_FALSE(m_session.hasReport());
    }
    m_session.setProgress({});
    EXPECT_EQ(kDone, m_session.evaluate());
}

TEST(SessionsTest, SessionsOfOtherUnitsLiveSideBySide)
{
    const auto lengths = [](const std::string& options)
    {
        Session session;
        session.addParts("parts.csv", kParts);
        session.setTemplate("list.json", kList);
        EXPECT_EQ(kDone, session.setOptions(options));
        std::vector<std::string> all;
        for (int i = 0; i < 20; ++i)
        {
            EXPECT_EQ(kDone, session.evaluate());
            for (const std::string& length : lengthsOf(session))
                all.push_back(length);
        }
        return all;
    };
    std::vector<std::string> metres;
    std::thread other([&] { metres = lengths(R"({ "unit": { "length": "m/3" } })"); });
    const std::vector<std::string> feet = lengths(R"({ "units": "imperial" })");
    other.join();

    ASSERT_EQ(60u, metres.size());
    for (std::size_t i = 0; i < metres.size(); i += 3)
    {
        EXPECT_EQ("1.524", metres[i + 1]);
        EXPECT_EQ("5'", feet[i + 1]);
    }
}
}
