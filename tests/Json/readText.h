// A text read into a tree, with what was wrong with it.
#ifndef READTEXT_H
#define READTEXT_H

#include "asn1FromText.h"
#include "rtxType.h"

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace test
{

struct Mistake
{
    unsigned line;
    unsigned column;
    std::string path;
    std::string words;

    bool operator==(const Mistake&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Mistake& mistake)
{
    return out << mistake.line << ':' << mistake.column << ": " << mistake.path << ": " << mistake.words;
}

using Read = int(OSCTXT*, const RtxType*, void*, const char*, size_t, Asn1MistakeSink, void*);

// A tree with the context that it lies in.
class Tree
{
public:
    explicit Tree(const RtxType& type) : type_(type), storage_(type.size / sizeof(std::max_align_t) + 1)
    {
        rtxInitContext(&ctxt);
    }

    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    ~Tree()
    {
        rtFreeContext(&ctxt);
    }

    std::vector<Mistake> read(Read* reader, std::string_view text)
    {
        std::vector<Mistake> mistakes;
        const auto add = [](void* arg, const Asn1Mistake* mistake)
        {
            static_cast<std::vector<Mistake>*>(arg)->push_back(
                {mistake->line, mistake->column, mistake->path, mistake->words});
        };
        const int count = reader(&ctxt, &type_, value(), text.data(), text.size(), add, &mistakes);
        if (count != static_cast<int>(mistakes.size()))
        {
            mistakes.push_back({0, 0, "", "counted otherwise"});
        }
        return mistakes;
    }

    void* value()
    {
        return storage_.data();
    }

    OSCTXT ctxt;

private:
    const RtxType& type_;
    std::vector<std::max_align_t> storage_;
};

} // namespace test

#endif
