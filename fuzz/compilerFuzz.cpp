// Compiles any text as a schema. It ends with files or with messages that each name a place, never with both.
#include "compiler.h"

#include <algorithm>
#include <cstdio>

#include "require.h"

using fuzz::require;

namespace
{

// "s:<line>:<column>: <reason>"
bool namesPlace(const std::string& message, std::size_t size)
{
    unsigned line = 0;
    unsigned column = 0;
    int read = 0;
    return std::sscanf(message.c_str(), "s:%u:%u: %n", &line, &column, &read) == 2 && read != 0 &&
           static_cast<std::size_t>(read) < message.size() && line >= 1 && line <= size + 1 && column >= 1 &&
           column <= size + 1;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    asncomp::Diagnostics diagnostics("s");
    const auto files = asncomp::compile("s", text, {{"all"}, {}, {}}, diagnostics);
    require(files.empty() == diagnostics.failed(), "neither files nor messages, or both");
    require(files.empty() || files.size() == 4, "some of the files");
    require(std::all_of(files.begin(), files.end(), [](const auto& file) { return !file.text.empty(); }),
            "an empty file");

    const auto& messages = diagnostics.messages();
    constexpr std::size_t most = 50;
    for (std::size_t i = 0; i < std::min(messages.size(), most); ++i)
    {
        require(namesPlace(messages[i], size), messages[i].c_str());
    }
    require(messages.size() <= most || (messages.size() == most + 1 && messages[most] == "s: there are more errors"),
            "more messages than there may be");
    return 0;
}
