"""What a UE holds after a CellGroupConfig, by TS 38.331 6.1.2, 6.1.3 and A.3.9, over values as JER (X.697) has them; a
second opinion on the deltas of the project, which shares nothing with it but the schema.

    state(schema, message)                what a UE without a configuration holds after a complete message
    apply(schema, held, delta)            what a UE that holds this holds after a delta
    keep_one_shots(schema, held, wanted)  a wanted state, where it is silent on one-shots with those held

A state is a CellGroupConfig again: entries stand in the order of their identities; there are no lists that release, no
empty lists, no `release` and nothing that was acted upon at once."""

import dataclasses

from need_codes import Choice, List, Plain, Sequence, SetupRelease

ROOT = "CellGroupConfig"
ABSENT = object()
ADDITIONS = "$unknownAdditions"
UNKNOWN = "$unknownAlternative"

ONE_SHOTS = ("sync", "switch")  # kept as sent last, so that it can be told whether a new one is wanted
AT_CREATION = ("setup", "creation", "scell", "reestablish", "switch")  # a new entry has to have them
AT_CREATION_OF_DRB = ("drb-setup", "mode")

# Where the two halves of a serving cell stand: the common and the dedicated one.
SERVING_CELLS = {
    "SpCellConfig": (("reconfigurationWithSync", "spCellConfigCommon"), "spCellConfigDedicated"),
    "SCellConfig": (("sCellConfigCommon",), "sCellConfigDedicated"),
}


@dataclasses.dataclass
class Result:
    """The state that is reached, why a UE could not reach it, and what was strange on the way."""
    state: dict
    refused: list
    notices: list


def state(schema, message):
    return apply(schema, None, message)


def apply(schema, held, delta):
    """`held` may be any message, it is taken as its state; None: nothing is held."""
    before = ABSENT if held is None else Walk(schema).value(schema.types[ROOT], ABSENT, held, ROOT, None)
    walk = Walk(schema)
    after = walk.value(schema.types[ROOT], before, delta, ROOT, None)
    return Result(after, walk.refused, walk.notices)


def keep_one_shots(schema, held, wanted):
    return kept(schema, schema.types[ROOT], held, wanted)


def kept(schema, kind, held, wanted):
    kind = schema.type(kind)
    if not isinstance(kind, Sequence):
        return wanted
    result = {}
    for member in kind.members:
        before, after = (value.get(member.name, ABSENT) for value in (held, wanted))
        if after is ABSENT and member.word in ONE_SHOTS:
            after = before
        elif before is not ABSENT and after is not ABSENT:
            if member.identity is None:
                after = kept(schema, member.type, before, after)
            else:
                same = {identity(member, entry): entry for entry in before}
                after = [kept(schema, member.type.element, same.get(identity(member, entry), {}), entry)
                         for entry in after]
        if after is not ABSENT:
            result[member.name] = after
    return result | {ADDITIONS: wanted[ADDITIONS]} if ADDITIONS in wanted else result


def identity(member, entry):
    """What tells an entry of a list from the others: a member of its own, or it is an identity itself."""
    return entry[member.identity] if isinstance(entry, dict) else entry


def held_after(member):
    """Whether a member that is held stays when the sequence around it comes without it. A mandatory one that is not
    there is in an extension group that is not."""
    return not member.optional or member.code == "M" or member.word in ONE_SHOTS


def demanded(member, new):
    """Whether an entry that is new has to have this."""
    drb = new is not None and "drb-Identity" in new.get("servedRadioBearer", {})
    return member.word in AT_CREATION and new is not None or member.word in AT_CREATION_OF_DRB and drb


