// What is wrong with a message: what breaks a constraint of the ASN.1, a rule of its encoding or a rule between
// members.
#pragma once

#include "rrcRules.h"

#include <string>

namespace page
{

struct MessageFinding
{
    std::string id;
    OSUINT8 severity = RRC_RULE_ERROR; // RrcRuleSeverity
    std::string path;
    std::string message; // what is wrong, one sentence without the path
    std::string value;   // what is there; empty where there is nothing to show
    std::string allowed; // what could be there
    std::string advice;
    std::string clause;
    OSUINT32 decidedBy = 0; // RrcRuleInput bits
    bool configuredBefore = false;
};

// "path: what is wrong", with octet and bit where they are known.
std::string errorText(const RtxError& error);

// Of a decoder's or a check's error.
MessageFinding findingOf(const RtxError& error);

// Of a rule.
MessageFinding findingOf(const RrcRuleFinding& told);

// Of additions that this release does not know; `root` is the message's type.
MessageFinding unknownFinding(const std::string& root, OSUINT32 count);

// Of a message that is encoded in another way; `note` is the noteText of the first field that has one.
MessageFinding noteFinding(const std::string& note);

// Tells what decoding has left beside a value: additions that are not known, and that it is encoded in another way.
// `root` is the message's type, `note` gives the noteText of the first field that has one, `take` takes a finding.
template <typename Note, typename Take>
void tellNotes(const RtxDecoded& decoded, const std::string& root, const Note& note, const Take& take)
{
    if (decoded.unknown != 0)
    {
        take(unknownFinding(root, decoded.unknown));
    }
    if (decoded.note != RTX_NOTE_NONE)
    {
        take(noteFinding(note()));
    }
}

// Of a message that cannot be applied to what the UE has.
MessageFinding refusalFinding(const RtxError& error);

// What `check` returns with what is known; of a message that cannot be applied to `known.previous` `refused` gets the
// finding, and it is checked as a delta to what nobody knows.
template <typename Check, typename Refused>
std::int64_t checkOrAsDelta(OSCTXT& context, RrcRuleContext& known, const Check& check, const Refused& refused)
{
    const std::int64_t status = check();
    if (status >= 0 || status == RTX_E_HEAP || known.previous == nullptr)
    {
        return status;
    }
    refused(refusalFinding(context.error));
    rtxErrReset(&context);
    known.previous = nullptr;
    known.extent = RRC_RULE_EXTENT_DELTA;
    return check();
}

} // namespace page
