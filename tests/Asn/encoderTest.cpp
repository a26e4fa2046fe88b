#include "NR-RRC-Pdus.h"
#include "byteOrder.h"
#include "rtxTestTypes.h"
#include "support/ComposerTest.h"

#include <algorithm>
#include <cstring>

namespace
{

std::string hexOf(const std::vector<OSOCTET>& octets)
{
    return test::hexDigits(octets.data(), octets.size());
}

std::string hex(const std::string& bits)
{
    return hexOf(test::bits(bits));
}

class Encoder : public test::ComposerTest
{
protected:
    // A cleared element in the context's heap.
    template <typename T>
    T* make()
    {
        void* const p = rtxMemHeapAlloc(&context, sizeof(T));
        EXPECT_NE(p, nullptr);
        std::memset(p, 0, sizeof(T));
        return static_cast<T*>(p);
    }

    template <typename T>
    T* append(OSRTDList& list)
    {
        auto* const node = make<OSRTDListNode>();
        node->data = make<T>();
        rtxDListAppendNode(&list, node);
        return static_cast<T*>(node->data);
    }

    // Unknown extension addition number `index` of these octets.
    void appendAddition(OSRTDList& list, const std::vector<OSOCTET>& octets, size_t index = 0)
    {
        auto* const open = append<ASN1OpenType>(list);
        open->data = static_cast<OSOCTET*>(rtxMemHeapAlloc(&context, octets.size()));
        ASSERT_NE(open->data, nullptr);
        std::copy(octets.begin(), octets.end(), open->data);
        open->numocts = static_cast<OSUINT32>(octets.size());
        open->index = static_cast<OSUINT32>(index);
    }

    std::string errorLine() const
    {
        char line[512];
        rtxErrFormat(&context, line, sizeof line);
        return line;
    }

    // The octets of an encoding into `capacity` octets; what lies around them stays as it is.
    template <typename T>
    std::vector<OSOCTET> encodeInto(size_t capacity, int (*encodeType)(OSCTXT*, const T*), const T& value)
    {
        constexpr OSOCTET guard = 0xA5;
        constexpr size_t margin = 16;
        std::vector<OSOCTET> room(margin + capacity + margin, guard);
        std::fill_n(room.begin() + margin, capacity, OSOCTET{0xFF}); // old content that must not shine through
        EXPECT_EQ(RTX_OK, pu_setBuffer(&context, room.data() + margin, capacity, 0));
        const int status = encodeType(&context, &value);
        EXPECT_EQ(status, context.error.status);
        const auto untouched = [](OSOCTET octet)
        {
            return octet == guard;
        };
        EXPECT_TRUE(std::all_of(room.begin(), room.begin() + margin, untouched));
        EXPECT_TRUE(std::all_of(room.end() - margin, room.end(), untouched)) << "capacity " << capacity;
        const size_t length = pu_getMsgLen(&context);
        EXPECT_LE(length, capacity);
        return {room.begin() + margin, room.begin() + margin + static_cast<std::ptrdiff_t>(length)};
    }

    // Two bearers, MAC with its extension group: lists, choices by pointer, open types.
    void fill(CellGroupConfig& group)
    {
        group.cellGroupId = 1;
        group.m.rlc_BearerToAddModListPresent = 1;
        for (OSUINT8 i = 1; i <= 2; ++i)
        {
            auto* const bearer = append<RLC_BearerConfig>(group.rlc_BearerToAddModList);
            bearer->logicalChannelIdentity = i;
            bearer->m.rlc_ConfigPresent = 1;
            bearer->rlc_Config.t = T_RLC_Config_am;
            bearer->rlc_Config.u.am = make<RLC_Config_am>();
            bearer->rlc_Config.u.am->ul_AM_RLC.t_PollRetransmit = 63;
        }
        group.m.mac_CellGroupConfigPresent = 1;
        MAC_CellGroupConfig& mac = group.mac_CellGroupConfig;
        mac.skipUplinkTxDynamic = 1;
        mac.m._v2ExtPresent = 1;
        mac.m.csi_MaskPresent = 1;
        mac.csi_Mask = 1;
        mac.m.dataInactivityTimerPresent = 1;
        mac.dataInactivityTimer.t = T_MAC_CellGroupConfig_dataInactivityTimer_setup;
        mac.dataInactivityTimer.u.setup = 4;
    }

    static constexpr const char* filledJson =
        R"({"cellGroupId":1,"rlc-BearerToAddModList":[)"
        R"({"logicalChannelIdentity":1,"rlc-Config":{"am":{"ul-AM-RLC":{"t-PollRetransmit":"spare1","pollPDU":"p4",)"
        R"("pollByte":"kB1","maxRetxThreshold":"t1"},"dl-AM-RLC":{"t-Reassembly":"ms0","t-StatusProhibit":"ms0"}}}},)"
        R"({"logicalChannelIdentity":2,"rlc-Config":{"am":{"ul-AM-RLC":{"t-PollRetransmit":"spare1","pollPDU":"p4",)"
        R"("pollByte":"kB1","maxRetxThreshold":"t1"},"dl-AM-RLC":{"t-Reassembly":"ms0","t-StatusProhibit":"ms0"}}}}],)"
        R"("mac-CellGroupConfig":{"skipUplinkTxDynamic":true,"csi-Mask":true,"dataInactivityTimer":{"setup":"s7"}}})";
};

// What goes out

TEST_F(Encoder, PutsMembersInOrderAndFillsUpWithZeroBits)
{
    TAG tag{};
    tag.tag_Id = 2;
    tag.timeAlignmentTimer = 3;
    const auto octets = encodeInto(8, asn1PE_TAG, tag);
    EXPECT_EQ(hexOf(octets), hex("0 10 011"));
    expectDecoded("TAG", asn1PE_TAG, tag, R"({"tag-Id":2,"timeAlignmentTimer":"ms1920"})");
}

TEST_F(Encoder, TheSameTreeGivesTheSameOctets)
{
    const auto group = cleared<CellGroupConfig>();
    fill(*group);
    const std::string once = encode(asn1PE_CellGroupConfig, *group);
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), once);
    expectDecoded("CellGroupConfig", asn1PE_CellGroupConfig, *group, filledJson);
}

TEST_F(Encoder, NothingPresentIsNothingButTheMandatoryMembers)
{
    const auto group = cleared<CellGroupConfig>();
    group->cellGroupId = 3;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), hex("0 0000000 11"));
    expectDecoded("CellGroupConfig", asn1PE_CellGroupConfig, *group, R"({"cellGroupId":3})");
}

