// A typed value: nothing, an integer, a double or a boolean.
//
//   VorExprEvValue value;        // unknown
//   value.setDouble(2.5);
//   value.toText(buffer);        // 1, "2.500000" in the buffer
//
// Owns its payload, a cell of its own; copies are independent.
//
// Invariant: an unknown value has no cell, every other one has. A value that gives up its cell becomes unknown.
#pragma once

#include "MekRoots/Exp/MekExport.h"

class MEK_EXPRESSION_API VorExprEvValue
{
public:
    enum eType : unsigned int
    {
        kUnknown = 0,
        kInteger = 1,
        kDouble = 2,
        kBoolean = 3
    };

    // Characters of the buffers that texts and messages are written to, terminating zero included.
    static constexpr int kBufferLength = 1000;

    VorExprEvValue() = default;
    VorExprEvValue(const VorExprEvValue& other) { other.copyTo(*this); }
    VorExprEvValue& operator=(const VorExprEvValue& other);
    ~VorExprEvValue() { release(); }

    void setInteger(int value);
    void setDouble(double value);
    void setBoolean(int value); // 0 is false

    eType type() const { return m_nType; }

    // What arithmetic takes the value for: an integer widened, a double as it is, anything else 0.0. On purpose a
    // boolean too, whatever it holds. Pinned by VorExprEvValueTest.BooleansCountAsZeroInArithmetic.
    double toNumber() const;

    // Writes the value's text, zero-terminated, to `buffer` of kBufferLength characters and answers 1: "UnkValue", "%d"
    // of an integer, "%f" of a double, "True" or "False". A type that is none of these reports "false", writes nothing
    // and answers 0.
    int toText(wchar_t* buffer) const;

    // The double that the text of a double is read as: the value rounded to its text's six decimals.
    static double readBack(double value);

    // Frees the cell; the value is unknown then.
    void release();

    // Makes `target` an independent copy of this value.
    void copyTo(VorExprEvValue& target) const;

private:
    friend struct VorExprEvValueAccess;

    void* makeCell(eType type);

    eType m_nType = kUnknown;
    void* m_pData = nullptr;
};
