// The forms in which messages are written, by the names of the options.
#pragma once

#include "message.h"
#include "octets.h"

#include <string>
#include <variant>
#include <vector>

namespace tool
{

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
// What a message says, in any form but a verdict; trees and flat lines with what is remarked on their values.
std::string textIn(DecodeForm form, const Message& message, const Given& given, RtxRemark remark = nullptr,
                   void* arg = nullptr);

enum class OctetsForm
{
    Hex,
    Binary,
    CArray,
    Base64,
};
// `name` is that of a C array.
std::string octetsIn(OctetsForm form, Octets octets, const std::string& name);

// A message that was made here, in one of both.
using StateForm = std::variant<OctetsForm, DecodeForm>;
std::string stateIn(StateForm form, const RtxPdu& pdu, std::vector<std::uint8_t> octets, const std::string& name);

} // namespace tool