TEST_F(Encoder, AnAbsentMembersContentIsNotLookedAt)
{
    const auto group = cleared<CellGroupConfig>();
    group->rlc_BearerToReleaseList.n = 200;
    group->mac_CellGroupConfig.drx_Config.t = 99;
    group->rlc_BearerToAddModList.count = 7;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), hex("0 0000000 00"));
}

TEST_F(Encoder, AnyNonZeroBooleanIsTrue)
{
    PHR_Config phr{};
    phr.multiplePHR = 2;
    phr.dummy = 0x80;
    EXPECT_EQ(encode(asn1PE_PHR_Config, phr), hex("0 000 000 00 1 1 0 0"));
}

TEST_F(Encoder, ASignedIntegerCountsFromItsLowerBound)
{
    PhysicalCellGroupConfig phy{};
    phy.m.p_NR_FR1Present = 1;
    phy.p_NR_FR1 = -8;
    EXPECT_EQ(encode(asn1PE_PhysicalCellGroupConfig, phy), hex("0 00100000 010110 0")); // 22 above -30
    expectDecoded("PhysicalCellGroupConfig", asn1PE_PhysicalCellGroupConfig, phy,
                  R"({"p-NR-FR1":-8,"pdsch-HARQ-ACK-Codebook":"semiStatic"})");
}

TEST_F(Encoder, TheBitsBehindABitStringAreNotSent)
{
    SearchSpace space{};
    space.m.monitoringSymbolsWithinSlotPresent = 1;
    space.monitoringSymbolsWithinSlot = {14, {0xFF, 0xFF, 0xFF, 0xFF}};
    EXPECT_EQ(encode(asn1PE_SearchSpace, space), hex("000100 000000 11111111111111"));
    expectDecoded("SearchSpace", asn1PE_SearchSpace, space,
                  R"({"searchSpaceId":0,"monitoringSymbolsWithinSlot":"11111111111111"})");
}

TEST_F(Encoder, TheBitsBehindALongBitStringAreNotSent)
{
    RateMatchPattern pattern{};
    pattern.patternType.t = T_RateMatchPattern_patternType_bitmaps;
    auto* const maps = make<RateMatchPattern_patternType_bitmaps>();
    pattern.patternType.u.bitmaps = maps;
    std::memset(maps->resourceBlocks, 0xFF, sizeof maps->resourceBlocks); // 275 bits and 5 more
    maps->symbolsInResourceBlock.t = T_RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock_oneSlot;
    maps->symbolsInResourceBlock.u.oneSlot = make<ASN1BitStr32>();
    maps->symbolsInResourceBlock.u.oneSlot->numbits = 14;
    const std::string blocks(275, '1');
    EXPECT_EQ(encode(asn1PE_RateMatchPattern, pattern),
              hex("0 0 00  0 0 0" + blocks + "0 00000000000000" /* oneSlot */ + "0" /* dummy */));
    expectDecoded("RateMatchPattern", asn1PE_RateMatchPattern, pattern,
                  R"({"rateMatchPatternId":0,"patternType":{"bitmaps":{"resourceBlocks":")" + blocks +
                      R"(","symbolsInResourceBlock":{"oneSlot":"00000000000000"}}},"dummy":"dynamic"})");
}

// Extension groups and lone additions

TEST_F(Encoder, AGroupIsSentWithItsFlagAndAMember)
{
    const auto group = cleared<CellGroupConfig>();
    group->cellGroupId = 3;
    group->m._v2ExtPresent = 1;
    group->m.reportUplinkTxDirectCurrent_v1530Present = 1;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), hex("1 0000000 11  0 000000 1  00000001 10000000"));
    expectDecoded("CellGroupConfig", asn1PE_CellGroupConfig, *group,
                  R"({"cellGroupId":3,"reportUplinkTxDirectCurrent-v1530":"true"})");
}

TEST_F(Encoder, AGroupFlaggedButEmptyIsNotSent)
{
    const auto group = cleared<CellGroupConfig>();
    group->cellGroupId = 3;
    group->m._v2ExtPresent = 1;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), hex("0 0000000 11"));
}

TEST_F(Encoder, AMembersBitWithoutItsGroupsBitIsNotSent)
{
    const auto group = cleared<CellGroupConfig>();
    group->cellGroupId = 3;
    group->m.reportUplinkTxDirectCurrent_v1530Present = 1;
    group->reportUplinkTxDirectCurrent_v1530 = 7; // out of its range, and no error: it is not looked at
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), hex("0 0000000 11"));
}

TEST_F(Encoder, TheBitmapHasOneBitForEachAdditionOfTheSchema)
{
    PhysicalCellGroupConfig phy{};
    phy.m._v3ExtPresent = 1;
    phy.m.xScalePresent = 1;
    phy.m._v2ExtPresent = 1;               // empty
    phy.m.pdcch_BlindDetectionPresent = 1; // without _v4Ext
    EXPECT_EQ(encode(asn1PE_PhysicalCellGroupConfig, phy), hex("1 00000000 0  0 000010 010  00000001 1 00 00000"));
    expectDecoded("PhysicalCellGroupConfig", asn1PE_PhysicalCellGroupConfig, phy,
                  R"({"pdsch-HARQ-ACK-Codebook":"semiStatic","xScale":"dB0"})");
}

TEST_F(Encoder, EveryGroupMayBeSent)
{
    PhysicalCellGroupConfig phy{};
    phy.m._v2ExtPresent = 1;
    phy.m.mcs_C_RNTIPresent = 1;
    phy.mcs_C_RNTI = 0xABCD;
    phy.m._v3ExtPresent = 1;
    phy.m.xScalePresent = 1;
    phy.m._v4ExtPresent = 1;
    phy.m.pdcch_BlindDetectionPresent = 1;
    phy.pdcch_BlindDetection.t = T_PhysicalCellGroupConfig_pdcch_BlindDetection_setup;
    phy.pdcch_BlindDetection.u.setup = 15;
    EXPECT_EQ(encode(asn1PE_PhysicalCellGroupConfig, phy),
              hex("1 00000000 0  0 000010 111  00000011 10 1010101111001101 000000"
                  "00000001 1 00 00000  00000001 1 1 1110 00"));
    expectDecoded("PhysicalCellGroupConfig", asn1PE_PhysicalCellGroupConfig, phy,
                  R"({"pdsch-HARQ-ACK-Codebook":"semiStatic","mcs-C-RNTI":43981,"xScale":"dB0",)"
                  R"("pdcch-BlindDetection":{"setup":15}})");
}

