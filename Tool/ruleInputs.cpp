#include "ruleInputs.h"

#include <array>
#include <new>

namespace tool
{
namespace
{

constexpr std::size_t mostCapabilities = std::size_t{1} << 20;
constexpr std::size_t longestLine = 8192;

// What a file says that the setting names, as the text that the library reads.
std::string rachText(Session& session, const Setting& said)
{
    try
    {
        const Given given = session.only(said.value, std::nullopt);
        const Message message(typeNamed("RACH-ConfigCommon"), given);
        message.expectGood();
        return written(
            [&](RtxPrintSink sink, void* arg)
            { (void)rtxToJson(&message.context(), message.pdu().type, message.value(), RTX_COMPACT, sink, arg); });
    }
    catch (const Failure& failure)
    {
        throw Failure(failure.status(), said.origin + ": " + failure.what());
    }
}

// The state that the messages before and this one lead to.
void takePrevious(std::optional<Encoding>& held, Session& session, const Setting& said)
{
    try
    {
        const RtxPdu& pdu = *session.common().type;
        const Given given = session.only(said.value);
        const Encoding message = Message(pdu, given).encode();
        held = held ? stateAfter(session, held, message, given.place()) : stateAfter(pdu, message);
    }
    catch (const Failure& failure)
    {
        throw Failure(failure.status() == Exit::Findings ? Exit::Malformed : failure.status(),
                      said.origin + ": " + failure.what());
    }
}

// Without a value the agreement with the others alone.
void set(RrcSettings* settings, const Setting& said, std::optional<std::string_view> value, const std::string& origin)
{
    std::array<char, longestLine> error;
    const char* const text = value ? value->data() : nullptr;
    if (rrcSettingsSet(settings, said.setting->name, text, value.value_or("").size(), origin.c_str(), error.data(),
                       error.size()) != 0)
    {
        throw Failure(Exit::Usage, error.data());
    }
}

} // namespace

std::vector<std::string> optionsOf(OSUINT32 inputs)
{
    static constexpr std::array<const char*, RRC_RULE_INPUTS> words = {
        "--previous or --full",
        "--message",
        "--mcg or --scg",
        "--band",
        "--fr or --band",
        "--fdd, --tdd or --band",
        "--carrier",
        "--bwp0-dl",
        "--bwp0-ul",
        "--ssb-bitmap",
        "--typeA-position",
        "--coreset0",
        "--tdd-pattern",
        "a message with the cell-common configuration",
        "--bearers",
        "--meas-object",
        "--endc, --nrdc or --none, with --other-cells",
        "--capability",
        "--rach",
    };
    std::vector<std::string> all;
    for (OSUINT32 i = 0; i < RRC_RULE_INPUTS; ++i)
    {
        if ((inputs >> i & 1) != 0)
        {
            all.emplace_back(words[i]);
        }
    }
    return all;
}

Settings merged(const Settings& first, const Settings& second)
{
    Settings all = first;
    for (const Setting& said : second)
    {
        const bool isSaid = std::any_of(first.begin(), first.end(),
                                        [&](const Setting& one)
                                        { return std::string_view(one.setting->group) == said.setting->group; });
        if (!isSaid)
        {
            all.push_back(said);
        }
    }
    return all;
}

RuleInputs::Owner RuleInputs::newSettings()
{
    Owner made(rrcSettingsNew());
    if (made == nullptr)
    {
        throw std::bad_alloc();
    }
    return made;
}

RuleInputs::RuleInputs(Session& session, const Settings& settings)
{
    // Whether they agree is said before any file is read.
    const Owner agreement = newSettings();
    for (const Setting& said : settings)
    {
        set(agreement.get(), said, std::nullopt, said.origin);
    }
    for (const Setting& said : settings)
    {
        const std::string_view name = said.setting->name;
        if (name == "previous")
        {
            takePrevious(held_, session, said);
        }
        else if (name == "rach")
        {
            set(settings_.get(), said, rachText(session, said), said.origin);
        }
        else if (name == "capability")
        {
            const std::string text = Session::file(said.value, mostCapabilities).raw;
            set(settings_.get(), said, text, said.origin + ": " + said.value);
        }
        else
        {
            set(settings_.get(), said, said.value, said.origin);
        }
    }
    std::array<char, longestLine> error;
    context_ = rrcSettingsContext(settings_.get(), error.data(), error.size());
    if (context_ == nullptr)
    {
        throw Failure(Exit::Usage, error.data());
    }
}

} // namespace tool
