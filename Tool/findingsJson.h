// The writers of findings: what those of text share with those of JSON.
#pragma once

#include "findings.h"

namespace tool
{

// "error", "warning", "notice".
std::string_view severityName(Severity severity);
// The same in words of others, who say "note".
std::string_view foreignSeverityName(Severity severity);

// The readers of a finding look for a line; a message in octets begins at its file's first.
std::size_t lineOf(const Origin& origin, const Finding& finding);

std::string jsonText(const std::vector<Findings>& all, bool withUndecided);
std::string sarifText(const std::vector<Findings>& all);

} // namespace tool
