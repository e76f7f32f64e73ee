// One line on a terminal that tells a user who waits how far the run is, until there is something to read instead.
//
//   ProgressLine line;
//   while (readMore())
//       if (line.isDue())
//           line.show("mekbom: " + std::to_string(numRows()) + " rows read");
//   line.erase();                                   // the next message stands where it stood
//
// Nothing is shown in the first two seconds, nothing more often than five times a second, and nothing at all where
// standard error is no terminal that could take the line away again. To be used by one thread at a time.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace mekbom
{
class ProgressLine
{
public:
    using Clock = std::chrono::steady_clock;

    // What the line stands on, and how time goes there; a test has its own.
    struct Terminal
    {
        bool isThere = false;
        std::function<Clock::time_point()> now;
        std::function<void(std::string_view)> write;
    };

    // Standard error, and the time of the system. It is no terminal where TERM says nothing, or "dumb".
    static Terminal standardError();

    static constexpr std::chrono::milliseconds kWait{ 2000 };
    static constexpr std::chrono::milliseconds kBetween{ 200 };

    explicit ProgressLine(Terminal terminal = standardError());
    ~ProgressLine() { erase(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    // Whether anything will ever be shown.
    bool isThere() const { return m_terminal.isThere; }

    // Whether it is time to show a text, be it a new one. Looks at the clock, so it is not for every row.
    bool isDue() const;

    // Puts `text` in the place of what is shown. No line breaks.
    void show(const std::string& text);

    // Takes away what is shown.
    void erase();

    // The same for the handler of a signal that ends the process: touches no memory but a flag.
    static void eraseAtSignal();

private:
    Terminal m_terminal;
    Clock::time_point m_next; // when something may be shown again
};
}
