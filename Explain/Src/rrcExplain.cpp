#include "rrcExplain.h"

#include "rtxDelta.h"
#include "teller.h"
#include "uplinkParts.h"
#include "walk.h"

namespace rules::explain
{
namespace
{

bool isAt(const RtxType& type, const rtx::Member& member, const RtxType& wanted, size_t offset)
{
    return &type == &wanted && member.offset == offset;
}

#define IS_MEMBER(type, member, of, name) isAt(type, member, nr_rrc::type_##of, offsetof(of, name))

class Walk
{
public:
    Walk(Model& model, RrcMeaningSink sink, void* arg) : model_(model), sink_(sink), arg_(arg) {}

    // Only the value at an address, of a type, is told.
    void only(const void* value, const RtxType* type)
    {
        wanted_ = value;
        wantedType_ = type;
    }

    int64_t run(const CellGroupConfig& element)
    {
        const RtxType& type = *asn1Type_CellGroupConfig();
        walk({type, &element, nullptr, type, 0}, {}, nullptr);
        return told_;
    }

private:
    // A value with what holds it.
    struct At
    {
        const RtxType& type;
        const void* value;
        const void* of; // the sequence, choice or array; null for an element of a list
        const RtxType& holder;
        int64_t offset; // of a sequence's member; -1 in others
        const char* name = "";
    };

    void walk(const At& at, const Scope& scope, const Place* place)
    {
        if (ended_)
        {
            return;
        }
        switch (at.type.kind)
        {
        case rtx::Kind::Sequence:
            sequence(at, entered(at.type, at.value, scope), place);
            break;
        case rtx::Kind::Choice:
            if (const void* const value = alternativeAt(model_.tree.heap(), at.type, at.value))
            {
                const OSUINT32 index = rtx::load<OSUINT32>(at.value) - 1;
                const Place inner{place, named(at.type.names[index])};
                walk({*at.type.members[index].type, value, at.value, at.type, -1, at.type.names[index]}, scope, &inner);
            }
            break;
        case rtx::Kind::Array:
            array(at, scope, place);
            break;
        case rtx::Kind::List:
            list(at, scope, place);
            break;
        default:
            tell(at, scope, place);
            break;
        }
    }

    void sequence(const At& at, const Scope& scope, const Place* place)
    {
        for (unsigned i = 0; i < at.type.memberCount; ++i)
        {
            const rtx::Member& member = at.type.members[i];
            if (isSentMember(at.type, i, at.value))
            {
                const Place inner{place, named(at.type.names[i])};
                walk({*member.type, memberAt(member, at.value), at.value, at.type, member.offset, at.type.names[i]},
                     enteredMember(at.type, member, scope), &inner);
            }
        }
    }

    void array(const At& at, const Scope& scope, const Place* place)
    {
        const OSUINT32 count = std::min(rtx::countOf(at.type, at.value), static_cast<OSUINT32>(at.type.upper));
        const auto* const elements = static_cast<const OSOCTET*>(at.value) + at.type.members->offset;
        for (OSUINT32 i = 0; i < count; ++i)
        {
            const void* const element = elements + size_t{i} * at.type.element().size;
            const Place inner{place, elementStep(at.type, i, element)};
            walk({at.type.element(), element, at.value, at.type, -1}, scope, &inner);
        }
    }

    void list(const At& at, const Scope& scope, const Place* place)
    {
        const OSCTXT& heap = model_.tree.heap();
        const auto nodes = rtx::load<OSRTDList>(at.value);
        uint32_t reached = 0;
        const auto each = [&](uint32_t index, const void* data)
        {
            if (rtx::refuse(&heap, data, at.type.element()) == RTX_OK)
            {
                const Place inner{place, elementStep(at.type, index, data)};
                walk({at.type.element(), data, nullptr, at.type, -1}, scope, &inner);
            }
        };
        (void)rtx::forNodes(&heap, nodes, std::min(nodes.count, static_cast<uint32_t>(at.type.upper)), reached, each);
    }

