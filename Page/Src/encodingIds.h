// The ids of findings on reading and encoding a message; those of the rules are in rrcRules.h.
#pragma once

#include "asn1Runtime.h"

#include <span>
#include <string_view>

namespace page
{

struct EncodingId
{
    const char* id;
    const char* statement; // what holds, one sentence
    const char* advice;    // what to do where it does not; may be empty
    const char* clause;    // may be empty
    bool isOptional;       // the message can be read all the same
};

std::span<const EncodingId> encodingIds();

// Null where there is none.
const EncodingId* encodingIdNamed(std::string_view id);

// The id of a finding that an RtxStatus stands for.
const char* idOf(OSINT32 status);

} // namespace page
