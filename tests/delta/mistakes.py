"""Mistakes for the engine, each of which the tests of deltas have to notice.

    mistakes.py                          prints a line `name source` for each
    mistakes.py <folder> <name> <file>   writes the source in the folder, with the mistake, to the file"""

import pathlib
import sys

# Name, source, what stands there once, and what stands there instead.
MISTAKES = [
    ("cleared_members_are_not_sent_again", "rtxDiff.cpp",
     "if (need.absence != Absence::Keep)",
     "if (need.absence == Absence::Mandatory)"),
    ("kept_members_are_sent_again", "rtxDiff.cpp",
     "if (need.absence != Absence::Keep)",
     "if (need.absence != Absence::Action)"),
    ("what_is_gone_is_not_released", "rtxDiff.cpp",
     "take(list, *held, changes);\n            tell(RTX_DELTA_RELEASED",
     "tell(RTX_DELTA_RELEASED"),
    ("setups_are_sent_whole", "rtxDiff.cpp",
     "if (same)\n",
     "if (same && !type.setupRelease)\n"),
    ("members_of_creation_are_sent_later", "rtxDiff.cpp",
     "? RTX_DELTA_AT_CREATION\n                         : reason;",
     "? RtxDeltaReason{}\n                         : reason;"),
    ("supplementary_uplink_is_taken_as_held", "rtxDiff.cpp",
     "sulReleased_ = releasesSul(slot.inner(), slot.room());",
     "sulReleased_ = false;"),
    ("same_sync_is_sent_again", "rtxDiff.cpp",
     "|| !equal(type, prev, next, true);",
     "|| !equal(type, prev, next, true) || next != nullptr;"),
    ("added_entries_are_modified", "rtxApply.cpp",
     "            if (gone)\n",
     "            if (gone && added == change.added.count)\n"),
    ("actions_are_held", "rtxApply.cpp",
     "need.absence != Absence::Action || actions_ || isOneShot(need)",
     "need.list == ListRole::None"),
    ("extension_groups_stay", "rtxApply.cpp",
     "const bool kept = need.absence == Absence::Keep ||",
     "const bool kept = need.absence == Absence::Keep || addition != nullptr ||"),
    ("entries_are_in_no_order", "rtxDelta.cpp",
     "if (!inOrder)",
     "if (inOrder && count == 0)"),
    ("incomplete_entries_are_added", "rtxDelta.cpp",
     "if (!isSetup(need) ||",
     "if (value == nullptr || !isSetup(need) ||"),
]


def main():
    if len(sys.argv) == 1:
        for name, source, _, _ in MISTAKES:
            print(name, source)
        return
    folder, name, file = sys.argv[1:]
    (source, right, wrong), = (rest for each, *rest in MISTAKES if each == name)
    text = (pathlib.Path(folder) / source).read_text(encoding="utf-8")
    if text.count(right) != 1:
        sys.exit(f"{name}: {source} has {text.count(right)} of {right!r}")
    pathlib.Path(file).write_text(text.replace(right, wrong), encoding="utf-8")


if __name__ == "__main__":
    main()
