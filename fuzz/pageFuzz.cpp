// Shows an input as one message, or cut in two: no crash, the same page each time, nothing of the input as markup or
// script, and a page of the size that is promised.
#include "require.h"
#include "rrcPage.h"

#include <algorithm>

using fuzz::require;

namespace
{

size_t countOf(const std::string& text, const char* piece)
{
    size_t count = 0;
    for (size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1))
    {
        ++count;
    }
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
    {
        return 0;
    }
    // Which octet the second message begins at, 0: there is none; the name is of the input, too.
    const size_t cut = std::min<size_t>(data[0] * 4U, size - 1);
    const std::span<const uint8_t> octets(data + 1, size - 1);
    const std::string name(reinterpret_cast<const char*>(data) + 1, std::min<size_t>(size - 1, 40));
    const auto first = octets.first(cut == 0 ? octets.size() : cut);
    std::vector<page::Shown> messages = {{name, "", {first.begin(), first.end()}}};
    if (cut != 0)
    {
        const auto second = octets.subspan(cut);
        messages.push_back({name, name, {second.begin(), second.end()}});
    }
    const std::string text = page::document(messages, nullptr);
    require(text.starts_with("<!DOCTYPE html>\n") && text.ends_with("</script></body></html>\n"), "no page");
    require(countOf(text, "<script") == 2 && countOf(text, "</script") == 2, "another script");
    require(countOf(text, "<ul class=t>") == messages.size(), "another number of trees");
    require(text.find('\0') == std::string::npos, "an octet that HTML does not have");
    constexpr size_t mostMessage = 8192;
    constexpr size_t mostPage = 1000000;
    require(size > mostMessage || text.size() < messages.size() * mostPage, "a page that is too large");
    require(page::document(messages, nullptr) == text, "another page the second time");
    return 0;
}
