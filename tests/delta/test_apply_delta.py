"""What TS 38.331 says of need codes (6.1.2), lists that are added to, modified and released (6.1.3, A.3.9) and
reconfigurations (5.3.5.5), in small cases. Mandatory members that do not matter are left out."""

import copy
import pathlib
import re
import unittest

import apply_delta
import need_codes

SCHEMA = need_codes.Schema.load(pathlib.Path(__file__).resolve().parents[2] / "Asn/Schema/NR-RRC-Definitions.asn1")
GONE = object()
STEP = re.compile(r"([\w-]+)(?:\[([\w-]+) (\d+)\])?")

DRX = "mac-CellGroupConfig.drx-Config"
TAG = "mac-CellGroupConfig.tag-Config"
PHYSICAL = "physicalCellGroupConfig"
BEARER = "rlc-BearerToAddModList[logicalChannelIdentity 4]"
SPCELL = "spCellConfig"
SYNC = SPCELL + ".reconfigurationWithSync"
DEDICATED = SPCELL + ".spCellConfigDedicated"
PDCCH = DEDICATED + ".initialDownlinkBWP.pdcch-Config.setup"
PDSCH = DEDICATED + ".initialDownlinkBWP.pdsch-Config.setup"
UPLINK = DEDICATED + ".uplinkConfig"
PUSCH = UPLINK + ".initialUplinkBWP.pusch-Config.setup"
SRS = UPLINK + ".initialUplinkBWP.srs-Config.setup"
SCELL = "sCellToAddModList[sCellIndex 1]"

AM = {"ul-AM-RLC": {"sn-FieldLength": "size18", "pollPDU": "p32"},
      "dl-AM-RLC": {"sn-FieldLength": "size18", "t-Reassembly": "ms40"}}
DRB = {"servedRadioBearer": {"drb-Identity": 1}, "rlc-Config": {"am": AM}, "mac-LogicalChannelConfig": {}}
SEARCH_SPACE = {"controlResourceSetId": 1, "monitoringSlotPeriodicityAndOffset": {"sl1": None},
                "monitoringSymbolsWithinSlot": "8000", "nrofCandidates": {"aggregationLevel1": "n0"},
                "searchSpaceType": {"ue-Specific": {"dci-Formats": "formats0-1-And-1-1"}}}
SCELL_COMMON = {"physCellId": 7, "downlinkConfigCommon": {"frequencyInfoDL": {}, "initialDownlinkBWP": {}}}
NEW_SCELL = {"sCellConfigCommon": SCELL_COMMON, "sCellConfigDedicated": {"firstActiveDownlinkBWP-Id": 1, "tag-Id": 0}}


def without(value, *names):
    return {name: member for name, member in value.items() if name not in names}


def coresets(*numbers):
    return {"controlResourceSetToAddModList": [{"controlResourceSetId": number} for number in numbers]}


def message(path, value):
    """A CellGroupConfig that has but this value, at this path."""
    def below(steps):
        if not steps:
            return value
        name, identity, number = STEP.fullmatch(steps[0]).groups()
        inner = below(steps[1:])
        if inner is GONE:
            return {}
        return {name: inner if identity is None else [{identity: int(number), **inner}]}
    return {"cellGroupId": 0, **below(path.split("."))}


class Case(unittest.TestCase):
    maxDiff = None

    def expect(self, path, held, sent, after, refused=(), notices=()):
        """What stands at the path in what is held, in the delta, and in what is held after it. Refusals and notices
        are whole lines, without the name of the root."""
        result = apply_delta.apply(SCHEMA, message(path, held), message(path, sent))
        self.assertEqual(result.refused, [f"CellGroupConfig.{line}" for line in refused])
        self.assertEqual(result.notices, [f"CellGroupConfig.{line}" for line in notices])
        if after is not None:
            self.assertEqual(result.state, message(path, after))

    def refuse(self, path, held, sent, *lacking):
        """A new entry at the path, or below it, lacks these."""
        self.expect(path, held, sent, None, [f"{path}.{name}: is not there, a new entry needs it" for name in lacking])