TEST_F(Encoder, ALoneAdditionIsSentByItsOwnBit)
{
    LogicalChannelConfig config{};
    config.m.ul_SpecificParametersPresent = 1;
    auto& ul = config.ul_SpecificParameters;
    ul.priority = 16;
    ul.prioritisedBitRate = 1;
    ul.bucketSizeDuration = 2;
    ul.logicalChannelSR_Mask = 1;
    ul.bitRateQueryProhibitTimer = 4;
    EXPECT_EQ(encode(asn1PE_LogicalChannelConfig, config), hex("0 1  0 000000 1111 0001 0010 1 0"));
    ul.m.bitRateQueryProhibitTimerPresent = 1;
    EXPECT_EQ(encode(asn1PE_LogicalChannelConfig, config),
              hex("0 1  1 000000 1111 0001 0010 1 0  0 000000 1  00000001 100 00000"));
    expectDecoded("LogicalChannelConfig", asn1PE_LogicalChannelConfig, config,
                  R"({"ul-SpecificParameters":{"priority":16,"prioritisedBitRate":"kBps8","bucketSizeDuration":"ms20",)"
                  R"("logicalChannelSR-Mask":true,"logicalChannelSR-DelayTimerApplied":false,)"
                  R"("bitRateQueryProhibitTimer":"s3"}})");
}

TEST_F(Encoder, AGroupOf128OctetsAndMoreHasALengthOfTwoOctets)
{
    const auto cell = cleared<ServingCellConfig>();
    cell->m._v2ExtPresent = 1;
    cell->m.rateMatchPatternToAddModListPresent = 1;
    const std::string blocks(275, '0');
    std::string bits = "0100 11"; // the group's presence bits, four patterns
    std::string json;
    for (OSUINT8 i = 0; i < 4; ++i)
    {
        auto* const pattern = append<RateMatchPattern>(cell->rateMatchPatternToAddModList);
        pattern->rateMatchPatternId = i;
        pattern->patternType.t = T_RateMatchPattern_patternType_bitmaps;
        auto* const maps = make<RateMatchPattern_patternType_bitmaps>();
        pattern->patternType.u.bitmaps = maps;
        maps->symbolsInResourceBlock.t = T_RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock_twoSlots;
        maps->symbolsInResourceBlock.u.twoSlots = make<ASN1BitStr32>();
        maps->symbolsInResourceBlock.u.twoSlots->numbits = 28;
        bits += "0 0" + test::octet(i).substr(6) + "0  0 0" + blocks + "1" + std::string(28, '0') + "0";
        json += std::string(i == 0 ? "" : ",") + R"({"rateMatchPatternId":)" + std::to_string(i) +
                R"(,"patternType":{"bitmaps":{"resourceBlocks":")" + blocks +
                R"(","symbolsInResourceBlock":{"twoSlots":")" + std::string(28, '0') + R"("}}},"dummy":"dynamic"})";
    }
    // 4 + 2 + 4 * 312 bits are 157 octets with two bits of padding.
    EXPECT_EQ(encode(asn1PE_ServingCellConfig, *cell),
              hex("1" + std::string(17, '0') + "00  0 000000 1  10 00000010011101" + bits + "00"));
    expectDecoded("ServingCellConfig", asn1PE_ServingCellConfig, *cell,
                  R"({"tag-Id":0,"rateMatchPatternToAddModList":[)" + json + "]}");
}

// What is refused

TEST_F(Encoder, RefusesATagOutOfTheAlternatives)
{
    MAC_CellGroupConfig mac{};
    mac.m.drx_ConfigPresent = 1;
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), "MAC-CellGroupConfig.drx-Config: tag 0 is not in 1..2");
    mac.drx_Config.t = 3;
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), "MAC-CellGroupConfig.drx-Config: tag 3 is not in 1..2");
    mac.drx_Config.t = 0xFFFFFFFF;
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), "MAC-CellGroupConfig.drx-Config: tag 4294967295 is not in 1..2");
}

TEST_F(Encoder, RefusesAnUnknownTagOfAnExtensibleChoiceWithoutItsOctets)
{
    RLC_Config rlc{};
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), "RLC-Config: tag 0 is not in 1..4");
    rlc.t = 5;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), "RLC-Config: tag 5 is not in 1..4") << "a null pointer";
    ASN1OpenType foreign{1, 0, nullptr};
    rlc.u.extElem1 = &foreign;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), "RLC-Config: tag 5 is not in 1..4") << "out of the heap";
    rlc.u.extElem1 = make<ASN1OpenType>();
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), "RLC-Config: tag 5 is not in 1..4") << "no octets";
    OSOCTET octet = 0;
    rlc.u.extElem1->data = &octet;
    rlc.u.extElem1->numocts = 1;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), "RLC-Config: tag 5 is not in 1..4") << "octets out of the heap";
}

TEST_F(Encoder, RefusesAnEnumerationBeyondItsLastValue)
{
    TAG tag{};
    tag.timeAlignmentTimer = 8;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.timeAlignmentTimer: 8 is not in 0..7");
    tag.timeAlignmentTimer = 0xFFFFFFFF;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.timeAlignmentTimer: 4294967295 is not in 0..7");

    RLC_BearerConfig bearer{}; // of one value, which takes no bit
    bearer.logicalChannelIdentity = 1;
    bearer.m.reestablishRLCPresent = 1;
    bearer.reestablishRLC = 1;
    EXPECT_EQ(encode(asn1PE_RLC_BearerConfig, bearer), "RLC-BearerConfig.reestablishRLC: 1 is not in 0..0");
}

TEST_F(Encoder, RefusesAnIntegerOutOfItsRange)
{
    TAG tag{};
    tag.tag_Id = 4;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.tag-Id: 4 is not in 0..3");

    RLC_BearerConfig bearer{};
    EXPECT_EQ(encode(asn1PE_RLC_BearerConfig, bearer), "RLC-BearerConfig.logicalChannelIdentity: 0 is not in 1..32");
    bearer.logicalChannelIdentity = 33;
    EXPECT_EQ(encode(asn1PE_RLC_BearerConfig, bearer), "RLC-BearerConfig.logicalChannelIdentity: 33 is not in 1..32");
    bearer.logicalChannelIdentity = 32;
    EXPECT_EQ(encode(asn1PE_RLC_BearerConfig, bearer), hex("0 0000 11111"));

    PhysicalCellGroupConfig phy{};
    phy.m.p_NR_FR1Present = 1;
    phy.p_NR_FR1 = -31;
    EXPECT_EQ(encode(asn1PE_PhysicalCellGroupConfig, phy), "PhysicalCellGroupConfig.p-NR-FR1: -31 is not in -30..33");
    phy.p_NR_FR1 = 34;
    EXPECT_EQ(encode(asn1PE_PhysicalCellGroupConfig, phy), "PhysicalCellGroupConfig.p-NR-FR1: 34 is not in -30..33");
}

