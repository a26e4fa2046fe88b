#include "records.h"

namespace records
{

namespace
{

using records::draw; // beside those here

void draw(Chance& chance, RrcNzpCsiRsResource_t& record)
{
    rrcInit(&record);
    chance.number(record.nzpCsiRsResourceId, 0, 191);
    draw(chance, record.resourceMapping);
    chance.number(record.powerControlOffset, -8, 15);
    chance.number(record.scramblingId, 0, 1023);
    chance.enumerationIf(record.bitMask, RRC_NZP_CSI_RS_RESOURCE_POWER_CONTROL_OFFSET_SS_PRESENT,
                         record.powerControlOffsetSS, 3);
    if (chance.flag(record.bitMask, RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT))
    {
        draw(chance, record.periodicityAndOffset);
    }
    chance.numberIf(record.bitMask, RRC_NZP_CSI_RS_RESOURCE_QCI_INFO_PERIOD_CSI_RS_PRESENT, record.qclInfoPeriodicCsiRs,
                    0, 127);
}

void draw(Chance& chance, RrcNzpCsiRsResourceSet_t& record)
{
    rrcInit(&record);
    chance.number(record.nzpCsiResourceSetId, 0, 63);
    const unsigned resources = chance.count(record.numNzpCsiRsRes, 1, RRC_MAX_NROF_NZP_CSI_RS_RESOURCES_PER_SET, 8);
    chance.numbers(record.numNzpCsiRsResources, resources, 0, 191);
    chance.above(record.numNzpCsiRsRes, 8);
    chance.enumerationIf(record.bitMask, RRC_NZP_CSI_RS_RESOUECE_SET_REPETITION_PRESENCE, record.repetition, 1);
    chance.numberIf(record.bitMask, RRC_NZP_CSI_RS_RESOUECE_SET_APERIODIC_OFFSET_PRESENCE,
                    record.aperidicTriggeringOffset, 0, 6);
    chance.enumerationIf(record.bitMask, RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE, record.trsInfo, 0);
}

void draw(Chance& chance, RrcCsiImResource_t& record)
{
    rrcInit(&record);
    chance.number(record.csiImResourceId, 0, 31);
    if (chance.flag(record.bitMask, RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE))
    {
        if (chance.alternative(record.presence, {RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN0_PRESENCE,
                                                 RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE}) == 0)
        {
            chance.enumeration(record.csiImResourceElementPattern.pattern0.subCarrierLocationP0, 5);
            chance.number(record.csiImResourceElementPattern.pattern0.symbolLocationP0, 0, 12);
        }
        else
        {
            chance.enumeration(record.csiImResourceElementPattern.pattern1.subCarrierLocationP1, 2);
            chance.number(record.csiImResourceElementPattern.pattern1.symbolLocationP1, 0, 13);
        }
    }
    if (chance.flag(record.bitMask, RRC_CSI_IM_RESOURCE_FREQ_BAND_PRESENCE))
    {
        draw(chance, record.freqBand);
    }
    if (chance.flag(record.bitMask, RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE))
    {
        draw(chance, record.periodicityAndOffset);
    }
}

void draw(Chance& chance, RrcCsiImResourceSet_t& record)
{
    rrcInit(&record);
    chance.number(record.csiImResourceSetId, 0, 63);
    const unsigned resources = chance.count(record.numCsiImResources, 1, RRC_MAX_NROF_CSI_IM_RESOURCES_PER_SET, 5);
    chance.numbers(record.CsiImResourceId, resources, 0, 31);
}

void draw(Chance& chance, RrcCsiSsbResourceSet_t& record)
{
    rrcInit(&record);
    chance.number(record.csiSsbResourceSetId, 0, 63);
    const unsigned blocks = chance.count(record.numSsbResourceSet, 1, RRC_MAX_NROF_CSI_SSB_RESOURCE_PER_SET, 6);
    chance.numbers(record.csiSsbIdx, blocks, 0, 63);
}

void draw(Chance& chance, RrcCsiResourceCfg_t& record)
{
    rrcInit(&record);
    chance.number(record.csiResourceCfgId, 0, 111);
    chance.number(record.bwpId, 0, 4);
    chance.enumeration(record.resourceType, 2);
    if (chance.alternative(record.presence, {RRC_CSI_RESOURCE_CFG_NZP_CSI_RS_SSB_PRESENCE,
                                             RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE}) == 0)
    {
        nzpCsiRsResourceSetList_s& sets = record.csiRsResourceSetList.nzpCsiRsResourceSetList;
        const unsigned nzp =
            chance.optionalCount(sets.numNzpCsiRsResourceSet, RRC_MAX_NROF_NZP_CSI_RS_RESOURCE_SETS_PER_CFG, 6);
        chance.numbers(sets.nzpCsiRsResourceSetId, nzp, 0, 63);
        const unsigned ssb =
            chance.optionalCount(sets.numCsiSsbResourceSet, RRC_MAX_NROF_CSI_SSB_RESOURCE_SETS_PER_CFG, 6);
        chance.numbers(sets.csiSsbResourceSetId, ssb, 0, 63);
    }
    else
    {
        csiImResourceSetList_s& sets = record.csiRsResourceSetList.csiImResourceSetList;
        const unsigned im = chance.count(sets.numCsiImResourceSet, 1, RRC_MAX_NROF_CSI_IM_RESOURCE_SETS_PER_CFG, 6);
        chance.numbers(sets.csiImResourceSetId, im, 0, 63);
    }
}

void draw(Chance& chance, RrcCsiAssociatedReportCfgInfo_t& record)
{
    chance.number(record.reportCfgId, 0, 47);
    if (chance.alternative(record.prsence, {RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_NZP_CSI_RS_PRESENCE,
                                            RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE}) == 0)
    {
        nzpCsiRs_s& resources = record.resourceForChannel.nzpCsiRs;
        chance.number(resources.resourceSet, 1, 16);
        const unsigned states = chance.optionalCount(resources.numQciInfo, RRC_MAX_NROF_AP_CSI_RS_RESOURCES_PER_SET, 7);
        chance.numbers(resources.qciInfo, states, 0, 127);
    }
    else
    {
        chance.number(record.resourceForChannel.csiSsbResourceSet.csiImResourceSet, 1, 1);
    }
}

void draw(Chance& chance, RrcCsiAperiodicTriggerStateList_t& record)
{
    rrcInit(&record);
    const unsigned states = chance.count(record.numState, 1, RRC_MAX_NROF_CSI_APERIODIC_TRIGGERS, 15);
    for (unsigned i = 0; i < states; ++i)
    {
        RrcCsiAperiodicTriggerState_t& state = record.state[i];
        rrcInit(&state);
        const unsigned reports = chance.count(state.numCfgInfo, 1, RRC_MAX_NROF_REPORT_CFG_PER_APERIODIC_TRIGGERS, 10);
        for (unsigned j = 0; j < reports; ++j)
        {
            draw(chance, state.info[j]);
        }
    }
}

void draw(Chance& chance, RrcCsiSemiPersistentOnPuschTriggerStateList_t& record)
{
    rrcInit(&record);
    const unsigned states = chance.count(record.numTriggeState, 1, RRC_MAX_NROF_SEMI_PERSISTENT_PUSCH_TRIGGERS, 7);
    chance.numbers(record.csiReportCfgId, states, 0, 47);
}

template <typename Entry, std::size_t N>
void drawEach(Chance& chance, Entry (&entries)[N], unsigned count)
{
    for (unsigned i = 0; i < count; ++i)
    {
        draw(chance, entries[i]);
    }
}

} // namespace

void draw(Chance& chance, RrcCsiMeasCfg_t& record)
{
    rrcInit(&record);
    const auto nzpResources = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numNzpCsiRsResourceAddMod, RRC_MAX_NROF_NZP_CSI_RS_RESOURCES, 65);
        drawEach(chance, record.NzpCsiRsResourceAddMod, added);
    };
    const auto nzpResourcesReleased = [&]
    {
        const unsigned released =
            chance.optionalCount(record.numNzpCsiRsResourceDel, RRC_MAX_NROF_NZP_CSI_RS_RESOURCES, 8);
        chance.numbers(record.nzpCsiRsResourceId, released, 0, 191);
    };
    const auto nzpSets = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numNzpCsiRsResourceSetAddMod, RRC_MAX_NROF_NZP_CSI_RS_RESOURCE_SETS, 24);
        drawEach(chance, record.NzpCsiRsResourceSetAddMod, added);
        const unsigned released =
            chance.optionalCount(record.numNzpCsiRsResourceSetRel, RRC_MAX_NROF_NZP_CSI_RS_RESOURCE_SETS, 6);
        chance.numbers(record.nzpCsiRsResourceSetId, released, 0, 63);
    };
    const auto imResources = [&]
    {
        const unsigned added = chance.optionalCount(record.numCsiImResourceAddMod, RRC_MAX_NROF_CSI_IM_RESOURCES, 9);
        drawEach(chance, record.csiImResourceAddMod, added);
        const unsigned released = chance.optionalCount(record.numCsiImResourceRel, RRC_MAX_NROF_CSI_IM_RESOURCES, 5);
        chance.numbers(record.csiImResourceId, released, 0, 31);
    };
    const auto imSets = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numCsiImResourceSetAddMod, RRC_MAX_NROF_CSI_IM_RESOURCE_SETS, 15);
        drawEach(chance, record.csiImResourceSetAddMod, added);
        const unsigned released =
            chance.optionalCount(record.numCsiImResourceSetRel, RRC_MAX_NROF_CSI_IM_RESOURCE_SETS, 6);
        chance.numbers(record.csiImResourceSetId, released, 0, 63);
    };
    const auto ssbSets = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numCsiSsbResourceSetAddMod, RRC_MAX_NROF_CSI_SSB_RESOURCE_SETS, 19);
        drawEach(chance, record.csiSsbResourceSet, added);
        const unsigned released =
            chance.optionalCount(record.numCsiSsbResourceSetRel, RRC_MAX_NROF_CSI_SSB_RESOURCE_SETS, 6);
        chance.numbers(record.csiSsbResourceSetId, released, 0, 63);
    };
    const auto resourceConfigurations = [&]
    {
        const unsigned added = chance.optionalCount(record.numCsiResourceCfgAddMod, RRC_MAX_NROF_CSI_RESOURCE_CFGS, 16);
        drawEach(chance, record.csiResourceCfg, added);
        const unsigned released = chance.optionalCount(record.numCsiResourceCfgRel, RRC_MAX_NROF_CSI_RESOURCE_CFGS, 7);
        chance.numbers(record.csiResourceCfgId, released, 0, 111);
    };
    const auto reports = [&]
    {
        const unsigned added = chance.optionalCount(record.numCsiReportCfgAddMod, RRC_MAX_NROF_CSI_REPORT_CFGS, 40);
        drawEach(chance, record.csiReportCfg, added);
        const unsigned released = chance.optionalCount(record.numCsiReportCfgRel, RRC_MAX_NROF_CSI_REPORT_CFGS, 6);
        chance.numbers(record.csiReportCfgId, released, 0, 47);
    };
    const auto aperiodicTriggers = [&]
    {
        if (chance.flag(record.bitMask, RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE))
        {
            draw(chance, record.aperiodicTriggerStateList);
        }
    };
    const auto semiPersistentTriggers = [&]
    {
        if (chance.flag(record.bitMask, RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE))
        {
            draw(chance, record.semiPersistentOnPuschTriggerStateList);
        }
    };
    chance.inAnyOrder(nzpResources, nzpResourcesReleased, nzpSets, imResources, imSets, ssbSets, resourceConfigurations,
                      reports, aperiodicTriggers, semiPersistentTriggers);
    chance.numberIf(record.bitMask, RRC_CSI_MEAS_CFG_REPORT_TRIGGER_SIZE_PRESENCE, record.reportTriggerSize, 0, 6);
}

} // namespace records
