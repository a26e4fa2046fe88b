// compose: a record as the message that it makes.
#include "commands.h"
#include "messageTypes.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcRecordFromJson.h"

#include <memory>

namespace tool
{
namespace
{

// Beside standard input lies what lies in the current folder.
void read(RrcCellGroupCfg_t& record, const Session::Source& from)
{
    std::string text;
    const auto sink = [](void* to, const RrcRecordMistake* found)
    {
        auto& all = *static_cast<std::string*>(to);
        const Asn1Mistake& mistake = found->mistake;
        all += (all.empty() ? "" : "\ncellgroupcfg: ") + std::string(found->file) + ":" + std::to_string(mistake.line) +
               ":" + std::to_string(mistake.column) + ": " + mistake.path + (*mistake.path != '\0' ? ": " : "") +
               mistake.words;
    };
    if (rrcRecordFromJson(&record, from.raw.data(), from.raw.size(), from.name.c_str(), sink, &text) != 0)
    {
        throw Failure(Exit::Malformed, text);
    }
}

std::vector<std::uint8_t> composed(const RrcCellGroupCfg_t& record, const std::string& name)
{
    constexpr std::size_t mostOctets = 8192;
    std::vector<std::uint8_t> octets(mostOctets);
    std::size_t length = 0;
    char error[1024] = "";
    if (rrcEncodeCellGroupCfg(&record, octets.data(), octets.size(), &length, error, sizeof error) != RRC_COMPOSE_OK)
    {
        throw Failure(Exit::Findings, name + ": " + error);
    }
    octets.resize(length);
    return octets;
}

} // namespace

void compose(Session& session, const std::string& operand, StateForm form)
{
    if (form == StateForm(OctetsForm::Binary))
    {
        session.expectBinary();
    }
    const Session::Source from = session.file(operand, maxInputOctets);
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    read(*record, from);
    session.put(stateIn(form, typeNamed("CellGroupConfig"), composed(*record, from.name), "message"));
}

} // namespace tool
