// What is wrong with a message, in one shape wherever it was found, and the forms in which it is told.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool
{

// In the order of their weight.
enum class Severity
{
    Notice,
    Warning,
    Error,
};

std::optional<Severity> severityNamed(std::string_view name);

struct Finding
{
    std::string id; // names the rule, the same for all that break it: "asn1-range"
    Severity severity = Severity::Error;
    std::string path;                   // ASN.1 path of the place in the message, or the place in the record
    std::string element;                // of a place in the record the ASN.1 path that it feeds; may be empty
    std::string message;                // what is wrong, one sentence without the path
    std::string value;                  // what is there; empty when there is nothing to show
    std::string allowed;                // what could be there
    std::string advice;                 // what to do
    std::string clause;                 // the standard's: "X.680 51.4"
    std::string context;                // "path = value" of the place, or of what is around it when it is absent
    std::string meaning;                // what the context's value means; empty where that is nothing more
    std::vector<std::string> decidedBy; // options that could change the verdict: "--fr or --band"
    bool configuredBefore = false;      // an earlier message has brought the place
    std::size_t line = 0;               // of the place in a text, both from 1; 0 when there is none
    std::size_t column = 0;
};

// A finding that is not counted, and why.
struct Silenced
{
    Finding finding;
    std::string reason;
    std::string by;        // where that is said: ".cellgroupcfg.toml:7"
    bool isInText = false; // in the message itself
};

// A rule that could not be decided everywhere, and the options that would do it.
struct Undecided
{
    std::string id;
    std::vector<std::string> decidedBy;
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
    std::vector<Silenced> silenced;
    std::vector<Undecided> undecided;
};

enum class FindingsForm
{
    Text,  // a line each, with the value's line, what to do and the clause
    Gcc,   // "file:line: error: path: message [id]", which editors and builds understand
    Json,  // one object, "version" tells its layout
    Sarif, // 2.1.0
};

std::optional<FindingsForm> findingsFormNamed(std::string_view name);

struct FindingsLook
{
    bool color;   // of Text
    bool verbose; // Text and Json tell what is undecided, Text what is silenced, too
};

// The findings of all messages as one text.
std::string writeFindings(const std::vector<Findings>& all, FindingsForm form, const FindingsLook& look);

// "1 error, 2 warnings"; empty of none.
std::string countText(const Findings& findings);

} // namespace tool
