// Reconfiguration with sync, and what a cell brings when it is added.
#include "examplePaths.h"
#include "modelLists.h"
#include "rules.h"

namespace rules
{
namespace
{

const SpCellConfig* sentSpCell(const Check& check)
{
    return MEMBER(check.model.message, spCellConfig);
}

const ReconfigurationWithSync* syncOf(const Check& check)
{
    const SpCellConfig* const spCell = MEMBER(check.model.config, spCellConfig);
    return spCell == nullptr ? nullptr : MEMBER(*spCell, reconfigurationWithSync);
}

// reconfigurationWithSync is in the messages that change the SpCell, and not in those that resume it.
void syncPresent(Check& check)
{
    const SpCellConfig* const spCell = sentSpCell(check);
    const auto* const sync = spCell == nullptr ? nullptr : MEMBER(*spCell, reconfigurationWithSync);
    switch (check.model.known.message)
    {
    case RRC_RULE_MESSAGE_RESUME: // of RRCSetup gen-setup-content speaks
        if (sync != nullptr)
        {
            check.error(sync).allowed("masterCellGroup of RRCResume has none");
        }
        break;
    case RRC_RULE_MESSAGE_SYNC:
        if (spCell == nullptr)
        {
            check.error(&check.model.message.spCellConfig).allowed("the message changes the SpCell");
        }
        else if (sync == nullptr)
        {
            check.error(&spCell->reconfigurationWithSync).allowed("the message changes the SpCell");
        }
        break;
    case RRC_RULE_MESSAGE_UNKNOWN:
        check.undecided(sync == nullptr && spCell == nullptr ? 0 : OSUINT32{RRC_RULE_INPUT_MESSAGE});
        break;
    default:
        break;
    }
}

// What a cell that is added has of an uplink.
void uplinkContent(Check& check, const UplinkConfigCommon* uplink)
{
    if (uplink != nullptr && uplink->m.frequencyInfoULPresent == 0)
    {
        check.error(&uplink->frequencyInfoUL).allowed("the cell is added");
    }
    if (uplink != nullptr && uplink->m.initialUplinkBWPPresent == 0)
    {
        check.error(&uplink->initialUplinkBWP).allowed("the cell is added");
    }
}

void contentOf(Check& check, const Cell& cell, const ServingCellConfigCommon& common)
{
    const FrequencyInfoDL* const frequency = cell.frequencyDl();
    if (cell.isSpCell() && frequency != nullptr && frequency->m.absoluteFrequencySSBPresent == 0)
    {
        check.error(&frequency->absoluteFrequencySSB).allowed("an SpCell has SS/PBCH blocks");
    }
    if (!check.isNew(cell.novelty))
    {
        return;
    }
    if (common.m.physCellIdPresent == 0)
    {
        check.error(&common.physCellId).allowed("the cell is added");
    }
    if (common.m.downlinkConfigCommonPresent == 0)
    {
        check.error(&common.downlinkConfigCommon).allowed("the cell is added");
        return;
    }
    // In a handover within a frequency a PCell needs no more.
    if (cell.isSpCell() && !check.model.isScg())
    {
        return;
    }
    if (frequency == nullptr)
    {
        check.error(&common.downlinkConfigCommon.frequencyInfoDL).allowed("the cell is added");
    }
    if (common.downlinkConfigCommon.m.initialDownlinkBWPPresent == 0)
    {
        check.error(&common.downlinkConfigCommon.initialDownlinkBWP).allowed("the cell is added");
    }
    uplinkContent(check, cell.uplinkCommon());
    uplinkContent(check, cell.supplementaryCommon());
}

// A cell that is added has all that is common to its UEs.
void syncCommonContent(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        if (cell.common != nullptr)
        {
            contentOf(check, cell, *cell.common);
        }
    }
    const ReconfigurationWithSync* const sync = syncOf(check);
    if (sync != nullptr && sync->m.spCellConfigCommonPresent == 0 && check.model.isFull && check.model.isScg())
    {
        check.error(&sync->spCellConfigCommon).allowed("the PSCell is added");
    }
}

// Each FrequencyInfoUL of a cell: of its own band, or supplementary.
template <typename Each>
void forFrequencyInfoUls(Check& check, const Each& each)
{
    for (const Cell& cell : check.model.cells())
    {
        if (cell.frequencyUl() != nullptr)
        {
            each(cell, *cell.frequencyUl(), false);
        }
        if (cell.frequencySul() != nullptr)
        {
            each(cell, *cell.frequencySul(), true);
        }
    }
}

// An uplink that is no part of the downlink's spectrum says where it is.
void syncUlBand(Check& check)
{
    constexpr OSUINT32 firstOwnGrid = 77; // unpaired bands from here on are none of E-UTRA
    forFrequencyInfoUls(check,
                        [&](const Cell& cell, const FrequencyInfoUL& uplink, bool isSul)
                        {
                            if (!isSul && !check.decided(cell.duplex))
                            {
                                return;
                            }
                            const bool isOwn = isSul || *cell.duplex == RRC_RULE_DUPLEX_FDD;
                            const auto* const bands = MEMBER(uplink, frequencyBandList);
                            const auto* const pointA = MEMBER(uplink, absoluteFrequencyPointA);
                            const auto* const shift = MEMBER(uplink, frequencyShift7p5khz);
                            const char* const why =
                                isSul ? "the uplink is supplementary" : "the uplink is of paired spectrum";
                            if (isOwn)
                            {
                                if (bands == nullptr)
                                {
                                    check.error(&uplink.frequencyBandList).allowed("%s", why);
                                }
                                if (pointA == nullptr)
                                {
                                    check.error(&uplink.absoluteFrequencyPointA).allowed("%s", why);
                                }
                                return;
                            }
                            if (bands != nullptr)
                            {
                                check.warning(bands).allowed("in unpaired spectrum it is that of the downlink");
                            }
                            if (pointA != nullptr)
                            {
                                check.warning(pointA).allowed("in unpaired spectrum it is that of the downlink");
                            }
                            if (shift != nullptr && cell.band && *cell.band >= firstOwnGrid)
                            {
                                check.error(shift).allowed("band n%u shares no grid with E-UTRA", *cell.band);
                            }
                        });
}

void oneBand(Check& check, const MultiFrequencyBandListNR* list)
{
    if (list != nullptr && entries(list).size() != 1)
    {
        check.error(list).allowed("a cell is in one band");
    }
}

const FreqBandIndicatorNR* onlyBand(const MultiFrequencyBandListNR* list)
{
    const auto bands = entries(list);
    return bands.size() == 1 ? bands.data() : nullptr;
}

// The band that an uplink is in: its own, or that of the downlink; 0 where that is unknown.
OSUINT32 uplinkBand(const Cell& cell, const FrequencyInfoUL& uplink)
{
    const FreqBandIndicatorNR* const own = onlyBand(MEMBER(uplink, frequencyBandList));
    return own != nullptr ? *own : cell.band ? *cell.band : 0;
}

// A cell is in one band, and its frequencies are within it.
void syncBandList(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        const FrequencyInfoDL* const frequency = cell.frequencyDl();
        if (frequency == nullptr)
        {
            continue;
        }
        oneBand(check, &frequency->frequencyBandList);
        const FreqBandIndicatorNR* const number = onlyBand(&frequency->frequencyBandList);
        const ARFCN_ValueNR* const ssb = MEMBER(*frequency, absoluteFrequencySSB);
        const NrBand* const band = number == nullptr ? nullptr : nrBand(*number);
        const OSUINT32 khz = ssb == nullptr ? 0 : nrArfcnKhz(*ssb);
        if (band != nullptr && khz != 0 && band->dlHighKhz != 0 && (khz < band->dlLowKhz || khz > band->dlHighKhz))
        {
            check.warning(ssb)
                .found("%u, which is %u.%03u MHz", *ssb, khz / 1000, khz % 1000)
                .allowed("downlink of band n%u is %u..%u MHz", *number, band->dlLowKhz / 1000, band->dlHighKhz / 1000);
        }
    }
    struct Emission
    {
        OSUINT32 band;
        AdditionalSpectrumEmission value;
    };
    Vector<Emission> emissions;
    forFrequencyInfoUls(check,
                        [&](const Cell& cell, const FrequencyInfoUL& uplink, bool isSul)
                        {
                            const auto* const list = MEMBER(uplink, frequencyBandList);
                            oneBand(check, list);
                            const FreqBandIndicatorNR* const own = onlyBand(list);
                            if (!isSul && own != nullptr && cell.band && *own != *cell.band)
                            {
                                check.warning(own).allowed("the downlink is in band n%u", *cell.band);
                            }
                            const NrBand* const band = own == nullptr ? nullptr : nrBand(*own);
                            if (isSul && band != nullptr && band->duplex != NR_SUL)
                            {
                                check.warning(own).allowed("the band is none for a supplementary uplink");
                            }
                            const OSUINT32 number = uplinkBand(cell, uplink);
                            const auto* const emission = MEMBER(uplink, additionalSpectrumEmission);
                            if (emission == nullptr || number == 0)
                            {
                                return;
                            }
                            for (const Emission& other : emissions)
                            {
                                if (other.band == number && other.value != *emission)
                                {
                                    check.warning(emission).allowed("another uplink of band n%u has %u", number,
                                                                    other.value);
                                    break;
                                }
                            }
                            emissions.add(check.model.memory, {number, *emission});
                        });
}

