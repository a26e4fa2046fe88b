// Every SS/PBCH block that a configuration names.
#ifndef RULES_SSBREFERENCES_H
#define RULES_SSBREFERENCES_H

#include "check.h"
#include "walk.h"

#include <string_view>

namespace rules
{

// Follows a walk over a cell group: the cell whose SS/PBCH blocks an SSB-Index is one of.
class SsbOwner
{
public:
    explicit SsbOwner(Check& check) : check_(check) {}

    // Null where that is not known.
    const Cell* ownerOf(const Value& value)
    {
        const std::string_view name =
            value.type.kind == rtx::Kind::Sequence ? std::string_view(value.type.name) : std::string_view();
        if (name == "SpCellConfig" || name == "SCellConfig")
        {
            enter(value.at);
        }
        else if (name == "QCL-Info")
        {
            hold(value, MEMBER(*static_cast<const QCL_Info*>(value.at), cell));
        }
        else if (name == "PUCCH-SpatialRelationInfo")
        {
            hold(value, MEMBER(*static_cast<const PUCCH_SpatialRelationInfo*>(value.at), servingCellId));
        }
        else if (name == "SRS-SpatialRelationInfo")
        {
            hold(value, MEMBER(*static_cast<const SRS_SpatialRelationInfo*>(value.at), servingCellId));
        }
        else if (name == "PUCCH-PathlossReferenceRS" || name == "PUSCH-PathlossReferenceRS" ||
                 name == "SRS-ResourceSet")
        {
            hold(value, nullptr);
            held_ = isLinkedElsewhere() ? nullptr : held_;
        }
        else if (name == "CSI-SSB-ResourceSet")
        {
            hold(value, nullptr);
            held_ = reportsOthers() ? nullptr : held_;
        }
        const auto at = reinterpret_cast<uintptr_t>(value.at);
        return at >= from_ && at < to_ ? held_ : cell_;
    }

private:
    void enter(const void* at)
    {
        cell_ = nullptr;
        for (Cell& cell : check_.model.cells())
        {
            cell_ = at == cell.spCell || at == cell.sCell ? &cell : cell_;
        }
        to_ = from_;
    }

    // What lies within the value is of another cell, where one is named.
    void hold(const Value& value, const ServCellIndex* named)
    {
        from_ = reinterpret_cast<uintptr_t>(value.at);
        to_ = from_ + value.type.size;
        held_ = named == nullptr ? cell_ : check_.model.cell(*named);
    }

    bool isLinkedElsewhere() const
    {
        const auto* const linking = cell_ == nullptr || cell_->dedicated == nullptr
                                        ? nullptr
                                        : MEMBER(*cell_->dedicated, pathlossReferenceLinking);
        return linking != nullptr && *linking == ServingCellConfig_pathlossReferenceLinking_spCell;
    }

    bool reportsOthers() const
    {
        if (cell_ == nullptr)
        {
            return false;
        }
        for (const IdEntry<CSI_ReportConfig>& report : check_.model.csi(*cell_).reports)
        {
            const ServCellIndex* const carrier = MEMBER(*report.element, carrier);
            if (carrier != nullptr && !(cell_->index && *cell_->index == *carrier))
            {
                return true;
            }
        }
        return false;
    }

    Check& check_;
    Cell* cell_ = nullptr;
    const Cell* held_ = nullptr;
    uintptr_t from_ = 0; // of what is held
    uintptr_t to_ = 0;
};

// Calls `each(type, at)` for a value that is a number, or for the numbers of an array.
template <typename Each>
void forNumbers(const OSCTXT& heap, const Value& value, const Each& each)
{
    if (value.type.kind == rtx::Kind::Integer)
    {
        each(value.type, value.at);
    }
    else if (value.type.kind == rtx::Kind::Array && value.type.element().kind == rtx::Kind::Integer)
    {
        forElements(heap, value.type, value.at, [&](const void* at) { each(value.type.element(), at); });
    }
}

constexpr int64_t highestSsb = 63; // which few other numbers have

// Calls `each(cell, type, at)` for every SSB-Index of a cell that is known.
template <typename Each>
void forSsbIndices(Check& check, const Each& each)
{
    SsbOwner owner(check);
    const auto visit = [&](const Value& value)
    {
        const Cell* const cell = owner.ownerOf(value);
        if (cell != nullptr)
        {
            forNumbers(check.tree.heap(), value,
                       [&](const RtxType& type, const void* at)
                       {
                           if (type.upper == highestSsb && std::string_view(type.name) == "SSB-Index")
                           {
                               each(*cell, type, at);
                           }
                       });
        }
    };
    forValues(check.tree.heap(), {*asn1Type_CellGroupConfig(), &check.model.config, nullptr, false}, visit);
}

} // namespace rules

#endif
