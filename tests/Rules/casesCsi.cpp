#include "ruleCases.h"

namespace test
{

namespace
{

constexpr const char* typeII = AT_TRIGGERED
    "codebookConfig.codebookType = absent\n" AT_TRIGGERED
    "codebookConfig.codebookType.type2.subType.typeII.n1-n2-codebookSubsetRestriction.two-one = FFFF\n" AT_TRIGGERED
    "codebookConfig.codebookType.type2.subType.typeII.typeII-RI-Restriction = C0\n" AT_TRIGGERED
    "codebookConfig.codebookType.type2.phaseAlphabetSize = n4\n" AT_TRIGGERED
    "codebookConfig.codebookType.type2.subbandAmplitude = false\n" AT_TRIGGERED
    "codebookConfig.codebookType.type2.numberOfBeams = two\n";

// SS/PBCH blocks in each half frame.
const std::string everyHalfFrame =
    AT_COMMON "ssb-periodicityServingCell = ms5\n" AT_SYNC "smtc.periodicityAndOffset = absent\n" AT_SYNC
              "smtc.periodicityAndOffset.sf5 = 0\n";

constexpr const char* rsrp =
    AT_REPORT "reportQuantity = absent\n" AT_REPORT "reportFreqConfiguration = absent\n" AT_REPORT
              "codebookConfig = absent\n" AT_REPORT "csi-IM-ResourcesForInterference = absent\n";

std::string good(const char* rule, const char* changes)
{
    return std::string(rrcRuleById(rule)->good) + "\n" + changes;
}

std::string with(const char* first, const char* second)
{
    return std::string(first) + second;
}

void inDeltaKnowingCarrier(RrcRuleContext& known)
{
    static const SCS_SpecificCarrier carrier = []
    {
        SCS_SpecificCarrier made{};
        made.subcarrierSpacing = SubcarrierSpacing_kHz30;
        made.carrierBandwidth = 273;
        return made;
    }();
    known.extent = RRC_RULE_EXTENT_DELTA;
    known.carriersDl = &carrier;
    known.numCarriersDl = 1;
}

// The aperiodic report without what depends on its quantity, and named by no trigger.
const std::string untriggered =
    AT_CSI "aperiodicTriggerStateList = absent\n" AT_CSI "reportTriggerSize = absent\n" AT_TRIGGERED
           "reportQuantity = absent\n" AT_TRIGGERED "reportFreqConfiguration = absent\n" AT_TRIGGERED
           "codebookConfig = absent\n" AT_TRIGGERED "csi-IM-ResourcesForInterference = absent\n";

// Sets of CSI-RS with one port, of so many resources each, for the aperiodic report.
std::string manySets(std::initializer_list<int> sizes)
{
    std::string text;
    int set = 3;
    int resource = 6;
    for (const int size : sizes)
    {
        const std::string number = std::to_string(set);
        text += AT_NZP_SET "[" + number + "].nzp-CSI-ResourceSetId = " + number +
                "\n" AT_CSI_RESOURCES "[3].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[" +
                std::to_string(set - 3) + "] = " + number + "\n";
        for (int i = 0; i < size; ++i, ++resource)
        {
            const std::string at = AT_NZP "[" + std::to_string(resource) + "].";
            text += AT_NZP_SET "[" + number + "].nzp-CSI-RS-Resources[" + std::to_string(i) +
                    "] = " + std::to_string(resource) + "\n" + at +
                    "nzp-CSI-RS-ResourceId = " + std::to_string(resource) + "\n" + at +
                    "resourceMapping.frequencyDomainAllocation.row2 = 8000\n" + at +
                    "resourceMapping.nrofPorts = p1\n" + at + "resourceMapping.firstOFDMSymbolInTimeDomain = 13\n" +
                    at + "resourceMapping.cdm-Type = noCDM\n" + at + "resourceMapping.density.one = null\n" + at +
                    "resourceMapping.freqBand.startingRB = 0\n" + at + "resourceMapping.freqBand.nrofRBs = 276\n" + at +
                    "powerControlOffset = 0\n" + at + "scramblingID = 42\n";
        }
        ++set;
    }
    return text;
}

// A set for tracking on trigger, of one-port CSI-RS in these symbols, and the report of nothing that names it.
std::string triggeredTracking(std::initializer_list<int> symbols)
{
    const std::string state = AT_CSI "aperiodicTriggerStateList.setup[1].associatedReportConfigInfoList[0].";
    const std::string report = AT_CSI "csi-ReportConfigToAddModList[2].";
    std::string text =
        AT_NZP_SET "[3].nzp-CSI-ResourceSetId = 3\n" AT_NZP_SET "[3].trs-Info = true\n" AT_NZP_SET
                   "[3].aperiodicTriggeringOffset = 0\n" AT_CSI_RESOURCES
                   "[5].csi-ResourceConfigId = 5\n" AT_CSI_RESOURCES
                   "[5].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[0] = "
                   "3\n" AT_CSI_RESOURCES "[5].bwp-Id = 1\n" AT_CSI_RESOURCES "[5].resourceType = aperiodic\n" +
        report + "reportConfigId = 2\n" + report + "resourcesForChannelMeasurement = 5\n" + report +
        "reportConfigType.aperiodic.reportSlotOffsetList[0] = 3\n" + report +
        "reportConfigType.aperiodic.reportSlotOffsetList[1] = 4\n" + report + "reportQuantity.none = null\n" + report +
        "timeRestrictionForChannelMeasurements = notConfigured\n" + report +
        "timeRestrictionForInterferenceMeasurements = notConfigured\n" + report +
        "groupBasedBeamReporting.disabled = {}\n" + report + "subbandSize = value2\n" + state + "reportConfigId = 2\n" +
        state + "resourcesForChannel.nzp-CSI-RS.resourceSet = 1\n";
    int i = 0;
    for (const int symbol : symbols)
    {
        const std::string at = AT_NZP "[" + std::to_string(6 + i) + "].";
        text += AT_NZP_SET "[3].nzp-CSI-RS-Resources[" + std::to_string(i) + "] = " + std::to_string(6 + i) + "\n" +
                state + "resourcesForChannel.nzp-CSI-RS.qcl-info[" + std::to_string(i) + "] = 2\n" + at +
                "nzp-CSI-RS-ResourceId = " + std::to_string(6 + i) + "\n" + at +
                "resourceMapping.frequencyDomainAllocation.row1 = 10\n" + at + "resourceMapping.nrofPorts = p1\n" + at +
                "resourceMapping.firstOFDMSymbolInTimeDomain = " + std::to_string(symbol) + "\n" + at +
                "resourceMapping.cdm-Type = noCDM\n" + at + "resourceMapping.density.three = null\n" + at +
                "resourceMapping.freqBand.startingRB = 0\n" + at + "resourceMapping.freqBand.nrofRBs = 276\n" + at +
                "powerControlOffset = 0\n" + at + "powerControlOffsetSS = db0\n" + at + "scramblingID = 42\n";
        ++i;
    }
    return text;
}

// The first CSI-RS with 16 ports, and a codebook of four panels for it.
const std::string fourPanels = AT_NZP
    "[0].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
    "[0].resourceMapping.frequencyDomainAllocation.other = F0\n" AT_NZP "[0].resourceMapping.nrofPorts = p16\n" AT_NZP
    "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 12\n" AT_REPORT
    "codebookConfig.codebookType.type1.subType = absent\n" AT_REPORT
    "codebookConfig.codebookType.type1.subType.typeI-MultiPanel.ng-n1-n2.four-two-one-TypeI-MultiPanel-"
    "Restriction = FF\n" AT_REPORT "codebookConfig.codebookType.type1.subType.typeI-MultiPanel.ri-Restriction = F0\n";

// A codebook of selected ports, with so many beams, every so many ports.
std::string portSelection(const std::string& beams, const std::string& step)
{
    return AT_TRIGGERED "codebookConfig.codebookType = absent\n" AT_TRIGGERED
                        "codebookConfig.codebookType.type2.subType.typeII-PortSelection.portSelectionSamplingSize = " +
           step +
           "\n" AT_TRIGGERED
           "codebookConfig.codebookType.type2.subType.typeII-PortSelection.typeII-PortSelectionRI-Restriction = "
           "C0\n" AT_TRIGGERED "codebookConfig.codebookType.type2.phaseAlphabetSize = n4\n" AT_TRIGGERED
           "codebookConfig.codebookType.type2.subbandAmplitude = false\n" AT_TRIGGERED
           "codebookConfig.codebookType.type2.numberOfBeams = " +
           beams + "\n";
}

// The aperiodic CSI-RS with more ports: row 6 has 8, row 9 has 12, row 13 has 24.
std::string moreTriggeredPorts(const std::string& bits, const std::string& ports, int symbol)
{
    return AT_NZP "[3].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
                  "[3].resourceMapping.frequencyDomainAllocation.other = " +
           bits + "\n" AT_NZP "[3].resourceMapping.nrofPorts = " + ports +
           "\n" AT_NZP "[3].resourceMapping.firstOFDMSymbolInTimeDomain = " + std::to_string(symbol) + "\n";
}

// The first CSI-RS with 24 ports, row 13, from a symbol on.
std::string row13(int symbol)
{
    return AT_NZP "[0].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
                  "[0].resourceMapping.frequencyDomainAllocation.other = E0\n" AT_NZP
                  "[0].resourceMapping.nrofPorts = p24\n" AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain = " +
           std::to_string(symbol) +
           "\n" AT_REPORT
           "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2 = "
           "absent\n" AT_REPORT
           "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2.six-two-"
           "TypeI-SinglePanel-Restriction = " +
           std::string(48, 'F') + "\n";
}

void chainCases(CaseTable& table)
{
    table.rule("csi-ref-chain")
        .bad(AT_REPORT "resourcesForChannelMeasurement")
        .saying("9, but a CSI-ResourceConfig of that id is not configured: there is 0..4")
        .good()
        .fires(AT_REPORT "csi-IM-ResourcesForInterference", AT_REPORT "csi-IM-ResourcesForInterference = 5")
        .fires(AT_TRIGGERED "nzp-CSI-RS-ResourcesForInterference", AT_TRIGGERED
               "nzp-CSI-RS-ResourcesForInterference = 5\n" AT_TRIGGER "nzp-CSI-RS-ResourcesForInterference = 1")
        .fires(AT_CSI_RESOURCES "[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[0]",
               AT_CSI_RESOURCES "[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[0] = 9")
        .fires(AT_CSI_RESOURCES "[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.csi-SSB-ResourceSetList",
               AT_CSI_RESOURCES "[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.csi-SSB-ResourceSetList[0] = 0")
        .fires(AT_CSI_RESOURCES "[1].csi-RS-ResourceSetList.csi-IM-ResourceSetList[0]",
               AT_CSI_RESOURCES "[1].csi-RS-ResourceSetList.csi-IM-ResourceSetList[0] = 9")
        .fires(AT_NZP_SET "[0].nzp-CSI-RS-Resources[0]", AT_NZP_SET "[0].nzp-CSI-RS-Resources[0] = 9")
        .fires(AT_IM_SET "[0].csi-IM-Resources[0]", AT_IM_SET "[0].csi-IM-Resources[0] = 9")
        .fires(AT_REPORT "carrier", AT_REPORT "carrier = 3")
        .silent(AT_REPORT "carrier = 0")
        .fires(AT_REPORT "resourcesForChannelMeasurement", AT_REPORT "resourcesForChannelMeasurement = 9")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_REPORT "resourcesForChannelMeasurement",
               AT_REPORT "resourcesForChannelMeasurement = 9\n" AT_CSI "csi-ResourceConfigToReleaseList[0] = 9")
        .with(inDelta)
        .saying("is released by this message");

