// The program inside the playground's page: texts in, the content of a page or a refusal out. playground.js calls it,
// each time in a new instance, so that nothing is freed and nothing is kept.
#include "asn1FromText.h"
#include "input.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcPage.h"
#include "rrcRecordFromJson.h"
#include "text.h"

#include <cstdlib>
#include <memory>
#include <new>

namespace
{

struct Bytes
{
    const char* data;
    std::size_t size;

    std::string_view view() const
    {
        return {data, size};
    }
};

struct Given
{
    Bytes text;
    Bytes name;
    Bytes form; // as --as names it; empty: to be recognised
};

// As playground.js lays it out: 32-bit words.
struct Request
{
    Given given[2];
    std::uint32_t band;
    std::uint32_t duplex;
    std::uint32_t extent;
    std::uint32_t message;
    std::uint32_t group;
};

struct Answer
{
    std::uint32_t refused; // 0: `text` is the content; else it says why the first (1) or the second (2) is refused
    Bytes text;
    std::uint32_t line; // of the refusal, both from 1; 0: the whole text
    std::uint32_t column;
    Bytes forms; // that would be accepted, with blanks between them
};

Answer answer;
std::string answerText;
std::string answerForms;

constexpr std::size_t longestEncoding = 65536;
constexpr std::size_t longestLine = 8192;

tool::Refusal refusalOf(const RtxError& error)
{
    std::string words(longestLine, '\0');
    words.resize(std::min(rtxErrorFormat(&error, words.data(), words.size()), words.size() - 1));
    return {std::move(words), {}, {}};
}

void addMistake(tool::Refused& refused, const Asn1Mistake& mistake)
{
    if (!refused)
    {
        refused = tool::Refusal{{}, {mistake.line, mistake.column}, {}};
    }
    else
    {
        refused->reason += "\n" + std::to_string(mistake.line) + ":" + std::to_string(mistake.column) + ": ";
    }
    refused->reason += (*mistake.path != '\0' ? std::string(mistake.path) + ": " : "") + mistake.words;
}

// The message of a tree in text.
tool::Refused encodeText(const tool::Input& input, std::vector<std::uint8_t>& octets)
{
    OSCTXT context;
    rtxInitContext(&context);
    CellGroupConfig value;
    tool::Refused refused;
    const auto sink = [](void* to, const Asn1Mistake* mistake)
    {
        addMistake(*static_cast<tool::Refused*>(to), *mistake);
    };
    const auto read = input.form == tool::Form::Jer ? asn1FromJson : asn1FromFlat;
    if (read(&context, asn1Type_CellGroupConfig(), &value, input.text.data(), input.text.size(), sink, &refused) == 0)
    {
        octets.resize(longestEncoding);
        (void)pu_setBuffer(&context, octets.data(), octets.size(), 0);
        const int status = asn1PE_CellGroupConfig(&context, &value);
        octets.resize(status == RTX_OK ? pu_getMsgLen(&context) : 0);
        refused = status == RTX_OK ? std::nullopt : std::optional(refusalOf(context.error));
    }
    rtFreeContext(&context);
    return refused;
}

// The message that a record composes to.
tool::Refused encodeRecord(const tool::Input& input, std::vector<std::uint8_t>& octets)
{
    const std::unique_ptr<RrcCellGroupCfg_t> record(new RrcCellGroupCfg_t);
    tool::Refused refused;
    const auto sink = [](void* to, const RrcRecordMistake* found)
    {
        if (found->isUnread == 0)
        {
            addMistake(*static_cast<tool::Refused*>(to), found->mistake);
        }
    };
    if (rrcRecordFromJson(record.get(), input.text.data(), input.text.size(), nullptr, sink, &refused) != 0)
    {
        return refused;
    }
    octets.resize(longestEncoding);
    std::size_t length = 0;
    std::string error(longestLine, '\0');
    if (rrcEncodeCellGroupCfg(record.get(), octets.data(), octets.size(), &length, error.data(), error.size()) !=
        RRC_COMPOSE_OK)
    {
        return tool::Refusal{error.substr(0, error.find('\0')), {}, {}};
    }
    octets.resize(length);
    return std::nullopt;
}

tool::Refused read(const Given& given, page::Shown& shown)
{
    auto recognition = tool::recognise(given.text.view(), tool::formNamed(given.form.view()));
    if (auto* refusal = std::get_if<tool::Refusal>(&recognition))
    {
        return std::move(*refusal);
    }
    tool::Input& input = std::get<tool::Input>(recognition);
    shown.name = given.name.view();
    shown.note = input.note;
    switch (input.form)
    {
    case tool::Form::Jer:
    case tool::Form::Flat:
        return encodeText(input, shown.octets);
    case tool::Form::Record:
        return encodeRecord(input, shown.octets);
    default:
        break;
    }
    // No message is as long, and what shows one octet takes hundreds.
    if (input.octets.size() > longestEncoding)
    {
        return tool::Refusal{tool::counted(input.octets.size(), "octet") + "; a message of at most " +
                                 std::to_string(longestEncoding) + " is shown",
                             {},
                             {}};
    }
    shown.octets = std::move(input.octets);
    return std::nullopt;
}

void refuse(std::uint32_t which, const tool::Refusal& refusal)
{
    answer.refused = which;
    answer.line = static_cast<std::uint32_t>(refusal.place.line);
    answer.column = static_cast<std::uint32_t>(refusal.place.column);
    answerText = refusal.reason;
    for (const tool::Form form : refusal.candidates)
    {
        answerForms += (answerForms.empty() ? "" : " ") + std::string(tool::formName(form));
    }
}

void run(const Request& request)
{
    std::vector<page::Shown> messages;
    for (std::uint32_t which = 0; which < 2; ++which)
    {
        const Given& given = request.given[which];
        if (given.text.size == 0)
        {
            continue;
        }
        if (const auto refused = read(given, messages.emplace_back()))
        {
            refuse(which + 1, *refused);
            return;
        }
    }
    RrcRuleContext known{};
    known.band = static_cast<OSUINT16>(request.band);
    known.duplex = static_cast<OSUINT8>(request.duplex);
    known.extent = static_cast<OSUINT8>(request.extent);
    known.message = static_cast<OSUINT8>(request.message);
    known.group = static_cast<OSUINT8>(request.group);
    answerText = page::content(messages, &known);
}

} // namespace

extern "C"
{

__attribute__((export_name("allocate"))) void* playgroundAllocate(std::size_t size)
{
    return std::malloc(size);
}

__attribute__((export_name("view"))) const Answer* playgroundView(const Request* request)
{
    run(*request);
    answer.text = {answerText.data(), answerText.size()};
    answer.forms = {answerForms.data(), answerForms.size()};
    return &answer;
}

} // extern "C"