class Codes(Case):
    def test_m_absent_is_kept(self):
        self.expect(DEDICATED, {"tag-Id": 0, "servingCellMO": 3}, {"tag-Id": 0}, {"tag-Id": 0, "servingCellMO": 3})

    def test_m_present_is_replaced(self):
        self.expect(DEDICATED, {"tag-Id": 0, "servingCellMO": 3}, {"tag-Id": 0, "servingCellMO": 5},
                    {"tag-Id": 0, "servingCellMO": 5})

    def test_m_false_is_no_absence(self):
        self.expect("mac-CellGroupConfig", {"csi-Mask": True}, {"csi-Mask": False}, {"csi-Mask": False})

    def test_r_absent_is_cleared(self):
        self.expect(PHYSICAL, {"p-NR-FR1": 23, "pdsch-HARQ-ACK-Codebook": "dynamic", "tpc-SRS-RNTI": 7},
                    {"p-NR-FR1": 20, "pdsch-HARQ-ACK-Codebook": "dynamic"},
                    {"p-NR-FR1": 20, "pdsch-HARQ-ACK-Codebook": "dynamic"})

    def test_r_counts_only_where_the_parent_is_sent(self):
        self.expect(PHYSICAL, {"tpc-SRS-RNTI": 7}, GONE, {"tpc-SRS-RNTI": 7})

    def test_s_absent_is_cleared(self):
        self.expect(DEDICATED, {"defaultDownlinkBWP-Id": 1, "tag-Id": 0}, {"tag-Id": 0}, {"tag-Id": 0})

    def test_s_present_is_replaced(self):
        self.expect(SPCELL, {"rlmInSyncOutOfSyncThreshold": "n1"}, {"rlmInSyncOutOfSyncThreshold": "n1"},
                    {"rlmInSyncOutOfSyncThreshold": "n1"})

    def test_n_is_not_stored(self):
        self.expect(BEARER, DRB, {"reestablishRLC": "true"}, DRB)

    def test_n_of_a_new_entry_is_not_stored(self):
        self.expect(BEARER, GONE, {**DRB, "reestablishRLC": "true"}, DRB)

    def test_n_of_an_extension_group_is_not_stored(self):
        name = "reportUplinkTxDirectCurrent-v1530"
        result = apply_delta.state(SCHEMA, {"cellGroupId": 0, name: "true"})
        self.assertEqual(result.state, {"cellGroupId": 0})

    def test_what_follows_another_member_is_cleared(self):
        self.expect(PUSCH, {"resourceAllocation": "dynamicSwitch", "codebookSubset": "nonCoherent", "maxRank": 1},
                    {"resourceAllocation": "dynamicSwitch"}, {"resourceAllocation": "dynamicSwitch"})

    def test_mandatory_is_replaced(self):
        self.expect(PDSCH, {"rbg-Size": "config1"}, {"rbg-Size": "config2"}, {"rbg-Size": "config2"})

    def test_codes_at_each_level(self):
        parameters = {"priority": 9, "logicalChannelSR-Mask": False}
        self.expect(BEARER + ".mac-LogicalChannelConfig",
                    {"ul-SpecificParameters": {**parameters, "priority": 8, "allowedSCS-List": ["kHz15"]}},
                    {"ul-SpecificParameters": parameters}, {"ul-SpecificParameters": parameters})

    def test_absent_extension_group_lets_the_codes_of_its_members_act(self):
        self.expect("mac-CellGroupConfig",
                    {"skipUplinkTxDynamic": False, "csi-Mask": True, "dataInactivityTimer": {"setup": "s5"}},
                    {"skipUplinkTxDynamic": True},
                    {"skipUplinkTxDynamic": True, "csi-Mask": True, "dataInactivityTimer": {"setup": "s5"}})
        self.expect(PHYSICAL, {"pdsch-HARQ-ACK-Codebook": "dynamic", "mcs-C-RNTI": 9, "xScale": "dB6",
                               "pdcch-BlindDetection": {"setup": 3}},
                    {"pdsch-HARQ-ACK-Codebook": "dynamic"},
                    {"pdsch-HARQ-ACK-Codebook": "dynamic", "pdcch-BlindDetection": {"setup": 3}})

    def test_present_extension_group_lets_the_codes_of_its_members_act(self):
        self.expect(PHYSICAL, {"mcs-C-RNTI": 9, "p-UE-FR1": 20}, {"p-UE-FR1": 23}, {"p-UE-FR1": 23})

    def test_mandatory_of_an_absent_extension_group_is_kept(self):
        self.expect(SPCELL + ".rlf-TimersAndConstants.setup", {"t310": "ms0", "t311-v1530": "ms1000"}, {"t310": "ms50"},
                    {"t310": "ms50", "t311-v1530": "ms1000"})


