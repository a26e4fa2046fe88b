// The forms in which a message is given, by the names that --as takes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tool
{

enum class Form
{
    Binary,
    Hex,
    HexDump,
    CArray,
    Escaped,
    Base64,
    Jer,
    Record,
    Flat,
    LogLine,
};

// Whether it is read as a text, not as octets.
constexpr bool isText(Form form)
{
    return form == Form::Jer || form == Form::Record || form == Form::Flat;
}

std::string_view formName(Form form);
std::optional<Form> formNamed(std::string_view name);

// What to say of a name that is no form: the form that was likely meant, else all forms.
std::string unknownForm(std::string_view name);

} // namespace tool
