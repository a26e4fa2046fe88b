// Places of the schema, reached from a named type by members, alternatives and elements.
#pragma once

#include "rtxType.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tool
{

struct SchemaPlace
{
    const RtxType* type = nullptr;
    const RtxType* owner = nullptr; // the type that holds it, null for the first one
    unsigned number = 0;            // of the member of the owner
    std::string path;               // "CellGroupConfig.rlc-BearerToAddModList[].rlc-Config"
};

// No place, or no path.
class PathError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

inline bool isList(const RtxType& type)
{
    return type.kind == rtx::Kind::List || type.kind == rtx::Kind::Array;
}

inline bool hasMembers(const RtxType& type)
{
    return type.kind == rtx::Kind::Sequence || type.kind == rtx::Kind::Choice;
}

SchemaPlace rootPlace(const RtxType& type);
// The member's place, or that of a list's element.
SchemaPlace memberPlace(const SchemaPlace& owner, unsigned number);

// One step of a path as text.
struct PathStep
{
    std::string_view name;              // empty for an element
    std::optional<std::uint32_t> index; // of an element; none in "[]"
};

// "A.b[3].c" as steps, the type first. Throws PathError.
std::vector<PathStep> splitPath(std::string_view path);

// The places along a path, the type first. An element needs no index and no brackets: "list[3].x", "list[].x" and
// "list.x" are one. Throws PathError, with the nearest name; Failure where there is no such type.
std::vector<SchemaPlace> findPlaces(std::string_view path);

// All places below a type whose member has this name.
std::vector<SchemaPlace> placesNamed(const RtxType& type, std::string_view name);

// The number, from 1, of the extension addition that the member of a sequence belongs to; 0 in the root.
unsigned additionOf(const RtxType& sequence, unsigned number);

} // namespace tool
