// Fields of the record, reached from the whole cell group or from any structure.
#pragma once

#include "rrcRecordType.h"

#include <string>
#include <string_view>
#include <vector>

namespace tool
{

struct RecordPlace
{
    const RrcRecordType* owner = nullptr;
    const RrcRecordField* field = nullptr;
    std::string path; // "spCellCfg.spCellDedicated.dlBwp[].bwp"
};

// Null where no structure or union has the name.
const RrcRecordType* recordNamed(std::string_view name);

// The field's place in a structure of this path, which is empty for the whole cell group.
RecordPlace fieldPlace(const RrcRecordType& owner, const std::string& path, unsigned number);

// The fields along a path; it begins in the cell group or with the name of a structure, and needs no indices. Empty
// when it does not begin so. Throws PathError, with the nearest name.
std::vector<RecordPlace> findFields(std::string_view path);

// All places in the cell group whose field has this name.
std::vector<RecordPlace> fieldsNamed(std::string_view name);

// What may stand there, in a few words: "0..31, in slots"; "ms1, ms2", or with their numbers "0 ms1, 1 ms2".
std::string valuesOf(const RecordPlace& place, bool numbered = false);

} // namespace tool