class SetupRelease(Case):
    def test_setup_of_what_was_not(self):
        self.expect(DRX, GONE, {"setup": {"drx-SlotOffset": 3}}, {"setup": {"drx-SlotOffset": 3}})

    def test_setup_of_what_is_set_up_goes_by_codes(self):
        self.expect(DRX, {"setup": {"drx-SlotOffset": 3, "shortDRX": {"drx-ShortCycle": "ms2"}}},
                    {"setup": {"drx-SlotOffset": 4}}, {"setup": {"drx-SlotOffset": 4}})
        self.expect(PUSCH, {"frequencyHoppingOffsetLists": [7], "frequencyHopping": "intraSlot"},
                    {"mcs-Table": "qam256"}, {"frequencyHoppingOffsetLists": [7], "mcs-Table": "qam256"})

    def test_release(self):
        self.expect(DRX, {"setup": {"drx-SlotOffset": 3}}, {"release": None}, GONE)

    def test_release_of_what_is_not_held(self):
        self.expect(DRX, GONE, {"release": None}, GONE, notices=[f"{DRX}: released, is not held"])

    def test_absent_is_kept(self):
        self.expect(DRX, {"setup": {"drx-SlotOffset": 3}}, GONE, {"setup": {"drx-SlotOffset": 3}})

    def test_nothing_comes_back_after_a_release(self):
        released = apply_delta.apply(SCHEMA, message(PUSCH, {"frequencyHoppingOffsetLists": [7]}),
                                     message(UPLINK + ".initialUplinkBWP.pusch-Config", {"release": None}))
        again = apply_delta.apply(SCHEMA, released.state, message(PUSCH, {"resourceAllocation": "dynamicSwitch"}))
        self.assertEqual(again.state, message(PUSCH, {"resourceAllocation": "dynamicSwitch"}))

    def test_plain_content_is_replaced(self):
        self.expect(PHYSICAL + ".cs-RNTI", {"setup": 5}, {"setup": 6}, {"setup": 6})

    def test_content_that_is_a_list_is_replaced(self):
        self.expect(PDSCH + ".pdsch-TimeDomainAllocationList",
                    {"setup": [{"k0": 1, "mappingType": "typeA"}, {"mappingType": "typeB"}]},
                    {"setup": [{"mappingType": "typeA"}]}, {"setup": [{"mappingType": "typeA"}]})


