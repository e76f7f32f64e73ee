// A reader adds up what is printed, and may get something else than the list says. Three thirds of 100 kg, to two
// decimals:
//
//   numbers behind the texts    33.333... + 33.333... + 33.333... = 100       what the engine adds
//   texts                       33.33     + 33.33     + 33.33     = 99.99     what a reader adds
//
// So the texts are read back and added, and when that is not the text of the total, a remark says why. Numbers that the
// list shows in another unit than the model's come back with errors in their last digits, hence the tolerance.
#include "Addition.h"

#include <cmath>

namespace mekbom
{
namespace
{
const std::size_t kMostWritten = 20; // arbitrary: two lines of a terminal
const double kSameNumber = 1e-9;     // relative: conversions to and from the list's unit differ in the last digits
}

void Addition::add(double number)
{
    if (m_texts.size() < kMostWritten)
    {
        m_texts.push_back(m_numbers.textOf(number));
        return;
    }
    ++m_numMore;
    m_sumOfMore += number;
}

std::string Addition::text(const std::string& total) const
{
    if (m_texts.empty())
        return m_numbers.withUnit(total) + ", of no rows";
    std::string text;
    for (const std::string& summand : m_texts)
        text += (text.empty() ? "" : " + ") + summand;
    if (m_numMore > 0)
        text += " + ... " + std::to_string(m_numMore) + " more (" + m_numbers.textOf(m_sumOfMore) + ")";
    return text + " = " + m_numbers.withUnit(total) + rounding(total);
}

// The remark; empty when the texts add up. A text that cannot be read back is NaN, which equals nothing, so that the
// remark is made.
std::string Addition::rounding(const std::string& total) const
{
    std::vector<std::string> texts = m_texts;
    if (m_numMore > 0)
        texts.push_back(m_numbers.textOf(m_sumOfMore));
    double sum = 0;
    for (const std::string& text : texts)
        sum += m_numbers.valueOf(text).value_or(std::nan(""));
    const double printed = m_numbers.valueOf(total).value_or(std::nan(""));
    if (std::fabs(sum - printed) <= kSameNumber * (1 + std::fabs(printed)))
        return std::string();
    return " (the numbers are rounded for the list; the total is the sum of those behind them)";
}
}
