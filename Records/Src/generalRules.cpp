#include "generalRules.h"

namespace generalRules
{

const RrcRecordRule range = {"record-range",
                             nullptr,
                             "a number or an enumeration, as the encoder gets it, is a value of the standard",
                             "refused",
                             "store a value in the range that stands at the field",
                             nullptr,
                             RRC_RECORD_ERROR};
const RrcRecordRule spare = {"record-spare",
                             nullptr,
                             "no enumeration holds a spare value",
                             "sent, and no UE knows what it means",
                             "store one of the values that stand at the field",
                             nullptr,
                             RRC_RECORD_WARNING};
const RrcRecordRule dropped = {"record-dropped-bits",
                               nullptr,
                               "a field holds no more bits than are sent",
                               "the low bits, as another value",
                               "store a value in the range that stands at the field",
                               nullptr,
                               RRC_RECORD_WARNING};
const RrcRecordRule boolean = {
    "record-boolean", nullptr, "a BOOLEAN is 0 or 1", "the low 8 bits: any of them set is true",
    "store 0 or 1",   nullptr, RRC_RECORD_WARNING};
const RrcRecordRule alternative = {"record-no-alternative",
                                   nullptr,
                                   "a choice that is sent has an alternative",
                                   "refused",
                                   "set the bit of one alternative, or store its number",
                                   nullptr,
                                   RRC_RECORD_ERROR};
const RrcRecordRule bit = {"record-unknown-bit",      nullptr,      "a mask has no bits but those that have a name",
                           "nothing looks at others", "clear them", nullptr,
                           RRC_RECORD_WARNING};
const RrcRecordRule notSent = {"record-not-sent",
                               nullptr,
                               "what is switched on is sent",
                               "nothing, whatever the field holds",
                               "leave it switched off",
                               nullptr,
                               RRC_RECORD_WARNING};
const RrcRecordRule count = {"record-count",
                             nullptr,
                             "a count is one that the list can have",
                             "refused",
                             "give as many entries as the range at the count allows",
                             nullptr,
                             RRC_RECORD_ERROR};
const RrcRecordRule empty = {"record-empty-list",
                             nullptr,
                             "a list that is sent has entries",
                             "refused",
                             "give it an entry, or leave it out",
                             nullptr,
                             RRC_RECORD_ERROR};
const RrcRecordRule twice = {"record-same-identity",
                             nullptr,
                             "the entries of a list have different identities",
                             "sent as it stands: a UE takes the last one, or none",
                             "give each entry an identity of its own",
                             nullptr,
                             RRC_RECORD_NOTICE};
const RrcRecordRule released = {"record-added-and-released",
                                nullptr,
                                "one message does not release what it adds",
                                "sent as it stands: the UE releases first, then adds",
                                "keep this where it is to be made anew, else remove it from one of the two lists",
                                nullptr,
                                RRC_RECORD_NOTICE};

} // namespace generalRules