// The measurement windows come with the blocks.
void syncSmtc(Check& check)
{
    static constexpr OSUINT32 periods[] = {5, 10, 20, 40, 80, 160};
    for (const Cell& cell : check.model.cells())
    {
        const auto* const sync = cell.spCell == nullptr ? nullptr : MEMBER(*cell.spCell, reconfigurationWithSync);
        const SSB_MTC* const smtc = cell.sCell != nullptr ? ADDITION(*cell.sCell, 2, smtc)
                                    : sync != nullptr     ? ADDITION(*sync, 2, smtc)
                                                          : nullptr;
        const bool hasBlocks = cell.frequencyDl() == nullptr || cell.frequencyDl()->m.absoluteFrequencySSBPresent != 0;
        if (smtc == nullptr || cell.common == nullptr || !hasBlocks)
        {
            continue;
        }
        const auto* const given = MEMBER(*cell.common, ssb_periodicityServingCell);
        const OSUINT32 period = given == nullptr ? 5 : meaning(periods, *given);
        const OSUINT32 window = meaning(periods, smtc->periodicityAndOffset.t - 1);
        if (period != 0 && window != 0 && window != period)
        {
            check.error(&smtc->periodicityAndOffset)
                .allowed("ssb-periodicityServingCell is %u ms%s", period,
                         given == nullptr ? " where it is absent" : "");
        }
    }
}

