#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "gnbCommon/duCompose.h"
#include "support/ComposerTest.h"
#include "support/RecordOrder.h"

using test::rising;

namespace
{

class carrierAndPattern : public test::ComposerTest
{
protected:
    void expectTdd(TddUlDlCfgCom_t record, const std::string& json)
    {
        SCOPED_TRACE(json);
        TDD_UL_DL_ConfigCommon element{};
        EXPECT_EQ(duComposeTDD_UL_DL_ConfigCommon(&context, &element, &record), VOS_OK);
        expectDecoded("TDD-UL-DL-ConfigCommon", asn1PE_TDD_UL_DL_ConfigCommon, element, json);
    }
};

constexpr TddUlDlPattern_t widest = {0, 7, 320, 13, 320, 13, 1};
constexpr TddUlDlPattern_t least = {NR_TDD_PATTERN_PERIODICITY_V1530_PRESENCE, 0, 0, 0, 0, 0, 1};

const std::string widestJson =
    R"({"dl-UL-TransmissionPeriodicity":"ms10","nrofDownlinkSlots":320,"nrofDownlinkSymbols":13,"nrofUplinkSlots":320,"nrofUplinkSymbols":13})";
const std::string leastJson =
    R"({"dl-UL-TransmissionPeriodicity":"ms0p5","nrofDownlinkSlots":0,"nrofDownlinkSymbols":0,"nrofUplinkSlots":0,"nrofUplinkSymbols":0,)"
    R"("dl-UL-TransmissionPeriodicity-v1530":"ms4"})";

} // namespace

TEST_F(carrierAndPattern, Carrier)
{
    for (const auto& [record, json] :
         {std::pair{SpecificCarrier_t{0, 0, 1},
                    R"({"offsetToCarrier":0,"subcarrierSpacing":"kHz15","carrierBandwidth":1})"},
          std::pair{SpecificCarrier_t{2199, 4, 275},
                    R"({"offsetToCarrier":2199,"subcarrierSpacing":"kHz240","carrierBandwidth":275})"}})
    {
        SpecificCarrier_t carrier = record;
        SCS_SpecificCarrier element{};
        EXPECT_EQ(duComposeSCS_SpecificCarrier(&context, &element, &carrier), VOS_OK);
        expectDecoded("SCS-SpecificCarrier", asn1PE_SCS_SpecificCarrier, element, json);
    }
}

TEST_F(carrierAndPattern, CarrierOutOfRange)
{
    const struct
    {
        SpecificCarrier_t record;
        std::string line;
    } cases[] = {
        {{2200, 0, 1}, "SCS-SpecificCarrier.offsetToCarrier: 2200 is not in 0..2199"},
        {{0, 8, 1}, "SCS-SpecificCarrier.subcarrierSpacing: 8 is not in 0..7"},
        {{0, 0, 0}, "SCS-SpecificCarrier.carrierBandwidth: 0 is not in 1..275"},
        {{0, 0, 276}, "SCS-SpecificCarrier.carrierBandwidth: 276 is not in 1..275"},
    };
    for (auto [record, line] : cases)
    {
        SCS_SpecificCarrier element{};
        EXPECT_EQ(duComposeSCS_SpecificCarrier(&context, &element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_SCS_SpecificCarrier, element), line);
    }
}

TEST_F(carrierAndPattern, OnePatternAndTwo)
{
    expectTdd({0xFE, 1, widest, least}, R"({"referenceSubcarrierSpacing":"kHz30","pattern1":)" + widestJson + "}");
    expectTdd({0, 0, least, widest}, R"({"referenceSubcarrierSpacing":"kHz15","pattern1":)" + leastJson + "}");
    expectTdd({NR_TDD_PATTERN2_PRESENCE, 3, widest, least}, R"({"referenceSubcarrierSpacing":"kHz120","pattern1":)" +
                                                                widestJson + R"(,"pattern2":)" + leastJson + "}");
}

TEST_F(carrierAndPattern, RecordsLieInTheirOrder)
{
    using Tdd = TddUlDlCfgCom_t;
    EXPECT_TRUE(rising({offsetof(Tdd, bitmask), offsetof(Tdd, referenceSubcarrierSpacing), offsetof(Tdd, pattern1),
                        offsetof(Tdd, pattern2)}));
    using Pattern = TddUlDlPattern_t;
    EXPECT_TRUE(rising({offsetof(Pattern, bitmask), offsetof(Pattern, transmissionPeriodicity),
                        offsetof(Pattern, nrofDownlinkSlots), offsetof(Pattern, nrofDownlinkSymbols),
                        offsetof(Pattern, nrofUplinkSlots), offsetof(Pattern, nrofUplinkSymbols),
                        offsetof(Pattern, transmissionPeriodicityV1530)}));
}