    table.rule("csi-config-kind")
        .bad(AT_REPORT "csi-IM-ResourcesForInterference")
        .good()
        .fires(AT_REPORT "resourcesForChannelMeasurement", AT_REPORT "resourcesForChannelMeasurement = 1")
        .fires(AT_REPORT "nzp-CSI-RS-ResourcesForInterference", AT_REPORT "nzp-CSI-RS-ResourcesForInterference = 0")
        .fires(AT_TRIGGERED "nzp-CSI-RS-ResourcesForInterference", AT_TRIGGERED
               "nzp-CSI-RS-ResourcesForInterference = 4\n" AT_TRIGGER "nzp-CSI-RS-ResourcesForInterference = 1")
        .silent(AT_TRIGGERED "nzp-CSI-RS-ResourcesForInterference = 3\n" AT_TRIGGER
                             "nzp-CSI-RS-ResourcesForInterference = 1");

    table.rule("csi-same-bwp")
        .bad(AT_REPORT "csi-IM-ResourcesForInterference")
        .saying("1, on bandwidth part 0, but the channel is measured on bandwidth part 1")
        .good()
        .fires(AT_CSI_RESOURCES "[1].bwp-Id", AT_CSI_RESOURCES "[1].bwp-Id = 2")
        .fires(AT_CSI_RESOURCES "[1].bwp-Id", AT_CSI_RESOURCES "[1].bwp-Id = 2")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_REPORT "csi-IM-ResourcesForInterference", AT_CSI_RESOURCES "[1].resourceType = semiPersistent")
        .saying("the channel's resources are periodic")
        .fires(AT_TRIGGERED "nzp-CSI-RS-ResourcesForInterference", AT_TRIGGERED
               "nzp-CSI-RS-ResourcesForInterference = 0\n" AT_TRIGGER "nzp-CSI-RS-ResourcesForInterference = 1");

