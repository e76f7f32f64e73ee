// How the numbers of a file are written: with a decimal point or a decimal comma, and how surely one knows it. Digits
// may be grouped by threes whatever the sign, with blanks, apostrophes or the sign that is not the decimal one.
//
//   const NumberNotation german(NumberNotation::kComma, NumberNotation::kChosen, "as --decimal says");
//   std::string plain;
//   german.toPlain("1.234,50", plain)     ->  kReadable, plain is "1234.50"
//   german.toPlain("7,5 m", plain)        ->  kReadable, plain is "7.5 m"
//   german.toPlain("0.240", plain)        ->  kOtherSign: no group begins with 0
//   NumberNotation().toPlain("1,234", plain)   ->  kUnclear: a thousand and more, or one and a little
//
// A text that both signs allow to read, and differently, is read only where the sign is settled: by an option, or by a
// number that allows but one.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace mekbom
{
class NumberNotation
{
public:
    enum eSign
    {
        kNoSign,
        kPoint,
        kComma
    };

    // How surely one knows the sign.
    enum eCertainty
    {
        kOpen,    // nothing tells
        kMixed,   // some numbers show this sign, some the other
        kAssumed, // the point stands for decimals, as in programs; that a comma divides thousands is not known
        kShown,   // by a number that no other sign allows to read
        kChosen   // by the user
    };

    enum eReading
    {
        kReadable,
        kUnclear,  // either sign allows to read it, with different results
        kOtherSign // only the other sign allows to read it
    };

    // A decimal point, assumed.
    NumberNotation() = default;

    // `reason` goes on from "a number with a decimal comma, ": "as --decimal says"; may be empty.
    NumberNotation(eSign sign, eCertainty certainty, std::string reason)
        : m_sign(sign), m_certainty(certainty), m_reason(std::move(reason))
    {
    }

    eSign sign() const { return m_sign; }
    bool isSettled() const { return m_certainty == kShown || m_certainty == kChosen; }
    bool isChosen() const { return m_certainty == kChosen; }
    bool isOpen() const { return m_certainty == kOpen; }
    bool isMixed() const { return m_certainty == kMixed; }
    const std::string& reason() const { return m_reason; }

    // Whether a number that NumberReader reads is surely that number.
    bool isPlain() const { return m_sign == kPoint && (m_certainty == kAssumed || isSettled()); }

    // What is known of texts that may be of either file: the less certain of the two, mixed where their signs differ.
    static NumberNotation ofEither(const NumberNotation& one, const NumberNotation& other);

    // Sets `plain` to the text with its numbers as NumberReader has them: decimals behind a point, no groups. What is no
    // number in either way stays as it is. Worth nothing unless the reading is kReadable.
    eReading toPlain(std::string_view text, std::string& plain) const;

    // The sign that a text shows which is a number, or one with a unit: kNoSign where it can be read with either, or is
    // no number.
    //   NumberNotation::shownBy("12,5")      ->  kComma
    //   NumberNotation::shownBy("7.5 m")     ->  kPoint
    //   NumberNotation::shownBy("0.240")     ->  kPoint: no group begins with 0
    //   NumberNotation::shownBy("1.234")     ->  kNoSign
    //   NumberNotation::shownBy("PL12,5")    ->  kNoSign
    static eSign shownBy(std::string_view text);

    // What the text is when it is read with that sign, for messages: "1,234" is "1.234" with a comma, "1234" with a
    // point. Empty when it cannot be read so.
    static std::string readWith(eSign sign, std::string_view text);

    // "decimal point", "decimal comma"
    static std::string nameOf(eSign sign);

    static eSign otherThan(eSign sign) { return sign == kComma ? kPoint : kComma; }

private:
    eReading addWord(std::string_view word, bool mayBeGrouped, std::string& plain) const;

    eSign m_sign = kPoint;
    eCertainty m_certainty = kAssumed;
    std::string m_reason;
};
}
