#include "readMessage.h"

#include "asn1FromText.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcRecordFromJson.h"
#include "rtxType.h"

#include <algorithm>

namespace tool
{

ReadMessage::ReadMessage(const RtxType& type, const Input& input, const char* source)
    : type_(type), isText_(tool::isText(input.form)), value_(type.size / sizeof(std::max_align_t) + 1)
{
    rtxInitContext(&context_);
    if (input.form == Form::Record)
    {
        readRecord(input, source);
    }
    else if (isText_)
    {
        readText(input);
    }
    else
    {
        octets_ = input.octets;
        octets_.reserve(1); // an empty message has an address, too
        decode(octets_.size());
    }
}

ReadMessage::~ReadMessage()
{
    rtFreeContext(&context_);
}

// Its status stays in the context's error.
void ReadMessage::decode(std::size_t length)
{
    (void)pu_setBuffer(&context_, octets_.data(), length, 0);
    (void)rtxDecode(&context_, &type_, value_.data(), 0);
}

void ReadMessage::readText(const Input& input)
{
    const auto read = input.form == Form::Jer ? asn1FromJson : asn1FromFlat;
    const auto sink = [](void* to, const Asn1Mistake* mistake)
    {
        static_cast<std::vector<Mistake>*>(to)->push_back(
            {{}, mistake->line, mistake->column, mistake->path, mistake->words});
    };
    (void)read(&context_, &type_, value_.data(), input.text.data(), input.text.size(), sink, &mistakes_);
}

// Beside standard input lies what lies in the current folder.
void ReadMessage::readRecord(const Input& input, const char* source)
{
    record_.reset(new RrcCellGroupCfg_t);
    struct Told
    {
        ReadMessage& reading;
        std::string_view source;
    } told{*this, source == nullptr ? "" : source};
    const auto sink = [](void* to, const RrcRecordMistake* found)
    {
        const Told& all = *static_cast<Told*>(to);
        const Asn1Mistake& mistake = found->mistake;
        (found->isUnread != 0 ? all.reading.unread_ : all.reading.mistakes_)
            .push_back({found->file == all.source ? "" : found->file, mistake.line, mistake.column, mistake.path,
                        mistake.words});
    };
    if (rrcRecordFromJson(record_.get(), input.text.data(), input.text.size(), source, sink, &told) != 0)
    {
        return;
    }
    constexpr std::size_t mostOctets = 8192;
    constexpr std::size_t longestLine = 8192; // of the longest path and its reason
    octets_.resize(mostOctets);
    std::size_t length = 0;
    std::string error(longestLine, '\0');
    if (rrcEncodeCellGroupCfg(record_.get(), octets_.data(), octets_.size(), &length, error.data(), error.size()) !=
        RRC_COMPOSE_OK)
    {
        refusal_ = error.substr(0, error.find('\0'));
        return;
    }
    decode(length);
    // What was composed is a message, so only memory can be missing for its tree.
    if (context_.error.status != RTX_OK)
    {
        refusal_ = "out of memory";
    }
}

std::vector<std::uint8_t> encoding(int (*encode)(OSCTXT*, const void*), OSCTXT& context, const void* value,
                                   std::size_t most)
{
    for (std::size_t size = maxMessageOctets;; size = std::min(2 * size, most))
    {
        std::vector<std::uint8_t> buffer(size);
        rtxErrReset(&context);
        (void)pu_setBuffer(&context, buffer.data(), buffer.size(), 0);
        const int status = encode(&context, value);
        if (status != RTX_E_OVERFLOW || size >= most)
        {
            buffer.resize(status == RTX_OK ? pu_getMsgLen(&context) : 0);
            return buffer;
        }
    }
}

} // namespace tool