class Walk:
    """One message applied. Of each value: what is held of it or ABSENT, what is sent, where, and, where the nearest
    entry around it is added, that entry."""

    def __init__(self, schema):
        self.schema = schema
        self.refused = []
        self.notices = []

    def value(self, kind, held, sent, at, new):
        kind = self.schema.type(kind)
        if isinstance(kind, Sequence):
            return self.sequence(kind, {} if held is ABSENT else held, sent, at, new)
        if isinstance(kind, Choice):
            return self.choice(kind, {} if held is ABSENT else held, sent, at, new)
        if isinstance(kind, SetupRelease):
            return self.setup_release(kind, held, sent, at, new)
        if isinstance(kind, List):
            # No entries with a life of their own: whatever was there, these are new.
            return [self.value(kind.element, ABSENT, element, f"{at}[{i}]", new) for i, element in enumerate(sent)]
        assert isinstance(kind, Plain)
        return sent

    def choice(self, kind, held, sent, at, new):
        (name, content), = sent.items()
        if name == UNKNOWN:
            return sent
        return {name: self.value(kind.alternatives[name], held.get(name, ABSENT), content, f"{at}.{name}", new)}

    def setup_release(self, kind, held, sent, at, new):
        if "release" in sent:
            if held is ABSENT:
                self.notices.append(f"{at}: released, is not held")
            return ABSENT
        before = ABSENT if held is ABSENT else held["setup"]
        return {"setup": self.value(kind.element, before, sent["setup"], f"{at}.setup", new)}

    def sequence(self, kind, held, sent, at, new):
        unknown = set(sent) - {member.name for member in kind.members} - {ADDITIONS}
        assert not unknown, f"{at}: {unknown}"
        held = self.without_supplementary_uplink(kind, held, sent)
        result = {}
        for member in kind.members:
            value = self.member(member, held, sent, f"{at}.{member.name}", new)
            if value is not ABSENT:
                result[member.name] = value
        additions = {addition["index"]: addition for each in (held, sent) for addition in each.get(ADDITIONS, [])}
        if additions:
            result[ADDITIONS] = [additions[index] for index in sorted(additions)]
        return result

    def member(self, member, held, sent, at, new):
        before = held.get(member.name, ABSENT)
        if member.identity is not None:
            return self.entries(member, [] if before is ABSENT else before, sent, at)
        if member.name not in sent:
            if demanded(member, new):
                self.refused.append(f"{at}: is not there, a new entry needs it")
            return before if held_after(member) else ABSENT
        if member.code == "N" and member.word not in ONE_SHOTS:
            return ABSENT
        after = sent[member.name]
        if member.word == "identity" and before not in (ABSENT, after):
            self.refused.append(f"{at}: {after}, {before} is held")
        return self.value(member.type, before, after, at, new)

    def entries(self, member, held, sent, at):
        """The entries of a list that are held, without those released, with those modified or added."""
        after = {identity(member, entry): entry for entry in held}
        for released in sent.get(member.released_by, []):
            if after.pop(released, ABSENT) is ABSENT:
                self.notices.append(f"{at}[{member.identity} {released}]: released, is not held")
        for entry in sent.get(member.name, []):
            number = identity(member, entry)
            before = after.get(number, ABSENT)
            after[number] = self.value(member.type.element, before, entry, f"{at}[{member.identity} {number}]",
                                       entry if before is ABSENT else None)
        if len(after) > member.type.upper:
            self.refused.append(f"{at}: {len(after)} entries, {member.type.upper} at most")
        return [after[number] for number in sorted(after)] or ABSENT

    def without_supplementary_uplink(self, kind, held, sent):
        """A common half of a serving cell that comes without a supplementary uplink ends the dedicated one, too."""
        for name, (path, dedicated) in SERVING_CELLS.items():
            if kind is self.schema.types[name] and dedicated in held and self.ends_supplementary_uplink(path, sent):
                rest = {name: value for name, value in held[dedicated].items() if name != "supplementaryUplink"}
                return held | {dedicated: rest}
        return held

    def ends_supplementary_uplink(self, path, sent):
        for step in path:
            if step not in sent:
                return False
            sent = sent[step]
        return any(member.word == "sul" and member.name not in sent
                   for member in self.schema.types["ServingCellConfigCommon"].members)
