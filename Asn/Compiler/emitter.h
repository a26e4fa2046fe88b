// The outputs of the compiler. Each emitter reads the model and returns the text of one file.
#pragma once

#include "model.h"

#include <string>
#include <vector>

namespace asncomp
{

// What every generated file says about its origin.
struct Origin
{
    std::string schema; // file name without folders
    std::string hash;   // of the schema's text
};

struct Pdus
{
    std::vector<const Type*> types;
    std::string header;             // the generated header with their functions
    std::vector<const Type*> table; // in the table of messages; those without functions here have them elsewhere
};

std::string emitTypes(const Model& model, const Origin& origin, const Pdus& pdus);
std::string emitPduHeader(const Origin& origin, const Pdus& pdus, const std::string& typesHeader);
std::string emitEncoder(const Model& model, const Origin& origin, const Pdus& pdus);
std::string emitTables(const Model& model, const Origin& origin, const std::string& typesHeader);
std::string emitTablesHeader(const Model& model, const Origin& origin);

// The comment that marks a generated file.
std::string generatedMark(const Origin& origin);
// What a header declares of each type: asn1PE_, asn1PD_, asn1Print_ and the typed calls of the runtime.
std::string pduPrototypes(const Pdus& pdus);
// The name of a header's include guard.
std::string guard(const std::string& header);

} // namespace asncomp
