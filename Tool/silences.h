// Findings that a project or a message takes as they are, with a reason.
#pragma once

#include "findings.h"
#include "textPlaces.h"

#include <optional>
#include <string>
#include <vector>

namespace tool
{

struct Silence
{
    std::string rule;   // an id, or the beginning of several with its '-'
    std::string path;   // empty: everywhere; of a comment the place, else a pattern of findingPath.h
    std::string reason; // never empty
    std::string by;     // where it is said: ".cellgroupcfg.toml:7"
    bool isInText = false;
    bool isUsed = false;
};

// Takes away from the findings what is silenced.
std::vector<Silenced> silenced(std::vector<Finding>& findings, const std::vector<Silence*>& silences);

// Blanks in the place of line ends: a reason is told on one line.
std::string onOneLine(std::string text);

// What a comment of JER says, "silence RULE reason"; nothing with what is wrong with it as `mistake`.
std::optional<Silence> silenceOf(const TextComment& comment, const std::string& file, std::string& mistake);

} // namespace tool
