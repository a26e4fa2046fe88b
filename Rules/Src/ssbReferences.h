// Every SS/PBCH block that a configuration names.
#ifndef RULES_SSBREFERENCES_H
#define RULES_SSBREFERENCES_H

#include "check.h"
#include "modelLists.h"

namespace rules
{

class SsbReferences
{
public:
    explicit SsbReferences(Check& check) : tree_(check.tree), model_(check.model) {}

    // Calls `each(cell, index)` for every SSB-Index and the cell whose blocks it names, where that is known. All places
    // of the schema are here: tests/Rules/hostileTest.cpp counts them.
    template <typename Each>
    void forAll(const Each& each)
    {
        for (Cell& cell : model_.cells())
        {
            const auto tell = [&](const Cell* owner, const SSB_Index* index)
            {
                if (owner != nullptr && index != nullptr)
                {
                    each(*owner, *index);
                }
            };
            randomAccess(cell, tell);
            for (Bwp& bwp : cell.downlink)
            {
                downlink(cell, bwp, tell);
            }
            const Cell* const pathloss = isLinkedElsewhere(cell) ? nullptr : &cell;
            for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
            {
                for (Bwp& bwp : cell.bwps(direction))
                {
                    uplink(cell, bwp, pathloss, tell);
                }
            }
            const Cell* const measured = reportsOthers(cell) ? nullptr : &cell;
            for (const IdEntry<CSI_SSB_ResourceSet>& set : model_.csi(cell).ssbSets)
            {
                for (const SSB_Index& index : entries(&set.element->csi_SSB_ResourceList))
                {
                    tell(measured, &index);
                }
            }
        }
    }

private:
    // What a choice names of which ssb-Index is the first alternative.
    template <typename Choice>
    static const SSB_Index* indexOf(const Choice* choice)
    {
        return isChosen(choice, 1) ? &choice->u.ssb_Index : nullptr;
    }

    const Cell* named(const Cell& own, const ServCellIndex* index)
    {
        return index == nullptr ? &own : model_.cell(*index);
    }

    template <typename Tell>
    void randomAccess(const Cell& cell, const Tell& tell)
    {
        const auto* const sync = cell.spCell == nullptr ? nullptr : MEMBER(*cell.spCell, reconfigurationWithSync);
        const auto* const choice = sync == nullptr ? nullptr : MEMBER(*sync, rach_ConfigDedicated);
        for (const RACH_ConfigDedicated* const rach :
             {CHOSEN(tree_, choice, ReconfigurationWithSync_rach_ConfigDedicated, uplink),
              CHOSEN(tree_, choice, ReconfigurationWithSync_rach_ConfigDedicated, supplementaryUplink)})
        {
            const CFRA* const cfra = rach == nullptr ? nullptr : MEMBER(*rach, cfra);
            const auto* const resources = cfra == nullptr ? nullptr : &cfra->resources;
            const auto* const blocks = CHOSEN(tree_, resources, CFRA_resources, ssb);
            for (const auto& one :
                 tree_.list<CFRA_SSB_Resource>(blocks == nullptr ? nullptr : &blocks->ssb_ResourceList))
            {
                tell(&cell, &one.ssb);
            }
        }
    }

    template <typename Tell>
    void downlink(const Cell& cell, Bwp& bwp, const Tell& tell)
    {
        for (const IdEntry<TCI_State>& state : model_.pdsch(bwp).tciStates)
        {
            for (const QCL_Info* const info : {&state.element->qcl_Type1, MEMBER(*state.element, qcl_Type2)})
            {
                if (info != nullptr && isChosen(&info->referenceSignal, T_QCL_Info_referenceSignal_ssb))
                {
                    tell(named(cell, MEMBER(*info, cell)), &info->referenceSignal.u.ssb);
                }
            }
        }
        const auto* const monitored =
            bwp.rlm == nullptr ? nullptr : MEMBER(*bwp.rlm, failureDetectionResourcesToAddModList);
        for (const RadioLinkMonitoringRS& one : tree_.list<RadioLinkMonitoringRS>(monitored))
        {
            tell(&cell, indexOf(&one.detectionResource));
        }
    }

    template <typename Tell>
    void uplink(const Cell& cell, Bwp& bwp, const Cell* pathloss, const Tell& tell)
    {
        for (const IdEntry<PUCCH_SpatialRelationInfo>& relation : model_.pucch(bwp).spatialRelations)
        {
            tell(named(cell, MEMBER(*relation.element, servingCellId)), indexOf(&relation.element->referenceSignal));
        }
        const auto* const power = bwp.pucch == nullptr ? nullptr : MEMBER(*bwp.pucch, pucch_PowerControl);
        for (const PUCCH_PathlossReferenceRS& one :
             tree_.list<PUCCH_PathlossReferenceRS>(power == nullptr ? nullptr : MEMBER(*power, pathlossReferenceRSs)))
        {
            tell(pathloss, indexOf(&one.referenceSignal));
        }
        for (const IdEntry<PUSCH_PathlossReferenceRS>& one : model_.pusch(bwp).pathlossRs)
        {
            tell(pathloss, indexOf(&one.element->referenceSignal));
        }
        for (const IdEntry<SRS_ResourceSet>& set : model_.srs(bwp).sets)
        {
            tell(pathloss, indexOf(MEMBER(*set.element, pathlossReferenceRS)));
        }
        for (const IdEntry<SRS_Resource>& resource : model_.srs(bwp).resources)
        {
            if (const auto* const relation = MEMBER(*resource.element, spatialRelationInfo))
            {
                tell(named(cell, MEMBER(*relation, servingCellId)), indexOf(&relation->referenceSignal));
            }
        }
        const OSRTDList* const candidates = bwp.bfr == nullptr ? nullptr : MEMBER(*bwp.bfr, candidateBeamRSList);
        for (const PRACH_ResourceDedicatedBFR& one : tree_.list<PRACH_ResourceDedicatedBFR>(candidates))
        {
            const auto* const choice = &one;
            const BFR_SSB_Resource* const block = CHOSEN(tree_, choice, PRACH_ResourceDedicatedBFR, ssb);
            tell(&cell, block == nullptr ? nullptr : &block->ssb);
        }
    }

    static bool isLinkedElsewhere(const Cell& cell)
    {
        const auto* const linking =
            cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, pathlossReferenceLinking);
        return linking != nullptr && *linking == ServingCellConfig_pathlossReferenceLinking_spCell;
    }

    bool reportsOthers(Cell& cell)
    {
        for (const IdEntry<CSI_ReportConfig>& report : model_.csi(cell).reports)
        {
            const ServCellIndex* const carrier = MEMBER(*report.element, carrier);
            if (carrier != nullptr && !(cell.index && *cell.index == *carrier))
            {
                return true;
            }
        }
        return false;
    }

    const Tree& tree_;
    Model& model_;
};

} // namespace rules

#endif
