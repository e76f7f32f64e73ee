// A text that comes to be while it is read, so that a test with a file of a gigabyte is one line and takes no memory.
//
//   RepeatingSource source("parts.csv", "Name\nHEA", "00", 50'000'000, "\n");     // a cell of 100 MB
#pragma once

#include "ByteSource.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace mekbom
{
class RepeatingSource : public ByteSource
{
public:
    // Gives `start`, `again` so many times, and `end`.
    RepeatingSource(std::string name, std::string start, std::string again, std::size_t times, std::string end = "")
        : m_name(std::move(name)),
          m_start(std::move(start)),
          m_again(std::move(again)),
          m_timesLeft(times),
          m_end(std::move(end)),
          m_piece(m_start),
          m_endPiece(m_end)
    {
    }

    const std::string& name() const override { return m_name; }

    std::size_t read(char* pBytes, std::size_t size) override
    {
        std::size_t numRead = 0;
        while (numRead < size && hasMore())
        {
            const std::size_t numCopied = m_piece.copy(pBytes + numRead, size - numRead);
            m_piece.remove_prefix(numCopied);
            numRead += numCopied;
        }
        numGiven += numRead;
        return numRead;
    }

    std::size_t numGiven = 0;

private:
    bool hasMore()
    {
        while (m_piece.empty() && m_timesLeft > 0)
        {
            --m_timesLeft;
            m_piece = m_again;
        }
        if (m_piece.empty())
            m_piece = std::exchange(m_endPiece, std::string_view());
        return !m_piece.empty();
    }

    std::string m_name;
    std::string m_start;
    std::string m_again;
    std::size_t m_timesLeft;
    std::string m_end;
    std::string_view m_piece;    // still to be given of the start, the repeated text or the end
    std::string_view m_endPiece; // empty once it is that piece
};
}
