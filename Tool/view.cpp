// view: messages as one HTML page, or a page to paste them into.
#include "commands.h"
#include "example.h"
#include "rrcPage.h"
#include "rrcPlayground.h"

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
    if (operands.empty())
    {
        const std::string page = playground::page(pastedExamples());
        if (page.empty())
        {
            throw Failure(Exit::Usage,
                          "this build has no playground: it was made without clang-14, lld-14, wasi-libc, "
                          "libc++-14-dev-wasm32, libc++abi-14-dev-wasm32 or libclang-rt-14-dev-wasm32; name a message");
        }
        session.put(page);
        return;
    }
    const RuleInputs inputs(session, context);
    std::vector<page::Shown> messages;
    for (const std::string& operand : operands)
    {
        messages.push_back(shownOf(session, operand));
    }
    session.put(page::document(messages, &inputs.context(), inputs.held().value_or(Encoding{})));
}

} // namespace tool
