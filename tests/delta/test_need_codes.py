"""The reader of need codes, on a small schema and on that of the project."""

import pathlib
import unittest

import need_codes
from need_codes import Choice, List, Member, Named, Plain, Schema, Sequence, SetupRelease

PROJECT = pathlib.Path(__file__).resolve().parents[2] / "Asn/Schema/NR-RRC-Definitions.asn1"
SMALL = """-- A remark. Need no code.
Small DEFINITIONS AUTOMATIC TAGS ::=

BEGIN

Root ::= SEQUENCE {
    rootId          INTEGER (0..maxThings), -- Change identity
    thingToAddList  SEQUENCE (SIZE (1..maxThings)) OF Thing     OPTIONAL, -- Need N
        -- Identity thing-Id, released by thingToFreeList
    thingToFreeList SEQUENCE (SIZE (1..4)) OF ThingId           OPTIONAL, -- Need N
    idToAddList     SEQUENCE (SIZE (2)) OF ThingId              OPTIONAL, -- Cond Here-There (N)
        -- Identity ThingId, released by idToFreeList
    idToFreeList    SEQUENCE (SIZE (1..2)) OF ThingId           OPTIONAL, -- Cond Here-There (N)
    choice          CHOICE {
        none    NULL,
        some    BIT STRING (SIZE (4)),
        ...,
        inner   SEQUENCE {
            flag    BOOLEAN OPTIONAL -- Need S
        }
    } OPTIONAL, -- Cond Aperiodic (fixed)
    ...,
    [[
        config  SetupRelease { Thing }  OPTIONAL, -- Need M, sul
        last    ENUMERATED {a, b}       OPTIONAL  -- Cond Added (M, creation)
    ]],
    lone            BOOLEAN             OPTIONAL  -- Need R
}

Thing ::= SEQUENCE {
    thing-Id    ThingId,
    ...
}

ThingId ::= INTEGER (-1..maxThings-1)

SetupRelease { ElementType } ::= CHOICE {
    release NULL,
    setup   ElementType
}

maxThings   INTEGER ::= 4
maxThings-1 INTEGER ::= 3

END
"""


