# cmake -DSTYLE=... -DSCRIPT=... -DOUTPUT=... -P embed.cmake: both files as strings of C++.
file(READ "${STYLE}" style)
file(READ "${SCRIPT}" script)
file(
    WRITE "${OUTPUT}"
    "#include \"assets.h\"\n\nnamespace page\n{\n\n"
    "const std::string_view style = R\"~~~~(${style})~~~~\";\n\n"
    "const std::string_view script = R\"~~~~(${script})~~~~\";\n\n"
    "} // namespace page\n"
)
