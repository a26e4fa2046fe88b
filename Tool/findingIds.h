// The ids of findings: those of the rules (rrcRules.h) and those of reading and encoding a message.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tool
{

struct IdWords
{
    std::string statement; // what holds, one sentence
    std::string advice;    // what to do where it does not; may be empty
    std::string clause;    // may be empty
};
IdWords wordsOf(const std::string& id);

// Whether a word names the id: it is the id, or the beginning of several with its '-', such as "bwp-".
bool isIdOf(std::string_view word, std::string_view id);

// Such words.
class Ids
{
public:
    Ids() = default;
    // Throws Failure, of which `origin` is the beginning, where a word names nothing that can be passed over.
    Ids(std::vector<std::string> words, const std::string& origin);

    bool none() const
    {
        return words_.empty();
    }
    bool have(std::string_view id) const;

private:
    std::vector<std::string> words_;
};

// What to say of a word that names no id that can be passed over; empty of others.
std::string wrongId(const std::string& word);

} // namespace tool