// servCellIndex tells PSCell from PCell.
void syncScgIndex(Check& check)
{
    const SpCellConfig* const spCell = sentSpCell(check);
    if (spCell == nullptr)
    {
        return;
    }
    const ServCellIndex* const index = MEMBER(*spCell, servCellIndex);
    const OSUINT32* const others = check.model.known.otherGroupCells;
    if (!check.model.isScg())
    {
        if (index != nullptr)
        {
            check.error(index).allowed("the PCell has 0, without saying so");
        }
    }
    else if (index == nullptr)
    {
        check.error(&spCell->servCellIndex).allowed("the PSCell has an index");
    }
    else if (*index == 0)
    {
        check.error(index).allowed("0 is the PCell");
    }
    else if (others != nullptr && *index < 32 && (*others >> *index & 1) != 0)
    {
        check.error(index).allowed("a cell of the master cell group has that index");
    }
}

// Timers for radio link failure of a secondary cell group.
void syncRlf(Check& check)
{
    const SpCellConfig* const spCell = sentSpCell(check);
    if (spCell == nullptr)
    {
        return;
    }
    if (const auto* const threshold = MEMBER(*spCell, rlmInSyncOutOfSyncThreshold))
    {
        check.warning(threshold).allowed("networks of this release do not send it");
    }
    if (!check.model.isScg())
    {
        return;
    }
    const auto* const timers = MEMBER(*spCell, rlf_TimersAndConstants);
    if (isRelease(timers))
    {
        check.error(timers).allowed("a secondary cell group has setup alone");
    }
    else if (timers == nullptr && check.model.isFull && spCell->m.reconfigurationWithSyncPresent != 0)
    {
        check.error(&spCell->rlf_TimersAndConstants).allowed("the secondary cell group is added");
    }
}