TEST_F(Encoder, ASimpleTypeIsAMessageOfItsOwn)
{
    const SCellIndex index = 31; // 30 of 0..30 in five bits
    EXPECT_EQ(encode(asn1PE_SCellIndex, index), "f0");
    EXPECT_EQ(encode(asn1PE_SCellIndex, SCellIndex{32}), "SCellIndex: 32 is not in 1..31");
    const SubcarrierSpacing spacing = SubcarrierSpacing_kHz60; // 2 in three bits
    EXPECT_EQ(encode(asn1PE_SubcarrierSpacing, spacing), "40");
}

TEST_F(Encoder, RefusesAnIntegerInAChoice)
{
    RLC_BearerConfig bearer{};
    bearer.logicalChannelIdentity = 1;
    bearer.m.servedRadioBearerPresent = 1;
    bearer.servedRadioBearer.t = T_RLC_BearerConfig_servedRadioBearer_srb_Identity;
    bearer.servedRadioBearer.u.srb_Identity = 4;
    EXPECT_EQ(encode(asn1PE_RLC_BearerConfig, bearer),
              "RLC-BearerConfig.servedRadioBearer.srb-Identity: 4 is not in 1..3");
}

TEST_F(Encoder, RefusesTheCountOfAnArrayOutOfItsBounds)
{
    const auto group = cleared<CellGroupConfig>();
    group->m.rlc_BearerToReleaseListPresent = 1;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), "CellGroupConfig.rlc-BearerToReleaseList: 0 elements, not 1..32");
    group->rlc_BearerToReleaseList.n = 33;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group),
              "CellGroupConfig.rlc-BearerToReleaseList: 33 elements, not 1..32");
    group->rlc_BearerToReleaseList.n = 255;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group),
              "CellGroupConfig.rlc-BearerToReleaseList: 255 elements, not 1..32");
}

TEST_F(Encoder, RefusesAnArraysElementByItsIndex)
{
    const auto group = cleared<CellGroupConfig>();
    group->m.rlc_BearerToReleaseListPresent = 1;
    auto& list = group->rlc_BearerToReleaseList;
    list.n = 32;
    std::fill(std::begin(list.elem), std::end(list.elem), OSUINT8{32});
    list.elem[31] = 33;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group),
              "CellGroupConfig.rlc-BearerToReleaseList[31]: 33 is not in 1..32");
}

TEST_F(Encoder, RefusesTheCountOfAListOutOfItsBounds)
{
    TAG_Config config{};
    config.m.tag_ToAddModListPresent = 1;
    EXPECT_EQ(encode(asn1PE_TAG_Config, config), "TAG-Config.tag-ToAddModList: 0 elements, not 1..4");
    for (int i = 0; i < 5; ++i)
    {
        append<TAG>(config.tag_ToAddModList);
    }
    EXPECT_EQ(encode(asn1PE_TAG_Config, config), "TAG-Config.tag-ToAddModList: 5 elements, not 1..4");
}

TEST_F(Encoder, RefusesAListThatEndsBeforeItsCount)
{
    TAG_Config config{};
    config.m.tag_ToAddModListPresent = 1;
    config.tag_ToAddModList.count = 1;
    EXPECT_EQ(encode(asn1PE_TAG_Config, config),
              "TAG-Config.tag-ToAddModList: the list counts 1 element and ends after 0");
    config.tag_ToAddModList.count = 0;
    append<TAG>(config.tag_ToAddModList);
    config.tag_ToAddModList.count = 3;
    EXPECT_EQ(encode(asn1PE_TAG_Config, config),
              "TAG-Config.tag-ToAddModList: the list counts 3 elements and ends after 1");
}

TEST_F(Encoder, AListThatRunsInACircleEndsWithItsCount)
{
    TAG_Config config{};
    config.m.tag_ToAddModListPresent = 1;
    append<TAG>(config.tag_ToAddModList)->tag_Id = 3;
    config.tag_ToAddModList.head->next = config.tag_ToAddModList.head;
    config.tag_ToAddModList.count = 4;
    EXPECT_EQ(encode(asn1PE_TAG_Config, config), hex("01 11 011000 011000 011000 011000"));
}

TEST_F(Encoder, RefusesABitStringOfAnotherLength)
{
    SearchSpace space{};
    space.m.monitoringSymbolsWithinSlotPresent = 1;
    EXPECT_EQ(encode(asn1PE_SearchSpace, space),
              "SearchSpace.monitoringSymbolsWithinSlot: a bit string of 0 bits, not 14");
    space.monitoringSymbolsWithinSlot.numbits = 28;
    EXPECT_EQ(encode(asn1PE_SearchSpace, space),
              "SearchSpace.monitoringSymbolsWithinSlot: a bit string of 28 bits, not 14");
    space.monitoringSymbolsWithinSlot.numbits = 0xFFFFFFFF;
    EXPECT_EQ(encode(asn1PE_SearchSpace, space),
              "SearchSpace.monitoringSymbolsWithinSlot: a bit string of 4294967295 bits, not 14");
}

TEST_F(Encoder, RefusesANullPointer)
{
    RLC_Config rlc{};
    rlc.t = T_RLC_Config_am;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), "RLC-Config.am: a null pointer");

    MAC_CellGroupConfig mac{};
    mac.m.drx_ConfigPresent = 1;
    mac.drx_Config.t = T_MAC_CellGroupConfig_drx_Config_setup;
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), "MAC-CellGroupConfig.drx-Config.setup: a null pointer");

    RateMatchPattern pattern{};
    pattern.patternType.t = T_RateMatchPattern_patternType_bitmaps;
    pattern.patternType.u.bitmaps = make<RateMatchPattern_patternType_bitmaps>();
    pattern.patternType.u.bitmaps->symbolsInResourceBlock.t =
        T_RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock_oneSlot;
    EXPECT_EQ(encode(asn1PE_RateMatchPattern, pattern),
              "RateMatchPattern.patternType.bitmaps.symbolsInResourceBlock.oneSlot: a null pointer");

    TAG_Config config{};
    config.m.tag_ToAddModListPresent = 1;
    append<TAG>(config.tag_ToAddModList);
    append<TAG>(config.tag_ToAddModList);
    config.tag_ToAddModList.tail->data = nullptr;
    EXPECT_EQ(encode(asn1PE_TAG_Config, config), "TAG-Config.tag-ToAddModList[1]: a null pointer");
}

