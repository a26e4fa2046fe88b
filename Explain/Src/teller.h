// What a meaning is told with: the value, where it stands, the words.
#ifndef EXPLAIN_TELLER_H
#define EXPLAIN_TELLER_H

#include "modelLists.h"
#include "path.h"

#include "NR-RRC-Tables.h"

#include <cstddef>

namespace rules::explain
{

// What a value belongs to, in the configuration that the message leads to.
struct Scope
{
    Cell* cell = nullptr; // null outside of one, and where the configuration does not have it
    Direction direction = Direction::Downlink;
    Bwp* bwp = nullptr;
    Bwp* measured = nullptr;                         // of the report around the value
    const PUCCH_Resource* pucch = nullptr;           // around the value
    const CSI_RS_ResourceMapping* mapping = nullptr; // around the value

    // log2(spacing / 15 kHz) of the bandwidth part.
    Known<OSUINT32> mu() const
    {
        return bwp == nullptr ? Known<OSUINT32>::unless(RRC_RULE_INPUT_PREVIOUS) : bwp->mu();
    }
    // Symbols of its slots.
    OSUINT32 symbols() const
    {
        return bwp == nullptr ? NR_SYMBOLS : bwp->symbolsPerSlot();
    }
};

constexpr const char* spacing = "the bandwidth part's spacing";

// A text that says when it was cut.
template <size_t N>
class Words
{
public:
    Words() : line_(text_, N) {}
    Words(const Words&) = delete;
    Words& operator=(const Words&) = delete;

    rtx::Line& line()
    {
        return line_;
    }
    const char* text()
    {
        if (line_.length >= N)
        {
            std::memcpy(text_ + N - 4, "...", 4);
        }
        return text_;
    }

private:
    char text_[N];
    rtx::Line line_;
};

class Teller
{
public:
    // `name` is that of the member or the alternative.
    Teller(Model& modelOf, const Scope& scopeOf, const RtxType& typeOf, const void* value, const char* nameOf)
        : model(modelOf), tree(modelOf.tree), scope(scopeOf), type(typeOf), name(nameOf), value_(value)
    {
    }

    Model& model;
    const Tree& tree;
    const Scope& scope;
    const RtxType& type;
    const char* const name;

    // The value of an integer or an enumeration.
    int64_t number() const
    {
        return rtx::loadNumber(type, value_);
    }
    OSUINT32 natural() const
    {
        return static_cast<OSUINT32>(number());
    }
    bool isSet(OSUINT32 bit) const
    {
        return type.kind == rtx::Kind::BitStr32 ? hasBit(rtx::load<ASN1BitStr32>(value_), bit)
                                                : hasBit(static_cast<const OSOCTET*>(value_), bit);
    }
    // Bits of a bit string.
    OSUINT32 bits() const
    {
        return static_cast<OSUINT32>(type.upper);
    }

    rtx::Line& text()
    {
        return text_.line();
    }
    rtx::Line& formula()
    {
        return formula_.line();
    }
    // `what` would have to be known; any of the inputs would tell it.
    void needs(const char* what, OSUINT32 inputs)
    {
        rtx::append(needs_.line(), "%s%s", needs_.line().length == 0 ? "" : " and ", what);
        inputs_ |= inputs;
    }
    template <typename T>
    bool has(const Known<T>& known, const char* what)
    {
        if (!known)
        {
            needs(what, known.inputs());
        }
        return static_cast<bool>(known);
    }

    const char* words()
    {
        return text_.text();
    }
    const char* formulaWords()
    {
        return formula_.text();
    }
    const char* needWords()
    {
        return needs_.text();
    }
    OSUINT32 inputs() const
    {
        return inputs_;
    }
    bool hasTold()
    {
        return text().length != 0 || needs_.line().length != 0;
    }

private:
    const void* value_;
    Words<1024> text_;
    Words<512> formula_;
    Words<256> needs_;
    OSUINT32 inputs_ = 0;
};

// What tells a value: of a member of a sequence, of each alternative of a choice or number of an array, or wherever a
// type occurs.
struct Meaning
{
    const RtxType* type; // of the sequence, the choice, the array; or of the value
    int64_t offset;      // of the member; -1 for the others
    const char* clause;
    void (*tell)(Teller& t, const void* of);
};

struct Meanings
{
    const Meaning* of;
    OSUINT32 count;
};

template <size_t N>
constexpr Meanings meaningsOf(const Meaning (&all)[N])
{
    return {all, N};
}

template <typename T, void (*tell)(Teller&, const T&)>
void tellOf(Teller& t, const void* of)
{
    tell(t, *static_cast<const T*>(of));
}
template <void (*tell)(Teller&)>
void tellValue(Teller& t, const void*)
{
    tell(t);
}

#define MEANING_OF(type, member, clause, tell)                                                                         \
    {                                                                                                                  \
        &nr_rrc::type_##type, static_cast<int64_t>(offsetof(type, member)), clause, tellOf<type, tell>                 \
    }
// As above, of a function that asks for the value alone.
#define MEANING_AT(type, member, clause, tell)                                                                         \
    {                                                                                                                  \
        &nr_rrc::type_##type, static_cast<int64_t>(offsetof(type, member)), clause, tellValue<tell>                    \
    }
#define MEANING_EACH(type, clause, tell)                                                                               \
    {                                                                                                                  \
        &nr_rrc::type_##type, -1, clause, tellValue<tell>                                                              \
    }

extern const Meanings allocationMeanings;
extern const Meanings cellMeanings;
extern const Meanings csiMeanings;
extern const Meanings periodMeanings;
extern const Meanings unitMeanings;
extern const Meanings uplinkMeanings;

// The meaning of a value in what holds it, null where there is none; `offset` is that of a sequence's member.
const Meaning* meaningOf(const RtxType& holder, int64_t offset, const RtxType& type);

// An enumeration whose values are named by number and unit: "ms10", "sf5", "dB3".
const Meaning* unitMeaningOf(const RtxType& type, OSUINT32 value);

// PUCCH-MaxCodeRate in hundredths; 0 of what is none.
OSUINT32 pucchRate(OSUINT32 value);

// "PRBs 0..3 (4)"; "PRB 5" of one.
void appendSpan(rtx::Line& line, const char* what, NrSpan span);
// "0..3, 7" of the bits that are set.
void appendBits(Teller& t, OSUINT32 count);
// "0.5": `value` units of 10^-digits, without zeros at its end.
void appendDecimal(rtx::Line& line, int64_t value, OSUINT32 digits);
// " (7.5 ms)" of slots of the bandwidth part; or what is needed.
void appendSlotsInMs(Teller& t, OSUINT32 slots);
// "kHz15", "sl160", "slots4": the number behind the letters; 0 of a name without one. `unit` becomes what stands before
// it, as far as it fits.
struct NamedNumber
{
    char unit[8];
    OSUINT32 number; // in units of 10^-digits
    OSUINT32 digits;
    bool isNegative;
    bool is; // the name has this form
};
NamedNumber namedNumber(const char* name);

} // namespace rules::explain

#endif