const RrcRuleMeasObject* measObjectOf(const RrcRuleContext& known, OSUINT32 id)
{
    for (OSUINT32 i = 0; known.measObjects != nullptr && i < known.numMeasObjects; ++i)
    {
        if (known.measObjects[i].id == id)
        {
            return &known.measObjects[i];
        }
    }
    return nullptr;
}

// The measurement object of a serving cell is there, and of its frequency.
void syncServingMo(Check& check)
{
    const RrcRuleContext& known = check.model.known;
    for (const Cell& cell : check.model.cells())
    {
        const MeasObjectId* const id = cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, servingCellMO);
        if (known.hasMeas == 0)
        {
            check.undecided(RRC_RULE_INPUT_MEAS);
            return;
        }
        if (id == nullptr)
        {
            if (cell.isSpCell() && cell.dedicated != nullptr && known.numMeasObjects != 0)
            {
                check.missing(cell.complete, &cell.dedicated->servingCellMO).allowed("the UE has a measConfig");
            }
            continue;
        }
        const RrcRuleMeasObject* const object = measObjectOf(known, *id);
        const FrequencyInfoDL* const frequency = cell.frequencyDl();
        if (object == nullptr)
        {
            check.error(id).allowed("measConfig has no measObjectNR of that id");
        }
        else if (object->hasSsb != 0 && frequency != nullptr && frequency->m.absoluteFrequencySSBPresent != 0 &&
                 object->ssbFrequency != frequency->absoluteFrequencySSB)
        {
            check.error(id).allowed("that object's ssbFrequency is %u, absoluteFrequencySSB of the cell %u",
                                    object->ssbFrequency, frequency->absoluteFrequencySSB);
        }
    }
}

