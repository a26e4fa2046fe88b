// What hostile messages take of the decoder's heap: not more than their length allows.
#include "hostileTree.h"

#include <gtest/gtest.h>

namespace
{

using test::Octets;

class Hostile : public testing::Test
{
protected:
    Hostile()
    {
        EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
    }
    ~Hostile() override
    {
        rtFreeContext(&ctxt);
    }

    // The heap that decoding takes; a limit of as much is enough, and one of less is not.
    static size_t heapOf(Octets octets)
    {
        OSCTXT decoded;
        CellGroupConfig tree;
        EXPECT_EQ(RTX_OK, rtxInitContext(&decoded));
        EXPECT_EQ(RTX_OK, decode(decoded, octets, tree));
        const size_t heap = test::handedOut(decoded);
        for (const size_t less : {0U, 16U})
        {
            rtFreeContext(&decoded);
            rtxMemHeapSetLimit(&decoded, heap - less);
            EXPECT_EQ(less == 0 ? RTX_OK : RTX_E_HEAP, decode(decoded, octets, tree));
        }
        rtFreeContext(&decoded);
        return heap;
    }

    static int decode(OSCTXT& context, Octets& octets, CellGroupConfig& tree)
    {
        EXPECT_EQ(RTX_OK, pu_setBuffer(&context, octets.data(), octets.size(), 0));
        return asn1PD_CellGroupConfig(&context, &tree);
    }

    struct Taken
    {
        size_t octets;
        size_t content; // octets of unknown content
        size_t heap;
    };

    static Taken unknown(size_t content, OSUINT32 size)
    {
        const auto [octets, within] = test::unknownAdditions(content, size);
        return {octets.size(), within, heapOf(octets)};
    }

    OSCTXT ctxt;
};

TEST_F(Hostile, HeapOfUnknownAdditions)
{
    const size_t known = unknown(0, 1).heap; // of the elements that hold them
    for (const OSUINT32 size : {1U, 3U, 17U, 150U})
    {
        size_t content = 0;
        for (size_t each = 1; each <= 256; each *= 4)
        {
            const Taken taken = unknown(test::UnknownAdditions::places * each * size, size);
            EXPECT_GT(taken.content, content);
            content = taken.content;
            EXPECT_GT(taken.octets, content);
            EXPECT_LE(taken.heap, known + 64 * content) << content << " octets in additions of " << size;
        }
    }
}

// Four times as many take four times the heap.
TEST_F(Hostile, HeapGrowsLinearly)
{
    const size_t known = unknown(0, 1).heap;
    const size_t one = unknown(test::UnknownAdditions::places, 1).heap - known;
    EXPECT_EQ(4 * one, unknown(4 * test::UnknownAdditions::places, 1).heap - known);
    EXPECT_EQ(1024 * one, unknown(1024 * test::UnknownAdditions::places, 1).heap - known);
}

TEST_F(Hostile, AbsentAdditionsTakeNoHeap)
{
    CellGroupConfig tree{};
    auto* const open = test::make<ASN1OpenType>(ctxt);
    open->numocts = 1;
    open->data = static_cast<OSOCTET*>(test::allocate(ctxt, 1));
    test::append(ctxt, tree.extElem1, open);
    const size_t present = heapOf(test::encoded(ctxt, tree, 100));
    open->index = 16381; // the last that a bitmap of 16,383 bits has
    const Octets octets = test::encoded(ctxt, tree, 4000);
    EXPECT_GT(octets.size(), 16383U / 8);
    EXPECT_EQ(present, heapOf(octets));
    EXPECT_LE(present, 64U);
}

TEST_F(Hostile, AnUnknownAlternative)
{
    CellGroupConfig tree{};
    auto* const bearer = test::make<RLC_BearerConfig>(ctxt);
    bearer->logicalChannelIdentity = 1;
    tree.m.rlc_BearerToAddModListPresent = 1;
    test::append(ctxt, tree.rlc_BearerToAddModList, bearer);
    const size_t without = heapOf(test::encoded(ctxt, tree, 100));
    bearer->m.rlc_ConfigPresent = 1;
    bearer->rlc_Config.t = T_RLC_Config_um_Uni_Directional_DL + 1;
    auto* const open = test::make<ASN1OpenType>(ctxt);
    open->numocts = 1;
    open->data = static_cast<OSOCTET*>(test::allocate(ctxt, 1));
    bearer->rlc_Config.u.extElem1 = open;
    EXPECT_LE(heapOf(test::encoded(ctxt, tree, 100)), without + 64);
}

// 31 secondary cells without a member are an octet on the wire and a structure in memory each.
TEST_F(Hostile, HeapOfEmptySecondaryCells)
{
    CellGroupConfig tree{};
    tree.m.sCellToAddModListPresent = 1;
    for (OSUINT8 i = 1; i <= 31; ++i)
    {
        auto* const cell = test::make<SCellConfig>(ctxt);
        cell->sCellIndex = i;
        test::append(ctxt, tree.sCellToAddModList, cell);
    }
    const Octets octets = test::encoded(ctxt, tree, 100);
    EXPECT_EQ(33U, octets.size());
    EXPECT_EQ(31 * rtx::rounded(sizeof(OSRTDListNode) + sizeof(SCellConfig)), heapOf(octets));
}

// The costs that the dearest messages are built for are what the decoder takes.
TEST_F(Hostile, TheDearestTakeWhatIsThought)
{
    for (const double price : {100.0, 30.0, 10.0})
    {
        test::DearestTree dear(ctxt, price);
        CellGroupConfig tree{};
        dear.fill(nr_rrc::type_CellGroupConfig, &tree);
        const test::Cost& cost = dear.cost(nr_rrc::type_CellGroupConfig);
        const Octets octets = test::encoded(ctxt, tree, size_t{1} << 20);
        EXPECT_EQ((static_cast<size_t>(cost.bits) + 7) / 8, octets.size());
        EXPECT_EQ(static_cast<size_t>(cost.heap), heapOf(octets));
    }
}

} // namespace
