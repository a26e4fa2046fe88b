// record: messages as the records that compose to them.
#include "commands.h"
#include "rrcDecompose.h"
#include "rrcRecordJson.h"
#include "rrcRecordToCpp.h"
#include "text.h"

#include <memory>
#include <sstream>

namespace tool
{
namespace
{

std::string unsaidText(const RrcUnsaid& unsaid)
{
    std::string text(rrcUnsaidFormat(&unsaid, nullptr, 0) + 1, '\0');
    (void)rrcUnsaidFormat(&unsaid, text.data(), text.size());
    text.pop_back();
    return text;
}

// Fills the record. Says what it cannot say.
void fill(RrcCellGroupCfg_t& record, Session& session, Message& message, const Given& given)
{
    struct Teller
    {
        Session& session;
        std::string place;
    } teller = {session, given.place()};
    const auto tell = [](void* to, const RrcUnsaid* unsaid)
    {
        const auto& told = *static_cast<const Teller*>(to);
        told.session.say(told.place + ": " + unsaidText(*unsaid));
        return 0;
    };
    const auto* const tree = static_cast<const CellGroupConfig*>(message.value());
    const INT32 unsaid = rrcDecomposeCellGroupCfg(&message.context(), tree, &record, tell, &teller);
    if (unsaid < 0)
    {
        throw Failure(Exit::Usage, given.place() + ": out of memory");
    }
    if (unsaid > 0)
    {
        session.raise(Exit::Findings);
    }
}

// Lines of JSON as one: no string in it has a line end.
std::string joined(const std::string& lines)
{
    std::istringstream in(lines);
    std::string all;
    for (std::string line; std::getline(in, line);)
    {
        all += line.substr(line.find_first_not_of(' '));
    }
    return all + "\n";
}

std::string json(const RrcCellGroupCfg_t& record)
{
    return written([&](RtxPrintSink sink, void* arg) { rrcRecordToJson(&record, sink, arg); });
}

std::string function(const RrcCellGroupCfg_t& record, const std::string& name)
{
    const std::string statements =
        written([&](RtxPrintSink sink, void* arg) { rrcRecordToCpp(&record, "record", sink, arg); });
    std::istringstream in(statements);
    std::string text = "void " + name + "(RrcCellGroupCfg_t& record)\n{\n";
    for (std::string line; std::getline(in, line);)
    {
        text += "    " + line + "\n";
    }
    return text + "}\n";
}

} // namespace

void record(Session& session, const Operands& operands, bool asCpp)
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    const bool several = session.isSeveral(operands);
    const bool lines = session.common().lines;
    unsigned number = 0;
    const auto show = [&](const Given& given)
    {
        Message message(typeNamed("CellGroupConfig"), given);
        message.expectGood();
        fill(*record, session, message, given);
        if (asCpp)
        {
            session.put(number == 0 ? "#include \"NR-RRC-Definitions.h\"\n#include \"rrcCodec/rrcInit.h\"\n" : "");
            session.put("\n" + (several ? "// " + given.place() + "\n" : ""));
            session.put(function(*record, numbered("fill", several, number)));
        }
        else
        {
            session.put(several && !lines ? "// " + given.place() + "\n" : "");
            session.put(lines ? joined(json(*record)) : json(*record));
        }
    };
    session.forEach(operands, show);
}

} // namespace tool