class Lists(Case):
    """Lists of entries that are added, modified and released one by one."""

    def test_add_to_nothing(self):
        self.expect(TAG, GONE, {"tag-ToAddModList": [{"tag-Id": 1, "timeAlignmentTimer": "ms500"}]},
                    {"tag-ToAddModList": [{"tag-Id": 1, "timeAlignmentTimer": "ms500"}]})

    def test_add_in_the_order_of_identities(self):
        self.expect(TAG, {"tag-ToAddModList": [{"tag-Id": 3}, {"tag-Id": 1}]},
                    {"tag-ToAddModList": [{"tag-Id": 2}, {"tag-Id": 0}]},
                    {"tag-ToAddModList": [{"tag-Id": 0}, {"tag-Id": 1}, {"tag-Id": 2}, {"tag-Id": 3}]})

    def test_modify_goes_by_codes(self):
        requests = "mac-CellGroupConfig.schedulingRequestConfig.schedulingRequestToAddModList[schedulingRequestId 2]"
        self.expect(requests, {"sr-ProhibitTimer": "ms1", "sr-TransMax": "n4"}, {"sr-TransMax": "n8"},
                    {"sr-TransMax": "n8"})
        self.expect(BEARER, DRB, {"mac-LogicalChannelConfig": {"ul-SpecificParameters": {"priority": 3}}},
                    {**DRB, "mac-LogicalChannelConfig": {"ul-SpecificParameters": {"priority": 3}}})

    def test_others_are_kept(self):
        self.expect(TAG, {"tag-ToAddModList": [{"tag-Id": 0}, {"tag-Id": 1, "timeAlignmentTimer": "ms500"}]},
                    {"tag-ToAddModList": [{"tag-Id": 1, "timeAlignmentTimer": "ms750"}]},
                    {"tag-ToAddModList": [{"tag-Id": 0}, {"tag-Id": 1, "timeAlignmentTimer": "ms750"}]})

    def test_absent_is_kept(self):
        self.expect(TAG, {"tag-ToAddModList": [{"tag-Id": 0}]}, {}, {"tag-ToAddModList": [{"tag-Id": 0}]})

    def test_release(self):
        self.expect(TAG, {"tag-ToAddModList": [{"tag-Id": 0}, {"tag-Id": 1}]}, {"tag-ToReleaseList": [0]},
                    {"tag-ToAddModList": [{"tag-Id": 1}]})

    def test_release_of_all(self):
        self.expect(TAG, {"tag-ToAddModList": [{"tag-Id": 0}, {"tag-Id": 1}]}, {"tag-ToReleaseList": [1, 0]}, {})

    def test_release_of_what_is_not_held(self):
        self.expect(TAG, {"tag-ToAddModList": [{"tag-Id": 0}]}, {"tag-ToReleaseList": [2]},
                    {"tag-ToAddModList": [{"tag-Id": 0}]},
                    notices=[f"{TAG}.tag-ToAddModList[tag-Id 2]: released, is not held"])

    def test_release_and_add_is_a_new_entry(self):
        held = {"sr-ProhibitTimer": "ms1", "sr-TransMax": "n4"}
        config = "mac-CellGroupConfig.schedulingRequestConfig"
        self.expect(config, {"schedulingRequestToAddModList": [{"schedulingRequestId": 2, **held}]},
                    {"schedulingRequestToReleaseList": [2],
                     "schedulingRequestToAddModList": [{"schedulingRequestId": 2, "sr-TransMax": "n8"}]},
                    {"schedulingRequestToAddModList": [{"schedulingRequestId": 2, "sr-TransMax": "n8"}]})
        srs = {"srs-ResourceSetId": 1, "srs-ResourceIdList": [0], "p0": -80}
        self.expect(SRS, {"srs-ResourceSetToAddModList": [{**srs, "pathlossReferenceRS": {"ssb-Index": 3}}]},
                    {"srs-ResourceSetToReleaseList": [1], "srs-ResourceSetToAddModList": [srs]},
                    {"srs-ResourceSetToAddModList": [srs]})

    def test_lists_within_entries(self):
        part = UPLINK + ".uplinkBWP-ToAddModList[bwp-Id 1].bwp-Dedicated.pucch-Config.setup"
        self.expect(part, {"resourceToAddModList": [{"pucch-ResourceId": 0}, {"pucch-ResourceId": 1}]},
                    {"resourceToAddModList": [{"pucch-ResourceId": 2}], "resourceToReleaseList": [0]},
                    {"resourceToAddModList": [{"pucch-ResourceId": 1}, {"pucch-ResourceId": 2}]})

    def test_entries_that_are_their_own_identities(self):
        coreset = PDCCH + ".controlResourceSetToAddModList[controlResourceSetId 1]"
        self.expect(coreset, {"tci-StatesPDCCH-ToAddList": [9, 3, 5]},
                    {"tci-StatesPDCCH-ToAddList": [4, 5], "tci-StatesPDCCH-ToReleaseList": [3]},
                    {"tci-StatesPDCCH-ToAddList": [4, 5, 9]})
        self.expect(coreset, {"tci-StatesPDCCH-ToAddList": [9]}, {"tci-StatesPDCCH-ToReleaseList": [9]}, {})

    def test_full(self):
        self.expect(PDCCH, coresets(1, 2), coresets(3), coresets(1, 2, 3))

    def test_full_after_a_release(self):
        self.expect(PDCCH, coresets(1, 2, 3), {**coresets(4), "controlResourceSetToReleaseList": [2]},
                    coresets(1, 3, 4))

    def test_too_many(self):
        self.expect(PDCCH, coresets(1, 2, 3), coresets(3, 4), None,
                    [f"{PDCCH}.controlResourceSetToAddModList: 4 entries, 3 at most"])

    def test_added_twice_is_modified(self):
        name = "schedulingRequestToAddModList"
        self.expect("mac-CellGroupConfig.schedulingRequestConfig", GONE,
                    {name: [{"schedulingRequestId": 2, "sr-ProhibitTimer": "ms1"}, {"schedulingRequestId": 2}]},
                    {name: [{"schedulingRequestId": 2}]})


class PlainLists(Case):
    def test_replaced_whole(self):
        self.expect(UPLINK + ".initialUplinkBWP.pucch-Config.setup.dl-DataToUL-ACK", [4, 5, 6], [7], [7])

    def test_absent_by_code(self):
        self.expect(UPLINK + ".initialUplinkBWP.pucch-Config.setup", {"dl-DataToUL-ACK": [4, 5]}, {},
                    {"dl-DataToUL-ACK": [4, 5]})

    def test_entries_are_new(self):
        """A SearchSpace's nrofCandidates is Need M, but no entry of commonSearchSpaceList is the one before it."""
        common = DEDICATED + ".downlinkBWP-ToAddModList[bwp-Id 1].bwp-Common.pdcch-ConfigCommon.setup"
        self.expect(common, {"commonSearchSpaceList": [{"searchSpaceId": 1, **SEARCH_SPACE}]},
                    {"commonSearchSpaceList": [{"searchSpaceId": 1, "controlResourceSetId": 1}]},
                    {"commonSearchSpaceList": [{"searchSpaceId": 1, "controlResourceSetId": 1}]})

    def test_what_stands_beside_them_goes_by_codes(self):
        coreset = DEDICATED + ".downlinkBWP-ToAddModList[bwp-Id 1].bwp-Common.pdcch-ConfigCommon.setup" \
            ".commonControlResourceSet"
        self.expect(coreset, {"controlResourceSetId": 1, "tci-StatesPDCCH-ToAddList": [3]},
                    {"controlResourceSetId": 1, "tci-StatesPDCCH-ToAddList": [2]},
                    {"controlResourceSetId": 1, "tci-StatesPDCCH-ToAddList": [2, 3]})


