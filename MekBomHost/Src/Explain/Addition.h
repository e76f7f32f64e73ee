// An addition written out, with the numbers as the list shows them.
//
//   Addition weights(numbers);
//   for (const double weight : { 250.0, 250.0, 14.0 })
//       weights.add(weight);
//   weights.text("514")    ->  "250 + 250 + 14 = 514 kg"
//
// Only so many summands are written; what the others come to stands in their place: "... + 97 more (1630.28) = ...".
// When numbers are rounded for the list so that those written do not add up to the total that is printed, it says so:
//
//   33.33 + 33.33 + 33.33 = 100 kg (the numbers are rounded for the list; the total is the sum of those behind them)
#pragma once

#include "ListNumbers.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class Addition
{
public:
    // `numbers`, which say how the list shows its numbers, are not owned and outlive this object.
    explicit Addition(const ListNumbers& numbers) : m_numbers(numbers) {}

    // `number` in the model's unit.
    void add(double number);

    // `total` as the list shows it. Without any number nothing is added up: "0, of no rows".
    std::string text(const std::string& total) const;

private:
    std::string rounding(const std::string& total) const;

    const ListNumbers& m_numbers;
    std::vector<std::string> m_texts; // the summands that are written, as the list shows them
    std::size_t m_numMore = 0;        // how many are not
    double m_sumOfMore = 0;           // what these come to, in the model's unit
};
}
