#include "encodingIds.h"

#include <algorithm>
#include <array>

namespace page
{
namespace
{

constexpr auto ids = std::to_array<EncodingId>({
    {"asn1-range", "A value lies within the range of its type.", "", "X.680 51.4", true},
    {"asn1-size", "A list has as many elements as its type allows.", "", "X.680 51.5", true},
    {"asn1-choice", "A choice holds one of its alternatives.", "", "X.680 29", true},
    {"asn1-bits", "A bit string is as long as its type says.", "", "X.680 51.5", true},
    {"per-end", "A message has all the bits that it announces.",
     "The message is cut off, or it is of another type or release.", "", false},
    {"per-padding", "The bits that fill up the last octet are 0.",
     "The message is of another type, or its end is not where it is taken for.", "X.691 11.1", false},
    {"per-surplus", "Nothing follows the message.", "Leave out what follows the message.", "X.691 11.1", false},
    {"per-length", "A length is one that PER allows.", "", "X.691 11.9", false},
    {"per-extension", "An extension that is announced has an addition.", "", "X.691 19.7", false},
    {"depth", "A message is not deeper than any of its type can be.", "", "", false},
    {"memory", "There is memory for the message.", "", "", false},
    {"tree", "Each element of a message can be reached.", "", "", false},
    {"jer", "A text is JER of its type.", "", "X.697", false},
    {"record", "A text is a record in JSON.", "", "", false},
    {"record-unread", "A field of a record that is given is read.",
     "Leave the field out, or the mask or alternative that switches it off.", "", true},
    {"record-refused", "A record makes a message of 8192 octets at most.", "Send what it holds in several messages.",
     "", false},
    {"flat", "Flat lines are of their type.", "", "", false},
    {"unknown-addition", "A message has no additions of a later release.", "", "X.691 19.7", true},
    {"per-not-canonical", "A message is encoded in the one canonical way.", "", "X.691 6.1", true},
    {"delta-apply", "A message can be applied to what the UE has.",
     "Give with --previous what the UE has had, in order, or mend the message.", "TS 38.331 5.3.5.5", true},
    {"silence", "A comment that silences names a rule and a reason.",
     "Write // cellgroupcfg: silence RULE and the reason, at the member.", "", false},
});

} // namespace

std::span<const EncodingId> encodingIds()
{
    return ids;
}

const EncodingId* encodingIdNamed(std::string_view id)
{
    const auto* const found = std::find_if(ids.begin(), ids.end(), [&](const EncodingId& one) { return one.id == id; });
    return found == ids.end() ? nullptr : &*found;
}

const char* idOf(OSINT32 status)
{
    switch (status)
    {
    case RTX_E_RANGE:
        return "asn1-range";
    case RTX_E_SIZE:
        return "asn1-size";
    case RTX_E_CHOICE:
        return "asn1-choice";
    case RTX_E_BITS:
        return "asn1-bits";
    case RTX_E_END:
        return "per-end";
    case RTX_E_PADDING:
        return "per-padding";
    case RTX_E_SURPLUS:
        return "per-surplus";
    case RTX_E_LENGTH:
        return "per-length";
    case RTX_E_EXTENSION:
        return "per-extension";
    case RTX_E_DEPTH:
        return "depth";
    case RTX_E_HEAP:
        return "memory";
    default:
        return "tree";
    }
}

} // namespace page
