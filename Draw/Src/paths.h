// The paths of elements, as flat lines have them.
#ifndef DRAW_PATHS_H
#define DRAW_PATHS_H

#include "model.h"

#include "NR-RRC-Tables.h"

#include <map>
#include <string>
#include <utility>

namespace rules::draw
{

class Paths
{
public:
    explicit Paths(Model& model);

    // The path of an element of a type; in the message, where it is there.
    template <typename T>
    const std::string& of(const RtxType& type, const T& element) const
    {
        const T* const sent = model_.sent(element);
        return at(type, sent == nullptr ? &element : sent);
    }

private:
    void walk(const RtxType& type, const void* value, std::string& path);
    const std::string& at(const RtxType& type, const void* value) const;

    Model& model_;
    std::map<std::pair<const void*, const RtxType*>, std::string> all_;
    const std::string none_ = "CellGroupConfig"; // of what a broken list hides
};

} // namespace rules::draw

#endif