class Choices(Case):
    def test_same_alternative_goes_by_codes(self):
        self.expect(BEARER + ".rlc-Config", {"am": AM},
                    {"am": {"ul-AM-RLC": {"pollPDU": "p4"}, "dl-AM-RLC": {"t-Reassembly": "ms5"}}},
                    {"am": {"ul-AM-RLC": {"sn-FieldLength": "size18", "pollPDU": "p4"},
                            "dl-AM-RLC": {"sn-FieldLength": "size18", "t-Reassembly": "ms5"}}})

    def test_other_alternative_is_new(self):
        resource_type = SRS + ".srs-ResourceSetToAddModList[srs-ResourceSetId 1].resourceType"
        self.expect(resource_type, {"periodic": {"associatedCSI-RS": 4}}, {"semi-persistent": {}},
                    {"semi-persistent": {}})

    def test_within_modified_entries(self):
        resource_type = SRS + ".srs-ResourceSetToAddModList[srs-ResourceSetId 1].resourceType"
        self.expect(resource_type, {"periodic": {"associatedCSI-RS": 4}}, {"periodic": {}},
                    {"periodic": {"associatedCSI-RS": 4}})

    def test_plain_alternatives(self):
        state = PDSCH + ".tci-StatesToAddModList[tci-StateId 0].qcl-Type1.referenceSignal"
        self.expect(state, {"ssb": 3}, {"ssb": 4}, {"ssb": 4})
        self.expect(state, {"ssb": 3}, {"csi-rs": 4}, {"csi-rs": 4})


class OneShots(Case):
    def test_sync_is_kept_as_sent_last(self):
        sync = {"newUE-Identity": 17, "t304": "ms100"}
        self.expect(SPCELL, {"reconfigurationWithSync": sync}, {}, {"reconfigurationWithSync": sync})
        self.expect(SYNC, sync, {"newUE-Identity": 18, "t304": "ms100"}, {"newUE-Identity": 18, "t304": "ms100"})

    def test_codes_within_sync(self):
        self.expect(SYNC, {"spCellConfigCommon": {"physCellId": 3, "n-TimingAdvanceOffset": "n0"}, "smtc": {}},
                    {"spCellConfigCommon": {"dmrs-TypeA-Position": "pos2"}},
                    {"spCellConfigCommon": {"physCellId": 3, "dmrs-TypeA-Position": "pos2"}})
        self.expect(SYNC, {"spCellConfigCommon": {"physCellId": 3}}, {"newUE-Identity": 18},
                    {"spCellConfigCommon": {"physCellId": 3}, "newUE-Identity": 18})

    def test_random_access_within_sync_is_done_at_once(self):
        self.expect(SYNC, GONE, {"newUE-Identity": 17, "rach-ConfigDedicated": {"uplink": {"cfra": {}}}},
                    {"newUE-Identity": 17})

    def test_switch_of_the_spcell(self):
        self.expect(DEDICATED, {"firstActiveDownlinkBWP-Id": 1}, {"tag-Id": 0},
                    {"firstActiveDownlinkBWP-Id": 1, "tag-Id": 0})
        self.expect(DEDICATED, {"firstActiveDownlinkBWP-Id": 1}, {"firstActiveDownlinkBWP-Id": 2},
                    {"firstActiveDownlinkBWP-Id": 2})
        self.expect(UPLINK, {"firstActiveUplinkBWP-Id": 1}, {}, {"firstActiveUplinkBWP-Id": 1})

    def test_switch_of_an_scell(self):
        self.expect(SCELL, NEW_SCELL, {"sCellConfigDedicated": {"tag-Id": 0}}, NEW_SCELL)


