// The compiler as a function: schema in, files out.
#pragma once

#include "diagnostics.h"

#include <string>
#include <string_view>
#include <vector>

namespace asncomp
{

struct OutputFile
{
    std::string name;
    std::string text;
};

struct Options
{
    std::vector<std::string> pdus;   // ASN.1 names of the types that get an encoder, a decoder and a printer; "all":
                                     // every named one
    std::vector<std::string> except; // names that "all" leaves out, as their functions are elsewhere
    std::string base;   // not empty: only <base>.h and <base>.cpp come out, with the functions of these types
    bool table = false; // with a base: a table of these types and the ones left out comes with them
    // "Type.member" of the optional members and alternatives that usual messages carry; empty: all.
    std::vector<std::string> usual = {};
};

// Compiles the schema. On failure the diagnostics say why and nothing comes out.
std::vector<OutputFile> compile(const std::string& schemaName, std::string_view schema, const Options& options,
                                Diagnostics& diagnostics);

} // namespace asncomp