constexpr Rule syncTable[] = {
    {.told = {.id = "sync-present",
              .severity = RRC_RULE_ERROR,
              .statement = "reconfigurationWithSync is present where the message changes or adds the SpCell or its "
                           "key, and absent in RRCResume.",
              .advice = "Send it in RRCReconfiguration alone, when the SpCell changes.",
              .clause = "TS 38.331 SpCellConfig, Cond ReconfWithSync",
              .given = "The message changes the SpCell.",
              .bad = AT_SYNC_ABSENT,
              .good = AT_SYNC "t304 = ms1000",
              .since = "0.1.0"},
     .run = syncPresent},
    {.told = {.id = "sync-common-content",
              .severity = RRC_RULE_ERROR,
              .statement = "A cell that is added has physCellId and downlinkConfigCommon, a PSCell and an SCell "
                           "frequencies and initial bandwidth parts as well; an SpCell has absoluteFrequencySSB.",
              .advice = "Send all of ServingCellConfigCommon when a cell is added.",
              .clause = "TS 38.331 ServingCellConfigCommon, DownlinkConfigCommon, UplinkConfigCommon, FrequencyInfoDL",
              .given = "",
              .bad = AT_COMMON "physCellId = absent",
              .good = AT_COMMON "physCellId = 1007",
              .since = "0.1.0"},
     .run = syncCommonContent},
    {.told = {.id = "sync-ul-band",
              .severity = RRC_RULE_ERROR,
              .statement = "The uplink of paired spectrum and a supplementary one have frequencyBandList and "
                           "absoluteFrequencyPointA, that of unpaired spectrum neither; frequencyShift7p5khz is for "
                           "bands that share their grid with E-UTRA.",
              .advice = "Send the uplink's band and point A where it has its own.",
              .clause = "TS 38.331 FrequencyInfoUL, Cond FDD-OrSUL, FDD-TDD-OrSUL-Optional",
              .given = "",
              .bad = AT_COMMON_UL "frequencyInfoUL.frequencyShift7p5khz = true",
              .good = AT_COMMON_UL "frequencyInfoUL.p-Max = 23",
              .since = "0.1.0"},
     .run = syncUlBand},
    {.told = {.id = "sync-band-list",
              .severity = RRC_RULE_ERROR,
              .statement = "frequencyBandList has one entry; the SS/PBCH block lies in that band, the uplink of a cell "
                           "is in the band of its downlink, a supplementary one in a band for it; uplinks of a band "
                           "have the same additionalSpectrumEmission.",
              .advice = "Name the one band of the cell.",
              .clause = "TS 38.331 FrequencyInfoDL, FrequencyInfoUL; TS 38.101-1 5.2, 5.4",
              .given = "",
              .bad = AT_COMMON_DL "frequencyInfoDL.frequencyBandList[1] = 77",
              .good = AT_COMMON_DL "frequencyInfoDL.frequencyBandList[0] = 77",
              .since = "0.1.0"},
     .run = syncBandList},
    {.told = {.id = "sync-smtc",
              .severity = RRC_RULE_ERROR,
              .statement = "smtc has the period of ssb-periodicityServingCell, which is 5 ms where that is absent.",
              .advice = "Give both the same period.",
              .clause = "TS 38.331 ReconfigurationWithSync, SCellConfig smtc",
              .given = "",
              .bad = AT_SYNC "smtc.periodicityAndOffset = absent\n" AT_SYNC "smtc.periodicityAndOffset.sf10 = 0",
              .good = AT_SYNC "smtc.periodicityAndOffset.sf20 = 0",
              .since = "0.1.0"},
     .run = syncSmtc},
    {.told = {.id = "sync-scg-index",
              .severity = RRC_RULE_ERROR,
              .statement = "servCellIndex is absent for the PCell, and for the PSCell present, not 0 and no index of "
                           "the master cell group.",
              .advice = "Give the PSCell an index of its own.",
              .clause = "TS 38.331 SpCellConfig, Cond SCG",
              .given = "",
              .bad = "spCellConfig.servCellIndex = 1",
              .good = "spCellConfig.rlf-TimersAndConstants.setup.n311 = n1",
              .since = "0.1.0"},
     .run = syncScgIndex},
    {.told = {.id = "sync-rlf",
              .severity = RRC_RULE_ERROR,
              .statement = "rlf-TimersAndConstants of a secondary cell group is setup alone, and there when the group "
                           "is added; rlmInSyncOutOfSyncThreshold is not sent.",
              .advice = "Set up the timers of the secondary cell group.",
              .clause = "TS 38.331 SpCellConfig",
              .given = "",
              .bad = AS_SCG "spCellConfig.rlf-TimersAndConstants = absent\n",
              .good = AS_SCG "spCellConfig.rlf-TimersAndConstants.setup.n311 = n1",
              .since = "0.1.0"},
     .run = syncRlf},
    {.told = {.id = "sync-serving-mo",
              .severity = RRC_RULE_ERROR,
              .statement = "Where the UE has a measConfig, the SpCell names its measurement object; an object that is "
                           "named is a measObjectNR with the ssbFrequency of the cell.",
              .advice = "Name the object with the cell's absoluteFrequencySSB.",
              .clause = "TS 38.331 ServingCellConfig servingCellMO, Cond MeasObject",
              .given = "measConfig has object 1 with ssbFrequency 633312.",
              .bad = AT_CELL "servingCellMO = 2",
              .good = AT_CELL "servingCellMO = 1",
              .since = "0.1.0"},
     .run = syncServingMo},
};

} // namespace

constinit const RuleGroup syncRules = groupOf(syncTable);

} // namespace rules