    // The scope of what a structure of the message holds, found in the configuration by what identifies it.
    Scope entered(const RtxType& type, const void* value, Scope scope)
    {
        if (&type == &nr_rrc::type_SpCellConfig)
        {
            scope.cell = model_.spCell();
        }
        else if (&type == &nr_rrc::type_SCellConfig)
        {
            scope.cell = sCell(static_cast<const SCellConfig*>(value)->sCellIndex);
        }
        else if (&type == &nr_rrc::type_BWP_Downlink)
        {
            enterBwp(scope, static_cast<const BWP_Downlink*>(value)->bwp_Id);
        }
        else if (&type == &nr_rrc::type_BWP_Uplink)
        {
            enterBwp(scope, static_cast<const BWP_Uplink*>(value)->bwp_Id);
        }
        else if (&type == &nr_rrc::type_PUCCH_Resource)
        {
            scope.pucch = static_cast<const PUCCH_Resource*>(value);
        }
        else if (&type == &nr_rrc::type_CSI_RS_ResourceMapping)
        {
            scope.mapping = static_cast<const CSI_RS_ResourceMapping*>(value);
        }
        else if (scope.cell != nullptr && &type == &nr_rrc::type_NZP_CSI_RS_Resource)
        {
            enterUse(scope, model_.csi(*scope.cell).nzpUse,
                     static_cast<const NZP_CSI_RS_Resource*>(value)->nzp_CSI_RS_ResourceId);
        }
        else if (scope.cell != nullptr && &type == &nr_rrc::type_CSI_IM_Resource)
        {
            enterUse(scope, model_.csi(*scope.cell).imUse,
                     static_cast<const CSI_IM_Resource*>(value)->csi_IM_ResourceId);
        }
        else if (scope.cell != nullptr && &type == &nr_rrc::type_CSI_ReportConfig)
        {
            enterReport(scope, *static_cast<const CSI_ReportConfig*>(value));
        }
        return scope;
    }

    static Scope enteredMember(const RtxType& type, const rtx::Member& member, Scope scope)
    {
        if (IS_MEMBER(type, member, ServingCellConfig, uplinkConfig) ||
            IS_MEMBER(type, member, ServingCellConfigCommon, uplinkConfigCommon))
        {
            scope.direction = Direction::Uplink;
        }
        else if (IS_MEMBER(type, member, ServingCellConfig, supplementaryUplink) ||
                 IS_MEMBER(type, member, ServingCellConfigCommon, supplementaryUplinkConfig))
        {
            scope.direction = Direction::Supplementary;
        }
        else if (IS_MEMBER(type, member, ServingCellConfig, initialDownlinkBWP) ||
                 IS_MEMBER(type, member, DownlinkConfigCommon, initialDownlinkBWP) ||
                 IS_MEMBER(type, member, UplinkConfig, initialUplinkBWP) ||
                 IS_MEMBER(type, member, UplinkConfigCommon, initialUplinkBWP))
        {
            enterBwp(scope, 0);
        }
        return scope;
    }

    Cell* sCell(OSUINT32 index)
    {
        for (Cell& cell : model_.cells())
        {
            if (cell.sCell != nullptr && cell.sCell->sCellIndex == index)
            {
                return &cell;
            }
        }
        return nullptr;
    }

    static void enterBwp(Scope& scope, OSUINT32 id)
    {
        scope.bwp = scope.cell == nullptr ? nullptr : scope.cell->bwp(scope.direction, id);
    }

    // The bandwidth part of a resource, where it is used in one.
    template <size_t N>
    static void enterUse(Scope& scope, const CsiUse (&uses)[N], OSUINT32 id)
    {
        Bwp* found = nullptr;
        for (Bwp& bwp : scope.cell->downlink)
        {
            if (id >= N || bwp.id > maxNrofBWPs || (uses[id].bwps >> bwp.id & 1) == 0)
            {
                continue;
            }
            if (found != nullptr) // which of them is not said
            {
                return;
            }
            found = &bwp;
        }
        scope.bwp = found;
    }

    // A report's slots are those of the uplink that its PUCCH lies in.
    void enterReport(Scope& scope, const CSI_ReportConfig& report)
    {
        scope.measured = measuredBy(*scope.cell, report);
        scope.direction = Direction::Uplink;
        if (!scope.cell->isSpCell())
        {
            scope.cell = pucchCellOf(model_, *scope.cell);
        }
        const List<PUCCH_CSI_Resource> list = csiResourcesOf(model_.tree, report);
        if (list.size() == 1)
        {
            enterBwp(scope, (*list.begin()).uplinkBandwidthPartId);
        }
    }