class Small(unittest.TestCase):
    maxDiff = None

    def test_model(self):
        thing, thing_id = Named("Thing"), Named("ThingId")
        flag = Member("flag", Plain("BOOLEAN"), True, "S")
        choice = Choice({"none": Plain("NULL"), "some": Plain("BIT STRING"), "inner": Sequence([flag])})
        self.assertEqual(Schema(SMALL).types["Root"], Sequence([
            Member("rootId", Plain("INTEGER"), False, word="identity"),
            Member("thingToAddList", List(1, 4, thing), True, "N", identity="thing-Id", released_by="thingToFreeList"),
            Member("thingToFreeList", List(1, 4, thing_id), True, "N", releases="thingToAddList"),
            Member("idToAddList", List(2, 2, thing_id), True, "N", "Here-There", identity="ThingId",
                   released_by="idToFreeList"),
            Member("idToFreeList", List(1, 2, thing_id), True, "N", "Here-There", releases="idToAddList"),
            Member("choice", choice, True, "fixed", "Aperiodic"),
            Member("config", SetupRelease(thing), True, "M", word="sul"),
            Member("last", Plain("ENUMERATED"), True, "M", "Added", "creation"),
            Member("lone", Plain("BOOLEAN"), True, "R"),
        ]))

    def test_names(self):
        schema = Schema(SMALL)
        self.assertEqual(list(schema.types), ["Root", "Thing", "ThingId"])
        self.assertEqual(schema.type(Named("ThingId")), Plain("INTEGER"))
        self.assertEqual([(name, path) for name, path, member in schema.members() if member.code in ("S", "R")],
                         [("Root", "choice.inner.flag"), ("Root", "lone")])

    def refuse(self, old, new, line, text):
        """With `new` in place of the `old`, the reader gives up there."""
        self.assertEqual(SMALL.count(old), 1, old)
        with self.assertRaises(need_codes.SchemaError) as caught:
            Schema(SMALL.replace(old, new), "small.asn1")
        where, _, what = str(caught.exception).partition(": ")
        self.assertRegex(where, rf"^small\.asn1:{line}:\d+$")
        self.assertEqual(what, text)

    def test_place(self):
        with self.assertRaisesRegex(need_codes.SchemaError, r"^small\.asn1:27:51: Q is none of M, R, S, N$"):
            Schema(SMALL.replace("-- Need R", "-- Need Q"), "small.asn1")

    def test_code(self):
        self.refuse("-- Need R", "-- Need fixed", 27, "fixed is none of M, R, S, N")
        self.refuse("(fixed)", "(X)", 21, "X is none of M, R, S, N, fixed")

    def test_word(self):
        self.refuse(", sul", ", sol", 24, f"sol is none of {', '.join(need_codes.WORDS)}")
        self.refuse("Change identity", "Change name", 7, f"name is none of {', '.join(need_codes.WORDS)}")

    def test_form(self):
        self.refuse("-- Need R", "-- Need R sul", 27, "not understood: -- Need R sul")
        self.refuse("-- Need R", "-- Need R, sul, sync", 27, "not understood: -- Need R, sul, sync")
        self.refuse("(fixed)", "fixed", 21, "not understood: -- Cond Aperiodic fixed")
        self.refuse("-- Identity ThingId, released by idToFreeList", "-- Identity ThingId", 12,
                    "not understood: -- Identity ThingId")

    def test_none(self):
        self.refuse("-- Need R", "", 27, "lone is OPTIONAL and has no need code")

    def test_two(self):
        self.refuse("-- Need R", "-- Need R\n-- Need M", 28, "lone has a second code")

    def test_of_another_presence(self):
        self.refuse("Change identity", "Need M", 7, "rootId is mandatory: -- Need M")
        self.refuse("-- Need R", "-- Change usage", 27, "lone is OPTIONAL: -- Change usage")

    def test_astray(self):
        self.refuse("BEGIN\n", "BEGIN\n-- Need M\n", 5, "'-- Need M' is not expected here")

    def test_partner(self):
        self.refuse("by idToFreeList", "by idToFreeList2", 11, "idToAddList or idToFreeList2 is no list")
        self.refuse("by idToFreeList", "by choice", 11, "idToAddList or choice is no list")

    def test_names_of_nothing(self):
        self.refuse("ThingId,\n    ...", "ThingId2,\n    ...", 31, "there is no type ThingId2")
        self.refuse("maxThings)) OF", "maxThings2)) OF", 8, "there is no constant maxThings2")

    def test_no_schema(self):
        self.refuse("END\n", "", 45, "'' is not expected here")
        self.refuse("BEGIN", "begin", 4, "'begin' instead of 'BEGIN'")
        self.refuse("BOOLEAN             OPTIONAL", "BOOLEAN ? OPTIONAL", 27, "'?' is not expected here")


class Project(unittest.TestCase):
    def test_members(self):
        schema = Schema.load(PROJECT)
        members = {(name, path): member for name, path, member in schema.members()}
        self.assertEqual(members["RLC-BearerConfig", "servedRadioBearer"].word, "creation")
        self.assertEqual(members["CSI-ReportConfig", "reportFreqConfiguration.csi-ReportingBand"].code, "S")
        coresets = members["PDCCH-Config", "controlResourceSetToAddModList"]
        self.assertEqual((coresets.identity, coresets.released_by, coresets.type.upper),
                         ("controlResourceSetId", "controlResourceSetToReleaseList", 3))
        self.assertEqual(members["CellGroupConfig", "sCellToAddModList"].type.upper, 31)

    def test_each_word_is_used(self):
        used = {member.word for _, _, member in Schema.load(PROJECT).members()} - {None}
        self.assertEqual(used, set(need_codes.WORDS))


if __name__ == "__main__":
    unittest.main()
