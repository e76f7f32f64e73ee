// Where rows have what a report asks for: for each token asked for, the position of the row's first tuple that has it.
//
//   VorBomTuplePositions positions;
//   const int weight = positions.ask(L"%Weight");
//   positions.in(row)[weight]    ->  2        in %Num %Name %Weight
//   positions.in(next)[weight]   ->  kNone    in %Num %Name
//
// A row is looked at once, whatever the number of those who ask. If it carries the texts of the row before as its tokens,
// it has the same positions; else each of its tuples is taken to the number of its token by the address of the text. So
// rows may carry their tokens in any order, lack some, and have others that nobody asks for. Equal tokens in texts of
// their own are told by their characters.
#pragma once

#include "VorBomItemBase.h"

#include "MekRoots/Exp/VorFibonacciHash.h"
#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorStringHashMap.h"

#include <cstddef>
#include <cstdint>
#include <vector>

class VorBomTuplePositions
{
public:
    static constexpr int kNone = -1;

    // The number of a token that nobody asks for; no row has it.
    static constexpr int kNotAsked = 0;

    // The number under which in() answers for `token`, from 1; equal tokens have one.
    int ask(const VorString& token);

    // The row's position for each number, or kNone. Valid until two other rows were asked about, or the row changes:
    // grouping compares a row with the one before, so two are remembered. A row that was asked about just before and
    // has as many tuples still is taken to have the same ones; if it has more, only those are looked at.
    const int* in(const VorBomItemBase& row)
    {
        for (int i = 0; i < 2; ++i)
            if (m_rows[i].pRow == &row && m_rows[i].numTuples == row.getData().length())
            {
                m_nLatest = i;
                return m_rows[i].positions.data();
            }
        return lookAt(row);
    }

    // The positions of a row met lately: a guess at those of rows that come, before these are looked at.
    const std::vector<int>& usual() const { return m_patternPositions; }

private:
    // The text of a token met in a row, kept so that its address stays its own; free while the number is kFree.
    struct Known
    {
        VorString text;
        int number = kFree;
    };

    struct Row
    {
        const VorBomItemBase* pRow = nullptr;
        int numTuples = 0;
        std::vector<int> positions; // for each number
    };

    static constexpr int kFree = -1;
    // Rows whose tokens are all texts of their own gain nothing from their being remembered. Arbitrary.
    static constexpr std::size_t kMostKnown = 4096;

    const int* lookAt(const VorBomItemBase& row);
    void findAll(const VorBomDataTupleArray& tuples, int* pPositions);
    void findFrom(int first, const VorBomDataTupleArray& tuples, int* pPositions);
    bool hasPattern(const VorBomDataTupleArray& tuples) const;
    void keepAsPattern(const VorBomDataTupleArray& tuples, const std::vector<int>& positions);
    int numberOf(const VorString& token);
    int learn(const VorString& token);
    std::size_t firstPlaceFor(const VorString& token) const;
    std::size_t placeFor(const VorString& token) const;
    void growKnown();

    VorStringHashMap<int> m_numbers; // of the tokens asked for
    int m_nNumNumbers = 1;           // with kNotAsked
    int m_nKnownBits = 8;            // m_known has 2 to this power places, at least twice as many as texts
    std::vector<Known> m_known = std::vector<Known>(std::size_t{ 1 } << m_nKnownBits); // open-addressed, by address
    std::size_t m_nNumKnown = 0;
    Row m_rows[2];
    int m_nLatest = 0; // of the two rows, the one asked about last: the other makes way

    // Where the texts of a row's tokens lie, all or the first ones, and its positions: most rows are like the one before.
    bool m_hasPattern = false;
    bool m_isPatternWhole = false;
    std::vector<const void*> m_patternTexts;
    std::vector<int> m_patternPositions;
};
