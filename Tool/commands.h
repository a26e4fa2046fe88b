// The commands: each recognises its input, calls a library and writes what comes out. They throw Failure.
#pragma once

#include "findings.h"
#include "meanings.h"
#include "messageForms.h"
#include "rrcNesting.h"
#include "ruleInputs.h"

#include <string>
#include <vector>

namespace tool
{

using Operands = std::vector<std::string>;

void decode(Session& session, const Operands& operands, DecodeForm form, const ExplainOptions& explain);

void encode(Session& session, const Operands& operands, OctetsForm form);

struct DiffOptions
{
    bool json;
    bool state; // what the messages leave behind
    ExplainOptions explain;
};
void diff(Session& session, const std::string& a, const std::string& b, const DiffOptions& options);

struct DeltaOptions
{
    unsigned flags; // RTX_DELTA_...
    bool explain;
    OctetsForm form;
};
// From what is held, of a UE that has nothing `none`, to what shall be held.
void delta(Session& session, const std::string& prev, const std::string& next, const DeltaOptions& options);

// What is held after the deltas, in one of both forms.
void apply(Session& session, const std::string& prev, const Operands& deltas, StateForm form);

// A record in JSON as its message.
void compose(Session& session, const std::string& operand, StateForm form);

// Messages as the records that compose to them: in JSON, or as the C++ that fills them.
void record(Session& session, const Operands& operands, bool asCpp);

// A record to begin with as JSON; an empty name lists them.
void example(Session& session, const std::string& name);
// One with every member of a field, each with what may stand there; an empty path stands for all.
void scaffold(Session& session, const std::string& path);

struct CheckOptions
{
    FindingsForm form;
    Severity shown;                 // the least
    std::optional<Severity> failOn; // the least that is a failure; nothing: none is
    std::vector<std::string> only;  // ids, or the beginnings of several
    std::vector<std::string> disabled;
    Settings context;
    bool hasProject;     // a project file is read
    std::string project; // empty: the one around the working directory
    bool isChain;        // each message comes on top of those before it
};
void check(Session& session, const Operands& operands, const CheckOptions& options);

// One message or two, as a page.
void view(Session& session, const Operands& operands, const Settings& context);

struct FindOptions
{
    std::uint32_t minOctets; // of a message
    bool decode;
    bool json;
};
void find(Session& session, const Operands& operands, const FindOptions& options);

void pcap(Session& session, const Operands& operands, Nesting nesting);

// The table of rules, of which an id begins with one of the prefixes; without prefixes all.
void rules(Session& session, const Operands& prefixes, bool json);

struct DrawOptions
{
    unsigned firstSlot;
    unsigned slots; // 0: by the periods
    Settings context;
};
// The radio resources of a message as SVG.
void draw(Session& session, const std::string& operand, const DrawOptions& options);

// A rule's id, a type, a path, a member's name or a field of the record. An empty name lists the named types.
void explain(Session& session, const std::string& name, bool tree);

} // namespace tool
