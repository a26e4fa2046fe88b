#include "message.h"

#include "asn1FromText.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcRecordFromJson.h"
#include "rtxType.h"

#include <algorithm>

namespace tool
{
namespace
{

// Of the longest path and its reason.
constexpr std::size_t longestLine = 8192;

} // namespace

Message::Message(const RtxPdu& pdu, const Given& given)
    : pdu_(pdu),
      given_(given),
      isText_(tool::isText(given.input.form)),
      value_(pdu.type->size / sizeof(std::max_align_t) + 1)
{
    rtxInitContext(&context_);
    if (given.input.form == Form::Record)
    {
        readRecord(given.input);
    }
    else if (isText_)
    {
        readText(given.input);
    }
    else
    {
        decode();
    }
}

Message::~Message()
{
    rtFreeContext(&context_);
}

void Message::decode()
{
    octets_ = given_.input.octets;
    octets_.reserve(1); // an empty message has an address, too
    (void)pu_setBuffer(&context_, octets_.data(), octets_.size(), 0);
    // Its status stays in the context's error.
    (void)rtxDecode(&context_, pdu_.type, value_.data(), 0);
}

void Message::readText(const Input& input)
{
    const auto read = input.form == Form::Jer ? asn1FromJson : asn1FromFlat;
    const auto sink = [](void* to, const Asn1Mistake* mistake)
    {
        static_cast<std::vector<Mistake>*>(to)->push_back(
            {{}, mistake->line, mistake->column, mistake->path, mistake->words});
    };
    (void)read(&context_, pdu_.type, value_.data(), input.text.data(), input.text.size(), sink, &mistakes_);
}

// Files that it includes lie beside it; beside standard input lies what lies in the current folder.
void Message::readRecord(const Input& input)
{
    if (pdu_.type != asn1Type_CellGroupConfig())
    {
        throw Failure(Exit::Usage, given_.place() + ": a record is a CellGroupConfig, not a " + pdu_.name);
    }
    record_ = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    const auto sink = [](void* to, const RrcRecordMistake* found)
    {
        auto& message = *static_cast<Message*>(to);
        const Asn1Mistake& mistake = found->mistake;
        auto& all = found->isUnread != 0 ? message.unread_ : message.mistakes_;
        all.push_back({found->file == message.given_.source ? "" : found->file, mistake.line, mistake.column,
                       mistake.path, mistake.words});
    };
    if (rrcRecordFromJson(record_.get(), input.text.data(), input.text.size(), given_.source.c_str(), sink, this) != 0)
    {
        return;
    }
    constexpr std::size_t mostOctets = 8192;
    octets_.resize(mostOctets);
    std::size_t length = 0;
    std::string error(longestLine, '\0');
    if (rrcEncodeCellGroupCfg(record_.get(), octets_.data(), octets_.size(), &length, error.data(), error.size()) !=
        RRC_COMPOSE_OK)
    {
        refusal_ = error.substr(0, error.find('\0'));
        return;
    }
    (void)pu_setBuffer(&context_, octets_.data(), length, 0);
    (void)rtxDecode(&context_, pdu_.type, value_.data(), 0);
}

void Message::expectGood() const
{
    if (const RtxError* const wrong = error())
    {
        throw Failure(Exit::Malformed, given_.place() + ": " + errorText(*wrong));
    }
    std::string text;
    for (const Mistake& mistake : mistakes_)
    {
        // A message on a line of its own has only columns.
        const bool hasLines = given_.line == 0 || !mistake.file.empty();
        const std::string line = hasLines ? ":" + std::to_string(mistake.line) : "";
        text += (text.empty() ? "" : "\ncellgroupcfg: ") + (mistake.file.empty() ? given_.place() : mistake.file) +
                line + ":" + std::to_string(mistake.column) + ": " + (mistake.path.empty() ? "" : mistake.path + ": ") +
                mistake.words;
    }
    if (!text.empty())
    {
        throw Failure(Exit::Malformed, text);
    }
    if (!refusal_.empty())
    {
        throw Failure(Exit::Findings, given_.place() + ": " + refusal_);
    }
}

std::vector<std::uint8_t> Message::encode()
{
    expectGood();
    std::vector<std::uint8_t> octets = encoding(pdu_, context_, value_.data(), maxMessageOctets);
    if (octets.empty())
    {
        throw Failure(Exit::Malformed, given_.place() + ": " + errorText(context_.error));
    }
    return octets;
}

std::string treeText(const Message& message, RtxRemark remark, void* remarkArg)
{
    return written(
        [&](RtxPrintSink sink, void* arg) {
            rtx::print(&message.context(), *message.pdu().type, nullptr, message.value(), sink, arg, remark, remarkArg);
        });
}

std::string valueText(const OSCTXT* context, const RtxType& type, const void* value)
{
    std::string text = written([&](RtxPrintSink sink, void* arg)
                               { (void)rtxToValueNotation(context, &type, value, RTX_COMPACT, sink, arg); });
    constexpr std::string_view sign = "::= ";
    text.erase(0, text.find(sign) + sign.size());
    text.pop_back(); // the line end
    return text;
}

std::vector<std::uint8_t> encoding(const RtxPdu& pdu, OSCTXT& context, const void* value, std::size_t most)
{
    for (std::size_t size = maxMessageOctets;; size = std::min(2 * size, most))
    {
        std::vector<std::uint8_t> buffer(size);
        rtxErrReset(&context);
        (void)pu_setBuffer(&context, buffer.data(), buffer.size(), 0);
        const int status = pdu.encode(&context, value);
        if (status != RTX_E_OVERFLOW || size >= most)
        {
            buffer.resize(status == RTX_OK ? pu_getMsgLen(&context) : 0);
            return buffer;
        }
    }
}

std::vector<std::uint8_t> octetsOf(const RtxPdu& pdu, const Given& given)
{
    return isText(given.input.form) ? Message(pdu, given).encode() : given.input.octets;
}

} // namespace tool
