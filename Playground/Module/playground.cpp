// The program inside the playground's page: texts in, the content of a page or a refusal out. playground.js calls it,
// each time in a new instance, so that nothing is freed and nothing is kept.
#include "messageFindings.h"
#include "readMessage.h"
#include "rrcPage.h"
#include "text.h"

#include <cstdlib>
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

// A line each.
tool::Refusal refusalOf(const std::vector<tool::Mistake>& mistakes)
{
    tool::Refusal refusal{{}, {mistakes.front().line, mistakes.front().column}, {}};
    for (const tool::Mistake& mistake : mistakes)
    {
        if (!refusal.reason.empty())
        {
            refusal.reason += "\n" + std::to_string(mistake.line) + ":" + std::to_string(mistake.column) + ": ";
        }
        refusal.reason += (mistake.path.empty() ? "" : mistake.path + ": ") + mistake.words;
    }
    return refusal;
}

int encodeCellGroup(OSCTXT* context, const void* value)
{
    return asn1PE_CellGroupConfig(context, static_cast<const CellGroupConfig*>(value));
}

// The message that a text says.
tool::Refused encode(const tool::Input& input, std::vector<std::uint8_t>& octets)
{
    tool::ReadMessage reading(*asn1Type_CellGroupConfig(), input, nullptr);
    if (!reading.mistakes().empty())
    {
        return refusalOf(reading.mistakes());
    }
    if (!reading.refusal().empty())
    {
        return tool::Refusal{reading.refusal(), {}, {}};
    }
    octets = tool::encoding(encodeCellGroup, reading.context(), reading.value(), tool::maxMessageOctets);
    return octets.empty() ? tool::Refused(tool::Refusal{page::errorText(reading.context().error), {}, {}})
                          : std::nullopt;
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
    if (tool::isText(input.form))
    {
        return encode(input, shown.octets);
    }
    // No message is as long, and what shows one octet takes hundreds.
    if (input.octets.size() > tool::maxMessageOctets)
    {
        return tool::Refusal{tool::counted(input.octets.size(), "octet") + "; a message of at most " +
                                 std::to_string(tool::maxMessageOctets) + " is shown",
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
