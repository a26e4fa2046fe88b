// The commands: each recognises its input, calls a library and writes what comes out. They throw Failure.
#pragma once

#include "findings.h"
#include "rrcNesting.h"
#include "session.h"

#include <string>
#include <vector>

namespace tool
{

using Operands = std::vector<std::string>;

enum class DecodeForm
{
    Tree,
    Json,
    CompactJson,
    ValueNotation,
    Flat,
    Trace,
    Verdict, // one line a message
};
void decode(Session& session, const Operands& operands, DecodeForm form);

enum class OctetsForm
{
    Hex,
    Binary,
    CArray,
    Base64,
};
void encode(Session& session, const Operands& operands, OctetsForm form);

void diff(Session& session, const std::string& a, const std::string& b, bool json);

void check(Session& session, const Operands& operands, FindingsForm form);

struct FindOptions
{
    std::uint32_t minOctets; // of a message
    bool decode;
    bool json;
};
void find(Session& session, const Operands& operands, const FindOptions& options);

void pcap(Session& session, const Operands& operands, Nesting nesting);

// An empty path lists the named types.
void explain(Session& session, const std::string& path, bool tree);

} // namespace tool