class SupplementaryUplink(Case):
    COMMON = {"physCellId": 3}
    UPLINKS = {"uplinkConfig": {}, "supplementaryUplink": {"initialUplinkBWP": {}}}

    def test_ends_with_that_of_the_common_half(self):
        self.expect(SPCELL, {"spCellConfigDedicated": self.UPLINKS},
                    {"reconfigurationWithSync": {"spCellConfigCommon": self.COMMON}},
                    {"reconfigurationWithSync": {"spCellConfigCommon": self.COMMON},
                     "spCellConfigDedicated": {"uplinkConfig": {}}})

    def test_ends_before_the_dedicated_half_is_applied(self):
        held = {"uplinkConfig": {}, "supplementaryUplink": {"initialUplinkBWP": {}, "powerBoostPi2BPSK": True}}
        self.expect(SPCELL, {"spCellConfigDedicated": held},
                    {"reconfigurationWithSync": {"spCellConfigCommon": self.COMMON},
                     "spCellConfigDedicated": {"supplementaryUplink": {"initialUplinkBWP": {}}}},
                    {"reconfigurationWithSync": {"spCellConfigCommon": self.COMMON},
                     "spCellConfigDedicated": self.UPLINKS})

    def test_goes_on_with_that_of_the_common_half(self):
        common = {**self.COMMON, "supplementaryUplinkConfig": {}}
        self.expect(SPCELL, {"spCellConfigDedicated": self.UPLINKS},
                    {"reconfigurationWithSync": {"spCellConfigCommon": common}},
                    {"reconfigurationWithSync": {"spCellConfigCommon": common}, "spCellConfigDedicated": self.UPLINKS})

    def test_goes_on_without_a_common_half(self):
        held = {"reconfigurationWithSync": {"newUE-Identity": 17}, "spCellConfigDedicated": self.UPLINKS}
        self.expect(SPCELL, held, {"reconfigurationWithSync": {"newUE-Identity": 18}},
                    {**held, "reconfigurationWithSync": {"newUE-Identity": 18}})
        self.expect(SPCELL, held, {"spCellConfigDedicated": {"tag-Id": 0}},
                    {**held, "spCellConfigDedicated": {**self.UPLINKS, "tag-Id": 0}})

    def test_of_another_cell_goes_on(self):
        name = "sCellToAddModList"
        scell = {"sCellIndex": 1, "sCellConfigDedicated": self.UPLINKS}
        held = {"cellGroupId": 0, name: [scell]}
        sent = message(SYNC, {"spCellConfigCommon": self.COMMON})
        self.assertEqual(apply_delta.apply(SCHEMA, held, sent).state, {**sent, name: [scell]})

    def test_of_an_scell(self):
        self.expect(SCELL, {"sCellConfigCommon": self.COMMON, "sCellConfigDedicated": self.UPLINKS},
                    {"sCellConfigCommon": self.COMMON},
                    {"sCellConfigCommon": self.COMMON, "sCellConfigDedicated": {"uplinkConfig": {}}})