TEST_F(Encoder, ANullPointerToAnElementThatMayBeEmptyIsTheEmptyElement)
{
    BWP_DownlinkDedicated bwp{};
    bwp.m.pdcch_ConfigPresent = 1;
    bwp.pdcch_Config.t = T_BWP_DownlinkDedicated_pdcch_Config_setup;
    const std::string null = encode(asn1PE_BWP_DownlinkDedicated, bwp);
    expectDecoded("BWP-DownlinkDedicated", asn1PE_BWP_DownlinkDedicated, bwp, R"({"pdcch-Config":{"setup":{}}})");
    bwp.pdcch_Config.u.setup = make<PDCCH_Config>();
    EXPECT_EQ(encode(asn1PE_BWP_DownlinkDedicated, bwp), null);
}

TEST_F(Encoder, RefusesAPointerOutOfTheContextsHeap)
{
    const std::string line = "MAC-CellGroupConfig.drx-Config.setup: a pointer out of the context's heap";
    MAC_CellGroupConfig mac{};
    mac.m.drx_ConfigPresent = 1;
    mac.drx_Config.t = T_MAC_CellGroupConfig_drx_Config_setup;

    DRX_Config onStack{};
    mac.drx_Config.u.setup = &onStack;
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), line) << "no heap at all";
    auto* const own = make<DRX_Config>();
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), line) << "on the stack";

    OSCTXT other;
    ASSERT_EQ(rtxInitContext(&other), RTX_OK);
    mac.drx_Config.u.setup = static_cast<DRX_Config*>(rtxMemHeapAlloc(&other, sizeof(DRX_Config)));
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), line) << "another context's";
    rtFreeContext(&other);

    OSOCTET* const octets = reinterpret_cast<OSOCTET*>(own);
    void* const behind = rtxMemHeapAlloc(&context, sizeof(DRX_Config) + 1);
    std::memset(behind, 0, sizeof(DRX_Config) + 1);
    for (const ptrdiff_t off : {1, 2, 3})
    {
        void* const p = octets + off;
        mac.drx_Config.u.setup = static_cast<DRX_Config*>(p);
        EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), line) << "misaligned by " << off;
    }
    void* const end = static_cast<OSOCTET*>(behind) + 64; // its last octets are beyond what was handed out
    mac.drx_Config.u.setup = static_cast<DRX_Config*>(end);
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), line) << "half behind the last request";
    void* const wild = reinterpret_cast<void*>(uintptr_t{0xDEADBEE0});
    mac.drx_Config.u.setup = static_cast<DRX_Config*>(wild);
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac), line) << "wild";

    mac.drx_Config.u.setup = own;
    own->drx_onDurationTimer.t = T_DRX_Config_drx_onDurationTimer_milliSeconds;
    own->drx_LongCycleStartOffset.t = T_DRX_Config_drx_LongCycleStartOffset_ms10;
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac),
              hex("0 10000 1  0 1 00000 00000 000000 000000 00000 00000 00000 0000 00000  0"));
}

TEST_F(Encoder, FollowsPointersIntoOlderBlocksOfTheHeap)
{
    TAG_Config config{};
    config.m.tag_ToAddModListPresent = 1;
    append<TAG>(config.tag_ToAddModList)->tag_Id = 1;
    ASSERT_NE(rtxMemHeapAlloc(&context, 100'000), nullptr);
    append<TAG>(config.tag_ToAddModList)->tag_Id = 2;
    EXPECT_EQ(encode(asn1PE_TAG_Config, config), hex("01 01 0 01 000 0 10 000"));
}

TEST_F(Encoder, RefusesAListsNodesAndElementsOutOfTheHeap)
{
    TAG_Config config{};
    config.m.tag_ToAddModListPresent = 1;
    append<TAG>(config.tag_ToAddModList);
    TAG onStack{};
    OSRTDListNode node{};
    node.data = config.tag_ToAddModList.head->data;
    rtxDListAppendNode(&config.tag_ToAddModList, &node);
    EXPECT_EQ(encode(asn1PE_TAG_Config, config), "TAG-Config.tag-ToAddModList[1]: a pointer out of the context's heap");
    config.tag_ToAddModList.count = 1;
    EXPECT_EQ(encode(asn1PE_TAG_Config, config), hex("01 00 000000"));
    config.tag_ToAddModList.head->data = &onStack;
    EXPECT_EQ(encode(asn1PE_TAG_Config, config), "TAG-Config.tag-ToAddModList[0]: a pointer out of the context's heap");
}

TEST_F(Encoder, NamesTheWholePathWithTheIndicesOfLists)
{
    const auto group = cleared<CellGroupConfig>();
    fill(*group);
    static_cast<RLC_BearerConfig*>(group->rlc_BearerToAddModList.tail->data)
        ->rlc_Config.u.am->ul_AM_RLC.t_PollRetransmit = 64;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group),
              "CellGroupConfig.rlc-BearerToAddModList[1].rlc-Config.am.ul-AM-RLC.t-PollRetransmit: 64 is not in 0..63");
}

TEST_F(Encoder, PrintsTheErrorOnce)
{
    const auto group = cleared<CellGroupConfig>();
    group->m.spCellConfigPresent = 1;
    group->spCellConfig.m.reconfigurationWithSyncPresent = 1;
    group->spCellConfig.reconfigurationWithSync.t304 = 9;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group),
              "CellGroupConfig.spCellConfig.reconfigurationWithSync.t304: 9 is not in 0..7");
    EXPECT_EQ(printed(), "");
    rtxErrPrint(&context);
    EXPECT_EQ(printed(), "CellGroupConfig.spCellConfig.reconfigurationWithSync.t304: 9 is not in 0..7\n");
}

TEST_F(Encoder, TheFirstErrorStops)
{
    const auto group = cleared<CellGroupConfig>();
    group->m.rlc_BearerToReleaseListPresent = 1;
    group->m.mac_CellGroupConfigPresent = 1;
    group->mac_CellGroupConfig.m.drx_ConfigPresent = 1;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), "CellGroupConfig.rlc-BearerToReleaseList: 0 elements, not 1..32");
}