    table.rule("csi-one-set")
        .bad(AT_CSI_RESOURCES "[0].csi-RS-ResourceSetList")
        .saying("2 sets, but resources that are periodic are in one set")
        .good()
        .fires(AT_NZP_SET "[0].nzp-CSI-ResourceSetId", AT_CSI_RESOURCES
               "[5].csi-ResourceConfigId = 5\n" AT_CSI_RESOURCES
               "[5].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[0] = 0\n" AT_CSI_RESOURCES
               "[5].bwp-Id = 1\n" AT_CSI_RESOURCES "[5].resourceType = aperiodic")
        .fires(AT_NZP "[0].nzp-CSI-RS-ResourceId", AT_NZP_SET "[2].nzp-CSI-RS-Resources[0] = 0")
        .fires(AT_IM "[0].csi-IM-ResourceId", AT_IM_SET "[1].csi-IM-Resources[0] = 0");

    table.rule("csi-report-vs-resource")
        .bad(AT_REPORT "reportConfigType")
        .good()
        .fires(AT_CSI "csi-ReportConfigToAddModList[2].reportConfigType",
               ADDED_SP_REPORT AT_CSI "csi-ReportConfigToAddModList[2].resourcesForChannelMeasurement = 3\n" AT_CSI
                                      "csi-ReportConfigToAddModList[2].csi-IM-ResourcesForInterference = 4\n" AT_CSI
                                      "semiPersistentOnPUSCH-TriggerStateList.setup[0].associatedReportConfigInfo = 2")
        .saying("are aperiodic");

    table.rule("csi-periodicity-cond")
        .bad(AT_NZP "[3].periodicityAndOffset")
        .good()
        // What lies in which slot of a set for tracking, nobody knows then.
        .fires(AT_NZP "[9].periodicityAndOffset",
               triggeredTracking({5, 9, 5, 8}) + AT_NZP "[9].periodicityAndOffset.slots80 = 1")
        .fires(AT_NZP "[0].periodicityAndOffset", AT_NZP "[0].periodicityAndOffset = absent")
        .undecided(AT_NZP "[0].periodicityAndOffset = absent")
        .with(inDelta)
        .fires(AT_IM "[0].periodicityAndOffset", AT_IM "[0].periodicityAndOffset = absent")
        .fires(AT_IM "[1].periodicityAndOffset", AT_IM "[1].periodicityAndOffset.slots80 = 1")
        .fires(AT_NZP "[3].qcl-InfoPeriodicCSI-RS", AT_NZP "[3].qcl-InfoPeriodicCSI-RS = 2")
        .fires(AT_NZP_SET "[0].aperiodicTriggeringOffset", AT_NZP_SET "[0].aperiodicTriggeringOffset = 0")
        .as(RRC_RULE_WARNING)
        // The report and its other setting are periodic: this tells alone.
        .fires(AT_NZP "[0].periodicityAndOffset", AT_CSI_RESOURCES "[0].resourceType = aperiodic")
        .times(2);
}

