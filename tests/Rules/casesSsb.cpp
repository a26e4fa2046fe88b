#include "ruleCases.h"

namespace test
{

namespace
{

#define AT_FREQUENCY AT_COMMON_DL "frequencyInfoDL."

// In an unpaired band below 3 GHz, whose raster has steps of 5 kHz.
std::string inBand(const std::string& band, int ssb)
{
    return AT_FREQUENCY "frequencyBandList[0] = " + band + "\n" +
           AT_FREQUENCY "absoluteFrequencySSB = " + std::to_string(ssb) + "\n" +
           AT_FREQUENCY "absoluteFrequencyPointA = " + std::to_string(ssb - 9762) + "\n";
}

constexpr const char* four =
    AT_COMMON "ssb-PositionsInBurst = absent\n" AT_COMMON "ssb-PositionsInBurst.shortBitmap = C0\n";

} // namespace

void ssbCases(CaseTable& table)
{
#define AT_BITMAP AT_COMMON "ssb-PositionsInBurst"
#define AT_SSB_SET AT_CSI "csi-SSB-ResourceSetToAddModList[0]."
#define AT_SSB AT_COMMON_DL "frequencyInfoDL.absoluteFrequencySSB"
    table.rule("ssb-bitmap")
        .bad(AT_BITMAP)
        .saying("in band n78 at 3499 MHz a half frame has 8 blocks")
        .good()
        .fires(AT_BITMAP, AT_BITMAP ".mediumBitmap = 00")
        .saying("no block")
        .silent(AS_FR2)
        .fires(AT_BITMAP, AS_FR2 AT_BITMAP " = absent\n" AT_BITMAP ".mediumBitmap = C0")
        .saying("64 blocks")
        .silent(AT_SYNC_ABSENT)
        .with(inDelta)
        // Between 1.88 and 2.4 GHz releases differ for case C.
        .silent(inBand("40", 469950) + four)
        .silent(inBand("40", 469950))
        .fires(AT_BITMAP, inBand("41", 519870) + four)
        .saying("in band n41 at 2599 MHz a half frame has 8 blocks")
        .silent(inBand("41", 519870))
        .fires(AT_BITMAP, inBand("41", 519870) + AT_COMMON "ssbSubcarrierSpacing = kHz15\n" AT_INITIAL_PDCCH
                                                           "controlResourceSetZero = absent")
        .saying("a half frame has 4 blocks");

    table.rule("ssb-cond")
        .bad(AT_COMMON "ssbSubcarrierSpacing")
        .good()
        .fires(AT_BITMAP, AT_BITMAP " = absent")
        .saying("absoluteFrequencySSB is present")
        .undecided(AT_COMMON "ssbSubcarrierSpacing = absent")
        .with(inDelta)
        .fires(AT_SCELL_COMMON "ssb-PositionsInBurst",
               ADD_SCELL SSBLESS_SCELL AT_SCELL_COMMON "ssb-PositionsInBurst.mediumBitmap = C0")
        .saying("absoluteFrequencySSB is absent")
        .silent(ADD_SCELL SSBLESS_SCELL);

    table.rule("ssb-scs")
        .bad(AT_COMMON "ssbSubcarrierSpacing")
        .saying("kHz60, but in FR1 it is 15 or 30 kHz")
        .good()
        .fires(AT_COMMON "ssbSubcarrierSpacing", AT_COMMON "ssbSubcarrierSpacing = kHz15")
        .as(RRC_RULE_WARNING)
        .saying("band n78 has blocks of 30 kHz")
        .silent(AS_FR2)
        .fires(AT_COMMON "ssbSubcarrierSpacing", AS_FR2 AT_COMMON "ssbSubcarrierSpacing = kHz60")
        .saying("in FR2 it is 120 or 240 kHz");

    table.rule("ssb-index-transmitted")
        .bad(AT_STATE("1") "qcl-Type1.referenceSignal.ssb")
        .saying("8, but ssb-PositionsInBurst has 8 bits")
        .good()
        .fires(AT_STATE("1") "qcl-Type1.referenceSignal.ssb", AT_STATE("1") "qcl-Type1.referenceSignal.ssb = 7")
        .as(RRC_RULE_WARNING)
        .saying("the block is not sent")
        .fires(AT_SYNC "rach-ConfigDedicated.uplink.cfra.resources.ssb.ssb-ResourceList[1].ssb",
               AT_SYNC "rach-ConfigDedicated.uplink.cfra.resources.ssb.ssb-ResourceList[1].ssb = 9")
        .fires(AT_CELL "initialDownlinkBWP.radioLinkMonitoringConfig.setup.failureDetectionResourcesToAddModList[0]."
                       "detectionResource.ssb-Index",
               AT_CELL "initialDownlinkBWP.radioLinkMonitoringConfig.setup.failureDetectionResourcesToAddModList[0]."
                       "detectionResource.ssb-Index = 2")
        .as(RRC_RULE_WARNING)
        .fires(AT_PUSCH "pusch-PowerControl.pathlossReferenceRSToAddModList[0].referenceSignal.ssb-Index",
               AT_PUSCH "pusch-PowerControl.pathlossReferenceRSToAddModList[0].referenceSignal.ssb-Index = 8")
        .fires(AT_SSB_SET "csi-SSB-ResourceList[1]",
               AT_SSB_SET "csi-SSB-ResourceSetId = 0\n" AT_SSB_SET "csi-SSB-ResourceList[0] = 0\n" AT_SSB_SET
                          "csi-SSB-ResourceList[1] = 8")
        .fires(AT_PUCCH "pucch-PowerControl.pathlossReferenceRSs[0].referenceSignal.ssb-Index",
               AT_PUCCH "pucch-PowerControl.pathlossReferenceRSs[0].referenceSignal.ssb-Index = 8")
        .fires(AT_PUCCH "spatialRelationInfoToAddModList[0].referenceSignal.ssb-Index",
               std::string(rrcRuleById("pucch-spatial-refs")->good) +
                   "\n" AT_PUCCH "spatialRelationInfoToAddModList[0].referenceSignal.ssb-Index = 2")
        .as(RRC_RULE_WARNING)
        .fires(AT_SRS "srs-ResourceSetToAddModList[0].pathlossReferenceRS.ssb-Index",
               AT_SRS "srs-ResourceSetToAddModList[0].pathlossReferenceRS.ssb-Index = 8")
        .fires(AT_SRS "srs-ResourceToAddModList[0].spatialRelationInfo.referenceSignal.ssb-Index",
               AT_SRS "srs-ResourceToAddModList[0].spatialRelationInfo.referenceSignal.ssb-Index = 8")
        .fires(AT_UL "bwp-Dedicated.beamFailureRecoveryConfig.setup.candidateBeamRSList[0].ssb.ssb",
               WITH_RANDOM_ACCESS AT_UL
               "bwp-Dedicated.beamFailureRecoveryConfig.setup.recoverySearchSpaceId = 2\n" AT_UL
               "bwp-Dedicated.beamFailureRecoveryConfig.setup.candidateBeamRSList[0].ssb.ssb = 8\n" AT_UL
               "bwp-Dedicated.beamFailureRecoveryConfig.setup.candidateBeamRSList[0].ssb.ra-PreambleIndex = 60")
        // The block is one of the cell that is named.
        .silent(ADD_SCELL AT_STATE("1") "qcl-Type1.cell = 1\n" AT_SCELL_COMMON
                                        "ssb-PositionsInBurst.mediumBitmap = C1\n" AT_STATE(
                                            "1") "qcl-Type1.referenceSignal.ssb = 7")
        .fires(AT_STATE("1") "qcl-Type1.referenceSignal.ssb",
               ADD_SCELL AT_STATE("1") "qcl-Type1.cell = 1\n" AT_COMMON
                                       "ssb-PositionsInBurst.mediumBitmap = C1\n" AT_STATE(
                                           "1") "qcl-Type1.referenceSignal.ssb = 7")
        .as(RRC_RULE_WARNING)
        .undecided(AT_SYNC_ABSENT)
        .with(inDelta)
        .fires(AT_STATE("1") "qcl-Type1.referenceSignal.ssb", AT_SYNC_ABSENT)
        .with(
            [](RrcRuleContext& known)
            {
                static constexpr OSOCTET first[] = {0x80};
                inDelta(known);
                known.ssbPositionsInBurst = first;
                known.ssbPositionsBits = 8;
            })
        .as(RRC_RULE_WARNING);

    table.rule("ssb-raster")
        .bad(AT_SSB)
        .saying("633313, which is 3499.695 MHz, but that is not on the synchronisation raster")
        .good()
        .silent(AS_SCG AT_SSB " = 633313")
        .fires(AT_SSB, AT_SSB " = 640032\n" AT_INITIAL_PDCCH "controlResourceSetZero = absent")
        .as(RRC_RULE_WARNING)
        .saying("the block of 7200 kHz lies outside the carrier");
}

} // namespace test
