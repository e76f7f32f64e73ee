#include "MekRoots/Exp/DebugOutput.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#if !defined(_WIN32) // there the system has an output of its own

namespace
{
std::vector<VorString> s_texts;
thread_local int s_numOnThisThread = 0;

void keep(const wchar_t* text)
{
    s_texts.emplace_back(text);
}

void countHere(const wchar_t*)
{
    ++s_numOnThisThread;
}

// Sends debug output to a sink while it lives.
class SinkScope
{
public:
    explicit SinkScope(VorDebugOutput::Sink sink) : m_pOld(VorDebugOutput::setSink(sink)) { s_texts.clear(); }
    ~SinkScope()
    {
        VorDebugOutput::setSink(m_pOld);
        std::vector<VorString>().swap(s_texts);
    }
    SinkScope(const SinkScope&) = delete;
    SinkScope& operator=(const SinkScope&) = delete;

private:
    VorDebugOutput::Sink m_pOld;
};

std::string onStandardError(const wchar_t* text)
{
    const SinkScope none(nullptr);
    testing::internal::CaptureStderr();
    VorDebugOutput::write(text);
    return testing::internal::GetCapturedStderr();
}
}

TEST(VorDebugOutputTest, ASinkIsGivenEachTextAsItIs)
{
    const SinkScope scope(keep);

    VorDebugOutput::write(L"push 2\n");
    VorDebugOutput::write(L"");
    VorDebugOutput::write(L"\x20AC%d");

    EXPECT_EQ((std::vector<VorString>{ L"push 2\n", L"", L"\x20AC%d" }), s_texts);
}

TEST(VorDebugOutputTest, TheNameOnWindowsStandsForIt)
{
    const SinkScope scope(keep);

    OutputDebugStringW(L"push 2\n");

    EXPECT_EQ((std::vector<VorString>{ L"push 2\n" }), s_texts);
}

TEST(VorDebugOutputTest, ANullTextWritesNothing)
{
    const SinkScope scope(keep);

    VorDebugOutput::write(nullptr);

    EXPECT_TRUE(s_texts.empty());
    EXPECT_EQ("", onStandardError(nullptr));
}

TEST(VorDebugOutputTest, SettingASinkGivesTheOneBefore)
{
    const SinkScope scope(nullptr);

    EXPECT_EQ(nullptr, VorDebugOutput::setSink(keep));
    EXPECT_EQ(&keep, VorDebugOutput::setSink(countHere));
    EXPECT_EQ(&countHere, VorDebugOutput::setSink(nullptr));
}

TEST(VorDebugOutputTest, WithoutASinkTheTextGoesToStandardErrorInUtf8)
{
    EXPECT_EQ("push 2\n", onStandardError(L"push 2\n"));
    EXPECT_EQ("no line break is added", onStandardError(L"no line break is added"));
    EXPECT_EQ("100%d %s", onStandardError(L"100%d %s"));
    EXPECT_EQ("", onStandardError(L""));
    EXPECT_EQ("\x7F|\xC2\x80|\xDF\xBF|\xE0\xA0\x80|\xEF\xBF\xBD", onStandardError(L"\x7F|\x80|\x7FF|\x800|\xFFFD"));
    EXPECT_EQ("\xF0\x90\x80\x80|\xF4\x8F\xBF\xBF", onStandardError(L"\U00010000|\U0010FFFF"));
}

TEST(VorDebugOutputTest, WhatIsNoCharacterIsReplaced)
{
    const wchar_t text[] = { 0xD800, L'a', 0xDFFF, 0xE000, 0 };
    EXPECT_EQ("\xEF\xBF\xBD"
              "a\xEF\xBF\xBD\xEE\x80\x80",
              onStandardError(text));

    const wchar_t beyond[] = { 0x110000, static_cast<wchar_t>(-1), 0 };
    EXPECT_EQ("\xEF\xBF\xBD\xEF\xBF\xBD", onStandardError(beyond));
}

TEST(VorDebugOutputTest, ALongTextIsWrittenWhole)
{
    const std::wstring text(100000, L'x');

    EXPECT_EQ(std::string(100000, 'x'), onStandardError(text.c_str()));
}

TEST(VorDebugOutputThreadTest, TheSinkIsCalledOnTheWritingThread)
{
    const SinkScope scope(countHere);
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number)
        threads.emplace_back(
            []
            {
                for (int i = 0; i < 1000; ++i)
                    VorDebugOutput::write(L"text");
                EXPECT_EQ(1000, s_numOnThisThread);
            });
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(0, s_numOnThisThread);
}

TEST(VorDebugOutputThreadTest, SinksMayBeChangedWhileOthersWrite)
{
    const SinkScope scope(countHere);
    std::thread writer(
        []
        {
            for (int i = 0; i < 20000; ++i)
                VorDebugOutput::write(L"text");
        });
    const VorDebugOutput::Sink other = [](const wchar_t*) {};
    for (int i = 0; i < 2000; ++i)
        VorDebugOutput::setSink(i % 2 == 0 ? other : countHere);
    writer.join();
}

#endif
