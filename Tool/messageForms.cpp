#include "messageForms.h"

#include "trace.h"

#include <utility>

namespace tool
{

std::string textIn(DecodeForm form, const Message& message, const Given& given, RtxRemark remark, void* remarkArg)
{
    const OSCTXT* const context = &message.context();
    const RtxType* const type = message.pdu().type;
    const auto write = [&](RtxPrintSink sink, void* arg)
    {
        // The writers' status is about trees that no message gives: the decoder's error says all.
        switch (form)
        {
        case DecodeForm::Json:
            (void)rtxToJson(context, type, message.value(), RTX_INDENTED, sink, arg);
            break;
        case DecodeForm::CompactJson:
            (void)rtxToJson(context, type, message.value(), RTX_COMPACT, sink, arg);
            break;
        case DecodeForm::ValueNotation:
            (void)rtxToValueNotation(context, type, message.value(), RTX_INDENTED, sink, arg);
            break;
        case DecodeForm::Flat:
            (void)rtxToFlatWithRemarks(context, type, message.value(), remark, remarkArg, sink, arg);
            break;
        default:
            break;
        }
    };
    return form == DecodeForm::Tree    ? treeText(message, remark, remarkArg)
           : form == DecodeForm::Trace ? traceText(message.pdu(), octetsOf(message.pdu(), given))
                                       : written(write);
}

std::string octetsIn(OctetsForm form, Octets octets, const std::string& name)
{
    switch (form)
    {
    case OctetsForm::Binary:
        return {reinterpret_cast<const char*>(octets.data()), octets.size()};
    case OctetsForm::CArray:
        return toCArray(octets, name);
    case OctetsForm::Base64:
        return toBase64(octets) + "\n";
    default:
        return toHex(octets) + "\n";
    }
}

std::string stateIn(StateForm form, const RtxPdu& pdu, std::vector<std::uint8_t> octets, const std::string& name)
{
    if (const auto* const inOctets = std::get_if<OctetsForm>(&form))
    {
        return octetsIn(*inOctets, octets, name);
    }
    const Given given{name, 0, {Form::Binary, std::move(octets), {}, {}}};
    return textIn(std::get<DecodeForm>(form), Message(pdu, given), given);
}

} // namespace tool