TEST_F(Encoder, NamesAMemberOfAGroupAndOfALoneAddition)
{
    MAC_CellGroupConfig mac{};
    mac.m._v2ExtPresent = 1;
    mac.m.dataInactivityTimerPresent = 1;
    mac.dataInactivityTimer.t = T_MAC_CellGroupConfig_dataInactivityTimer_setup;
    mac.dataInactivityTimer.u.setup = 16;
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, mac),
              "MAC-CellGroupConfig.dataInactivityTimer.setup: 16 is not in 0..15");

    LogicalChannelConfig config{};
    config.m.ul_SpecificParametersPresent = 1;
    config.ul_SpecificParameters.priority = 1;
    config.ul_SpecificParameters.m.bitRateQueryProhibitTimerPresent = 1;
    config.ul_SpecificParameters.bitRateQueryProhibitTimer = 8;
    EXPECT_EQ(encode(asn1PE_LogicalChannelConfig, config),
              "LogicalChannelConfig.ul-SpecificParameters.bitRateQueryProhibitTimer: 8 is not in 0..7");
}

// The buffer

TEST_F(Encoder, EveryCapacityThatIsTooSmallIsRefusedAndKept)
{
    const auto group = cleared<CellGroupConfig>();
    fill(*group);
    const auto whole = encodeInto(100, asn1PE_CellGroupConfig, *group);
    ASSERT_GT(whole.size(), 16U);
    for (size_t capacity = 0; capacity < whole.size(); ++capacity)
    {
        EXPECT_TRUE(encodeInto(capacity, asn1PE_CellGroupConfig, *group).empty());
        EXPECT_EQ(context.error.status, RTX_E_OVERFLOW);
        const std::string line = errorLine();
        EXPECT_EQ(line.find("CellGroupConfig"), 0U);
        const std::string reason =
            ": the encoding does not fit into " + std::to_string(capacity) + (capacity == 1 ? " octet" : " octets");
        EXPECT_EQ(line.substr(line.find(':')), reason);
    }
    EXPECT_EQ(encodeInto(whole.size(), asn1PE_CellGroupConfig, *group), whole);
    EXPECT_EQ(context.error.status, RTX_OK);
}

TEST_F(Encoder, NamesTheElementThatDoesNotFit)
{
    const auto group = cleared<CellGroupConfig>();
    fill(*group);
    EXPECT_TRUE(encodeInto(4, asn1PE_CellGroupConfig, *group).empty());
    EXPECT_EQ(errorLine(),
              "CellGroupConfig.rlc-BearerToAddModList[0].rlc-Config.am.ul-AM-RLC: the encoding does not fit "
              "into 4 octets");
}

TEST_F(Encoder, RefusesToRunWithoutABuffer)
{
    const TAG tag{};
    EXPECT_EQ(asn1PE_TAG(&context, &tag), RTX_E_NOBUFFER);
    EXPECT_EQ(errorLine(), "TAG: no buffer");
    EXPECT_EQ(pu_setBuffer(&context, nullptr, 8192, 0), RTX_E_NULL);
    EXPECT_EQ(asn1PE_TAG(&context, &tag), RTX_E_NOBUFFER);
    EXPECT_EQ(errorLine(), "TAG: no buffer");
    EXPECT_EQ(pu_getMsgLen(&context), 0U);
}

TEST_F(Encoder, RefusesAlignedPer)
{
    const TAG tag{};
    OSOCTET octets[8];
    EXPECT_EQ(pu_setBuffer(&context, octets, sizeof octets, 1), RTX_E_ALIGNED);
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(asn1PE_TAG(&context, &tag), RTX_E_ALIGNED);
        EXPECT_EQ(errorLine(), "TAG: aligned PER is not available");
    }
    EXPECT_EQ(pu_setBuffer(&context, octets, sizeof octets, 0), RTX_OK);
    EXPECT_EQ(asn1PE_TAG(&context, &tag), RTX_OK);
    EXPECT_EQ(errorLine(), "");
}

TEST_F(Encoder, RefusesANullContextAndANullValue)
{
    const TAG tag{};
    EXPECT_EQ(asn1PE_TAG(nullptr, &tag), RTX_E_NULL);
    OSOCTET octets[8];
    ASSERT_EQ(pu_setBuffer(&context, octets, sizeof octets, 0), RTX_OK);
    EXPECT_EQ(asn1PE_TAG(&context, nullptr), RTX_E_NULL);
    EXPECT_EQ(errorLine(), "TAG: a null pointer");
    EXPECT_EQ(pu_getMsgLen(&context), 0U);
}

TEST_F(Encoder, ARunForgetsTheErrorOfTheOneBefore)
{
    TAG tag{};
    tag.tag_Id = 4;
    EXPECT_TRUE(encodeInto(8, asn1PE_TAG, tag).empty());
    EXPECT_EQ(errorLine(), "TAG.tag-Id: 4 is not in 0..3");
    EXPECT_TRUE(encodeInto(8, asn1PE_TAG, tag).empty());
    EXPECT_EQ(errorLine(), "TAG.tag-Id: 4 is not in 0..3");
    EXPECT_EQ(pu_setBuffer(&context, nullptr, 8, 0), RTX_E_NULL);
    EXPECT_EQ(asn1PE_TAG(&context, &tag), RTX_E_NOBUFFER);
    EXPECT_EQ(errorLine(), "TAG: no buffer");
    tag.tag_Id = 3;
    EXPECT_EQ(hexOf(encodeInto(8, asn1PE_TAG, tag)), hex("0 11 000"));
    EXPECT_EQ(errorLine(), "");
}

// What later releases add

std::vector<OSOCTET> counted(size_t size)
{
    std::vector<OSOCTET> octets(size);
    for (size_t i = 0; i < size; ++i)
    {
        octets[i] = static_cast<OSOCTET>(i * 7 + i / 256 + 1);
    }
    return octets;
}

std::string bitsOf(const std::vector<OSOCTET>& octets, size_t from, size_t count)
{
    std::string bits;
    for (size_t i = from; i < from + count; ++i)
    {
        bits += test::octet(octets[i]);
    }
    return bits;
}

