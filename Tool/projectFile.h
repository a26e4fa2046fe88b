// .cellgroupcfg.toml: what a project knows of its cells, and which findings it takes as they are.
#pragma once

#include "ruleInputs.h"
#include "silences.h"

#include <string>
#include <string_view>
#include <vector>

namespace tool
{

struct ProjectFile
{
    std::string name; // empty: there is none
    Settings context;
    std::vector<Silence> silences;
};

// Of the working directory or the nearest one above it, up to the repository's root or the home directory; outside of
// both of the working directory alone. Empty where there is none.
std::string projectFileName();

// Throws Failure with line and column of what is wrong. Files that it names lie beside it.
ProjectFile readProjectFile(const std::string& name);

// The same of a text, as the file of that name.
ProjectFile projectFileOf(const std::string& name, std::string_view text);

} // namespace tool
