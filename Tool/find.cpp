// find: cell groups inside of anything.
#include "captureReader.h"
#include "commands.h"
#include "message.h"
#include "octets.h"
#include "rtxType.h"
#include "text.h"
#include "trace.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <new>

namespace tool
{
namespace
{

using Json = nlohmann::ordered_json;

// What the search takes in one piece.
constexpr std::size_t maxSearched = std::size_t{512} << 20;

// Wireshark's exported PDU: tags of 16 bits, each with the length of its value, in front of the octets.
constexpr int linkTypeUpperPdu = 252;

std::span<const std::uint8_t> behindTags(std::span<const std::uint8_t> packet)
{
    constexpr std::size_t header = 4;
    while (packet.size() >= header)
    {
        const std::size_t tag = std::size_t{packet[0]} << 8 | packet[1];
        const std::size_t length = std::size_t{packet[2]} << 8 | packet[3];
        packet = packet.subspan(std::min(header + length, packet.size()));
        if (tag == 0)
        {
            break;
        }
    }
    return packet;
}

class Search
{
public:
    Search(Session& session, const FindOptions& options) : session_(session), options_(options)
    {
        rtxInitContext(&context_);
    }
    ~Search()
    {
        rtFreeContext(&context_);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    void in(const Session::Source& source)
    {
        const std::span<const std::uint8_t> raw(reinterpret_cast<const std::uint8_t*>(source.raw.data()),
                                                source.raw.size());
        if (raw.size() > maxSearched)
        {
            throw Failure(Exit::Usage, source.name + ": more than " + counted(maxSearched, "octet"));
        }
        if (!session_.common().as && isCapture(raw))
        {
            capture(source.name, raw);
            return;
        }
        if (session_.common().lines)
        {
            lines(source);
            return;
        }
        const Recognition recognition = recognise(source.raw, session_.common().as);
        const auto* const input = std::get_if<Input>(&recognition);
        if (input != nullptr && input->form != Form::LogLine)
        {
            session_.note(source.name + ": " + input->note);
            given(source.name, *input);
            return;
        }
        // A log: whatever its lines hold.
        if (!lines(source))
        {
            throw Failure(Exit::Malformed, source.name + ": " + std::get<Refusal>(recognition).message());
        }
    }

    void finish()
    {
        if (options_.json)
        {
            session_.put(
                Json{{"version", 1}, {"found", std::move(json_)}}.dump(2, ' ', false, Json::error_handler_t::replace) +
                "\n");
        }
        session_.note(counted(total_, "message") + " found");
    }

private:
    void capture(const std::string& name, std::span<const std::uint8_t> raw)
    {
        std::uint64_t done = 0;
        const auto visit = [&](const Packet& packet)
        {
            done += packet.octets.size();
            session_.progress(done, raw.size());
            const bool isExported = packet.linkType == linkTypeUpperPdu;
            octets(name + ": packet " + std::to_string(packet.number),
                   isExported ? behindTags(packet.octets) : packet.octets);
        };
        if (const auto problem = readCapture(raw, nullptr, visit))
        {
            throw Failure(Exit::Malformed, name + ": " + *problem);
        }
    }

    // Whether any line has octets.
    bool lines(const Session::Source& source)
    {
        auto messages = MessageLines::of(source.raw);
        if (const auto* const refusal = std::get_if<Refusal>(&messages))
        {
            throw Failure(Exit::Malformed, source.name + ": " + refusal->message());
        }
        bool any = false;
        std::uint64_t done = 0;
        while (const auto line = std::get<MessageLines>(messages).next())
        {
            const std::string place = source.name + ":" + std::to_string(line->number);
            const Recognition recognition = recognise(line->text, session_.common().as);
            if (const auto* const input = std::get_if<Input>(&recognition))
            {
                session_.note(place + ": " + input->note);
                given(place, *input);
                any = true;
            }
            else
            {
                session_.note(place + ": " + std::get<Refusal>(recognition).message());
            }
            done += line->text.size() + 1;
            session_.progress(done, source.raw.size());
        }
        return any;
    }

    void given(const std::string& place, const Input& input)
    {
        if (isText(input.form))
        {
            throw Failure(Exit::Malformed, place + ": " + input.note + ", in which no octets are");
        }
        octets(place, input.octets);
    }

    void octets(const std::string& place, std::span<const std::uint8_t> data)
    {
        if (isMessage(data))
        {
            show(place, data, {0, 0, static_cast<OSUINT32>(data.size())});
            return;
        }
        std::vector<RtxFound> found;
        count_ = data.size();
        found_ = &found;
        const auto sink = [](void* search, const RtxFound* one)
        {
            static_cast<Search*>(search)->found_->push_back(*one);
        };
        const auto progress = [](void* search, std::size_t done)
        {
            auto& self = *static_cast<Search*>(search);
            self.session_.progress(done, self.count_);
        };
        const std::int64_t count = rtxFind(&context_, session_.common().type->type, data.data(), data.size(),
                                           options_.minOctets, sink, progress, this);
        rtFreeContext(&context_);
        if (count < 0)
        {
            throw Failure(Exit::Usage, place + ": out of memory");
        }
        for (const RtxFound& one : found)
        {
            show(place, data, one);
        }
    }

    // Whether the octets are a message with nothing around it.
    bool isMessage(std::span<const std::uint8_t> data)
    {
        if (data.size() < options_.minOctets || data.size() > maxMessageOctets)
        {
            return false;
        }
        const RtxType& type = *session_.common().type->type;
        std::vector<std::uint8_t> octets(data.begin(), data.end());
        std::vector<std::max_align_t> value(type.size / sizeof(std::max_align_t) + 1);
        (void)pu_setBuffer(&context_, octets.data(), octets.size(), 0);
        const int status = rtxDecode(&context_, &type, value.data(), RTX_DECODE_STRICT);
        rtFreeContext(&context_);
        if (status == RTX_E_HEAP)
        {
            throw std::bad_alloc();
        }
        return status == RTX_OK;
    }

    void show(const std::string& place, std::span<const std::uint8_t> data, const RtxFound& found)
    {
        ++total_;
        std::vector<std::uint8_t> message(found.octets);
        rtxCopyBits(message.data(), data.data(), found.contentBit, message.size());
        if (options_.json)
        {
            json_.push_back(
                {{"place", place}, {"bit", found.contentBit}, {"octets", found.octets}, {"hex", toHex(message)}});
            return;
        }
        session_.put(place + ": " + octetPlace(found.contentBit) + ": " + counted(found.octets, "octet") + ": " +
                     toHex(message) + "\n");
        if (options_.decode)
        {
            const Given given{place, 0, {Form::Binary, std::move(message), {}, {}}};
            session_.put(treeText(Message(*session_.common().type, given)));
        }
    }

    Session& session_;
    const FindOptions& options_;
    OSCTXT context_;
    std::vector<RtxFound>* found_ = nullptr; // of the octets that are being searched
    std::size_t count_ = 0;                  // of these octets
    Json json_ = Json::array();
    std::size_t total_ = 0;
};

} // namespace

void find(Session& session, const Operands& operands, const FindOptions& options)
{
    Search search(session, options);
    session.forOperands(operands, maxSearched, [&](const Session::Source& source) { search.in(source); });
    search.finish();
}

} // namespace tool
