// Records full of chance: whatever a record holds, composing, encoding and printing neither crash nor leave their
// memory (the sanitizers look on), and what the encoder takes comes back from the decoder.

#include <cstring>
#include <random>

#include "NR-RRC-Pdus.h"
#include "cellGroupCfg/csiMeas.h"
#include "cellGroupCfg/downlinkBwp.h"
#include "cellGroupCfg/sCell.h"
#include "cellGroupCfg/servingCell.h"
#include "cellGroupCfg/servingCellCommon.h"
#include "cellGroupCfg/servingCellLevel.h"
#include "cellGroupCfg/spCell.h"
#include "cellGroupCfg/tddDedicated.h"
#include "cellGroupCfg/uplinkConfig.h"
#include "rrcCodec/rrcCodec.h"
#include "support/ComposerTest.h"

namespace
{

constexpr unsigned records = 60;

// Octets of chance, the sparser the higher `sparse` is: the others are 0.
template <typename Record>
void fillRandomly(Record& record, std::mt19937& chance, unsigned sparse)
{
    auto* const octets = reinterpret_cast<unsigned char*>(&record);
    std::memset(octets, 0, sizeof record);
    const auto gap = [&]
    {
        return std::size_t{sparse == 0 ? 0 : chance() % sparse};
    };
    for (std::size_t i = gap(); i < sizeof record; i += 1 + gap())
    {
        octets[i] = static_cast<unsigned char>(chance());
    }
}

class randomRecords : public test::ComposerTest
{
protected:
    template <typename Element, typename Record>
    void run(INT32 (*composer)(OSCTXT*, Element*, Record*), int (*encodeType)(OSCTXT*, const Element*),
             int (*decodeType)(OSCTXT*, Element*),
             void (*printType)(const OSCTXT*, const char*, const Element*, RtxPrintSink, void*),
             bool mayBeRefused = true)
    {
        const auto record = cleared<Record>();
        const auto element = cleared<Element>();
        const auto again = cleared<Element>();
        unsigned encoded = 0;
        unsigned refused = 0;
        for (unsigned seed = 0; seed < records; ++seed)
        {
            SCOPED_TRACE(seed);
            std::mt19937 chance(seed);
            constexpr unsigned densities[] = {0, 2, 8, 64, 512, sizeof(Record) / 8 + 1, 2 * sizeof(Record)};
            fillRandomly(*record, chance, densities[seed % std::size(densities)]);

            std::memset(element.get(), 0, sizeof *element);
            const INT32 result = composer(&context, element.get(), record.get());
            const std::string lines = printed();
            if (result != VOS_OK)
            {
                EXPECT_EQ(result, VOS_ERROR);
                EXPECT_FALSE(lines.empty()) << "a composer that fails says so";
            }
            size_t printedOctets = 0;
            printType(&context, "element", element.get(), count, &printedOctets);
            EXPECT_NE(printedOctets, 0U);

            const std::string hex = encode(encodeType, *element);
            if (hex.find_first_not_of("0123456789abcdef") != std::string::npos)
            {
                EXPECT_NE(hex.find(": "), std::string::npos) << hex;
                ++refused;
            }
            else
            {
                std::vector<OSOCTET> octets;
                for (size_t i = 0; i < hex.size(); i += 2)
                {
                    octets.push_back(static_cast<OSOCTET>(std::stoi(hex.substr(i, 2), nullptr, 16)));
                }
                pu_setBuffer(&context, octets.data(), octets.size(), 0);
                ASSERT_EQ(decodeType(&context, again.get()), 0);
                EXPECT_EQ(encode(encodeType, *again), hex);
                ++encoded;
            }
            rtFreeContext(&context);
            printed();
        }
        // Chance has to lead to both, else it tells little.
        EXPECT_GE(encoded, 1U);
        EXPECT_EQ(refused >= 5, mayBeRefused) << refused;
    }

    static void count(void* arg, const char* text)
    {
        *static_cast<size_t*>(arg) += std::strlen(text);
    }
};

} // namespace

#define RANDOM_RECORDS(composer, Type, ...)                                                                            \
    run(composer, asn1PE_##Type, asn1PD_##Type, asn1PrintTo_##Type __VA_OPT__(, ) __VA_ARGS__)

TEST_F(randomRecords, SpecialCell)
{
    RANDOM_RECORDS(rrcComposeSP_CellGroupCfg, SpCellConfig);
}

TEST_F(randomRecords, ServingCellCommon)
{
    RANDOM_RECORDS(rrcComposeServCellConfigCommon, ServingCellConfigCommon);
}

TEST_F(randomRecords, DedicatedTddPattern)
{
    RANDOM_RECORDS(rrcComposeTDD_UL_DL_ConfigDedicated, TDD_UL_DL_ConfigDedicated, false); // its lists are never sent
}

TEST_F(randomRecords, DedicatedDownlinkBwp)
{
    RANDOM_RECORDS(rrcComposeBWP_DownlinkDedicated, BWP_DownlinkDedicated);
}

TEST_F(randomRecords, UplinkConfig)
{
    RANDOM_RECORDS(rrcComposeUplinkConfig, UplinkConfig);
}

TEST_F(randomRecords, DedicatedServingCell)
{
    RANDOM_RECORDS(rrcComposespCellConfigDedicated, ServingCellConfig);
}

TEST_F(randomRecords, SecondaryCell)
{
    RANDOM_RECORDS(rrcCompose_sCellToAddModItem, SCellConfig);
}

TEST_F(randomRecords, CsiMeasConfig)
{
    RANDOM_RECORDS(rrcComposecsi_MeasConfigSetup, CSI_MeasConfig);
}

TEST_F(randomRecords, WholeCellGroup)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    std::vector<UINT8> octets(8192 + 1);
    unsigned failed = 0;
    for (unsigned seed = 0; seed < records; ++seed)
    {
        SCOPED_TRACE(seed);
        std::mt19937 chance(seed);
        fillRandomly(*record, chance, 64U << seed % 6);
        octets.back() = 0xA5;
        Mbuf_t message = {0xFFFFFFFF, octets.data()};
        const INT32 result = rrcComposeCellGroupCfg(record.get(), &message);
        EXPECT_EQ(result == VOS_OK, message.bufLen <= 8192);
        EXPECT_EQ(result == VOS_OK, printed().find(" Error\r\n") == std::string::npos);
        EXPECT_EQ(octets.back(), 0xA5);
        failed += result == VOS_OK ? 0 : 1;
    }
    EXPECT_NE(failed, 0U);
}