class Creation(Case):
    def test_drb(self):
        self.expect(BEARER, GONE, DRB, DRB)
        for name in ("rlc-Config", "mac-LogicalChannelConfig"):
            self.refuse(BEARER, GONE, without(DRB, name), name)

    def test_bearer_of_nothing(self):
        self.refuse(BEARER, GONE, {}, "servedRadioBearer")

    def test_srb_has_defaults(self):
        srb = {"servedRadioBearer": {"srb-Identity": 1}}
        self.expect(BEARER, GONE, srb, srb)

    def test_modified_bearer_needs_nothing(self):
        self.expect(BEARER, DRB, {}, DRB)

    def test_bearer_released_and_added_is_new(self):
        result = apply_delta.apply(SCHEMA, message(BEARER, DRB),
                                   {**message(BEARER, without(DRB, "rlc-Config")), "rlc-BearerToReleaseList": [4]})
        self.assertEqual(result.refused,
                         [f"CellGroupConfig.{BEARER}.rlc-Config: is not there, a new entry needs it"])

    def test_sequence_number_length(self):
        for name in AM:
            modes = {**AM, name: without(AM[name], "sn-FieldLength")}
            self.refuse(BEARER, GONE, {**DRB, "rlc-Config": {"am": modes}}, f"rlc-Config.am.{name}.sn-FieldLength")

    def test_scell(self):
        self.expect(SCELL, GONE, NEW_SCELL, NEW_SCELL)
        for name in NEW_SCELL:
            self.refuse(SCELL, GONE, without(NEW_SCELL, name), name)
        self.refuse(SCELL, GONE, {**NEW_SCELL, "sCellConfigCommon": without(SCELL_COMMON, "physCellId")},
                    "sCellConfigCommon.physCellId")
        downlink = {**SCELL_COMMON, "downlinkConfigCommon": {}}
        self.refuse(SCELL, GONE, {**NEW_SCELL, "sCellConfigCommon": downlink},
                    "sCellConfigCommon.downlinkConfigCommon.frequencyInfoDL",
                    "sCellConfigCommon.downlinkConfigCommon.initialDownlinkBWP")

    def test_first_active_parts_of_an_scell(self):
        self.refuse(SCELL, GONE, {**NEW_SCELL, "sCellConfigDedicated": {"uplinkConfig": {}}},
                    "sCellConfigDedicated.firstActiveDownlinkBWP-Id",
                    "sCellConfigDedicated.uplinkConfig.firstActiveUplinkBWP-Id")

    def test_modified_scell_needs_nothing(self):
        self.expect(SCELL, NEW_SCELL, {}, NEW_SCELL)

    def test_spcell_is_no_entry(self):
        self.expect(SYNC + ".spCellConfigCommon.downlinkConfigCommon", GONE, {}, {})

    def test_bandwidth_part(self):
        part = UPLINK + ".uplinkBWP-ToAddModList[bwp-Id 2]"
        self.expect(part, GONE, {"bwp-Common": {}, "bwp-Dedicated": {}}, {"bwp-Common": {}, "bwp-Dedicated": {}})
        self.refuse(part, GONE, {"bwp-Dedicated": {}}, "bwp-Common")
        self.refuse(part, GONE, {"bwp-Common": {}}, "bwp-Dedicated")

    def test_search_space(self):
        place = PDCCH + ".searchSpacesToAddModList[searchSpaceId 2]"
        self.expect(place, GONE, SEARCH_SPACE, SEARCH_SPACE)
        for name in SEARCH_SPACE:
            self.refuse(place, GONE, without(SEARCH_SPACE, name), name)

    def test_srs_resource_type(self):
        place = SRS + ".srs-ResourceSetToAddModList[srs-ResourceSetId 1]"
        self.refuse(place, GONE, {}, "srs-ResourceIdList", "p0")

    def test_common_search_space_of_a_new_part(self):
        part = DEDICATED + ".downlinkBWP-ToAddModList[bwp-Id 1]"
        spaces = [{"searchSpaceId": 1, **without(SEARCH_SPACE, "nrofCandidates")}]
        common = {"pdcch-ConfigCommon": {"setup": {"commonSearchSpaceList": spaces}}}
        self.refuse(part, GONE, {"bwp-Common": common, "bwp-Dedicated": {}},
                    "bwp-Common.pdcch-ConfigCommon.setup.commonSearchSpaceList[0].nrofCandidates")

    def test_new_entry_within_a_modified_one(self):
        part = DEDICATED + ".downlinkBWP-ToAddModList[bwp-Id 1]"
        place = part + ".bwp-Dedicated.pdcch-Config.setup"
        spaces = place + ".searchSpacesToAddModList[searchSpaceId 2]"
        added = {"searchSpaceId": 2, **without(SEARCH_SPACE, "nrofCandidates")}
        self.expect(place, {}, {"searchSpacesToAddModList": [added]}, None,
                    [f"{spaces}.nrofCandidates: is not there, a new entry needs it"])

    def test_what_may_be_there_at_creation(self):
        dedicated = {**NEW_SCELL["sCellConfigDedicated"], "pdsch-ServingCellConfig": {"setup": {"xOverhead": "xOh6"}}}
        added = {**NEW_SCELL, "sCellConfigDedicated": dedicated}
        self.expect(SCELL, GONE, added, added)


class Unknown(Case):
    def test_additions_are_replaced_by_their_index(self):
        def additions(*pairs):
            return {"tag-Id": 1, "$unknownAdditions": [{"index": index, "octets": octets} for index, octets in pairs]}
        place = TAG + ".tag-ToAddModList[tag-Id 1]"
        self.expect(place, additions((0, "AA"), (3, "BB")), additions((2, "CC"), (3, "DD")),
                    additions((0, "AA"), (2, "CC"), (3, "DD")))
        self.expect(place, additions((0, "AA")), {}, additions((0, "AA")))
        self.expect(place, GONE, additions((0, "AA")), additions((0, "AA")))

    def test_alternative(self):
        unknown = {"$unknownAlternative": {"index": 0, "octets": "AB"}}
        self.expect(BEARER + ".rlc-Config", {"am": AM}, unknown, unknown)
        self.expect(BEARER + ".rlc-Config", unknown, {"am": AM}, {"am": AM})


