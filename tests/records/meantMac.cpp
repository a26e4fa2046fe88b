#include "records.h"

namespace records
{

namespace
{

// An offset of the first 11 alternatives is cut to 8 bits; another period makes a choice that the encoder refuses.
std::string longCycle(const RrcLongCycleStartOffset_t& record)
{
    constexpr std::string_view alternatives[] = {"ms10",   "ms20",   "ms32",   "ms40",   "ms60",   "ms64",   "ms70",
                                                 "ms80",   "ms128",  "ms160",  "ms256",  "ms320",  "ms512",  "ms640",
                                                 "ms1024", "ms1280", "ms2048", "ms2560", "ms5120", "ms10240"};
    if (record.period == 0 || record.period > std::size(alternatives))
    {
        return null();
    }
    return choice(alternatives[record.period - 1], record.period <= 11 ? record.offset & 0xFF : record.offset);
}

std::string drx(const RrcDrxCfg_t& record)
{
    Members members;
    members.add("drx-onDurationTimer", record.bitMask & RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE
                                           ? choice("milliSeconds", record.drxOnDurationTimer.milliSeconds)
                                           : choice("subMilliSeconds", record.drxOnDurationTimer.subMilliSeconds));
    members.add("drx-InactivityTimer", record.drxInactivityTimer);
    members.add("drx-HARQ-RTT-TimerDL", record.drxHarqRttTimerDl);
    members.add("drx-HARQ-RTT-TimerUL", record.drxHarqRttTimerUl);
    members.add("drx-RetransmissionTimerDL", record.drxRetransTimerDl);
    members.add("drx-RetransmissionTimerUL", record.drxRetransTimerUl);
    members.add("drx-LongCycleStartOffset", longCycle(record.drxLongCycleStartOffset));
    if (record.bitMask & RRC_DRX_CFG_SHORT_DRX_PRESENCE)
    {
        Members shortDrx;
        shortDrx.add("drx-ShortCycle", record.shortDrx.period);
        shortDrx.add("drx-ShortCycleTimer", record.shortDrx.offset);
        members.add("shortDRX", shortDrx.json());
    }
    members.add("drx-SlotOffset", record.drxSlotOffset);
    return members.json();
}

std::string added(const RrcSrAddMod_t& record)
{
    Members members;
    members.add("schedulingRequestId", record.srId);
    members.addIf(record.bitMask & RRC_SR_PROHIBITTIMER_PRESENCE, "sr-ProhibitTimer", record.srProhibitTimer);
    members.add("sr-TransMax", record.srTransMax);
    return members.json();
}

std::string schedulingRequest(const RrcSRCfg_t& record)
{
    Members members;
    if (record.numSrAddMod != 0)
    {
        members.add("schedulingRequestToAddModList",
                    list(record.numSrAddMod, record.srASddMod, [&](const auto& entry) { return added(entry); }));
    }
    if (record.numSrRel != 0)
    {
        members.add("schedulingRequestToReleaseList", numbers(record.numSrRel, record.srId));
    }
    return members.json();
}

std::string bsr(const RrcBsrCfg_t& record)
{
    Members members;
    members.add("periodicBSR-Timer", record.periodicBsrTimer);
    members.add("retxBSR-Timer", record.retxBsrTimer);
    members.addIf(record.bitMask & RRC_BSR_SRDELAY_PRESENCE, "logicalChannelSR-DelayTimer", record.lcSRDelayTimer);
    return members.json();
}

std::string added(const RrcTag_t& record)
{
    Members members;
    members.add("tag-Id", record.tagId);
    members.add("timeAlignmentTimer", record.taTimer);
    return members.json();
}

std::string tag(const RrcTagCfg_t& record)
{
    Members members;
    if (record.numTagRel != 0)
    {
        members.add("tag-ToReleaseList", numbers(record.numTagRel, record.tagId));
    }
    if (record.numTagAddMod != 0)
    {
        members.add("tag-ToAddModList",
                    list(record.numTagAddMod, record.tag, [&](const auto& entry) { return added(entry); }));
    }
    return members.json();
}

std::string phr(const RrcPhrCfg_t& record)
{
    Members members;
    members.add("phr-PeriodicTimer", record.phrPeriodTimer);
    members.add("phr-ProhibitTimer", record.phrProhibitTimer);
    members.add("phr-Tx-PowerFactorChange", record.phrTxPowerFactorChange);
    members.add("multiplePHR", boolean(record.multiplePHR));
    members.add("dummy", boolean(record.dummy));
    members.add("phr-Type2OtherCell", boolean(record.phrType2OtherCell));
    members.add("phr-ModeOtherCG", record.phrModeOtherCG);
    return members.json();
}

} // namespace

// csi-Mask and dataInactivityTimer stand in an extension group that is never sent.
std::string meant(const RrcMacCellGrpCfg_t& record)
{
    Members members;
    if (record.bitMask & RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE)
    {
        members.add("drx-Config", setup(drx(record.drxCfg)));
    }
    if (record.bitMask & RRC_MAC_CELL_GRP_CFG_SR_PRESENCE)
    {
        members.add("schedulingRequestConfig", schedulingRequest(record.srCfg));
    }
    if (record.bitMask & RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE)
    {
        members.add("bsr-Config", bsr(record.bsrCfg));
    }
    if (record.bitMask & RRC_MAC_CELL_GRP_CFG_TAG_PRESENCE)
    {
        members.add("tag-Config", tag(record.tagCfg));
    }
    if (record.bitMask & RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE)
    {
        members.add("phr-Config", setup(phr(record.phrCfg)));
    }
    members.add("skipUplinkTxDynamic", boolean(record.skipUpTxDynamic));
    return members.json();
}

// mcs-C-RNTI and p-UE-FR1 stand in an extension group that is never sent.
std::string meant(const RrcPhyCellGrpCfg_t& record)
{
    const unsigned mask = record.bitMask;
    Members members;
    members.addIf(mask & RRC_PHY_CGC_HARQ_PUCCH_PRESENCE, "harq-ACK-SpatialBundlingPUCCH", record.harqAckBundlingPucch);
    members.addIf(mask & RRC_PHY_CGC_HARQ_PUSCH_PRESENCE, "harq-ACK-SpatialBundlingPUSCH", record.harqAckBundlingPusch);
    if (mask & RRC_PHY_CGC_NR_PMAX_PRESENCE)
    {
        // The octet of a signed number.
        members.add("p-NR-FR1", static_cast<INT8>(record.pNrFR1Pmax));
    }
    members.add("pdsch-HARQ-ACK-Codebook", record.pdschHarqAckCodeBook);
    members.addIf(mask & RRC_PHY_CGC_TPC_SRS_RNTI_PRESENCE, "tpc-SRS-RNTI", record.tpcSrsRnti);
    members.addIf(mask & RRC_PHY_CGC_TPC_PUCCH_RNTI_PRESENCE, "tpc-PUCCH-RNTI", record.tpcPucchRnti);
    members.addIf(mask & RRC_PHY_CGC_TPC_PUSCH_RNTI_PRESENCE, "tpc-PUSCH-RNTI", record.tpcPuschRnti);
    members.addIf(mask & RRC_PHY_CGC_SP_CSI_RNTI_PRESENCE, "sp-CSI-RNTI", record.spCsiRnti);
    if (mask & RRC_PHY_CGC_CS_RNTI_PRESENCE)
    {
        members.add("cs-RNTI", setup(record.csRnti));
    }
    return members.json();
}

} // namespace records
