// Decodes two inputs, makes a delta from one to the other and applies it: it leads where it should, or is refused with
// a reason. The second is applied to the first as it stands, too, whatever comes of it.
#include "decoded.h"

using fuzz::require;

namespace
{

struct Told
{
    unsigned items = 0;
    unsigned refused = 0;
};

void tell(void* arg, const RtxDeltaItem* item)
{
    auto& told = *static_cast<Told*>(arg);
    ++told.items;
    told.refused += item->kind == RTX_DELTA_REFUSED ? 1 : 0;
    require(rtxDeltaFormat(item, nullptr, 0) != 0, "an item without a line");
}

// A context, as deltas are made of trees of one.
class Pair
{
public:
    explicit Pair(size_t size) : capacity_(4 * size + 64) // more than both messages and all their identities
    {
        require(rtxInitContext(&ctxt_) == RTX_OK, "no context");
    }

    ~Pair()
    {
        rtFreeContext(&ctxt_);
    }

    Pair(const Pair&) = delete;
    Pair& operator=(const Pair&) = delete;

    const CellGroupConfig* decode(const uint8_t* data, size_t size)
    {
        const auto input = std::make_unique<OSOCTET[]>(size); // of its exact size, so that reading past it is found
        std::copy_n(data, size, input.get());
        CellGroupConfig* const value = tree();
        require(pu_setBuffer(&ctxt_, input.get(), size, 0) == RTX_OK, "no buffer");
        return asn1PD_CellGroupConfig(&ctxt_, value) == RTX_OK ? value : nullptr;
    }

    void check(const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags)
    {
        CellGroupConfig* const state = tree();
        require(asn1State_CellGroupConfig(&ctxt_, next, state) == RTX_OK, "no state");
        require(asn1Diff_CellGroupConfig(&ctxt_, state, state, nullptr, tree(), nullptr) == RTX_DELTA_NOTHING,
                "a state differs from itself");
        const CellGroupConfig* held = prev;
        const CellGroupConfig* wanted = next;
        for (unsigned messages = 0;; ++messages)
        {
            CellGroupConfig* const delta = tree();
            const int status = diff(held, wanted, flags, delta);
            if (status == RTX_E_DELTA)
            {
                require(messages == 0, "the second message is refused");
                return;
            }
            const bool nothing = status == RTX_DELTA_NOTHING;
            require(nothing || encodes(delta), "the delta is not encoded");
            if (status != RTX_DELTA_MORE)
            {
                require(rtxDeltaHolds(&ctxt_, asn1Type_CellGroupConfig(), held, nothing ? nullptr : delta, wanted) == 1,
                        "the delta leads elsewhere");
                return;
            }
            require(messages < 2, "there is no end to the messages");
            CellGroupConfig* const after = tree();
            require(asn1Apply_CellGroupConfig(&ctxt_, held, delta, after) == RTX_OK, "the delta is not applied");
            held = after;
            wanted = state;
        }
    }

    void apply(const CellGroupConfig* prev, const CellGroupConfig* message)
    {
        CellGroupConfig* const after = tree();
        Told told;
        const int status = rtxApply(&ctxt_, asn1Type_CellGroupConfig(), prev, message, after, tell, &told);
        require(status == RTX_OK || status == RTX_E_DELTA || status == RTX_E_SIZE, "another status");
        require((status == RTX_E_DELTA) == (told.refused == 1), "a refusal that is not told");
        require(status != RTX_OK || encodes(after), "what is held is not encoded");
    }

private:
    CellGroupConfig* tree()
    {
        void* const p = rtxMemHeapAlloc(&ctxt_, sizeof(CellGroupConfig));
        require(p != nullptr, "no memory");
        return static_cast<CellGroupConfig*>(p);
    }

    int diff(const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags, CellGroupConfig* delta)
    {
        Told told;
        const RtxDeltaOptions options = {flags, &told};
        const int status = asn1Diff_CellGroupConfig(&ctxt_, prev, next, &options, delta, tell);
        require(status == RTX_DELTA_TO_SEND || status == RTX_DELTA_NOTHING || status == RTX_DELTA_MORE ||
                    status == RTX_E_DELTA,
                "another status");
        require((status == RTX_E_DELTA) == (told.refused == 1), "a refusal that is not told");
        return status;
    }

    bool encodes(const CellGroupConfig* value)
    {
        std::vector<OSOCTET> octets(capacity_);
        require(pu_setBuffer(&ctxt_, octets.data(), octets.size(), 0) == RTX_OK, "no buffer to encode to");
        return asn1PE_CellGroupConfig(&ctxt_, value) == RTX_OK;
    }

    OSCTXT ctxt_;
    size_t capacity_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 3)
    {
        return 0;
    }
    // The options, and a bit for a UE that holds nothing; then the length of the first message.
    const unsigned flags = data[0] & 0x7FU;
    const bool nothing = (data[0] & 0x80U) != 0;
    const size_t length = std::min<size_t>(data[1] * 256U + data[2], size - 3);
    Pair pair(size);
    const CellGroupConfig* const prev = pair.decode(data + 3, length);
    const CellGroupConfig* const next = pair.decode(data + 3 + length, size - 3 - length);
    if (prev != nullptr && next != nullptr)
    {
        pair.check(nothing ? nullptr : prev, next, flags);
        pair.apply(nothing ? nullptr : prev, next);
    }
    return 0;
}