class Whole(Case):
    def test_nothing_held(self):
        self.assertEqual(apply_delta.apply(SCHEMA, None, message(BEARER, DRB)).state, message(BEARER, DRB))

    def test_another_cell_group(self):
        result = apply_delta.apply(SCHEMA, {"cellGroupId": 0}, {"cellGroupId": 1})
        self.assertEqual(result.refused, ["CellGroupConfig.cellGroupId: 1, 0 is held"])

    def test_state_of_a_message(self):
        first, second = ({"logicalChannelIdentity": number, **DRB} for number in (4, 5))
        result = apply_delta.state(SCHEMA, {"cellGroupId": 0, "rlc-BearerToReleaseList": [7],
                                            "rlc-BearerToAddModList": [{**second, "reestablishRLC": "true"}, first],
                                            "mac-CellGroupConfig": {"drx-Config": {"release": None}}})
        self.assertEqual(result.state, {"cellGroupId": 0, "rlc-BearerToAddModList": [first, second],
                                        "mac-CellGroupConfig": {}})
        self.assertEqual(result.refused, [])
        self.assertEqual(apply_delta.state(SCHEMA, result.state), apply_delta.Result(result.state, [], []))

    def test_held_is_taken_as_its_state(self):
        held = message(TAG, {"tag-ToAddModList": [{"tag-Id": 2}, {"tag-Id": 1}], "tag-ToReleaseList": [3]})
        result = apply_delta.apply(SCHEMA, held, {"cellGroupId": 0})
        self.assertEqual(result.state, message(TAG, {"tag-ToAddModList": [{"tag-Id": 1}, {"tag-Id": 2}]}))
        self.assertEqual(result.notices, [])

    def test_members_stand_in_their_order(self):
        held = {"cellGroupId": 0, "spCellConfig": {}, "mac-CellGroupConfig": {"csi-Mask": True}}
        result = apply_delta.apply(SCHEMA, held, message(TAG, {"tag-ToAddModList": [{"tag-Id": 1}]}))
        self.assertEqual(list(result.state), ["cellGroupId", "mac-CellGroupConfig", "spCellConfig"])
        self.assertEqual(list(result.state["mac-CellGroupConfig"]), ["tag-Config", "csi-Mask"])

    def test_what_is_given_is_not_changed(self):
        held = message(SCELL, NEW_SCELL)
        sent = {**message(SCELL, {"sCellConfigCommon": {}}), "sCellToReleaseList": [1]}
        given = copy.deepcopy((held, sent))
        apply_delta.apply(SCHEMA, held, sent)
        self.assertEqual((held, sent), given)


class KeptOneShots(Case):
    def keep(self, path, held, wanted, kept):
        self.assertEqual(apply_delta.keep_one_shots(SCHEMA, message(path, held), message(path, wanted)),
                         message(path, kept))

    def test_sync(self):
        self.keep(SYNC, {"newUE-Identity": 17}, GONE, {"newUE-Identity": 17})
        self.keep(SYNC, {"newUE-Identity": 17}, {"newUE-Identity": 18}, {"newUE-Identity": 18})
        self.keep(SYNC, {"spCellConfigCommon": {}}, {"newUE-Identity": 18}, {"newUE-Identity": 18})

    def test_switch(self):
        self.keep(UPLINK, {"firstActiveUplinkBWP-Id": 1, "initialUplinkBWP": {}}, {}, {"firstActiveUplinkBWP-Id": 1})
        self.keep(SCELL, NEW_SCELL, {"sCellConfigDedicated": {}},
                  {"sCellConfigDedicated": {"firstActiveDownlinkBWP-Id": 1}})

    def test_of_another_entry(self):
        other = "sCellToAddModList[sCellIndex 2]"
        self.assertEqual(apply_delta.keep_one_shots(SCHEMA, message(SCELL, NEW_SCELL),
                                                    message(other, {"sCellConfigDedicated": {}})),
                         message(other, {"sCellConfigDedicated": {}}))

    def test_of_what_is_gone(self):
        self.keep(SPCELL, {"reconfigurationWithSync": {"newUE-Identity": 17}}, GONE, GONE)

    def test_others_are_as_wanted(self):
        self.keep(TAG, {"tag-ToAddModList": [{"tag-Id": 1}]}, {"$unknownAdditions": [{"index": 0, "octets": "AA"}]},
                  {"$unknownAdditions": [{"index": 0, "octets": "AA"}]})


if __name__ == "__main__":
    unittest.main()
