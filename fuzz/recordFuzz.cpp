// Reads any input as the JSON of a record. What is accepted is written and read again, which gives the same text and
// composes to the same; what is not has mistakes, each with its place.
#include "rrcCodec/rrcCompose.h"
#include "rrcRecordFromJson.h"
#include "rrcRecordJson.h"
#include "vos_lib.h"

#include <string>
#include <vector>

#include "mistakes.h"

// Stands in place of the platform's: a record may bring notices by the thousand.
INT32 VOS_Printf(const char* /*format*/, ...)
{
    return 0;
}

using fuzz::require;

namespace
{

struct Input
{
    fuzz::Mistakes places;
    int mistakes = 0;
    int unread = 0;
};

void checkMistake(void* arg, const RrcRecordMistake* found)
{
    auto& input = *static_cast<Input*>(arg);
    ++(found->isUnread != 0 ? input.unread : input.mistakes);
    require(*found->file == '\0', "a mistake in a file");
    input.places.expectInPlace(found->mistake);
}

int read(RrcCellGroupCfg_t& record, const char* text, size_t length)
{
    Input input{{text, length}};
    const int mistakes = rrcRecordFromJson(&record, text, length, nullptr, checkMistake, &input);
    require(mistakes == input.mistakes && mistakes <= ASN1_MAX_MISTAKES && input.unread <= ASN1_MAX_MISTAKES,
            "mistakes are counted otherwise");
    require(mistakes == 0 || input.unread == 0, "a record with mistakes is read");
    return mistakes;
}

std::string written(const RrcCellGroupCfg_t& record)
{
    std::string text;
    rrcRecordToJson(
        &record, [](void* to, const char* piece) { *static_cast<std::string*>(to) += piece; }, &text);
    return text;
}

// The octets, or the line that refuses the record.
std::string composed(RrcCellGroupCfg_t& record)
{
    static UINT8 octets[8192];
    size_t length = 0;
    char error[512] = "";
    const int status = rrcEncodeCellGroupCfg(&record, octets, sizeof octets, &length, error, sizeof error);
    return status == RRC_COMPOSE_OK ? std::string(octets, octets + length) : error;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static RrcCellGroupCfg_t record;
    static RrcCellGroupCfg_t again;
    const std::vector<char> text(data, data + size); // of its exact size, so that reading past it is found
    if (read(record, text.data(), text.size()) != 0)
    {
        return 0;
    }
    const std::string first = written(record);
    require(read(again, first.data(), first.size()) == 0, "what was written has mistakes");
    require(written(again) == first, "what was written is another record");
    require(composed(again) == composed(record), "what was written composes to something else");
    return 0;
}
