// Paths, and one line of text for a caller's buffer.
#ifndef RTXLINE_H
#define RTXLINE_H

#include "asn1Runtime.h"

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace rtx
{

// A line that grows in a buffer of fixed size; `length` counts what did not fit, too.
struct Line
{
    Line(char* buffer, size_t octets) : text(buffer), size(octets)
    {
        if (size != 0)
        {
            text[0] = '\0';
        }
    }

    char* text;
    size_t size;
    size_t length = 0;
};

__attribute__((format(printf, 2, 3))) inline void append(Line& line, const char* format, ...)
{
    const size_t room = line.length < line.size ? line.size - line.length : 0;
    va_list args;
    va_start(args, format);
    const int length = std::vsnprintf(room != 0 ? line.text + line.length : nullptr, room, format, args);
    va_end(args);
    line.length += length > 0 ? static_cast<size_t>(length) : 0;
}

inline const char* plural(int64_t count)
{
    return count == 1 ? "" : "s";
}

// Adds the next outer step to a path that is kept from the innermost step outwards.
template <typename Path, typename Step>
void push(Path& path, const Step& step)
{
    if (path.depth < RTX_MAX_DEPTH)
    {
        path.path[path.depth++] = step;
    }
    else
    {
        path.depth = RTX_MAX_DEPTH + 1; // the outer steps are left out and said to be
    }
}

// Appends a path; what stands for an element of a list is up to `appendElement`.
template <typename Path, typename Append>
void appendPath(Line& line, const Path& path, const Append& appendElement)
{
    OSUINT32 depth = path.depth;
    if (depth > RTX_MAX_DEPTH)
    {
        append(line, ".."); // the next name brings a third one
        depth = RTX_MAX_DEPTH;
    }
    for (OSUINT32 i = depth; i-- != 0;)
    {
        const auto& step = path.path[i];
        if (step.name == nullptr)
        {
            appendElement(step);
        }
        else
        {
            append(line, "%s%s", line.length != 0 ? "." : "", step.name);
        }
    }
}

} // namespace rtx

#endif
