"""The grammar of the records' comments: what scripts/records.py says of a comment that is outside it."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

TOP = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
MAC = "Common/Inc/rrcCodec/rrcMac.h"
RLC = "Common/Inc/rrcCodec/rrcRlc.h"
PHY = "Common/Inc/rrcCodec/rrcPhy.h"
CSI_RS = "Common/Inc/rrcCodec/rrcCsiRs.h"
CODEBOOK = "Common/Inc/rrcCodec/rrcCsiReport.h"
COMMON = "Common/Inc/rrcCodec/rrcServingCellCommon.h"


class Grammar(unittest.TestCase):
    def setUp(self):
        self.top = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.top)
        for name in ("Asn", "Platform"):
            os.symlink(os.path.join(TOP, name), os.path.join(self.top, name))
        for name in ("Common", "Records"):
            shutil.copytree(os.path.join(TOP, name), os.path.join(self.top, name))

    def run_script(self):
        script = os.path.join(TOP, "scripts/records.py")
        return subprocess.run(
            [sys.executable, "-B", script, "--check", "--top", self.top], capture_output=True, text=True, check=False
        )

    def changed(self, file, old, new):
        path = os.path.join(self.top, file)
        with open(path, encoding="utf-8") as opened:
            text = opened.read()
        self.assertEqual(text.count(old), 1, old)
        with open(path, "w", encoding="utf-8") as opened:
            opened.write(text.replace(old, new))
        return text[: text.index(old)].count("\n") + 1

    def refuse(self, file, old, new, message, below=None):
        """The change is refused with the message at the changed line, or at the line that has `below`."""
        line = self.changed(file, old, new)
        if below is not None:
            with open(os.path.join(self.top, file), encoding="utf-8") as opened:
                text = opened.read()
            line = text[: text.index(below)].count("\n") + 1
        result = self.run_script()
        self.assertEqual(result.returncode, 1)
        self.assertIn(f"{file}:{line}: {message}\n", result.stderr)

    def test_as_checked_in(self):
        result = self.run_script()
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def test_another_word_is_stale(self):
        self.changed(MAC, "drx-HARQ-RTT-TimerDL, 0..56, in symbols", "drx-HARQ-RTT-TimerDL, 0..56, in OFDM symbols")
        result = self.run_script()
        self.assertEqual(result.returncode, 1)
        self.assertIn("Records/Src/recordTypes.cpp is not what the headers say: run scripts/records.py", result.stderr)

    def test_other_code_is_stale(self):
        self.changed("Records/Src/recordFill.cpp", "void fillCellGroup(", "static void fillCellGroup(")
        result = self.run_script()
        self.assertEqual(result.returncode, 1)
        self.assertIn("Records/Src/recordFill.cpp is not what the headers say: run scripts/records.py", result.stderr)

    def test_free_text_is_free(self):
        self.changed(MAC, "/**< shortDRX */", "/**< shortDRX; whatever. There is to say, 1..2: 3 */")
        self.assertNotIn("Common/Inc", self.run_script().stderr)

    def test_no_comment(self):
        self.refuse(
            MAC, " /**< drx-SlotOffset, 0..31, in 1/32 ms */", "", "RrcDrxCfg_t.drxSlotOffset: it has no comment"
        )

    def test_unknown_member(self):
        self.refuse(
            MAC,
            "/**< drx-SlotOffset, 0",
            "/**< drx-SlotOfset, 0",
            "RrcDrxCfg_t.drxSlotOffset: DRX-Config has no drx-SlotOfset; near: drx-SlotOffset",
        )

    def test_outside_the_grammar(self):
        self.refuse(
            MAC,
            "/**< drx-SlotOffset, 0..31, in 1/32 ms */",
            "/**< which slot to begin with */",
            'RrcDrxCfg_t.drxSlotOffset: "which slot to begin with" is outside the grammar',
        )

    def test_wrong_range(self):
        self.refuse(
            MAC,
            "drx-HARQ-RTT-TimerDL, 0..56",
            "drx-HARQ-RTT-TimerDL, 0..63",
            "RrcDrxCfg_t.drxHarqRttTimerDl: the range is 0..56",
        )

    def test_no_range(self):
        self.refuse(
            MAC,
            "drx-HARQ-RTT-TimerDL, 0..56, in symbols",
            "drx-HARQ-RTT-TimerDL",
            'RrcDrxCfg_t.drxHarqRttTimerDl: a range like "0..31" is missing',
        )

    def test_wrong_values(self):
        self.refuse(
            PHY,
            "0 semiStatic, 1 dynamic",
            "1 semiStatic, 2 dynamic",
            'RrcPhyCellGrpCfg_t.pdschHarqAckCodeBook: of an enumeration is said "'
            'PhysicalCellGroupConfig_pdsch_HARQ_ACK_Codebook_...: 0 semiStatic, 1 dynamic"',
            below="    UINT8 pdschHarqAckCodeBook",
        )

    def test_twos_complement(self):
        self.refuse(
            PHY,
            "p-NR-FR1, -30..33, in dBm, as two's complement",
            "p-NR-FR1, -30..33, in dBm",
            "RrcPhyCellGrpCfg_t.pNrFR1Pmax: the range is 0..33",
            below="    UINT8 pNrFR1Pmax",
        )

    def test_bit_string(self):
        self.refuse(
            COMMON,
            "oneSlot, 14 bits",
            "oneSlot, 16 bits",
            "RrcBitMaps_t.symbolsInResourceBlock.oneSlot: the string has 14 bits",
        )

    def test_octets(self):
        self.refuse(
            COMMON,
            "resourceBlocks, 40 octets, of which 275 bits",
            "resourceBlocks, 40 octets",
            "RrcBitMaps_t.resourceBlocks: the field has 40 octets, the string 275 bits",
            below="    UINT64 resourceBlocks[5]",
        )

    def test_count_of_nothing(self):
        self.refuse(
            MAC,
            "entries used of tag, 0..4",
            "entries used of tags, 0..4",
            "RrcTagCfg_t.numTagAddMod: RrcTagCfg_t has no field tags; near: tag",
        )

    def test_count(self):
        self.refuse(
            MAC,
            "entries used of tag, 0..4",
            "entries used of tag, 0..5",
            "RrcTagCfg_t.numTagAddMod: the range is 0..4",
        )

    def test_array_without_count(self):
        self.refuse(
            MAC,
            "entries used of tag, 0..4",
            "not read",
            "RrcTagCfg_t.tag: nothing counts its entries",
            below="    RrcTag_t tag[",
        )

    def test_record_of_something_else(self):
        self.refuse(
            MAC,
            "/**< bsr-Config */",
            "/**< tag-Config */",
            "RrcMacCellGrpCfg_t.bsrCfg: RrcBsrCfg_t holds BSR-Config, and this is TAG-Config",
        )

    def test_optional_without_bit(self):
        self.refuse(
            MAC,
            "/** RrcMacCellGrpCfg_t.bitMask: bsrCfg is given */",
            "/** RrcMacCellGrpCfg_t.bitMask: not read */",
            "RrcMacCellGrpCfg_t.bsrCfg: the member is optional, and nothing says when it is given",
            below="    RrcBsrCfg_t bsrCfg",
        )

    def test_bit_without_comment(self):
        line = self.changed(MAC, "/** RrcMacCellGrpCfg_t.bitMask: bsrCfg is given */\n", "")
        result = self.run_script()
        self.assertIn(
            f"{MAC}:{line}: RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE: "
            'no comment like "RrcXyz_t.bitMask: xyz is given"\n',
            result.stderr,
        )

    def test_bit_of_nothing(self):
        self.refuse(
            MAC,
            "/** RrcMacCellGrpCfg_t.bitMask: bsrCfg is given */",
            "/** RrcMacCellGrpCfg_t.bitMask: bsrConfig is given */",
            "RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE: RrcMacCellGrpCfg_t has no field bsrConfig; near: bsrCfg",
            below="#define RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE",
        )

    def test_bit_outside_the_grammar(self):
        self.refuse(
            MAC,
            "/** RrcMacCellGrpCfg_t.bitMask: bsrCfg is given */",
            "/** RrcMacCellGrpCfg_t.bitMask: the buffer status */",
            'RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE: "the buffer status" is outside the grammar',
            below="#define RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE",
        )

    def test_two_bits_for_one_field(self):
        self.refuse(
            MAC,
            "/** RrcMacCellGrpCfg_t.bitMask: bsrCfg is given */",
            "/** RrcMacCellGrpCfg_t.bitMask: srCfg is given */",
            "RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE: srCfg has another bit already",
            below="#define RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE",
        )

    def test_bit_beyond_its_mask(self):
        self.refuse(
            MAC,
            "#define RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE (1 << 2)",
            "#define RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE (1 << 8)",
            "RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE: bitMask has no such bit",
        )

    def test_mask_of_other_names(self):
        self.refuse(
            MAC,
            "bits RRC_MAC_CELL_GRP_CFG_..._PRESENCE",
            "bits RRC_MAC_..._CFG",
            "RrcMacCellGrpCfg_t.bitMask: RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE is not among RRC_MAC_..._CFG",
        )

    def test_unknown_alternative(self):
        self.refuse(
            RLC,
            "/** RrcRlcCfg_t.bitMask: chooses am, in choice.amCfg */",
            "/** RrcRlcCfg_t.bitMask: chooses tm, in choice.amCfg */",
            "RRC_RLCCFG_AM_PRESENCE: tm is no alternative",
            below="#define RRC_RLCCFG_AM_PRESENCE",
        )

    def test_member_that_nothing_chooses(self):
        self.refuse(
            RLC,
            "/** RrcRlcCfg_t.bitMask: chooses am, in choice.amCfg */",
            "/** RrcRlcCfg_t.bitMask: not read */",
            "RrcRlcCfg_t.choice: nothing chooses amCfg",
            below="    } choice;",
        )

    def test_member_of_another_alternative(self):
        self.refuse(
            RLC,
            "chooses am, in choice.amCfg",
            "chooses am, in choice.umBiCfg",
            "RrcRlcCfg_t.choice: nothing chooses amCfg",
            below="    } choice;",
        )

    def test_alternatives_of_a_number(self):
        self.refuse(
            COMMON,
            "1 sf5, 2 sf10, 3 sf20",
            "1 sf5, 2 sf20, 3 sf10",
            "RrcSSBMTC_t.period: the alternatives are: 1 sf5, 2 sf10, 3 sf20, 4 sf40, 5 sf80, 6 sf160",
            below="    UINT8 period;",
        )

    def test_value_by_nothing(self):
        self.refuse(
            COMMON,
            "value by period, in subframes",
            "value by duration, in subframes",
            "RrcSSBMTC_t.offset: duration chooses nothing",
        )

    def test_all_problems_at_once(self):
        self.changed(MAC, "drx-HARQ-RTT-TimerDL, 0..56", "drx-HARQ-RTT-TimerDL, 0..63")
        self.changed(PHY, "cs-RNTI, 0..65535", "cs-RNTI, 0..65534")
        self.assertEqual(len(re.findall("the range is", self.run_script().stderr)), 2)


if __name__ == "__main__":
    unittest.main()
