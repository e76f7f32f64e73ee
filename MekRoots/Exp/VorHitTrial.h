// Whether remembering pays: counts what was found again and what was not, and decides after a while.
//
//   VorHitTrial trial(256, 4);            looks 256 times, and wants one find among four looks
//   trial.countFind();                    63 times
//   trial.countMiss();                    193 times
//   trial.isOver()                        ->  true
//   trial.hasFailed()                     ->  true: a table that finds so little costs more than it saves
//   trial.begin();                        counts anew
//
// For tables of texts or numbers met before, each with numbers of looks and finds of its own: how much a find saves,
// and a miss costs, is theirs to know.
#pragma once

class VorHitTrial
{
public:
    constexpr VorHitTrial(int numLooks, int looksPerFind) : m_nNumLooks(numLooks), m_nLooksPerFind(looksPerFind) {}

    void countFind() { ++m_nNumFound; }
    void countMiss() { ++m_nNumMissed; }

    int numFound() const { return m_nNumFound; }
    int numMissed() const { return m_nNumMissed; }

    // From now on hasFailed() is the trial's outcome.
    bool isOver() const { return m_nNumFound + m_nNumMissed >= m_nNumLooks; }
    bool hasFailed() const { return isOver() && m_nNumFound * (m_nLooksPerFind - 1) < m_nNumMissed; }

    void begin()
    {
        m_nNumFound = 0;
        m_nNumMissed = 0;
    }

private:
    int m_nNumLooks;
    int m_nLooksPerFind;
    int m_nNumFound = 0;
    int m_nNumMissed = 0;
};
