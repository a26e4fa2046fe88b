// What the checks of several rows have in common. A field behind a clear bit is undefined memory: none looks at it.
#ifndef ROWCHECKS_H
#define ROWCHECKS_H

#include "recordChecks.h"
#include "recordRules.h"

namespace recordCheck
{

// The bits of a mask up to the highest that means something.
template <typename Mask>
UINT64 bitsUpTo(const Mask& mask, unsigned highest)
{
    return mask & ((UINT64{highest} << 1) - 1);
}

// Whether a bit of a mask is the highest set that chooses an alternative.
template <typename Mask>
bool chooses(const Mask& mask, unsigned bit, unsigned highest)
{
    const UINT64 set = bitsUpTo(mask, highest);
    return (set & bit) != 0 && set < UINT64{bit} << 1;
}

// No bit of those that choose, and the choice is refused; several, and one of them wins.
inline void choice(Report& report, const RrcRecordRule& rule, const void* at, UINT64 set)
{
    if (set == 0)
    {
        report.say(rule, RRC_RECORD_ERROR, at);
    }
    else if ((set & (set - 1)) != 0)
    {
        report.say(rule, RRC_RECORD_WARNING, at);
    }
}

template <typename Mask>
void oneBit(Report& report, const RrcRecordRule& rule, const Mask& mask, unsigned highest)
{
    choice(report, rule, &mask, bitsUpTo(mask, highest));
}

// Bits of which nothing goes out.
template <typename Mask>
void notSent(Report& report, const RrcRecordRule& rule, const Mask& mask, unsigned bits)
{
    if ((mask & bits) != 0)
    {
        report.say(rule, &mask);
    }
}

// A field that is better left 0.
template <typename Number>
void notZero(Report& report, const RrcRecordRule& rule, const Number& number)
{
    if (number != 0)
    {
        report.say(rule, &number);
    }
}

// An enumeration of one value.
template <typename Number>
void oneValue(Report& report, const RrcRecordRule& rule, bool isGiven, const Number& number)
{
    if (isGiven && number != 0)
    {
        report.say(rule, RRC_RECORD_ERROR, &number);
    }
}

template <typename Number>
void atMost(Report& report, const RrcRecordRule& rule, bool isGiven, const Number& number, unsigned greatest)
{
    if (isGiven && static_cast<UINT64>(number) > greatest)
    {
        report.say(rule, RRC_RECORD_ERROR, &number);
    }
}

template <typename Number>
void between(Report& report, const RrcRecordRule& rule, const Number& number, unsigned least, unsigned greatest)
{
    if (number < least || number > greatest)
    {
        report.say(rule, RRC_RECORD_ERROR, &number);
    }
}

// A list that has to have entries where it is sent.
template <typename Count>
void notEmpty(Report& report, const RrcRecordRule& rule, const Count& count)
{
    if (count == 0)
    {
        report.say(rule, RRC_RECORD_ERROR, &count);
    }
}

// A list with a bit beside its count.
template <typename Count>
void bitAndCount(Report& report, const RrcRecordRule& rule, bool isGiven, const Count& count)
{
    if (isGiven == (count == 0))
    {
        report.say(rule, isGiven ? RRC_RECORD_ERROR : RRC_RECORD_WARNING, &count);
    }
}

// A number of which so many bits are sent.
template <typename Number>
void kept(Report& report, const RrcRecordRule& rule, const Number& number, unsigned bits)
{
    if (static_cast<UINT64>(number) >> bits != 0)
    {
        report.say(rule, RRC_RECORD_WARNING, &number);
    }
}

// A BOOLEAN is true where one of its low 8 bits is set.
template <typename Number>
void boolean(Report& report, const RrcRecordRule& rule, bool isGiven, const Number& number)
{
    if (isGiven && number != 0 && (number & 0xFF) == 0)
    {
        report.say(rule, RRC_RECORD_WARNING, &number);
    }
}

// An offset that is sent with 8 bits where the period is short.
template <typename Number>
void shortOffset(Report& report, const RrcRecordRule& rule, bool isShort, const Number& offset)
{
    if (isShort)
    {
        kept(report, rule, offset, 8);
    }
}

} // namespace recordCheck

#endif
