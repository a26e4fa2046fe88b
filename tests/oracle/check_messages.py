"""check_messages.py <oracle folder> <message folder>: the oracle reads from each message what its test meant."""

import json
import sys

import oracle_run


def same(meant, decoded):
    """Equality of JSON values without Python's 1 == True."""
    if type(meant) is not type(decoded):
        return False
    if isinstance(meant, dict):
        return meant.keys() == decoded.keys() and all(same(meant[name], decoded[name]) for name in meant)
    if isinstance(meant, list):
        return len(meant) == len(decoded) and all(map(same, meant, decoded))
    return meant == decoded


def main():
    oracle = oracle_run.Oracle(sys.argv[1])
    messages = oracle_run.messages(sys.argv[2])
    pairs = [(message.type, message.hex) for message in messages]
    failures = []
    for message, decoded, again in zip(messages, oracle.show(pairs), oracle.reencode(pairs)):
        if not same(message.meant, decoded):
            failures.append(f"{message.test}: {message.type} {message.hex}\n"
                            f"  meant:   {json.dumps(message.meant, separators=(',', ':'))}\n"
                            f"  decoded: {json.dumps(decoded, separators=(',', ':'))}")
        elif again != f"ok {message.hex}":
            failures.append(f"{message.test}: {message.type} {message.hex}\n  encoded again: {again}")
    oracle_run.conclude(failures, f"{len(messages)} messages of {len({message.test for message in messages})} tests")


main()
