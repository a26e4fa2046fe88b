// Builds an element tree from what a reader finds in its text, in the words of JSON: objects with members, arrays and
// scalars. All that can be wrong with them is said here, whatever the text looks like.
#pragma once

#include "mistakes.h"
#include "rtxType.h"
#include "scalar.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace text
{

// Every event takes the offset in the text of what it is about. After a mistake the content that it concerns is passed
// over; a reader goes on until Mistakes::full().
class TreeBuilder
{
public:
    // `value` has the type's size and is cleared.
    TreeBuilder(OSCTXT& ctxt, const RtxType& type, void* value, Mistakes& mistakes);

    void beginObject(std::size_t offset);
    void member(std::size_t offset, std::string_view name);
    void endObject();

    void beginArray(std::size_t offset);
    void element(std::size_t offset, std::uint64_t index); // optional: which element comes next
    void endArray();

    void scalar(std::size_t offset, const Scalar& scalar);

    // Where the next event belongs.
    std::string path() const;

private:
    // What is open: an object of a sequence or a choice, or an array.
    struct Frame
    {
        const RtxType* type;
        OSOCTET* to;
        std::size_t begin;   // offset in the text, of what is said about all of it
        std::size_t offset;  // of the value that comes next
        unsigned member;     // of the last name given; memberCount stands for what this release does not know
        bool pending;        // its value is still to come
        std::uint32_t count; // elements or alternatives so far
        std::uint64_t gap;   // elements that were left out before the last one
        std::size_t seen;    // where its flags of `seen_` begin
    };

    struct Bounds
    {
        std::int64_t lower;
        std::int64_t upper;
    };

    struct Place
    {
        const RtxType* type;
        OSOCTET* to;
    };

    bool isObject(const Frame& frame) const
    {
        return frame.type->kind == rtx::Kind::Sequence || frame.type->kind == rtx::Kind::Choice;
    }

    bool next(std::size_t offset, Place& place);
    bool nextMember(Frame& frame, Place& place);
    bool nextElement(Frame& frame, Place& place);
    bool unknownPlace(Frame& frame, Place& place);
    void begin(std::size_t offset, bool object, const char* found);
    void end();

    void endSequence(const Frame& frame);
    void requireMembers(const Frame& frame, unsigned first, unsigned count);
    void endUnknown(const Frame& frame);
    void endList(const Frame& frame);

    void store(std::size_t offset, const Place& place, std::string_view text);
    void integer(std::size_t offset, const Place& place, std::string_view text);
    void enumerated(std::size_t offset, const Place& place, std::string_view text);
    void bits(std::size_t offset, const Place& place, std::string_view text);
    void octets(std::size_t offset, OSOCTET* to, std::string_view text);
    bool areDigits(std::size_t offset, std::string_view text);
    Bounds indexBounds() const;

    void mistake(std::size_t offset, std::string words);
    void mistakeOfFrame(std::size_t offset, std::string words);
    std::string pathTo(std::size_t depth) const;
    OSOCTET* allocate(std::size_t octets, std::size_t offset);

    OSCTXT& ctxt_;
    const RtxType& type_;
    OSOCTET* value_;
    Mistakes& mistakes_;
    std::vector<Frame> frames_;
    std::vector<bool> seen_;
    std::uint64_t skipped_ = 0; // open objects and arrays that are passed over
    bool begun_ = false;
};

} // namespace text