    Bwp* measuredBy(Cell& own, const CSI_ReportConfig& report)
    {
        Cell* const cell = report.m.carrierPresent != 0 ? model_.cell(report.carrier) : &own;
        const auto* const channel =
            cell == nullptr ? nullptr : model_.csi(*cell).resourceConfigs.find(report.resourcesForChannelMeasurement);
        return channel == nullptr ? nullptr : cell->bwp(Direction::Downlink, channel->element->bwp_Id);
    }

    static bool isValue(const RtxType& type, const void* value)
    {
        switch (type.kind)
        {
        case rtx::Kind::Integer:
        case rtx::Kind::Enumerated:
            return rtx::outside(type, rtx::loadNumber(type, value)).status == RTX_OK;
        case rtx::Kind::BitStr32:
            return rtx::wrongLength(type, rtx::load<ASN1BitStr32>(value).numbits).status == RTX_OK;
        default:
            return true;
        }
    }

    void tell(const At& at, const Scope& scope, const Place* place)
    {
        const bool isAsked = wanted_ == nullptr || (wanted_ == at.value && wantedType_ == &at.type);
        if (!isAsked || !isValue(at.type, at.value))
        {
            return;
        }
        const Meaning* meaning = meaningOf(at.holder, at.offset, at.type);
        if (meaning == nullptr && at.type.kind == rtx::Kind::Enumerated)
        {
            meaning = unitMeaningOf(at.type, rtx::load<OSUINT32>(at.value));
        }
        if (meaning == nullptr)
        {
            return;
        }
        Teller teller(model_, scope, at.type, at.value, at.name);
        meaning->tell(teller, at.of);
        if (!teller.hasTold() || model_.memory.failed())
        {
            return;
        }
        ++told_;
        if (sink_ != nullptr)
        {
            const Path path(place);
            const RrcMeaning told = {at.value,        &at.type,           path.depth,
                                     path.steps,      teller.words(),     teller.formulaWords(),
                                     meaning->clause, teller.needWords(), teller.inputs()};
            ended_ = sink_(arg_, &told) != 0;
        }
        ended_ = ended_ || wanted_ != nullptr;
    }

    Model& model_;
    RrcMeaningSink sink_;
    void* arg_;
    const void* wanted_ = nullptr;
    const RtxType* wantedType_ = nullptr;
    int64_t told_ = 0;
    bool ended_ = false;
};

int64_t explainIn(OSCTXT* pctxt, const CellGroupConfig* element, const RrcRuleContext* known, const void* value,
                  const RtxType* type, RrcMeaningSink sink, void* arg)
{
    static constexpr RrcRuleContext nothing{};
    if (pctxt == nullptr || element == nullptr)
    {
        return RTX_E_NULL;
    }
    const RrcRuleContext& context = known == nullptr ? nothing : *known;
    const rtx::HeapScope scope(*pctxt);
    int status = RTX_OK;
    const CellGroupConfig* const after = stateAfter(*pctxt, *element, context, status);
    if (after == nullptr)
    {
        return status;
    }
    const Tree tree(*pctxt);
    Memory memory(*pctxt);
    Model model(memory, tree, *element, *after, context);
    // All that may be asked for, so that the heap is exhausted before anything is told.
    for (Cell& cell : model.cells())
    {
        (void)model.csi(cell);
    }
    if (memory.failed())
    {
        return RTX_E_HEAP;
    }
    Walk walk(model, sink, arg);
    walk.only(value, type);
    return walk.run(*element);
}

} // namespace
} // namespace rules::explain

int64_t rrcExplain(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, RrcMeaningSink sink,
                   void* arg)
{
    return rules::explain::explainIn(pctxt, pvalue, known, nullptr, nullptr, sink, arg);
}

int64_t rrcExplainValue(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, const void* value,
                        const RtxType* type, RrcMeaningSink sink, void* arg)
{
    return value == nullptr || type == nullptr
               ? int64_t{RTX_E_NULL}
               : rules::explain::explainIn(pctxt, pvalue, known, value, type, sink, arg);
}

size_t rrcMeaningFormat(const RrcMeaning* meaning, char* text, size_t size)
{
    rtx::Line line(text, size);
    rtx::append(line, "%s", meaning->text);
    if (meaning->needs[0] != '\0')
    {
        rtx::append(line, "%sneeds %s", line.length == 0 ? "" : "; ", meaning->needs);
    }
    return line.length;
}

size_t rrcMeaningPathFormat(const RrcMeaning* meaning, char* text, size_t size)
{
    rtx::Line line(text, size);
    rules::appendPath(line, {meaning->path, meaning->depth});
    return line.length;
}
