#include "assets.h"
#include "octets.h"
#include "rrcPage.h"
#include "rrcPlayground.h"

#include <cstdint>

namespace playground
{
namespace
{

EMBED(form, ASSETS "playground.html")
EMBED(style, ASSETS "playground.css")
EMBED(script, ASSETS "playground.js")

// A string of JSON that may stand in a script element.
std::string quoted(std::string_view text)
{
    std::string all = "\"";
    for (const char c : text)
    {
        if (c == '\n')
        {
            all += "\\n";
            continue;
        }
        all += c == '<' ? "\\u003c" : c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    }
    return all + "\"";
}

std::string jsonOf(std::span<const Example> examples)
{
    std::string text;
    for (const Example& one : examples)
    {
        text +=
            (text.empty() ? "[[" : ",[") + quoted(one.words) + "," + quoted(one.first) + "," + quoted(one.second) + "]";
    }
    return text.empty() ? "[]" : text + "]";
}

} // namespace

std::string page(std::span<const Example> examples)
{
    if (program().empty())
    {
        return "";
    }
    const auto* const octets = reinterpret_cast<const std::uint8_t*>(program().data());
    std::string body = "<style>\n";
    body += style();
    body += "</style>\n";
    body += form();
    body += "<script type=\"application/json\" id=examples>" + jsonOf(examples) +
            "</script>\n<script type=\"application/octet-stream\" id=program>" +
            tool::toBase64({octets, program().size()}) + "</script>";
    return ::page::shell("Cell group playground", body, script());
}

} // namespace playground