// X.691 11.9.3.5 to 11.9.3.8: the octets with their length before them, from 16K on in fragments of as many times 16K
// as there are, at most four; the last fragment is shorter than 16K, maybe empty.
std::string openType(const std::vector<OSOCTET>& octets)
{
    constexpr size_t unit = 16384;
    std::string bits;
    size_t at = 0;
    while (octets.size() - at >= unit)
    {
        const size_t units = std::min<size_t>((octets.size() - at) / unit, 4);
        bits += test::octet(static_cast<unsigned>(0xC0 + units)) + bitsOf(octets, at, units * unit);
        at += units * unit;
    }
    const auto rest = static_cast<unsigned>(octets.size() - at);
    bits += rest < 128 ? test::octet(rest) : test::octet(0x80 | rest >> 8) + test::octet(rest & 0xFF);
    return bits + bitsOf(octets, at, rest);
}

class Unknown : public Encoder
{
protected:
    // Encodes a TAG with these additions, reads it back and encodes it again.
    std::vector<OSOCTET> thereAndBack(const std::vector<std::vector<OSOCTET>>& additions)
    {
        TAG tag{};
        size_t octets = 64;
        size_t present = 0;
        for (size_t i = 0; i < additions.size(); ++i)
        {
            if (!additions[i].empty()) // what stands for an absent one
            {
                appendAddition(tag.extElem1, additions[i], i);
                ++present;
            }
            octets += additions[i].size() + 8;
        }
        std::vector<OSOCTET> once = encodeInto(octets, asn1PE_TAG, tag);
        EXPECT_EQ(errorLine(), "");

        OSCTXT other;
        EXPECT_EQ(rtxInitContext(&other), RTX_OK);
        EXPECT_EQ(pu_setBuffer(&other, once.data(), once.size(), 0), RTX_OK);
        TAG back{};
        EXPECT_EQ(asn1PD_TAG(&other, &back), RTX_OK);
        EXPECT_EQ(back.extElem1.count, present);
        EXPECT_EQ(other.decoded.unknown, present);
        EXPECT_EQ(other.decoded.note, RTX_NOTE_NONE);
        const OSRTDListNode* node = back.extElem1.head;
        for (size_t i = 0; i < additions.size(); ++i)
        {
            const auto& addition = additions[i];
            if (addition.empty())
            {
                continue;
            }
            if (node == nullptr)
            {
                ADD_FAILURE() << "an addition is missing";
                break;
            }
            const auto& open = *static_cast<const ASN1OpenType*>(node->data);
            EXPECT_EQ(open.index, i);
            EXPECT_EQ(open.numocts, addition.size());
            EXPECT_TRUE(open.numocts == addition.size() && std::equal(addition.begin(), addition.end(), open.data));
            node = node->next;
        }
        std::vector<OSOCTET> again(once.size());
        EXPECT_EQ(pu_setBuffer(&other, again.data(), again.size(), 0), RTX_OK);
        EXPECT_EQ(asn1PE_TAG(&other, &back), RTX_OK);
        EXPECT_EQ(again, once);
        rtFreeContext(&other);
        return once;
    }
};

TEST_F(Unknown, AdditionsAreSentAgain)
{
    EXPECT_EQ(hexOf(thereAndBack({{}, {0xAB, 0xCD, 0xEF}, {}, {0x01}})),
              hex("1 00 000  0 000011 0101  00000011 10101011 11001101 11101111  00000001 00000001"));
}

TEST_F(Unknown, AdditionsStandBehindTheKnownOnes)
{
    const auto group = cleared<CellGroupConfig>();
    appendAddition(group->extElem1, {0x5A});
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group), hex("1 0000000 00  0 000001 01  00000001 01011010"));
    group->m._v2ExtPresent = 1;
    group->m.reportUplinkTxDirectCurrent_v1530Present = 1;
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, *group),
              hex("1 0000000 00  0 000001 11  00000001 10000000  00000001 01011010"));
}

TEST_F(Unknown, SixtyFourAdditionsStillHaveASmallLength)
{
    std::vector<std::vector<OSOCTET>> additions(64);
    additions.back() = {0x42};
    EXPECT_EQ(hexOf(thereAndBack(additions)),
              hex("1 00 000  0 111111" + std::string(63, '0') + "1  00000001 01000010"));
}

TEST_F(Unknown, MoreThanSixtyFourAdditionsHaveALengthOfTheirOwn)
{
    for (const size_t count : {65U, 127U})
    {
        std::vector<std::vector<OSOCTET>> additions(count);
        additions.back() = {0x42};
        EXPECT_EQ(hexOf(thereAndBack(additions)), hex("1 00 000  1" + test::octet(static_cast<unsigned>(count)) +
                                                      std::string(count - 1, '0') + "1  00000001 01000010"));
    }
    for (const size_t count : {128U, 300U, 16383U})
    {
        std::vector<std::vector<OSOCTET>> additions(count);
        additions.back() = {0x42};
        EXPECT_EQ(hexOf(thereAndBack(additions)),
                  hex("1 00 000  1" + test::octet(static_cast<unsigned>(0x80 | count >> 8)) +
                      test::octet(static_cast<unsigned>(count & 0xFF)) + std::string(count - 1, '0') +
                      "1  00000001 01000010"));
    }
}

TEST_F(Unknown, RefusesMoreAdditionsThanABitmapHolds)
{
    TAG tag{};
    appendAddition(tag.extElem1, {0x42}, 16383);
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.extElem1: 16384 elements, not 0..16383");
}

TEST_F(Unknown, LengthsAreFramedAsTheStandardSays)
{
    for (const size_t size : {1U, 127U, 128U, 16383U, 16384U, 16385U, 16384U + 127U, 16384U + 128U, 32768U, 49152U,
                              65535U, 65536U, 65537U, 81920U, 131072U, 200000U})
    {
        const auto octets = counted(size);
        const auto encoded = thereAndBack({octets, {0x99}});
        EXPECT_EQ(encoded, test::bits("1 00 000  0 000001 11" + openType(octets) + "00000001 10011001")) << size;
    }
}

TEST_F(Unknown, EveryCapacityThatIsTooSmallForAnAdditionIsRefusedAndKept)
{
    TAG tag{};
    appendAddition(tag.extElem1, counted(200));
    const auto small = encodeInto(300, asn1PE_TAG, tag);
    ASSERT_EQ(small.size(), 204U); // 6 + 7 + 1 + 2 * 8 + 200 * 8 bits
    for (size_t capacity = 0; capacity < small.size(); ++capacity)
    {
        EXPECT_TRUE(encodeInto(capacity, asn1PE_TAG, tag).empty());
        EXPECT_EQ(context.error.status, RTX_E_OVERFLOW);
    }
    EXPECT_EQ(encodeInto(small.size(), asn1PE_TAG, tag), small);

    TAG large{};
    appendAddition(large.extElem1, counted(70000));
    const auto whole = encodeInto(80000, asn1PE_TAG, large);
    ASSERT_EQ(whole.size(), 70005U); // 6 + 7 + 1 + 8 + 2 * 8 + 70000 * 8 bits
    for (const size_t less : {1U, 2U, 3U, 4U, 5U, 100U, 4464U, 4465U, 65536U, 65540U, 70004U})
    {
        EXPECT_TRUE(encodeInto(whole.size() - less, asn1PE_TAG, large).empty());
        EXPECT_EQ(errorLine(), "TAG: the encoding does not fit into " + std::to_string(whole.size() - less) +
                                   (whole.size() - less == 1 ? " octet" : " octets"));
    }
    EXPECT_EQ(encodeInto(whole.size(), asn1PE_TAG, large), whole);
}

