// A whole page around what it shows.
#include "assets.h"
#include "html.h"
#include "rrcPage.h"
#include "whileMemory.h"

#include <algorithm>

namespace page
{

std::string shell(std::string_view title, std::string_view body, std::string_view scripts)
{
    std::string text = "<!DOCTYPE html>\n<html lang=en><head><meta charset=utf-8>"
                       "<meta http-equiv=Content-Security-Policy content=\"default-src 'none'; "
                       "style-src 'unsafe-inline'; script-src 'unsafe-inline' 'wasm-unsafe-eval'; img-src data:\">"
                       "<meta name=viewport content=\"width=device-width,initial-scale=1\">"
                       "<meta name=color-scheme content=\"light dark\">"
                       "<title>";
    text += escaped(title) + "</title><style>\n";
    text += style;
    text += "</style></head><body>\n";
    text += body;
    text += "\n<script>\n";
    text += script;
    text += scripts;
    return text + "</script></body></html>\n";
}

std::string document(std::span<const Shown> messages, const RrcRuleContext* known, std::span<const std::uint8_t> held)
{
    std::string title;
    for (const Shown& shown : messages.first(std::min<std::size_t>(messages.size(), 2)))
    {
        title += (title.empty() ? "" : " and ") + (shown.name.empty() ? "message" : shown.name);
    }
    return shell(title + " - cell group", "<main id=page>" + content(messages, known, held) + "</main>",
                 "show(document.getElementById(\"page\"));\n");
}

} // namespace page

int rrcPage(const RrcPageMessage* messages, size_t count, const RrcRuleContext* known, const OSOCTET* held,
            size_t heldOctets, RtxPrintSink sink, void* arg)
{
    if (messages == nullptr || sink == nullptr)
    {
        return RTX_E_NULL;
    }
    if (count == 0 || count > 2)
    {
        return RTX_E_SIZE;
    }
    std::string text;
    const auto write = [&]
    {
        std::vector<page::Shown> shown;
        for (const RrcPageMessage& message : std::span(messages, count))
        {
            shown.push_back({message.name == nullptr ? "" : message.name,
                             message.note == nullptr ? "" : message.note,
                             {message.octets, message.octets + message.numocts}});
        }
        text = page::document(shown, known, {held, heldOctets});
        return int{RTX_OK};
    };
    const int status = text::whileMemory(write, [] { return int{RTX_E_HEAP}; });
    if (status == RTX_OK)
    {
        sink(arg, text.c_str());
    }
    return status;
}
