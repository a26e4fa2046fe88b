// What is wrong with a message, in one shape wherever it was found, and the forms in which it is told.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool
{

enum class Severity
{
    Error,
    Warning,
    Note,
};

struct Finding
{
    std::string id; // names the rule, the same for all that break it: "asn1-range"
    Severity severity = Severity::Error;
    std::string path;     // ASN.1 path of the place in the message
    std::string message;  // what is wrong, one sentence without the path
    std::string value;    // what is there; empty when there is nothing to show
    std::string allowed;  // what could be there
    std::string advice;   // what to do
    std::string clause;   // the standard's: "X.680 51.4"
    std::size_t line = 0; // of the place in a text, both from 1; 0 when there is none
    std::size_t column = 0;
};

// Where the message of the findings was given.
struct Origin
{
    std::string file;
    std::size_t line = 0; // of the message in the file, 0 when the message is the whole file
};

struct Findings
{
    Origin origin;
    std::vector<Finding> findings;
};

enum class FindingsForm
{
    Text,  // a line each, with what is allowed and what to do
    Gcc,   // "file:line: error: path: message [id]", which editors and builds understand
    Json,  // one object, "version" tells its layout
    Sarif, // 2.1.0
};

std::optional<FindingsForm> findingsFormNamed(std::string_view name);

// The findings of all messages as one text. `color` is for Text alone.
std::string writeFindings(const std::vector<Findings>& all, FindingsForm form, bool color);

} // namespace tool
