// The mistakes that are found in a text.
#pragma once

#include "asn1FromText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace text
{

class Mistakes
{
public:
    void add(std::size_t offset, std::string path, std::string words);

    bool none() const
    {
        return mistakes_.empty();
    }

    // Nothing more is taken.
    bool full() const
    {
        return full_;
    }

    // What has happened makes going on useless.
    void stop()
    {
        full_ = true;
    }

    // Gives them to the sink in the order of the text they are about, and returns their number.
    int report(std::string_view text, Asn1MistakeSink sink, void* arg);

private:
    struct Mistake
    {
        std::size_t offset;
        std::string path;
        std::string words;
    };

    std::vector<Mistake> mistakes_;
    bool full_ = false;
};

// A string of the input in double quotes: cut when it is long, on one line.
std::string quoted(std::string_view text);

// The input as it is, cut behind `most` octets, on one line.
std::string shown(std::string_view text, std::size_t most = 60);

// "a", "b" or "c"
std::string oneOf(const char* const* names, std::size_t count);

// `; did you mean "x"?`, or which names there are when they are few and none is near, or nothing.
std::string suggestion(std::string_view text, const char* const* names, std::size_t count);

} // namespace text