void reportCases(CaseTable& table)
{
    table.rule("csi-pucch-report")
        .bad(AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator")
        .good()
        .fires(AT_REPORT "reportFreqConfiguration.pmi-FormatIndicator",
               AT_REPORT "reportFreqConfiguration.pmi-FormatIndicator = subbandPMI\n" AT_REPORT
                         "reportFreqConfiguration.csi-ReportingBand.subbands9 = FF80")
        .silent(AT_TRIGGERED "reportFreqConfiguration.pmi-FormatIndicator = subbandPMI")
        .fires(AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator",
               good("csi-report-vs-resource",
                    AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator = subbandCQI\n" AT_REPORT
                              "reportFreqConfiguration.csi-ReportingBand.subbands9 = FF80"))
        .saying("a report in PUCCH format 2 is for the whole band")
        .fires(
            AT_REPORT "codebookConfig.codebookType", AT_REPORT
            "codebookConfig.codebookType = absent\n" AT_REPORT
            "codebookConfig.codebookType.type2.subType.typeII-PortSelection.portSelectionSamplingSize = n2\n" AT_REPORT
            "codebookConfig.codebookType.type2.subType.typeII-PortSelection.typeII-"
            "PortSelectionRI-Restriction = C0\n" AT_REPORT
            "codebookConfig.codebookType.type2.phaseAlphabetSize = n4\n" AT_REPORT
            "codebookConfig.codebookType.type2.subbandAmplitude = false\n" AT_REPORT
            "codebookConfig.codebookType.type2.numberOfBeams = two")
        .saying("a periodic report has Type I alone")
        // Subbands are not asked of it.
        .fires(AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator",
               AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator = subbandCQI");

    table.rule("csi-codebook-needed")
        .bad(AT_REPORT "codebookConfig")
        .saying("absent, but the report has a PMI for 4 antenna ports")
        .good()
        .fires(AT_TRIGGERED "reportFreqConfiguration.pmi-FormatIndicator",
               AT_TRIGGERED "reportQuantity = absent\n" AT_TRIGGERED "reportQuantity.cri-RI-i1-CQI = {}\n" AT_TRIGGERED
                            "reportFreqConfiguration.pmi-FormatIndicator = subbandPMI")
        .fires(AT_TRIGGERED "codebookConfig.codebookType", std::string(typeII) + AT_TRIGGERED
                                                               "reportQuantity = absent\n" AT_TRIGGERED
                                                               "reportQuantity.cri-RI-i1-CQI = {}");

    table.rule("csi-codebook-ports")
        .bad(AT_REPORT "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2")
        .saying("8 ports of Ng = 1, N1 = 2, N2 = 2, but the resources have 4")
        .good()
        .fires(AT_REPORT "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts", AT_REPORT
               "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts = absent\n" AT_REPORT
               "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.two.twoTX-"
               "CodebookSubsetRestriction = FC")
        .silent(typeII)
        .silent(fourPanels)
        .fires(AT_REPORT "codebookConfig.codebookType.type1.codebookMode",
               fourPanels + AT_REPORT "codebookConfig.codebookType.type1.codebookMode = 2")
        .saying("with four panels it is 1")
        .fires(AT_REPORT "codebookConfig.codebookType.type1.subType.typeI-MultiPanel.ng-n1-n2",
               fourPanels + AT_REPORT
                   "codebookConfig.codebookType.type1.subType.typeI-MultiPanel.ng-n1-n2 = absent\n" AT_REPORT
                   "codebookConfig.codebookType.type1.subType.typeI-MultiPanel.ng-n1-n2.two-two-one-TypeI-"
                   "MultiPanel-Restriction = FF")
        .saying("8 ports of Ng = 2, N1 = 2, N2 = 1, but the resources have 16")
        .fires(AT_TRIGGERED "codebookConfig.codebookType.type2.subType",
               portSelection("two", "n1") + moreTriggeredPorts("80", "p2", 13))
        .saying("ports are selected of 4 to 32, and the resources have 2");

    table.rule("csi-codebook-type2")
        .bad(AT_REPORT "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.typeI-SinglePanel-ri-Restriction")
        .good()
        .silent(typeII)
        .fires(AT_TRIGGERED "codebookConfig.codebookType.type2.numberOfBeams",
               with(typeII, AT_TRIGGERED "codebookConfig.codebookType.type2.numberOfBeams = three"))
        // At most half of the ports, and the beams.
        .silent(portSelection("two", "n2"))
        .fires(AT_TRIGGERED "codebookConfig.codebookType.type2.subType.typeII-PortSelection.portSelectionSamplingSize",
               portSelection("two", "n3"))
        .saying("n3, but with 4 ports and 2 beams it is at most n2")
        .silent(portSelection("three", "n3") + moreTriggeredPorts("F0", "p8", 13))
        .fires(AT_TRIGGERED "codebookConfig.codebookType.type2.subType.typeII-PortSelection.portSelectionSamplingSize",
               portSelection("three", "n4") + moreTriggeredPorts("F0", "p8", 13))
        .saying("n4, but with 8 ports and 3 beams it is at most n3")
        .fires(AT_TRIGGERED "codebookConfig.codebookType.type2.subType.typeII-PortSelection.typeII-"
                            "PortSelectionRI-Restriction",
               portSelection("two", "n2") + AT_TRIGGERED
                   "codebookConfig.codebookType.type2.subType.typeII-PortSelection.typeII-PortSelectionRI-"
                   "Restriction = 00")
        .saying("no rank is left to report")
        .fires(AT_TRIGGERED "codebookConfig.codebookType",
               std::string(typeII) + AT_NZP_SET "[2].nzp-CSI-RS-Resources[1] = 6\n" ONE_MORE_NZP("6", "6") AT_NZP
                   "[6].periodicityAndOffset = absent\n" AT_IM_SET "[1].csi-IM-Resources[1] = 2\n" AT_IM
                   "[2].csi-IM-ResourceId = 2\n" AT_IM
                   "[2].csi-IM-ResourceElementPattern.pattern1.subcarrierLocation-p1 = s4\n" AT_IM
                   "[2].csi-IM-ResourceElementPattern.pattern1.symbolLocation-p1 = 13\n" AT_IM
                   "[2].freqBand.startingRB = 0\n" AT_IM "[2].freqBand.nrofRBs = 276\n" AT_TRIGGER
                   "resourcesForChannel.nzp-CSI-RS.qcl-info[1] = 2")
        .saying("Type II is of one resource, and NZP-CSI-RS-ResourceSet 2 has 2");

    table.rule("csi-resource-count")
        .bad(AT_REPORT "resourcesForChannelMeasurement")
        .saying("9 resources in NZP-CSI-RS-ResourceSet 0")
        .good()
        .fires(AT_TRIGGERED "resourcesForChannelMeasurement",
               untriggered + manySets({17}) + AT_TRIGGERED "reportQuantity.cri-RSRP = null")
        .saying("17 resources in NZP-CSI-RS-ResourceSet 3, but a set of this quantity has at most 16")
        .silent(untriggered + manySets({16}) + AT_TRIGGERED "reportQuantity.cri-RSRP = null")
        .silent(untriggered + manySets({17}) +
                AT_TRIGGERED "reportQuantity.cri-RI-CQI = null\n" AT_TRIGGERED
                             "reportFreqConfiguration.cqi-FormatIndicator = widebandCQI")
        .fires(AT_TRIGGERED "resourcesForChannelMeasurement",
               untriggered + manySets({16, 16, 16, 16, 1}) + AT_TRIGGERED "reportQuantity.none = null")
        .saying("65 resources, but a setting of this quantity has at most 64")
        .silent(untriggered + manySets({16, 16, 16, 16}) + AT_TRIGGERED "reportQuantity.none = null");

    // Of 19 ports at least: 16 and 4.
    const std::string nzpInterference = AT_TRIGGERED
        "nzp-CSI-RS-ResourcesForInterference = 5\n" AT_TRIGGER
        "nzp-CSI-RS-ResourcesForInterference = 1\n" AT_CSI_RESOURCES "[5].csi-ResourceConfigId = 5\n" AT_CSI_RESOURCES
        "[5].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[0] = 3\n" AT_CSI_RESOURCES
        "[5].bwp-Id = 1\n" AT_CSI_RESOURCES "[5].resourceType = aperiodic\n" AT_NZP_SET
        "[3].nzp-CSI-ResourceSetId = 3\n" AT_NZP_SET "[3].nzp-CSI-RS-Resources[0] = 6\n" ONE_MORE_NZP("6", "6") AT_NZP
        "[6].periodicityAndOffset = absent\n" AT_NZP "[6].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
        "[6].resourceMapping.frequencyDomainAllocation.other = F0\n" AT_NZP
        "[6].resourceMapping.firstOFDMSymbolInTimeDomain = 6\n" AT_NZP "[6].resourceMapping.nrofPorts = p16\n";
    table.rule("csi-interference-count")
        .bad(AT_REPORT "csi-IM-ResourcesForInterference")
        .good()
        .silent(nzpInterference)
        .fires(AT_TRIGGERED "nzp-CSI-RS-ResourcesForInterference",
               nzpInterference + AT_NZP_SET "[3].nzp-CSI-RS-Resources[1] = 3")
        .saying("20 ports in NZP-CSI-RS-ResourceSet 3, but there are at most 18")
        .fires(AT_REPORT "csi-IM-ResourcesForInterference",
               std::string(rsrp) + AT_REPORT "reportQuantity.cri-RSRP = null\n" AT_REPORT
                                             "csi-IM-ResourcesForInterference = 1\n" AT_NZP
                                             "[0].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
                                             "[0].resourceMapping.frequencyDomainAllocation.other = 80\n" AT_NZP
                                             "[0].resourceMapping.nrofPorts = p2");

    // Interference on CSI-RS is of one resource for the channel.
    table.rule("csi-interference-count")
        .fires(AT_TRIGGERED "nzp-CSI-RS-ResourcesForInterference",
               nzpInterference +
                   AT_NZP_SET "[2].nzp-CSI-RS-Resources[1] = 9\n" AT_IM_SET "[1].csi-IM-Resources[1] = 2\n" AT_TRIGGER
                              "resourcesForChannel.nzp-CSI-RS.qcl-info[1] = 2\n" AT_IM
                              "[2].csi-IM-ResourceId = 2\n" AT_IM
                              "[2].csi-IM-ResourceElementPattern.pattern1.subcarrierLocation-p1 = s4\n" AT_IM
                              "[2].csi-IM-ResourceElementPattern.pattern1.symbolLocation-p1 = 13\n" AT_IM
                              "[2].freqBand.startingRB = 0\n" AT_IM "[2].freqBand.nrofRBs = 276\n" +
                   std::string(ONE_MORE_NZP("7", "9")) + AT_NZP "[7].periodicityAndOffset = absent\n")
        .saying("the set for the channel then has one resource, not 2");

    table.rule("csi-cqi-needs-im").bad(AT_REPORT "csi-IM-ResourcesForInterference").good();

    table.rule("csi-rsrp-kind")
        .bad(AT_REPORT "reportQuantity")
        .saying("NZP-CSI-RS-Resource 0 has 4 ports")
        .good()
        .fires(AT_REPORT "reportQuantity", with(rsrp, AT_REPORT "reportQuantity.ssb-Index-RSRP = null"))
        .saying("has no SS/PBCH blocks")
        .fires(AT_REPORT "groupBasedBeamReporting",
               AT_REPORT "groupBasedBeamReporting = absent\n" AT_REPORT "groupBasedBeamReporting.enabled = null")
        .as(RRC_RULE_WARNING)
        .fires(AT_REPORT "groupBasedBeamReporting.disabled.nrofReportedRS",
               std::string(rsrp) + AT_REPORT
                   "reportQuantity.ssb-Index-RSRP = null\n" AT_REPORT "groupBasedBeamReporting = absent\n" AT_REPORT
                   "groupBasedBeamReporting.disabled.nrofReportedRS = n4\n" AT_CSI_RESOURCES
                   "[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB = absent\n" AT_CSI_RESOURCES
                   "[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.csi-SSB-ResourceSetList[0] = 0\n" AT_CSI
                   "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceSetId = 0\n" AT_CSI
                   "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceList[0] = 0\n" AT_CSI
                   "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceList[1] = 1")
        .as(RRC_RULE_WARNING)
        .saying("the setting has 2 resources");

    table.rule("csi-freq-config")
        .bad(AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator")
        .good()
        .fires(AT_REPORT "reportFreqConfiguration", AT_REPORT "reportFreqConfiguration = absent")
        .fires(AT_REPORT "reportFreqConfiguration.pmi-FormatIndicator",
               AT_REPORT "reportFreqConfiguration.pmi-FormatIndicator = absent")
        .fires(AT_REPORT "reportFreqConfiguration.pmi-FormatIndicator",
               AT_REPORT "reportQuantity = absent\n" AT_REPORT "reportQuantity.cri-RI-CQI = null")
        .as(RRC_RULE_NOTICE);

    // Of the reports the aperiodic one alone, in bandwidth parts of the resource blocks 0..22.
    const std::string of23 = AT_DL
        "bwp-Common.genericParameters.locationAndBandwidth = 6050\n" AT_DL "bwp-Dedicated.pdcch-Config = absent\n" AT_UL
        "bwp-Common.genericParameters.locationAndBandwidth = 6050\n" AT_UL "bwp-Dedicated = absent\n" AT_CSI
        "csi-ReportConfigToAddModList[0] = absent\n";
    const std::string noBand = AT_REPORT "reportFreqConfiguration.csi-ReportingBand = absent\n";
    table.rule("csi-subband-count")
        .bad(AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand")
        .saying("subbands10, but a bandwidth part of 273 PRB from common RB 0 with subband size 32 has 9")
        .good()
        .fires(AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand",
               AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand.subbands9 = 0000")
        .saying("no subband")
        .fires(AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand",
               AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand = absent")
        .fires(AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand", AT_TRIGGERED "subbandSize = value1")
        // Of 106 resource blocks there are 14 subbands of 8, or 7 of 16.
        .fires(AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand", AS_106_RB AT_TRIGGERED
               "subbandSize = value1\n" AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand = absent\n" AT_TRIGGERED
               "reportFreqConfiguration.csi-ReportingBand.subbands9 = FF80")
        .saying("subbands9, but a bandwidth part of 106 PRB from common RB 0 with subband size 8 has 14")
        .silent(AS_106_RB AT_TRIGGERED "subbandSize = value1\n" AT_TRIGGERED
                                       "reportFreqConfiguration.csi-ReportingBand = absent\n" AT_TRIGGERED
                                       "reportFreqConfiguration.csi-ReportingBand.subbands14 = FFFC")
        .silent(AS_106_RB)
        .undecided("spCellConfig.reconfigurationWithSync = absent")
        .with(inDelta)
        .silent("spCellConfig.reconfigurationWithSync = absent")
        .with(inDeltaKnowingCarrier)
        .fires(AT_REPORT "reportFreqConfiguration.csi-ReportingBand", of23)
        .with(inDelta)
        .saying("a bandwidth part of 23 PRB has no subbands")
        // Where no subband is named, what is for each of them is at fault.
        .fires(AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator", of23 + noBand)
        .with(inDelta)
        .saying("subbandCQI, but a bandwidth part of 23 PRB has no subbands")
        .fires(AT_REPORT "reportFreqConfiguration.pmi-FormatIndicator",
               of23 + noBand +
                   AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator = widebandCQI\n" AT_REPORT
                             "reportFreqConfiguration.pmi-FormatIndicator = subbandPMI")
        .with(inDelta)
        .saying("subbandPMI, but a bandwidth part of 23 PRB has no subbands")
        .silent(of23 + noBand + AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator = widebandCQI")
        .with(inDelta);

    table.rule("csi-slot-offset-list")
        .bad(AT_TRIGGERED "reportConfigType.aperiodic.reportSlotOffsetList")
        .saying("1 entry, but pusch-TimeDomainAllocationList has 2")
        .good()
        .fires(AT_TRIGGERED "reportConfigType.aperiodic.reportSlotOffsetList",
               AS_FR2 AT_TRIGGERED "reportConfigType.aperiodic.reportSlotOffsetList[0] = 1\n" AT_TRIGGERED
                                   "reportConfigType.aperiodic.reportSlotOffsetList[1] = 2")
        .as(RRC_RULE_WARNING)
        .saying("an offset of at most 2 slots, but the UE needs 43 symbols")
        .silent(AS_FR2 AT_TRIGGERED "reportConfigType.aperiodic.reportSlotOffsetList[0] = 1\n" AT_TRIGGERED
                                    "reportConfigType.aperiodic.reportSlotOffsetList[1] = 3")
        // Another bandwidth part may have as many.
        .fires(AT_TRIGGERED "reportConfigType.aperiodic.reportSlotOffsetList",
               table.rule("csi-slot-offset-list").example(&RrcRule::bad))
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("csi-sp-pusch")
        .bad(AT_CSI "semiPersistentOnPUSCH-TriggerStateList.setup[0].associatedReportConfigInfo")
        .good()
        .fires(AT_CSI "csi-ReportConfigToAddModList[2].reportConfigType", ADDED_SP_REPORT)
        .as(RRC_RULE_WARNING)
        .fires(AT_CSI "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.p0alpha",
               ADDED_SP_REPORT AT_CSI
               "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.p0alpha = 1\n" AT_CSI
               "semiPersistentOnPUSCH-TriggerStateList.setup[0].associatedReportConfigInfo = 2");
}

void triggerCases(CaseTable& table)
{
    table.rule("csi-trigger-state")
        .bad(AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.resourceSet")
        .saying("2, but CSI-ResourceConfig 3 lists 1 set")
        .good()
        .fires(AT_TRIGGER "reportConfigId", AT_TRIGGER "reportConfigId = 0")
        .fires(AT_TRIGGER "reportConfigId", AT_TRIGGER "reportConfigId = 7")
        .fires(AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.qcl-info",
               AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.qcl-info = absent")
        .fires(AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.qcl-info",
               AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.qcl-info[1] = 3")
        .fires(AT_TRIGGER "csi-IM-ResourcesForInterference", AT_TRIGGER "csi-IM-ResourcesForInterference = absent")
        .fires(AT_TRIGGER "csi-IM-ResourcesForInterference", AT_TRIGGER "csi-IM-ResourcesForInterference = 2")
        .fires(AT_TRIGGER "nzp-CSI-RS-ResourcesForInterference", AT_TRIGGER "nzp-CSI-RS-ResourcesForInterference = 1")
        .fires(AT_TRIGGER "resourcesForChannel.csi-SSB-ResourceSet",
               AT_TRIGGER "resourcesForChannel = absent\n" AT_TRIGGER "resourcesForChannel.csi-SSB-ResourceSet = 1")
        .saying("1, but CSI-ResourceConfig 3 lists 0 sets of SS/PBCH blocks")
        .fires(AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.resourceSet",
               AT_CSI "reportTriggerSize = 1\n" AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.resourceSet = 2");

    table.rule("csi-trigger-size")
        .bad(AT_CSI "reportTriggerSize")
        .good()
        .fires(AT_CSI "reportTriggerSize",
               AT_CSI "aperiodicTriggerStateList.setup[1].associatedReportConfigInfoList[0].reportConfigId = 1\n" AT_CSI
                      "aperiodicTriggerStateList.setup[1].associatedReportConfigInfoList[0].resourcesForChannel.nzp-"
                      "CSI-RS.resourceSet = 1\n" AT_CSI
                      "aperiodicTriggerStateList.setup[1].associatedReportConfigInfoList[0].resourcesForChannel.nzp-"
                      "CSI-RS.qcl-info[0] = 2\n" AT_CSI
                      "aperiodicTriggerStateList.setup[1].associatedReportConfigInfoList[0].csi-IM-"
                      "ResourcesForInterference = 1")
        .as(RRC_RULE_NOTICE)
        .fires(AT_CSI "csi-ReportConfigToAddModList[1].reportConfigType",
               AT_CSI "aperiodicTriggerStateList = absent\n" AT_CSI "reportTriggerSize = absent")
        .undecided(AT_CSI "aperiodicTriggerStateList = absent")
        .with(inDelta);
}

void resourceCases(CaseTable& table)
{
    table.rule("csi-rs-row")
        .bad(AT_NZP "[0].resourceMapping")
        .good()
        .fires(AT_NZP "[0].resourceMapping", AT_NZP "[0].resourceMapping.frequencyDomainAllocation.row4 = 60")
        .fires(AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain2",
               AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain2 = 12")
        // Row 4 is there with fd-CDM2 alone.
        .fires(AT_NZP "[0].resourceMapping", AT_NZP "[0].resourceMapping.frequencyDomainAllocation.row4 = 20\n" AT_NZP
                                                    "[0].resourceMapping.cdm-Type = noCDM")
        .silent(AT_NZP "[0].resourceMapping.frequencyDomainAllocation.row4 = 20")
        .fires(AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain2", row13(9))
        .saying("absent, but row 13 needs it")
        .silent(row13(9) + AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain2 = 12")
        .silent(row13(9) + AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain2 = 11")
        .fires(AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain2",
               row13(10) + AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain2 = 11")
        .as(RRC_RULE_WARNING)
        .saying("11, but row 13 takes symbols 10 and 11 before")
        // From symbol 13 on it would leave the slot.
        .fires(AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain",
               row13(13) + AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain2 = 12")
        .times(2)
        // Nor does the codebook speak of ports that are no row.
        .fires(AT_NZP "[0].resourceMapping", AT_NZP "[0].resourceMapping.nrofPorts = p2");

    table.rule("csi-rs-band")
        .bad(AT_NZP "[0].resourceMapping.freqBand")
        .saying("RB 252..527, but 21 of them lie in bandwidth part 1, common RB 0..272, and at least 24 have to")
        .good()
        .fires(AT_NZP "[0].resourceMapping.freqBand.startingRB", AT_NZP "[0].resourceMapping.freqBand.startingRB = 2")
        .fires(AT_IM "[0].freqBand.nrofRBs", AT_IM "[0].freqBand.nrofRBs = 26");

    table.rule("csi-rs-set-uniform")
        .bad(AT_NZP_SET "[0].nzp-CSI-RS-Resources[1]")
        .saying("resource 6 with another nrofRBs")
        .good()
        .fires(AT_NZP_SET "[0].repetition", AT_NZP_SET "[0].repetition = off")
        .fires(AT_NZP_SET "[0].nzp-CSI-RS-Resources[1]",
               good("csi-rs-set-uniform",
                    AT_NZP "[6].periodicityAndOffset = absent\n" AT_NZP "[6].periodicityAndOffset.slots160 = 1"))
        .saying("periodicityAndOffset");

    table.rule("csi-trs")
        .bad(AT_NZP_SET "[1].nzp-CSI-RS-Resources")
        .saying("symbols 5 and 8 of a slot")
        .good()
        .fires(AT_NZP_SET "[1].nzp-CSI-RS-Resources", AT_NZP_SET "[1].nzp-CSI-RS-Resources[3] = absent")
        .fires(AT_NZP_SET "[1].nzp-CSI-RS-Resources",
               AT_NZP_SET "[1].nzp-CSI-RS-Resources[2] = absent\n" AT_NZP_SET "[1].nzp-CSI-RS-Resources[2] = absent")
        .as(RRC_RULE_WARNING)
        .fires(AT_NZP_SET "[1].repetition", AT_NZP_SET "[1].repetition = on")
        .fires(AT_NZP_SET "[1].nzp-CSI-RS-Resources", AT_NZP "[1].powerControlOffset = 1")
        .fires(AT_NZP "[4].resourceMapping.freqBand.nrofRBs", AT_NZP "[4].resourceMapping.freqBand.nrofRBs = 56")
        .silent(AT_NZP "[4].resourceMapping.freqBand.nrofRBs = 52")
        .fires(AT_NZP "[4].periodicityAndOffset",
               AT_NZP "[4].periodicityAndOffset = absent\n" AT_NZP "[4].periodicityAndOffset.slots64 = 1")
        .saying("64 slots, in a set for tracking, but at 30 kHz that is 20, 40, 80 or 160")
        .fires(AT_NZP "[4].periodicityAndOffset",
               AT_NZP "[4].periodicityAndOffset = absent\n" AT_NZP "[4].periodicityAndOffset.slots20 = 1")
        .saying("10 ms are for at most 52 RB")
        .fires(AT_NZP "[4].resourceMapping",
               AT_NZP "[4].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
                      "[4].resourceMapping.frequencyDomainAllocation.row2 = 8000\n" AT_NZP
                      "[4].resourceMapping.density = absent\n" AT_NZP "[4].resourceMapping.density.one = null")
        .saying("row 2")
        .fires(AT_REPORT "resourcesForChannelMeasurement",
               AT_REPORT "resourcesForChannelMeasurement = 2\n" AT_REPORT
                         "csi-IM-ResourcesForInterference = absent\n" AT_REPORT "codebookConfig = absent")
        .saying("CSI-ResourceConfig 2 is for tracking")
        .silent(AS_FR2 AT_NZP "[1].resourceMapping.firstOFDMSymbolInTimeDomain = 9\n" AT_NZP
                              "[2].resourceMapping.firstOFDMSymbolInTimeDomain = 13\n" AT_NZP
                              "[4].resourceMapping.firstOFDMSymbolInTimeDomain = 9\n" AT_NZP
                              "[5].resourceMapping.firstOFDMSymbolInTimeDomain = 13")
        .fires(AT_NZP_SET "[1].nzp-CSI-RS-Resources",
               AT_NZP "[1].resourceMapping.firstOFDMSymbolInTimeDomain = 5\n" AT_NZP
                      "[2].resourceMapping.firstOFDMSymbolInTimeDomain = 9")
        .saying("symbols 4 and 8 of a slot, 5 and 9 of the next, but in a set for tracking both slots have the same")
        .fires(AT_NZP_SET "[1].nzp-CSI-RS-Resources",
               AT_NZP "[1].periodicityAndOffset.slots80 = 5\n" AT_NZP "[2].periodicityAndOffset.slots80 = 5")
        // Ports, time and trigger of a report that is not to name the set are not judged.
        .fires(AT_TRIGGERED "resourcesForChannelMeasurement", AT_TRIGGERED "resourcesForChannelMeasurement = 2")
        // Triggered, two are in one slot and two in the next, in any order.
        .silent(AS_FR2 + triggeredTracking({4, 8}))
        .silent(AS_FR2 + triggeredTracking({13, 9}))
        .fires(AT_NZP_SET "[3].nzp-CSI-RS-Resources", AS_FR2 + triggeredTracking({5, 8}))
        .saying("symbols 5 and 8 of a slot")
        .fires(AT_NZP_SET "[3].nzp-CSI-RS-Resources", AS_FR2 + triggeredTracking({8, 5}))
        .saying("symbols 5 and 8 of a slot")
        .silent(triggeredTracking({5, 9, 9, 5}))
        .fires(AT_NZP_SET "[3].nzp-CSI-RS-Resources", triggeredTracking({5, 9, 5, 8}))
        .saying("symbols 5 and 8 of a slot")
        .silent(triggeredTracking({5, 5, 9, 9}))
        .fires(AT_NZP_SET "[3].nzp-CSI-RS-Resources", triggeredTracking({9, 13, 9, 13}))
        .saying("symbols 9 and 13 of a slot")
        .times(2)
        .fires(AT_NZP_SET "[3].nzp-CSI-RS-Resources", triggeredTracking({5, 9, 4, 8}))
        .saying("symbols 4 and 8 of a slot, 5 and 9 of the next")
        .fires(AT_NZP_SET "[3].nzp-CSI-RS-Resources",
               triggeredTracking({5, 9, 5, 9}) + AT_NZP "[9].powerControlOffset = 1")
        .saying("resources 6 and 9 of different power")
        .fires(AT_CSI "csi-ReportConfigToAddModList[2].timeRestrictionForChannelMeasurements",
               triggeredTracking({5, 9, 5, 9}) + AT_CSI
                   "csi-ReportConfigToAddModList[2].timeRestrictionForChannelMeasurements = configured")
        .saying("configured, but the report is on a set for tracking")
        .silent(AT_TRIGGERED "timeRestrictionForChannelMeasurements = configured");

    table.rule("csi-im-incomplete")
        .bad(AT_IM "[0].freqBand")
        .good()
        .fires(AT_IM "[0].csi-IM-ResourceElementPattern", AT_IM "[0].csi-IM-ResourceElementPattern = absent")
        .undecided(AT_IM "[0].freqBand = absent")
        .with(inDelta);

    table.rule("csi-collision")
        .bad(AT_NZP "[0].resourceMapping")
        .times(1)
        .good()
        .fires(AT_NZP "[0].resourceMapping", AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 4")
        .saying("which is for tracking")
        .fires(AT_NZP "[0].resourceMapping", everyHalfFrame + AT_NZP
                                                 "[0].periodicityAndOffset.slots80 = 10\n" AT_NZP
                                                 "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 5")
        .saying("SS/PBCH blocks")
        .silent(everyHalfFrame + AT_NZP "[0].periodicityAndOffset.slots80 = 10\n" AT_NZP
                                        "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 6")
        .silent(AT_NZP "[0].periodicityAndOffset.slots80 = 10\n" AT_NZP
                       "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 5");

    const std::string withoutPmi =
        AT_REPORT "reportQuantity = absent\n" AT_REPORT "reportQuantity.cri-RI-CQI = null\n" AT_REPORT
                  "reportFreqConfiguration.pmi-FormatIndicator = absent\n" AT_REPORT "codebookConfig = absent\n" AT_NZP
                  "[0].resourceMapping.frequencyDomainAllocation = absent\n";
    const std::string onePort = withoutPmi + AT_NZP "[0].resourceMapping.frequencyDomainAllocation.row2 = 8000\n" AT_NZP
                                                    "[0].resourceMapping.nrofPorts = p1\n" AT_NZP
                                                    "[0].resourceMapping.cdm-Type = noCDM\n";
    // All ranks of eight ports, in row 6; the last layer of rank 8 with this port.
    const auto eight = [&](int last)
    {
        std::string text = withoutPmi + AT_NZP "[0].resourceMapping.frequencyDomainAllocation.other = F0\n" AT_NZP
                                               "[0].resourceMapping.nrofPorts = p8\n" AT_REPORT
                                               "non-PMI-PortIndication[0].portIndex8.rank1-8 = 7\n";
        for (int rank = 2; rank <= 8; ++rank)
        {
            for (int layer = 0; layer < rank; ++layer)
            {
                text += AT_REPORT "non-PMI-PortIndication[0].portIndex8.rank" + std::to_string(rank) + "-8[" +
                        std::to_string(layer) + "] = " + std::to_string(layer == 7 ? last : layer) + "\n";
            }
        }
        return text;
    };
    table.rule("csi-port-indication")
        .bad(AT_REPORT "non-PMI-PortIndication[0]")
        .saying("portIndex2, but NZP-CSI-RS-Resource 0 has 4 ports")
        .good()
        .fires(AT_REPORT "non-PMI-PortIndication[0]",
               good("csi-port-indication", AT_REPORT "non-PMI-PortIndication[0].portIndex4.rank2-4[0] = 3\n" AT_REPORT
                                                     "non-PMI-PortIndication[0].portIndex4.rank2-4[1] = 3"))
        .saying("a port twice in a rank")
        // Ranks that two columns cannot have: each layer of rank 8 has a port of its own.
        .silent(eight(7))
        .fires(AT_REPORT "non-PMI-PortIndication[0]", eight(6))
        .saying("a port twice in a rank")
        .fires(AT_REPORT "non-PMI-PortIndication[0]",
               good("csi-port-indication", AT_REPORT "non-PMI-PortIndication[0].portIndex4 = absent\n" AT_REPORT
                                                     "non-PMI-PortIndication[0].portIndex8.rank1-8 = 0"))
        .saying("portIndex8, but NZP-CSI-RS-Resource 0 has 4 ports")
        .silent(onePort + AT_REPORT "non-PMI-PortIndication[0].portIndex1 = null")
        .fires(AT_REPORT "non-PMI-PortIndication[0]",
               onePort + AT_REPORT "non-PMI-PortIndication[0].portIndex2.rank1-2 = 0")
        .saying("portIndex2, but NZP-CSI-RS-Resource 0 has 1 port")
        .fires(AT_REPORT "non-PMI-PortIndication[0]",
               good("csi-port-indication", AT_REPORT "non-PMI-PortIndication[0].portIndex4 = absent\n" AT_REPORT
                                                     "non-PMI-PortIndication[0].portIndex1 = null"))
        .saying("portIndex1, but NZP-CSI-RS-Resource 0 has 4 ports")
        .fires(AT_REPORT "non-PMI-PortIndication[0]",
               good("csi-port-indication", AT_REPORT "non-PMI-PortIndication[0].portIndex4 = absent\n" AT_REPORT
                                                     "non-PMI-PortIndication[0].portIndex4 = {}"))
        .saying("no rank")
        .fires(AT_REPORT "non-PMI-PortIndication",
               good("csi-port-indication", AT_REPORT "non-PMI-PortIndication[1].portIndex4.rank1-4 = 0"))
        .saying("the channel has 1 resource")
        .fires(AT_REPORT "non-PMI-PortIndication", AT_REPORT "non-PMI-PortIndication[0].portIndex4.rank1-4 = 0")
        .as(RRC_RULE_WARNING)
        .fires(AT_REPORT "cqi-Table", AT_PDSCH "mcs-Table = absent")
        .as(RRC_RULE_WARNING)
        .times(2);
}

} // namespace

void csiCases(CaseTable& table)
{
    chainCases(table);
    reportCases(table);
    triggerCases(table);
    resourceCases(table);
}

} // namespace test
