#include "meanings.h"

#include "rrcExplain.h"

namespace tool
{
namespace
{

std::string lineOf(const RrcMeaning& meaning)
{
    std::string line(rrcMeaningFormat(&meaning, nullptr, 0) + 1, '\0');
    (void)rrcMeaningFormat(&meaning, line.data(), line.size());
    line.pop_back(); // the terminator
    std::string options;
    for (const std::string& option : optionsOf(meaning.inputs))
    {
        options += (options.empty() ? "" : ", ") + option;
    }
    return options.empty() ? line : line + " (" + options + ")";
}

} // namespace

Meanings::Meanings(OSCTXT& context, const CellGroupConfig& value, const RrcRuleContext& known)
{
    (void)tell(context, value, known);
}

std::int64_t Meanings::tell(OSCTXT& context, const CellGroupConfig& value, const RrcRuleContext& known)
{
    const auto sink = [](void* to, const RrcMeaning* meaning)
    {
        static_cast<Meanings*>(to)->all_[{meaning->value, meaning->type}] = lineOf(*meaning);
        return 0;
    };
    return rrcExplain(&context, &value, &known, sink, this);
}

Meanings::Meanings(Message& message, const void* value, const RuleInputs& inputs)
{
    RrcRuleContext known = inputs.context();
    if (inputs.held())
    {
        known.previous =
            static_cast<const CellGroupConfig*>(decodedIn(message.context(), message.pdu(), *inputs.held()));
    }
    if (tell(message.context(), *static_cast<const CellGroupConfig*>(value), known) < 0)
    {
        throw Failure(Exit::Usage, "--explain: " + errorText(message.context().error));
    }
}

const std::string& Meanings::of(const RtxType* type, const void* value) const
{
    static const std::string none;
    const auto found = all_.find({value, type});
    return found == all_.end() ? none : found->second;
}

const char* Meanings::remark(void* arg, const RtxType* type, const void* value)
{
    return static_cast<const Meanings*>(arg)->of(type, value).c_str();
}

std::unique_ptr<RuleInputs> explainInputs(Session& session, const ExplainOptions& options)
{
    if (!options.isOn)
    {
        if (!options.context.empty())
        {
            throw Failure(Exit::Usage, options.context.front().origin + " is for --explain");
        }
        return nullptr;
    }
    if (session.common().type->type != asn1Type_CellGroupConfig())
    {
        throw Failure(Exit::Usage, "--explain is for CellGroupConfig");
    }
    return std::make_unique<RuleInputs>(session, options.context);
}

} // namespace tool