TEST_F(Unknown, RefusesAnAdditionThatIsNotBehindTheOneBefore)
{
    TAG tag{};
    appendAddition(tag.extElem1, {0x01}, 1);
    appendAddition(tag.extElem1, {0x02}, 1);
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.extElem1[1]: an extension is announced and has no addition");
}

TEST_F(Unknown, RefusesAnAdditionWithoutOctets)
{
    TAG tag{};
    appendAddition(tag.extElem1, {0x01});
    static_cast<ASN1OpenType*>(tag.extElem1.head->data)->numocts = 0;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.extElem1[0]: an extension is announced and has no addition");
}

TEST_F(Unknown, RefusesPointersOutOfTheHeap)
{
    TAG tag{};
    appendAddition(tag.extElem1, {0x01});
    auto& open = *static_cast<ASN1OpenType*>(tag.extElem1.head->data);
    open.numocts = 1'000'000;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.extElem1[0]: a pointer out of the context's heap") << "octets";
    ASN1OpenType onStack{};
    tag.extElem1.head->data = &onStack;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.extElem1[0]: a pointer out of the context's heap") << "element";
    tag.extElem1.head->data = nullptr;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.extElem1[0]: a null pointer");
    OSRTDListNode node{&open, nullptr, nullptr};
    tag.extElem1.head = &node;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.extElem1[0]: a pointer out of the context's heap") << "node";
    tag.extElem1.head = nullptr;
    EXPECT_EQ(encode(asn1PE_TAG, tag), "TAG.extElem1: the list counts 1 element and ends after 0");
}

TEST_F(Unknown, AnAlternativeIsSentAgain)
{
    RLC_Config rlc{};
    rlc.u.extElem1 = make<ASN1OpenType>();
    auto* const octets = make<std::array<OSOCTET, 2>>();
    *octets = {0xAB, 0xCD};
    rlc.u.extElem1->data = octets->data();
    rlc.u.extElem1->numocts = 2;
    const std::string field = "00000010 10101011 11001101";
    rlc.t = 5;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), hex("1 0 000000" + field));
    rlc.t = 5 + 63;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), hex("1 0 111111" + field));
    rlc.t = 5 + 64;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), hex("1 1 00000001 01000000" + field));
    rlc.t = 5 + 255;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), hex("1 1 00000001 11111111" + field));
    rlc.t = 5 + 256;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), hex("1 1 00000010 00000001 00000000" + field));
    rlc.t = 5 + 65536;
    EXPECT_EQ(encode(asn1PE_RLC_Config, rlc), hex("1 1 00000011 00000001 00000000 00000000" + field));

    auto message = encodeInto(32, asn1PE_RLC_Config, rlc);
    OSCTXT other;
    ASSERT_EQ(rtxInitContext(&other), RTX_OK);
    ASSERT_EQ(pu_setBuffer(&other, message.data(), message.size(), 0), RTX_OK);
    RLC_Config back{};
    ASSERT_EQ(asn1PD_RLC_Config(&other, &back), RTX_OK);
    EXPECT_EQ(back.t, rlc.t);
    ASSERT_NE(back.u.extElem1, nullptr);
    ASSERT_EQ(back.u.extElem1->numocts, 2U);
    EXPECT_EQ(back.u.extElem1->data[0], 0xAB);
    EXPECT_EQ(back.u.extElem1->data[1], 0xCD);
    rtFreeContext(&other);
}

// The layout that the runtime and the composers count on

// The number of the first flag that is set in a structure's first octets.
template <typename T>
int firstBit(const T& value)
{
    OSOCTET octets[sizeof(T)];
    std::memcpy(octets, &value, sizeof value);
    for (size_t i = 0; i < sizeof octets * 8; ++i)
    {
        const auto flag = static_cast<int>(i);
        if ((octets[i / 8] >> rtx::flagShift(flag) & 1) != 0)
        {
            return flag;
        }
    }
    return -1;
}

TEST(Layout, AFlagLiesAtItsNumber)
{
    CellGroupConfig group{};
    EXPECT_EQ(firstBit(group), -1);
    group.m.rlc_BearerToAddModListPresent = 1;
    EXPECT_EQ(firstBit(group), 0);
    group.m = {};
    group.m.sCellToReleaseListPresent = 1;
    EXPECT_EQ(firstBit(group), 6);
    group.m = {};
    group.m._v2ExtPresent = 1;
    EXPECT_EQ(firstBit(group), 7);
    group.m = {};
    group.m.reportUplinkTxDirectCurrent_v1530Present = 1;
    EXPECT_EQ(firstBit(group), 8);

    ServingCellConfig cell{};
    cell.m.servingCellMOPresent = 1;
    EXPECT_EQ(firstBit(cell), 16);
    cell.m = {};
    cell.m.downlinkChannelBW_PerSCS_ListPresent = 1;
    EXPECT_EQ(firstBit(cell), 21);
}

TEST(Layout, TheResourceBlocksEndOneOctetBeforeTheNextTag)
{
    using Bitmaps = RateMatchPattern_patternType_bitmaps;
    static_assert(sizeof(Bitmaps::resourceBlocks) == 35);
    static_assert(offsetof(Bitmaps, resourceBlocks) + 35 + 1 ==
                  offsetof(Bitmaps, symbolsInResourceBlock) +
                      offsetof(RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock, t));
    // Also in memory: a 36th octet written behind the blocks touches neither of them.
    Bitmaps maps{};
    maps.symbolsInResourceBlock.t = 1;
    const auto* const blocks = reinterpret_cast<const OSOCTET*>(&maps) + offsetof(Bitmaps, resourceBlocks);
    EXPECT_EQ(blocks + 36, reinterpret_cast<const OSOCTET*>(&maps.symbolsInResourceBlock.t));
}

} // namespace
