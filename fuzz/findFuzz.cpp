// Looks for messages in any octets, and for the input as a name: of a place of the schema, of a field of the record, as
// a pattern, and for the nearest name. What is found is there.
#include "NR-RRC-Definitions.h"
#include "findingPath.h"
#include "nearest.h"
#include "recordPath.h"
#include "schemaPath.h"
#include "session.h"

#include <algorithm>
#include <cctype>
#include <memory>

#include "require.h"

using fuzz::require;

namespace
{

const RtxType& type = *asn1Type_CellGroupConfig();

// Of the input, of its exact size, so that reading past it is found.
class Search
{
public:
    Search(const uint8_t* data, size_t size) : octets_(std::make_unique<OSOCTET[]>(size)), size_(size)
    {
        std::copy_n(data, size, octets_.get());
        require(rtxInitContext(&ctxt_) == RTX_OK, "no context");
    }

    ~Search()
    {
        rtFreeContext(&ctxt_);
    }

    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    std::vector<RtxFound> messages(OSUINT32 least)
    {
        std::vector<RtxFound> found;
        const auto sink = [](void* to, const RtxFound* one)
        {
            static_cast<std::vector<RtxFound>*>(to)->push_back(*one);
        };
        const int64_t count = rtxFind(&ctxt_, &type, octets_.get(), size_, least, sink, nullptr, &found);
        require(count == static_cast<int64_t>(found.size()), "another number than was told");
        return found;
    }

    void expectMessage(const RtxFound& found)
    {
        std::vector<OSOCTET> message(found.octets);
        rtxCopyBits(message.data(), octets_.get(), found.contentBit, message.size());
        CellGroupConfig value;
        require(pu_setBuffer(&ctxt_, message.data(), message.size(), 0) == RTX_OK, "no buffer");
        require(rtxDecode(&ctxt_, &type, &value, RTX_DECODE_STRICT) == RTX_OK, "what was found is no message");
    }

private:
    std::unique_ptr<OSOCTET[]> octets_;
    size_t size_;
    OSCTXT ctxt_;
};

void checkMessages(const uint8_t* data, size_t size, OSUINT32 least)
{
    Search search(data, size);
    const std::vector<RtxFound> found = search.messages(least);
    uint64_t end = 0;
    for (const RtxFound& one : found)
    {
        require(one.bit >= end && one.contentBit > one.bit, "messages overlap, or stand in another order");
        end = one.contentBit + uint64_t{one.octets} * 8;
        require(one.octets >= least && end <= uint64_t{size} * 8, "a message that is too short, or goes on behind");
        search.expectMessage(one);
    }
    const std::vector<RtxFound> again = search.messages(least);
    require(std::equal(found.begin(), found.end(), again.begin(), again.end(),
                       [](const RtxFound& a, const RtxFound& b) { return a.bit == b.bit && a.octets == b.octets; }),
            "other messages the second time");
}

// `find(path)` gives places along a path or throws.
template <typename Find, typename Check>
void checkPath(const std::string& path, const Find& find, const Check& check)
{
    try
    {
        const auto places = find(path);
        if (!places.empty())
        {
            check(places.back(), find(places.back().path));
        }
    }
    catch (const tool::PathError& error)
    {
        require(*error.what() != '\0', "a refusal without words");
    }
    catch (const tool::Failure& failure)
    {
        require(*failure.what() != '\0', "a failure without words");
    }
}

// A search for a name looks at the whole schema, which takes its time: nothing else can be found anyway.
bool isName(const std::string& word)
{
    return std::all_of(word.begin(), word.end(),
                       [](unsigned char c) { return std::isalnum(c) != 0 || c == '-' || c == '_'; });
}

// Each takes a search of its own.
template <typename Place>
std::vector<Place> some(std::vector<Place> places)
{
    constexpr size_t enough = 10;
    places.resize(std::min(places.size(), enough));
    return places;
}

void checkPlaces(const std::string& word)
{
    const auto isSamePlace = [](const tool::SchemaPlace& place, const std::vector<tool::SchemaPlace>& again)
    {
        require(!again.empty() && again.back().type == place.type && again.back().path == place.path,
                "a place's own path leads elsewhere");
    };
    checkPath(word, tool::findPlaces, isSamePlace);
    if (!isName(word))
    {
        return;
    }
    for (const tool::SchemaPlace& place : some(tool::placesNamed(type, word)))
    {
        isSamePlace(place, tool::findPlaces(place.path));
        require(tool::isNamedBy(place.path, place.path), "a path is no pattern of itself");
    }
}

void checkFields(const std::string& word)
{
    const auto isSameField = [](const tool::RecordPlace& place, const std::vector<tool::RecordPlace>& again)
    {
        require(!again.empty() && again.back().field == place.field, "a field's own path leads elsewhere");
    };
    checkPath(word, tool::findFields, isSameField);
    if (!isName(word))
    {
        return;
    }
    for (const tool::RecordPlace& place : some(tool::fieldsNamed(word)))
    {
        isSameField(place, tool::findFields(place.path));
        (void)tool::valuesOf(place, true);
    }
}

void checkNearest(const std::string& word)
{
    static const std::vector<std::string_view> names = []
    {
        std::vector<std::string_view> all;
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            all.emplace_back(type.names[i]);
        }
        return all;
    }();
    const auto found = text::nearest(word, names);
    require(!found || std::find(names.begin(), names.end(), *found) != names.end(), "no name of these");
    const bool isKnown = std::find(names.begin(), names.end(), word) != names.end();
    require(!isKnown || found == word, "another name is nearer to a name");
}

void checkPatterns(const std::string& word)
{
    require(tool::isNamedBy(word, "**"), "a place that is nowhere");
    const std::string plain = tool::plainPath(word);
    require(tool::plainPath(plain) == plain, "a plain path is not plain");
    (void)tool::placeOrder(type, word);
    (void)tool::isNamedBy("CellGroupConfig.rlc-BearerToAddModList[0: logicalChannelIdentity 4].rlc-Config", word);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    checkMessages(data + 1, size - 1, data[0] % 16 + 1U);
    constexpr size_t longest = 200; // of a name that somebody types
    const std::string word(reinterpret_cast<const char*>(data) + 1, std::min(size - 1, longest));
    checkPlaces(word);
    checkFields(word);
    checkNearest(word);
    checkPatterns(word);
    return 0;
}
