#include "paths.h"

#include "walk.h"

namespace rules::draw
{
namespace
{

// What pictures show.
constexpr const RtxType* shown[] = {
    &nr_rrc::type_BWP,
    &nr_rrc::type_BWP_Downlink,
    &nr_rrc::type_BWP_Uplink,
    &nr_rrc::type_ConfiguredGrantConfig,
    &nr_rrc::type_ControlResourceSet,
    &nr_rrc::type_CSI_IM_Resource,
    &nr_rrc::type_CSI_ReportConfig,
    &nr_rrc::type_NZP_CSI_RS_Resource,
    &nr_rrc::type_PDSCH_TimeDomainResourceAllocation,
    &nr_rrc::type_PUCCH_Resource,
    &nr_rrc::type_PUSCH_TimeDomainResourceAllocation,
    &nr_rrc::type_SCellConfig,
    &nr_rrc::type_SchedulingRequestResourceConfig,
    &nr_rrc::type_SearchSpace,
    &nr_rrc::type_ServingCellConfig,
    &nr_rrc::type_ServingCellConfigCommon,
    &nr_rrc::type_SpCellConfig,
    &nr_rrc::type_SPS_Config,
    &nr_rrc::type_SRS_Resource,
    &nr_rrc::type_ZP_CSI_RS_Resource,
};

bool isShown(const RtxType& type)
{
    return std::find(std::begin(shown), std::end(shown), &type) != std::end(shown);
}

} // namespace

Paths::Paths(Model& model) : model_(model)
{
    const RtxType& type = *asn1Type_CellGroupConfig();
    std::string path = "CellGroupConfig";
    walk(type, &model.config, path);
    if (&model.config != &model.message)
    {
        walk(type, &model.message, path);
    }
}

void Paths::walk(const RtxType& type, const void* value, std::string& path)
{
    const size_t length = path.size();
    if (isShown(type))
    {
        all_.emplace(std::make_pair(value, &type), path);
    }
    switch (type.kind)
    {
    case rtx::Kind::Sequence:
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            const RtxType& inner = *type.members[i].type;
            if ((outerKinds & kindBit(inner.kind)) != 0 && isSentMember(type, i, value))
            {
                path.append(".").append(type.names[i]);
                walk(inner, memberAt(type.members[i], value), path);
                path.resize(length);
            }
        }
        break;
    case rtx::Kind::Choice:
        if (const void* const chosen = alternativeAt(model_.tree.heap(), type, value))
        {
            const OSUINT32 index = rtx::load<OSUINT32>(value) - 1;
            path.append(".").append(type.names[index]);
            walk(*type.members[index].type, chosen, path);
            path.resize(length);
        }
        break;
    case rtx::Kind::List:
    {
        const OSCTXT& heap = model_.tree.heap();
        const auto nodes = rtx::load<OSRTDList>(value);
        uint32_t reached = 0;
        const auto each = [&](uint32_t index, const void* data)
        {
            if (rtx::refuse(&heap, data, type.element()) == RTX_OK)
            {
                path.append("[").append(std::to_string(index)).append("]");
                walk(type.element(), data, path);
                path.resize(length);
            }
        };
        (void)rtx::forNodes(&heap, nodes, std::min(nodes.count, static_cast<uint32_t>(type.upper)), reached, each);
        break;
    }
    default:
        break;
    }
}

const std::string& Paths::at(const RtxType& type, const void* value) const
{
    const auto found = all_.find({value, &type});
    return found == all_.end() ? none_ : found->second;
}

} // namespace rules::draw
