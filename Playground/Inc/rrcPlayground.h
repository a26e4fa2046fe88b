// A page that shows whatever cell group is pasted into it. It has the libraries inside, as a program for the browser,
// and makes no request.
#ifndef RRCPLAYGROUND_H
#define RRCPLAYGROUND_H

#include <span>
#include <string>

namespace playground
{

// What the page offers to begin with.
struct Example
{
    std::string words;
    std::string first;
    std::string second; // to compare the first with; may be empty
};

// The page, in UTF-8. Empty where the build has no compiler for the program.
std::string page(std::span<const Example> examples);

} // namespace playground

#endif
