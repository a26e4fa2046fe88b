#include "cellGroupCfg/configuredGrant.h"

#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"

using test::array;
using test::bits;
using test::HeapFault;
using test::masks;
using test::object;
using test::rising;

namespace
{

class configuredGrant : public test::ComposerTest
{
protected:
    ConfiguredGrantConfig config(RrcCfgGrantCfg_t record)
    {
        ConfiguredGrantConfig element{};
        EXPECT_EQ(rrcComposeConfiguredGrant_Configsetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    CG_UCI_OnPUSCH uci(RrcCgUciOnPusch_t record)
    {
        CG_UCI_OnPUSCH element{};
        EXPECT_EQ(rrcComposeCG_UCI_OnPUSCHSetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    // The grant's JSON, in a configuration that has nothing else beside what it must have.
    void expectGrant(struct rrcCfgdUlGrant_s grant, const std::string& json)
    {
        SCOPED_TRACE(json);
        ConfiguredGrantConfig element{};
        element.nrofHARQ_Processes = 1;
        element.m.rrc_ConfiguredUplinkGrantPresent = 1;
        EXPECT_EQ(rrcComposeConfiguredUplinkGrant(&element.rrc_ConfiguredUplinkGrant, &grant), VOS_OK);
        expectDecoded("ConfiguredGrantConfig", asn1PE_ConfiguredGrantConfig, element,
                      R"({"cg-DMRS-Configuration":{},"resourceAllocation":"resourceAllocationType0",)"
                      R"("powerControlLoopToUse":"n0","p0-PUSCH-Alpha":0,"nrofHARQ-Processes":1,"repK":"n1",)"
                      R"("periodicity":"sym2","rrc-ConfiguredUplinkGrant":)" +
                          json + "}");
    }
};

// Member after member: timeDomainOffset, timeDomainAllocation, freqDomainAllocation, antennaPort,
// precodingAndNumberOfLayers, mcsAndTBS, pathLossRefIdx, bitMask, dmrsSeqInit, srsResourceInd, freqHoppingOffset.
constexpr struct rrcCfgdUlGrant_s fullGrant = {5119, 15, 0x3FFFF, 31, 63, 30, 3, 7, 1, 14, 274};

RrcCfgGrantCfg_t filledRecord(UINT16 bitMask)
{
    RrcCfgGrantCfg_t record{};
    record.resourceAlloction = 1;
    record.powerControlLoopToUse = 1;
    record.p0PuschAlpha = 29;
    record.nrofHarqProcess = 16;
    record.repK = 3;
    record.periodcity = 44;
    record.bitMask = bitMask;
    record.freqHopping = 1;
    record.mcsTable = 1;
    record.mcaTableTransformPrecoder = 0;
    record.uciOnPusch.presence = RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE;
    record.transformPrecoder = 1;
    record.repKRv = 2;
    record.cfgdGrantTimer = 64;
    record.rrcCfgdUlGrant = fullGrant;
    record.rrcCfgdUlGrant.bitMask = 0;
    return record;
}

RrcBetaOffsets_t firstAck(UINT8 offset)
{
    return {RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE, offset, 0, 0, 0, 0, 0, 0};
}

std::string firstAckJson(unsigned offset)
{
    return "{\"betaOffsetACK-Index1\":" + std::to_string(offset) + "}";
}

} // namespace

TEST_F(configuredGrant, WrapperChoosesSetup)
{
    RrcCfgGrantCfg_t record = filledRecord(0);
    BWP_UplinkDedicated_configuredGrantConfig element{};
    EXPECT_EQ(rrcComposeBWPConfiguredGrant_Config(&context, &element, &record), VOS_OK);
    ASSERT_EQ(element.t, static_cast<OSUINT32>(T_BWP_UplinkDedicated_configuredGrantConfig_setup));
    EXPECT_EQ(element.u.setup->p0_PUSCH_Alpha, 29);

    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeBWPConfiguredGrant_Config(&context, &element, &record), VOS_OK);
    EXPECT_EQ(element.t, 0U);
    EXPECT_EQ(printed(), "");
}

TEST_F(configuredGrant, WithoutOptionsItHasTheMandatoryMembersAndAnEmptyDmrs)
{
    expectDecoded("ConfiguredGrantConfig", asn1PE_ConfiguredGrantConfig, config(filledRecord(0)),
                  R"({"cg-DMRS-Configuration":{},"resourceAllocation":"resourceAllocationType1",)"
                  R"("powerControlLoopToUse":"n1","p0-PUSCH-Alpha":29,"nrofHARQ-Processes":16,"repK":"n8",)"
                  R"("periodicity":"sym2560x12"})");
}

TEST_F(configuredGrant, Options)
{
    for (const unsigned mask : masks(9))
    {
        RrcCfgGrantCfg_t record = filledRecord(static_cast<UINT16>(mask));
        record.cgDmrsCfg.bitMask = RRC_DMRS_UL_CFG_ADDI_POS_PRESENCE;
        record.cgDmrsCfg.dmrsAddiPos = 1;
        const std::string json =
            object({mask & 0x001 ? R"("frequencyHopping":"interSlot")" : "",
                    R"("cg-DMRS-Configuration":{"dmrs-AdditionalPosition":"pos1"})",
                    mask & 0x002 ? R"("mcs-Table":"qam64LowSE")" : "",
                    mask & 0x004 ? R"("mcs-TableTransformPrecoder":"qam256")" : "",
                    mask & 0x008 ? R"("uci-OnPUSCH":{"setup":{"semiStatic":{}}})" : "",
                    R"("resourceAllocation":"resourceAllocationType1")", mask & 0x010 ? R"("rbg-Size":"config2")" : "",
                    R"("powerControlLoopToUse":"n1","p0-PUSCH-Alpha":29)",
                    mask & 0x020 ? R"("transformPrecoder":"disabled")" : "", R"("nrofHARQ-Processes":16,"repK":"n8")",
                    mask & 0x040 ? R"("repK-RV":"s3-0000")" : "", R"("periodicity":"sym2560x12")",
                    mask & 0x080 ? R"("configuredGrantTimer":64)" : "",
                    mask & 0x100 ? R"("rrc-ConfiguredUplinkGrant":{"timeDomainOffset":5119,"timeDomainAllocation":15,)"
                                   R"("frequencyDomainAllocation":"111111111111111111","antennaPort":31,)"
                                   R"("precodingAndNumberOfLayers":63,"mcsAndTBS":30,"pathlossReferenceIndex":3})"
                                 : ""});
        SCOPED_TRACE(json);
        expectDecoded("ConfiguredGrantConfig", asn1PE_ConfiguredGrantConfig, config(record), json);
    }
}

TEST_F(configuredGrant, GrantOptions)
{
    for (const unsigned mask : masks(3))
    {
        struct rrcCfgdUlGrant_s grant = fullGrant;
        grant.bitMask = static_cast<UINT8>(mask);
        expectGrant(grant,
                    object({R"("timeDomainOffset":5119,"timeDomainAllocation":15)",
                            R"("frequencyDomainAllocation":"111111111111111111","antennaPort":31)",
                            mask & 1 ? R"("dmrs-SeqInitialization":1)" : "", R"("precodingAndNumberOfLayers":63)",
                            mask & 2 ? R"("srs-ResourceIndicator":14)" : "", R"("mcsAndTBS":30)",
                            mask & 4 ? R"("frequencyHoppingOffset":274)" : "", R"("pathlossReferenceIndex":3)"}));
    }
}

TEST_F(configuredGrant, FrequencyAllocationHasThe18LowBits)
{
    for (const UINT32 value : {0U, 1U, 0x20000U, 0x2AAAAU, 0x3FFFFU, 0xFFFC0001U, 0xFFFFFFFFU})
    {
        struct rrcCfgdUlGrant_s grant = fullGrant;
        grant.bitMask = 0;
        grant.freqDomainAllocation = value;
        expectGrant(grant, R"({"timeDomainOffset":5119,"timeDomainAllocation":15,"frequencyDomainAllocation":)" +
                               bits(value, 18) +
                               R"(,"antennaPort":31,"precodingAndNumberOfLayers":63,"mcsAndTBS":30,)"
                               R"("pathlossReferenceIndex":3})");
    }
}

TEST_F(configuredGrant, DynamicBetaOffsetsAreAsManyAsCounted)
{
    for (const unsigned count : {0U, 1U, 4U, 5U, 255U})
    {
        RrcCgUciOnPusch_t record{};
        record.presence = RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE;
        record.betaOffset.dynamic.num = static_cast<UINT8>(count);
        for (UINT8 i = 0; i < 4; ++i)
        {
            record.betaOffset.dynamic.betaOffsets[i] = firstAck(static_cast<UINT8>(28 + i));
        }
        const CG_UCI_OnPUSCH element = uci(record);
        if (count == 1 || count == 4)
        {
            expectDecoded("CG-UCI-OnPUSCH", asn1PE_CG_UCI_OnPUSCH, element,
                          "{\"dynamic\":" + array(count, [](unsigned i) { return firstAckJson(28 + i); }) + "}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_CG_UCI_OnPUSCH, element),
                  "CG-UCI-OnPUSCH.dynamic: " + std::to_string(count) + " elements, not 1..4");
    }
}

TEST_F(configuredGrant, SemiStaticBetaOffsetsWinOverDynamic)
{
    for (const unsigned presence : {2U, 3U, 0xFEU})
    {
        RrcCgUciOnPusch_t record{};
        record.presence = static_cast<UINT8>(presence);
        record.betaOffset.semiStatic = {0x7F, 0, 1, 2, 3, 4, 30, 31};
        expectDecoded("CG-UCI-OnPUSCH", asn1PE_CG_UCI_OnPUSCH, uci(record),
                      R"({"semiStatic":{"betaOffsetACK-Index1":0,"betaOffsetACK-Index2":1,"betaOffsetACK-Index3":2,)"
                      R"("betaOffsetCSI-Part1-Index1":3,"betaOffsetCSI-Part1-Index2":4,)"
                      R"("betaOffsetCSI-Part2-Index1":30,"betaOffsetCSI-Part2-Index2":31}})");
    }
}

TEST_F(configuredGrant, BetaOffsetsWithoutAlternativeAreLeftToTheEncoder)
{
    RrcCfgGrantCfg_t record = filledRecord(RRC_CFGD_GRANT_CFG_UCI_ON_PUSCH_PRESENCE);
    record.uciOnPusch.presence = 0xFC;
    EXPECT_EQ(encode(asn1PE_ConfiguredGrantConfig, config(record)),
              "ConfiguredGrantConfig.uci-OnPUSCH.setup: tag 0 is not in 1..2");
}

TEST_F(configuredGrant, BetaOffsetsWithoutHeap)
{
    RrcCfgGrantCfg_t record = filledRecord(RRC_CFGD_GRANT_CFG_UCI_ON_PUSCH_PRESENCE);
    record.uciOnPusch.presence = RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE;
    record.uciOnPusch.betaOffset.dynamic.num = 3;
    const std::string refused[] = {
        "ConfiguredGrantConfig.uci-OnPUSCH: tag 0 is not in 1..2",
        "ConfiguredGrantConfig.uci-OnPUSCH.setup: tag 0 is not in 1..2",
        "ConfiguredGrantConfig.uci-OnPUSCH.setup.dynamic: 0 elements, not 1..4",
    };
    for (unsigned successes = 0; successes < 5; ++successes)
    {
        ConfiguredGrantConfig element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeConfiguredGrant_Configsetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), successes < 2 ? "" : "pNode Or PAsnCxt is NULL\r\n");
        EXPECT_EQ(element.repK, 3U) << "the members behind are filled";
        if (successes < 3)
        {
            EXPECT_EQ(encode(asn1PE_ConfiguredGrantConfig, element), refused[successes]);
            continue;
        }
        expectDecoded("CG-UCI-OnPUSCH", asn1PE_CG_UCI_OnPUSCH, *element.uci_OnPUSCH.u.setup,
                      "{\"dynamic\":" + array(successes - 2, [](unsigned) { return "{}"; }) + "}");
    }

    record.uciOnPusch.presence = RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE;
    ConfiguredGrantConfig element{};
    {
        const HeapFault fault(1);
        EXPECT_EQ(rrcComposeConfiguredGrant_Configsetup(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(encode(asn1PE_ConfiguredGrantConfig, element), refused[1]);
}

TEST_F(configuredGrant, DmrsWithoutHeapIsNotNoticedBeforeTheEncoder)
{
    RrcCfgGrantCfg_t record = filledRecord(0);
    record.cgDmrsCfg.bitMask = RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE;
    ConfiguredGrantConfig element{};
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeConfiguredGrant_Configsetup(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(encode(asn1PE_ConfiguredGrantConfig, element),
              "ConfiguredGrantConfig.cg-DMRS-Configuration.phaseTrackingRS: tag 0 is not in 1..2");
}

TEST_F(configuredGrant, RecordOrder)
{
    using Cfg = RrcCfgGrantCfg_t;
    static_assert(
        rising({offsetof(Cfg, cgDmrsCfg), offsetof(Cfg, resourceAlloction), offsetof(Cfg, powerControlLoopToUse),
                offsetof(Cfg, p0PuschAlpha), offsetof(Cfg, nrofHarqProcess), offsetof(Cfg, repK),
                offsetof(Cfg, periodcity), offsetof(Cfg, bitMask), offsetof(Cfg, freqHopping), offsetof(Cfg, mcsTable),
                offsetof(Cfg, mcaTableTransformPrecoder), offsetof(Cfg, uciOnPusch), offsetof(Cfg, rbgSize),
                offsetof(Cfg, transformPrecoder), offsetof(Cfg, repKRv), offsetof(Cfg, cfgdGrantTimer),
                offsetof(Cfg, rrcCfgdUlGrant)}));
    using Uci = RrcCgUciOnPusch_t;
    static_assert(rising({offsetof(Uci, presence), offsetof(Uci, betaOffset)}));
    using Dynamic = RrcDynamicBetaOffsets_t;
    static_assert(rising({offsetof(Dynamic, num), offsetof(Dynamic, betaOffsets)}));
    using Grant = struct rrcCfgdUlGrant_s;
    static_assert(rising({offsetof(Grant, timeDomainOffset), offsetof(Grant, timeDomainAllocation),
                          offsetof(Grant, freqDomainAllocation), offsetof(Grant, antennaPort),
                          offsetof(Grant, precodingAndNumberOfLayers), offsetof(Grant, mcsAndTBS),
                          offsetof(Grant, pathLossRefIdx), offsetof(Grant, bitMask), offsetof(Grant, dmrsSeqInit),
                          offsetof(Grant, srsResourceInd), offsetof(Grant, freqHoppingOffset)}));
}
