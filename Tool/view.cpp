// view: messages as one HTML page.
#include "commands.h"
#include "rrcPage.h"

namespace tool
{
namespace
{

page::Shown shownOf(Session& session, const std::string& operand)
{
    const Given given = session.only(operand);
    std::vector<std::uint8_t> octets = octetsOf(*session.common().type, given);
    return {given.source, given.input.note, std::move(octets)};
}

} // namespace

void view(Session& session, const Operands& operands, const Settings& context)
{
    const RuleInputs inputs(session, context);
    std::vector<page::Shown> messages;
    for (const std::string& operand : operands)
    {
        messages.push_back(shownOf(session, operand));
    }
    session.put(page::document(messages, &inputs.context(), inputs.held().value_or(Encoding{})));
}

} // namespace tool
